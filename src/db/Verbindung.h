// Connection strings, the physical connections behind them, and the seams for tests.
//
// The provider named in the string chooses the engine, the string's form the dialect: "Data Source" with a
// file and "Jet OLEDB:Database Password" is dialect 0; "Initial Catalog" is dialect 1. Provider "SQLite" is
// the embedded engine for both dialects; for dialect 1 its file is <Data Source>/<Initial Catalog>.mdb. A
// provider that nobody serves fails every Open().
#pragma once

#include <QString>
#include <functional>

namespace marklink::db {

enum class Dialekt { Jet = 0, SqlServer = 1 };

struct Verbindungsdaten {
  QString Anbieter;  ///< Provider
  db::Dialekt Dialekt = db::Dialekt::Jet;
  QString Quelle;   ///< Data Source
  QString Katalog;  ///< Initial Catalog (dialect 1)
  QString Benutzer, Passwort;
  int Wartezeit = 30;  ///< Connect Timeout, seconds
};

/// Reads "Key=Value;Key=Value" (keys without regard to case, unknown ones ignored). In a text with the keys
/// and the order of the system's own the password may hold ";", and so may a file; a user name that holds
/// ";Password=", or a server or catalogue that holds the key behind it, is not told apart.
Verbindungsdaten Verbindung_lesen(const QString &Verbindung);

/// Physical connections are kept open between uses; this closes those of one string (or all, when empty),
/// for example before the file is moved or replaced.
void Verbindungen_schliessen(const QString &Verbindung = {});

/// Creates an empty embedded database file with all tables of Schema() for that dialect. Only for whoever
/// sets up a client; fails (false) when the file exists already or cannot be made.
bool Datenbank_anlegen(const QString &Verbindung);

// --- seams for tests

/// Called with the joined text of every statement before it is run, and with "BEGIN"/"COMMIT"-like marks for
/// batches; each row sent by a batch gives an "INSERT INTO T"/"UPDATE T"/"DELETE FROM T" line. An empty
/// function ends the observation.
void Beobachter_setzen(std::function<void(const QString &Text)> Beobachter);

/// The n-th engine call from now on (1 = the next; opening, preparing/running a statement, each row of a
/// batch, the commit) fails as if the engine had refused it; 0 switches this off.
void Fehler_einspeisen(int n);
/// Engine calls made since the last Fehler_einspeisen().
int Aufrufe_gezaehlt();

}  // namespace marklink::db
