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

/// Letters without a base letter to be found, and what prints alike. Nothing here becomes a character that
/// means something in an address of the web.
char Aehnliches(char16_t Z) {
  static constexpr struct {
    char16_t Zeichen;
    char Byte;
  } Tafel[] = {{0x0110, 'D'}, {0x0111, 'd'}, {0x0126, 'H'}, {0x0127, 'h'},    {0x0131, 'i'}, {0x0141, 'L'},
               {0x0142, 'l'}, {0x0166, 'T'}, {0x0167, 't'}, {0x1E9E, '\xDF'}, {0x2009, ' '}, {0x202F, ' '},
               {0x2010, '-'}, {0x2011, '-'}, {0x2012, '-'}, {0x2212, '-'}};
  for (const auto &[zeichen, byte] : Tafel)
    if (zeichen == Z) return byte;
  return '?';
}

/// The place behind the character at `Stelle` and the marks (accents, dots) that stand on it.
qsizetype Zeichenende(QStringView Text, qsizetype Stelle) {
  const bool paar =
      Text[Stelle].isHighSurrogate() && Stelle + 1 < Text.size() && Text[Stelle + 1].isLowSurrogate();
  qsizetype ende = Stelle + (paar ? 2 : 1);
  while (ende < Text.size() && Text[ende].isMark()) ++ende;
  return ende;
}

/// The byte of a character with its marks that the set lacks in this form: the same letter in one piece, the
/// letter without its marks, or "?". Other than letters are not taken apart: some signs are made of "<", "="
/// and ";".
char Ersatz(QStringView Zeichen) {
  const QString ganz = Zeichen.toString();
  const QString zusammen = ganz.normalized(QString::NormalizationForm_C);
  if (zusammen.size() == 1 && zusammen[0].isLetter() && Byte_von(zusammen[0].unicode()) >= 0)
    return char(Byte_von(zusammen[0].unicode()));
  if (const int byte = Byte_von(Zeichen[0].unicode()); byte >= 0) return char(byte);
  const QChar grund = ganz.normalized(QString::NormalizationForm_D)[0];
  if (grund.isLetter() && Byte_von(grund.unicode()) >= 0) return char(Byte_von(grund.unicode()));
  return Aehnliches(grund.unicode());
}

}  // namespace

QByteArray Nach_1252(QStringView Text, bool *Vollstaendig) {
  if (Vollstaendig) *Vollstaendig = true;
  QByteArray bytes;
  bytes.reserve(Text.size());
  for (qsizetype i = 0; i < Text.size();) {
    const int byte = Byte_von(Text[i].unicode());
    const bool allein = i + 1 == Text.size() || Text[i + 1] < u'\u0300' || !Text[i + 1].isMark();
    if (byte >= 0 && allein) {
      bytes.append(char(byte));
      ++i;
      continue;
    }
    if (Vollstaendig) *Vollstaendig = false;
    const qsizetype ende = Zeichenende(Text, i);
    bytes.append(Ersatz(Text.sliced(i, ende - i)));
    i = ende;
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
