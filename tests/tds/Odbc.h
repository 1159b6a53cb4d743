// A connection through unixODBC and FreeTDS, as bare as it can be: what a test needs to see what arrives.
#pragma once

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <QByteArray>
#include <QStringList>

namespace marklink::test {

/// A value to bind; its bytes as they lie in memory for the C type.
struct Parameter {
  SQLSMALLINT C = SQL_C_WCHAR, Sql = SQL_WVARCHAR;
  QByteArray Bytes{};
  bool Null = false;
  SQLULEN Groesse = 0;
  SQLSMALLINT Stellen = 0;
};

Parameter Textwert(const QString &Text);

class Odbc {
 public:
  /// To 127.0.0.1; Fehler() tells why it is not Verbunden().
  explicit Odbc(int Port);
  ~Odbc();
  Odbc(const Odbc &) = delete;
  Odbc &operator=(const Odbc &) = delete;

  bool Verbunden() const { return Verbunden_; }
  /// Runs a statement at once; with parameters through SQLPrepare and SQLExecute.
  bool lauf(const QString &Sql, const QList<Parameter> &Werte = {});
  /// Runs it and gives its rows: fields joined by "|", rows by "\n"; null as "NULL".
  QString lesen(const QString &Sql, const QList<Parameter> &Werte = {});
  /// The rows of the current result, of which only these columns (all when none are named).
  QString Zeilen(const QList<int> &Spalten = {});
  bool Selbst_abschliessen(bool An);
  bool Abschliessen(bool Gut);
  /// "STATE number text" of the last failure
  QString Fehler() const { return Fehler_; }
  SQLHSTMT Stmt() const { return Stmt_; }
  bool pruefen(SQLRETURN Ergebnis, SQLSMALLINT Art, SQLHANDLE Griff);

 private:
  SQLHENV Umgebung_ = nullptr;
  SQLHDBC Verbindung_ = nullptr;
  SQLHSTMT Stmt_ = nullptr;
  bool Verbunden_ = false;
  QString Fehler_;
};

}  // namespace marklink::test
