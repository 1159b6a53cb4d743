// The stand-in for SQL Server as FreeTDS's ODBC driver sees it. How it fails and falls silent is in
// db/Leitung_Test.cpp, as a client sees it.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "Odbc.h"
#include "support/Datenbank_Test.h"
#include "support/SqlServer_Attrappe.h"

namespace marklink::test {
namespace {

class Tds_Test : public testing::Test {
 protected:
  Tds_Test() : server(ordner.path() + QStringLiteral("/demo.mdb")) {}
  void anlegen(Odbc &Odbc_) {
    ASSERT_TRUE(Odbc_.Verbunden()) << Odbc_.Fehler().toStdString();
    ASSERT_TRUE(Odbc_.lauf(QStringLiteral(
        "CREATE TABLE [dbo].[Waren] ([Nr] int IDENTITY(1,1) NOT NULL, [Name] nvarchar(30) NULL, [Preis] "
        "float NULL, "
        "[Wann] datetime NULL, [Aktiv] bit NOT NULL DEFAULT 0, [Kurz] smallint, [Lang] bigint, "
        "[Text] nvarchar(max), [Bild] varbinary(max), CONSTRAINT [PK_Waren] PRIMARY KEY ([Nr]))")))
        << Odbc_.Fehler().toStdString();
    ASSERT_TRUE(Odbc_.lauf(QStringLiteral("CREATE UNIQUE INDEX [Waren_1] ON [Waren] ([Name])")));
  }

  QTemporaryDir ordner;
  SqlServer_Attrappe server;
};

template <typename T>
QByteArray Roh(const T &Wert) {
  return {reinterpret_cast<const char *>(&Wert), sizeof Wert};
}

Parameter Gleit(double z) { return {SQL_C_DOUBLE, SQL_DOUBLE, Roh(z)}; }
Parameter Ganz(qint32 z) { return {SQL_C_SLONG, SQL_INTEGER, Roh(z)}; }
Parameter Zeit() {
  return {SQL_C_TYPE_TIMESTAMP,
          SQL_TYPE_TIMESTAMP,
          Roh(SQL_TIMESTAMP_STRUCT{2024, 3, 5, 12, 30, 59, 0}),
          false,
          23,
          3};
}

TEST_F(Tds_Test, Werte_kommen_an_und_zurueck) {
  Odbc o(server.Port());
  anlegen(o);
  const QString zeichen = QString::fromUtf8("Größe € Łódź \xF0\x9F\x98\x80 'x'");
  const QString lang = QString(9000, u'ä') + u'€';
  const QByteArray bild(3 << 20, '\x9C');
  ASSERT_TRUE(
      o.lauf(QStringLiteral("INSERT INTO [Waren] ([Name],[Preis],[Wann],[Aktiv],[Kurz],[Lang],[Text],[Bild]) "
                            "VALUES (?,?,?,?,?,?,?,?)"),
             {Textwert(zeichen),
              Gleit(-1234.5678),
              Zeit(),
              {SQL_C_BIT, SQL_BIT, QByteArray(1, '\1')},
              {SQL_C_SSHORT, SQL_SMALLINT, Roh(qint16(-7))},
              {SQL_C_SBIGINT, SQL_BIGINT, Roh(qint64(1) << 40)},
              {SQL_C_WCHAR, SQL_WLONGVARCHAR, Textwert(lang).Bytes},
              {SQL_C_BINARY, SQL_LONGVARBINARY, bild}}))
      << o.Fehler().toStdString();
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT [Name],[Preis],[Wann],[Aktiv],[Kurz],[Lang],[Bild] FROM [Waren]")),
            zeichen + QStringLiteral("|-1234.5678|2024-03-05 12:30:59.000|1|-7|1099511627776|3145728 bytes"));
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT [Text] FROM Waren WHERE Nr = 1")), lang);
  Parameter ohne = Textwert({});
  ohne.Null = true;
  Parameter ohne_Zahl = Gleit(0), ohne_Zeit = Zeit();
  ohne_Zahl.Null = ohne_Zeit.Null = true;
  ASSERT_TRUE(o.lauf(QStringLiteral("INSERT INTO Waren (Name,Text,Preis,Wann) VALUES (?,?,?,?)"),
                     {ohne, Textwert({}), ohne_Zahl, ohne_Zeit}));
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT Name, Text, Preis, Wann, Aktiv, Bild FROM Waren WHERE Nr = 2")),
            QStringLiteral("NULL||NULL|NULL|0|NULL"));
}

TEST_F(Tds_Test, Vergleiche_sehen_nicht_auf_Gross_und_Klein) {
  Odbc o(server.Port());
  anlegen(o);
  ASSERT_TRUE(o.lauf(QStringLiteral("INSERT INTO Waren (Name) VALUES ('Möhre')")));
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT Name FROM Waren WHERE Name = N'MÖHRE '")),
            QStringLiteral("Möhre"));
  EXPECT_EQ(
      o.lesen(QStringLiteral("SELECT Name FROM Waren WHERE Name = ?"), {Textwert(QStringLiteral("möhre"))}),
      QStringLiteral("Möhre"));
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT COUNT(*) FROM Waren WHERE Name COLLATE Latin1_General_BIN2 = ?"),
                    {Textwert(QStringLiteral("möhre"))}),
            QStringLiteral("0"));
}

TEST_F(Tds_Test, Anweisungen_des_Servers) {
  Odbc o(server.Port());
  anlegen(o);
  const QString neu =
      QStringLiteral("INSERT INTO Waren (Name, Text) VALUES (?, 'gleich'); SELECT SCOPE_IDENTITY()");
  for (const char *nummer : {"1", "2", "3"}) {
    EXPECT_EQ(o.lesen(neu, {Textwert(QString::fromLatin1(nummer))}), QString::fromLatin1(nummer));
  }
  const struct {
    const char *Sql, *Zeilen;
  } faelle[] = {
      {"SELECT TOP (2) Name FROM dbo.Waren WITH (NOLOCK) ORDER BY Nr DESC", "3\n2"},
      {"UPDATE TOP (1) [demo].[dbo].[Waren] SET Kurz = 7 WHERE Text = 'GLEICH'; SELECT SUM(Kurz) FROM Waren",
       "7"},
      {"DELETE TOP (1) FROM Waren WHERE EXISTS (SELECT Kurz INTERSECT SELECT NULL); SELECT COUNT(*) FROM "
       "Waren",
       "2"},
      {"SET NOCOUNT ON BEGIN TRAN DELETE FROM Waren SELECT @@TRANCOUNT ROLLBACK", "1"},
      {"SELECT ISNULL(Kurz, 0), LEN(Text + 'x'), UPPER(N'ä') /* ; */ FROM Waren WHERE Nr = 1 -- ;", "7|7|Ä"},
      {"SELECT CONVERT(datetime, '2024-03-05 00:00:00', 120), 0x0aFF", "2024-03-05 00:00:00|0aff"}};
  for (const auto &fall : faelle) {
    QString zeilen;
    ASSERT_TRUE(o.lauf(QString::fromUtf8(fall.Sql))) << fall.Sql << o.Fehler().toStdString();
    SQLSMALLINT spalten = 0;
    while (SQL_SUCCEEDED(SQLNumResultCols(o.Stmt(), &spalten)) && spalten == 0 &&
           SQL_SUCCEEDED(SQLMoreResults(o.Stmt()))) {
    }
    EXPECT_EQ(o.Zeilen(), QString::fromUtf8(fall.Zeilen)) << fall.Sql;
  }
}

TEST_F(Tds_Test, Transaktionen) {
  Odbc a(server.Port()), b(server.Port());
  anlegen(a);
  const QString einfuegen = QStringLiteral("INSERT INTO Waren (Name) VALUES (?)");
  const QString zaehlen = QStringLiteral("SELECT COUNT(*) FROM Waren");
  ASSERT_TRUE(a.Selbst_abschliessen(false));
  ASSERT_TRUE(a.lauf(einfuegen, {Textwert(QStringLiteral("eins"))}));
  EXPECT_EQ(b.lesen(zaehlen), QStringLiteral("0"));
  ASSERT_TRUE(a.Abschliessen(true));
  EXPECT_EQ(b.lesen(zaehlen), QStringLiteral("1"));
  ASSERT_TRUE(a.lauf(einfuegen, {Textwert(QStringLiteral("zwei"))}));
  EXPECT_EQ(a.lesen(zaehlen), QStringLiteral("2"));
  ASSERT_TRUE(a.Abschliessen(false));
  EXPECT_EQ(a.lesen(zaehlen), QStringLiteral("1"));
  ASSERT_TRUE(a.lauf(einfuegen, {Textwert(QStringLiteral("drei"))}));
  EXPECT_FALSE(a.lauf(einfuegen, {Textwert(QStringLiteral("EINS"))}));  // refused, and the rest stays
  ASSERT_TRUE(a.Abschliessen(true));
  EXPECT_EQ(b.lesen(zaehlen), QStringLiteral("2"));
  ASSERT_TRUE(a.lauf(einfuegen, {Textwert(QStringLiteral("vier"))}));
  server.Alle_trennen();
  EXPECT_FALSE(a.Abschliessen(true));
  EXPECT_EQ(Odbc(server.Port()).lesen(zaehlen), QStringLiteral("2"));
}

TEST_F(Tds_Test, Fehler_nennen_Nummer_und_Wortlaut) {
  Odbc o(server.Port());
  anlegen(o);
  ASSERT_TRUE(o.lauf(QStringLiteral("INSERT INTO Waren (Name) VALUES ('da')")));
  const struct {
    const char *Sql;
    QList<Parameter> Werte;
    const char *Fehler;
  } faelle[] = {
      {"SELECT * FROM Fehlt", {}, "42S02 208 [FreeTDS][SQL Server]Invalid object name 'Fehlt'."},
      {"SELECT Fehlt FROM Waren", {}, "42S22 207 [FreeTDS][SQL Server]Invalid column name 'Fehlt'."},
      {"SELECT FROM WHERE", {}, "42000 102 [FreeTDS][SQL Server]Incorrect syntax near 'FROM'."},
      {"SELECT Name AS Key FROM Waren", {}, "42000 102 [FreeTDS][SQL Server]Incorrect syntax near 'Key'."},
      {"SELECT Name FROM Waren WHERE IsNull(Name)",
       {},
       "42000 102 [FreeTDS][SQL Server]Incorrect syntax near 'IsNull'."},
      {"UPDATE Fehlt SET Name = ?", {Ganz(1)}, "42S02 208 [FreeTDS][SQL Server]Invalid object name 'Fehlt'."},
      {"INSERT INTO Waren (Name) VALUES (?)",
       {Textwert(QString(31, u'x'))},
       "22001 8152 [FreeTDS][SQL Server]String or binary data would be truncated."},
      {"INSERT INTO Waren (Name) VALUES (?)",
       {Textwert(QStringLiteral("DA"))},
       "23000 2601 [FreeTDS][SQL Server]Cannot insert duplicate key row in object 'dbo.Waren' with unique "
       "index."},
      {"INSERT INTO Waren (Kurz) VALUES (?)",
       {Ganz(40000)},
       "HY019 8115 [FreeTDS][SQL Server]Arithmetic overflow error converting expression to data type int."},
      {"UPDATE Waren SET Wann = 'morgen'",
       {},
       "22007 241 [FreeTDS][SQL Server]Conversion failed when converting date and/or time from character "
       "string."}};
  for (const auto &fall : faelle) {
    EXPECT_FALSE(o.lauf(QString::fromUtf8(fall.Sql), fall.Werte)) << fall.Sql;
    EXPECT_EQ(o.Fehler(), QString::fromUtf8(fall.Fehler));
  }
  server.Stellen("fehlernummer", 1205);
  server.Stellen("fehler", 2);
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT COUNT(*) FROM Waren")), QStringLiteral("1"));
  EXPECT_TRUE(o.lesen(QStringLiteral("SELECT Nr FROM Waren")).contains(QStringLiteral(" 1205 ")));
  EXPECT_EQ(o.lesen(QStringLiteral("SELECT Nr FROM Waren")), QStringLiteral("1"));
}

TEST_F(Tds_Test, Katalog) {
  Odbc o(server.Port());
  anlegen(o);
  ASSERT_TRUE(
      o.lauf(QStringLiteral("CREATE TABLE Preise (Nr int NOT NULL, Land nvarchar(50) NOT NULL, Preis float, "
                            "PRIMARY KEY (Nr, Land))")));
  SQLFreeStmt(o.Stmt(), SQL_CLOSE);
  auto *preise = reinterpret_cast<SQLCHAR *>(const_cast<char *>("Preise"));
  auto *waren = reinterpret_cast<SQLCHAR *>(const_cast<char *>("Waren"));
  const auto gut = [&](SQLRETURN rc) { return o.pruefen(rc, SQL_HANDLE_STMT, o.Stmt()); };
  ASSERT_TRUE(gut(SQLPrimaryKeys(o.Stmt(), nullptr, 0, nullptr, 0, preise, SQL_NTS)))
      << o.Fehler().toStdString();
  EXPECT_EQ(o.Zeilen({3, 4, 5}), QStringLiteral("Preise|Nr|1\nPreise|Land|2"));
  SQLFreeStmt(o.Stmt(), SQL_CLOSE);
  ASSERT_TRUE(gut(SQLColumns(o.Stmt(), nullptr, 0, nullptr, 0, waren, SQL_NTS, nullptr, 0)))
      << o.Fehler().toStdString();
  EXPECT_EQ(o.Zeilen({4, 5, 6, 7, 11}),
            QStringLiteral(
                "Nr|4|int identity|10|0\nName|-9|nvarchar|30|1\nPreis|6|float|15|1\nWann|93|datetime|23|1\n"
                "Aktiv|-7|bit|1|0\nKurz|5|smallint|5|1\nLang|-5|bigint|19|1\nText|-10|ntext|1073741823|1\n"
                "Bild|-4|image|2147483647|1"));
  SQLFreeStmt(o.Stmt(), SQL_CLOSE);
  ASSERT_TRUE(gut(SQLSpecialColumns(o.Stmt(), SQL_BEST_ROWID, nullptr, 0, nullptr, 0, preise, SQL_NTS,
                                    SQL_SCOPE_CURROW, SQL_NULLABLE)));
  EXPECT_EQ(o.Zeilen({2}), QStringLiteral("Nr\nLand"));
  SQLFreeStmt(o.Stmt(), SQL_CLOSE);
  ASSERT_TRUE(gut(SQLStatistics(o.Stmt(), nullptr, 0, nullptr, 0, waren, SQL_NTS, SQL_INDEX_ALL, SQL_QUICK)));
  EXPECT_EQ(o.Zeilen({4, 6, 9}), QStringLiteral("0|Waren_1|Name"));
  SQLFreeStmt(o.Stmt(), SQL_CLOSE);
  ASSERT_TRUE(gut(SQLTables(o.Stmt(), nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0)));
  EXPECT_EQ(o.Zeilen({3, 4}), QStringLiteral("Preise|TABLE\nWaren|TABLE"));
}

}  // namespace
}  // namespace marklink::test
