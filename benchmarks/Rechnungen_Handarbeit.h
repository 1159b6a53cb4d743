// Prepared statements and a counter file by hand, for the least that making invoices can cost.
#pragma once

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace marklink::messung {

class Satz {
 public:
  Satz(sqlite3 *Db, const std::string &Sql) {
    if (sqlite3_prepare_v3(Db, Sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &S_, nullptr) != SQLITE_OK)
      std::fprintf(stderr, "%s: %s\n", sqlite3_errmsg(Db), Sql.c_str());
  }
  ~Satz() { sqlite3_finalize(S_); }
  Satz(const Satz &) = delete;
  Satz &operator=(const Satz &) = delete;

  /// Runs it; true when there is a row.
  template <typename... Werte>
  bool Lauf(const Werte &...W) {
    sqlite3_reset(S_);
    int stelle = 0;
    (Binden(++stelle, W), ...);
    return Weiter();
  }
  bool Weiter() {
    const int rc = sqlite3_step(S_);
    Gut = Gut && (rc == SQLITE_ROW || rc == SQLITE_DONE);
    return rc == SQLITE_ROW;
  }
  /// Ends a look-up, so that it holds no lock on.
  void Ende() { sqlite3_reset(S_); }
  std::string Text(int Spalte) const {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(S_, Spalte));
    return text ? std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(S_, Spalte)))
                : std::string();
  }
  double Zahl(int Spalte) const { return sqlite3_column_double(S_, Spalte); }
  int Ganz(int Spalte) const { return sqlite3_column_int(S_, Spalte); }

  static inline bool Gut = true;

 private:
  void Binden(int Stelle, const std::string &W) {
    sqlite3_bind_text(S_, Stelle, W.data(), static_cast<int>(W.size()), SQLITE_STATIC);
  }
  void Binden(int Stelle, const char *W) { sqlite3_bind_text(S_, Stelle, W, -1, SQLITE_STATIC); }
  void Binden(int Stelle, double W) { sqlite3_bind_double(S_, Stelle, W); }
  void Binden(int Stelle, int W) { sqlite3_bind_int(S_, Stelle, W); }

  sqlite3_stmt *S_ = nullptr;
};

inline sqlite3 *Oeffnen(const std::string &Datei) {
  sqlite3 *db = nullptr;
  sqlite3_open(Datei.c_str(), &db);
  for (const char *sql :
       {"PRAGMA journal_mode = WAL", "PRAGMA synchronous = NORMAL", "PRAGMA cache_size = -8192"})
    sqlite3_exec(db, sql, nullptr, nullptr, nullptr);
  return db;
}

/// The counters of type 0: the settings file is read, changed, written beside it, made safe and put in its
/// place.
class Zaehlerdatei {
 public:
  explicit Zaehlerdatei(const std::string &Datei) : Datei_(Datei) {}

  int Ziehen(const std::string &Bereich) const {
    std::stringstream alles;
    alles << std::ifstream(Datei_, std::ios::binary).rdbuf();
    std::string text = alles.str();
    const std::size_t ort = text.find("\n" + Bereich + "=", text.find("[NumberRange]")) + Bereich.size() + 2;
    const int zahl = std::atoi(text.c_str() + ort);
    char neu[16];
    std::snprintf(neu, sizeof neu, "%07d", (zahl + 1) % 10000000);
    text.replace(ort, 7, neu);
    const std::string daneben = Datei_ + ".neu";
    const int datei = open(daneben.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool gut = write(datei, text.data(), text.size()) == ssize_t(text.size()) && fsync(datei) == 0;
    close(datei);
    Satz::Gut = Satz::Gut && gut && std::rename(daneben.c_str(), Datei_.c_str()) == 0;
    return zahl;
  }

 private:
  std::string Datei_;
};

}  // namespace marklink::messung
