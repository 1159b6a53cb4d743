// Joining statements, and what becomes of them for the embedded engine.
#include <gtest/gtest.h>

#include <optional>

#include "db/Dialekt.h"
#include "support/Datenbank_Test.h"

namespace marklink::db {
namespace {

QString uebersetzt(const Anweisung &Sql, Dialekt D) {
  const auto u = Fuer_SQLite_uebersetzen(Sql, D);
  if (!u) return QStringLiteral("nichts");
  QString text = u->Sql;
  for (const auto &wert : u->Werte) text += u'|' + wert.Text;
  return text;
}

TEST(Anweisung, verbindet_Literale_und_Werte) {
  const Anweisung a("SELECT * FROM ", Name{QStringLiteral("Forms")},
                    " WHERE Type = ", Wert{QStringLiteral("Auftrag")}, " AND N = ", Zahl(-1), " AND P IN (",
                    Werteliste{{QStringLiteral("1"), QStringLiteral("3")}}, ")");
  EXPECT_TRUE(a.Gueltig());
  EXPECT_EQ(a.Text(),
            QStringLiteral("SELECT * FROM Forms WHERE Type = 'Auftrag' AND N = -1 AND P IN ('1','3')"));
  const Anweisung b("SELECT * FROM Forms WHERE Type = ", Wert{QStringLiteral("Rechnung")},
                    " AND N = ", Zahl(2), " AND P IN (",
                    Werteliste{{QStringLiteral("4"), QStringLiteral("5")}}, ")");
  EXPECT_EQ(a.Schluessel(), b.Schluessel());
}

TEST(Anweisung, Zahlen_haben_einen_Punkt_und_lesen_sich_zurueck) {
  for (const double zahl : {0.0, 0.1, -12.5, 1e15, 123456.789, 1e300, 5e-324, 1.0 / 3.0}) {
    EXPECT_EQ(Zahl(zahl).Text.toDouble(), zahl);
    EXPECT_FALSE(Zahl(zahl).Text.contains(u','));
  }
  EXPECT_EQ(Zahl(100000.0).Text, QStringLiteral("100000"));
}

TEST(Anweisung, wird_ungueltig_statt_ihren_Sinn_zu_aendern) {
  const auto wert = [](const char *Text) { return Anweisung("SELECT ", Wert{QString::fromUtf8(Text)}); };
  const auto name = [](const char *Text) { return Anweisung("SELECT ", Name{QString::fromUtf8(Text)}); };
  const auto teil = [](const char *Text) { return Anweisung("SELECT ", Teiltext{QString::fromUtf8(Text)}); };
  EXPECT_FALSE(wert("O'Neill").Gueltig());
  EXPECT_FALSE(wert("''").Gueltig());
  EXPECT_FALSE(Anweisung("SELECT ", Wert{QString(QChar(u'\0'))}).Gueltig());
  EXPECT_TRUE(wert("a; -- \" [ # \\ % /*").Gueltig());
  EXPECT_FALSE(Anweisung("SELECT ", Werteliste{}).Gueltig());
  EXPECT_FALSE(Anweisung("SELECT ", Zahl(std::numeric_limits<double>::quiet_NaN())).Gueltig());
  for (const char *gut : {"Orders", "Orders.OrderID", "[Group]", "[T].[ID]", "Größe"})
    EXPECT_TRUE(name(gut).Gueltig()) << gut;
  for (const char *schlecht : {"", "a b", "a;b", "a.b.c", "[a", "a]", "a'", "x--", "[a]]"})
    EXPECT_FALSE(name(schlecht).Gueltig()) << schlecht;
  EXPECT_TRUE(teil("[Date] BETWEEN CONVERT(datetime, '2024-01-01', 120) AND 5 - 2").Gueltig());
  for (const char *schlecht : {"1; DROP", "1 -- x", "1 /* x", "'offen", "[offen", "#1/1/2024", "\"x\""})
    EXPECT_FALSE(teil(schlecht).Gueltig()) << schlecht;
  Anweisung summe("SELECT 1");
  summe += wert("'");
  EXPECT_FALSE(summe.Gueltig());
}

TEST(Dialekt, uebersetzt_beide_Mundarten) {
  struct Fall {
    const char *Sql, *Jet, *SqlServer;
  };
  const char *gleich = nullptr;  // the same in both
  const Fall tafel[] = {
      {"SELECT * FROM Orders", "SELECT * FROM Orders", gleich},
      {"SELECT [Group], T.[ID] FROM [easylog_produkte$];",
       "SELECT [Group] , T . [ID] FROM [easylog_produkte$]", gleich},
      {"SELECT TOP 1 * FROM P ORDER BY A DESC, B",
       "SELECT * FROM P ORDER BY A COLLATE MARKLINK DESC , B COLLATE MARKLINK LIMIT ?1|1", gleich},
      {"SELECT * FROM O WHERE IsNull(A.B) = True", "SELECT * FROM O WHERE ( - ( ( A . B ) IS NULL ) ) = -1",
       "SELECT * FROM O WHERE ( - ( ( A . B ) IS NULL ) ) = [True]"},
      {"SELECT * FROM O WHERE IsNull(A) = False", "SELECT * FROM O WHERE ( - ( ( A ) IS NULL ) ) = 0",
       "SELECT * FROM O WHERE ( - ( ( A ) IS NULL ) ) = [False]"},
      {"SELECT IsNull(A, 0) FROM O", "SELECT IFNULL ( A , 0 ) FROM O", gleich},
      {"DELETE * FROM O", "DELETE FROM O", "DELETE * FROM O"},
      {"SELECT * FROM O WHERE [Date] BETWEEN #1/31/2024 00:00:00# AND #12/31/2024 23:59:59#",
       "SELECT * FROM O WHERE [Date] BETWEEN ?1 AND ?2|2024-01-31 00:00:00|2024-12-31 23:59:59", "nichts"},
      {"SELECT * FROM O WHERE D = CONVERT(datetime, '2024-01-31 00:00:00', 120)",
       "SELECT * FROM O WHERE D = CONVERT ( datetime , ?1 , 120 )|2024-01-31 00:00:00",
       "SELECT * FROM O WHERE D = ?1|2024-01-31 00:00:00"},
      {"SELECT * FROM O WHERE A = 'Müller'", "SELECT * FROM O WHERE A IN ( ?1 , ?2 )|Müller|MÜller", gleich},
      {"SELECT * FROM O WHERE A <> 'ä'", "SELECT * FROM O WHERE A NOT IN ( ?1 , ?2 )|ä|Ä", gleich},
      {"SELECT * FROM O WHERE A = 'Straße'", "SELECT * FROM O WHERE A = ?1|Straße", gleich},
      {"SELECT * FROM O WHERE A = 'äöüéè'", "SELECT * FROM O WHERE A = ?1 COLLATE MARKLINK|äöüéè", gleich},
      {"SELECT * FROM O WHERE A NOT IN ('1','ä')", "SELECT * FROM O WHERE A NOT IN ( ?1 , ?2 , ?3 )|1|ä|Ä",
       gleich},
      {"SELECT * FROM O WHERE A NOT IN ('äöüéè')",
       "SELECT * FROM O WHERE A COLLATE MARKLINK NOT IN ( ?1 )|äöüéè", gleich},
      {"SELECT * FROM O WHERE A >= 'x' AND B BETWEEN 'a' AND 'b'",
       "SELECT * FROM O WHERE A >= ?1 COLLATE MARKLINK AND B BETWEEN ?2 COLLATE MARKLINK AND ?3 COLLATE "
       "MARKLINK|x|a|b",
       gleich},
      {"SELECT * FROM O WHERE A IN (SELECT B FROM P WHERE C LIKE 'Ä%' AND D IN ('ä'))",
       "SELECT * FROM O WHERE A IN ( SELECT B FROM P WHERE C LIKE ?1 AND D IN ( ?2 , ?3 ) )|Ä%|ä|Ä", gleich},
      {"SELECT * FROM O WHERE A NOT IN (SELECT B FROM P WHERE C LIKE 'äöüéè%')",
       "SELECT * FROM O WHERE A NOT IN ( SELECT B FROM P WHERE C LIKE ?1 )|äöüéè%", gleich},
      {"SELECT * FROM O WHERE 'ä' = A AND 'a' <> B AND 'a' < C",
       "SELECT * FROM O WHERE ?1 COLLATE MARKLINK = A AND ?2 <> B AND ?3 COLLATE MARKLINK < C|ä|a|a", gleich},
      {"UPDATE O SET A = 'ä' WHERE B = 'ä'", "UPDATE O SET A = ?1 WHERE B IN ( ?2 , ?3 )|ä|ä|Ä", gleich},
      {"SELECT IIf(A = 1, 'x', 'y') FROM O", "SELECT IIf ( A = 1 , ?1 , ?2 ) FROM O|x|y", gleich},
      {"SELECT A & 'x' FROM O", "SELECT A || ?1 FROM O|x", "SELECT A & ?1 FROM O|x"},
      {"SELECT A FROM O WHERE B IN (SELECT TOP 2 B FROM P ORDER BY B) ORDER BY A",
       "SELECT A FROM O WHERE B IN ( SELECT B FROM P ORDER BY B COLLATE MARKLINK LIMIT ?1 ) ORDER BY A "
       "COLLATE MARKLINK|2",
       gleich},
      {"SELECT A.X, SUM(W.D) AS D FROM A LEFT JOIN (W INNER JOIN V ON (W.I = V.I)) ON A.X = W.X GROUP BY A.X "
       "ORDER BY A.X",
       "SELECT A . X , SUM ( W . D ) AS D FROM A LEFT JOIN ( W INNER JOIN V ON ( W . I = V . I ) ) ON A . X "
       "= W . X GROUP BY A . X ORDER BY A . X COLLATE MARKLINK",
       gleich},
      // No statement at all:
      {"", "nichts", gleich},
      {"SELECT 1; DROP TABLE O", "nichts", gleich},
      {"SELECT 1 -- x", "nichts", gleich},
      {"SELECT /* x */ 1", "nichts", gleich},
      {"SELECT \"NoSuch\" FROM O", "nichts", gleich},
      {"SELECT 'offen", "nichts", gleich},
      {"SELECT [offen FROM O", "nichts", gleich},
      {"SELECT ?1 FROM O", "nichts", gleich},
      {"SELECT :a, @b, $c FROM O", "nichts", gleich},
      {"SELECT (1", "nichts", gleich},
      {"SELECT 1)", "nichts", gleich},
      {"SELECT #13/41/2024# FROM O", "nichts", gleich},
      {"SELECT CONVERT(datetime, '', 120)", "SELECT CONVERT ( datetime , ?1 , 120 )|", "nichts"},
  };
  for (const Fall &f : tafel) {
    // A literal of the program, not a part made at run time.
    char puffer[512] = {};
    qstrncpy(puffer, f.Sql, sizeof puffer);
    const Anweisung anweisung(puffer);
    EXPECT_EQ(uebersetzt(anweisung, Dialekt::Jet), QString::fromUtf8(f.Jet)) << f.Sql;
    EXPECT_EQ(uebersetzt(anweisung, Dialekt::SqlServer), QString::fromUtf8(f.SqlServer ? f.SqlServer : f.Jet))
        << f.Sql;
  }
}

TEST(Dialekt, laesst_die_uebrigen_Werte_als_Werte) {
  // What would be an end, a comment or a parameter in a literal is nothing in a value.
  const QString boese = QStringLiteral("x; DROP TABLE O -- /* ?1 \" [ #");
  const auto u = Fuer_SQLite_uebersetzen({"SELECT * FROM O WHERE A = ", Wert{boese}, " AND B = ", Zahl(5)},
                                         Dialekt::Jet);
  ASSERT_TRUE(u);
  EXPECT_EQ(u->Sql, QStringLiteral("SELECT * FROM O WHERE A = ?1 AND B = ?2"));
  EXPECT_EQ(u->Werte[0].Text, boese);
  EXPECT_EQ(u->Herkunft, (std::vector<int>{1, 3}));
}

}  // namespace
}  // namespace marklink::db
