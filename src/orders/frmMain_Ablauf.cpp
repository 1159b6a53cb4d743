// The order desk: its commands and keys, one run at a time, opening and closing.
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QToolButton>

#include "frmMain.h"
#include "host/Kontext.h"
#include "ui/Hilfe.h"
#include "ui/Schirme.h"
#include "ui/clsTabelle.h"

namespace marklink {

namespace {

constexpr int Aktivierung_ms = 500;
QPointer<frmMain> Offen;

}  // namespace

bool frmMain::Ausfuehren(const std::function<void()> &Tun) {
  if (Beschaeftigt_ || Kontext.gLaeuft || !jgTab->Bearbeitung_abschliessen()) return false;
  Beschaeftigt_ = true;
  Tun();
  Beschaeftigt_ = false;
  if (std::exchange(Schliessen_, false)) QTimer::singleShot(0, this, &QWidget::close);
  return true;
}

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

void frmMain::showEvent(QShowEvent *Ereignis) {
  QMainWindow::showEvent(Ereignis);
  // On a desktop that does not let new windows become active the list must load all the same.
  QTimer::singleShot(Aktivierung_ms, this, &frmMain::Erste_Aktivierung);
}

void frmMain::Erste_Aktivierung() {
  if (Aktiviert_ || !isVisible()) return;
  const bool angenommen = Ausfuehren([this] {
    Aktiviert_ = true;
    Pult_.Erste_Aktivierung();
  });
  // Somebody else's run was in the way: it is still the first one.
  if (!angenommen) QTimer::singleShot(Aktivierung_ms, this, &frmMain::Erste_Aktivierung);
}

void frmMain::closeEvent(QCloseEvent *Ereignis) {
  Ereignis->ignore();
  if (Beschaeftigt_) {
    // The run needs the window: it is told to end, and the window closes behind it.
    Kontext.gAbbrechen = true;
    Schliessen_ = true;
    return;
  }
  // Refused during a run that is not this window's: nobody would close it behind that one.
  bool zu = false;
  Ausfuehren([this, &zu] { zu = Pult_.Beenden(); });
  if (!zu) return;
  // No other window of the program can be open here: all that the desk opens are modal.
  Anordnung_speichern();
  Auftragspult::Freigeben();
  QMainWindow::closeEvent(Ereignis);
  Q_EMIT Geschlossen();
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

void frmMain::changeEvent(QEvent *Ereignis) {
  QMainWindow::changeEvent(Ereignis);
  if (Ereignis->type() == QEvent::PaletteChange) Symbole_zeichnen();
  // Behind the event, so that the window is painted before the shop is asked.
  if (Ereignis->type() == QEvent::ActivationChange && isActiveWindow() && !Aktiviert_)
    QTimer::singleShot(0, this, &frmMain::Erste_Aktivierung);
}

/// A toolbar button with a drop-down menu opens it by the Down key or F4.
bool frmMain::eventFilter(QObject *Objekt, QEvent *Ereignis) {
  auto *knopf = qobject_cast<QToolButton *>(Objekt);
  if (knopf != nullptr && Ereignis->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent *>(Ereignis)->key();
    if (taste == Qt::Key_Down || taste == Qt::Key_F4) {
      knopf->showMenu();
      return true;
    }
  }
  return QMainWindow::eventFilter(Objekt, Ereignis);
}

void frmMain::Zeigen() {
  if (Offen != nullptr) {
    Offen->showNormal();
    Offen->raise();
    Offen->activateWindow();
    return;
  }
  frmMain fenster;
  Offen = &fenster;
  fenster.setWindowModality(Qt::ApplicationModal);
  QEventLoop schleife;
  connect(&fenster, &frmMain::Geschlossen, &schleife, &QEventLoop::quit);
  fenster.show();
  schleife.exec();
}

void Auftragsfenster_anmelden() { Schirm_anmelden(QStringLiteral("frmMain"), &frmMain::Zeigen); }

}  // namespace marklink
