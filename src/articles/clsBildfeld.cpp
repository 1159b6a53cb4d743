// A picture on a window.
#include "clsBildfeld.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "clsImage.h"

namespace marklink {

constexpr int Rand = 1;  ///< pixels

clsBildfeld::clsBildfeld(QWidget *Eltern) : QWidget(Eltern) {
  QSizePolicy platz(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setSizePolicy(platz);
  setMinimumSize(60, 60);
}

QSize clsBildfeld::sizeHint() const { return {160, 160}; }

void clsBildfeld::Bild_setzen(const QString &Pfad) {
  Bild_ = Bild_laden(Pfad);  // without a box: it would come with every other row that one walks through
  Pfad_ = Bild_.isNull() ? QString() : Pfad;
  Skaliert_ = {};
  setFocusPolicy(Mit_Bild() ? Qt::StrongFocus : Qt::NoFocus);
  setCursor(Mit_Bild() ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

void clsBildfeld::paintEvent(QPaintEvent *) {
  QPainter maler(this);
  maler.fillRect(rect(), palette().color(QPalette::Base));
  const QRect innen = rect().adjusted(Rand, Rand, -Rand, -Rand);
  const QSize pixel = innen.size() * devicePixelRatioF();
  if (Mit_Bild() && Skaliert_.size() != pixel) {
    Skaliert_ = QPixmap::fromImage(Bild_skalieren(Bild_, pixel, Qt::transparent, true));
    Skaliert_.setDevicePixelRatio(devicePixelRatioF());
  }
  if (Mit_Bild()) maler.drawPixmap(innen.topLeft(), Skaliert_);
  maler.setPen(palette().color(QPalette::Mid));
  maler.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!hasFocus()) return;
  QStyleOptionFocusRect rahmen;
  rahmen.initFrom(this);
  rahmen.rect = innen;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rahmen, &maler, this);
}

void clsBildfeld::mouseReleaseEvent(QMouseEvent *Ereignis) {
  if (Ereignis->button() == Qt::LeftButton && Mit_Bild() && rect().contains(Ereignis->position().toPoint()))
    Q_EMIT Gedrueckt();
}

void clsBildfeld::keyPressEvent(QKeyEvent *Ereignis) {
  const int taste = Ereignis->key();
  if (Mit_Bild() && (taste == Qt::Key_Return || taste == Qt::Key_Enter || taste == Qt::Key_Space))
    Q_EMIT Gedrueckt();
  else
    QWidget::keyPressEvent(Ereignis);
}

}  // namespace marklink
