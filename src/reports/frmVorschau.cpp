// The preview of a report.
#include "frmVorschau.h"

#include <QAction>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "Report.h"
#include "clsPrintDialog.h"
#include "clsSeitenansicht.h"
#include "ui/Hilfe.h"
#include "ui/clsOberflaeche.h"

namespace marklink {
namespace {

enum : std::size_t { DRUCKEN, GROESSER, KLEINER, VORHERIGE, NAECHSTE, ZURUECK, WEITER };

constexpr struct {
  const char *Name, *Bild;
  std::array<const char *, 3> Tasten;
} Werkzeugliste[] = {
    {"Drucken", "drucken", {"Ctrl+P"}},
    {"ZoomPlus", "zoom_plus", {"+", "Ctrl++", "Ctrl+="}},
    {"ZoomMinus", "zoom_minus", {"-", "Ctrl+-"}},
    {"VorherigeSeite", "seite_vorherige", {"Ctrl+PgUp"}},
    {"NaechsteSeite", "seite_naechste", {"Ctrl+PgDown"}},
    {"Zurueck", "verlauf_zurueck", {"Alt+Left"}},
    {"Weiter", "verlauf_weiter", {"Alt+Right"}},
};

constexpr std::size_t Verlaufsgrenze = 200;

}  // namespace

frmVorschau::frmVorschau(Report &R, QWidget *Eltern)
    : QDialog(Eltern),
      Report_(R),
      Ansicht(new clsSeitenansicht(this)),
      txtSeite(new QSpinBox(this)),
      lbSeiten(new QLabel(this)),
      lbZoom(new QLabel(this)) {
  setObjectName(QStringLiteral("frmVorschau"));
  setWindowTitle(R.Beschreibung().Dokumenttitel);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  Ansicht->setObjectName(QStringLiteral("Seitenansicht"));
  auto *zeilen = new QVBoxLayout(this);
  zeilen->setContentsMargins(0, 0, 0, 0);
  zeilen->setSpacing(0);
  zeilen->addWidget(Leiste_bauen());
  zeilen->addWidget(Ansicht, 1);
  zeilen->addWidget(Fuss_bauen());
  connect(Ansicht, &clsSeitenansicht::Seite_geaendert, this, &frmVorschau::Seite_melden);
  connect(Ansicht, &clsSeitenansicht::Vergroesserung_geaendert, this, &frmVorschau::Vergroesserung_melden);
  connect(Ansicht, &clsSeitenansicht::Verweis_geklickt, this, [this](const QString &text) {
    if (Report_.hyperLink) Report_.hyperLink(text);
  });
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [] { Hilfe_zeigen(Hilfethema::Druckvorschau); });
  Symbole_zeichnen();
  {
    const Wartezeiger warten;
    Ansicht->Satz_setzen(R.Run());
  }
  Ansicht->setFocus();
  resize(QSize(fontMetrics().averageCharWidth() * 150, 900).boundedTo(screen()->availableSize() * 0.9));
}

QAction *frmVorschau::Werkzeug(std::size_t Nummer) {
  const auto &was = Werkzeugliste[Nummer];
  const QString text = Report_.Tools.value(int(Nummer));
  auto *werkzeug = new QAction(text, this);
  werkzeug->setObjectName(QStringLiteral("Werkzeug_") + QLatin1String(was.Name));
  werkzeug->setToolTip(Report_.DisplayToolTips ? text : QString());
  QList<QKeySequence> tasten;
  for (const char *taste : was.Tasten)
    if (taste != nullptr) tasten << QKeySequence(QLatin1String(taste));
  werkzeug->setShortcuts(tasten);
  Werkzeuge_.push_back(werkzeug);
  return werkzeug;
}

QToolBar *frmVorschau::Leiste_bauen() {
  auto *leiste = new QToolBar(this);
  leiste->setObjectName(QStringLiteral("Toolbar"));
  leiste->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  leiste->setIconSize({24, 24});
  const std::pair<std::size_t, std::function<void()>> befehle[] = {
      {DRUCKEN, [this] { Drucken(); }},
      {GROESSER, [this] { Ansicht->Groesser(); }},
      {KLEINER, [this] { Ansicht->Kleiner(); }},
      {VORHERIGE, [this] { Gehen(Ansicht->Seite() - 1); }},
      {NAECHSTE, [this] { Gehen(Ansicht->Seite() + 1); }},
      {ZURUECK, [this] { Verlauf_gehen(-1); }},
      {WEITER, [this] { Verlauf_gehen(1); }},
  };
  for (const auto &[nummer, tun] : befehle) {
    QAction *werkzeug = Werkzeug(nummer);
    connect(werkzeug, &QAction::triggered, this, tun);
    leiste->addAction(werkzeug);
    leiste->widgetForAction(werkzeug)->setFocusPolicy(Qt::TabFocus);
    if (nummer == DRUCKEN || nummer == KLEINER || nummer == NAECHSTE) leiste->addSeparator();
  }
  // What has keys and no tools.
  const std::pair<Qt::Key, std::function<void()>> tasten[] = {
      {Qt::Key_Home, [this] { Gehen(0); }},
      {Qt::Key_End, [this] { Gehen(Ansicht->Seiten() - 1); }},
      {Qt::Key_PageUp, [this] { Ansicht->Blaettern(-1); }},
      {Qt::Key_PageDown, [this] { Ansicht->Blaettern(1); }}};
  for (const auto &[taste, tun] : tasten) {
    auto *befehl = new QAction(this);
    befehl->setShortcut(taste);
    connect(befehl, &QAction::triggered, this, tun);
    addAction(befehl);
  }
  return leiste;
}

/// Below the page, so that the tools have the whole width.
QWidget *frmVorschau::Fuss_bauen() {
  auto *fuss = new QWidget(this);
  auto *seite = new QLabel(QStringLiteral("&Seite"), this);
  seite->setBuddy(txtSeite);
  txtSeite->setObjectName(QStringLiteral("txtSeite"));
  txtSeite->setKeyboardTracking(false);
  connect(txtSeite, &QSpinBox::valueChanged, this, [this](int zahl) { Gehen(zahl - 1); });
  lbSeiten->setObjectName(QStringLiteral("lbSeiten"));
  lbZoom->setObjectName(QStringLiteral("lbZoom"));
  auto *reihe = new QHBoxLayout(fuss);
  reihe->addWidget(seite);
  reihe->addWidget(txtSeite);
  reihe->addWidget(lbSeiten);
  reihe->addStretch(1);
  reihe->addWidget(lbZoom);
  return fuss;
}

void frmVorschau::Symbole_zeichnen() {
  for (std::size_t i = 0; i < Werkzeuge_.size(); ++i)
    Werkzeuge_[i]->setIcon(Symbolbild(QLatin1String(Werkzeugliste[i].Bild)));
}

void frmVorschau::changeEvent(QEvent *Ereignis) {
  QDialog::changeEvent(Ereignis);
  if (Ereignis->type() == QEvent::PaletteChange) Symbole_zeichnen();
}

void frmVorschau::Gehen(int Seite) {
  if (Seite >= 0 && Seite < Ansicht->Seiten() && Seite != Ansicht->Seite()) Ansicht->Seite_zeigen(Seite);
}

void frmVorschau::Verlauf_gehen(int Schritte) {
  const std::size_t ziel = Stelle_ + std::size_t(Schritte);
  if (ziel >= Verlauf_.size()) return;
  Stelle_ = ziel;
  Im_Verlauf_ = true;
  Gehen(Verlauf_[ziel]);
  Im_Verlauf_ = false;
  Seite_melden(Ansicht->Seite());
}

void frmVorschau::Seite_melden(int Seite) {
  if (!Im_Verlauf_ && (Verlauf_.empty() || Verlauf_[Stelle_] != Seite)) {
    if (!Verlauf_.empty()) Verlauf_.resize(Stelle_ + 1);
    Verlauf_.push_back(Seite);
    if (Verlauf_.size() > Verlaufsgrenze) Verlauf_.pop_front();
    Stelle_ = Verlauf_.size() - 1;
  }
  const QSignalBlocker still(txtSeite);
  txtSeite->setRange(1, Ansicht->Seiten());
  txtSeite->setValue(Seite + 1);
  lbSeiten->setText(QStringLiteral("von %L1").arg(Ansicht->Seiten()));
  Werkzeuge_[VORHERIGE]->setEnabled(Seite > 0);
  Werkzeuge_[NAECHSTE]->setEnabled(Seite + 1 < Ansicht->Seiten());
  Werkzeuge_[ZURUECK]->setEnabled(Stelle_ > 0);
  Werkzeuge_[WEITER]->setEnabled(Stelle_ + 1 < Verlauf_.size());
}

void frmVorschau::Vergroesserung_melden() {
  lbZoom->setText(QStringLiteral("%1 %").arg(qRound(Ansicht->Vergroesserung() * 100)));
  Werkzeuge_[GROESSER]->setEnabled(!Ansicht->Am_groessten());
  Werkzeuge_[KLEINER]->setEnabled(!Ansicht->Am_kleinsten());
}

void frmVorschau::Drucken() { Report_drucken_mit_Dialog(Report_, this); }

}  // namespace marklink
