// The connection string of a catalogue on a server, for whoever has its provider from elsewhere than the host
// configuration at hand.
#pragma once

#include <QString>

namespace marklink {

/// Authentication 0: with user and password, 1: integrated; empty for any other. Time-out in seconds.
QString Serververbindung_bilden(const QString &Anbieter, const QString &Datenbank, const QString &Server,
                                int Authentifizierung, int Wartezeit, const QString &Benutzer,
                                const QString &Passwort);

}  // namespace marklink
