// The connection string of a client, in the form that its database type asks for.
#include "Verbindungstext.h"

#include "Datenbank.h"
#include "Ini.h"
#include "Kontext.h"

namespace marklink {
namespace {

QString Anbieter(const char *Schluessel) {
  return Ini_lesen(Kontext.gHostkonfiguration, QStringLiteral("Provider"), QLatin1String(Schluessel));
}

}  // namespace

void Connection_String_setzen(const QString &Datenbank, const QString &Server, int Authentifizierung,
                              qint16 Wartezeit, const QString &Benutzer, const QString &Passwort) {
  const QString text = Connection_String_bilden(Datenbank, Server, Authentifizierung, Wartezeit, Benutzer,
                                                Passwort, Kontext.gDatabasetype);
  // An unknown way to log in leaves the string as it was, on purpose.
  if (!text.isEmpty()) Kontext.gConnectionString = text;
  if (Kontext.gDatabasetype != 0) Optionen_laden();
}

QString Connection_String_bilden(const QString &Datenbank, const QString &Server, int Authentifizierung,
                                 qint16 Wartezeit, const QString &Benutzer, const QString &Passwort,
                                 int Datenbanktyp) {
  if (Datenbanktyp == 0)
    return QStringLiteral("Provider=") + Anbieter("access") + QStringLiteral(";Data Source=") + Datenbank +
           QStringLiteral(";Jet OLEDB:Database Password=") + Passwort;
  return Serververbindung_bilden(Anbieter("sql"), Datenbank, Server, Authentifizierung, Wartezeit, Benutzer,
                                 Passwort);
}

QString Serververbindung_bilden(const QString &Anbieter, const QString &Datenbank, const QString &Server,
                                int Authentifizierung, int Wartezeit, const QString &Benutzer,
                                const QString &Passwort) {
  const QString wartezeit = QStringLiteral("Connect Timeout=") + QString::number(Wartezeit);
  const QString anbieter = QStringLiteral("Provider=") + Anbieter + u';';
  if (Authentifizierung == 0)
    return anbieter + QStringLiteral("User ID=") + Benutzer + QStringLiteral(";Password=") + Passwort +
           QStringLiteral(";Initial Catalog=") + Datenbank + QStringLiteral(";Data Source=") + Server +
           QStringLiteral(";Persist Security Info=False;") + wartezeit;
  if (Authentifizierung == 1)
    return anbieter + QStringLiteral("Data Source=") + Server + QStringLiteral(";Initial Catalog=") +
           Datenbank + QStringLiteral(";Integrated Security=SSPI;") + wartezeit;
  return {};
}

}  // namespace marklink
