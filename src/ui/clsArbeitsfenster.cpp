// Commands, runs and closing of a window.
#include "clsArbeitsfenster.h"

#include <QAction>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <utility>

#include "clsOberflaeche.h"
#include "host/Kontext.h"

namespace marklink {

namespace {

constexpr int Aktivierung_ms = 500;

}  // namespace

void clsArbeitsfenster::Modal_zeigen() {
  setWindowModality(Qt::ApplicationModal);
  QEventLoop schleife;
  connect(this, &clsArbeitsfenster::Geschlossen, &schleife, &QEventLoop::quit);
  show();
  schleife.exec();
}

void clsArbeitsfenster::Nach_vorn() {
  showNormal();
  raise();
  activateWindow();
}

// --- toolbar and menu

QAction *clsArbeitsfenster::Aktion(const Fensterbefehl &Befehl) {
  auto *aktion = new QAction(QString::fromUtf16(Befehl.Text), this);
  aktion->setObjectName(QLatin1String(Befehl.Schluessel));
  Symbole_.insert(aktion, QLatin1String(Befehl.Symbol));
  connect(aktion, &QAction::triggered, this, [this, aktion] { this->Befehl(aktion->objectName()); });
  return aktion;
}

void clsArbeitsfenster::Leiste_bauen(std::span<const Fensterbefehl> Befehle) {
  auto *leiste = addToolBar(QStringLiteral("Befehle"));
  leiste->setObjectName(QStringLiteral("tbAllgemein"));
  leiste->setMovable(false);
  leiste->setContextMenuPolicy(Qt::PreventContextMenu);
  leiste->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  leiste->setIconSize({24, 24});
  for (const Fensterbefehl &befehl : Befehle) {
    QAction *aktion = Aktion(befehl);
    if (befehl.Unter != nullptr) {
      auto *knopf = leiste->findChild<QToolButton *>(QLatin1String(befehl.Unter));
      if (knopf->menu() == nullptr) {
        knopf->setMenu(new QMenu(knopf));
        knopf->setPopupMode(QToolButton::MenuButtonPopup);
        knopf->installEventFilter(this);
      }
      knopf->menu()->addAction(aktion);
      continue;
    }
    aktion->setToolTip(aktion->text());
    aktion->setIconText(befehl.Wort != nullptr ? QString::fromUtf16(befehl.Wort) : aktion->objectName());
    leiste->addAction(aktion);
    auto *knopf = qobject_cast<QToolButton *>(leiste->widgetForAction(aktion));
    knopf->setObjectName(aktion->objectName());
    knopf->setFocusPolicy(Qt::TabFocus);
  }
}

void clsArbeitsfenster::Menue_bauen(QMenu &Menue, std::span<const Fensterbefehl> Befehle) {
  for (const Fensterbefehl &befehl : Befehle) {
    if (befehl.Schluessel == nullptr)
      Menue.addSeparator();
    else
      Menue.addAction(Aktion(befehl));
  }
}

void clsArbeitsfenster::Symbole_zeichnen() {
  for (auto ort = Symbole_.constBegin(); ort != Symbole_.constEnd(); ++ort)
    ort.key()->setIcon(Symbolbild(ort.value()));
  Symbole_gezeichnet();
}

/// A toolbar button with a drop-down menu opens it by the Down key or F4.
bool clsArbeitsfenster::eventFilter(QObject *Objekt, QEvent *Ereignis) {
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

// --- runs

bool clsArbeitsfenster::Ausfuehren(const std::function<void()> &Tun) {
  if (Laeuft_ || Kontext.gLaeuft || !Bearbeitung_abschliessen()) return false;
  Laeuft_ = true;
  Tun();
  Laeuft_ = false;
  if (std::exchange(Schliessen_, false)) QTimer::singleShot(0, this, &QWidget::close);
  return true;
}

void clsArbeitsfenster::Aktivieren() {
  if (Aktiviert_ || !isVisible()) return;
  const bool angenommen = Ausfuehren([this] {
    Aktiviert_ = true;
    Erste_Aktivierung();
  });
  // Somebody else's run was in the way: it is still the first one.
  if (!angenommen) QTimer::singleShot(Aktivierung_ms, this, &clsArbeitsfenster::Aktivieren);
}

void clsArbeitsfenster::showEvent(QShowEvent *Ereignis) {
  QMainWindow::showEvent(Ereignis);
  // On a desktop that does not let new windows become active the list must load all the same.
  QTimer::singleShot(Aktivierung_ms, this, &clsArbeitsfenster::Aktivieren);
}

void clsArbeitsfenster::changeEvent(QEvent *Ereignis) {
  QMainWindow::changeEvent(Ereignis);
  if (Ereignis->type() == QEvent::PaletteChange) Symbole_zeichnen();
  // Behind the event, so that the window is painted before the work begins.
  if (Ereignis->type() == QEvent::ActivationChange && isActiveWindow() && !Aktiviert_)
    QTimer::singleShot(0, this, &clsArbeitsfenster::Aktivieren);
}

void clsArbeitsfenster::closeEvent(QCloseEvent *Ereignis) {
  Ereignis->ignore();
  if (Laeuft_) {
    // The run needs the window: it is told to end, and the window closes behind it.
    Kontext.gAbbrechen = true;
    Schliessen_ = true;
    return;
  }
  // Refused during a run that is not this window's: nobody would close it behind that one.
  bool zu = false;
  Ausfuehren([this, &zu] {
    zu = Beenden();
    Schliessen_ = false;  // whoever wanted it closed meanwhile has got the same answer
  });
  if (!zu) return;
  QMainWindow::closeEvent(Ereignis);
  Ereignis->accept();
  Q_EMIT Geschlossen();
}

}  // namespace marklink
