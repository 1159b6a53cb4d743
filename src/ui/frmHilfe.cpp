// The help window.
#include "frmHilfe.h"

#include <QApplication>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include "Hilfethemen.h"
#include "clsFensterlayout.h"
#include "clsHilfetext.h"
#include "clsOberflaeche.h"

namespace marklink {
namespace {

const QString Fensterschluessel = QStringLiteral("Hilfe_Fenster");
const QString Inhaltsseite = QStringLiteral("index.html");
QPointer<frmHilfe> Offen;

}  // namespace

frmHilfe::frmHilfe(QWidget *Zu)
    : QDialog(Zu, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      txtSeite(new clsHilfetext(this)),
      txtSuche(new QLineEdit(this)),
      lbSuche(new QLabel(this)) {
  setObjectName(QStringLiteral("frmHilfe"));
  txtSeite->setObjectName(QStringLiteral("txtSeite"));
  txtSuche->setObjectName(QStringLiteral("txtSuche"));
  lbSuche->setObjectName(QStringLiteral("lbSuche"));
  auto *zeilen = new QVBoxLayout(this);
  zeilen->addLayout(Leiste_bauen());
  zeilen->addWidget(txtSeite, 1);
  Tasten_belegen();
  Text_markieren(this);
  connect(txtSeite, &QTextBrowser::sourceChanged, this, [this] {
    setWindowTitle(txtSeite->documentTitle());
    lbSuche->clear();
  });
  resize(QSize(1064, 780).boundedTo(screen()->availableSize() * 0.95));
  Fensterlayout_laden(*this, Fensterschluessel, {});
  if (Zu != nullptr) Zu->installEventFilter(this);
  txtSeite->setFocus();
}

frmHilfe::~frmHilfe() = default;

QLayout *frmHilfe::Leiste_bauen() {
  auto *reihe = new QHBoxLayout;
  const auto knopf = [this, reihe](const char *Name, const QString &Aufschrift) {
    auto *neu = new QPushButton(Aufschrift, this);
    neu->setObjectName(QLatin1String(Name));
    neu->setAutoDefault(false);  // Enter in the search field searches
    reihe->addWidget(neu);
    return neu;
  };
  QPushButton *zurueck = knopf("cmdZurueck", QStringLiteral("&Zurück"));
  QPushButton *vor = knopf("cmdVor", QStringLiteral("&Vorwärts"));
  QPushButton *inhalt = knopf("cmdInhalt", QStringLiteral("&Inhalt"));
  reihe->addStretch(1);
  auto *beschriftung = new QLabel(QStringLiteral("&Suchen"), this);
  beschriftung->setBuddy(txtSuche);
  txtSuche->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
  txtSuche->setToolTip(QStringLiteral("Auf dieser Seite suchen (Strg+F)"));
  reihe->addWidget(lbSuche);
  reihe->addWidget(beschriftung);
  reihe->addWidget(txtSuche);
  QPushButton *weiter = knopf("cmdWeitersuchen", QStringLiteral("&Weitersuchen"));
  for (QPushButton *blaettern : {zurueck, vor}) blaettern->setEnabled(false);
  connect(txtSeite, &QTextBrowser::backwardAvailable, zurueck, &QWidget::setEnabled);
  connect(txtSeite, &QTextBrowser::forwardAvailable, vor, &QWidget::setEnabled);
  connect(zurueck, &QPushButton::clicked, txtSeite, &QTextBrowser::backward);
  connect(vor, &QPushButton::clicked, txtSeite, &QTextBrowser::forward);
  connect(inhalt, &QPushButton::clicked, this, [this] { txtSeite->Seite_zeigen(Inhaltsseite); });
  connect(weiter, &QPushButton::clicked, this, [this] { Weitersuchen(false, false); });
  connect(txtSuche, &QLineEdit::textChanged, this, [this] { Weitersuchen(false, true); });
  return reihe;
}

void frmHilfe::Tasten_belegen() {
  const auto taste = [this](const QKeySequence &Folge, auto Tun) {
    connect(new QShortcut(Folge, this), &QShortcut::activated, this, Tun);
  };
  taste(QKeySequence(Qt::CTRL | Qt::Key_F), [this] {
    txtSuche->setFocus();
    txtSuche->selectAll();
  });
  taste(Qt::Key_F3, [this] { Weitersuchen(false, false); });
  taste(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { Weitersuchen(true, false); });
  taste(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { txtSeite->backward(); });
  taste(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { txtSeite->forward(); });
  taste(Qt::Key_F1, [this] { txtSeite->Seite_zeigen(Inhaltsseite); });
  connect(txtSuche, &QLineEdit::returnPressed, this,
          [this] { Weitersuchen(QApplication::keyboardModifiers() & Qt::ShiftModifier, false); });
}

void frmHilfe::Weitersuchen(bool Rueckwaerts, bool Gleiche_Stelle) {
  const QString text = txtSuche->text();
  const bool da = txtSeite->Suchen(text, Rueckwaerts, Gleiche_Stelle);
  lbSuche->setText(da || text.isEmpty() ? QString() : QStringLiteral("nicht gefunden"));
}

// --- whose window it is

void frmHilfe::Zeigen(int Thema) {
  QWidget *zu = QApplication::activeModalWidget();
  if (zu == nullptr) zu = QApplication::activeWindow();
  if (Offen == nullptr)
    Offen = new frmHilfe(zu);
  else if (zu != Offen)
    Offen->Anhaengen(zu);
  Offen->show();  // first: the page is made for the window's width
  Offen->txtSeite->Seite_zeigen(Hilfeseite(Thema));
  Offen->raise();
  Offen->activateWindow();
}

void frmHilfe::Abbauen() { delete Offen; }

/// A new parent hides a window and forgets where it stood.
void frmHilfe::Anhaengen(QWidget *Zu) {
  if (Zu == parentWidget()) return;
  if (parentWidget() != nullptr) parentWidget()->removeEventFilter(this);
  const bool sichtbar = isVisible();
  const QPoint ort = pos();
  setParent(Zu, windowFlags());
  move(ort);
  if (Zu != nullptr) Zu->installEventFilter(this);
  if (!sichtbar) return;
  setAttribute(Qt::WA_ShowWithoutActivating);
  show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

bool frmHilfe::eventFilter(QObject *Objekt, QEvent *Ereignis) {
  if (Objekt == parentWidget() && Ereignis->type() == QEvent::Hide && !Ereignis->spontaneous()) {
    QWidget *darunter = parentWidget()->parentWidget();
    if (darunter != nullptr && darunter->window()->isVisible())
      Anhaengen(darunter->window());
    else
      close();
  }
  return QDialog::eventFilter(Objekt, Ereignis);
}

void frmHilfe::hideEvent(QHideEvent *Ereignis) {
  QDialog::hideEvent(Ereignis);
  if (!Ereignis->spontaneous()) Fensterlayout_speichern(*this, Fensterschluessel, {});
}

}  // namespace marklink
