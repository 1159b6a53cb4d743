// Column types and values on the wire.
#include "Typen.h"

#include <QDateTime>
#include <QHash>
#include <QStringDecoder>
#include <cmath>
#include <cstring>

namespace marklink::tds {

namespace {

constexpr quint64 Max = 0xFFFF;  ///< length of a (max) column, whose values come in chunks
constexpr quint64 Null_in_Stuecken = ~quint64(0);

/// The types of the wire that are spoken here.
constexpr quint8 INTN = 0x26, DATEN = 0x28, TIMEN = 0x29, DATETIME2N = 0x2A, NTEXT = 0x63, BITN = 0x68,
                 DECIMALN = 0x6A, NUMERICN = 0x6C, FLTN = 0x6D, DATETIMN = 0x6F, VARBINARY = 0xA5,
                 VARCHAR = 0xA7, BINARY = 0xAD, CHAR = 0xAF, NVARCHAR = 0xE7, NCHAR = 0xEF;

/// In bytes, by Form; 0: of a variable length.
constexpr quint8 Breiten[] = {1, 2, 4, 8, 8, 8, 0, 0};

const QDate Anfang_datetime(1900, 1, 1);
const QDate Anfang_datetime2(1, 1, 1);

QString Zeittext(const QDate &Tag, int Millisekunden) {
  const QTime zeit = QTime::fromMSecsSinceStartOfDay(Millisekunden);
  return Tag.toString(Qt::ISODate) +
         zeit.toString(zeit.msec() ? QStringLiteral(" hh:mm:ss.zzz") : QStringLiteral(" hh:mm:ss"));
}

/// A moment in 1/300 seconds since midnight, as the server counts them.
int Millisekunden_aus_Takten(quint64 Takte) { return static_cast<int>((Takte * 10 + 1) / 3 % 86400000); }

Wert Ganz_lesen(Leser L, qsizetype Breite) {
  const quint64 roh = L.Ganz(static_cast<int>(Breite));
  if (Breite == 1) return Wert::aus(static_cast<qint64>(roh));  // tinyint has no sign
  const int frei = 64 - 8 * static_cast<int>(Breite);
  return Wert::aus(static_cast<qint64>(roh << frei) >> frei);
}

Wert Gleit_lesen(const QByteArray &B) {
  float kurz = 0;
  double zahl = 0;
  if (B.size() == 4) {
    std::memcpy(&kurz, B.constData(), 4);
    return Wert::aus(static_cast<double>(kurz));
  }
  std::memcpy(&zahl, B.constData(), 8);
  return Wert::aus(zahl);
}

/// date, time, datetime2: the time in units of 10^-Stellen s, then the day.
Wert Datetime2_lesen(Leser L, int Stellen, int Zeitbytes) {
  const auto zeit = static_cast<double>(L.Ganz(Zeitbytes)) * 1000 / std::pow(10.0, Stellen);
  const QDate tag = L.Ende() ? Anfang_datetime : Anfang_datetime2.addDays(static_cast<qint64>(L.Ganz(3)));
  return Wert::aus(Zeittext(tag, static_cast<int>(zeit)));
}

Wert Datetime_lesen(Leser L) {
  const QDate tag = Anfang_datetime.addDays(static_cast<qint32>(L.Ganz(4)));
  return Wert::aus(Zeittext(tag, Millisekunden_aus_Takten(L.Ganz(4))));
}

Wert Dezimal_lesen(const QByteArray &B, int Stellen) {
  double zahl = 0;
  for (qsizetype i = B.size(); i-- > 1;) zahl = zahl * 256 + static_cast<quint8>(B[i]);
  zahl /= std::pow(10.0, Stellen);
  return Wert::aus(B[0] ? zahl : -zahl);
}

/// A value of a variable length: nothing for null.
std::optional<QByteArray> Laenge_und_Bytes(Leser &L, quint64 Hoechstens) {
  if (Hoechstens != Max) {
    const quint64 laenge = L.Ganz(2);
    if (laenge == Max) return std::nullopt;
    return L.Bytes(static_cast<qint64>(laenge));
  }
  if (L.Ganz(8) == Null_in_Stuecken) return std::nullopt;
  QByteArray alles;
  while (const quint64 stueck = L.Ganz(4)) alles += L.Bytes(static_cast<qint64>(stueck));
  return alles;
}

Wert Variabel_lesen(Leser &L, quint8 Marke) {
  const quint64 laenge = L.Ganz(2);
  const bool binaer = Marke == VARBINARY || Marke == BINARY;
  if (!binaer) L.Bytes(Sortierung_der_Texte().size());
  const auto bytes = Laenge_und_Bytes(L, laenge);
  if (!bytes) return {};
  if (binaer) return Wert::aus_Bytes(Wert::Art::Binaer, *bytes);
  if (Marke == NVARCHAR || Marke == NCHAR) return Wert::aus(Leser(*bytes).Text16(bytes->size() / 2));
  return Wert::aus(QString(QStringDecoder("windows-1252").decode(*bytes)));
}

void Text_schreiben(Schreiber &S, const Typ &T, const Wert &W) {
  const bool breit = T.F == Form::Text;
  if (W.ist_Null()) return S.Ganz(T.Laenge ? Max : Null_in_Stuecken, T.Laenge ? 2 : 8);
  QString text = breit ? W.Text() : QString();
  if (T.Laenge) text.truncate(T.Laenge);  // a table made elsewhere may hold more
  const auto laenge = static_cast<quint64>(breit ? text.size() * 2 : W.Bytes.size());
  S.Ganz(laenge, T.Laenge ? 2 : 8);
  if (!T.Laenge && laenge) S.Ganz(laenge, 4);
  if (breit) {
    S.Text16(text);
  } else {
    S.Bytes(W.Bytes);
  }
  if (!T.Laenge) S.Ganz(0, 4);
}

void Datum_schreiben(Schreiber &S, const Wert &W) {
  const QDateTime zeit = QDateTime::fromString(W.Text().replace(u' ', u'T'), Qt::ISODateWithMs);
  if (!zeit.isValid()) return S.Ganz(0, 1);
  S.Ganz(8, 1);
  S.Ganz(static_cast<quint64>(Anfang_datetime.daysTo(zeit.date())), 4);
  S.Ganz(static_cast<quint64>(zeit.time().msecsSinceStartOfDay()) * 3 / 10, 4);
}

}  // namespace

QString Wert::Text() const {
  switch (Inhalt) {
    case Art::Null:
      return {};
    case Art::Ganz:
      return QString::number(Ganz);
    case Art::Gleit:
      return QString::number(Gleit, 'g', 15);
    default:
      return QString::fromUtf8(Bytes);
  }
}

Typ Typ_aus_Deklaration(const QString &Deklaration) {
  static const QHash<QString, Form> Formen = [] {
    const QStringList worte =
        QStringLiteral(
            "bit boolean,tinyint smallint,int integer,bigint,float real double decimal numeric money,"
            "datetime datetime2 smalldatetime date,,varbinary binary image blob timestamp")
            .split(u',');
    QHash<QString, Form> formen;
    for (int i = 0; i < 8; ++i)
      for (const QString &wort : worte[i].split(u' ')) formen.insert(wort, static_cast<Form>(i));
    return formen;
  }();
  const QString klein = Deklaration.toLower();
  const qsizetype klammer = klein.indexOf(u'(');
  const QString name = (klammer < 0 ? klein : klein.left(klammer)).trimmed();
  Typ typ{Formen.value(name, Form::Text), 0};
  const bool mit_Laenge = klammer > 0 && (typ.F == Form::Text || typ.F == Form::Binaer);
  if (mit_Laenge) typ.Laenge = klein.mid(klammer + 1).chopped(1).toInt();
  if (typ.Laenge > (typ.F == Form::Text ? 4000 : 8000)) typ.Laenge = 0;
  return typ;
}

Wert Parameterwert_lesen(Leser &L) {
  const auto marke = static_cast<quint8>(L.Ganz(1));
  for (const quint8 variabel : {VARBINARY, VARCHAR, BINARY, CHAR, NVARCHAR, NCHAR}) {
    if (marke == variabel) return Variabel_lesen(L, marke);
  }
  if (marke == NTEXT) {  // the text of a statement
    L.Bytes(4 + Sortierung_der_Texte().size());
    const auto laenge = static_cast<qint32>(L.Ganz(4));
    return laenge < 0 ? Wert() : Wert::aus(L.Text16(laenge / 2));
  }
  if (marke == DECIMALN || marke == NUMERICN) L.Ganz(2);
  const int vorab = marke == DATEN ? 0 : static_cast<int>(L.Ganz(1));  // width or digits
  const QByteArray bytes = L.Bytes(static_cast<qint64>(L.Ganz(1)));
  if (bytes.isEmpty()) return {};
  const Leser l(bytes);
  if (marke == INTN || marke == BITN) return Ganz_lesen(l, bytes.size());
  if (marke == FLTN) return Gleit_lesen(bytes);
  if (marke == DECIMALN || marke == NUMERICN) return Dezimal_lesen(bytes, vorab);
  if (marke == DATETIMN) return Datetime_lesen(l);
  if (marke == DATEN) return Datetime2_lesen(l, 0, 0);
  if (marke == TIMEN || marke == DATETIME2N)
    return Datetime2_lesen(l, vorab, vorab <= 2 ? 3 : vorab <= 4 ? 4 : 5);
  L.Bytes(-1);  // no type that the driver sends
  return {};
}

QByteArray Sortierung_der_Texte() { return QByteArray::fromHex("0904D00034"); }

void Typ_schreiben(Schreiber &S, const Typ &T) {
  const auto i = static_cast<std::size_t>(T.F);
  static constexpr quint8 Marken[] = {BITN, INTN, INTN, INTN, FLTN, DATETIMN, NVARCHAR, VARBINARY};
  S.Ganz(Marken[i], 1);
  if (Breiten[i]) return S.Ganz(Breiten[i], 1);
  const int bytes = T.F == Form::Text ? T.Laenge * 2 : T.Laenge;
  S.Ganz(bytes ? static_cast<quint64>(bytes) : Max, 2);
  if (T.F == Form::Text) S.Bytes(Sortierung_der_Texte());
}

void Wert_schreiben(Schreiber &S, const Typ &T, const Wert &W) {
  if (T.F == Form::Text || T.F == Form::Binaer) return Text_schreiben(S, T, W);
  if (W.ist_Null()) return S.Ganz(0, 1);
  if (T.F == Form::Datum) return Datum_schreiben(S, W);
  const double gleit = W.Inhalt == Wert::Art::Ganz    ? static_cast<double>(W.Ganz)
                       : W.Inhalt == Wert::Art::Gleit ? W.Gleit
                                                      : W.Text().toDouble();
  const quint64 breite = Breiten[static_cast<std::size_t>(T.F)];
  S.Ganz(breite, 1);
  if (T.F == Form::Gleit) return S.Bytes(QByteArray(reinterpret_cast<const char *>(&gleit), 8));
  const qint64 ganz = W.Inhalt == Wert::Art::Ganz ? W.Ganz : static_cast<qint64>(gleit);
  S.Ganz(static_cast<quint64>(T.F == Form::Bit ? ganz != 0 : ganz), static_cast<int>(breite));
}

}  // namespace marklink::tds
