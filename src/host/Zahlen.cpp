// Numbers as text and text as numbers, always German.
#include "Zahlen.h"

#include <cmath>

namespace marklink {
namespace {

bool Ist_Ziffer(QChar Z) { return Z >= u'0' && Z <= u'9'; }

/// What counts as the number's decimal value: at most 15 significant digits, as "-123.45" without an
/// exponent.
QByteArray Dezimaltext(double Zahl) {
  if (!std::isfinite(Zahl) || Zahl == 0.0) return "0";
  const int vorkomma = int(std::floor(std::log10(std::fabs(Zahl)))) + 1;
  const int nachkomma = std::clamp(15 - vorkomma, 0, 300);
  QByteArray text = QByteArray::number(Zahl, 'f', nachkomma);
  if (nachkomma > 0) {
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
  }
  return text == "-0" ? "0" : text;
}

/// Adds one unit in the last place of a text of digits.
void Aufrunden(QByteArray &Ziffern) {
  for (qsizetype i = Ziffern.size() - 1; i >= 0; --i) {
    if (Ziffern[i] != '9') {
      ++Ziffern[i];
      return;
    }
    Ziffern[i] = '0';
  }
  Ziffern.prepend('1');
}

struct Zerlegt {
  bool Negativ = false;
  QByteArray Vorkomma, Nachkomma;
};

/// The decimal value rounded half away from zero to that many places.
Zerlegt Runden_dezimal(double Zahl, int Stellen) {
  QByteArray text = Dezimaltext(Zahl);
  Zerlegt z;
  z.Negativ = text.startsWith('-');
  if (z.Negativ) text.remove(0, 1);
  const qsizetype punkt = text.indexOf('.');
  z.Vorkomma = punkt < 0 ? text : text.left(punkt);
  z.Nachkomma = punkt < 0 ? QByteArray() : text.mid(punkt + 1);
  if (z.Nachkomma.size() > Stellen) {
    const bool auf = z.Nachkomma[Stellen] >= '5';
    QByteArray ziffern = z.Vorkomma + z.Nachkomma.left(Stellen);
    if (auf) Aufrunden(ziffern);
    z.Nachkomma = ziffern.right(Stellen);
    z.Vorkomma = ziffern.left(ziffern.size() - Stellen);
  }
  const auto nur_nullen = [](const QByteArray &b) { return b.count('0') == b.size(); };
  if (nur_nullen(z.Vorkomma) && nur_nullen(z.Nachkomma)) z.Negativ = false;
  return z;
}

struct Zahlenbild {
  QString Davor, Danach;
  int Vorkomma_min = 0;
  int Nachkomma_min = 0, Nachkomma_max = 0;
  bool Tausender = false;
  bool Hat_Stellen = false;
};

Zahlenbild Bild_zerlegen(const QString &Bild) {
  Zahlenbild b;
  bool nachkomma = false;
  for (const QChar z : Bild) {
    if (z == u'0' || z == u'#') {
      b.Hat_Stellen = true;
      if (nachkomma) {
        ++b.Nachkomma_max;
        if (z == u'0') b.Nachkomma_min = b.Nachkomma_max;
      } else if (z == u'0') {
        ++b.Vorkomma_min;
      }
    } else if (z == u',' && b.Hat_Stellen && !nachkomma) {
      b.Tausender = true;
    } else if (z == u'.' && !nachkomma) {
      nachkomma = true;
    } else if (z != u'\\' && z != u'"') {
      (b.Hat_Stellen ? b.Danach : b.Davor).append(z);
    }
  }
  return b;
}

double Setzwert(const QString &Text) {
  const auto zahl = Zahl_deutsch(Text);
  return std::nearbyint(zahl ? *zahl : Zahl_mit_Punkt(Text));
}

}  // namespace

double Zahl_mit_Punkt(QStringView Text) {
  Text = Text.trimmed();
  QByteArray zahl;
  bool punkt = false;
  for (qsizetype i = 0; i < Text.size() && i < 400; ++i) {
    const QChar z = Text[i];
    if (Ist_Ziffer(z)) {
      zahl.append(z.toLatin1());
    } else if (z == u'.' && !punkt) {
      punkt = true;
      zahl.append('.');
    } else if (i == 0 && (z == u'-' || z == u'+')) {
      zahl.append(z.toLatin1());
    } else {
      break;
    }
  }
  if (zahl.endsWith('.')) zahl.chop(1);
  const double wert = zahl.toDouble();
  return std::isfinite(wert) ? wert : 0.0;
}

std::optional<double> Zahl_deutsch(QStringView Text) {
  Text = Text.trimmed();
  QByteArray zahl;
  if (Text.startsWith(u'-') || Text.startsWith(u'+')) {
    zahl.append(Text.front().toLatin1());
    Text = Text.mid(1);
  }
  const qsizetype komma = Text.indexOf(u',');
  const QStringView vor = komma < 0 ? Text : Text.left(komma);
  const QStringView nach = komma < 0 ? QStringView() : Text.mid(komma + 1);
  const bool gruppen = vor.contains(u'.');
  qsizetype ziffern = 0;
  for (qsizetype i = 0; i < vor.size(); ++i) {
    if (gruppen && (vor.size() - i) % 4 == 0) {
      if (vor[i] != u'.' || i == 0) return std::nullopt;
      continue;
    }
    if (!Ist_Ziffer(vor[i])) return std::nullopt;
    zahl.append(vor[i].toLatin1());
    ++ziffern;
  }
  if (!nach.isEmpty()) zahl.append('.');
  for (const QChar z : nach) {
    if (!Ist_Ziffer(z)) return std::nullopt;
    zahl.append(z.toLatin1());
    ++ziffern;
  }
  if (ziffern == 0 || ziffern > 400) return std::nullopt;
  const double wert = zahl.toDouble();
  if (!std::isfinite(wert)) return std::nullopt;
  return wert;
}

QString Zahl_als_Text(double Zahl) { return QString::fromLatin1(Dezimaltext(Zahl)).replace(u'.', u','); }

QString Zahl_formatieren(double Zahl, const QString &Bild) {
  const bool standard = Bild.compare(QLatin1String("standard"), Qt::CaseInsensitive) == 0;
  const Zahlenbild b = Bild_zerlegen(standard ? QStringLiteral("#,##0.00") : Bild);
  if (!b.Hat_Stellen) return Zahl_als_Text(Zahl);
  Zerlegt z = Runden_dezimal(Zahl, b.Nachkomma_max);
  while (z.Nachkomma.size() < b.Nachkomma_min) z.Nachkomma.append('0');
  while (z.Nachkomma.size() > b.Nachkomma_min && z.Nachkomma.endsWith('0')) z.Nachkomma.chop(1);
  while (z.Vorkomma.size() > b.Vorkomma_min && z.Vorkomma.startsWith('0')) z.Vorkomma.remove(0, 1);
  while (z.Vorkomma.size() < b.Vorkomma_min) z.Vorkomma.prepend('0');
  if (b.Tausender)
    for (qsizetype i = z.Vorkomma.size() - 3; i > 0; i -= 3) z.Vorkomma.insert(i, '.');
  QString text = b.Davor;
  if (z.Negativ) text.append(u'-');
  text.append(QLatin1String(z.Vorkomma));
  if (!z.Nachkomma.isEmpty()) text.append(u',').append(QLatin1String(z.Nachkomma));
  return text + b.Danach;
}

double Zahl_durch_Bild(double Zahl, const QString &Bild) {
  return Zahl_deutsch(Zahl_formatieren(Zahl, Bild)).value_or(Zahl);
}

qint16 Als_Kurzzahl(const QString &Text) {
  const double wert = Setzwert(Text);
  return wert >= -32768 && wert <= 32767 ? qint16(wert) : qint16(0);
}

qint32 Als_Ganzzahl(const QString &Text) {
  const double wert = Setzwert(Text);
  return wert >= -2147483648.0 && wert <= 2147483647.0 ? qint32(wert) : 0;
}

}  // namespace marklink
