// What printing needs before it starts.
#include "drucken.h"

#include "Report.h"
#include "host/Datenbank.h"
#include "host/Zahlen.h"
#include "ui/Dialoge.h"

namespace marklink {

bool Drucker_vorhanden() {
  if (!drucker().Namen().isEmpty()) return true;
  dialoge().Meldung(QStringLiteral("Kein Drucker vorhanden"),
                    {QStringLiteral("Sie haben keinen Drucker installiert."),
                     QStringLiteral("Der Ausdruck kann nicht gestartet werden.")},
                    Symbol::Warnung);
  return false;
}

void Vorschau_einrichten(Report &R) {
  R.DisplayToolTips = true;
  R.Tools = {QStringLiteral("Drucken"),         QStringLiteral("Zoom +"),        QStringLiteral("Zoom -"),
             QStringLiteral("Vorherige Seite"), QStringLiteral("Nächste Seite"), QStringLiteral("Zurück"),
             QStringLiteral("Weiter")};
}

void Druckeinstellungen_setzen(Report &R, bool Seite, bool Drucker) {
  R.DisplayProgressDialog = false;
  const Druckereinstellung aktuell = Aktueller_Drucker();
  if (Seite) {
    R.PageSettings.Papierbreite = aktuell.Papierbreite;
    R.PageSettings.Papierhoehe = aktuell.Papierhoehe;
    R.PageSettings.PaperBin = aktuell.PaperBin;
    R.PageSettings.Querformat = aktuell.Querformat;
  }
  if (!Drucker) return;
  R.Printer = aktuell;
  R.ColorMode = Als_Kurzzahl(Option_lesen(QStringLiteral("program"), QStringLiteral("ColorPrint"))) != 0;
}

}  // namespace marklink
