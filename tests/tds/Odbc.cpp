// A connection through unixODBC and FreeTDS.
#include "Odbc.h"

#include <odbcinst.h>

#include <QDir>
#include <vector>

namespace marklink::test {

namespace {

SQLWCHAR *Breit(const QString &Text) {
  return const_cast<SQLWCHAR *>(reinterpret_cast<const SQLWCHAR *>(Text.utf16()));
}

SQLPOINTER Zahl(int Wert) { return reinterpret_cast<SQLPOINTER>(static_cast<std::intptr_t>(Wert)); }

/// By name where it is registered, else its file.
QString Treiber_finden() {
  char pfad[1024] = {};
  if (SQLGetPrivateProfileString("FreeTDS", "Driver", "", pfad, sizeof pfad, "odbcinst.ini") > 0)
    return QStringLiteral("{FreeTDS}");
  for (const QFileInfo &ordner :
       QDir(QStringLiteral("/usr/lib")).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QString datei = ordner.filePath() + QStringLiteral("/odbc/libtdsodbc.so");
    if (QFile::exists(datei)) return datei;
  }
  return {};
}

QString Feld_lesen(SQLHSTMT Stmt, SQLUSMALLINT Spalte, SQLSMALLINT C) {
  QByteArray alles;
  std::vector<char> puffer(70000);
  SQLLEN laenge = 0;
  const SQLLEN ende = C == SQL_C_WCHAR ? 2 : 0;
  for (;;) {
    const SQLRETURN rc =
        SQLGetData(Stmt, Spalte, C, puffer.data(), static_cast<SQLLEN>(puffer.size()), &laenge);
    if (!SQL_SUCCEEDED(rc)) break;
    if (laenge == SQL_NULL_DATA) return QStringLiteral("NULL");
    const bool voll = rc == SQL_SUCCESS_WITH_INFO;
    alles.append(puffer.data(), voll ? static_cast<SQLLEN>(puffer.size()) - ende : laenge);
    if (!voll) break;
  }
  if (C == SQL_C_BINARY)
    return QString::fromLatin1(alles.size() > 40 ? QByteArray::number(alles.size()) + " bytes"
                                                 : alles.toHex());
  return QString::fromUtf16(reinterpret_cast<const char16_t *>(alles.constData()), alles.size() / 2);
}

}  // namespace

Parameter Textwert(const QString &Text) {
  return {SQL_C_WCHAR, SQL_WVARCHAR,
          QByteArray(reinterpret_cast<const char *>(Text.utf16()), Text.size() * 2), false,
          static_cast<SQLULEN>(qMax<qsizetype>(1, Text.size()))};
}

Odbc::Odbc(int Port) {
  SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &Umgebung_);
  SQLSetEnvAttr(Umgebung_, SQL_ATTR_ODBC_VERSION, Zahl(SQL_OV_ODBC3), 0);
  SQLAllocHandle(SQL_HANDLE_DBC, Umgebung_, &Verbindung_);
  SQLSetConnectAttr(Verbindung_, SQL_ATTR_LOGIN_TIMEOUT, Zahl(5), 0);
  const QString text =
      QStringLiteral("DRIVER=%1;SERVER=127.0.0.1;PORT=%2;UID=sa;PWD=geheim;DATABASE=demo;TDS_Version=7.4;")
          .arg(Treiber_finden())
          .arg(Port);
  Verbunden_ = pruefen(
      SQLDriverConnectW(Verbindung_, nullptr, Breit(text), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
      SQL_HANDLE_DBC, Verbindung_);
  if (Verbunden_) SQLAllocHandle(SQL_HANDLE_STMT, Verbindung_, &Stmt_);
}

Odbc::~Odbc() {
  if (Stmt_) SQLFreeHandle(SQL_HANDLE_STMT, Stmt_);
  if (Verbunden_) SQLDisconnect(Verbindung_);
  SQLFreeHandle(SQL_HANDLE_DBC, Verbindung_);
  SQLFreeHandle(SQL_HANDLE_ENV, Umgebung_);
}

bool Odbc::pruefen(SQLRETURN Ergebnis, SQLSMALLINT Art, SQLHANDLE Griff) {
  if (SQL_SUCCEEDED(Ergebnis) || Ergebnis == SQL_NO_DATA) return true;
  SQLWCHAR zustand[6] = {}, text[1024] = {};
  SQLINTEGER nummer = 0;
  SQLSMALLINT laenge = 0;
  SQLGetDiagRecW(Art, Griff, 1, zustand, &nummer, text, 1024, &laenge);
  Fehler_ = QStringLiteral("%1 %2 %3")
                .arg(QString::fromUtf16(reinterpret_cast<char16_t *>(zustand), 5))
                .arg(nummer)
                .arg(QString::fromUtf16(reinterpret_cast<char16_t *>(text), laenge));
  return false;
}

bool Odbc::lauf(const QString &Sql, const QList<Parameter> &Werte) {
  SQLFreeStmt(Stmt_, SQL_CLOSE);
  SQLFreeStmt(Stmt_, SQL_RESET_PARAMS);
  if (Werte.isEmpty()) return pruefen(SQLExecDirectW(Stmt_, Breit(Sql), SQL_NTS), SQL_HANDLE_STMT, Stmt_);
  std::vector<SQLLEN> laengen;
  for (const Parameter &p : Werte) laengen.push_back(p.Null ? SQL_NULL_DATA : p.Bytes.size());
  if (!pruefen(SQLPrepareW(Stmt_, Breit(Sql), SQL_NTS), SQL_HANDLE_STMT, Stmt_)) return false;
  for (qsizetype i = 0; i < Werte.size(); ++i) {
    const Parameter &p = Werte[i];
    const SQLULEN groesse = p.Groesse ? p.Groesse : static_cast<SQLULEN>(qMax<qsizetype>(1, p.Bytes.size()));
    SQLBindParameter(Stmt_, static_cast<SQLUSMALLINT>(i + 1), SQL_PARAM_INPUT, p.C, p.Sql, groesse, p.Stellen,
                     const_cast<char *>(p.Bytes.constData()), p.Bytes.size(),
                     &laengen[static_cast<std::size_t>(i)]);
  }
  return pruefen(SQLExecute(Stmt_), SQL_HANDLE_STMT, Stmt_);
}

QString Odbc::Zeilen(const QList<int> &Spalten) {
  SQLSMALLINT anzahl = 0;
  SQLNumResultCols(Stmt_, &anzahl);
  QStringList zeilen;
  for (;;) {
    const SQLRETURN rc = SQLFetch(Stmt_);
    if (!pruefen(rc, SQL_HANDLE_STMT, Stmt_)) return QStringLiteral("Fehler ") + Fehler_;
    if (rc == SQL_NO_DATA) break;
    QStringList felder;
    for (int i = 1; i <= anzahl; ++i) {
      if (!Spalten.isEmpty() && !Spalten.contains(i)) continue;
      SQLLEN typ = 0;
      SQLColAttributeW(Stmt_, static_cast<SQLUSMALLINT>(i), SQL_DESC_CONCISE_TYPE, nullptr, 0, nullptr, &typ);
      const bool binaer = typ == SQL_LONGVARBINARY || typ == SQL_VARBINARY;
      felder.append(Feld_lesen(Stmt_, static_cast<SQLUSMALLINT>(i), binaer ? SQL_C_BINARY : SQL_C_WCHAR));
    }
    zeilen.append(felder.join(u'|'));
  }
  return zeilen.join(u'\n');
}

QString Odbc::lesen(const QString &Sql, const QList<Parameter> &Werte) {
  return lauf(Sql, Werte) ? Zeilen() : QStringLiteral("Fehler ") + Fehler_;
}

bool Odbc::Selbst_abschliessen(bool An) {
  return pruefen(SQLSetConnectAttr(Verbindung_, SQL_ATTR_AUTOCOMMIT,
                                   Zahl(An ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF), 0),
                 SQL_HANDLE_DBC, Verbindung_);
}

bool Odbc::Abschliessen(bool Gut) {
  return pruefen(SQLEndTran(SQL_HANDLE_DBC, Verbindung_, Gut ? SQL_COMMIT : SQL_ROLLBACK), SQL_HANDLE_DBC,
                 Verbindung_);
}

}  // namespace marklink::test
