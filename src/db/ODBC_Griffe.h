// The handles of one ODBC connection, and what the driver says when something fails.
#pragma once

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <QString>

#include "Verbindung.h"

namespace marklink::db {

/// What the driver tells of a failed call.
struct Odbc_Meldung {
  QString Text;                 ///< all messages, the server's own among them; no value of a row
  bool Verloren = false;        ///< the connection is gone
  bool Zurueckgerollt = false;  ///< the transaction is lost, or not worth going on with
  bool Gewartet = false;        ///< the time-out is over: another attempt would only wait again
  bool Andere_Gestalt = false;  ///< a table or column is not there (any more)
};

class Odbc_Griffe {
 public:
  Odbc_Griffe() = default;
  ~Odbc_Griffe();
  Odbc_Griffe(const Odbc_Griffe &) = delete;
  Odbc_Griffe &operator=(const Odbc_Griffe &) = delete;

  /// Logs in; waits no longer than the time-out of `Daten`. May be called again when the connection is lost.
  bool Verbinden(const Verbindungsdaten &Daten, QString &Fehler);
  SQLHDBC Verbindung() const { return Verbindung_; }
  /// The one statement handle, with nothing open and nothing bound.
  SQLHSTMT Anweisung();
  /// The same as it stands.
  SQLHSTMT Offene_Anweisung() const { return Anweisung_; }
  bool Tot() const;
  /// Runs statements without values and without rows to their end, within the time-out.
  bool Befehl(const char *Sql, Odbc_Meldung &Meldung);
  /// Whether what is open ran well to the end of all its results. `Anzahl`: rows that the last statement
  /// counted, or as it was where none counted.
  bool Zu_Ende_fuehren(SQLLEN &Anzahl);
  Odbc_Meldung Meldung_von_Anweisung() const;
  Odbc_Meldung Meldung_von_Verbindung() const;

 private:
  void Trennen();

  SQLHDBC Verbindung_ = nullptr;
  SQLHSTMT Anweisung_ = nullptr;
  bool Angemeldet_ = false;
};

SQLWCHAR *Odbc_Text(const QString &Text);
SQLPOINTER Odbc_Zahl(qint64 Wert);

/// The connection text for FreeTDS; empty when a value cannot be told in it.
QString Odbc_Verbindungstext(const Verbindungsdaten &Daten);

/// How long to wait for anything, in seconds; never for ever.
int Odbc_Wartezeit(const Verbindungsdaten &Daten);

}  // namespace marklink::db
