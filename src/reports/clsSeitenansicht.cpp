// One page of a report on screen.
#include "clsSeitenansicht.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "Seitensatz.h"

namespace marklink {
namespace {

constexpr double Stufen[] = {0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 3};
constexpr int Luft = 12;  // pixels around the page
constexpr double Toleranz = 0.01;

}  // namespace

clsSeitenansicht::clsSeitenansicht(QWidget *Eltern) : QAbstractScrollArea(Eltern) {
  viewport()->setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  // A bar that comes and goes would change the width that the page is fitted to.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void clsSeitenansicht::Satz_setzen(const Seitensatz &Satz) {
  Satz_ = &Satz;
  Seite_zeigen(0);
}

int clsSeitenansicht::Seiten() const { return Satz_ != nullptr ? Satz_->Seiten() : 0; }

void clsSeitenansicht::Seite_zeigen(int Seite, bool Am_Ende) {
  Seite_ = std::clamp(Seite, 0, std::max(0, Seiten() - 1));
  Bild_ = {};
  Leisten_setzen();
  verticalScrollBar()->setValue(Am_Ende ? verticalScrollBar()->maximum() : 0);
  viewport()->update();
  Q_EMIT Seite_geaendert(Seite_);
}

void clsSeitenansicht::Blaettern(int Richtung) {
  constexpr int ueberlappung = 40;  // what was last read stays in sight
  QScrollBar &leiste = *verticalScrollBar();
  const bool am_rand = leiste.value() == (Richtung > 0 ? leiste.maximum() : 0);
  if (!am_rand)
    leiste.setValue(leiste.value() + Richtung * std::max(1, leiste.pageStep() - ueberlappung));
  else if (Seite_ + Richtung >= 0 && Seite_ + Richtung < Seiten())
    Seite_zeigen(Seite_ + Richtung, Richtung < 0);
}

// --- size

double clsSeitenansicht::Eingepasst() const {
  if (Satz_ == nullptr) return 1;
  const double breite = mm(Satz_->Masse().Breite) / Twips_je_Zoll * logicalDpiX();
  return std::clamp((viewport()->width() - 2 * Luft) / breite, Stufen[0], 1.5);
}

double clsSeitenansicht::Vergroesserung() const { return Faktor_ > 0 ? Faktor_ : Eingepasst(); }

double clsSeitenansicht::Punkte_je_Twip() const { return Vergroesserung() * logicalDpiX() / Twips_je_Zoll; }

QSize clsSeitenansicht::Seitengroesse() const {
  if (Satz_ == nullptr) return {};
  return (QSizeF(mm(Satz_->Masse().Breite), mm(Satz_->Masse().Hoehe)) * Punkte_je_Twip()).toSize();
}

void clsSeitenansicht::Groesser() {
  const double jetzt = Vergroesserung();
  for (const double stufe : Stufen)
    if (stufe > jetzt + Toleranz) return Vergroesserung_setzen(stufe);
}

void clsSeitenansicht::Kleiner() {
  const double jetzt = Vergroesserung();
  for (auto stufe = std::rbegin(Stufen); stufe != std::rend(Stufen); ++stufe)
    if (*stufe < jetzt - Toleranz) return Vergroesserung_setzen(*stufe);
}

bool clsSeitenansicht::Am_groessten() const { return Vergroesserung() > *std::rbegin(Stufen) - Toleranz; }

bool clsSeitenansicht::Am_kleinsten() const { return Vergroesserung() < Stufen[0] + Toleranz; }

void clsSeitenansicht::Vergroesserung_setzen(double Faktor) {
  const auto anteil = [](const QScrollBar &leiste) {
    return leiste.maximum() > 0 ? double(leiste.value()) / leiste.maximum() : 0.0;
  };
  const double oben = anteil(*verticalScrollBar());
  Faktor_ = Faktor;
  Bild_ = {};
  Leisten_setzen();
  verticalScrollBar()->setValue(int(oben * verticalScrollBar()->maximum()));
  viewport()->update();
  Q_EMIT Vergroesserung_geaendert();
}

void clsSeitenansicht::Leisten_setzen() {
  const QSize ganz = Seitengroesse() + QSize(2 * Luft, 2 * Luft);
  const auto setzen = [](QScrollBar &leiste, int alles, int sichtbar) {
    leiste.setRange(0, std::max(0, alles - sichtbar));
    leiste.setPageStep(sichtbar);
    leiste.setSingleStep(40);
  };
  setzen(*verticalScrollBar(), ganz.height(), viewport()->height());
  setzen(*horizontalScrollBar(), ganz.width(), viewport()->width());
}

void clsSeitenansicht::resizeEvent(QResizeEvent *Ereignis) {
  QAbstractScrollArea::resizeEvent(Ereignis);
  if (Faktor_ <= 0) Bild_ = {};
  Leisten_setzen();
  if (Faktor_ <= 0) Q_EMIT Vergroesserung_geaendert();
}

// --- drawing

QPoint clsSeitenansicht::Seitenecke() const {
  const int mitte = (viewport()->width() - Seitengroesse().width()) / 2;
  const int x = std::max(Luft, mitte) - horizontalScrollBar()->value();
  return {x, Luft - verticalScrollBar()->value()};
}

void clsSeitenansicht::paintEvent(QPaintEvent *) {
  QPainter maler(viewport());
  maler.fillRect(viewport()->rect(), palette().color(QPalette::Dark));
  if (Satz_ == nullptr) return;
  if (Bild_.isNull()) {
    Bild_ = QPixmap(Seitengroesse() * devicePixelRatioF());
    Bild_.setDevicePixelRatio(devicePixelRatioF());
    Bild_.fill(Qt::white);  // paper is white on a dark desktop too
    QPainter seite(&Bild_);
    seite.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    seite.scale(Punkte_je_Twip(), Punkte_je_Twip());
    Satz_->Malen(seite, Seite_);
  }
  maler.drawPixmap(Seitenecke(), Bild_);
  maler.setPen(palette().color(QPalette::Shadow));
  maler.drawRect(QRect(Seitenecke(), Seitengroesse()).adjusted(-1, -1, 0, 0));
}

// --- mouse and keys

QString clsSeitenansicht::Verweis_bei(QPointF Ort) const {
  return Satz_ == nullptr ? QString() : Satz_->Verweis(Seite_, (Ort - Seitenecke()) / Punkte_je_Twip());
}

void clsSeitenansicht::mouseMoveEvent(QMouseEvent *Ereignis) {
  viewport()->setCursor(Verweis_bei(Ereignis->position()).isEmpty() ? Qt::ArrowCursor
                                                                    : Qt::PointingHandCursor);
}

void clsSeitenansicht::mouseReleaseEvent(QMouseEvent *Ereignis) {
  if (Ereignis->button() != Qt::LeftButton) return;
  const QString verweis = Verweis_bei(Ereignis->position());
  if (!verweis.isEmpty()) Q_EMIT Verweis_geklickt(verweis);
}

/// Fine wheels and touchpads tell of a notch in many small pieces. Gives the direction when there is a whole
/// one.
int clsSeitenansicht::Rasten(int Drehung) {
  if ((Drehung > 0) != (Gedreht_ > 0)) Gedreht_ = 0;
  Gedreht_ += Drehung;
  if (std::abs(Gedreht_) < QWheelEvent::DefaultDeltasPerStep) return 0;
  return std::exchange(Gedreht_, 0) > 0 ? 1 : -1;
}

/// Past the foot of a page the wheel goes on to the next one, a notch a page; what a touchpad adds when the
/// fingers have left it turns none.
void clsSeitenansicht::wheelEvent(QWheelEvent *Ereignis) {
  const int drehung = Ereignis->angleDelta().y();
  const QScrollBar &leiste = *verticalScrollBar();
  const bool fuss = drehung < 0 && leiste.value() == leiste.maximum();
  const bool kopf = drehung > 0 && leiste.value() == 0;
  if ((Ereignis->modifiers() & Qt::ControlModifier) != 0) {
    const int richtung = Rasten(drehung);
    if (richtung > 0) Groesser();
    if (richtung < 0) Kleiner();
  } else if (fuss || kopf) {
    if (Ereignis->phase() == Qt::ScrollMomentum) return;
    if (const int richtung = Rasten(drehung); richtung != 0) Blaettern(-richtung);
  } else {
    Gedreht_ = 0;
    QAbstractScrollArea::wheelEvent(Ereignis);
  }
}

void clsSeitenansicht::keyPressEvent(QKeyEvent *Ereignis) {
  if (Ereignis->key() == Qt::Key_Space)
    Blaettern((Ereignis->modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
  else
    QAbstractScrollArea::keyPressEvent(Ereignis);
}

}  // namespace marklink
