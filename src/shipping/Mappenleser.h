// Reading an Excel file (.xls) as sheets of text.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace marklink {

struct Tabellenblatt {
  QString Name;
  std::vector<QStringList> Zeilen;  ///< each up to its last cell that holds something
};

struct Tabellenmappe {
  std::vector<Tabellenblatt> Blaetter;
  QString Hindernis;  ///< why there are no sheets; empty when the workbook could be read
};

/// The workbook as it is on disk now. A text stays as it is ("01"), a number is one with a decimal comma, a
/// date is dd.mm.yyyy. Never null.
std::shared_ptr<const Tabellenmappe> Mappe_lesen(const QString &Pfad);

}  // namespace marklink
