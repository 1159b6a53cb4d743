// Setting up a new client.
#include "Mandant_anlegen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

#include "Ersatzbild.h"
#include "Hostkonfiguration.h"
#include "Mandantenliste.h"
#include "Ruecknahme.h"
#include "Shopscript.h"
#include "db/Verbindung.h"
#include "host/Dateien.h"
#include "host/Dateisperre.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"
#include "host/Zahlen.h"
#include "host/Zeichensatz.h"

namespace marklink {
namespace {

constexpr int Wartezeit_ms = 30000;  ///< for another launcher that is setting up a client in the same folder

QString In_Ordner(const QString &Ordner, const QString &Name) { return Ordner + QDir::separator() + Name; }

QString Hostwert(const char *Abschnitt, const char *Schluessel) {
  return Ini_lesen(Kontext.gHostkonfiguration, QLatin1String(Abschnitt), QLatin1String(Schluessel));
}

/// The folder that the database file lies in.
QString Datenbankordner(const Mandantenplan &Plan) {
  return Plan.Typ == 0 ? Plan.Ordner : Hostwert("Connection", "DataSource");
}

QString Verbindung_bilden(const Mandantenplan &Plan, const QString &Ordner) {
  if (Plan.Typ == 0)
    return Connection_String_bilden(In_Ordner(Ordner, Plan.Name + QStringLiteral(".mdb")),
                                    QStringLiteral("(local)"), 0, 30, QStringLiteral("sa"),
                                    QStringLiteral("481902"), 0);
  return Connection_String_bilden(Plan.Name, Ordner, Als_Kurzzahl(Hostwert("Connection", "Authentification")),
                                  Als_Kurzzahl(Hostwert("Connection", "LoginTimeout")),
                                  Hostwert("Connection", "UserID"), Hostwert("Connection", "Password"), 1);
}

/// The new client's files with the folder that each of them will lie in.
std::vector<std::pair<QString, QString>> Dateien(const Mandantenplan &Plan) {
  std::vector<std::pair<QString, QString>> alle{{Plan.Name + QStringLiteral(".mdb"), Datenbankordner(Plan)}};
  if (Plan.Typ == 0) alle.emplace_back(Plan.Name + QStringLiteral(".afk"), Plan.Ordner);
  return alle;
}

QString Vorhandenes_pruefen(const Mandantenplan &Plan) {
  if (!Mandant_suchen(Mandanten_lesen(Kontext.gMandantenliste), Plan.Name).isEmpty())
    return QStringLiteral("Den Mandanten '%1' gibt es schon.").arg(Plan.Name);
  for (const auto &[name, ordner] : Dateien(Plan))
    if (QFileInfo::exists(In_Ordner(ordner, name)))
      return QStringLiteral("Die Datei '%1' ist schon vorhanden.").arg(In_Ordner(ordner, name));
  if (Hostwert("Provider", Plan.Typ == 0 ? "access" : "sql")
          .compare(QLatin1String("SQLite"), Qt::CaseInsensitive) != 0)
    return QStringLiteral(
        "Die Hostkonfiguration nennt einen fremden Datenbankanbieter; dort kann kein Mandant angelegt "
        "werden.");
  return {};
}

/// Points the program context at the database and settings that are being made.
void Kontext_setzen(const Mandantenplan &Plan, const QString &Werkstatt) {
  Kontext.gFirmenname = Plan.Name;
  Kontext.gDatabasetype = qint16(Plan.Typ);
  Kontext.gSQL_True = Plan.Typ == 0 ? -1 : 1;
  Kontext.gDatenbank = Plan.Typ == 0 ? In_Ordner(Werkstatt, Plan.Name + QStringLiteral(".mdb")) : Plan.Name;
  Kontext.gAfkDatei = Plan.Typ == 0 ? In_Ordner(Werkstatt, Plan.Name + QStringLiteral(".afk")) : QString();
  Kontext.gConnectionString = Verbindung_bilden(Plan, Werkstatt);
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

/// Makes database and settings in a folder of their own, so that nobody meets them half made.
QString Fuellen(const Mandantenplan &Plan, const QString &Werkstatt) {
  Kontext_setzen(Plan, Werkstatt);
  if (!db::Datenbank_anlegen(Kontext.gConnectionString))
    return QStringLiteral("Die Datenbank konnte nicht angelegt werden.");
  if (!Stammdaten_schreiben()) return QStringLiteral("Die Stammdaten konnten nicht geschrieben werden.");
  if (!Einstellungen_schreiben(Plan))
    return QStringLiteral("Die Einstellungen konnten nicht geschrieben werden.");
  if (Plan.Nachtragen && !Plan.Nachtragen())
    return QStringLiteral("Die Daten konnten nicht geschrieben werden.");
  db::Verbindungen_schliessen(Kontext.gConnectionString);
  return {};
}

QString Herausholen(const Mandantenplan &Plan, const QString &Werkstatt, Ruecknahme &Zurueck) {
  for (const auto &[name, ordner] : Dateien(Plan)) {
    const QString ziel = In_Ordner(ordner, name);
    // Never replaces a file that came meanwhile.
    if (!QFile::rename(In_Ordner(Werkstatt, name), ziel))
      return QStringLiteral("Die Datei '%1' konnte nicht angelegt werden.").arg(ziel);
    Zurueck.Merken([ziel] { QFile::remove(ziel); });
    // Customers, bank data and the shop's password lie here: the files are their owner's alone.
    QFile::setPermissions(ziel, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  }
  return {};
}

bool In_Liste_eintragen(const Mandantenplan &Plan, Ruecknahme &Zurueck) {
  Datei_merken(Kontext.gMandantenliste, Zurueck);
  const auto eintragen = [&](const char *schluessel, const QString &wert) {
    return Ini_schreiben(Kontext.gMandantenliste, Plan.Name, QLatin1String(schluessel), wert);
  };
  return eintragen("installing", QStringLiteral("0")) &&
         eintragen("databasetype", QString::number(Plan.Typ)) &&
         eintragen("path", Plan.Ordner + QDir::separator());
}

/// What a launcher that was killed left behind; whoever holds the lock is alone.
void Reste_entfernen(const QString &Ordner) {
  for (const QFileInfo &rest : QDir(Ordner).entryInfoList({QStringLiteral(".neu-??????")},
                                                          QDir::Dirs | QDir::Hidden | QDir::NoSymLinks))
    QDir(rest.filePath()).removeRecursively();
}

/// Everything behind the lock of the folder.
QString Im_Ordner_anlegen(const Mandantenplan &Plan, Ruecknahme &Zurueck) {
  if (!Hostkonfiguration_ergaenzen(Plan.Ordner, Zurueck))
    return QStringLiteral("Die Hostkonfiguration im Ordner '%1' kann nicht geschrieben werden.")
        .arg(Plan.Ordner);
  if (!Shopscript_bereitlegen(Plan.Ordner, Zurueck))
    return QStringLiteral("Das Shopscript kann nicht in den Ordner '%1' gelegt werden.").arg(Plan.Ordner);
  Ersatzbild_bereitlegen(Plan.Ordner, Zurueck);
  Programmordner_setzen(Plan.Ordner);
  Programm_initialisieren();
  if (QString grund = Vorhandenes_pruefen(Plan); !grund.isEmpty()) return grund;
  Reste_entfernen(Plan.Ordner);
  QTemporaryDir werkstatt(In_Ordner(Datenbankordner(Plan), QStringLiteral(".neu-XXXXXX")));
  if (!werkstatt.isValid())
    return QStringLiteral("Der Ordner '%1' kann nicht beschrieben werden.").arg(Datenbankordner(Plan));
  QString grund = Fuellen(Plan, werkstatt.path());
  if (grund.isEmpty()) grund = Herausholen(Plan, werkstatt.path(), Zurueck);
  db::Verbindungen_schliessen(Kontext.gConnectionString);
  if (!grund.isEmpty()) return grund;
  if (!In_Liste_eintragen(Plan, Zurueck))
    return QStringLiteral("Die Mandantenliste '%1' kann nicht geschrieben werden.")
        .arg(Kontext.gMandantenliste);
  return {};
}

}  // namespace

QString Mandant_anlegen(const Mandantenplan &Plan) {
  if (QString grund = Mandantenname_pruefen(Plan.Name); !grund.isEmpty()) return grund;
  if (QString grund = Programmordner_pruefen(Plan.Ordner); !grund.isEmpty()) return grund;
  Ruecknahme zurueck;
  if (!Programmordner_anlegen(Plan.Ordner, zurueck))
    return QStringLiteral("Der Ordner '%1' kann nicht angelegt werden.").arg(Plan.Ordner);
  QString grund;
  {
    Dateisperre sperre(In_Ordner(Plan.Ordner, QStringLiteral(".anlegen.lock")));
    const Dateisperre::Stand stand = sperre.Sperren(Wartezeit_ms);
    if (stand == Dateisperre::Stand::Belegt)
      return QStringLiteral("Im Ordner '%1' wird gerade ein anderer Mandant angelegt.").arg(Plan.Ordner);
    if (stand == Dateisperre::Stand::Unmoeglich)
      return QStringLiteral("Der Ordner '%1' kann nicht beschrieben werden.").arg(Plan.Ordner);
    Ruecknahme darin;  // taken back before the lock goes
    grund = Im_Ordner_anlegen(Plan, darin);
    if (grund.isEmpty()) darin.Gelungen();
  }
  if (grund.isEmpty()) zurueck.Gelungen();
  return grund;
}

}  // namespace marklink
