// The wire below the exchange: one GET over a connection that is kept for the next one.
#pragma once

#include <QByteArray>
#include <QString>

#include "Austausch.h"

namespace marklink {

/// What one exchange may cost. Tests shorten it; a program leaves it alone.
struct Austauschgrenzen {
  int Verbinden_ms = 30'000;            ///< to look the name up and connect
  int Stille_ms = 60'000;               ///< without a byte in either direction
  qint64 Hoechstgroesse = 256LL << 20;  ///< bytes of a body, unpacked
};
Austauschgrenzen &austauschgrenzen();

struct Http_Anfrage {
  QByteArray Basis;               ///< scheme, name and port, closed by "/"
  QByteArray Ziel;                ///< request target, sent as it stands
  QByteArray Kopf;                ///< header lines, each closed by a NUL; sent in this order, and no others
  QByteArray Benutzer, Passwort;  ///< only sent when the server asks for them
};

struct Http_Ergebnis {
  long Status = 0;  ///< 0: no complete reply
  QByteArray Rumpf;
  QString Fehler;  ///< why there is none
};

/// Blocking; `Anzeige` may be nullptr.
Http_Ergebnis Http_abrufen(const Http_Anfrage &Anfrage, Verbindungsanzeige *Anzeige);

}  // namespace marklink
