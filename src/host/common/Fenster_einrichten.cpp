// The library's own windows.
#include "Fenster_einrichten.h"

#include <QCoreApplication>

#include "lists/frmListen.h"
#include "orders/frmMain.h"
#include "reports/frmVorschau.h"
#include "shipping/frmVersender_EASYLOG.h"
#include "shop/Austausch.h"
#include "shop/frmEinstellungen.h"
#include "shop/frmWinsock.h"
#include "ui/Dialoge.h"
#include "ui/clsOberflaeche.h"

namespace marklink {
namespace {

bool Eingerichtet = false;

void Schirme_anmelden() {
  Shopfenster_anmelden();
  Listenfenster_anmelden();
  Auftragsfenster_anmelden();
  Versandfenster_anmelden();
}

}  // namespace

void Fenster_einrichten() {
  const QCoreApplication *programm = QCoreApplication::instance();
  if (Eingerichtet || Dialoge_gesetzt() || programm == nullptr || !programm->inherits("QApplication")) return;
  Eingerichtet = true;
  Oberflaeche_einrichten();
  if (Verbindungsfenster_gesetzt() == nullptr) Verbindungsfenster_setzen(&Verbindungsfenster_zeigen);
  Druckfenster_einrichten();
  Schirme_anmelden();
  // No window may outlive the application.
  qAddPostRoutine(&Fenster_abbauen);
}

void Fenster_abbauen() {
  if (!Eingerichtet) return;
  Eingerichtet = false;
  qRemovePostRoutine(&Fenster_abbauen);
  if (Verbindungsfenster_gesetzt() == &Verbindungsfenster_zeigen) Verbindungsfenster_setzen(nullptr);
  Druckfenster_abbauen();
  Oberflaeche_abbauen();
}

}  // namespace marklink
