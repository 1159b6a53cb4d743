// Reading the heads of picture files.
#include <QFile>

#include "clsImage.h"

namespace marklink {

namespace {

constexpr qint64 TIFF_BREITE = 256, TIFF_HOEHE = 257, TIFF_TIEFE = 258;
constexpr int TIFF_EINTRAG = 12;  // bytes

}  // namespace

void clsImage::ReadImageInfo(const QString &Path) {
  *this = {};
  QFile datei(Path);
  if (datei.open(QIODevice::ReadOnly)) Bytes_ = datei.readAll();
  if (Bytes_.startsWith("GIF"))
    GIF_lesen();
  else if (Bytes_.startsWith("\x89PN"))
    PNG_lesen();
  else if (Bytes_.startsWith("BM"))
    BMP_lesen();
  else if (Bytes_.startsWith('\x0A'))
    PCX_lesen();
  else if (Bytes_.startsWith("II*") || (Bytes_.startsWith("MM") && Byte(3) == '*'))
    TIFF_lesen();
  else
    JPEG_lesen();
}

int clsImage::Byte(qint64 Stelle) const {
  return Stelle >= 0 && Stelle < Bytes_.size() ? static_cast<unsigned char>(Bytes_.at(Stelle)) : 0;
}

qint64 clsImage::Wert(qint64 Stelle, int Laenge, bool Motorola) const {
  qint64 wert = 0;
  for (int i = 0; i < Laenge; ++i) wert = wert << 8 | Byte(Motorola ? Stelle + i : Stelle + Laenge - 1 - i);
  return wert;
}

void clsImage::Setzen(Format Art, qint64 Breite, qint64 Hoehe, qint64 Tiefe) {
  Type_ = Art;
  Width_ = static_cast<qint32>(Breite);
  Height_ = static_cast<qint32>(Hoehe);
  Depth_ = static_cast<qint32>(Tiefe);
}

void clsImage::PNG_lesen() {
  const int farbart = Byte(25), bits = Byte(24);
  int tiefe = 0;
  switch (farbart) {
    case 0:
      tiefe = bits;
      break;
    case 2:
      tiefe = bits * 3;
      break;
    case 3:
      tiefe = 8;
      break;
    case 4:
      tiefe = bits * 2;
      break;
    case 6:
      tiefe = bits * 4;
      break;
    default:
      return;
  }
  Setzen(PNG, Wert(18, 2, true), Wert(22, 2, true), tiefe);
}

/// The packed byte's low three bits are the depth less 1.
void clsImage::GIF_lesen() { Setzen(GIF, Wert(6, 2, false), Wert(8, 2, false), (Byte(10) & 7) + 1); }

void clsImage::BMP_lesen() { Setzen(BMP, Wert(18, 2, false), Wert(22, 2, false), Byte(28)); }

void clsImage::PCX_lesen() {
  Setzen(PCX, Wert(8, 2, false) - Wert(4, 2, false) + 1, Wert(10, 2, false) - Wert(6, 2, false) + 1,
         Byte(65) * Byte(3));
}

qint64 clsImage::TIFF_Feld(qint64 Eintrag, bool Motorola) const {
  switch (Wert(Eintrag + 2, 2, Motorola)) {
    case 1:
      return Byte(Eintrag + 8);
    case 3:
      return Wert(Eintrag + 8, 2, Motorola);
    case 4:
      return Wert(Eintrag + 8, 4, Motorola);
    default:
      return 0;
  }
}

void clsImage::TIFF_lesen() {
  const bool motorola = Byte(0) == 'M';
  const qint64 verzeichnis = Wert(4, 4, motorola);
  const qint64 anzahl = Wert(verzeichnis, 2, motorola);
  qint64 breite = 0, hoehe = 0, tiefe = 0;
  for (qint64 i = 0; i < anzahl; ++i) {
    const qint64 eintrag = verzeichnis + 2 + i * TIFF_EINTRAG, kennung = Wert(eintrag, 2, motorola);
    if (kennung == TIFF_BREITE) breite = TIFF_Feld(eintrag, motorola);
    if (kennung == TIFF_HOEHE) hoehe = TIFF_Feld(eintrag, motorola);
    if (kennung == TIFF_TIEFE) tiefe = TIFF_Feld(eintrag, motorola);
  }
  Setzen(TIFF, breite, hoehe, tiefe);
}

void clsImage::JPEG_lesen() {
  const qint64 ende = Bytes_.size() - 10;
  const qint64 anfang = Bytes_.indexOf("\xFF\xD8\xFF");
  if (anfang < 0 || anfang >= ende) return;
  qint64 stelle = anfang + 2;
  while (stelle < ende) {
    // A marker is the last of a run of FF and what follows it.
    while (stelle < ende && (Byte(stelle) != 0xFF || Byte(stelle + 1) == 0xFF)) ++stelle;
    if (stelle >= ende) return;
    const int kennung = Byte(stelle + 1);
    if (kennung >= 192 && kennung < 196) {
      // Segment: FF, marker, length (2), precision (1), height (2), width (2), components (1).
      Setzen(JPEG, Wert(stelle + 7, 2, true), Wert(stelle + 5, 2, true), Byte(stelle + 9) * 8);
      return;
    }
    stelle += 2 + std::max<qint64>(Wert(stelle + 2, 2, true), 2);
  }
}

}  // namespace marklink
