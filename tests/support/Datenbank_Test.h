// A database in a temporary folder, in either dialect: derive a fixture, hand it tables, run it over both,
// and over the wire: the second dialect on the stand-in for SQL Server, whose database file is the same.
//
//   class Bestellungen_Test : public Datenbank_Test {};
//   MARKLINK_BEIDE_DIALEKTE(Bestellungen_Test);  // or MARKLINK_ALLE_BETRIEBSARTEN
//   TEST_P(Bestellungen_Test, ...) { anlegen({...}); ... }
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "db/DDL.h"
#include "db/Recordset.h"
#include "db/Verbindung.h"
#include "support/SqlServer_Attrappe.h"

/// How a failed comparison shows a text.
inline void PrintTo(const QString &Text, std::ostream *Strom) { *Strom << '"' << Text.toStdString() << '"'; }

namespace marklink::test {

/// A connection to the embedded file as any other program has one: none of our collations and functions.
class Rohe_Verbindung {
 public:
  explicit Rohe_Verbindung(const QString &Datei) {
    sqlite3_open_v2(QFile::encodeName(Datei).constData(), &Db_, SQLITE_OPEN_READWRITE, nullptr);
  }
  ~Rohe_Verbindung() { sqlite3_close_v2(Db_); }
  Rohe_Verbindung(const Rohe_Verbindung &) = delete;
  Rohe_Verbindung &operator=(const Rohe_Verbindung &) = delete;

  bool lauf(const char *Sql) { return sqlite3_exec(Db_, Sql, nullptr, nullptr, nullptr) == SQLITE_OK; }
  /// The rows as text, fields parted by "|", rows by "\n"; "fehler" when the statement fails.
  QString lesen(const char *Sql) {
    sqlite3_stmt *stmt = nullptr;
    if (sqlite3_prepare_v2(Db_, Sql, -1, &stmt, nullptr) != SQLITE_OK) return QStringLiteral("fehler");
    QStringList zeilen;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
      QStringList felder;
      for (int i = 0; i < sqlite3_column_count(stmt); ++i) {
        felder.append(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, i))));
      }
      zeilen.append(felder.join(u'|'));
    }
    sqlite3_finalize(stmt);
    return zeilen.join(u'\n');
  }

 private:
  sqlite3 *Db_ = nullptr;
};

enum class Betriebsart { Jet, SqlServer, Leitung };

class Datenbank_Test : public testing::TestWithParam<Betriebsart> {
 protected:
  Datenbank_Test() {
    datei = ordner.path() + QStringLiteral("/demo.mdb");
    if (GetParam() == Betriebsart::Jet)
      verbindung = QStringLiteral("Provider=SQLite;Data Source=") + datei +
                   QStringLiteral(";Jet OLEDB:Database Password=481902");
    if (GetParam() == Betriebsart::SqlServer)
      verbindung = QStringLiteral("Provider=SQLite;Data Source=") + ordner.path() +
                   QStringLiteral(";Initial Catalog=demo;Integrated Security=SSPI;Connect Timeout=30");
    if (GetParam() != Betriebsart::Leitung) return;
    server = std::make_unique<SqlServer_Attrappe>(datei);
    verbindung = server->Verbindungstext();
  }
  ~Datenbank_Test() override {
    db::Beobachter_setzen({});
    db::Fehler_einspeisen(0);
    db::Verbindungen_schliessen(verbindung);
  }

  void anlegen(const std::vector<db::Tabelle> &Tabellen) {
    ASSERT_TRUE(db::Datenbank_anlegen_mit(Tabellen, verbindung));
  }
  bool jet() const { return GetParam() == Betriebsart::Jet; }
  bool ueber_Leitung() const { return server != nullptr; }
  db::Zahl wahr() const { return db::Zahl(jet() ? -1 : 1); }
  /// As another program would; on the server, whose indexes no other engine may touch, by a statement.
  bool roh_lauf(const char *Sql) {
    if (!ueber_Leitung()) return Rohe_Verbindung(datei).lauf(Sql);
    return db::Ausfuehren(db::Anweisung(db::Teiltext{QString::fromUtf8(Sql)}, ""), verbindung);
  }
  QString roh(const char *Sql) { return Rohe_Verbindung(datei).lesen(Sql); }
  /// Collects every observed statement from now on.
  void beobachten() {
    gesehen.clear();
    db::Beobachter_setzen([this](const QString &Text) { gesehen.append(Text); });
  }

  QTemporaryDir ordner;
  std::unique_ptr<SqlServer_Attrappe> server;  ///< over the wire only
  QString datei, verbindung;
  QStringList gesehen;
};

inline std::string Betriebsname(const testing::TestParamInfo<Betriebsart> &Info) {
  const char *namen[] = {"Jet", "SqlServer", "Leitung"};
  return namen[static_cast<int>(Info.param)];
}

#define MARKLINK_BEIDE_DIALEKTE(Klasse)                                                          \
  INSTANTIATE_TEST_SUITE_P(                                                                      \
      Dialekt, Klasse,                                                                           \
      testing::Values(marklink::test::Betriebsart::Jet, marklink::test::Betriebsart::SqlServer), \
      marklink::test::Betriebsname)
#define MARKLINK_ALLE_BETRIEBSARTEN(Klasse)                                                     \
  INSTANTIATE_TEST_SUITE_P(                                                                     \
      Dialekt, Klasse,                                                                          \
      testing::Values(marklink::test::Betriebsart::Jet, marklink::test::Betriebsart::SqlServer, \
                      marklink::test::Betriebsart::Leitung),                                    \
      marklink::test::Betriebsname)

}  // namespace marklink::test
