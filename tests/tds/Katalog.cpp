// The catalogue procedures.
#include "Katalog.h"

namespace marklink::tds {

namespace {

/// How a type shows in the catalogue; (max) columns show as what they were called of old.
struct Katalogtyp {
  int Odbc;
  const char *Name;
  int Genauigkeit, Laenge;
};

Katalogtyp Katalogtyp_von(const Typ &T, bool Odbc3) {
  constexpr int Unbegrenzt = 2147483647;
  static constexpr Katalogtyp Feste[] = {{-7, "bit", 1, 1},   {5, "smallint", 5, 2},
                                         {4, "int", 10, 4},   {-5, "bigint", 19, 8},
                                         {6, "float", 15, 8}, {93, "datetime", 23, 16}};
  const bool text = T.F == Form::Text;
  if (text && T.Laenge) return {-9, "nvarchar", T.Laenge, T.Laenge * 2};
  if (text) return {-10, "ntext", Unbegrenzt / 2, Unbegrenzt - 1};
  if (T.F == Form::Binaer && T.Laenge) return {-3, "varbinary", T.Laenge, T.Laenge};
  if (T.F == Form::Binaer) return {-4, "image", Unbegrenzt, Unbegrenzt};
  if (T.F == Form::Datum && !Odbc3) return {11, "datetime", 23, 16};
  return Feste[static_cast<std::size_t>(T.F)];
}

/// Types that share their place on the wire with another keep their names.
QString Typname(const QString &Deklaration, const Katalogtyp &K) {
  static const QStringList eigene =
      QStringLiteral(
          "text ntext image char nchar varchar real money smallmoney decimal numeric smalldatetime "
          "date datetime2 timestamp")
          .split(u' ');
  const QString name = Deklaration.section(u'(', 0, 0).toLower();
  return eigene.contains(name) ? name : QString::fromLatin1(K.Name);
}

/// "NAME" is text, "NAME:s" smallint, "NAME:i" int.
qint64 Senden(Antwort &A, const char *Beschreibung, const Zeilen &Alle) {
  std::vector<Spalte> spalten;
  for (const QString &teil : QString::fromLatin1(Beschreibung).split(u' ')) {
    const QString art = teil.section(u':', 1);
    const Typ typ = art.isEmpty() ? Typ{Form::Text, 254} : Typ{art == u"s" ? Form::Ganz16 : Form::Ganz32};
    spalten.push_back({teil.section(u':', 0, 0), typ});
  }
  A.Spalten(spalten);
  for (const auto &zeile : Alle) A.Zeile(spalten, zeile);
  return static_cast<qint64>(Alle.size());
}

QString Text_von(const Variablen &V, const char *Name, int Stelle) {
  const Wert w = V.value(QLatin1String(Name), V.value(QString::number(Stelle)));
  return w.Text();
}

/// A name pattern in which "_" and "%" were quoted, as one for LIKE; a missing one is any name.
Wert Muster(QString Text) {
  Text.replace(QStringLiteral("[_]"), QStringLiteral("_"))
      .replace(QStringLiteral("\\_"), QStringLiteral("_"));
  return Wert::aus(Text.isEmpty() ? QStringLiteral("%") : Text);
}

Wert Zahl(int z) { return Wert::aus(static_cast<qint64>(z)); }

qint64 Spalten_nennen(const Variablen &V, Maschine &M, Antwort &A) {
  const bool odbc3 = Text_von(V, "@odbcver", 6).toInt() == 3;
  const Zeilen roh = M.Fragen(
      "SELECT m.name, t.name, t.type, t.[notnull], t.dflt_value, t.cid + 1, m.sql LIKE '%AUTOINCREMENT%' AND "
      "t.pk = 1 "
      "FROM sqlite_master AS m, pragma_table_info(m.name) AS t WHERE m.type = 'table' AND m.name LIKE ?1 AND "
      "m.name NOT LIKE 'sqlite%' "
      "AND t.name LIKE ?2 ORDER BY m.name, t.cid",
      {Muster(Text_von(V, "@table_name", 1)), Muster(Text_von(V, "@column_name", 4))});
  Zeilen zeilen;
  for (const auto &r : roh) {
    const Typ typ = Typ_aus_Deklaration(r[2].Text());
    const Katalogtyp k = Katalogtyp_von(typ, odbc3);
    const bool pflicht = r[3].Ganz != 0 || r[6].Ganz != 0;
    const bool zahl = typ.F != Form::Text && typ.F != Form::Binaer && typ.F != Form::Datum;
    const QString name = Typname(r[2].Text(), k) + (r[6].Ganz ? QStringLiteral(" identity") : QString());
    const bool bytes = typ.F == Form::Text || typ.F == Form::Binaer;
    const QStringList masse =
        r[2].Text().section(u'(', 1).chopped(r[2].Text().contains(u'(') ? 1 : 0).split(u',');
    const bool dezimal = masse.size() == 2;  // decimal(10,2)
    zeilen.push_back({Wert::aus(M.Katalog), Wert::aus(QStringLiteral("dbo")), r[0], r[1], Zahl(k.Odbc),
                      Wert::aus(name), Zahl(dezimal ? masse[0].toInt() : k.Genauigkeit), Zahl(k.Laenge),
                      typ.F == Form::Datum ? Zahl(3)
                      : zahl               ? Zahl(dezimal ? masse[1].toInt() : 0)
                                           : Wert(),
                      zahl ? Zahl(10) : Wert(), Zahl(pflicht ? 0 : 1), Wert(), r[4],
                      typ.F == Form::Datum ? Zahl(9) : Zahl(k.Odbc), typ.F == Form::Datum ? Zahl(3) : Wert(),
                      bytes ? Zahl(k.Laenge) : Wert(), r[5],
                      Wert::aus(pflicht ? QStringLiteral("NO") : QStringLiteral("YES")), Zahl(0)});
  }
  return Senden(
      A,
      "TABLE_QUALIFIER TABLE_OWNER TABLE_NAME COLUMN_NAME DATA_TYPE:s TYPE_NAME PRECISION:i LENGTH:i SCALE:s "
      "RADIX:s NULLABLE:s REMARKS COLUMN_DEF SQL_DATA_TYPE:s SQL_DATETIME_SUB:s CHAR_OCTET_LENGTH:i "
      "ORDINAL_POSITION:i IS_NULLABLE SS_DATA_TYPE:s",
      zeilen);
}

qint64 Kennzeichnende_nennen(const Variablen &V, Maschine &M, Antwort &A) {
  const Zeilen roh = M.Fragen("SELECT name, type FROM pragma_table_info(?1) WHERE pk > 0 ORDER BY pk",
                              {Wert::aus(Text_von(V, "@table_name", 1))});
  Zeilen zeilen;
  for (const auto &r : roh) {
    const Katalogtyp k = Katalogtyp_von(Typ_aus_Deklaration(r[1].Text()), true);
    zeilen.push_back({Zahl(1), r[0], Zahl(k.Odbc), Wert::aus(QString::fromLatin1(k.Name)),
                      Zahl(k.Genauigkeit), Zahl(k.Laenge), Wert(), Zahl(1)});
  }
  return Senden(A, "SCOPE:s COLUMN_NAME DATA_TYPE:s TYPE_NAME PRECISION:i LENGTH:i SCALE:s PSEUDO_COLUMN:s",
                zeilen);
}

}  // namespace

bool Katalog_ausfuehren(const QString &Prozedur, const Variablen &V, Maschine &M, Antwort &A,
                        qint64 &Anzahl) {
  const Wert tabelle = Wert::aus(Text_von(V, "@table_name", 1));
  const Wert katalog = Wert::aus(M.Katalog);
  if (Prozedur == u"sp_columns") {
    Anzahl = Spalten_nennen(V, M, A);
  } else if (Prozedur == u"sp_special_columns") {
    Anzahl = Kennzeichnende_nennen(V, M, A);
  } else if (Prozedur == u"sp_tables") {
    Anzahl = Senden(
        A, "TABLE_QUALIFIER TABLE_OWNER TABLE_NAME TABLE_TYPE REMARKS",
        M.Fragen(
            "SELECT ?2, 'dbo', name, upper(type), NULL FROM sqlite_master WHERE type IN ('table','view') "
            "AND name NOT LIKE 'sqlite%' AND name LIKE ?1 ORDER BY type, name",
            {Muster(tabelle.Text()), katalog}));
  } else if (Prozedur == u"sp_pkeys") {
    Anzahl = Senden(
        A, "TABLE_QUALIFIER TABLE_OWNER TABLE_NAME COLUMN_NAME KEY_SEQ:s PK_NAME",
        M.Fragen("SELECT ?2, 'dbo', m.name, t.name, t.pk, 'PK_' || m.name FROM sqlite_master AS m, "
                 "pragma_table_info(m.name) AS t WHERE m.type = 'table' AND m.name = ?1 COLLATE NOCASE "
                 "AND t.pk > 0 ORDER BY t.pk",
                 {tabelle, katalog}));
  } else if (Prozedur == u"sp_statistics") {
    Anzahl = Senden(
        A,
        "TABLE_QUALIFIER TABLE_OWNER TABLE_NAME NON_UNIQUE:s INDEX_QUALIFIER INDEX_NAME TYPE:s "
        "SEQ_IN_INDEX:s COLUMN_NAME COLLATION CARDINALITY:i PAGES:i FILTER_CONDITION",
        M.Fragen("SELECT ?2, 'dbo', m.name, 1 - l.[unique], m.name, l.name, 3, i.seqno + 1, i.name, 'A', "
                 "NULL, NULL, NULL FROM sqlite_master AS m, pragma_index_list(m.name) AS l, "
                 "pragma_index_info(l.name) AS i WHERE m.type = 'table' AND m.name = ?1 COLLATE NOCASE "
                 "ORDER BY 4, 6, 8",
                 {tabelle, katalog}));
  } else {
    return false;
  }
  return true;
}

}  // namespace marklink::tds
