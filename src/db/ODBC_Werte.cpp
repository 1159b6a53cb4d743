// Binding parameters and fetching fields, long ones in pieces.
#include "ODBC_Werte.h"

#include <QStringEncoder>
#include <cstring>

#include "Feldwert.h"

namespace marklink::db {

namespace {

constexpr SQLULEN Kurztext = 4000;  ///< characters; beyond that the server's type is nvarchar(max)
constexpr SQLLEN Stueckgroesse = 1 << 16;

bool Zeit_lesen(const QString &Text, SQL_TIMESTAMP_STRUCT &Zeit) {
  const QDateTime zeit = QDateTime::fromString(Text, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
  const QDate tag = QDate::fromString(Text.left(10), Qt::ISODate);
  const QTime uhr = zeit.isValid() ? zeit.time() : QTime::fromString(Text.mid(11), Qt::ISODate);
  if (!tag.isValid() || !uhr.isValid()) return false;
  Zeit = {static_cast<SQLSMALLINT>(tag.year()),
          static_cast<SQLUSMALLINT>(tag.month()),
          static_cast<SQLUSMALLINT>(tag.day()),
          static_cast<SQLUSMALLINT>(uhr.hour()),
          static_cast<SQLUSMALLINT>(uhr.minute()),
          static_cast<SQLUSMALLINT>(uhr.second()),
          0};
  return true;
}

QString Text_von(const Zelle &Z) { return QString::fromUtf8(Z.Daten, static_cast<qsizetype>(Z.Laenge)); }

/// All bytes of a field; `Ende` bytes of each full piece are the driver's closing NUL.
bool Bytes_holen(SQLHSTMT Stmt, SQLUSMALLINT Nummer, SQLSMALLINT C, SQLLEN Ende, QByteArray &Ziel,
                 bool &Null) {
  static thread_local std::vector<char> puffer(Stueckgroesse);
  Ziel.clear();
  for (;;) {
    SQLLEN laenge = 0;
    const SQLRETURN rc = SQLGetData(Stmt, Nummer, C, puffer.data(), Stueckgroesse, &laenge);
    if (rc == SQL_NO_DATA) return true;
    if (!SQL_SUCCEEDED(rc)) return false;
    Null = laenge == SQL_NULL_DATA;
    if (Null) return true;
    const bool mehr =
        rc == SQL_SUCCESS_WITH_INFO && (laenge == SQL_NO_TOTAL || laenge > Stueckgroesse - Ende);
    Ziel.append(puffer.data(), mehr ? Stueckgroesse - Ende : laenge);
    if (!mehr) return true;
  }
}

Zelle Textzelle(const QByteArray &Utf16, Speicher &Lager) {
  const QStringView text(reinterpret_cast<const char16_t *>(Utf16.constData()), Utf16.size() / 2);
  const auto hoechstens = static_cast<std::size_t>(text.size()) * 3;
  char *ziel = Lager.Bytes(hoechstens);
  QStringEncoder kodierer(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
  const auto laenge = static_cast<std::size_t>(kodierer.appendToBuffer(ziel, text) - ziel);
  Lager.zurueckgeben(hoechstens - laenge);
  return Zelle::aus_Bytes(Zelle::Art::Text, ziel, laenge);
}

Zelle Zeitzelle(const SQL_TIMESTAMP_STRUCT &Zeit, Speicher &Lager) {
  char text[40] = {};
  const int laenge = std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", Zeit.year, Zeit.month,
                                   Zeit.day, Zeit.hour, Zeit.minute, Zeit.second);
  return Lager.Kopie(Zelle::aus_Bytes(Zelle::Art::Text, text, static_cast<std::size_t>(laenge)));
}

}  // namespace

/// A value of fixed length, which the caller puts in its place.
Odbc_Parameter::Einer &Odbc_Parameter::Anfuegen(SQLSMALLINT C, SQLSMALLINT Sql, SQLULEN Groesse,
                                                SQLSMALLINT Stellen, SQLLEN Laenge) {
  Einer &neu = Alle_.emplace_back();
  neu.C = C;
  neu.Sql = Sql;
  neu.Groesse = Groesse;
  neu.Stellen = Stellen;
  neu.Bytes = reinterpret_cast<const char *>(&neu.Ganz);
  neu.Laenge = Laenge;
  return neu;
}

Odbc_Parameter::Einer &Odbc_Parameter::Text(const QString &Wert) {
  const auto laenge = static_cast<SQLULEN>(Wert.size());
  const bool kurz = laenge <= Kurztext;
  Einer &neu = Anfuegen(SQL_C_WCHAR, kurz ? SQL_WVARCHAR : SQL_WLONGVARCHAR, kurz ? Kurztext : laenge, 0,
                        static_cast<SQLLEN>(laenge * 2));
  neu.Text = Wert;
  neu.Bytes = reinterpret_cast<const char *>(neu.Text.utf16());
  return neu;
}

Odbc_Parameter::Einer &Odbc_Parameter::Zahl(qint64 Wert) {
  Einer &neu = Anfuegen(SQL_C_SBIGINT, SQL_BIGINT, 19, 0, sizeof Wert);
  neu.Ganz = Wert;
  return neu;
}

Odbc_Parameter::Einer &Odbc_Parameter::Zahl(double Wert) {
  Einer &neu = Anfuegen(SQL_C_DOUBLE, SQL_DOUBLE, 15, 0, sizeof Wert);
  neu.Gleit = Wert;
  return neu;
}

Odbc_Parameter::Einer &Odbc_Parameter::Leer_von(Feldart Art) {
  switch (Art) {
    case Feldart::Ganzzahl:
    case Feldart::Ja_Nein:
      return Zahl(qint64(0));
    case Feldart::Gleitkomma:
      return Zahl(0.0);
    case Feldart::Datum:
      return Anfuegen(SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, 23, 3, sizeof(SQL_TIMESTAMP_STRUCT));
    case Feldart::Binaer:
      return Anfuegen(SQL_C_BINARY, SQL_LONGVARBINARY, 1, 0, 0);
    default:
      return Text({});
  }
}

void Odbc_Parameter::Anweisungswert(const Anweisung::Stueck &S) {
  bool ganz = false;
  const qint64 zahl = S.Text.toLongLong(&ganz);
  if (S.Art == Anweisung::Stueck::Art::Textwert)
    Text(S.Text);
  else if (ganz)
    Zahl(zahl);
  else
    Zahl(S.Text.toDouble());
}

bool Odbc_Parameter::Zelle_anfuegen(const Zelle &Z, const Feld *Spalte) {
  const Feldart art = Spalte ? Spalte->Art : Feldart::Offen;
  switch (Z.Inhalt) {
    case Zelle::Art::Null:
      Leer_von(art).Laenge = SQL_NULL_DATA;
      return true;
    case Zelle::Art::Ganz:
      Zahl(Z.Ganz);
      return true;
    case Zelle::Art::Gleit:
      Zahl(Z.Gleit);
      return true;
    case Zelle::Art::Text:
      if (art == Feldart::Datum) return Zeit_lesen(Text_von(Z), Leer_von(art).Zeit);
      Text(Text_von(Z));
      return true;
    case Zelle::Art::Binaer: {
      Einer &neu = Leer_von(Feldart::Binaer);
      neu.Groesse = std::max<SQLULEN>(1, Z.Laenge);
      neu.Bytes = Z.Laenge ? Z.Daten : "";
      neu.Laenge = static_cast<SQLLEN>(Z.Laenge);
      return true;
    }
  }
  return false;
}

bool Odbc_Parameter::Binden(SQLHSTMT Stmt) {
  SQLUSMALLINT nummer = 0;
  for (Einer &e : Alle_) {
    const SQLRETURN rc =
        SQLBindParameter(Stmt, ++nummer, SQL_PARAM_INPUT, e.C, e.Sql, e.Groesse, e.Stellen,
                         const_cast<char *>(e.Bytes), std::max<SQLLEN>(e.Laenge, 0), &e.Laenge);
    if (!SQL_SUCCEEDED(rc)) return false;
  }
  return true;
}

bool Odbc_Zelle_holen(SQLHSTMT Stmt, int Nummer, Feldart Art, Speicher &Lager, Zelle &Ziel) {
  const auto spalte = static_cast<SQLUSMALLINT>(Nummer + 1);
  SQLLEN laenge = 0;
  switch (Art) {
    case Feldart::Ganzzahl:
    case Feldart::Ja_Nein: {
      qint64 zahl = 0;
      if (!SQL_SUCCEEDED(SQLGetData(Stmt, spalte, SQL_C_SBIGINT, &zahl, sizeof zahl, &laenge))) return false;
      if (laenge != SQL_NULL_DATA) Ziel = Zelle::aus_Ganz(zahl);
      return true;
    }
    case Feldart::Gleitkomma: {
      double zahl = 0;
      if (!SQL_SUCCEEDED(SQLGetData(Stmt, spalte, SQL_C_DOUBLE, &zahl, sizeof zahl, &laenge))) return false;
      if (laenge != SQL_NULL_DATA) Ziel = Zelle::aus_Gleit(zahl);
      return true;
    }
    case Feldart::Datum: {
      SQL_TIMESTAMP_STRUCT zeit{};
      if (!SQL_SUCCEEDED(SQLGetData(Stmt, spalte, SQL_C_TYPE_TIMESTAMP, &zeit, sizeof zeit, &laenge)))
        return false;
      if (laenge != SQL_NULL_DATA) Ziel = Zeitzelle(zeit, Lager);
      return true;
    }
    default:
      break;
  }
  const bool binaer = Art == Feldart::Binaer;
  static thread_local QByteArray bytes;
  bool leer = false;
  if (!Bytes_holen(Stmt, spalte, binaer ? SQL_C_BINARY : SQL_C_WCHAR, binaer ? 0 : 2, bytes, leer))
    return false;
  if (leer) return true;
  const auto anzahl = static_cast<std::size_t>(bytes.size());
  Ziel = binaer ? Lager.Kopie(Zelle::aus_Bytes(Zelle::Art::Binaer, bytes.constData(), anzahl))
                : Textzelle(bytes, Lager);
  return true;
}

}  // namespace marklink::db
