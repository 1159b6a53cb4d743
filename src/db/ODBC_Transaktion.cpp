// Transactions on a server.
#include "ODBC_Transaktion.h"

namespace marklink::db {

bool Odbc_Transaktion::Beginnen(Odbc_Meldung &Meldung) {
  if (!Offen_) Offen_ = Griffe_.Befehl("BEGIN TRANSACTION", Meldung);
  return Offen_;
}

bool Odbc_Transaktion::Abschliessen(Odbc_Meldung &Meldung) {
  Offen_ = Griffe_.Befehl("COMMIT TRANSACTION; BEGIN TRANSACTION", Meldung);
  return Offen_;
}

void Odbc_Transaktion::Zurueckrollen(Odbc_Meldung &Meldung) {
  if (Offen_) Griffe_.Befehl("ROLLBACK TRANSACTION", Meldung);
  Offen_ = false;
}

}  // namespace marklink::db
