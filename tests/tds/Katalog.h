// The catalogue procedures that the ODBC functions SQLTables, SQLColumns, SQLPrimaryKeys, SQLSpecialColumns
// and SQLStatistics call.
#pragma once

#include "Maschine.h"

namespace marklink::tds {

/// Sends the result set of a catalogue procedure; false when it is none. `Argumente` by name ("@table_name")
/// or by place ("1", "2", ...).
bool Katalog_ausfuehren(const QString &Prozedur, const Variablen &Argumente, Maschine &M, Antwort &A,
                        qint64 &Anzahl);

}  // namespace marklink::tds
