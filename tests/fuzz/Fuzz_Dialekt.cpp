// Whatever a value holds, the statement around it stays the same one statement. The input's first line is
// taken as a literal too, to see that the translator takes any text without harm.
#include <sqlite3.h>

#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "db/Dialekt.h"
#include "db/Textvergleich_Utf8.h"

using namespace marklink::db;

namespace {

void verlangen(bool Bedingung, const char *Was) {
  if (Bedingung) return;
  std::fprintf(stderr, "violated: %s\n", Was);
  std::abort();
}

int Sortierung(void *, int La, const void *A, int Lb, const void *B) {
  return Utf8_vergleichen({static_cast<const char *>(A), La}, {static_cast<const char *>(B), Lb});
}

sqlite3 *Datenbank() {
  static sqlite3 *db = [] {
    sqlite3 *neu = nullptr;
    sqlite3_open(":memory:", &neu);
    sqlite3_create_collation(neu, "MARKLINK", SQLITE_UTF8, nullptr, Sortierung);
    sqlite3_exec(neu, "CREATE TABLE O (A TEXT COLLATE NOCASE, B TEXT COLLATE NOCASE)", nullptr, nullptr,
                 nullptr);
    return neu;
  }();
  return db;
}

void Wert_pruefen(const QString &Text, Dialekt D) {
  const Anweisung sql("SELECT * FROM O WHERE A = ", Wert{Text}, " AND B < ", Wert{Text}, " ORDER BY A");
  const auto u = Fuer_SQLite_uebersetzen(sql, D);
  verlangen(u.has_value() == sql.Gueltig(), "a valid statement translates, an invalid one does not");
  verlangen(sql.Gueltig() != (Text.contains(u'\'') || Text.contains(QChar(u'\0'))),
            "validity follows the apostrophe");
  if (!u) return;
  const QByteArray bytes = u->Sql.toUtf8();
  sqlite3_stmt *stmt = nullptr;
  const char *rest = nullptr;
  verlangen(sqlite3_prepare_v2(Datenbank(), bytes.constData(), -1, &stmt, &rest) == SQLITE_OK,
            "the engine takes it");
  verlangen(*rest == '\0', "it is one statement");
  verlangen(sqlite3_bind_parameter_count(stmt) == static_cast<int>(u->Werte.size()),
            "every value has its place");
  verlangen(sqlite3_stmt_readonly(stmt) != 0, "it still only reads");
  sqlite3_finalize(stmt);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Daten, std::size_t Laenge) {
  const QString text =
      QString::fromUtf8(reinterpret_cast<const char *>(Daten), static_cast<qsizetype>(Laenge));
  for (const Dialekt d : {Dialekt::Jet, Dialekt::SqlServer}) {
    Wert_pruefen(text, d);
    std::string literal(reinterpret_cast<const char *>(Daten), Laenge);
    char puffer[1024] = {};
    literal.copy(puffer, sizeof puffer - 1);
    const Anweisung sql(puffer);
    const auto u = Fuer_SQLite_uebersetzen(sql, d);
    if (u) verlangen(u->Werte.size() == u->Herkunft.size(), "each value has an origin");
  }
  return 0;
}
