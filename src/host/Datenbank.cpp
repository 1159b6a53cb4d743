// Small look-ups and writers on the client's database that everybody shares.
#include "Datenbank.h"

#include "Dateien.h"
#include "Ini.h"
#include "Kontext.h"
#include "Texte.h"
#include "Zahlen.h"

namespace marklink {
namespace {

/// Connection string to another database of the same kind as the client's.
QString Verbindung_zu(const QString &Datenbank, const QString &Passwort) {
  if (Kontext.gDatabasetype == 0)
    return Connection_String_bilden(Datenbank, QStringLiteral("(local)"), 0, 30, QStringLiteral("sa"),
                                    Passwort, 0);
  const auto wert = [](const char *schluessel) {
    return Ini_lesen(Kontext.gHostkonfiguration, QStringLiteral("Connection"), QLatin1String(schluessel));
  };
  return Connection_String_bilden(Datenbank, wert("DataSource"), Als_Kurzzahl(wert("Authentification")),
                                  Als_Kurzzahl(wert("LoginTimeout")), wert("UserID"), wert("Password"),
                                  Kontext.gDatabasetype);
}

}  // namespace

db::Recordset Abfragen(const db::Anweisung &Sql) {
  db::Recordset rs;
  rs.Open(Sql, Kontext.gConnectionString);
  return rs;
}

bool Ausfuehren(const db::Anweisung &Sql) { return db::Ausfuehren(Sql, Kontext.gConnectionString); }

QString Benutzer_Daten(const QString &Name, int Feld) {
  const db::Recordset rs =
      Abfragen(db::Anweisung("SELECT * FROM Employees WHERE Description = ", db::Wert{Name}));
  switch (Feld) {
    case int(Benutzerfeld::Store):
      return rs.Text(QStringLiteral("Store"));
    case int(Benutzerfeld::MailAccount):
      return rs.Text(QStringLiteral("MailAccount"));
    case int(Benutzerfeld::Password):
      return Text_verschieben(rs.Text(QStringLiteral("Password")));
    case int(Benutzerfeld::StorageNumber):
      return rs.Text(QStringLiteral("StorageNumber"));
    default:
      return {};
  }
}

QString Bedingung_IstNull(const QString &Feld, bool Null) {
  if (Kontext.gDatabasetype == 0)
    return QStringLiteral("IsNull(") + Feld +
           (Null ? QStringLiteral(") = True") : QStringLiteral(") = False"));
  return Feld + (Null ? QStringLiteral(" IS NULL") : QStringLiteral(" IS NOT NULL"));
}

QString Formular_Standard(const QString &Typ) {
  return Abfragen(db::Anweisung("SELECT Description FROM Forms WHERE Type = ", db::Wert{Typ},
                                " AND Standard = ", db::Zahl(Kontext.gSQL_True)))
      .Text(QStringLiteral("Description"));
}

bool Datensatz_existiert(const QString &Tabelle, const QString &Feld, const QString &Wert) {
  return Abfragen(db::Anweisung("Select * from ", db::Name{Tabelle}, " Where ", db::Name{Feld}, " = ",
                                db::Wert{Wert}))
             .RecordCount() > 0;
}

void Felder_aendern(const QString &Tabelle, const QString &Schluesselfeld, const QString &Schluesselliste,
                    const QString &Feld, const QVariant &Wert) {
  db::Recordset rs = Abfragen(db::Anweisung("Select * from ", db::Name{Tabelle}));
  for (const QString &schluessel : Schluesselliste.split(u';', Qt::SkipEmptyParts)) {
    // A filter instead of a search from row to row: it does not walk the table. Each key is searched in all
    // rows, so the order of the list does not matter.
    if (!rs.Filter(db::Anweisung(db::Name{Schluesselfeld}, " = ", db::Wert{schluessel}))) continue;
    if (rs.RecordCount() == 0) continue;
    rs.SetValue(Feld, Wert);
    rs.Update();
  }
  rs.ClearFilter();
  rs.UpdateBatch();
}

QString Feld_in_Datei(const QString &Datenbank, const QString &Datei, const QString &Tabelle,
                      const QString &Feld, const db::Anweisung &Bedingung, const QString &Passwort) {
  db::Anweisung sql("SELECT * FROM ", db::Name{Tabelle});
  if (!Bedingung.Leer()) sql += db::Anweisung(" ", Bedingung);
  db::Recordset rs;
  rs.Open(sql, Verbindung_zu(Datenbank, Passwort));
  const QString ziel = Datei.isEmpty() ? Temp_Dateiname() : Datei;
  const QByteArray bytes = rs.Value(Feld).toByteArray();
  // Without a value an existing file stays what it was.
  if (rs.IsNull(Feld)) return ziel;
  Datei_ersetzen(ziel, bytes, QStringLiteral("Feld_in_Datei"));
  return ziel;
}

}  // namespace marklink
