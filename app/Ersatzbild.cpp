// The picture that stands in for an article without one.
#include "Ersatzbild.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>

#include "Hostkonfiguration.h"
#include "db/Ablaufverfolgung.h"

namespace marklink {
namespace {

/// A landscape in a frame, in greys that stay quiet on a light and on a dark desktop. No word: writing would
/// need an application with fonts.
QImage Ersatzbild_zeichnen() {
  QImage bild(320, 240, QImage::Format_RGB32);
  bild.fill(QColor(0xDC, 0xDC, 0xDC));
  QPainter maler(&bild);
  maler.setRenderHint(QPainter::Antialiasing);
  const QColor strich(0xA8, 0xA8, 0xA8);
  maler.setPen(QPen(strich, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  maler.drawRoundedRect(QRectF(80, 60, 160, 120), 10, 10);
  maler.setPen(Qt::NoPen);
  maler.setBrush(strich);
  maler.drawEllipse(QPointF(122, 98), 14, 14);
  maler.drawPolygon(QPolygonF({{94, 166}, {138, 118}, {160, 140}, {190, 102}, {226, 144}, {226, 166}}));
  return bild;
}

}  // namespace

void Ersatzbild_bereitlegen(const QString &Ordner, Ruecknahme &Zurueck) {
  const QString ziel = Ordner + QDir::separator() + QStringLiteral("noimage.jpg");
  if (QFile::exists(ziel)) return;
  Datei_merken(ziel, Zurueck);
  QSaveFile datei(ziel);
  const bool offen = datei.open(QIODevice::WriteOnly) &&
                     datei.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  if (!offen || !Ersatzbild_zeichnen().save(&datei, "JPEG", 85) || !datei.commit())
    Ablauf_melden(QStringLiteral("Ersatzbild"), ziel + QStringLiteral(": ") + datei.errorString());
}

}  // namespace marklink
