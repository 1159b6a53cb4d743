// The order desk: its commands and keys, opening and closing.
#include <QKeyEvent>

#include "frmMain.h"
#include "host/Kontext.h"
#include "ui/Hilfe.h"
#include "ui/Schirme.h"
#include "ui/clsTabelle.h"

namespace marklink {

bool frmMain::Bearbeitung_abschliessen() { return jgTab->Bearbeitung_abschliessen(); }

void frmMain::Befehl(const QString &Schluessel) {
  if (Schluessel == u"Beenden") {
    close();
    return;
  }
  Ausfuehren([this, &Schluessel] {
    if (Schluessel == u"mnuKontext_Tabelle_Formatieren")
      Tabelle_formatieren();
    else
      Pult_.Befehl(Schluessel);
    if (Schluessel == u"einstellungen_auftragsstati") Stati_zeigen();
  });
  jgTab->Auffrischen();
  Anzahl_zeigen();
}

bool frmMain::Beenden() {
  if (!Pult_.Beenden()) return false;
  // No other window of the program can be open here: all that the desk opens are modal.
  Anordnung_speichern();
  Auftragspult::Freigeben();
  return true;
}

void frmMain::keyPressEvent(QKeyEvent *Ereignis) {
  switch (Ereignis->key()) {
    case Qt::Key_F1:
      Hilfe_zeigen(Hilfethema::Auftragsverwaltung);
      return;
    case Qt::Key_Escape:
      Kontext.gAbbrechen = true;
      return;
    case Qt::Key_F5:
      Befehl(QStringLiteral("cmdAktualisieren"));
      return;
    default:
      QMainWindow::keyPressEvent(Ereignis);
  }
}

void Auftragsfenster_anmelden() {
  Schirm_anmelden(QStringLiteral("frmMain"), &Arbeitsfenster_zeigen<frmMain>);
}

}  // namespace marklink
