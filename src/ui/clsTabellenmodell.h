// The model between a grid and its row source: answers for cells, and keeps the edit of a row together.
#pragma once

#include <QAbstractTableModel>

#include "Tabellenquelle.h"

namespace marklink {

class clsTabellenmodell : public QAbstractTableModel {
  Q_OBJECT
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Einrichten(Tabellenquelle &Quelle, std::vector<Tabellenspalte> Spalten, bool Neue_Zeile);
  const std::vector<Tabellenspalte> &Spalten() const { return Spalten_; }
  void Auswahl_setzen(int Spalte, std::vector<QStringList> Eintraege);
  void Zeilenfarben_setzen(std::optional<qint32> Gerade, std::optional<qint32> Ungerade);
  void Neu_laden();
  void Auffrischen();

  bool Mit_neuer_Zeile() const { return Neue_Zeile_; }
  int Zeilen() const { return Zeilen_; }  ///< without the line for new rows

  /// Ends the edit of a row, if one is under way. False: refused.
  bool Zeile_abschliessen();
  /// Takes the edit of a row back. False when none was under way.
  bool Zeile_verwerfen();
  bool Zeile_offen() const { return Offen_.Zeile >= 0; }

  int rowCount(const QModelIndex &Oben = {}) const override;
  int columnCount(const QModelIndex &Oben = {}) const override;
  QVariant data(const QModelIndex &Stelle, int Rolle) const override;
  QVariant headerData(int Nummer, Qt::Orientation Richtung, int Rolle) const override;
  Qt::ItemFlags flags(const QModelIndex &Stelle) const override;
  bool setData(const QModelIndex &Stelle, const QVariant &Wert, int Rolle) override;

 Q_SIGNALS:
  void Zelle_geaendert(int Zeile, int Spalte);

 private:
  struct Zeilenbearbeitung {
    int Zeile = -1;
    bool Neu = false;
    std::vector<QVariant> Vorher{};
  };

  const Tabellenspalte &Spalte(const QModelIndex &Stelle) const { return Spalten_[size_t(Stelle.column())]; }
  bool Vorhanden(int Zeile) const;
  QVariant Wert(const QModelIndex &Stelle) const;
  std::optional<quint32> Hintergrund(int Zeile) const;
  bool Zeile_oeffnen(int Zeile);
  void Zeile_schliessen(bool Entfernen);

  Tabellenquelle *Quelle_ = nullptr;
  std::vector<Tabellenspalte> Spalten_;
  bool Neue_Zeile_ = false;
  int Zeilen_ = 0;  ///< as the views know it; the source may already have others
  std::optional<quint32> Gerade_, Ungerade_;
  Zeilenbearbeitung Offen_;
  bool Wird_beendet_ = false;
};

}  // namespace marklink
