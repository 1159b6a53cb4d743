// Case variants: every letter beyond ASCII that has two forms, in either form.
#include "Textvarianten.h"

#include "Textvergleich.h"

namespace marklink::db {

namespace {

constexpr int Varianten_hoechstens = 16;

QChar gefaltet(QChar c) { return Text_falten(QStringView(&c, 1))[0]; }

bool hat_zwei_Formen(QChar c) {
  if (c.unicode() < 0x80) return false;
  return gefaltet(c) != c || (c.toUpper() != c && gefaltet(c.toUpper()) == c);
}

}  // namespace

QStringList Textvarianten(const QString &Text) {
  QStringList alle{Text};
  for (qsizetype i = 0; i < Text.size(); ++i) {
    if (!hat_zwei_Formen(Text[i])) continue;
    if (alle.size() * 2 > Varianten_hoechstens) return {};
    const QChar andere = gefaltet(Text[i]) == Text[i] ? Text[i].toUpper() : Text[i].toLower();
    const qsizetype bisher = alle.size();
    for (qsizetype k = 0; k < bisher; ++k) {
      QString variante = alle[k];
      variante[i] = andere;
      alle.append(variante);
    }
  }
  return alle;
}

bool Wert_schlicht(const QString &Text) {
  for (const QChar c : Text) {
    if (hat_zwei_Formen(c)) return false;
  }
  return true;
}

}  // namespace marklink::db
