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

/// Some messages repeat a value, which may be a card or account number. They are known by their number: the
/// wording is of the login's language.
QString ohne_Werte(QString Text, int Nummer) {
  const auto alles = QRegularExpression::DotMatchesEverythingOption;
  static const QRegularExpression klammern(QStringLiteral("\\(.*\\)"), alles),
      anfuehrung(QStringLiteral("'.*'"), alles),
      dritte_Anfuehrung(QStringLiteral("^((?:[^']*'[^']*'){2}[^']*)'.*"), alles);
  switch (Nummer) {
    case 2601:  // a key that is there already, behind the names of constraint and table
    case 2627:
      return Text.replace(klammern, QStringLiteral("(...)"));
    case 2628:  // too long, behind the names of table and column
      return Text.replace(dritte_Anfuehrung, QStringLiteral("\\1'...'"));
    case 220:  // not to be converted, or out of the column's range
    case 235:
    case 241:
    case 242:
    case 244:
    case 245:
    case 248:
    case 8114:
    case 8115:
      return Text.replace(anfuehrung, QStringLiteral("'...'"));
    default:
      return Text;
  }
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
    alle.append(QStringLiteral("%1 %2 %3").arg(klasse).arg(nummer).arg(ohne_Werte(wortlaut, nummer)));
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

namespace {

struct Ort {
  QString Server, Anschluss;
};

/// "tcp:server,port", "server\\instance", "(local)"
Ort Ort_lesen(const QString &Quelle) {
  Ort ort{Quelle, {}};
  if (ort.Server.startsWith(QLatin1String("tcp:"), Qt::CaseInsensitive)) ort.Server = ort.Server.mid(4);
  const qsizetype komma = ort.Server.lastIndexOf(u',');
  if (komma >= 0) {
    ort.Anschluss = ort.Server.mid(komma + 1).trimmed();
    ort.Server = ort.Server.left(komma).trimmed();
  } else if (!ort.Server.contains(u'\\')) {
    ort.Anschluss = QStringLiteral("1433");
  }
  for (const char *hier : {"(local)", ".", "localhost"}) {
    const QString name = QLatin1String(hier);
    if (ort.Server.compare(name, Qt::CaseInsensitive) == 0) ort.Server = QStringLiteral("127.0.0.1");
    if (ort.Server.startsWith(name + u'\\', Qt::CaseInsensitive))
      ort.Server = QStringLiteral("127.0.0.1") + ort.Server.mid(name.size());
  }
  return ort;
}

}  // namespace

QString Odbc_Verbindungstext(const Verbindungsdaten &Daten) {
  const Ort ort = Ort_lesen(Daten.Quelle);
  QList<std::pair<const char *, QString>> werte{{"SERVER", ort.Server}};
  if (!ort.Anschluss.isEmpty()) werte.append({"PORT", ort.Anschluss});
  if (!Daten.Benutzer.isEmpty()) werte.append({{"UID", Daten.Benutzer}, {"PWD", Daten.Passwort}});
  werte.append({"DATABASE", Daten.Katalog});
  QString text = QStringLiteral("DRIVER=") + Treiber_finden() + u';';
  for (const auto &[name, wert] : werte) {
    // In braces anything may stand; FreeTDS takes a closing one for the end only before ";", and none
    // doubled.
    if (wert.contains(QLatin1String("};")) || wert.contains(QChar(0))) return {};
    text += QLatin1String(name) + QStringLiteral("={") + wert + QStringLiteral("};");
  }
  if (Daten.Benutzer.isEmpty()) text += QStringLiteral("Trusted_Connection=Yes;");
  // "Timeout" is for what no statement has: a server that does not even answer the giving up of one.
  return text + QStringLiteral("TDS_Version=7.4;Timeout=%1;").arg(Odbc_Wartezeit(Daten));
}

int Odbc_Wartezeit(const Verbindungsdaten &Daten) {
  return Daten.Wartezeit > 0 ? Daten.Wartezeit : Uebliche_Wartezeit;
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
  const QString text = Odbc_Verbindungstext(Daten);
  if (text.isEmpty()) {
    Fehler = QStringLiteral("the driver cannot be told a value that holds \"};\"");
    return false;
  }
  if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, Umgebung(), &Verbindung_))) {
    Fehler = QStringLiteral("no driver manager");
    Verbindung_ = nullptr;
    return false;
  }
  const SQLPOINTER wartezeit = Odbc_Zahl(Odbc_Wartezeit(Daten));
  SQLSetConnectAttr(Verbindung_, SQL_ATTR_LOGIN_TIMEOUT, wartezeit, 0);
  Angemeldet_ = SQL_SUCCEEDED(SQLDriverConnectW(Verbindung_, nullptr, Odbc_Text(text), SQL_NTS, nullptr, 0,
                                                nullptr, SQL_DRIVER_NOPROMPT));
  if (Angemeldet_ && SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, Verbindung_, &Anweisung_))) {
    SQLSetStmtAttr(Anweisung_, SQL_ATTR_QUERY_TIMEOUT, wartezeit, 0);
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
