// Frames, palettes and files of the help's pictures.
#include "frmHilfebild.h"

#include <QApplication>
#include <QHash>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace marklink::demo {
namespace {

constexpr int Titelhoehe = 28;
constexpr int Farbzahl = 256;

constexpr std::pair<QPalette::ColorRole, QRgb> Dunkle_Farben[] = {
    {QPalette::Window, 0x2d2d30},        {QPalette::Base, 0x1e1e1e},
    {QPalette::AlternateBase, 0x2a2a2a}, {QPalette::Button, 0x3c3c3e},
    {QPalette::ToolTipBase, 0x3c3c3e},   {QPalette::WindowText, 0xf0f0f0},
    {QPalette::Text, 0xf0f0f0},          {QPalette::ButtonText, 0xf0f0f0},
    {QPalette::ToolTipText, 0xf0f0f0},   {QPalette::Link, 0x7ab7f5},
    {QPalette::Light, 0x505054},         {QPalette::Midlight, 0x444448},
    {QPalette::Mid, 0x5a5a5e},           {QPalette::Dark, 0x18181a},
    {QPalette::Shadow, 0x000000},        {QPalette::PlaceholderText, 0x969696}};

QPalette Palette_bilden(bool Dunkel) {
  QPalette p = QApplication::style()->standardPalette();
  p.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xb0));
  p.setColor(QPalette::HighlightedText, Qt::white);
  if (!Dunkel) return p;
  for (const auto &[rolle, farbe] : Dunkle_Farben) p.setColor(rolle, QColor::fromRgb(farbe));
  for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, rolle, QColor(127, 127, 127));
  return p;
}

/// The most frequent colours; every other one becomes the nearest of them.
std::vector<QRgb> Haeufigste_Farben(const QImage &Bild) {
  QHash<QRgb, int> zahl;
  for (int y = 0; y < Bild.height(); ++y)
    for (int x = 0; x < Bild.width(); ++x) ++zahl[Bild.pixel(x, y)];
  std::vector<std::pair<int, QRgb>> folge;
  for (auto ort = zahl.constBegin(); ort != zahl.constEnd(); ++ort)
    folge.emplace_back(-ort.value(), ort.key());
  std::sort(folge.begin(), folge.end());
  std::vector<QRgb> farben;
  for (const auto &[oft, farbe] : folge)
    if (farben.size() < Farbzahl) farben.push_back(farbe);
  return farben;
}

uchar Naechste_Farbe(const std::vector<QRgb> &Farben, QRgb Gesucht) {
  const auto abstand = [Gesucht](QRgb f) {
    const int r = qRed(f) - qRed(Gesucht), g = qGreen(f) - qGreen(Gesucht), b = qBlue(f) - qBlue(Gesucht);
    return r * r + g * g + b * b;
  };
  const auto naechste =
      std::min_element(Farben.begin(), Farben.end(), [&](QRgb a, QRgb b) { return abstand(a) < abstand(b); });
  return uchar(naechste - Farben.begin());
}

}  // namespace

void Desktop_setzen(bool Dunkel) { QApplication::setPalette(Palette_bilden(Dunkel)); }

QImage Mit_Rahmen(QWidget &Fenster) {
  const QImage inhalt = Fenster.grab().toImage();
  const QPalette farben = QApplication::palette();
  const bool dunkel = farben.color(QPalette::Window).lightness() < 128;
  QImage bild(inhalt.width() + 2, inhalt.height() + Titelhoehe + 2, QImage::Format_RGB32);
  bild.fill(dunkel ? QColor(0x5a, 0x5a, 0x5e) : QColor(0x9a, 0x9a, 0x9a));
  QPainter maler(&bild);
  const QRect titel(1, 1, inhalt.width(), Titelhoehe);
  maler.fillRect(titel, dunkel ? QColor(0x3a, 0x3a, 0x3e) : QColor(0xdc, 0xe3, 0xea));
  maler.setPen(farben.color(QPalette::WindowText));
  maler.drawText(titel.adjusted(10, 0, -40, 0), Qt::AlignVCenter | Qt::AlignLeft, Fenster.windowTitle());
  maler.setRenderHint(QPainter::Antialiasing);
  const QPointF mitte(titel.right() - 17, titel.center().y() + 0.5);
  maler.drawLine(mitte + QPointF(-4, -4), mitte + QPointF(4, 4));
  maler.drawLine(mitte + QPointF(-4, 4), mitte + QPointF(4, -4));
  maler.drawImage(1, Titelhoehe + 1, inhalt);
  return bild;
}

bool Klein_speichern(const QImage &Bild, const QString &Datei) {
  const QImage voll = Bild.convertToFormat(QImage::Format_RGB32);
  const std::vector<QRgb> farben = Haeufigste_Farben(voll);
  QImage klein(voll.size(), QImage::Format_Indexed8);
  klein.setColorTable(QList<QRgb>(farben.begin(), farben.end()));
  QHash<QRgb, uchar> stellen;
  for (int y = 0; y < voll.height(); ++y)
    for (int x = 0; x < voll.width(); ++x) {
      const QRgb farbe = voll.pixel(x, y);
      auto ort = stellen.constFind(farbe);
      if (ort == stellen.constEnd()) ort = stellen.insert(farbe, Naechste_Farbe(farben, farbe));
      klein.scanLine(y)[x] = *ort;
    }
  QImageWriter schreiber(Datei, "png");
  schreiber.setCompression(100);
  return schreiber.write(klein);
}

QImage Becher_zeichnen() {
  QImage bild(600, 450, QImage::Format_RGB32);
  bild.fill(Qt::white);
  QPainter maler(&bild);
  maler.setRenderHint(QPainter::Antialiasing);
  maler.setPen(Qt::NoPen);
  maler.setBrush(QColor(0xec, 0xec, 0xec));
  maler.drawEllipse(150, 375, 330, 46);
  maler.setBrush(Qt::NoBrush);
  maler.setPen(QPen(QColor(0x1f, 0x4e, 0x79), 26, Qt::SolidLine, Qt::RoundCap));
  maler.drawArc(345, 130, 150, 170, -95 * 16, 190 * 16);
  QPainterPath rumpf(QPointF(160, 80));
  rumpf.lineTo(178, 380);
  rumpf.quadTo(290, 420, 402, 380);
  rumpf.lineTo(420, 80);
  maler.fillPath(rumpf, QColor(0x2f, 0x6f, 0xa8));
  maler.setPen(QPen(QColor(0x33, 0x33, 0x33), 7));
  maler.setBrush(QColor(0xf6, 0xf4, 0xee));
  maler.drawEllipse(160, 48, 260, 64);
  maler.setPen(Qt::NoPen);
  maler.setBrush(QColor(0xff, 0xff, 0xff, 210));
  for (const QPoint punkt : {QPoint(215, 180), {275, 240}, {335, 190}, {235, 300}, {310, 320}, {365, 270}})
    maler.drawEllipse(punkt, 10, 10);
  return bild;
}

}  // namespace marklink::demo
