// What all connections to one server with one login have in common.
#pragma once

#include <QElapsedTimer>
#include <memory>

#include "ODBC_Katalog.h"

namespace marklink::db {

class Odbc_Server {
 public:
  /// Logs in. A routine opens many connections: a server that does not answer is waited for once, and then
  /// refused at once for a while.
  bool Anmelden(Odbc_Griffe &Griffe, const Verbindungsdaten &Daten, QString &Fehler);
  /// Lives as long as somebody has it: when all have gone the tables may become others.
  std::shared_ptr<Odbc_Katalog> Katalog();

 private:
  std::weak_ptr<Odbc_Katalog> Katalog_;
  QElapsedTimer Vergeblich_;  ///< since then
  QString Fehler_;            ///< of that login
};

}  // namespace marklink::db
