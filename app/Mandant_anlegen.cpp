// Setting up a new client.
#include "Mandant_anlegen.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "Ersatzbild.h"
#include "Hostkonfiguration.h"
#include "Mandant_Inhalt.h"
#include "Mandantenablage.h"
#include "Mandantenliste.h"
#include "Ruecknahme.h"
#include "Shopscript.h"
#include "db/Verbindung.h"
#include "host/Dateisperre.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"

namespace marklink {
namespace {

constexpr int Wartezeit_ms = 30000;  ///< for another launcher that is setting up a client in the same folder

QString In_Ordner(const QString &Ordner, const QString &Name) { return Ordner + QDir::separator() + Name; }

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

/// Makes everything in a folder of its own, so that nobody meets it half made, and then puts it in its place.
QString Herstellen(const Mandantenplan &Plan, Mandantenablage &Ablage, Ruecknahme &Zurueck) {
  QTemporaryDir werkstatt(In_Ordner(Ablage.Ordner(), QStringLiteral(".neu-XXXXXX")));
  if (!werkstatt.isValid())
    return QStringLiteral("Der Ordner '%1' kann nicht beschrieben werden.").arg(Ablage.Ordner());
  QString grund = Mandant_fuellen(Plan, werkstatt.path());
  const QString verbindung = Kontext.gConnectionString;
  db::Verbindungen_schliessen(verbindung);
  if (grund.isEmpty()) grund = Ablage.Ablegen(werkstatt.path(), Zurueck);
  db::Verbindungen_schliessen(verbindung);
  return grund;
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
  if (!Mandant_suchen(Mandanten_lesen(Kontext.gMandantenliste), Plan.Name).isEmpty())
    return QStringLiteral("Den Mandanten '%1' gibt es schon.").arg(Plan.Name);
  const auto ablage = Mandantenablage_waehlen(Plan);
  if (QString grund = ablage->Pruefen(); !grund.isEmpty()) return grund;
  Reste_entfernen(Plan.Ordner);
  if (QString grund = Herstellen(Plan, *ablage, Zurueck); !grund.isEmpty()) return grund;
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
