// The server's access in the host configuration.
#include "Serverzugang.h"

#include "Mandantenliste.h"
#include "db/Treiber.h"
#include "host/Ini.h"
#include "host/Verbindungstext.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

/// Where clients of type 1 lie: another password or time-out leads to the same place.
bool Derselbe_Ort(const Serverzugang &A, const Serverzugang &B) {
  const auto gleich = [](const QString &a, const QString &b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
  };
  return Ist_Server(A.Anbieter) == Ist_Server(B.Anbieter) && gleich(A.Adresse, B.Adresse) &&
         A.Integriert == B.Integriert && gleich(A.Anmeldung, B.Anmeldung);
}

}  // namespace

QString Serverzugang::Verbindungstext(const QString &Katalog) const {
  return Serververbindung_bilden(Anbieter, Katalog, Adresse, Integriert ? 1 : 0, Wartezeit, Anmeldung,
                                 Kennwort);
}

bool Ist_Server(const QString &Anbieter) { return db::Treiber_waehlen(Anbieter) == &db::ODBC_Treiber(); }
bool Ist_eingebettet(const QString &Anbieter) {
  return db::Treiber_waehlen(Anbieter) == &db::SQLite_Treiber();
}

Serverzugang Serverzugang_lesen(const QString &Hostkonfiguration) {
  const auto wert = [&](const char *schluessel) {
    return Ini_lesen(Hostkonfiguration, QStringLiteral("Connection"), QLatin1String(schluessel));
  };
  Serverzugang zugang;
  zugang.Anbieter = Ini_lesen(Hostkonfiguration, QStringLiteral("Provider"), QStringLiteral("sql"));
  zugang.Adresse = wert("DataSource");
  zugang.Wartezeit = Als_Kurzzahl(wert("LoginTimeout"));
  zugang.Integriert = Als_Kurzzahl(wert("Authentification")) == 1;
  if (zugang.Integriert) return zugang;
  zugang.Anmeldung = wert("UserID");
  zugang.Kennwort = wert("Password");
  return zugang;
}

namespace {

/// Whether the driver is told all of it as it is.
bool Uebertragbar(const Serverzugang &Zugang) {
  const db::Verbindungsdaten daten = db::Verbindung_lesen(Zugang.Verbindungstext(QStringLiteral("K")));
  return daten.Quelle == Zugang.Adresse && daten.Benutzer == Zugang.Anmeldung &&
         daten.Passwort == Zugang.Kennwort && !daten.Passwort.contains(QLatin1String("};"));
}

}  // namespace

bool Serverzugang_schreiben(const Serverzugang &Zugang, const QString &Hostkonfiguration) {
  const auto schreiben = [&](const char *abschnitt, const char *schluessel, const QString &wert) {
    return Ini_schreiben(Hostkonfiguration, QLatin1String(abschnitt), QLatin1String(schluessel), wert);
  };
  const bool geschrieben =
      Uebertragbar(Zugang) && schreiben("Provider", "sql", Zugang.Anbieter) &&
      schreiben("Connection", "DataSource", Zugang.Adresse) &&
      schreiben("Connection", "Authentification", QString::number(Zugang.Integriert ? 1 : 0)) &&
      schreiben("Connection", "LoginTimeout", QString::number(Zugang.Wartezeit)) &&
      (Zugang.Integriert || (schreiben("Connection", "UserID", Zugang.Anmeldung) &&
                             schreiben("Connection", "Password", Zugang.Kennwort)));
  return geschrieben && Serverzugang_lesen(Hostkonfiguration) == Zugang;
}

QString Serverwechsel_pruefen(const Serverzugang &Neu, const QString &Hostkonfiguration,
                              const QString &Mandantenliste) {
  const Serverzugang bisher = Serverzugang_lesen(Hostkonfiguration);
  if (Derselbe_Ort(Neu, bisher)) return {};
  for (const QString &mandant : Mandanten_lesen(Mandantenliste)) {
    if (Als_Kurzzahl(Ini_lesen(Mandantenliste, mandant, QStringLiteral("databasetype"))) == 0) continue;
    const QString ort =
        Ist_Server(bisher.Anbieter)
            ? QStringLiteral("auf dem Server '%1', Anmeldung '%2'")
                  .arg(bisher.Adresse, bisher.Integriert ? QStringLiteral("integriert") : bisher.Anmeldung)
            : QStringLiteral("in der eingebetteten Datenbank");
    return QStringLiteral(
               "Alle Mandanten vom Typ 1 eines Ordners haben denselben Server, und der Mandant '%1' "
               "liegt %2; mit '--ordner' geht es in einem anderen Ordner.")
        .arg(mandant, ort);
  }
  return {};
}

}  // namespace marklink
