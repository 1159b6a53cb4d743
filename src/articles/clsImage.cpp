// Scaling picture files.
#include "clsImage.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>

#include "Bildflaeche.h"
#include "db/Ablaufverfolgung.h"
#include "ui/Dialoge.h"

namespace marklink {

QImage Bild_laden(const QString &Pfad) {
  if (Pfad.isEmpty()) return {};
  QImageReader leser(Pfad);
  leser.setDecideFormatFromContent(true);
  leser.setAutoTransform(true);
  QImage bild = leser.read();
  if (bild.isNull()) Ablauf_melden(QStringLiteral("Bild"), Pfad + QStringLiteral(": ") + leser.errorString());
  return bild;
}

QImage Bild_skalieren(const QImage &Bild, QSize Ziel, const QColor &Hintergrund, bool Proportional) {
  const QRect flaeche = Bildflaeche(Bild.size(), Ziel, Proportional);
  if (flaeche.isEmpty()) return {};
  QImage ergebnis(Ziel, QImage::Format_ARGB32_Premultiplied);
  if (ergebnis.isNull()) return {};
  ergebnis.fill(Hintergrund);
  QPainter maler(&ergebnis);
  // Averages over the source when it shrinks: the painter itself would only look at four pixels.
  maler.drawImage(flaeche.topLeft(),
                  Bild.scaled(flaeche.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  return ergebnis;
}

QImage Bild_skalieren(const QString &Pfad, QSize Ziel, const QColor &Hintergrund, bool Proportional) {
  const QImage bild = Bild_laden(Pfad);
  if (bild.isNull())
    dialoge().Meldung(QStringLiteral("GDI+ Module"), {QStringLiteral("Error loading picture ") + Pfad},
                      Symbol::Warnung);
  return Bild_skalieren(bild, Ziel, Hintergrund, Proportional);
}

}  // namespace marklink
