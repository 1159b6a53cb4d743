// Prepared statements of one SQLite connection, kept for the next use, and what is known of its tables.
#pragma once

#include <sqlite3.h>

#include <QHash>
#include <QString>
#include <memory>
#include <unordered_map>
#include <vector>

#include "Dialekt.h"
#include "Ergebnis.h"

namespace marklink::db {

struct Vorbereitet {
  sqlite3_stmt *Stmt = nullptr;
  std::vector<int> Herkunft;  ///< by parameter: index of the value in the statement, -1: as in `Feste`
  std::vector<Anweisung::Stueck> Feste;
  std::shared_ptr<const Spaltensatz> Spalten;  ///< empty for a statement without rows
  quint64 Zuletzt = 0;

  Vorbereitet() = default;
  Vorbereitet(const Vorbereitet &) = delete;
  Vorbereitet &operator=(const Vorbereitet &) = delete;
  ~Vorbereitet() { sqlite3_finalize(Stmt); }
};

class SQLite_Anweisungen {
 public:
  SQLite_Anweisungen(sqlite3 *Db, Dialekt D) : Db_(Db), D_(D) {}

  /// A statement in dialect text, its values bound; empty when it cannot be translated or prepared.
  std::shared_ptr<Vorbereitet> Dialekttext(const Anweisung &Sql);
  /// A statement in the engine's own text with "?".
  std::shared_ptr<Vorbereitet> Eigener_Text(const QByteArray &Sql);
  /// Describes the result anew when the engine had to prepare the statement again.
  void Spalten_pruefen(Vorbereitet &V);
  /// Forgets what the schema told when it has changed since.
  void Schema_pruefen();
  void leeren();
  const QString &Fehler() const { return Fehler_; }

 private:
  struct Tabelleninfo {
    QStringList Schluessel;
    QStringList Indexanfaenge;
    bool Autowert = false;
  };

  std::shared_ptr<Vorbereitet> vorbereiten(const QString &Sql);
  std::shared_ptr<Vorbereitet> uebersetzt_vorbereiten(const Uebersetzung &U);
  std::shared_ptr<Spaltensatz> beschreiben(sqlite3_stmt *Stmt);
  void Tabellen_zuordnen(sqlite3_stmt *Stmt, Spaltensatz &Satz);
  const Tabelleninfo &Tabelle(const QString &Name);
  QStringList Namen_lesen(const char *Sql, const QString &Tabelle);

  sqlite3 *Db_;
  Dialekt D_;
  QHash<QString, std::shared_ptr<Vorbereitet>> Nach_Text_;
  QHash<QByteArray, std::shared_ptr<Vorbereitet>> Eigene_;
  QHash<QString, Tabelleninfo> Tabellen_;
  quint64 Uhr_ = 0;
  qint64 Schemastand_ = -1;
  QString Fehler_;
};

/// Binds the values of `Sql` to the parameters.
void SQLite_binden(const Vorbereitet &V, const Anweisung &Sql);

}  // namespace marklink::db
