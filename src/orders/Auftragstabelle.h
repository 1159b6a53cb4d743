// The order list as the grid jgTab asks for it: columns, cells, and the row colour by status.
#pragma once

#include <QHash>
#include <vector>

#include "Auftragsliste.h"
#include "Auswahllisten.h"
#include "ui/Tabellenquelle.h"

namespace marklink {

/// The key of the grid's layout.
constexpr const char16_t *Auftragsliste_Layout = u"Webshop_Auftragsliste_xtc";

/// Columns in the order of Auftragsspalten(). What can be picked is what is active; a cell may show more.
std::vector<Tabellenspalte> Auftragstabelle_Spalten(const Auswahllisten &Listen);

class Auftragstabelle : public Tabellenquelle {
 public:
  /// `Liste` is not owned and outlives the table.
  explicit Auftragstabelle(Auftragsliste &Liste) : Liste_(Liste) {}

  /// Rows with the WebshopID of a record of that status list text take its colour; the first record of an id
  /// counts, one whose colour is no colour value gives none.
  void Auftragsstati_einfaerben(const QString &Statusliste);

  /// The colour of a status; nothing for one without.
  std::optional<qint32> Statusfarbe(const QString &WebshopID) const;

  int Zeilen() const override { return Liste_.Zeilenzahl(); }
  QVariant Zelle(int Zeile, int Spalte) const override { return Liste_.Zelle(Zeile, Spalte); }
  bool Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) override;
  /// In the middle of a run: it works on the rows as they are.
  bool Gesperrt() const override;
  std::optional<qint32> Zeilenfarbe(int Zeile) const override;

 private:
  Auftragsliste &Liste_;
  QHash<QString, qint32> Farben_;
};

}  // namespace marklink
