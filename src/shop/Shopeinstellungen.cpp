// The values of the settings dialog and its commands.
#include "Shopeinstellungen.h"

#include "Aktionen.h"
#include "Skriptuebertragung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

const QString Abschnitt = QStringLiteral("Marklink");

bool Ist_Zahl(Feldart Art) { return Art == Feldart::Auswahl || Art == Feldart::Schalter; }

/// The two values that the running program takes up at once; everything else waits for the next start.
void In_Kontext_uebernehmen(QLatin1String Schluessel, const QString &Wert) {
  if (Schluessel == QLatin1String("synchronisation")) Kontext.gSynchronisation = Als_Kurzzahl(Wert);
  if (Schluessel == QLatin1String("articlepricing")) Kontext.gArticlepricing = Als_Kurzzahl(Wert);
}

}  // namespace

Shopeinstellungen::Shopeinstellungen() : Werte_(Einstellungsfelder().size()) {}

void Shopeinstellungen::Einstellungen_lesen() {
  for (size_t i = 0; i < Werte_.size(); ++i) {
    const Einstellungsfeld &feld = Einstellungsfelder()[i];
    const QString wert = Option_lesen(Abschnitt, QLatin1String(feld.Schluessel));
    Werte_[i] = Ist_Zahl(feld.Art) ? QString::number(Als_Kurzzahl(wert)) : wert;
  }
}

void Shopeinstellungen::Einstellungen_speichern() const {
  for (size_t i = 0; i < Werte_.size(); ++i) {
    const QLatin1String schluessel(Einstellungsfelder()[i].Schluessel);
    Option_schreiben(Abschnitt, schluessel, Werte_[i]);
    In_Kontext_uebernehmen(schluessel, Werte_[i]);
  }
}

void Shopeinstellungen::Ordner_abschliessen() {
  for (size_t i = 0; i < Werte_.size(); ++i)
    if (QLatin1String(Einstellungsfelder()[i].Schluessel) == QLatin1String("folder") &&
        !Werte_[i].endsWith(u'/'))
      Werte_[i] += u'/';
}

void Shopeinstellungen::Verbindung_testen() {
  Einstellungen_speichern();
  Hochladen_moeglich_ = FTP_Verbindung_testen();
}

void Shopeinstellungen::Script_hochladen() const {
  Einstellungen_speichern();
  FTP_Script_hochladen();
}

void Shopeinstellungen::Script_suchen() const {
  Einstellungen_speichern();
  FTP_Script_suchen();
}

void Shopeinstellungen::Tabelle_aktualisieren() const { Daten_aendern(Aendern::Tabellen, {}); }

}  // namespace marklink
