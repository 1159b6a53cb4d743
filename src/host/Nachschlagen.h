// Looking up what a token or a name stands for, in the short lists of the books: countries, methods.
#pragma once

#include <QHash>

#include "db/Anweisung.h"

namespace marklink {

/// The text in a field of the first row; empty when there is none.
QString Nachschlagen(const db::Anweisung &Sql, const QString &Feld);

/// While one lives, what was found, or not found, is not asked again: thousands of orders name a handful of
/// countries. What could not be read is.
class Nachschlagelauf {
 public:
  Nachschlagelauf();
  ~Nachschlagelauf();
  Nachschlagelauf(const Nachschlagelauf &) = delete;
  Nachschlagelauf &operator=(const Nachschlagelauf &) = delete;

 private:
  QHash<QString, QString> Gemerktes_;
};

}  // namespace marklink
