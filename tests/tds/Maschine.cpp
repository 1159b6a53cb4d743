// The database behind one connection.
#include "Maschine.h"

#include <QDateTime>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <optional>

#include "Stoerung.h"
#include "db/Textvergleich_Utf8.h"

namespace marklink::tds {

namespace {

constexpr int Wartezeit_ms = 5000;
constexpr qsizetype Vorrat_hoechstens = 500;

db::Utf8 Rumpf(const void *Text, int Laenge) {
  const auto *t = static_cast<const char *>(Text);
  while (Laenge > 0 && t[Laenge - 1] == ' ') --Laenge;  // the server does not see blanks at the end
  return {t, Laenge};
}

int Ohne_Ansehen(void *, int LaengeA, const void *A, int LaengeB, const void *B) {
  return db::Utf8_vergleichen(Rumpf(A, LaengeA), Rumpf(B, LaengeB));
}

int Genau(void *, int LaengeA, const void *A, int LaengeB, const void *B) {
  const db::Utf8 a = Rumpf(A, LaengeA), b = Rumpf(B, LaengeB);
  return QByteArrayView(a.Daten, a.Laenge).compare(QByteArrayView(b.Daten, b.Laenge));
}

/// COLLATE Latin1_General_CI_AS, German_PhoneBook_CS_AS, Latin1_General_BIN2 and their kind.
void Sortierung_nachreichen(void *, sqlite3 *Db, int, const char *Name) {
  const bool ohne = QByteArray(Name).toUpper().contains("_CI");
  sqlite3_create_collation(Db, Name, SQLITE_UTF8, nullptr, ohne ? Ohne_Ansehen : Genau);
}

QString Textargument(sqlite3_value *Wert) {
  return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_value_text(Wert)),
                           sqlite3_value_bytes(Wert));
}

/// A function of one text that gives text.
template <typename Rechnung>
void Funktion(sqlite3 *Db, const char *Name, Rechnung) {
  const auto ruf = [](sqlite3_context *U, int n, sqlite3_value **W) {
    if (n > 0 && sqlite3_value_type(W[0]) == SQLITE_NULL) return;
    const QByteArray b = Rechnung{}(n > 0 ? Textargument(W[0]) : QString()).toUtf8();
    sqlite3_result_text(U, b.constData(), static_cast<int>(b.size()), SQLITE_TRANSIENT);
  };
  sqlite3_create_function(Db, Name, -1, SQLITE_UTF8, nullptr, ruf, nullptr, nullptr);
}

void Aehnlichkeit(sqlite3_context *U, int, sqlite3_value **W) {
  if (sqlite3_value_type(W[0]) == SQLITE_NULL || sqlite3_value_type(W[1]) == SQLITE_NULL) return;
  const QByteArray muster = Textargument(W[0]).toUtf8(), text = Textargument(W[1]).toUtf8();
  sqlite3_result_int(U,
                     db::Utf8_aehnlich({text.constData(), text.size()}, {muster.constData(), muster.size()}));
}

/// What a column of that type makes of a value; only where it is another one then.
QVariant Gewandelt(const QString &Typ, const QVariant &Wert) {
  const QString name = Typ.section(u'(', 0, 0),
                masse = Typ.section(u'(', 1).chopped(Typ.contains(u'(') ? 1 : 0);
  const int stellen = name.endsWith(u"money") ? 4 : masse.section(u',', 1).toInt();
  if (name == u"real") return static_cast<double>(Wert.toFloat());
  if (name.endsWith(u"money") || name == u"decimal" || name == u"numeric")
    return std::round(Wert.toDouble() * std::pow(10.0, stellen)) / std::pow(10.0, stellen);
  if (name == u"date") return QVariant(Wert.toString().left(10) + QStringLiteral(" 00:00:00"));
  if (name == u"smalldatetime") {
    const QDateTime zeit = QDateTime::fromString(Wert.toString(), QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    const QDateTime minute = zeit.addSecs(30);
    return minute.toString(QStringLiteral("yyyy-MM-dd hh:mm:00"));
  }
  const bool kurz = name.endsWith(u"varchar") && masse.toInt() > 0;
  return kurz ? QVariant(Wert.toString().left(masse.toInt())) : QVariant();
}

/// marklink_wandlung(type, value): CONVERT
void Wandlung(sqlite3_context *U, int, sqlite3_value **W) {
  const int art = sqlite3_value_type(W[1]);
  if (art == SQLITE_NULL) return;
  if (art == SQLITE_BLOB) return sqlite3_result_value(U, W[1]);
  const bool zahl = art == SQLITE_FLOAT || art == SQLITE_INTEGER;
  const QVariant neu = Gewandelt(Textargument(W[0]),
                                 zahl ? QVariant(sqlite3_value_double(W[1])) : QVariant(Textargument(W[1])));
  const QByteArray text = neu.toString().toUtf8();
  if (!neu.isValid())
    sqlite3_result_value(U, W[1]);
  else if (neu.typeId() == QMetaType::Double)
    sqlite3_result_double(U, neu.toDouble());
  else
    sqlite3_result_text(U, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void Einrichten(sqlite3 *Db) {
  sqlite3_busy_timeout(Db, Wartezeit_ms);
  sqlite3_extended_result_codes(Db, 1);
  sqlite3_db_config(Db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  // Columns are declared NOCASE, which knows ASCII only; here it is the server's order, as is every other.
  sqlite3_create_collation(Db, "NOCASE", SQLITE_UTF8, nullptr, Ohne_Ansehen);
  sqlite3_create_collation(Db, "MARKLINK", SQLITE_UTF8, nullptr, Ohne_Ansehen);
  sqlite3_collation_needed(Db, nullptr, Sortierung_nachreichen);
  sqlite3_create_function(Db, "like", 2, SQLITE_UTF8, nullptr, Aehnlichkeit, nullptr, nullptr);
  sqlite3_create_function(Db, "marklink_wandlung", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, Wandlung,
                          nullptr, nullptr);
  Funktion(Db, "getdate", [](const QString &) {
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
  });
  Funktion(Db, "upper", [](const QString &T) { return T.toUpper(); });
  Funktion(Db, "lower", [](const QString &T) { return T.toLower(); });
  sqlite3_exec(Db, "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
  sqlite3_exec(Db, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
}

sqlite3 *Datei_oeffnen(const QByteArray &Datei) {
  sqlite3 *db = nullptr;
  if (sqlite3_open_v2(Datei.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) !=
      SQLITE_OK)
    return nullptr;
  Einrichten(db);
  return db;
}

Wert Wert_holen(sqlite3_stmt *Stmt, int i) {
  const int art = sqlite3_column_type(Stmt, i);
  if (art == SQLITE_NULL) return {};
  if (art == SQLITE_INTEGER) return Wert::aus(static_cast<qint64>(sqlite3_column_int64(Stmt, i)));
  if (art == SQLITE_FLOAT) return Wert::aus(sqlite3_column_double(Stmt, i));
  const auto *bytes = static_cast<const char *>(sqlite3_column_blob(Stmt, i));
  return Wert::aus_Bytes(art == SQLITE_TEXT ? Wert::Art::Text : Wert::Art::Binaer,
                         QByteArray(bytes, sqlite3_column_bytes(Stmt, i)));
}

std::vector<Wert> Zeile_holen(sqlite3_stmt *Stmt) {
  std::vector<Wert> zeile;
  for (int i = 0; i < sqlite3_column_count(Stmt); ++i) zeile.push_back(Wert_holen(Stmt, i));
  return zeile;
}

void Wert_binden(sqlite3_stmt *Stmt, int i, const Wert &W) {
  using enum Wert::Art;
  const char *bytes = W.Bytes.constData();
  const auto laenge = static_cast<sqlite3_uint64>(W.Bytes.size());
  if (W.Inhalt == Null) sqlite3_bind_null(Stmt, i);
  if (W.Inhalt == Ganz) sqlite3_bind_int64(Stmt, i, W.Ganz);
  if (W.Inhalt == Gleit) sqlite3_bind_double(Stmt, i, W.Gleit);
  if (W.Inhalt == Text) sqlite3_bind_text64(Stmt, i, bytes, laenge, SQLITE_TRANSIENT, SQLITE_UTF8);
  if (W.Inhalt == Binaer) sqlite3_bind_blob64(Stmt, i, bytes, laenge, SQLITE_TRANSIENT);
}

/// The type of a computed column whose values so far made it `Bisher`.
Typ Erweitern(const std::optional<Typ> &Bisher, const Wert &W) {
  const Typ ganz{W.Ganz == static_cast<qint32>(W.Ganz) ? Form::Ganz32 : Form::Ganz64};
  const Typ jetzt = W.Inhalt == Wert::Art::Text    ? Typ{Form::Text}
                    : W.Inhalt == Wert::Art::Gleit ? Typ{Form::Gleit}
                    : W.Inhalt == Wert::Art::Ganz  ? ganz
                                                   : Typ{Form::Binaer};
  return Bisher && Bisher->F > jetzt.F ? *Bisher : jetzt;  // the kinds stand in that order
}

QString hinter(const QString &Text, const char *Anfang) {
  const QString anfang = QLatin1String(Anfang);
  const qsizetype stelle = Text.indexOf(anfang);
  return stelle < 0 ? QString() : Text.mid(stelle + anfang.size());
}

}  // namespace

bool Datei_vorbereiten(const QByteArray &Datei) {
  sqlite3 *db = Datei_oeffnen(Datei);
  const bool gut = db && sqlite3_exec(db, "REINDEX", nullptr, nullptr, nullptr) == SQLITE_OK;
  sqlite3_close_v2(db);
  return gut;
}

Meldung Fehler_bilden(int Nummer, const QString &Was) {
  static const struct {
    int Nummer, Klasse;
    const char *Wortlaut;  ///< %1: the object, %2: its column
  } alle[] = {
      {102, 15, "Incorrect syntax near '%1'."},
      {105, 15, "Unclosed quotation mark after the character string."},
      {195, 15, "'%1' is not a recognized built-in function name."},
      {207, 16, "Invalid column name '%2'."},
      {208, 16, "Invalid object name '%1'."},
      {241, 16, "Conversion failed when converting date and/or time from character string."},
      {421, 16, "The %1 data type cannot be selected as DISTINCT because it is not comparable."},
      {515, 16,
       "Cannot insert the value NULL into column '%2', table 'dbo.%1'; column does not allow nulls. INSERT "
       "fails."},
      {547, 16, "The INSERT statement conflicted with the CHECK constraint \"CK_1\"."},
      {1205, 13,
       "Transaction (Process ID 52) was deadlocked on lock resources with another process and has been "
       "chosen "
       "as the deadlock victim. Rerun the transaction."},
      {1222, 16, "Lock request time out period exceeded."},
      {2601, 14, "Cannot insert duplicate key row in object 'dbo.%1' with unique index."},
      {2627, 14,
       "Violation of PRIMARY KEY constraint 'PK_%1'. Cannot insert duplicate key in object 'dbo.%1'."},
      {2628, 16,
       "String or binary data would be truncated in table 'demo.dbo.T', column 'C'. Truncated value: "
       "'4711'."},
      {2714, 16, "There is already an object named '%1' in the database."},
      {2812, 16, "Could not find stored procedure '%1'."},
      {3902, 16, "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION."},
      {3903, 16, "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION."},
      {8003, 16,
       "The incoming request has too many parameters. The server supports a maximum of 2100 parameters."},
      {8114, 16, "Error converting data type nvarchar to numeric."},
      {8115, 16, "Arithmetic overflow error converting expression to data type int."},
      {8152, 16, "String or binary data would be truncated."},
      {8179, 16, "Could not find prepared statement with handle %1."},
      {8180, 16, "Statement(s) could not be prepared."}};
  for (const auto &f : alle) {
    if (f.Nummer != Nummer) continue;
    QString text = QString::fromLatin1(f.Wortlaut);
    text.replace(QStringLiteral("%1"), Was.section(u'.', 0, 0))
        .replace(QStringLiteral("%2"), Was.section(u'.', -1));
    return {Nummer, text, f.Klasse};
  }
  return {Nummer, Was};
}

bool Maschine::Oeffnen(const QByteArray &Datei) {
  Db_ = Datei_oeffnen(Datei);
  return Db_ != nullptr;
}

Meldung Maschine::Fehler() const {
  const QString text = QString::fromUtf8(sqlite3_errmsg(Db_));
  const int rc = sqlite3_extended_errcode(Db_);
  if ((rc & 0xFF) == SQLITE_BUSY) return Fehler_bilden(1222);
  if (rc == SQLITE_CONSTRAINT_PRIMARYKEY || rc == SQLITE_CONSTRAINT_ROWID)
    return Fehler_bilden(2627, hinter(text, "failed: "));
  if (rc == SQLITE_CONSTRAINT_UNIQUE) return Fehler_bilden(2601, hinter(text, "failed: "));
  if (rc == SQLITE_CONSTRAINT_NOTNULL) return Fehler_bilden(515, hinter(text, "failed: "));
  if (rc == SQLITE_CONSTRAINT_CHECK) return Fehler_bilden(hinter(text, "failed: ").toInt());
  const std::pair<const char *, int> anfaenge[] = {{"no such table: ", 208},
                                                   {"no such column: ", 207},
                                                   {"has no column named ", 207},
                                                   {"no such function: ", 195}};
  for (const auto &[anfang, nummer] : anfaenge) {
    if (text.contains(QLatin1String(anfang))) return Fehler_bilden(nummer, hinter(text, anfang));
  }
  if (text.startsWith(QStringLiteral("near \""))) return Fehler_bilden(102, text.section(u'"', 1, 1));
  if (text.endsWith(QStringLiteral("already exists"))) return Fehler_bilden(2714, text.section(u' ', 1, -3));
  return {50000, text};
}

sqlite3_stmt *Maschine::vorbereiten(const QString &Sql) {
  if (sqlite3_stmt *da = Vorrat_.value(Sql)) return da;
  sqlite3_stmt *stmt = nullptr;
  sqlite3_prepare_v2(Db_, Sql.toUtf8().constData(), -1, &stmt, nullptr);
  if (!stmt) return nullptr;
  if (Vorrat_.size() >= Vorrat_hoechstens) {
    for (sqlite3_stmt *alt : std::as_const(Vorrat_)) sqlite3_finalize(alt);
    Vorrat_.clear();
  }
  return *Vorrat_.insert(Sql, stmt);
}

Wert Maschine::Globale(const QString &Name) const {
  if (Name == QStringLiteral("@@identity"))
    return Wert::aus(static_cast<qint64>(sqlite3_last_insert_rowid(Db_)));
  if (Name == QStringLiteral("@@trancount")) return Wert::aus(static_cast<qint64>(Tiefe_));
  if (Name == QStringLiteral("@@rowcount")) return Wert::aus(Letzte_Anzahl_);
  return {};
}

void Maschine::binden(sqlite3_stmt *Stmt, const Plan &P, const Variablen &V) const {
  for (std::size_t i = 0; i < P.Bindungen.size(); ++i) {
    const Bindung &b = P.Bindungen[i];
    const bool global = b.Variable.startsWith(QStringLiteral("@@"));
    Wert_binden(Stmt, static_cast<int>(i) + 1,
                b.Variable.isEmpty() ? b.Konstante
                : global             ? Globale(b.Variable)
                                     : V.value(b.Variable));
  }
}

std::vector<Spalte> Maschine::Spalten_von(sqlite3_stmt *Stmt, std::vector<bool> &Berechnet) const {
  std::vector<Spalte> spalten;
  for (int i = 0; i < sqlite3_column_count(Stmt); ++i) {
    const char *ursprung = sqlite3_column_origin_name(Stmt, i);
    const char *typ = sqlite3_column_decltype(Stmt, i);
    Spalte spalte{QString::fromUtf8(sqlite3_column_name(Stmt, i))};
    Berechnet.push_back(!ursprung || !typ);
    if (ursprung && typ) {
      int nicht_null = 0, schluessel = 0, nummer = 0;
      sqlite3_table_column_metadata(Db_, nullptr, sqlite3_column_table_name(Stmt, i), ursprung, nullptr,
                                    nullptr, &nicht_null, &schluessel, &nummer);
      spalte.T = Typ_aus_Deklaration(QString::fromUtf8(typ));
      spalte.Nullbar = !nicht_null && !nummer;
      spalte.Nummer = nummer != 0;
    } else if (spalte.Name.contains(u'(') || spalte.Name.contains(u'?')) {
      spalte.Name.clear();  // what is computed has no name
    }
    spalten.push_back(spalte);
  }
  return spalten;
}

/// Rows of declared columns go out as they come. A computed column gets its type from all its values.
int Maschine::lesen(sqlite3_stmt *Stmt, Antwort *A, qint64 &Anzahl, std::vector<Spalte> &Ziel) {
  int rc = sqlite3_step(Stmt);  // first of all: it prepares the statement anew when tables have changed
  std::vector<bool> berechnet;
  Ziel = Spalten_von(Stmt, berechnet);
  const bool sammeln = std::find(berechnet.begin(), berechnet.end(), true) != berechnet.end();
  std::vector<std::optional<Typ>> typen(Ziel.size());
  Zeilen gesammelt;
  if (A && !Ziel.empty() && !sammeln) A->Spalten(Ziel);
  for (; rc == SQLITE_ROW; rc = sqlite3_step(Stmt), ++Anzahl) {
    std::vector<Wert> zeile = Zeile_holen(Stmt);
    for (std::size_t i = 0; sammeln && i < zeile.size(); ++i) {
      if (berechnet[i] && !zeile[i].ist_Null()) typen[i] = Erweitern(typen[i], zeile[i]);
    }
    if (sammeln)
      gesammelt.push_back(std::move(zeile));
    else if (A)
      A->Zeile(Ziel, zeile);
  }
  for (std::size_t i = 0; i < Ziel.size(); ++i) Ziel[i].T = typen[i].value_or(Ziel[i].T);
  if (A && sammeln) A->Spalten(Ziel);
  for (const auto &zeile : gesammelt) {
    if (A) A->Zeile(Ziel, zeile);
  }
  return rc;
}

Meldung Maschine::Ausfuehren(const Plan &P, const Variablen &V, Antwort &A, qint64 &Anzahl) {
  Stoerung &s = Stoerung_holen();
  if (P.A == Plan::Art::Daten && faellig(s.Fehler)) {
    if (s.Fehlernummer == 1205) Zurueckrollen();  // a deadlock's victim loses everything
    return Fehler_bilden(s.Fehlernummer, QStringLiteral("eingespeist"));
  }
  for (const QString &spalte : P.Verglichene) {
    const char *typ = nullptr;
    sqlite3_table_column_metadata(Db_, nullptr, P.Tabelle.toUtf8().constData(), spalte.toUtf8().constData(),
                                  &typ, nullptr, nullptr, nullptr, nullptr);
    for (const char *alter : {"text", "ntext", "image"}) {
      if (typ && qstricmp(typ, alter) == 0) return Fehler_bilden(421, QString::fromLatin1(typ));
    }
  }
  sqlite3_stmt *stmt = vorbereiten(P.Text);
  if (!stmt) return Fehler();
  if (Implizit_ && Tiefe_ == 0 && P.A == Plan::Art::Daten) Beginnen();
  const bool schreibt = sqlite3_stmt_readonly(stmt) == 0;
  if (schreibt && Tiefe_ > 0 && sqlite3_get_autocommit(Db_) != 0 &&
      sqlite3_exec(Db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) {
    return Fehler();
  }
  binden(stmt, P, V);
  Anzahl = 0;
  std::vector<Spalte> spalten;
  const int rc = lesen(stmt, &A, Anzahl, spalten);
  const Meldung meldung = rc == SQLITE_DONE ? Meldung() : Fehler();
  sqlite3_reset(stmt);
  if (schreibt && P.A == Plan::Art::Daten) Anzahl = rc == SQLITE_DONE ? sqlite3_changes(Db_) : 0;
  Letzte_Anzahl_ = Anzahl;
  return meldung;
}

Meldung Maschine::Beschreiben(const Plan &P, bool Spalten_auch, std::vector<Spalte> &Ziel) {
  sqlite3_stmt *stmt = vorbereiten(P.Text);
  if (!stmt) return Fehler();
  if (!Spalten_auch || sqlite3_column_count(stmt) == 0) return {};
  qint64 anzahl = 0;
  binden(stmt, P, {});
  lesen(stmt, nullptr, anzahl, Ziel);
  sqlite3_reset(stmt);
  return {};
}

Meldung Maschine::Abschliessen() {
  if (Tiefe_ == 0) return Fehler_bilden(3902);
  if (--Tiefe_ > 0 || sqlite3_get_autocommit(Db_) != 0) return {};
  return sqlite3_exec(Db_, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK ? Meldung() : Fehler();
}

Meldung Maschine::Zurueckrollen() {
  if (Tiefe_ == 0) return Fehler_bilden(3903);
  Tiefe_ = 0;
  if (sqlite3_get_autocommit(Db_) == 0) sqlite3_exec(Db_, "ROLLBACK", nullptr, nullptr, nullptr);
  return {};
}

Zeilen Maschine::Fragen(const char *Sql, const std::vector<Wert> &Werte) {
  Zeilen zeilen;
  sqlite3_stmt *stmt = vorbereiten(QString::fromUtf8(Sql));
  for (std::size_t i = 0; stmt && i < Werte.size(); ++i) Wert_binden(stmt, static_cast<int>(i) + 1, Werte[i]);
  while (stmt && sqlite3_step(stmt) == SQLITE_ROW) zeilen.push_back(Zeile_holen(stmt));
  if (stmt) sqlite3_reset(stmt);
  return zeilen;
}

}  // namespace marklink::tds
