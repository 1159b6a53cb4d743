// A new client's database: the tables of the schema.
#include "DDL.h"
#include "Verbindung.h"

namespace marklink::db {

bool Datenbank_anlegen(const QString &Verbindung) { return Datenbank_anlegen_mit(Schema(), Verbindung); }

}  // namespace marklink::db
