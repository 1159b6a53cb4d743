// Windows-1252 both ways. Written out since the library's own codec has no replacement character of choice.
#include "Zeichensatz.h"

#include <array>

namespace marklink {
namespace {

// The bytes 0x80 to 0x9F; the five unassigned ones stand for the control characters of the same number.
constexpr std::array<char16_t, 32> Obere_Steuerzeichen = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t Zeichen(unsigned char Byte) {
  return Byte >= 0x80 && Byte < 0xA0 ? Obere_Steuerzeichen[Byte - 0x80U] : char16_t(Byte);
}

/// The byte of a character, or -1.
int Byte_von(char16_t Z) {
  if (Z < 0x80 || (Z >= 0xA0 && Z <= 0xFF)) return Z;
  for (std::size_t i = 0; i < Obere_Steuerzeichen.size(); ++i)
    if (Obere_Steuerzeichen[i] == Z) return int(0x80 + i);
  return -1;
}

}  // namespace

QByteArray Nach_1252(QStringView Text, bool *Vollstaendig) {
  if (Vollstaendig) *Vollstaendig = true;
  QByteArray bytes;
  bytes.reserve(Text.size());
  for (qsizetype i = 0; i < Text.size(); ++i) {
    const int byte = Byte_von(Text[i].unicode());
    if (byte >= 0) {
      bytes.append(char(byte));
      continue;
    }
    if (Vollstaendig) *Vollstaendig = false;
    bytes.append('?');
    if (Text[i].isHighSurrogate() && i + 1 < Text.size() && Text[i + 1].isLowSurrogate()) ++i;
  }
  return bytes;
}

QString Von_1252(QByteArrayView Bytes) {
  QString text(Bytes.size(), Qt::Uninitialized);
  QChar *ziel = text.data();
  for (const char b : Bytes) *ziel++ = QChar(Zeichen(static_cast<unsigned char>(b)));
  return text;
}

QByteArray Utf8_aus_1252(QByteArrayView Bytes) {
  QByteArray utf8;
  utf8.reserve(Bytes.size() + Bytes.size() / 8);
  for (const char b : Bytes) {
    const char16_t z = Zeichen(static_cast<unsigned char>(b));
    if (z < 0x80) {
      utf8.append(b);
    } else if (z < 0x800) {
      utf8.append(char(0xC0 | (z >> 6)));
      utf8.append(char(0x80 | (z & 0x3F)));
    } else {
      utf8.append(char(0xE0 | (z >> 12)));
      utf8.append(char(0x80 | ((z >> 6) & 0x3F)));
      utf8.append(char(0x80 | (z & 0x3F)));
    }
  }
  return utf8;
}

}  // namespace marklink
