// Rows for one table, apart from any engine: what the demo puts into the shop's and the client's database.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <vector>

namespace marklink::demo {

struct Tabellenzeilen {
  const char *Tabelle;
  QStringList Spalten;
  std::vector<QVariantList> Zeilen;  ///< one value for each column, in the order of `Spalten`
};

/// "a b c" as a list of column names.
inline QStringList Spalten(const char *Namen) { return QString::fromLatin1(Namen).split(QLatin1Char(' ')); }

}  // namespace marklink::demo
