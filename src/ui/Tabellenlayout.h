// The layout of a grid as data, and its line in the layout file.
//
// The line: columns "|" first list "|" second list. A column record is index,position,width,visible,type; a
// list record index,order; records are joined by ";". Index and position are counted from 1 in the line, as
// the system's grid counts them, and from 0 here.
#pragma once

#include <QString>
#include <vector>

namespace marklink {

/// Widths are in five-hundredths of a centimetre: a new column, 1000 wide, has the 2,00 cm that the layout
/// dialog shows where it knows no width.
constexpr int Breite_je_cm = 500;
constexpr int Breite_neu = 1000;
constexpr int Breite_hoechstens = 50000;  ///< a metre; a grid shows nothing wider

struct Tabellenlayout {
  struct Spalte {
    int Position = 0;  ///< place among the columns, the hidden ones included
    int Breite = Breite_neu;
    bool Sichtbar = true;
    QString Typ = QStringLiteral("1");  ///< a number; its meaning is the user's
  };
  struct Ordnung {
    int Spalte = 0;
    int Reihenfolge = 0;
  };
  std::vector<Spalte> Spalten;  ///< by column index
  std::vector<Ordnung> Liste1;  ///< the group list
  std::vector<Ordnung> Liste2;  ///< the sort list
};

/// Every column at its index, 1000 wide, visible, type "1"; no lists.
Tabellenlayout Layout_neu(int Spalten);

/// Applies a layout line. Records that are damaged or name a column that is not there are passed over one by
/// one. A list is read only when its flag is set.
void Layout_anwenden(Tabellenlayout &Layout, const QString &Zeile, bool Liste1, bool Liste2);
/// The line; a list that is not asked for, or empty, is "-".
QString Layout_Zeile(const Tabellenlayout &Layout, bool Liste1, bool Liste2);

/// The column indices as they stand from left to right; columns that claim the same position by their index.
std::vector<int> Spaltenfolge(const Tabellenlayout &Layout);

/// From the layout file. A missing or empty key gives Layout_neu(); at most 1500 characters are read.
void Layout_laden(Tabellenlayout &Layout, const QString &Schluessel, bool Liste1, bool Liste2);
/// Nothing happens with an empty key.
void Layout_speichern(const Tabellenlayout &Layout, const QString &Schluessel, bool Liste1, bool Liste2);

}  // namespace marklink
