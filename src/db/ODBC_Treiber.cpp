// SQL Server: through ODBC's C interface and FreeTDS.
//
// Each statement goes out with its values apart in one round trip; the server keeps its plan by the text.
// Once a connection has written a batch it keeps a transaction open: the end of one begins the next in the
// same round trip, and one in which nothing was written holds nothing.
#include <QElapsedTimer>
#include <QHash>

#include "Ablaufverfolgung.h"
#include "ODBC_Plan.h"
#include "ODBC_Werte.h"
#include "Treiber.h"

namespace marklink::db {

namespace {

constexpr qint64 Langsam_ms = 1000;  ///< a login that fails later than that was waited for
constexpr qint64 Schonzeit_ms = 5000;

class ODBC_Sitzung final : public Sitzung {
 public:
  ODBC_Sitzung(Verbindungsdaten Daten, std::shared_ptr<Odbc_Katalog> Katalog)
      : Daten_(std::move(Daten)), Plaene_(std::move(Katalog)) {}

  bool Verbinden();
  bool Brauchbar() override { return !Verloren_ && !Griffe_.Tot(); }
  std::shared_ptr<const Spaltensatz> Beschreiben(const Anweisung &Sql) override;
  bool Lesen(const Anweisung &Sql, Ergebnis &Ziel) override;
  bool Beginnen() override;
  bool Abschliessen() override { return Transaktion_beenden(SQL_COMMIT); }
  void Verwerfen() override {
    if (!Griffe_.Tot()) Transaktion_beenden(SQL_ROLLBACK);
    In_Transaktion_ = false;
  }
  Schreibstand Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                         const std::vector<const Feld *> &Felder) override;
  qint64 Letzte_Nummer() override { return Letzte_Nummer_; }
  QByteArray Zeilennummer_Spalte() const override { return {}; }
  QByteArray Unveraendert(const Feld &Spalte) const override {
    const QByteArray genau = Spalte.Art == Feldart::Text ? " COLLATE Latin1_General_BIN2" : "";
    return "EXISTS (SELECT " + Spalte.Geklammert + genau + " INTERSECT SELECT ?)";
  }
  QString Fehler() const override { return Fehler_; }

 private:
  enum class Ausgang { Gut, Gescheitert, Veraltet };
  Ausgang versuchen(const Anweisung &Sql, Ergebnis &Ziel, bool Zuletzt);
  bool Zeilen_holen(SQLHSTMT Stmt, Ergebnis &Ziel);
  bool Zu_Ende_fuehren(SQLHSTMT Stmt);
  bool Ausfuehren(const QString &Sql, Odbc_Parameter &Werte);
  bool Nummer_lesen();
  void Scheitern_merken(const Odbc_Meldung &Meldung);
  bool Transaktion_beenden(SQLSMALLINT Wie);
  bool Transaktion_verloren();

  Verbindungsdaten Daten_;
  Odbc_Griffe Griffe_;
  Odbc_Plaene Plaene_;
  bool Selbst_abschliessen_ = true;  ///< no transaction is open
  bool In_Transaktion_ = false;      ///< between Beginnen() and its end
  bool Unberuehrt_ = false;          ///< nothing was written in it yet
  bool Verloren_ = false;
  bool Zurueckgerollt_ = false;
  qint64 Letzte_Nummer_ = 0;
  QString Fehler_;
};

bool ODBC_Sitzung::Verbinden() {
  Selbst_abschliessen_ = true;
  Verloren_ = !Griffe_.Verbinden(Daten_, Fehler_);
  return !Verloren_;
}

void ODBC_Sitzung::Scheitern_merken(const Odbc_Meldung &Meldung) {
  Fehler_ = Meldung.Text;
  Verloren_ = Meldung.Verloren || Griffe_.Tot();
  Zurueckgerollt_ = Meldung.Zurueckgerollt;
}

std::shared_ptr<const Spaltensatz> ODBC_Sitzung::Beschreiben(const Anweisung &Sql) {
  for (int versuch = 0;; ++versuch) {
    const auto plan = Plaene_.Planen(Griffe_, Sql);
    if (!plan) {
      Fehler_ = QStringLiteral("not one statement of this dialect");
      return nullptr;
    }
    if (plan->Form.Ganze_Tabelle) {
      if (const auto satz = Odbc_Tabelle_beschreiben(*plan->Tabellen[0], plan->Form.Einzeltabelle))
        return satz;
    }
    Verloren_ = Griffe_.Tot();
    // A table that the catalogue does not tell of: reading it tells more, or why not.
    if (!Verloren_) return std::make_shared<Spaltensatz>();
    Fehler_ = QStringLiteral("the connection is lost");
    if (versuch > 0 || !Verbinden()) return nullptr;
  }
}

bool ODBC_Sitzung::Ausfuehren(const QString &Sql, Odbc_Parameter &Werte) {
  const SQLHSTMT stmt = Griffe_.Anweisung();
  const bool gebunden = Werte.Binden(stmt);
  const SQLRETURN rc = gebunden ? SQLExecDirectW(stmt, Odbc_Text(Sql), SQL_NTS) : SQLRETURN(SQL_ERROR);
  if (SQL_SUCCEEDED(rc) || rc == SQL_NO_DATA) return true;
  Scheitern_merken(Griffe_.Meldung_von_Anweisung());
  return false;
}

bool ODBC_Sitzung::Zeilen_holen(SQLHSTMT Stmt, Ergebnis &Ziel) {
  const Spaltensatz &spalten = *Ziel.Spalten;
  for (;;) {
    const SQLRETURN rc = SQLFetch(Stmt);
    if (rc == SQL_NO_DATA) return true;
    bool gut = SQL_SUCCEEDED(rc);
    Zelle *zeile = Ziel.Lager.Zellen(spalten.Zellen());
    for (std::size_t i = 0; gut && i < spalten.Felder.size(); ++i)
      gut = Odbc_Zelle_holen(Stmt, static_cast<int>(i), spalten.Felder[i].Art, Ziel.Lager, zeile[i]);
    if (!gut) {
      Scheitern_merken(Griffe_.Meldung_von_Anweisung());
      return false;
    }
    if (spalten.Nummer_aus_Schluessel)
      zeile[spalten.Zeilennummer] = Zelle::aus_Ganz(Schluesselnummer(spalten, zeile));
    Ziel.Zeilen.push_back(zeile);
  }
}

/// A statement may fail behind its first result, too.
bool ODBC_Sitzung::Zu_Ende_fuehren(SQLHSTMT Stmt) {
  SQLRETURN rc = SQL_SUCCESS;
  while (SQL_SUCCEEDED(rc)) rc = SQLMoreResults(Stmt);
  if (rc == SQL_NO_DATA) return true;
  Scheitern_merken(Griffe_.Meldung_von_Anweisung());
  return false;
}

ODBC_Sitzung::Ausgang ODBC_Sitzung::versuchen(const Anweisung &Sql, Ergebnis &Ziel, bool Zuletzt) {
  const auto plan = Plaene_.Planen(Griffe_, Sql);
  if (!plan) {
    Fehler_ = QStringLiteral("not one statement of this dialect");
    return Ausgang::Gescheitert;
  }
  Odbc_Parameter werte;
  for (const int i : plan->Werte) werte.Anweisungswert(Sql.Stuecke()[static_cast<std::size_t>(i)]);
  if (!Ausfuehren(plan->Sql, werte))
    return plan->Liest && Verloren_ ? Ausgang::Veraltet : Ausgang::Gescheitert;
  const SQLHSTMT stmt = Griffe_.Offene_Anweisung();
  bool passt = true;
  Ziel.Spalten = Plaene_.Beschreiben(stmt, *plan, passt);
  if (!passt && !Zuletzt) return Ausgang::Veraltet;
  const bool gut = Ziel.Spalten ? Zeilen_holen(stmt, Ziel) : Zu_Ende_fuehren(stmt);
  if (!gut) return plan->Liest && Verloren_ ? Ausgang::Veraltet : Ausgang::Gescheitert;
  const bool abzuschliessen = !plan->Liest && !Selbst_abschliessen_ && !In_Transaktion_;
  return !abzuschliessen || Transaktion_beenden(SQL_COMMIT) ? Ausgang::Gut : Ausgang::Gescheitert;
}

bool ODBC_Sitzung::Lesen(const Anweisung &Sql, Ergebnis &Ziel) {
  Ausgang ausgang = versuchen(Sql, Ziel, In_Transaktion_);
  if (ausgang == Ausgang::Veraltet && !In_Transaktion_) {
    // Either the connection was cut while nobody used it, or a table has other columns than it had.
    Ziel.Zeilen.clear();
    const bool verbunden = !Verloren_ || Verbinden();
    Plaene_.vergessen();
    if (verbunden) ausgang = versuchen(Sql, Ziel, true);
  }
  if (ausgang != Ausgang::Gut) {
    Ziel.Zeilen.clear();
    // Perhaps a table or column that is gone.
    if (!Verloren_) Plaene_.vergessen();
  }
  Griffe_.Anweisung();
  return ausgang == Ausgang::Gut;
}

bool ODBC_Sitzung::Beginnen() {
  for (int versuch = 0; Selbst_abschliessen_; ++versuch) {
    const SQLRETURN rc =
        SQLSetConnectAttr(Griffe_.Verbindung(), SQL_ATTR_AUTOCOMMIT, Odbc_Zahl(SQL_AUTOCOMMIT_OFF), 0);
    if (SQL_SUCCEEDED(rc)) {
      Selbst_abschliessen_ = false;
      break;
    }
    Scheitern_merken(Griffe_.Meldung_von_Verbindung());
    if (!Verloren_ || versuch > 0 || !Verbinden()) return false;
  }
  In_Transaktion_ = true;
  Unberuehrt_ = true;
  return true;
}

bool ODBC_Sitzung::Transaktion_beenden(SQLSMALLINT Wie) {
  Griffe_.Anweisung();
  In_Transaktion_ = false;
  if (SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, Griffe_.Verbindung(), Wie))) return true;
  Scheitern_merken(Griffe_.Meldung_von_Verbindung());
  Verloren_ = true;  // whether it has a transaction open nobody knows
  return false;
}

/// Whether a statement that failed took the whole transaction with it.
bool ODBC_Sitzung::Transaktion_verloren() {
  if (Verloren_ || Zurueckgerollt_) return true;
  const QString fehler = Fehler_;
  Odbc_Parameter keine;
  Zelle tiefe;
  Speicher lager;
  const bool gefragt = Ausfuehren(QStringLiteral("SELECT @@TRANCOUNT"), keine) &&
                       SQL_SUCCEEDED(SQLFetch(Griffe_.Offene_Anweisung())) &&
                       Odbc_Zelle_holen(Griffe_.Offene_Anweisung(), 0, Feldart::Ganzzahl, lager, tiefe);
  Griffe_.Anweisung();
  Fehler_ = fehler;
  return !gefragt || tiefe.Ganz == 0;
}

/// The number of the row just inserted; it comes as a second result.
bool ODBC_Sitzung::Nummer_lesen() {
  const SQLHSTMT stmt = Griffe_.Offene_Anweisung();
  SQLSMALLINT spalten = 0;
  SQLRETURN rc = SQL_SUCCESS;
  while (SQL_SUCCEEDED(rc) && SQL_SUCCEEDED(SQLNumResultCols(stmt, &spalten)) && spalten == 0)
    rc = SQLMoreResults(stmt);
  Letzte_Nummer_ = 0;
  Zelle nummer;
  Speicher lager;
  if (SQL_SUCCEEDED(rc) && spalten > 0 && SQL_SUCCEEDED(SQLFetch(stmt)) &&
      Odbc_Zelle_holen(stmt, 0, Feldart::Ganzzahl, lager, nummer)) {
    Letzte_Nummer_ = nummer.ist_Null() ? 0 : nummer.Ganz;
    return true;
  }
  if (rc == SQL_NO_DATA) return true;
  Scheitern_merken(Griffe_.Meldung_von_Anweisung());
  return false;
}

Schreibstand ODBC_Sitzung::Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                                     const std::vector<const Feld *> &Felder) {
  Odbc_Parameter werte;
  for (std::size_t i = 0; i < Werte.size(); ++i) {
    if (werte.Zelle_anfuegen(Werte[i], Felder[i])) continue;
    Fehler_ = QStringLiteral("a value is no date");
    return Schreibstand::Abgelehnt;
  }
  const bool einfuegen = Sql.startsWith("INSERT");
  const QString text =
      QString::fromUtf8(Sql) + (einfuegen ? QStringLiteral("; SELECT SCOPE_IDENTITY()") : QString());
  bool gut = Ausfuehren(text, werte);
  // Nothing of this transaction can have reached the books: it may start again on another connection.
  if (!gut && Verloren_ && Unberuehrt_ && Verbinden() && Beginnen()) gut = Ausfuehren(text, werte);
  SQLLEN zeilen = 1;
  if (gut && einfuegen) gut = Nummer_lesen();
  if (gut && !einfuegen) gut = SQL_SUCCEEDED(SQLRowCount(Griffe_.Offene_Anweisung(), &zeilen));
  Griffe_.Anweisung();
  if (gut) {
    Unberuehrt_ = false;
    return zeilen != 0 ? Schreibstand::Geschrieben : Schreibstand::Keine_Zeile;
  }
  return Transaktion_verloren() ? Schreibstand::Abgebrochen : Schreibstand::Abgelehnt;
}

class Treiber_ODBC final : public Treiber {
 public:
  std::unique_ptr<Sitzung> Oeffnen(const Verbindungsdaten &Daten, QString &Fehler) override;

 private:
  struct Server {
    std::weak_ptr<Odbc_Katalog> Katalog;
    QElapsedTimer Vergeblich;  ///< since a login was waited for in vain
    QString Fehler;
  };
  QHash<QString, Server> Server_;
};

std::unique_ptr<Sitzung> Treiber_ODBC::Oeffnen(const Verbindungsdaten &Daten, QString &Fehler) {
  Server &server = Server_[Odbc_Verbindungstext(Daten)];
  // A routine opens many connections; a server that does not answer is waited for once.
  if (server.Vergeblich.isValid() && !server.Vergeblich.hasExpired(Schonzeit_ms)) {
    Fehler = server.Fehler;
    return nullptr;
  }
  server.Vergeblich.invalidate();
  auto katalog = server.Katalog.lock();
  if (!katalog) {
    katalog = std::make_shared<Odbc_Katalog>();
    server.Katalog = katalog;
  }
  auto sitzung = std::make_unique<ODBC_Sitzung>(Daten, katalog);
  QElapsedTimer uhr;
  uhr.start();
  if (sitzung->Verbinden()) return sitzung;
  Fehler = sitzung->Fehler();
  if (uhr.elapsed() >= Langsam_ms) {
    server.Vergeblich.start();
    server.Fehler = Fehler;
  }
  return nullptr;
}

}  // namespace

Treiber &ODBC_Treiber() {
  static Treiber_ODBC treiber;
  return treiber;
}

}  // namespace marklink::db
