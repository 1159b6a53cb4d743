// Comparing text without regard to case, and in dictionary order.
#include "Textvergleich.h"

#include <QString>

#include "Textvergleich_Utf8.h"

namespace marklink::db {

namespace {

constexpr bool Ascii(char16_t c) { return c < 0x80; }
constexpr char16_t Ascii_klein(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

/// Only letters that come in exactly two cases are folded (not the Kelvin or the Angstrom sign), so that the
/// case variants of a text can be counted out and ASCII folds to ASCII and from nothing else.
char16_t Zeichen_falten(char16_t c) {
  if (Ascii(c)) return Ascii_klein(c);
  const QChar klein = QChar(c).toLower();
  if (klein.unicode() == c || klein.toUpper().unicode() != c) return c;
  return klein.unicode();
}

/// The letters that a folded character is sorted with; at most two.
int Grundbuchstaben(char16_t c, char16_t (&Aus)[2]) {
  Aus[0] = c;
  if (Ascii(c)) return 1;
  switch (c) {
    case u'ß':
      Aus[0] = Aus[1] = u's';
      return 2;
    case u'æ':
      Aus[0] = u'a';
      Aus[1] = u'e';
      return 2;
    case u'œ':
      Aus[0] = u'o';
      Aus[1] = u'e';
      return 2;
    case u'ø':
      Aus[0] = u'o';
      return 1;
    case u'ð':
      Aus[0] = u'd';
      return 1;
    case u'þ':
      Aus[0] = u't';
      Aus[1] = u'h';
      return 2;
    default:
      break;
  }
  const QChar zeichen(c);
  if (zeichen.decompositionTag() == QChar::Canonical) {
    Aus[0] = Zeichen_falten(zeichen.decomposition().at(0).unicode());
    if (!Ascii(Aus[0])) return Grundbuchstaben(Aus[0], Aus);
  }
  return 1;
}

QString Sortierform(QStringView Text) {
  QString form;
  form.reserve(Text.size() + 4);
  for (const QChar c : Text) {
    char16_t paar[2];
    const int anzahl = Grundbuchstaben(Zeichen_falten(c.unicode()), paar);
    for (int i = 0; i < anzahl; ++i) form += QChar(paar[i]);
  }
  return form;
}

int Einheiten_vergleichen(QStringView A, QStringView B) {
  const qsizetype n = qMin(A.size(), B.size());
  for (qsizetype i = 0; i < n; ++i) {
    if (A[i] != B[i]) return A[i] < B[i] ? -1 : 1;
  }
  return A.size() == B.size() ? 0 : (A.size() < B.size() ? -1 : 1);
}

/// One star needs to be remembered only: a later one takes over from an earlier one.
template <typename Text_at, typename Muster_at>
bool Aehnlich(qsizetype Laenge, qsizetype Musterlaenge, Text_at text, Muster_at muster) {
  qsizetype t = 0, m = 0, stern = -1, merke = 0;
  while (t < Laenge) {
    if (m < Musterlaenge && muster(m) == u'%') {
      stern = m++;
      merke = t;
    } else if (m < Musterlaenge && (muster(m) == u'_' || muster(m) == text(t))) {
      ++m;
      ++t;
    } else if (stern >= 0) {
      m = stern + 1;
      t = ++merke;
    } else {
      return false;
    }
  }
  while (m < Musterlaenge && muster(m) == u'%') ++m;
  return m == Musterlaenge;
}

char16_t Byte_klein(const char *Daten, qsizetype i) {
  return Ascii_klein(static_cast<unsigned char>(Daten[i]));
}

QString Dekodiert(Utf8 Text) { return QString::fromUtf8(Text.Daten, Text.Laenge); }

}  // namespace

QString Text_falten(QStringView Text) {
  QString form(Text.size(), Qt::Uninitialized);
  QChar *aus = form.data();
  for (qsizetype i = 0; i < Text.size(); ++i) aus[i] = QChar(Zeichen_falten(Text[i].unicode()));
  return form;
}

bool Text_gleich(QStringView A, QStringView B) {
  if (A.size() != B.size()) return false;
  for (qsizetype i = 0; i < A.size(); ++i) {
    const char16_t a = A[i].unicode(), b = B[i].unicode();
    if (a != b && Zeichen_falten(a) != Zeichen_falten(b)) return false;
  }
  return true;
}

int Text_vergleichen(QStringView A, QStringView B) {
  qsizetype i = 0;
  for (; i < A.size() && i < B.size(); ++i) {
    const char16_t a = A[i].unicode(), b = B[i].unicode();
    if (!Ascii(a) || !Ascii(b)) break;
    if (Ascii_klein(a) != Ascii_klein(b)) return Ascii_klein(a) < Ascii_klein(b) ? -1 : 1;
  }
  const QStringView restA = A.mid(i), restB = B.mid(i);
  if (restA.isEmpty() || restB.isEmpty()) return Einheiten_vergleichen(restA, restB);
  const int grob = Einheiten_vergleichen(Sortierform(restA), Sortierform(restB));
  return grob != 0 ? grob : Einheiten_vergleichen(Text_falten(restA), Text_falten(restB));
}

bool Text_aehnlich(QStringView Text, QStringView Muster) {
  return Aehnlich(
      Text.size(), Muster.size(), [&](qsizetype i) { return Zeichen_falten(Text[i].unicode()); },
      [&](qsizetype i) { return Zeichen_falten(Muster[i].unicode()); });
}

bool Utf8_nur_Ascii(Utf8 Text) {
  for (qsizetype i = 0; i < Text.Laenge; ++i) {
    if (static_cast<signed char>(Text.Daten[i]) < 0) return false;
  }
  return true;
}

bool Utf8_gleich(Utf8 A, Utf8 B) {
  // Bytes that agree, ASCII case apart, mean the same; a pair of letters in two cases may differ in bytes.
  if (A.Laenge == B.Laenge) {
    qsizetype i = 0;
    while (i < A.Laenge && Byte_klein(A.Daten, i) == Byte_klein(B.Daten, i)) ++i;
    if (i == A.Laenge) return true;
  }
  if (Utf8_nur_Ascii(A) || Utf8_nur_Ascii(B)) return false;
  return Text_gleich(Dekodiert(A), Dekodiert(B));
}

int Utf8_vergleichen(Utf8 A, Utf8 B) {
  qsizetype i = 0;
  for (; i < A.Laenge && i < B.Laenge; ++i) {
    const char16_t a = Byte_klein(A.Daten, i), b = Byte_klein(B.Daten, i);
    if (!Ascii(a) || !Ascii(b)) break;
    if (a != b) return a < b ? -1 : 1;
  }
  const Utf8 restA{A.Daten + i, A.Laenge - i}, restB{B.Daten + i, B.Laenge - i};
  if (restA.Laenge == 0 || restB.Laenge == 0) return int(restA.Laenge > 0) - int(restB.Laenge > 0);
  return Text_vergleichen(Dekodiert(restA), Dekodiert(restB));
}

bool Utf8_aehnlich(Utf8 Text, Utf8 Muster) {
  if (!Utf8_nur_Ascii(Text) || !Utf8_nur_Ascii(Muster))
    return Text_aehnlich(Dekodiert(Text), Dekodiert(Muster));
  return Aehnlich(
      Text.Laenge, Muster.Laenge, [&](qsizetype i) { return Byte_klein(Text.Daten, i); },
      [&](qsizetype i) { return Byte_klein(Muster.Daten, i); });
}

quint32 Utf8_streuen(Utf8 Text) {
  quint32 summe = 2166136261u;
  const auto mischen = [&summe](char16_t c) { summe = (summe ^ c) * 16777619u; };
  if (Utf8_nur_Ascii(Text)) {
    for (qsizetype i = 0; i < Text.Laenge; ++i) mischen(Byte_klein(Text.Daten, i));
  } else {
    const QString text = Dekodiert(Text);
    for (const QChar c : text) mischen(Zeichen_falten(c.unicode()));
  }
  return summe;
}

}  // namespace marklink::db
