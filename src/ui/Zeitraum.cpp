// The table of named periods, and the condition that a period makes in either dialect.
#include "Zeitraum.h"

#include "db/Zeitpunkt.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "host/Uhr.h"

namespace marklink {

namespace {

constexpr int Erster_Monat = 17;
constexpr int Erstes_Einzeljahr = 35;

struct Grenzen {
  QDate Von, Bis;  ///< no date: the condition fails in the query
};

QDate Heute() { return uhr().Jetzt().date(); }

Grenzen Jahr(int Zahl) { return {QDate(Zahl, 1, 1), QDate(Zahl, 12, 31)}; }

Grenzen Monat(QDate Erster) { return {Erster, Erster.addDays(Erster.daysInMonth() - 1)}; }

Grenzen Quartal(int Jahreszahl, int Nummer) {
  return {QDate(Jahreszahl, Nummer * 3 - 2, 1), Monat(QDate(Jahreszahl, Nummer * 3, 1)).Bis};
}

Grenzen Woche(qint64 Versatz) {
  return {Wochenanfang().addDays(7 * Versatz), Wochenende().addDays(7 * Versatz)};
}

Grenzen Tage(int Zurueck, int Bis_zurueck) {
  return {Kontext.gHeute.addDays(-Zurueck), Kontext.gHeute.addDays(-Bis_zurueck)};
}

/// "from|to". Only a date that was understood goes on, so no text of the user ever reaches a statement.
Grenzen Freitext_lesen(const QString &Freitext) {
  const QStringList teile = Freitext.split(u'|');
  return {Datum_lesen(teile.value(0).trimmed()).date(), Datum_lesen(teile.value(1).trimmed()).date()};
}

Grenzen Grenzen_ermitteln(int Zeitraum, const QString &Freitext) {
  if (Zeitraum == Zeitraum_benutzerdefiniert) return Freitext_lesen(Freitext);
  const QDate heute = Kontext.gHeute;
  const int jahr = heute.year();
  const QDate erster(jahr, heute.month(), 1);
  switch (Zeitraum) {
    case 1:
      return Jahr(jahr);
    case 2:
      return Jahr(jahr - 1);
    case 3:
      return Monat(erster);
    case 4:
      return Monat(erster.addMonths(-1));
    case 5:
      return Woche(0);
    case 6:
      return Woche(-1);
    case 7:
      return Woche(1);
    case 8:
      return Tage(0, 0);
    case 9:
      return Tage(-1, -1);
    case 10:
      return Tage(1, 1);
    case 11:
      return Tage(2, 2);
    case 12:
      return Tage(3, 3);
    case 29:
      return Tage(7, 0);
    case 30:
      return Tage(10, 0);
    case 31:
      return Tage(30, 0);
    case 32:
      return Tage(60, 0);
    case 33:
      return Tage(90, 0);
    case 34:
      return Tage(180, 0);
    default:
      break;
  }
  if (Zeitraum >= 13 && Zeitraum <= 16) return Quartal(jahr, Zeitraum - 12);
  if (Zeitraum >= Erster_Monat && Zeitraum < Erster_Monat + 12)
    return Monat(QDate(jahr, Zeitraum - Erster_Monat + 1, 1));
  if (Zeitraum >= Erstes_Einzeljahr && Zeitraum < Zeitraum_benutzerdefiniert)
    return Jahr(jahr - 2 - (Zeitraum - Erstes_Einzeljahr));
  return {};
}

QString Als_Text(QDate Tag) {
  return Tag.isValid() ? Datum_formatieren(Zeitpunkt(Tag), QStringLiteral("dd.mm.yyyy")) : QString();
}

/// The bound as a literal; nothing at all for a missing one, so that the statement cannot be understood. (A
/// server reads an empty date text as its first day, which would be a filter nobody asked for.)
QString Als_Literal(QDate Tag) {
  const bool jet = Kontext.gDatabasetype == 0;
  QString wert;
  if (Tag.isValid()) {
    const QString bild = jet ? QStringLiteral("m/d/yyyy") : QStringLiteral("yyyy-mm-dd");
    wert = Datum_formatieren(Zeitpunkt(Tag), bild) + QStringLiteral(" 00:00:00");
    wert = jet ? u'#' + wert + u'#' : u'\'' + wert + u'\'';
  }
  return jet ? wert : QStringLiteral("CONVERT(datetime, %1, 120)").arg(wert);
}

}  // namespace

QStringList Zeitraum_Liste_fuellen(bool Benutzerdefiniert) {
  QStringList liste{
      QStringLiteral("keine Einschränkung"),
      QStringLiteral("aktuelles Jahr"),
      QStringLiteral("vorheriges Jahr"),
      QStringLiteral("aktueller Monat"),
      QStringLiteral("vorheriger Monat"),
      QStringLiteral("aktuelle Woche"),
      QStringLiteral("vorherige Woche"),
      QStringLiteral("nächste Woche"),
      QStringLiteral("Heute"),
      QStringLiteral("Morgen"),
      QStringLiteral("Gestern"),
      QStringLiteral("Vorgestern"),
      QStringLiteral("Vorvorgestern"),
      QStringLiteral("1. Quartal"),
      QStringLiteral("2. Quartal"),
      QStringLiteral("3. Quartal"),
      QStringLiteral("4. Quartal"),
      QStringLiteral("Januar"),
      QStringLiteral("Februar"),
      QStringLiteral("März"),
      QStringLiteral("April"),
      QStringLiteral("Mai"),
      QStringLiteral("Juni"),
      QStringLiteral("Juli"),
      QStringLiteral("August"),
      QStringLiteral("September"),
      QStringLiteral("Oktober"),
      QStringLiteral("November"),
      QStringLiteral("Dezember"),
      QStringLiteral("letzte 7 Tage"),
      QStringLiteral("letzte 10 Tage"),
      QStringLiteral("letzte 30 Tage"),
      QStringLiteral("letzte 60 Tage"),
      QStringLiteral("letzte 90 Tage"),
      QStringLiteral("letzte 180 Tage"),
  };
  for (int zurueck = 2; zurueck <= 6; ++zurueck)
    liste << QStringLiteral("%1").arg(Kontext.gHeute.year() - zurueck, 4, 10, QLatin1Char('0'));
  if (Benutzerdefiniert) liste << QStringLiteral("benutzerdefiniert");
  return liste;
}

QString Zeitraum_ermitteln(int Zeitraum, Zeitraum_Modus Modus, const QString &Feld, const QString &Freitext) {
  const Grenzen grenzen = Grenzen_ermitteln(Zeitraum, Freitext);
  if (Modus == Zeitraum_Modus::Von) return Als_Text(grenzen.Von);
  if (Modus == Zeitraum_Modus::Bis) return Als_Text(grenzen.Bis);
  return Feld + QStringLiteral(" BETWEEN ") + Als_Literal(grenzen.Von) + QStringLiteral(" AND ") +
         Als_Literal(grenzen.Bis);
}

QDate Wochenanfang() {
  const QDate heute = Heute();
  return heute.addDays(1 - heute.dayOfWeek());
}

QDate Wochenende() {
  const QDate heute = Heute();
  return heute.addDays(7 - heute.dayOfWeek());
}

int Monatsletzter(QDate Tag) { return Tag.daysInMonth(); }

}  // namespace marklink
