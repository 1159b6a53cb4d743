// The seven lists that tie host values to the shop's ids, as data.
#pragma once

#include <span>

#include "ui/Tabellenquelle.h"

namespace marklink {

struct Liste {
  QString Schirm;  ///< name of its editor
  QString Titel;
  QString Tabelle;
  QString Layout;  ///< key of the grid's layout
  int Hilfethema = 0;
  bool Mit_Tipp = false;                  ///< shows Webshop_ID_Tipp()
  std::vector<Tabellenspalte> Spalten{};  ///< keyed by their fields, in the order of the grid
  QString Layouttabelle{};                ///< the table of Layout_Sql(), when it is not the list's own

  int Spalte(QLatin1String Feld) const;  ///< -1: none
  /// The statement that goes to the layout with the grid.
  QString Layout_Sql() const;
};

std::span<const Liste> Listen();

QString Webshop_ID_Tipp();

}  // namespace marklink
