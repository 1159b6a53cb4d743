// What the layout dialog knows: the columns of a grid from left to right, and the changes of the user.
#pragma once

#include <QStringList>

#include "Tabellenlayout.h"

namespace marklink {

class Tabellenformat {
 public:
  Tabellenformat(QStringList Titel, Tabellenlayout Layout);

  const Tabellenlayout &Layout() const { return Layout_; }
  int Zeilenzahl() const { return int(Folge_.size()); }
  /// The row's column index.
  int Spalte(int Zeile) const { return Folge_[size_t(Zeile)]; }
  /// "Spalte", "Index", "Position", "Breite", "Spaltentyp", "Aktiv" of the row, as the list shows them.
  QStringList Zeile(int Zeile) const;

  bool Aktiv(int Zeile) const;
  /// In centimetres, "2,00" when no width is known.
  QString Spaltenbreite(int Zeile) const;
  int Spaltentyp(int Zeile) const;  ///< index in Spaltentypen(); -1: another number

  /// Takes edited values over. A width that is no number above 0 leaves the column's as it is, as does a type
  /// of -1.
  void Zeile_speichern(int Zeile, bool Aktiv, const QString &Breite_cm, int Typ);
  /// Moves the row's column up or down by `Schritt` places; gives the row where it is now.
  int Zeile_verschieben(int Zeile, int Schritt);

  static QStringList Spaltentypen();  ///< "System", "Benutzer": the column types 0 and 1

 private:
  Tabellenlayout::Spalte &Von(int Zeile) { return Layout_.Spalten[size_t(Spalte(Zeile))]; }
  const Tabellenlayout::Spalte &Von(int Zeile) const { return Layout_.Spalten[size_t(Spalte(Zeile))]; }

  QStringList Titel_;
  Tabellenlayout Layout_;
  std::vector<int> Folge_;
};

}  // namespace marklink
