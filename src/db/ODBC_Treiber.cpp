// SQL Server: through ODBC's C interface and FreeTDS.
//
// Each statement goes out with its values apart in one round trip; the server keeps its plan by the text.
#include <QHash>

#include "ODBC_Plan.h"
#include "ODBC_Server.h"
#include "ODBC_Transaktion.h"
#include "ODBC_Werte.h"
#include "Treiber.h"

namespace marklink::db {

namespace {

class ODBC_Sitzung final : public Sitzung {
 public:
  ODBC_Sitzung(Verbindungsdaten Daten, std::shared_ptr<Odbc_Server> Server)
      : Daten_(std::move(Daten)), Server_(std::move(Server)), Plaene_(Server_->Katalog()) {}

  bool Verbinden();
  bool Brauchbar() override { return !Verloren_ && !Griffe_.Tot(); }
  std::shared_ptr<const Spaltensatz> Beschreiben(const Anweisung &Sql) override;
  bool Lesen(const Anweisung &Sql, Ergebnis &Ziel) override;
  bool Beginnen() override;
  bool Abschliessen() override;
  bool Abschluss_ungewiss() const override { return Ungewiss_; }
  void Verwerfen() override;
  Schreibstand Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                         const std::vector<const Feld *> &Felder) override;
  qint64 Letzte_Nummer() override { return Letzte_Nummer_; }
  QByteArray Zeilennummer_Spalte() const override { return {}; }
  QByteArray Unveraendert(const Feld &Spalte) const override { return Spalte.Unveraendert; }
  QString Fehler() const override { return Meldung_.Text; }

 private:
  enum class Ausgang { Gut, Gescheitert, Veraltet };
  Ausgang versuchen(const Anweisung &Sql, Ergebnis &Ziel, bool Zuletzt);
  bool Zeilen_holen(SQLHSTMT Stmt, Ergebnis &Ziel);
  bool Ausfuehren(const QString &Sql, Odbc_Parameter &Werte);
  bool Einfuegen_beenden();
  bool scheitern(const Odbc_Meldung &Meldung);
  bool scheitern(const char *Grund);
  bool Transaktion_verloren();
  void Offenes_aufgeben();

  Verbindungsdaten Daten_;
  std::shared_ptr<Odbc_Server> Server_;
  Odbc_Griffe Griffe_;
  Odbc_Transaktion Transaktion_{Griffe_};
  Odbc_Plaene Plaene_;
  bool In_Stapel_ = false;   ///< between Beginnen() and its end
  bool Unberuehrt_ = false;  ///< nothing was written in it yet
  bool Verloren_ = false;    ///< the connection is gone, or nobody knows what is open on it
  bool Ungewiss_ = false;    ///< how the last commit ended nobody knows
  Odbc_Meldung Meldung_;     ///< of what failed last
  qint64 Letzte_Nummer_ = 0;
};

bool ODBC_Sitzung::Verbinden() {
  Transaktion_.vergessen();
  Meldung_ = {};
  Verloren_ = !Server_->Anmelden(Griffe_, Daten_, Meldung_.Text);
  return !Verloren_;
}

/// Always false. Who has waited in vain lets the connection go: the server ends what is open on it.
bool ODBC_Sitzung::scheitern(const Odbc_Meldung &Meldung) {
  Meldung_ = Meldung;
  Verloren_ = Meldung.Verloren || Meldung.Gewartet || Griffe_.Tot();
  // Known otherwise until now; a transaction goes on as it began.
  if (Meldung.Andere_Gestalt) Plaene_.vergessen();
  return false;
}

bool ODBC_Sitzung::scheitern(const char *Grund) {
  Meldung_ = {QLatin1String(Grund)};
  return false;
}

std::shared_ptr<const Spaltensatz> ODBC_Sitzung::Beschreiben(const Anweisung &Sql) {
  for (int versuch = 0;; ++versuch) {
    Odbc_Meldung meldung;
    const auto plan = Plaene_.Planen(Griffe_, Sql, meldung);
    if (!plan) {
      scheitern(meldung);
      if (Verloren_ && !meldung.Gewartet && versuch == 0 && Verbinden()) continue;
      Offenes_aufgeben();
      return nullptr;
    }
    if (plan->Form.Ganze_Tabelle) {
      if (const auto satz = Odbc_Tabelle_beschreiben(*plan->Tabellen[0], plan->Form.Einzeltabelle))
        return satz;
    }
    Verloren_ = Griffe_.Tot();
    // A table that the catalogue does not tell of: reading it tells more, or why not.
    if (!Verloren_) return std::make_shared<Spaltensatz>();
    scheitern("the connection is lost");
    if (versuch > 0 || !Verbinden()) return nullptr;
  }
}

bool ODBC_Sitzung::Ausfuehren(const QString &Sql, Odbc_Parameter &Werte) {
  const SQLHSTMT stmt = Griffe_.Anweisung();
  const bool gebunden = Werte.Binden(stmt);
  const SQLRETURN rc = gebunden ? SQLExecDirectW(stmt, Odbc_Text(Sql), SQL_NTS) : SQLRETURN(SQL_ERROR);
  return SQL_SUCCEEDED(rc) || rc == SQL_NO_DATA || scheitern(Griffe_.Meldung_von_Anweisung());
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
    if (!gut) return scheitern(Griffe_.Meldung_von_Anweisung());
    if (spalten.Nummer_aus_Schluessel)
      zeile[spalten.Zeilennummer] = Zelle::aus_Ganz(Schluesselnummer(spalten, zeile));
    Ziel.Zeilen.push_back(zeile);
  }
}

/// Veraltet: it may be tried again, on a new connection or knowing the tables as they are now.
ODBC_Sitzung::Ausgang ODBC_Sitzung::versuchen(const Anweisung &Sql, Ergebnis &Ziel, bool Zuletzt) {
  const auto gescheitert = [this] {
    return Verloren_ && !Meldung_.Gewartet ? Ausgang::Veraltet : Ausgang::Gescheitert;
  };
  Odbc_Meldung meldung;
  const auto plan = Plaene_.Planen(Griffe_, Sql, meldung);
  if (!plan) {
    scheitern(meldung);
    return gescheitert();
  }
  // What changes rows has a transaction, too: until that ends nothing is written, and it may start again.
  const bool allein = !plan->Liest && !In_Stapel_;
  if (allein && !Transaktion_.Beginnen(meldung)) {
    scheitern(meldung);
    return gescheitert();
  }
  Odbc_Parameter werte;
  for (const int i : plan->Werte) werte.Anweisungswert(Sql.Stuecke()[static_cast<std::size_t>(i)]);
  if (!Ausfuehren(plan->Sql, werte)) return gescheitert();
  if (!plan->Liest) Unberuehrt_ = false;
  const SQLHSTMT stmt = Griffe_.Offene_Anweisung();
  bool passt = true;
  Ziel.Spalten = Plaene_.Beschreiben(stmt, *plan, passt);
  if (!passt && !Zuletzt) return Ausgang::Veraltet;
  SQLLEN anzahl = 0;
  const bool gut = Ziel.Spalten
                       ? Zeilen_holen(stmt, Ziel)
                       : Griffe_.Zu_Ende_fuehren(anzahl) || scheitern(Griffe_.Meldung_von_Anweisung());
  if (!gut) return gescheitert();
  return !allein || Abschliessen() ? Ausgang::Gut : Ausgang::Gescheitert;
}

bool ODBC_Sitzung::Lesen(const Anweisung &Sql, Ergebnis &Ziel) {
  Ausgang ausgang = versuchen(Sql, Ziel, In_Stapel_);
  if (ausgang == Ausgang::Veraltet && !In_Stapel_) {
    // Either the connection was cut while nobody used it, or a table has other columns than it had.
    Ziel.Zeilen.clear();
    const bool verbunden = !Verloren_ || Verbinden();
    Plaene_.vergessen();
    if (verbunden) ausgang = versuchen(Sql, Ziel, true);
  }
  if (ausgang != Ausgang::Gut) {
    Ziel.Zeilen.clear();
    Offenes_aufgeben();
  }
  Griffe_.Anweisung();
  return ausgang == Ausgang::Gut;
}

/// After a failure outside a batch: the server may have ended the transaction, or hold locks in it still, and
/// the next batch needs a sound one.
void ODBC_Sitzung::Offenes_aufgeben() {
  Odbc_Meldung dabei;
  if (!In_Stapel_ && !Verloren_) Transaktion_.Zurueckrollen(dabei);
  Verloren_ |= dabei.Verloren || dabei.Gewartet;
}

bool ODBC_Sitzung::Beginnen() {
  Odbc_Meldung meldung;
  for (int versuch = 0; !Transaktion_.Beginnen(meldung); ++versuch) {
    scheitern(meldung);
    if (!Verloren_ || meldung.Gewartet || versuch > 0 || !Verbinden()) return false;
  }
  In_Stapel_ = true;
  Unberuehrt_ = true;
  return true;
}

bool ODBC_Sitzung::Abschliessen() {
  In_Stapel_ = false;
  Odbc_Meldung meldung;
  Ungewiss_ = !Transaktion_.Abschliessen(meldung);
  if (!Ungewiss_) return true;
  scheitern(meldung);
  Verloren_ = true;  // whether it has a transaction open nobody knows
  return false;
}

void ODBC_Sitzung::Verwerfen() {
  In_Stapel_ = false;
  if (Verloren_) return;
  Odbc_Meldung meldung;
  Transaktion_.Zurueckrollen(meldung);
  Verloren_ = meldung.Verloren || meldung.Gewartet || Griffe_.Tot();
}

/// Whether a statement that failed took the whole transaction with it.
bool ODBC_Sitzung::Transaktion_verloren() {
  if (Verloren_ || Meldung_.Zurueckgerollt) return true;
  const Odbc_Meldung grund = Meldung_;
  Odbc_Parameter keine;
  Zelle tiefe;
  Speicher lager;
  const bool gefragt = Ausfuehren(QStringLiteral("SELECT @@TRANCOUNT"), keine) &&
                       SQL_SUCCEEDED(SQLFetch(Griffe_.Offene_Anweisung())) &&
                       Odbc_Zelle_holen(Griffe_.Offene_Anweisung(), 0, Feldart::Ganzzahl, lager, tiefe);
  Griffe_.Anweisung();
  Meldung_ = grund;
  return !gefragt || tiefe.Ganz == 0;
}

/// Reads the number of the row just inserted, which comes as the last result with columns: a trigger may have
/// results of its own.
bool ODBC_Sitzung::Einfuegen_beenden() {
  const SQLHSTMT stmt = Griffe_.Offene_Anweisung();
  SQLRETURN rc = SQL_SUCCESS;
  for (Letzte_Nummer_ = 0; SQL_SUCCEEDED(rc); rc = SQLMoreResults(stmt)) {
    SQLSMALLINT spalten = 0;
    Zelle nummer;
    Speicher lager;
    if (SQL_SUCCEEDED(SQLNumResultCols(stmt, &spalten)) && spalten > 0 && SQL_SUCCEEDED(SQLFetch(stmt)) &&
        Odbc_Zelle_holen(stmt, 0, Feldart::Ganzzahl, lager, nummer))
      Letzte_Nummer_ = nummer.ist_Null() ? 0 : nummer.Ganz;
  }
  return rc == SQL_NO_DATA || scheitern(Griffe_.Meldung_von_Anweisung());
}

Schreibstand ODBC_Sitzung::Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                                     const std::vector<const Feld *> &Felder) {
  Odbc_Parameter werte;
  for (std::size_t i = 0; i < Werte.size(); ++i) {
    if (werte.Zelle_anfuegen(Werte[i], Felder[i])) continue;
    scheitern("a value is no date");
    return Schreibstand::Abgelehnt;
  }
  const bool einfuegen = Sql.startsWith("INSERT");
  const QString text =
      QString::fromUtf8(Sql) + (einfuegen ? QStringLiteral("; SELECT SCOPE_IDENTITY()") : QString());
  bool gut = Ausfuehren(text, werte);
  // Nothing of this transaction can have reached the books: it may start again on another connection.
  if (!gut && Verloren_ && !Meldung_.Gewartet && Unberuehrt_ && Verbinden() && Beginnen())
    gut = Ausfuehren(text, werte);
  SQLLEN zeilen = 1;
  if (gut) {
    gut = einfuegen ? Einfuegen_beenden()
                    : Griffe_.Zu_Ende_fuehren(zeilen) || scheitern(Griffe_.Meldung_von_Anweisung());
  }
  Griffe_.Anweisung();
  if (gut) {
    Unberuehrt_ = false;
    return zeilen != 0 ? Schreibstand::Geschrieben : Schreibstand::Keine_Zeile;
  }
  return Transaktion_verloren() ? Schreibstand::Abgebrochen : Schreibstand::Abgelehnt;
}

class Treiber_ODBC final : public Treiber {
 public:
  std::unique_ptr<Sitzung> Oeffnen(const Verbindungsdaten &Daten, QString &Fehler) override {
    auto &server = Server_[Odbc_Verbindungstext(Daten)];
    if (!server) server = std::make_shared<Odbc_Server>();
    auto sitzung = std::make_unique<ODBC_Sitzung>(Daten, server);
    if (sitzung->Verbinden()) return sitzung;
    Fehler = sitzung->Fehler();
    return nullptr;
  }

 private:
  QHash<QString, std::shared_ptr<Odbc_Server>> Server_;
};

}  // namespace

Treiber &ODBC_Treiber() {
  static Treiber_ODBC treiber;
  return treiber;
}

}  // namespace marklink::db
