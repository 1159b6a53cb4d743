// The embedded engine: SQLite through its C interface.
#include <sqlite3.h>
#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <map>

#include "SQLite_Anweisungen.h"
#include "Textvergleich_Utf8.h"
#include "Treiber.h"

namespace marklink::db {

namespace {

constexpr int Wartezeit_ms = 2000;

struct Dateikennung {
  dev_t Geraet = 0;
  ino_t Knoten = 0;
  bool operator==(const Dateikennung &) const = default;
};

bool Kennung_lesen(const QByteArray &Datei, Dateikennung &Kennung) {
  struct stat daten {};
  if (::stat(Datei.constData(), &daten) != 0) return false;
  Kennung = {daten.st_dev, daten.st_ino};
  return true;
}

int Sortierung(void *, int LaengeA, const void *A, int LaengeB, const void *B) {
  return Utf8_vergleichen({static_cast<const char *>(A), LaengeA}, {static_cast<const char *>(B), LaengeB});
}

void Aehnlichkeit(sqlite3_context *Umgebung, int, sqlite3_value **Werte) {
  // like(pattern, text)
  if (sqlite3_value_type(Werte[0]) == SQLITE_NULL || sqlite3_value_type(Werte[1]) == SQLITE_NULL) return;
  const auto bytes = [](sqlite3_value *Wert) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(Wert));
    return Utf8{text, text ? sqlite3_value_bytes(Wert) : 0};
  };
  sqlite3_result_int(Umgebung, Utf8_aehnlich(bytes(Werte[1]), bytes(Werte[0])) ? 1 : 0);
}

/// Whether waiting for a file's lock was in vain; then nobody waits for it again before it was free once.
/// Apart for reading and writing, since a writer elsewhere does not hinder readers.
struct Sperre {
  bool beim_Lesen = false;
  bool beim_Schreiben = false;
};

Sperre &Sperre_von(const QByteArray &Datei) {
  static std::map<QByteArray, Sperre> alle;
  return alle[Datei];
}

class SQLite_Sitzung final : public Sitzung {
 public:
  SQLite_Sitzung(sqlite3 *Db, QByteArray Datei, Dialekt D)
      : Db_(Db), Datei_(std::move(Datei)), Sperre_(Sperre_von(Datei_)), Anweisungen_(Db, D) {
    Kennung_lesen(Datei_, Kennung_);
    sqlite3_extended_result_codes(Db_, 0);
    sqlite3_db_config(Db_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(Db_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_create_collation(Db_, "MARKLINK", SQLITE_UTF8, nullptr, Sortierung);
    sqlite3_create_function(Db_, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, Aehnlichkeit,
                            nullptr, nullptr);
  }
  ~SQLite_Sitzung() override {
    Anweisungen_.leeren();
    sqlite3_close_v2(Db_);
  }

  bool Einrichten();
  int Grund() const { return Grund_; }
  bool Brauchbar() override {
    Dateikennung jetzt;
    return !Verdorben_ && Kennung_lesen(Datei_, jetzt) && jetzt == Kennung_;
  }
  std::shared_ptr<const Spaltensatz> Beschreiben(const Anweisung &Sql) override;
  bool Lesen(const Anweisung &Sql, Ergebnis &Ziel) override;
  bool Beginnen() override { return Kurz("BEGIN IMMEDIATE"); }
  bool Abschliessen() override { return Kurz("COMMIT"); }
  void Verwerfen() override {
    if (sqlite3_get_autocommit(Db_) == 0) Kurz("ROLLBACK");
  }
  Schreibstand Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                         const std::vector<const Feld *> &Felder) override;
  qint64 Letzte_Nummer() override { return sqlite3_last_insert_rowid(Db_); }
  QByteArray Zeilennummer_Spalte() const override { return "rowid"; }
  QByteArray Unveraendert(const Feld &Spalte) const override {
    return Spalte.Geklammert + " COLLATE BINARY IS ?";
  }
  QString Fehler() const override { return Fehler_; }

 private:
  void Warten_einstellen(bool besetzt) { sqlite3_busy_timeout(Db_, besetzt ? 0 : Wartezeit_ms); }
  bool Auswerten(int rc, bool &besetzt);
  bool Kurz(const char *Sql);
  void Zeile_holen(sqlite3_stmt *Stmt, std::size_t Anzahl, Ergebnis &Ziel);

  sqlite3 *Db_;
  QByteArray Datei_;
  Dateikennung Kennung_;
  Sperre &Sperre_;
  SQLite_Anweisungen Anweisungen_;
  bool Verdorben_ = false;
  int Grund_ = SQLITE_OK;  ///< of the last failure
  QString Fehler_;
};

/// Takes note of how a step ended; true for a good end.
bool SQLite_Sitzung::Auswerten(int rc, bool &besetzt) {
  if (rc == SQLITE_OK || rc == SQLITE_ROW || rc == SQLITE_DONE) {
    besetzt = false;
    return true;
  }
  Fehler_ = QString::fromUtf8(sqlite3_errmsg(Db_));
  if (rc == SQLITE_BUSY) besetzt = true;
  Grund_ = rc;
  if (rc == SQLITE_NOTADB || rc == SQLITE_CORRUPT || rc == SQLITE_IOERR || rc == SQLITE_CANTOPEN)
    Verdorben_ = true;
  return false;
}

bool SQLite_Sitzung::Kurz(const char *Sql) {
  const auto v = Anweisungen_.Eigener_Text(Sql);
  if (!v) {
    Fehler_ = Anweisungen_.Fehler();
    return false;
  }
  Warten_einstellen(Sperre_.beim_Schreiben);
  const bool gut = Auswerten(sqlite3_step(v->Stmt), Sperre_.beim_Schreiben);
  sqlite3_reset(v->Stmt);
  return gut;
}

/// False when the file cannot even be read.
bool SQLite_Sitzung::Einrichten() {
  Warten_einstellen(Sperre_.beim_Lesen);
  const int rc = sqlite3_exec(Db_, "SELECT 1 FROM sqlite_master LIMIT 1", nullptr, nullptr, nullptr);
  const bool lesbar = Auswerten(rc, Sperre_.beim_Lesen);
  if (!lesbar) return false;
  // Both are wishes: a file that only reads, or that another program holds, keeps its mode.
  sqlite3_busy_timeout(Db_, 0);
  if (sqlite3_db_readonly(Db_, "main") == 0) {
    sqlite3_exec(Db_, "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
  }
  sqlite3_exec(Db_, "PRAGMA synchronous = NORMAL", nullptr, nullptr, nullptr);
  // At most 8 MB of pages: single look-ups all over a large table find the upper ones again, and the rest is
  // in the system's own cache. More only makes the program grow with the books.
  sqlite3_exec(Db_, "PRAGMA cache_size = -8192", nullptr, nullptr, nullptr);
  // What is sorted is customers' data and does not belong into a file of its own; it sorts faster.
  sqlite3_exec(Db_, "PRAGMA temp_store = MEMORY", nullptr, nullptr, nullptr);
  return true;
}

std::shared_ptr<const Spaltensatz> SQLite_Sitzung::Beschreiben(const Anweisung &Sql) {
  Warten_einstellen(Sperre_.beim_Lesen);
  Anweisungen_.Schema_pruefen();
  const auto v = Anweisungen_.Dialekttext(Sql);
  if (v) return v->Spalten;
  Fehler_ = Anweisungen_.Fehler();
  return nullptr;
}

void SQLite_Sitzung::Zeile_holen(sqlite3_stmt *Stmt, std::size_t Anzahl, Ergebnis &Ziel) {
  Zelle *zeile = Ziel.Lager.Zellen(Anzahl);
  for (std::size_t i = 0; i < Anzahl; ++i) {
    // Asking the value, not the statement, saves a good part of each call. Sessions are opened for one thread
    // at a time (NOMUTEX), where this is allowed.
    sqlite3_value *wert = sqlite3_column_value(Stmt, static_cast<int>(i));
    const auto bytes = [wert] { return static_cast<std::size_t>(sqlite3_value_bytes(wert)); };
    switch (sqlite3_value_type(wert)) {
      case SQLITE_INTEGER:
        zeile[i] = Zelle::aus_Ganz(sqlite3_value_int64(wert));
        break;
      case SQLITE_FLOAT:
        zeile[i] = Zelle::aus_Gleit(sqlite3_value_double(wert));
        break;
      case SQLITE_TEXT: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(wert));
        zeile[i] = Ziel.Lager.Kopie(Zelle::aus_Bytes(Zelle::Art::Text, text, text ? bytes() : 0));
        break;
      }
      case SQLITE_BLOB: {
        const auto *daten = static_cast<const char *>(sqlite3_value_blob(wert));
        zeile[i] = Ziel.Lager.Kopie(Zelle::aus_Bytes(Zelle::Art::Binaer, daten, bytes()));
        break;
      }
      default:
        break;
    }
  }
  Ziel.Zeilen.push_back(zeile);
}

bool SQLite_Sitzung::Lesen(const Anweisung &Sql, Ergebnis &Ziel) {
  const auto v = Anweisungen_.Dialekttext(Sql);
  if (!v) {
    Fehler_ = Anweisungen_.Fehler();
    return false;
  }
  bool &besetzt = sqlite3_stmt_readonly(v->Stmt) != 0 ? Sperre_.beim_Lesen : Sperre_.beim_Schreiben;
  Warten_einstellen(besetzt);
  SQLite_binden(*v, Sql);
  int rc = sqlite3_step(v->Stmt);
  Anweisungen_.Spalten_pruefen(*v);
  Ziel.Spalten = v->Spalten;
  const std::size_t anzahl = v->Spalten ? v->Spalten->Zellen() : 0;
  for (; rc == SQLITE_ROW; rc = sqlite3_step(v->Stmt)) {
    if (anzahl > 0) Zeile_holen(v->Stmt, anzahl, Ziel);
  }
  const bool gut = Auswerten(rc, besetzt);
  sqlite3_reset(v->Stmt);
  return gut;
}

Schreibstand SQLite_Sitzung::Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                                       const std::vector<const Feld *> &) {
  const auto v = Anweisungen_.Eigener_Text(Sql);
  if (!v) {
    Fehler_ = Anweisungen_.Fehler();
    return Schreibstand::Abgelehnt;
  }
  for (std::size_t i = 0; i < Werte.size(); ++i) {
    const Zelle &z = Werte[i];
    const int stelle = static_cast<int>(i) + 1;
    switch (z.Inhalt) {
      case Zelle::Art::Null:
        sqlite3_bind_null(v->Stmt, stelle);
        break;
      case Zelle::Art::Ganz:
        sqlite3_bind_int64(v->Stmt, stelle, z.Ganz);
        break;
      case Zelle::Art::Gleit:
        sqlite3_bind_double(v->Stmt, stelle, z.Gleit);
        break;
      case Zelle::Art::Text:
        sqlite3_bind_text64(v->Stmt, stelle, z.Daten, z.Laenge, SQLITE_STATIC, SQLITE_UTF8);
        break;
      case Zelle::Art::Binaer:
        sqlite3_bind_blob64(v->Stmt, stelle, z.Laenge ? z.Daten : "", z.Laenge, SQLITE_STATIC);
        break;
    }
  }
  const bool gut = Auswerten(sqlite3_step(v->Stmt), Sperre_.beim_Schreiben);
  sqlite3_reset(v->Stmt);
  if (gut) return sqlite3_changes(Db_) > 0 ? Schreibstand::Geschrieben : Schreibstand::Keine_Zeile;
  return sqlite3_get_autocommit(Db_) != 0 || Verdorben_ ? Schreibstand::Abgebrochen : Schreibstand::Abgelehnt;
}

class Treiber_SQLite final : public Treiber {
 public:
  std::unique_ptr<Sitzung> Oeffnen(const Verbindungsdaten &Daten, QString &Fehler) override;

 private:
  struct Versuch {
    std::unique_ptr<SQLite_Sitzung> Sitzung;
    int Grund = SQLITE_OK;
    QString Fehler;
  };
  static Versuch versuchen(const QByteArray &Name, int Weise, const QByteArray &Datei, Dialekt D);
};

Treiber_SQLite::Versuch Treiber_SQLite::versuchen(const QByteArray &Name, int Weise, const QByteArray &Datei,
                                                  Dialekt D) {
  sqlite3 *db = nullptr;
  const int rc = sqlite3_open_v2(Name.constData(), &db, Weise | SQLITE_OPEN_NOMUTEX, nullptr);
  if (rc != SQLITE_OK) {
    Versuch v{nullptr, rc, db ? QString::fromUtf8(sqlite3_errmsg(db)) : QStringLiteral("out of memory")};
    sqlite3_close_v2(db);
    return v;
  }
  auto sitzung = std::make_unique<SQLite_Sitzung>(db, Datei, D);
  if (!sitzung->Einrichten()) return {nullptr, sitzung->Grund(), sitzung->Fehler()};
  return {std::move(sitzung), SQLITE_OK, {}};
}

std::unique_ptr<Sitzung> Treiber_SQLite::Oeffnen(const Verbindungsdaten &Daten, QString &Fehler) {
  const QString name = SQLite_Datei(Daten);
  if (name.isEmpty() || !QFileInfo(name).isFile()) {
    Fehler = QStringLiteral("no such file: ") + name;
    return nullptr;
  }
  const QByteArray datei = QFile::encodeName(name);
  const auto Rechte_fehlen = [](int Grund) { return Grund == SQLITE_CANTOPEN || Grund == SQLITE_READONLY; };
  Versuch v = versuchen(datei, SQLITE_OPEN_READWRITE, datei, Daten.Dialekt);
  if (!v.Sitzung && Rechte_fehlen(v.Grund)) v = versuchen(datei, SQLITE_OPEN_READONLY, datei, Daten.Dialekt);
  // In a folder that cannot be written the engine cannot even make its shared memory; the file itself reads.
  // Only without a log beside it, whose rows would be missing.
  const bool mit_Log = QFileInfo(name + QStringLiteral("-wal")).size() > 0;
  if (!v.Sitzung && Rechte_fehlen(v.Grund) && !mit_Log) {
    const QByteArray uri =
        QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath()).toEncoded() + "?immutable=1";
    v = versuchen(uri, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, datei, Daten.Dialekt);
  }
  Fehler = v.Fehler;
  return std::move(v.Sitzung);
}

}  // namespace

Treiber &SQLite_Treiber() {
  static Treiber_SQLite treiber;
  return treiber;
}

QString SQLite_Datei(const Verbindungsdaten &Daten) {
  if (Daten.Dialekt == Dialekt::Jet || Daten.Quelle.isEmpty()) return Daten.Quelle;
  return Daten.Quelle + u'/' + Daten.Katalog + QStringLiteral(".mdb");
}

}  // namespace marklink::db
