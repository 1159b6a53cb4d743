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

/// The schema as a server is to have it: a table without a key gets the column `RowNumber`, which the server
/// counts. By it a row is found and changed; without a key it is known by all that it holds.
std::vector<Tabelle> Servertabellen();

/// How making tables on a server ended.
struct Serverausgang {
  enum class Stand {
    Gut,
    Keine_Verbindung,  ///< not even logged in
    Gescheitert,       ///< nothing of it is left
    Ungewiss           ///< the server did not tell whether it kept the transaction
  } Wie = Stand::Gut;
  QString Meldung{};  ///< the driver's and the server's own words; traced already
};

/// Makes these tables in a catalogue on SQL Server that is there, with the rows that they have in the
/// embedded database `Vorlage` (a connection string; empty: none), in one transaction. It fails where one of
/// the tables is there already.
Serverausgang Tabellen_anlegen_SqlServer(const std::vector<Tabelle> &Tabellen, const Verbindungsdaten &Daten,
                                         const QString &Vorlage = {});

/// Takes the tables out of the catalogue, all or none. Only for whoever has just made them.
Serverausgang Tabellen_entfernen_SqlServer(const std::vector<Tabelle> &Tabellen,
                                           const Verbindungsdaten &Daten);

/// Makes a new embedded database file with these tables, or the tables in a server's catalogue. False, and
/// nothing left behind, when the file exists already or cannot be made.
bool Datenbank_anlegen_mit(const std::vector<Tabelle> &Tabellen, const QString &Verbindung);

}  // namespace marklink::db
