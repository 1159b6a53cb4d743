// Reading cells as program values and making cells of them.
#include "Feldwert.h"

#include <QLocale>
#include <QStringEncoder>
#include <cmath>
#include <cstring>

#include "Anweisung.h"
#include "Zeitpunkt.h"

namespace marklink::db {

namespace {

QString Text_von(const Zelle &Z) { return QString::fromUtf8(Z.Daten, static_cast<qsizetype>(Z.Laenge)); }

QString Datumstext(const QDate &Tag, const QTime &Zeit) {
  if (!Tag.isValid() || Tag.year() < 1 || Tag.year() > 9999) return {};
  const QTime zeit = Zeit.isValid() ? Zeit : QTime(0, 0);
  return Tag.toString(QStringLiteral("yyyy-MM-dd ")) + zeit.toString(QStringLiteral("hh:mm:ss"));
}

/// The form in which dates are stored, "YYYY-MM-DD hh:mm:ss", read without a parser: most dates come in it.
QDateTime Zeitpunkt_lesen(QStringView Text) {
  if (Text.size() != 19) return {};
  int werte[6] = {};
  int teil = 0;
  for (qsizetype i = 0; i < 19; ++i) {
    const char16_t c = Text[i].unicode();
    if (i == 4 || i == 7 || i == 10 || i == 13 || i == 16) {
      if (c != (i == 10 ? u' ' : i < 10 ? u'-' : u':')) return {};
      ++teil;
    } else {
      if (c < u'0' || c > u'9') return {};
      werte[teil] = werte[teil] * 10 + (c - u'0');
    }
  }
  const QDate tag(werte[0], werte[1], werte[2]);
  const QTime zeit(werte[3], werte[4], werte[5]);
  return tag.isValid() && zeit.isValid() && werte[0] >= 1 ? Zeitpunkt(tag, zeit) : QDateTime();
}

QTime Zeit_lesen(const QString &Text) {
  QString text = Text.trimmed();
  const qsizetype bruch = text.indexOf(u'.');
  if (bruch > 0) text.truncate(bruch);
  if (text.isEmpty()) return QTime(0, 0);
  const QStringList teile = text.split(u':');
  if (teile.size() < 2 || teile.size() > 3) return {};
  int werte[3] = {0, 0, 0};
  for (qsizetype i = 0; i < teile.size(); ++i) {
    bool lesbar = false;
    werte[i] = teile[i].toInt(&lesbar);
    if (!lesbar || teile[i].size() > 2) return {};
  }
  return QTime(werte[0], werte[1], werte[2]);
}

Zelle Textzelle(const QString &Text, Speicher &Lager) {
  const auto hoechstens = static_cast<std::size_t>(Text.size()) * 3;
  char *ziel = Lager.Bytes(hoechstens);
  QStringEncoder kodierer(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
  const auto laenge = static_cast<std::size_t>(kodierer.appendToBuffer(ziel, Text) - ziel);
  Lager.zurueckgeben(hoechstens - laenge);
  return Zelle::aus_Bytes(Zelle::Art::Text, ziel, laenge);
}

bool ist_Zahl(const QVariant &Wert) {
  switch (Wert.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
      return true;
    default:
      return false;
  }
}

std::optional<double> Zahl_aus(const QVariant &Wert) {
  if (Wert.typeId() == QMetaType::Bool) return Wert.toBool() ? -1.0 : 0.0;
  if (ist_Zahl(Wert)) {
    const double zahl = Wert.toDouble();
    return std::isfinite(zahl) ? std::optional(zahl) : std::nullopt;
  }
  if (Wert.typeId() == QMetaType::QString) return Zahltext_lesen(Wert.toString());
  return std::nullopt;
}

std::optional<Zelle> Ganzzahlzelle(const QVariant &Wert, int Bits) {
  if (Bits == 64 && (Wert.typeId() == QMetaType::LongLong || Wert.typeId() == QMetaType::Int)) {
    return Zelle::aus_Ganz(Wert.toLongLong());
  }
  const auto zahl = Zahl_aus(Wert);
  if (!zahl) return std::nullopt;
  const double ganz = std::nearbyint(*zahl);  // a half goes to the even neighbour
  const double grenze = std::ldexp(1.0, Bits - 1);
  if (ganz < -grenze || ganz >= grenze) return std::nullopt;
  return Zelle::aus_Ganz(static_cast<qint64>(ganz));
}

std::optional<bool> Flagge_aus(const QVariant &Wert) {
  if (Wert.typeId() == QMetaType::Bool) return Wert.toBool();
  if (const auto zahl = Zahl_aus(Wert)) return *zahl != 0.0;
  const QString text = Wert.toString().trimmed().toLower();
  if (text == u"true" || text == u"wahr") return true;
  if (text == u"false" || text == u"falsch") return false;
  return std::nullopt;
}

QString Datum_aus(const QVariant &Wert) {
  switch (Wert.typeId()) {
    case QMetaType::QDateTime:
      return Datumstext(Wert.toDateTime().date(), Wert.toDateTime().time());
    case QMetaType::QDate:
      return Datumstext(Wert.toDate(), {});
    case QMetaType::QString:
      return Datumstext_lesen(Wert.toString());
    default:
      return {};
  }
}

QString Text_aus(const QVariant &Wert) {
  switch (Wert.typeId()) {
    case QMetaType::Bool:
      return Wert.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
    case QMetaType::Double:
    case QMetaType::Float:
      return Zahltext_bilden(Wert.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
      return Datum_aus(Wert);
    default:
      return Wert.toString();
  }
}

}  // namespace

std::optional<double> Zahltext_lesen(QStringView Text) {
  bool lesbar = false;
  const double zahl = Text.trimmed().toDouble(&lesbar);
  if (!lesbar || !std::isfinite(zahl)) return std::nullopt;
  return zahl;
}

QString Zahltext_bilden(double Zahl) { return db::Zahl(Zahl).Text; }

QString Datumstext_lesen(const QString &Text) {
  if (Zeitpunkt_lesen(Text).isValid()) return Text;
  const QString text = Text.trimmed();
  qsizetype grenze = text.indexOf(u' ');
  if (grenze < 0) grenze = text.indexOf(u'T');
  const QString tag = grenze < 0 ? text : text.left(grenze);
  const QTime zeit = grenze < 0 ? QTime(0, 0) : Zeit_lesen(text.mid(grenze + 1));
  const bool deutsch = tag.contains(u'.');
  const QStringList teile = tag.split(deutsch ? u'.' : u'-');
  if (teile.size() != 3 || !zeit.isValid()) return {};
  const QString &jahr = deutsch ? teile[2] : teile[0];
  const QString &monatstag = deutsch ? teile[0] : teile[2];
  if (jahr.size() != 4) return {};
  return Datumstext(QDate(jahr.toInt(), teile[1].toInt(), monatstag.toInt()), zeit);
}

bool Feldflagge_lesen(const Zelle &Z) {
  switch (Z.Inhalt) {
    case Zelle::Art::Null:
      return false;
    case Zelle::Art::Ganz:
      return Z.Ganz != 0;
    case Zelle::Art::Gleit:
      return Z.Gleit != 0.0;
    default:
      return Flagge_aus(Text_von(Z)).value_or(false);
  }
}

QVariant Feldwert_lesen(const Zelle &Z, Feldart Art) {
  if (Z.ist_Null()) return {};
  switch (Art) {
    case Feldart::Ja_Nein:
      return Feldflagge_lesen(Z);
    case Feldart::Text:
      return Feldtext_lesen(Z, Art);
    case Feldart::Datum: {
      const QString stand = Feldtext_lesen(Z, Art);
      const QDateTime zeitpunkt = Zeitpunkt_lesen(stand);
      if (zeitpunkt.isValid()) return zeitpunkt;
      const QString text = Datumstext_lesen(stand);
      return text.isEmpty() ? QVariant() : QVariant(Zeitpunkt_lesen(text));
    }
    case Feldart::Binaer:
      if (Z.hat_Bytes()) return QByteArray(Z.Daten, static_cast<qsizetype>(Z.Laenge));
      break;
    case Feldart::Gleitkomma:
      return Feldzahl_lesen(Z, Art);
    default:
      break;
  }
  switch (Z.Inhalt) {
    case Zelle::Art::Ganz:
      if (Z.Ganz == static_cast<int>(Z.Ganz)) return static_cast<int>(Z.Ganz);
      return Z.Ganz;
    case Zelle::Art::Gleit:
      return Z.Gleit;
    case Zelle::Art::Binaer:
      return QByteArray(Z.Daten, static_cast<qsizetype>(Z.Laenge));
    default:
      return Text_von(Z);
  }
}

QString Feldtext_lesen(const Zelle &Z, Feldart Art) {
  if (Z.ist_Null()) return {};
  if (Art == Feldart::Ja_Nein) return Feldflagge_lesen(Z) ? QStringLiteral("-1") : QStringLiteral("0");
  switch (Z.Inhalt) {
    case Zelle::Art::Ganz:
      return QString::number(Z.Ganz);
    case Zelle::Art::Gleit:
      return Zahltext_bilden(Z.Gleit);
    default:
      return Text_von(Z);
  }
}

double Feldzahl_lesen(const Zelle &Z, Feldart Art) {
  if (Art == Feldart::Ja_Nein) return Feldflagge_lesen(Z) ? -1.0 : 0.0;
  switch (Z.Inhalt) {
    case Zelle::Art::Ganz:
      return static_cast<double>(Z.Ganz);
    case Zelle::Art::Gleit:
      return Z.Gleit;
    case Zelle::Art::Text:
      return Zahltext_lesen(Text_von(Z)).value_or(0.0);
    default:
      return 0.0;
  }
}

std::optional<Zelle> Zelle_bilden(const QVariant &Wert, const Feld &Spalte, Dialekt D, Speicher &Lager) {
  if (!Wert.isValid() || Wert.isNull()) return Spalte.Art == Feldart::Ja_Nein ? Zelle::aus_Ganz(0) : Zelle();
  switch (Spalte.Art) {
    case Feldart::Text: {
      const QString text = Text_aus(Wert);
      if (Spalte.Laenge > 0 && text.size() > Spalte.Laenge) return std::nullopt;
      return Textzelle(text, Lager);
    }
    case Feldart::Ganzzahl:
      return Ganzzahlzelle(Wert, Spalte.Bits);
    case Feldart::Gleitkomma: {
      const auto zahl = Zahl_aus(Wert);
      return zahl ? std::optional(Zelle::aus_Gleit(*zahl)) : std::nullopt;
    }
    case Feldart::Ja_Nein: {
      const auto flagge = Flagge_aus(Wert);
      if (!flagge) return std::nullopt;
      return Zelle::aus_Ganz(!*flagge ? 0 : (D == Dialekt::Jet ? -1 : 1));
    }
    case Feldart::Datum: {
      const QString datum = Datum_aus(Wert);
      if (datum.isEmpty() || datum.section(u'-', 0, 0).toInt() < Spalte.Ab_Jahr) return std::nullopt;
      return Textzelle(datum, Lager);
    }
    case Feldart::Binaer: {
      if (Wert.typeId() != QMetaType::QByteArray) return std::nullopt;
      const QByteArray bytes = Wert.toByteArray();
      return Lager.Kopie(
          Zelle::aus_Bytes(Zelle::Art::Binaer, bytes.constData(), static_cast<std::size_t>(bytes.size())));
    }
    case Feldart::Offen:
      break;  // a computed column has no place to write to
  }
  return std::nullopt;
}

}  // namespace marklink::db
