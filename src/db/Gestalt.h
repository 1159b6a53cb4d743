// What a SELECT shows of which tables, as far as its text tells.
#pragma once

#include <QString>
#include <vector>

#include "Zerleger.h"

namespace marklink::db {

struct Gestalt {
  /// One member of the select list.
  struct Glied {
    QString Quelle;      ///< what stands before the point; may be empty
    QString Spalte;      ///< empty for a computed one
    bool Stern = false;  ///< "*" or "T.*"
  };
  struct Herkunft {
    QString Name, Zweitname;  ///< the table, and how the statement calls it
  };
  std::vector<Glied> Auswahl;
  std::vector<Herkunft> Tabellen;  ///< empty for sums and unions, whose rows are no table's

  /// SELECT list FROM name [WHERE ...] [ORDER BY ...], with plain columns only: the table, in brackets where
  /// the statement has them, and the token of its FROM.
  QString Einzeltabelle;
  std::size_t From = 0;
  bool Alle_Spalten = false;   ///< its select list is "*"
  bool Ganze_Tabelle = false;  ///< SELECT * FROM Einzeltabelle and nothing else
};

Gestalt Gestalt_lesen(const std::vector<Zeichenkette> &Ketten);

}  // namespace marklink::db
