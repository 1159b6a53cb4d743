// Opening a client for a command.
#include "Sitzung.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Mandantenliste.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"

namespace marklink {
namespace {

QString Wert_oder_Umgebung(const Aufruf &A, const char *Option, const char *Variable) {
  return A.Gegeben(Option) ? A.Wert(Option) : QString::fromUtf8(qgetenv(Variable));
}

QString Benutzer(const Aufruf &A) {
  const QString name = Wert_oder_Umgebung(A, "benutzer", "MARKLINK_BENUTZER");
  return name.isEmpty() ? QStringLiteral("Chef") : name;
}

/// The client's name as the list writes it, since its files are named so. Empty: told on standard error.
QString Mandant_waehlen(const Aufruf &A) {
  const QStringList alle = Mandanten_lesen(Kontext.gMandantenliste);
  const QString gewuenscht = Wert_oder_Umgebung(A, "mandant", "MARKLINK_MANDANT");
  if (gewuenscht.isEmpty()) {
    if (alle.size() == 1) return alle.first();
    Fehler_melden(
        alle.isEmpty()
            ? QStringLiteral("Im Ordner '%1' gibt es noch keinen Mandanten; 'marklink mandant anlegen "
                             "NAME' legt einen an.")
                  .arg(Kontext.gProgrammpfad)
            : QStringLiteral("Es gibt mehrere Mandanten (%1); '--mandant NAME' wählt einen.")
                  .arg(alle.join(QLatin1String(", "))));
    return {};
  }
  QString name = Mandant_suchen(alle, gewuenscht);
  if (name.isEmpty())
    Fehler_melden(QStringLiteral("Den Mandanten '%1' gibt es im Ordner '%2' nicht.")
                      .arg(gewuenscht, Kontext.gProgrammpfad));
  return name;
}

bool Datenbank_lesbar() {
  db::Recordset rs;
  if (rs.Open("SELECT Description FROM Employees WHERE Description = ''", Kontext.gConnectionString))
    return true;
  Fehler_melden(QStringLiteral("Die Datenbank des Mandanten '%1' kann nicht geöffnet werden.")
                    .arg(Kontext.gFirmenname));
  return false;
}

}  // namespace

QString Programmordner_bestimmen(const Aufruf &A) {
  QString ordner = Wert_oder_Umgebung(A, "ordner", "MARKLINK_ORDNER");
  if (ordner.isEmpty())
    ordner =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/marklink");
  return QDir::cleanPath(QDir(ordner).absolutePath());
}

void Programm_vorbereiten(const Aufruf &A) {
  Programmordner_setzen(Programmordner_bestimmen(A));
  Programm_initialisieren();
}

bool Einstellungen_oeffnen(const Aufruf &A) {
  Programm_vorbereiten(A);
  const QString mandant = Mandant_waehlen(A);
  if (mandant.isEmpty()) return false;
  Kontext.gFirmenname = mandant;
  Kontext.gBenutzername = Benutzer(A);
  Mandant_initialisieren();
  // The settings of type 0 lie in a file beside the database.
  return Kontext.gDatabasetype == 0 || Datenbank_lesbar();
}

bool Mandant_oeffnen(const Aufruf &A) {
  if (!Einstellungen_oeffnen(A) || !Datenbank_lesbar()) return false;
  if (Objekt_erzeugen()->Initialisierung(Kontext.gFirmenname, Benutzer(A))) return true;
  Fehler_melden(
      QStringLiteral("Der Mandant '%1' hat noch kein Shopprojekt; 'marklink einstellung schreiben Marklink "
                     "project NAME' legt es an.")
          .arg(Kontext.gFirmenname));
  return false;
}

Shopsperre::Shopsperre() : Sperre_(Kontext.gProgrammpfad + QStringLiteral(".shop.lock")) {
  constexpr int Wartezeit_ms = 60'000;
  // In a folder that takes no lock nobody else can take one either: better unguarded than not at all.
  Erhalten_ = Sperre_.Sperren(Wartezeit_ms) != Dateisperre::Stand::Belegt;
  if (!Erhalten_) Fehler_melden(QStringLiteral("Ein anderer Aufruf ist noch mit dem Shop verbunden."));
}

bool Datenbank_beschreibbar() {
  // The settings hold the counters: without them every record would get the number of the last one.
  if (!Kontext.gAfkDatei.isEmpty() && QFileInfo::exists(Kontext.gAfkDatei) &&
      !QFileInfo(Kontext.gAfkDatei).isWritable()) {
    Fehler_melden(QStringLiteral("Die Einstellungen des Mandanten '%1' sind schreibgeschützt: %2")
                      .arg(Kontext.gFirmenname, Kontext.gAfkDatei));
    return false;
  }
  // A statement that meets no row still needs the right to write.
  if (Ausfuehren("DELETE FROM WebshopOrdersXTC WHERE OrderID = '' AND OrderID = '0'")) return true;
  Fehler_melden(
      QStringLiteral("Die Datenbank des Mandanten '%1' nimmt keine Änderungen an; ist sie gesperrt oder "
                     "schreibgeschützt?")
          .arg(Kontext.gFirmenname));
  return false;
}

}  // namespace marklink
