// The tables of an embedded database, made from a description of them.
#pragma once

#include <QString>
#include <vector>

#include "Schema.h"

namespace marklink::db {

/// The statements that make one table and its indexes, in the embedded engine's SQL.
std::vector<QString> DDL_bilden(const Tabelle &T);

/// Makes a new embedded database file with these tables. False, and nothing left behind, when the file exists
/// already or cannot be made.
bool Datenbank_anlegen_mit(const std::vector<Tabelle> &Tabellen, const QString &Verbindung);

}  // namespace marklink::db
