// From the description of the tables to a database file.
//
// The file stays an ordinary one: only what every tool of this engine knows, so no collation of our own.
#include "DDL.h"

#include <sqlite3.h>

#include <QFile>
#include <QStringList>
#include <algorithm>

#include "Ablaufverfolgung.h"
#include "DDL_Teile.h"
#include "Treiber.h"

namespace marklink::db {

namespace {

QString Typ(const Spalte &S) {
  switch (S.Typ) {
    case Spaltentyp::Text:
      return QStringLiteral("VARCHAR(%1) COLLATE NOCASE").arg(S.Laenge);
    case Spaltentyp::Memo:
      return QStringLiteral("LONGTEXT COLLATE NOCASE");
    case Spaltentyp::Kurzzahl:
      return QStringLiteral("SMALLINT");
    case Spaltentyp::Ganzzahl:
      return QStringLiteral("INTEGER");
    case Spaltentyp::Gleitkomma:
      return QStringLiteral("DOUBLE");
    case Spaltentyp::Datum:
      return QStringLiteral("DATETIME");
    case Spaltentyp::Ja_Nein:
      return QStringLiteral("BOOLEAN DEFAULT 0");
    case Spaltentyp::Binaer:
      return QStringLiteral("BLOB");
    case Spaltentyp::Autowert:
      return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
  }
  return {};
}

bool Tabellen_anlegen(sqlite3 *Db, const std::vector<Tabelle> &Tabellen) {
  const auto lauf = [Db](const QString &Sql) {
    const bool gut = sqlite3_exec(Db, Sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!gut)
      Ablauf_melden(QStringLiteral("create"),
                    QString::fromUtf8(sqlite3_errmsg(Db)) + QStringLiteral(": ") + Sql);
    return gut;
  };
  if (!lauf(QStringLiteral("PRAGMA journal_mode = WAL")) || !lauf(QStringLiteral("BEGIN IMMEDIATE")))
    return false;
  for (const Tabelle &tabelle : Tabellen) {
    for (const QString &sql : DDL_bilden(tabelle)) {
      if (!lauf(sql)) return false;
    }
  }
  return lauf(QStringLiteral("COMMIT"));
}

}  // namespace

QString geklammert(const char *Name) { return u'[' + QString::fromUtf8(Name) + u']'; }

QString Namensliste(const std::vector<const char *> &Namen) {
  QStringList liste;
  for (const char *name : Namen) liste.append(geklammert(name));
  return liste.join(u',');
}

bool im_Schluessel(const Tabelle &T, const Spalte &S) {
  return std::any_of(T.Schluessel.begin(), T.Schluessel.end(),
                     [&](const char *name) { return qstricmp(name, S.Name) == 0; });
}

std::vector<QString> Tabelle_und_Indizes(const Tabelle &T, const QStringList &Spalten) {
  std::vector<QString> alle{
      QStringLiteral("CREATE TABLE %1 (%2)").arg(geklammert(T.Name), Spalten.join(u','))};
  int nummer = 0;
  for (const auto &index : T.Indizes) {
    alle.push_back(QStringLiteral("CREATE INDEX [%1_%2] ON [%1] (%3)")
                       .arg(QString::fromUtf8(T.Name))
                       .arg(++nummer)
                       .arg(Namensliste(index)));
  }
  return alle;
}

std::vector<QString> DDL_bilden(const Tabelle &T) {
  QStringList spalten;
  bool mit_Autowert = false;
  for (const Spalte &s : T.Spalten) {
    mit_Autowert = mit_Autowert || s.Typ == Spaltentyp::Autowert;
    const bool pflicht = s.Typ != Spaltentyp::Autowert && im_Schluessel(T, s);
    spalten.append(geklammert(s.Name) + u' ' + Typ(s) + (pflicht ? QStringLiteral(" NOT NULL") : QString()));
  }
  if (!T.Schluessel.empty() && !mit_Autowert) {
    spalten.append(QStringLiteral("PRIMARY KEY (") + Namensliste(T.Schluessel) + u')');
  }
  return Tabelle_und_Indizes(T, spalten);
}

bool Datenbank_anlegen_mit(const std::vector<Tabelle> &Tabellen, const QString &Verbindung) {
  const Verbindungsdaten daten = Verbindung_lesen(Verbindung);
  if (Treiber_waehlen(daten.Anbieter) == &ODBC_Treiber()) {
    return Tabellen_anlegen_SqlServer(Tabellen, daten).Wie == Serverausgang::Stand::Gut;
  }
  const QString datei = SQLite_Datei(daten);
  if (Treiber_waehlen(daten.Anbieter) != &SQLite_Treiber() || datei.isEmpty()) return false;
  QFile neu(datei);
  if (!neu.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
    Ablauf_melden(QStringLiteral("create"), neu.errorString() + QStringLiteral(": ") + datei);
    return false;
  }
  neu.close();
  sqlite3 *db = nullptr;
  const int rc = sqlite3_open_v2(QFile::encodeName(datei).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
  const bool gut = rc == SQLITE_OK && Tabellen_anlegen(db, Tabellen);
  sqlite3_close_v2(db);
  if (!gut) QFile::remove(datei);
  return gut;
}

}  // namespace marklink::db
