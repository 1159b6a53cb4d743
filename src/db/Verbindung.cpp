// Reading connection strings and choosing the driver.
#include "Verbindung.h"

#include <QStringList>

#include "Treiber.h"

namespace marklink::db {

Verbindungsdaten Verbindung_lesen(const QString &Verbindung) {
  Verbindungsdaten daten;
  const QStringList teile = Verbindung.split(u';', Qt::SkipEmptyParts);
  for (const QString &teil : teile) {
    const qsizetype gleich = teil.indexOf(u'=');
    if (gleich < 0) continue;
    const QString name = teil.left(gleich).trimmed().toLower();
    const QString wert = teil.mid(gleich + 1).trimmed();
    if (name == u"provider") daten.Anbieter = wert;
    if (name == u"data source") daten.Quelle = wert;
    if (name == u"user id") daten.Benutzer = wert;
    if (name == u"password" || name == u"jet oledb:database password") daten.Passwort = wert;
    if (name == u"connect timeout") daten.Wartezeit = wert.toInt();
    if (name == u"initial catalog") {
      daten.Katalog = wert;
      daten.Dialekt = Dialekt::SqlServer;
    }
  }
  return daten;
}

Treiber *Treiber_waehlen(const QString &Anbieter) {
  if (Anbieter.compare(QLatin1String("SQLite"), Qt::CaseInsensitive) == 0) return &SQLite_Treiber();
  for (const char *name : {"SQLOLEDB", "SQLNCLI", "MSOLEDBSQL", "MSDASQL", "ODBC", "FreeTDS"}) {
    if (Anbieter.startsWith(QLatin1String(name), Qt::CaseInsensitive)) return &ODBC_Treiber();
  }
  return nullptr;
}

}  // namespace marklink::db
