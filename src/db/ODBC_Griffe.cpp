// Logging in through unixODBC and FreeTDS, and reading diagnostics.
#include "ODBC_Griffe.h"

#include <odbcinst.h>

#include <QDir>
#include <QRegularExpression>
#include <QStringList>

namespace marklink::db {

namespace {

constexpr int Uebliche_Wartezeit = 30;  ///< seconds; also for "0", which would wait for ever

SQLHENV Umgebung() {
  static const SQLHENV umgebung = [] {
    SQLHENV neu = nullptr;
    if (SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &neu)))
      SQLSetEnvAttr(neu, SQL_ATTR_ODBC_VERSION, Odbc_Zahl(SQL_OV_ODBC3), 0);
    return neu;
  }();
  return umgebung;
}

/// By its name where it is registered, else its file.
QString Treiber_finden() {
  char pfad[1024] = {};
  if (SQLGetPrivateProfileString("FreeTDS", "Driver", "", pfad, sizeof pfad, "odbcinst.ini") > 0)
    return QStringLiteral("{FreeTDS}");
  for (const char *wurzel : {"/usr/lib", "/usr/local/lib", "/usr/lib64"}) {
    const QString ordner = QLatin1String(wurzel);
    QStringList faelle{ordner};
    for (const QString &name : QDir(ordner).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
      faelle.append(ordner + u'/' + name);
    for (const QString &fall : faelle) {
      for (const char *datei : {"/odbc/libtdsodbc.so", "/libtdsodbc.so"}) {
        if (QFile::exists(fall + QLatin1String(datei))) return fall + QLatin1String(datei);
      }
    }
  }
  return QStringLiteral("{FreeTDS}");  // the driver manager tells that it is not there
}

/// Some messages repeat a value, which may be a card or account number.
QString ohne_Werte(QString Text) {
  static const QRegularExpression stellen[] = {QRegularExpression(QStringLiteral("(Truncated value: ?)'.*'")),
                                               QRegularExpression(QStringLiteral("(value )'.*'( to )")),
                                               QRegularExpression(QStringLiteral("(key value is )\\(.*\\)"))};
  for (const QRegularExpression &stelle : stellen) Text.replace(stelle, QStringLiteral("\\1(...)"));
  return Text;
}

Odbc_Meldung Meldung_lesen(SQLSMALLINT Art, SQLHANDLE Griff) {
  Odbc_Meldung meldung;
  QStringList alle;
  for (SQLSMALLINT i = 1; i <= 8; ++i) {
    SQLWCHAR zustand[6] = {}, text[1024] = {};
    SQLINTEGER nummer = 0;
    SQLSMALLINT laenge = 0;
    const SQLRETURN rc = SQLGetDiagRecW(Art, Griff, i, zustand, &nummer, text, 1024, &laenge);
    if (!SQL_SUCCEEDED(rc)) break;
    const QString klasse = QString::fromUtf16(reinterpret_cast<const char16_t *>(zustand), 5);
    const QString wortlaut = QString::fromUtf16(reinterpret_cast<const char16_t *>(text));
    alle.append(QStringLiteral("%1 %2 %3").arg(klasse).arg(nummer).arg(ohne_Werte(wortlaut)));
    // The client library's own numbers for a connection that broke: read, write, unexpected end, bad reply.
    const bool abbruch = nummer == 20004 || nummer == 20006 || nummer == 20017 || nummer == 20020;
    meldung.Verloren |= klasse.startsWith(u"08") || abbruch;
    // Who waited in vain for a lock does not wait again for each further row.
    meldung.Gewartet |= klasse.startsWith(u"HYT");
    meldung.Zurueckgerollt |= nummer == 1205 || nummer == 1222 || meldung.Gewartet;
    meldung.Andere_Gestalt |= nummer == 207 || nummer == 208 || nummer == 213 || nummer == 4104;
  }
  meldung.Text =
      alle.isEmpty() ? QStringLiteral("no message from the driver") : alle.join(QStringLiteral(" / "));
  return meldung;
}

}  // namespace

SQLWCHAR *Odbc_Text(const QString &Text) {
  return const_cast<SQLWCHAR *>(reinterpret_cast<const SQLWCHAR *>(Text.utf16()));
}

SQLPOINTER Odbc_Zahl(qint64 Wert) { return reinterpret_cast<SQLPOINTER>(static_cast<std::intptr_t>(Wert)); }

QString Odbc_Verbindungstext(const Verbindungsdaten &Daten) {
  // "tcp:server,port", "server\instance", "(local)"
  QString server = Daten.Quelle;
  QString anschluss;
  if (server.startsWith(QLatin1String("tcp:"), Qt::CaseInsensitive)) server = server.mid(4);
  const qsizetype komma = server.lastIndexOf(u',');
  if (komma >= 0) {
    anschluss = server.mid(komma + 1).trimmed();
    server = server.left(komma).trimmed();
  } else if (!server.contains(u'\\')) {
    anschluss = QStringLiteral("1433");
  }
  for (const char *hier : {"(local)", ".", "localhost"}) {
    const QString name = QLatin1String(hier);
    if (server.compare(name, Qt::CaseInsensitive) == 0) server = QStringLiteral("127.0.0.1");
    if (server.startsWith(name + u'\\', Qt::CaseInsensitive))
      server = QStringLiteral("127.0.0.1") + server.mid(name.size());
  }
  QString text = QStringLiteral("DRIVER=") + Treiber_finden() + QStringLiteral(";SERVER=") + server;
  if (!anschluss.isEmpty()) text += QStringLiteral(";PORT=") + anschluss;
  if (Daten.Benutzer.isEmpty()) {
    text += QStringLiteral(";Trusted_Connection=Yes");
  } else {
    text += QStringLiteral(";UID=") + Daten.Benutzer + QStringLiteral(";PWD=") + Daten.Passwort;
  }
  return text + QStringLiteral(";DATABASE=") + Daten.Katalog + QStringLiteral(";TDS_Version=7.4;");
}

Odbc_Griffe::~Odbc_Griffe() { Trennen(); }

void Odbc_Griffe::Trennen() {
  if (Anweisung_) SQLFreeHandle(SQL_HANDLE_STMT, Anweisung_);
  if (Angemeldet_) SQLDisconnect(Verbindung_);  // the server takes back what is open
  if (Verbindung_) SQLFreeHandle(SQL_HANDLE_DBC, Verbindung_);
  Anweisung_ = nullptr;
  Verbindung_ = nullptr;
  Angemeldet_ = false;
}

bool Odbc_Griffe::Verbinden(const Verbindungsdaten &Daten, QString &Fehler) {
  Trennen();
  Wartezeit_ = Daten.Wartezeit > 0 ? Daten.Wartezeit : Uebliche_Wartezeit;
  if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, Umgebung(), &Verbindung_))) {
    Fehler = QStringLiteral("no driver manager");
    Verbindung_ = nullptr;
    return false;
  }
  SQLSetConnectAttr(Verbindung_, SQL_ATTR_LOGIN_TIMEOUT, Odbc_Zahl(Wartezeit_), 0);
  const QString text = Odbc_Verbindungstext(Daten);
  Angemeldet_ = SQL_SUCCEEDED(SQLDriverConnectW(Verbindung_, nullptr, Odbc_Text(text), SQL_NTS, nullptr, 0,
                                                nullptr, SQL_DRIVER_NOPROMPT));
  if (Angemeldet_ && SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, Verbindung_, &Anweisung_))) {
    SQLSetStmtAttr(Anweisung_, SQL_ATTR_QUERY_TIMEOUT, Odbc_Zahl(Wartezeit_), 0);
    // A server can be set up otherwise: rows have to be counted, and a refused one must not end the batch.
    Odbc_Meldung meldung;
    if (Befehl("SET NOCOUNT OFF; SET XACT_ABORT OFF; SET IMPLICIT_TRANSACTIONS OFF", meldung)) return true;
    Fehler = meldung.Text;
    Trennen();
    return false;
  }
  Fehler = Meldung_lesen(SQL_HANDLE_DBC, Verbindung_).Text;
  Anweisung_ = nullptr;
  return false;
}

SQLHSTMT Odbc_Griffe::Anweisung() {
  SQLFreeStmt(Anweisung_, SQL_CLOSE);
  SQLFreeStmt(Anweisung_, SQL_RESET_PARAMS);
  return Anweisung_;
}

bool Odbc_Griffe::Tot() const {
  SQLUINTEGER tot = SQL_CD_TRUE;
  if (Angemeldet_) SQLGetConnectAttr(Verbindung_, SQL_ATTR_CONNECTION_DEAD, &tot, sizeof tot, nullptr);
  return tot == SQL_CD_TRUE;
}

bool Odbc_Griffe::Zu_Ende_fuehren(SQLLEN &Anzahl) {
  SQLRETURN rc = SQL_SUCCESS;
  while (SQL_SUCCEEDED(rc)) {
    // Of several counts the last is the statement's own; those before it are its triggers'.
    SQLLEN anzahl = -1;
    if (SQL_SUCCEEDED(SQLRowCount(Anweisung_, &anzahl)) && anzahl >= 0) Anzahl = anzahl;
    rc = SQLMoreResults(Anweisung_);
  }
  return rc == SQL_NO_DATA;
}

bool Odbc_Griffe::Befehl(const char *Sql, Odbc_Meldung &Meldung) {
  const QString text = QLatin1String(Sql);
  const SQLRETURN rc = SQLExecDirectW(Anweisung(), Odbc_Text(text), SQL_NTS);
  SQLLEN anzahl = 0;
  const bool gut = (SQL_SUCCEEDED(rc) || rc == SQL_NO_DATA) && Zu_Ende_fuehren(anzahl);
  if (!gut) Meldung = Meldung_von_Anweisung();
  Anweisung();
  return gut;
}

Odbc_Meldung Odbc_Griffe::Meldung_von_Anweisung() const { return Meldung_lesen(SQL_HANDLE_STMT, Anweisung_); }
Odbc_Meldung Odbc_Griffe::Meldung_von_Verbindung() const {
  return Meldung_lesen(SQL_HANDLE_DBC, Verbindung_);
}

}  // namespace marklink::db
