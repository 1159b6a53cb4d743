// Dates by picture, always German.
#include "Datumsbilder.h"
#include "db/Zeitpunkt.h"

#include <QRegularExpression>
#include <QStringList>

namespace marklink {
namespace {

QString Monatsname(int Monat) {
  static const QStringList namen = {
      QStringLiteral("Januar"),  QStringLiteral("Februar"),  QStringLiteral("März"),
      QStringLiteral("April"),   QStringLiteral("Mai"),      QStringLiteral("Juni"),
      QStringLiteral("Juli"),    QStringLiteral("August"),   QStringLiteral("September"),
      QStringLiteral("Oktober"), QStringLiteral("November"), QStringLiteral("Dezember")};
  return namen.value(Monat - 1);
}

QString Tagesname(int Wochentag) {
  static const QStringList namen = {QStringLiteral("Montag"),   QStringLiteral("Dienstag"),
                                    QStringLiteral("Mittwoch"), QStringLiteral("Donnerstag"),
                                    QStringLiteral("Freitag"),  QStringLiteral("Samstag"),
                                    QStringLiteral("Sonntag")};
  return namen.value(Wochentag - 1);
}

QString Stellen(int Zahl, int Breite) { return QStringLiteral("%1").arg(Zahl, Breite, 10, QLatin1Char('0')); }

QString Datumsteil(const QDateTime &Z, QChar Kennung, int Anzahl, bool Nach_Stunde) {
  const QDate d = Z.date();
  const QTime t = Z.time();
  const int breite = Anzahl >= 2 ? 2 : 1;
  switch (Kennung.unicode()) {
    case u'd':
      if (Anzahl >= 4) return Tagesname(d.dayOfWeek());
      return Anzahl == 3 ? Tagesname(d.dayOfWeek()).left(2) : Stellen(d.day(), breite);
    case u'm':
      if (Nach_Stunde && Anzahl <= 2) return Stellen(t.minute(), breite);
      if (Anzahl >= 4) return Monatsname(d.month());
      return Anzahl == 3 ? Monatsname(d.month()).left(3) : Stellen(d.month(), breite);
    case u'y':
      return Anzahl >= 3 ? Stellen(d.year(), 4) : Stellen(d.year() % 100, 2);
    case u'h':
      return Stellen(t.hour(), breite);
    case u'n':
      return Stellen(t.minute(), breite);
    case u's':
      return Stellen(t.second(), breite);
    default:
      return QString(Anzahl, Kennung);
  }
}

int Volles_Jahr(int Jahr, bool Zweistellig) {
  if (!Zweistellig) return Jahr;
  return Jahr < 30 ? 2000 + Jahr : 1900 + Jahr;
}

}  // namespace

QString Datum_formatieren(const QDateTime &Zeit, const QString &Bild) {
  if (!Zeit.isValid()) return {};
  QString bild = Bild;
  if (bild.compare(QLatin1String("short date"), Qt::CaseInsensitive) == 0)
    bild = QStringLiteral("dd.mm.yyyy");
  if (bild.compare(QLatin1String("long date"), Qt::CaseInsensitive) == 0)
    bild = QStringLiteral("dddd, d. mmmm yyyy");
  QString text;
  bool nach_stunde = false;
  for (qsizetype i = 0; i < bild.size();) {
    const QChar kennung = bild[i].toLower();
    if (kennung == u'\\' && i + 1 < bild.size()) {
      text.append(bild[i + 1]);
      i += 2;
      continue;
    }
    qsizetype ende = i;
    while (ende < bild.size() && bild[ende].toLower() == kennung) ++ende;
    if (QStringView(u"dmyhns").contains(kennung)) {
      text.append(Datumsteil(Zeit, kennung, int(ende - i), nach_stunde));
      nach_stunde = kennung == u'h';
    } else {
      text.append(QStringView(bild).mid(i, ende - i));
    }
    i = ende;
  }
  return text;
}

QDateTime Datum_lesen(const QString &Text) {
  static const QRegularExpression deutsch(QStringLiteral(
      "^\\s*(\\d{1,2})\\.(\\d{1,2})\\.(\\d{4}|\\d{2})(?:\\s+(\\d{1,2}):(\\d{2})(?::(\\d{2}))?)?\\s*$"));
  static const QRegularExpression iso(
      QStringLiteral("^\\s*(\\d{4})-(\\d{1,2})-(\\d{1,2})(?:[ T](\\d{1,2}):(\\d{2})(?::(\\d{2}))?)?\\s*$"));
  QRegularExpressionMatch m = deutsch.match(Text);
  QDate tag;
  if (m.hasMatch()) {
    const int jahr = Volles_Jahr(m.captured(3).toInt(), m.captured(3).size() == 2);
    tag = QDate(jahr, m.captured(2).toInt(), m.captured(1).toInt());
  } else if (m = iso.match(Text); m.hasMatch()) {
    tag = QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
  }
  const QTime zeit(m.captured(4).toInt(), m.captured(5).toInt(), m.captured(6).toInt());
  if (!tag.isValid() || !zeit.isValid()) return {};
  return Zeitpunkt(tag, zeit);
}

QString Zeitpunkt_als_Text(const QDateTime &Zeit) {
  const bool mitternacht = Zeit.time() == QTime(0, 0);
  return Datum_formatieren(
      Zeit, mitternacht ? QStringLiteral("dd.mm.yyyy") : QStringLiteral("dd.mm.yyyy hh:nn:ss"));
}

}  // namespace marklink
