// The server's column types.
#include "ODBC_Typen.h"

#include <QStringList>

namespace marklink::db {

namespace {

constexpr int Laengster_Text = 8000;  ///< characters of a column that is not one of unlimited length

/// How the column is compared with a value; as it is where nothing else is needed.
enum class Vergleich {
  Schlicht,
  Buchstaben,  ///< the case of letters counts
  Alter_Text,  ///< text and ntext cannot be compared themselves, nor can image
  Altes_Bild,
  Gewandelt,  ///< the column rounds: so must the value be
  Sekunden,   ///< parts of a second are not read
  Nie         ///< the server changes it by itself, or compares it with nothing
};

struct Servertyp {
  const char *Name;
  Feldart Art;
  Vergleich V;
  int Bits = 32;
  bool Genau = true;
  int Ab_Jahr = 0;
};

// By the name, not the ODBC type: newer types are told to older clients as nvarchar, and nvarchar(max) as
// ntext.
constexpr Servertyp Typen[] = {{"nvarchar", Feldart::Text, Vergleich::Buchstaben},
                               {"varchar", Feldart::Text, Vergleich::Buchstaben, 32, false},
                               {"nchar", Feldart::Text, Vergleich::Buchstaben, 32, false},
                               {"char", Feldart::Text, Vergleich::Buchstaben, 32, false},
                               {"sysname", Feldart::Text, Vergleich::Buchstaben},
                               {"ntext", Feldart::Text, Vergleich::Alter_Text},
                               {"text", Feldart::Text, Vergleich::Alter_Text, 32, false},
                               {"uniqueidentifier", Feldart::Text, Vergleich::Gewandelt, 32, false},
                               {"bit", Feldart::Ja_Nein, Vergleich::Schlicht},
                               {"tinyint", Feldart::Ganzzahl, Vergleich::Schlicht, 16},
                               {"smallint", Feldart::Ganzzahl, Vergleich::Schlicht, 16},
                               {"int", Feldart::Ganzzahl, Vergleich::Schlicht},
                               {"bigint", Feldart::Ganzzahl, Vergleich::Schlicht, 64},
                               {"float", Feldart::Gleitkomma, Vergleich::Schlicht},
                               {"real", Feldart::Gleitkomma, Vergleich::Gewandelt, 32, false},
                               {"money", Feldart::Gleitkomma, Vergleich::Gewandelt, 32, false},
                               {"smallmoney", Feldart::Gleitkomma, Vergleich::Gewandelt, 32, false},
                               {"decimal", Feldart::Gleitkomma, Vergleich::Gewandelt, 32, false},
                               {"numeric", Feldart::Gleitkomma, Vergleich::Gewandelt, 32, false},
                               {"datetime", Feldart::Datum, Vergleich::Sekunden, 32, true, 1753},
                               {"datetime2", Feldart::Datum, Vergleich::Sekunden},
                               {"smalldatetime", Feldart::Datum, Vergleich::Gewandelt, 32, false, 1900},
                               {"date", Feldart::Datum, Vergleich::Gewandelt, 32, false},
                               {"varbinary", Feldart::Binaer, Vergleich::Schlicht},
                               {"binary", Feldart::Binaer, Vergleich::Schlicht, 32, false},
                               {"image", Feldart::Binaer, Vergleich::Altes_Bild},
                               {"timestamp", Feldart::Binaer, Vergleich::Nie},
                               {"rowversion", Feldart::Binaer, Vergleich::Nie},
                               {"time", Feldart::Text, Vergleich::Nie},
                               {"datetimeoffset", Feldart::Text, Vergleich::Nie},
                               {"xml", Feldart::Text, Vergleich::Nie},
                               {"sql_variant", Feldart::Text, Vergleich::Nie},
                               {"hierarchyid", Feldart::Binaer, Vergleich::Nie},
                               {"geography", Feldart::Binaer, Vergleich::Nie},
                               {"geometry", Feldart::Binaer, Vergleich::Nie}};

/// The name of a type that the catalogue's owner made tells nothing; its ODBC type does.
Servertyp Typ_aus_Nummer(const Odbc_Spalte &S) {
  int bits = 32;
  const Feldart art = Feldart_aus_Odbc(S.Typ, bits);
  switch (art) {
    case Feldart::Text:
      return {"", art, Vergleich::Buchstaben, bits, false};
    case Feldart::Datum:
      return {"", art, Vergleich::Sekunden, bits, false};
    case Feldart::Gleitkomma:
      if (S.Typ == SQL_REAL) return {"real", art, Vergleich::Gewandelt, bits, false};
      if (S.Typ == SQL_DECIMAL || S.Typ == SQL_NUMERIC)
        return {"decimal", art, Vergleich::Gewandelt, bits, false};
      break;
    default:
      break;
  }
  return {"", art, Vergleich::Schlicht, bits};
}

Servertyp Typ_finden(const Odbc_Spalte &S) {
  const QString name = S.Typname.section(u' ', 0, 0).section(u'(', 0, 0).toLower();
  for (const Servertyp &t : Typen) {
    if (name == QLatin1String(t.Name)) return t;
  }
  return Typ_aus_Nummer(S);
}

/// What a value has to be made of first.
QByteArray Ziel(const Servertyp &T, const Odbc_Spalte &S) {
  QByteArray name = T.Name;
  if (name != "decimal" && name != "numeric") return name;
  return name + '(' + QByteArray::number(S.Groesse) + ',' + QByteArray::number(S.Stellen) + ')';
}

/// INTERSECT takes two nulls for equal, as "=" does not.
QByteArray Gleich(const QByteArray &Spalte, const QByteArray &Wert) {
  return "EXISTS (SELECT " + Spalte + " INTERSECT SELECT " + Wert + ')';
}

QByteArray Bedingung(const QByteArray &Spalte, const Servertyp &T, const Odbc_Spalte &S) {
  static const QByteArray genau = " COLLATE Latin1_General_BIN2";
  switch (T.V) {
    case Vergleich::Buchstaben:
      return Gleich(Spalte + genau, "?");
    case Vergleich::Alter_Text:
      return Gleich("CONVERT(nvarchar(max)," + Spalte + ')' + genau, "?");
    case Vergleich::Altes_Bild:
      return Gleich("CONVERT(varbinary(max)," + Spalte + ')', "?");
    case Vergleich::Gewandelt:
      return Gleich(Spalte, "CONVERT(" + Ziel(T, S) + ",?)");
    case Vergleich::Sekunden:
      // As text both are cut, where numbers would be rounded.
      return Gleich("CONVERT(nvarchar(19)," + Spalte + ",120)", "CONVERT(nvarchar(19),?,120)");
    default:
      return Gleich(Spalte, "?");
  }
}

}  // namespace

Feldart Feldart_aus_Odbc(SQLSMALLINT Typ, int &Bits) {
  Bits = 32;
  switch (Typ) {
    case SQL_BIT:
      return Feldart::Ja_Nein;
    case SQL_TINYINT:
    case SQL_SMALLINT:
      Bits = 16;
      return Feldart::Ganzzahl;
    case SQL_INTEGER:
      return Feldart::Ganzzahl;
    case SQL_BIGINT:
      Bits = 64;
      return Feldart::Ganzzahl;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC:
      return Feldart::Gleitkomma;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
    case SQL_DATETIME:
    case SQL_TIMESTAMP:
      return Feldart::Datum;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
      return Feldart::Binaer;
    default:
      return Feldart::Text;
  }
}

Feld Feld_aus_Katalog(const Odbc_Spalte &S) {
  const Servertyp typ = Typ_finden(S);
  Feld feld;
  feld.Name = feld.Ursprung = S.Name;
  feld.Geklammert = '[' + S.Name.toUtf8() + ']';
  feld.Art = typ.Art;
  feld.Bits = typ.Bits;
  feld.Autowert = S.Typname.contains(QLatin1String("identity"), Qt::CaseInsensitive);
  feld.Vorgabe = !S.Vorgabe.isEmpty();
  feld.Genau = typ.Genau;
  feld.Ab_Jahr = typ.Ab_Jahr;
  // nvarchar(max) is told to be of any size, or of none.
  if (typ.V == Vergleich::Buchstaben && S.Groesse <= Laengster_Text) feld.Laenge = S.Groesse;
  feld.Bestaendig = typ.V != Vergleich::Nie;
  feld.Unveraendert = Bedingung(feld.Geklammert, typ, S);
  return feld;
}

}  // namespace marklink::db
