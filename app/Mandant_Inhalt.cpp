// Filling a new client's database and settings.
#include "Mandant_Inhalt.h"

#include <QDir>
#include <algorithm>

#include "db/Verbindung.h"
#include "host/Dateien.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"

namespace marklink {
namespace {

/// Points the program context at the database and settings that are being made.
void Kontext_setzen(const Mandantenplan &Plan, const QString &Werkstatt) {
  const QString stamm = Werkstatt + QDir::separator() + Plan.Name;
  Kontext.gFirmenname = Plan.Name;
  Kontext.gDatabasetype = qint16(Plan.Typ);
  Kontext.gSQL_True = Plan.Typ == 0 ? -1 : 1;
  Kontext.gDatenbank = Plan.Typ == 0 ? stamm + QStringLiteral(".mdb") : Plan.Name;
  Kontext.gAfkDatei = Plan.Typ == 0 ? stamm + QStringLiteral(".afk") : QString();
  // Whatever the host configuration names: the workshop is the embedded engine's.
  Kontext.gConnectionString = QStringLiteral("Provider=SQLite;");
  if (Plan.Typ != 0) Kontext.gConnectionString += QStringLiteral("Initial Catalog=") + Plan.Name + u';';
  Kontext.gConnectionString +=
      QStringLiteral("Data Source=") + (Plan.Typ == 0 ? Kontext.gDatenbank : Werkstatt);
}

/// Every table in one batch of its own.
bool Stammdaten_schreiben() {
  for (const app::Stammtabelle &tabelle : app::Stammdaten()) {
    db::Recordset rs;
    if (!rs.Open(db::Anweisung("SELECT * FROM ", db::Name{tabelle.Tabelle}), Kontext.gConnectionString))
      return false;
    for (const QVariantList &zeile : tabelle.Zeilen) {
      rs.AddNew();
      for (qsizetype i = 0; i < tabelle.Spalten.size(); ++i) rs.SetValue(tabelle.Spalten[i], zeile[i]);
      rs.Update();
    }
    if (!rs.UpdateBatch()) return false;
  }
  return true;
}

/// The settings file in one go; a file is forced to the disk with every single setting that is written to it.
void Einstellungsdatei_beginnen(const std::vector<app::Einstellung> &Einstellungen) {
  QStringList abschnitte;
  for (const app::Einstellung &e : Einstellungen)
    if (!abschnitte.contains(e.Abschnitt, Qt::CaseInsensitive)) abschnitte << e.Abschnitt;
  QString text;
  for (const QString &abschnitt : abschnitte) {
    text += u'[' + abschnitt + QStringLiteral("]\r\n");
    for (const app::Einstellung &e : Einstellungen)
      if (e.Abschnitt.compare(abschnitt, Qt::CaseInsensitive) == 0)
        text += e.Schluessel + u'=' + e.Wert + QStringLiteral("\r\n");
    text += QStringLiteral("\r\n");
  }
  Datei_ersetzen(Kontext.gAfkDatei, Nach_1252(text), QStringLiteral("Mandant"),
                 QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

/// The settings of every new client under those of the plan: a later one takes the place of an earlier one,
/// sections and keys without regard to case.
std::vector<app::Einstellung> Einstellungen_vereinen(const Mandantenplan &Plan) {
  std::vector<app::Einstellung> alle;
  const auto setzen = [&alle](const app::Einstellung &neu) {
    const auto da = std::find_if(alle.begin(), alle.end(), [&neu](const app::Einstellung &e) {
      return e.Abschnitt.compare(neu.Abschnitt, Qt::CaseInsensitive) == 0 &&
             e.Schluessel.compare(neu.Schluessel, Qt::CaseInsensitive) == 0;
    });
    if (da == alle.end())
      alle.push_back(neu);
    else
      da->Wert = neu.Wert;
  };
  for (const app::Einstellung &e : app::Mandant_Einstellungen(Plan.Ordner + QDir::separator())) setzen(e);
  for (const app::Einstellung &e : Plan.Einstellungen) setzen(e);
  return alle;
}

bool Einstellungen_schreiben(const Mandantenplan &Plan) {
  const std::vector<app::Einstellung> alle = Einstellungen_vereinen(Plan);
  if (Plan.Typ == 0)
    Einstellungsdatei_beginnen(alle);
  else
    Optionen_laden();
  // What reads right already is not written again.
  for (const app::Einstellung &e : alle) {
    if (Plan.Typ == 0 && Option_lesen(e.Abschnitt, e.Schluessel) == e.Wert) continue;
    if (!Option_schreiben(e.Abschnitt, e.Schluessel, e.Wert)) return false;
  }
  return true;
}

}  // namespace

QString Mandant_fuellen(const Mandantenplan &Plan, const QString &Werkstatt) {
  Kontext_setzen(Plan, Werkstatt);
  if (!db::Datenbank_anlegen(Kontext.gConnectionString))
    return QStringLiteral("Die Datenbank konnte nicht angelegt werden.");
  if (!Stammdaten_schreiben()) return QStringLiteral("Die Stammdaten konnten nicht geschrieben werden.");
  if (!Einstellungen_schreiben(Plan))
    return QStringLiteral("Die Einstellungen konnten nicht geschrieben werden.");
  if (Plan.Nachtragen && !Plan.Nachtragen())
    return QStringLiteral("Die Daten konnten nicht geschrieben werden.");
  return {};
}

}  // namespace marklink
