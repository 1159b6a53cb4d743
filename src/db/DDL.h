// The tables of a database, made from a description of them.
#pragma once

#include <QString>
#include <vector>

#include "Schema.h"
#include "Verbindung.h"

namespace marklink::db {

/// The statements that make one table and its indexes, in the embedded engine's SQL.
std::vector<QString> DDL_bilden(const Tabelle &T);

/// The same in SQL Server's.
std::vector<QString> DDL_bilden_SqlServer(const Tabelle &T);

/// Makes these tables in a catalogue on SQL Server that is there. False, and nothing left behind, when it
/// cannot be reached or has one of them already.
bool Tabellen_anlegen_SqlServer(const std::vector<Tabelle> &Tabellen, const Verbindungsdaten &Daten);

/// Makes a new embedded database file with these tables, or the tables in a server's catalogue. False, and
/// nothing left behind, when the file exists already or cannot be made.
bool Datenbank_anlegen_mit(const std::vector<Tabelle> &Tabellen, const QString &Verbindung);

}  // namespace marklink::db
