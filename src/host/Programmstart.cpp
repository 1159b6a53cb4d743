// Start-up in two steps: the application's own files, then what belongs to the client.
#include "Programmstart.h"

#include <dlfcn.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "Datenbank.h"
#include "Ini.h"
#include "Kontext.h"
#include "Texte.h"
#include "Uhr.h"
#include "Zahlen.h"
#include "Zeichensatz.h"

namespace marklink {
namespace {

QString Gesetzter_Ordner;

QString Programmordner() {
  if (!Gesetzter_Ordner.isEmpty()) return Gesetzter_Ordner;
  Dl_info ort{};
  if (dladdr(reinterpret_cast<const void *>(&Programm_initialisieren), &ort) == 0 || !ort.dli_fname)
    return {};
  return QFileInfo(QFile::decodeName(ort.dli_fname)).absolutePath();
}

QString Mit_Trenner(QString Ordner) {
  if (!Ordner.isEmpty() && !Ordner.endsWith(QDir::separator())) Ordner.append(QDir::separator());
  return Ordner;
}

void Wahrheitszahlen_setzen() {
  Kontext.gSQL_True = Kontext.gDatabasetype != 0 ? 1 : -1;
  Kontext.gSQL_False = 0;
}

QString Hostwert(const char *Abschnitt, const char *Schluessel) {
  return Ini_lesen(Kontext.gHostkonfiguration, QLatin1String(Abschnitt), QLatin1String(Schluessel));
}

QString Mandantenwert(const char *Schluessel) {
  return Ini_lesen(Kontext.gMandantenliste, Kontext.gFirmenname, QLatin1String(Schluessel));
}

QString Programmwert(const char *Schluessel) {
  return Option_lesen(QStringLiteral("Program"), QLatin1String(Schluessel));
}

QString Marklinkwert(const char *Schluessel) {
  return Option_lesen(QStringLiteral("Marklink"), QLatin1String(Schluessel));
}

void Jet_Dateien_setzen() {
  const QString stamm = Mandantenwert("path") + Kontext.gFirmenname;
  Kontext.gAfkDatei = stamm + QStringLiteral(".afk");
  Kontext.gLayoutDatei = stamm + QStringLiteral(".lyt");
  Kontext.gDatenbank = stamm + QStringLiteral(".mdb");
  Connection_String_setzen(Kontext.gDatenbank, QStringLiteral("(local)"), 0, 30, QStringLiteral("sa"),
                           QStringLiteral("481902"));
}

void SqlServer_Dateien_setzen() {
  if (Kontext.gInstalling == 1)
    Kontext.gLayoutDatei = Kontext.gProgrammpfad + Kontext.gFirmenname + QStringLiteral(".lyt");
  else if (Kontext.gInstalling == 0 || Kontext.gInstalling == 2)
    Kontext.gLayoutDatei = Mandantenwert("path") + Kontext.gFirmenname + QStringLiteral(".lyt");
  Kontext.gDatenbank = Kontext.gFirmenname;
  Connection_String_setzen(Kontext.gDatenbank, Hostwert("Connection", "DataSource"),
                           Als_Kurzzahl(Hostwert("Connection", "Authentification")),
                           Als_Kurzzahl(Hostwert("Connection", "LoginTimeout")),
                           Hostwert("Connection", "UserID"), Hostwert("Connection", "Password"));
}

}  // namespace

void Programmordner_setzen(const QString &Ordner) { Gesetzter_Ordner = Ordner; }

void Programm_initialisieren() {
  Kontext.gHeute = uhr().Jetzt().date();
  Kontext.gProgrammpfad = Mit_Trenner(Programmordner());
  Kontext.gHostkonfiguration = Kontext.gProgrammpfad + QStringLiteral("varda.ini");
  Kontext.gDatabasetype = Als_Kurzzahl(Hostwert("program", "databasetype"));
  Wahrheitszahlen_setzen();
  Kontext.gSprachdatei = Kontext.gProgrammpfad + Hostwert("files", "langfile");
  Kontext.gHilfedatei = Kontext.gProgrammpfad + Hostwert("files", "helpfile");
  Kontext.gMandantenliste = Kontext.gProgrammpfad + Hostwert("files", "uiffile");
  Kontext.gVersandkostendatei = Kontext.gProgrammpfad + Hostwert("files", "forwardingfile");
  Kontext.gAdressformat = Hostwert("program", "AddressFormat");
  Kontext.gGewichtsformat = QStringLiteral("##,#####0.000");
}

void Mandant_initialisieren() {
  Kontext.gInstalling = Als_Kurzzahl(Mandantenwert("installing"));
  Kontext.gDatabasetype = Als_Kurzzahl(Mandantenwert("databasetype"));
  Wahrheitszahlen_setzen();
  if (Kontext.gDatabasetype == 0)
    Jet_Dateien_setzen();
  else
    SqlServer_Dateien_setzen();
  Kontext.gBenutzer_Filiale = Benutzer_Daten(Kontext.gBenutzername, int(Benutzerfeld::Store));
  Kontext.gBenutzer_Lagernummer = Benutzer_Daten(Kontext.gBenutzername, int(Benutzerfeld::StorageNumber));
  Kontext.gStorageBooking = Als_Kurzzahl(Programmwert("StorageBooking"));
  Kontext.gArticlePriceReadout = Als_Kurzzahl(Programmwert("ArticlePriceReadout"));
  Shopprojekt_einlesen();
  Kontext.gViewablePeriod = Als_Kurzzahl(Marklinkwert("ViewablePeriod"));
  Kontext.gDocumentPath = Programmwert("DocumentPath");
  Kontext.gDigitsFormat = Programmwert("DigitsFormat");
  Kontext.gPriceFormat = Programmwert("PriceFormat");
  // A format without a "." gives its whole length, on purpose.
  Kontext.gPreisNachkommastellen =
      qint16(Kontext.gPriceFormat.size() - Letzte_Position(Kontext.gPriceFormat, QStringLiteral(".")));
  Kontext.gPositionFormat = Programmwert("PositionFormat");
  Kontext.gMassFormat = Programmwert("MassFormat");
  Kontext.gRebateFormat = Programmwert("RebateFormat");
  Kontext.gCurrency = Programmwert("Currency");
  Kontext.gCountry = Programmwert("Country");
}

void Shopprojekt_einlesen() {
  Kontext.gHostname = Marklinkwert("hostname");
  Kontext.gPort = Marklinkwert("port");
  Kontext.gUsername = Marklinkwert("username");
  Kontext.gPassword = CalculateMD5(Marklinkwert("password"));
  // No slash between the two folders: the first carries its own.
  Kontext.gUrl =
      Marklinkwert("folder") + Hostwert("Marklink", "exportfolder") + u'/' + Hostwert("Marklink", "script");
  Kontext.gHtaccessUsername = Marklinkwert("htaccessusername");
  Kontext.gHtaccessPassword = Marklinkwert("htaccesspassword");
  Kontext.gSynchronisation = Als_Ganzzahl(Marklinkwert("synchronisation"));
  Kontext.gArticlepricing = Als_Ganzzahl(Marklinkwert("articlepricing"));
}

QString CalculateMD5(const QString &Text) {
  return QString::fromLatin1(QCryptographicHash::hash(Nach_1252(Text), QCryptographicHash::Md5).toHex());
}

}  // namespace marklink
