// Putting the shop script on the shop's server.
#include "Skriptuebertragung.h"

#include "FTP_Zugang.h"
#include "host/Dateien.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

QString Hostwert(const char *Schluessel) {
  return Ini_lesen(Kontext.gHostkonfiguration, QStringLiteral("Marklink"), QLatin1String(Schluessel));
}

/// No slash between the two folders: the first carries its own.
QString Zielordner() {
  return Option_lesen(QStringLiteral("Marklink"), QStringLiteral("ftpfolder")) + Hostwert("exportfolder") +
         u'/';
}

void Erfolg_melden(const QString &Zeile) {
  dialoge().Meldung(QStringLiteral("Hinweis"), {Zeile}, Symbol::Information);
}

void Fehlschlag_melden(const QStringList &Zeilen) {
  dialoge().Meldung(QStringLiteral("Fehler"), Zeilen, Symbol::Warnung);
}

/// The server is waited for; the box about the outcome comes when this is gone.
class Wartehinweis {
 public:
  Wartehinweis() { fortschritt().ProgressAnzeigen(QStringLiteral("Einen Moment bitte..."), 0, false); }
  ~Wartehinweis() { fortschritt().Verbergen(); }
  Wartehinweis(const Wartehinweis &) = delete;
  Wartehinweis &operator=(const Wartehinweis &) = delete;
};

bool Anmeldung_gelingt() {
  const Wartehinweis hinweis;
  return FTP_Zugang().Verbindungstest();
}

/// True as soon as the script itself is on the server; what becomes of its companion changes nothing.
bool Script_uebertragen() {
  const Wartehinweis hinweis;
  FTP_Zugang zugang;
  const QString ordner = Zielordner(), script = Hostwert("Script");
  if (!zugang.Upload(ordner, Kontext.gProgrammpfad + script)) return false;
  if (!zugang.Datei_exists(ordner, Dateiname_aus_Pfad(script))) return false;
  // The same key also names the reply file, which lies in the temporary folder.
  zugang.Upload(ordner, Kontext.gProgrammpfad + Hostwert("exportfile"));
  return true;
}

bool Script_vorhanden() {
  const Wartehinweis hinweis;
  return FTP_Zugang().Datei_exists(Zielordner(), Hostwert("Script"));
}

}  // namespace

bool FTP_Verbindung_testen() {
  const bool verbunden = Anmeldung_gelingt();
  if (verbunden)
    Erfolg_melden(QStringLiteral("Die Verbindung zum FTP-Server konnte hergestellt werden."));
  else
    Fehlschlag_melden({QStringLiteral("Die Verbindung konnte nicht aufgebaut werden."),
                       QStringLiteral("Bitte überprüfen Sie Ihre Eingaben.")});
  return verbunden;
}

void FTP_Script_hochladen() {
  if (Script_uebertragen())
    Erfolg_melden(QStringLiteral("Das Script für Marklink wurde erfolgreich auf den Server geladen."));
  else
    Fehlschlag_melden({QStringLiteral("Das Script konnte nicht auf den Server geladen werden.")});
}

void FTP_Script_suchen() {
  if (Script_vorhanden())
    Erfolg_melden(QStringLiteral("Das Script ist auf dem FTP-Server vorhanden."));
  else
    Fehlschlag_melden({QStringLiteral("Das Script konnte nicht auf dem FTP-Server gefunden werden.")});
}

}  // namespace marklink
