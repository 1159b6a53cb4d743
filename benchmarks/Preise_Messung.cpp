// What finding a price costs: beside the same look-ups by prepared statements on the same file, and with many
// articles beside few. Usage: Preise_Messung [--schnell]. All sides take turns, so that whatever else the
// machine does meets each of them.
#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "rules/Preisfindung.h"

namespace marklink::messung {
namespace {

constexpr int WENIGE = 1000;
constexpr int VIELE = 100000;
constexpr int KUNDEN = 1000;
constexpr int STRECKE = 20;  ///< findings measured in one go
constexpr double ZIEL_VON_HAND = 3.0;
constexpr double ZIEL_VIELE = 1.2;

/// One finding: the same pseudo-random mix for every side. Articles are spread over the whole table.
struct Frage {
  QString Artikel, Kunde;
  double Menge;
};

QString Artikelnummer(int n) { return QStringLiteral("ART-%1").arg(n, 6, 10, QLatin1Char('0')); }
QString Kundennummer(int n) { return QString::number(10000 + n); }

std::vector<Frage> Fragen_stellen(int Artikelzahl, int Anzahl) {
  std::vector<Frage> fragen;
  quint32 zufall = 20240615;
  const auto naechste = [&zufall](int bis) {
    zufall = zufall * 1664525U + 1013904223U;
    return int((zufall >> 8) % quint32(bis));
  };
  for (int i = 0; i < Anzahl; ++i)
    fragen.push_back(
        {Artikelnummer(naechste(Artikelzahl)), Kundennummer(naechste(KUNDEN)), double(1 + naechste(30))});
  return fragen;
}

// --- the client -------------------------------------------------------------------------------------------

class Fueller {
 public:
  explicit Fueller(sqlite3 *Db) : Db_(Db) {}
  bool Gut() const { return Gut_; }
  void Lauf(const char *Sql) {
    Gut_ = sqlite3_exec(Db_, Sql, nullptr, nullptr, nullptr) == SQLITE_OK && Gut_;
  }

 private:
  sqlite3 *Db_;
  bool Gut_ = true;
};

/// Five price rows an article: two scale rows, a group price, one of its scale, and a special price or a line
/// of a customer's price list.
bool Mandant_fuellen(const QString &Datei, int Artikelzahl) {
  sqlite3 *db = nullptr;
  if (sqlite3_open(QFile::encodeName(Datei).constData(), &db) != SQLITE_OK) return false;
  Fueller f(db);
  const QByteArray zahlen = "WITH RECURSIVE z(n) AS (SELECT 0 UNION ALL SELECT n+1 FROM z WHERE n+1 < ";
  const QByteArray artikel = zahlen + QByteArray::number(Artikelzahl) + "), ";
  const QByteArray a = artikel + "a AS (SELECT n, printf('ART-%06d', n) AS nr, 5 + n % 400 AS p FROM z) ";
  const auto fuellen = [&f](const QByteArray &ziel, const QByteArray &mit, const char *auswahl) {
    f.Lauf(("INSERT INTO " + ziel + " " + mit + auswahl).constData());
  };
  f.Lauf("BEGIN");
  f.Lauf("INSERT INTO Taxes (TaxKeyNumber, Percentage) VALUES ('1', 19), ('2', 7)");
  f.Lauf(
      "INSERT INTO ArticleTypes (Description, Stock, Variant) VALUES ('Ware', -1, 0), ('Variante', -1, -1)");
  f.Lauf(
      "INSERT INTO CustomerTypes (Description, BlockingPricing, SpecialOfferPrice) VALUES ('Händler 0', -1, "
      "-1),"
      " ('Händler 1', 0, -1), ('Händler 2', -1, 0), ('Händler 3', 0, 0)");
  fuellen(
      "Contacts (CustomerNumber, CustomerType)", zahlen + QByteArray::number(KUNDEN) + ") ",
      "SELECT printf('%d', 10000 + n), CASE WHEN n % 5 = 4 THEN NULL ELSE 'Händler ' || (n % 5) END FROM z");
  fuellen(
      "Articles (ArticleNumber, ArticleNumberVariant, ShortText, LongText, ArticleType, VatCode, NetPrice,"
      " VatAmount, GrossPrice, SpecialOfferPrice)",
      a,
      "SELECT nr, 'ART-000000', 'Wanderschuh ' || n, 'Fester Schuh für weite Wege, mit griffiger Sohle.',"
      " CASE WHEN n % 9 = 0 THEN 'Variante' ELSE 'Ware' END, '1', p, p * 0.19, p * 1.19, -(n % 2) FROM a");
  fuellen("ArticleBlockpricing",
          artikel +
              "a AS (SELECT n, printf('ART-%06d', n) AS nr, 5 + n % 400 AS p FROM z),"
              " s(menge, f) AS (VALUES (5, 0.95), (10, 0.9)) ",
          "SELECT nr, menge, p * f, p * f * 0.19, p * f * 1.19 FROM a, s");
  fuellen("ArticleCustomerTypePrices (ArticleNumber, CustomerType, VatCode, NetPrice, VatAmount, GrossPrice)",
          a, "SELECT nr, 'Händler ' || (n % 4), '1', p * 0.8, p * 0.152, p * 0.952 FROM a");
  fuellen(
      "ArticleCustomerTypePricesBlockpricing (ArticleNumber, CustomerType, Quantity, NetPrice, VatAmount,"
      " GrossPrice)",
      a, "SELECT nr, 'Händler ' || (n % 4), 20, p * 0.7, p * 0.133, p * 0.833 FROM a");
  fuellen(
      "ArticleSpecialprices (ArticleNumber, Description, NetPrice, VatAmount, GrossPrice, VatCode, DateFrom,"
      " DateTo)",
      a,
      "SELECT nr, 'Aktion', p * 0.5, p * 0.095, p * 0.595, '1', '2024-01-01 00:00:00',"
      " CASE WHEN n % 4 = 0 THEN '2024-02-01 00:00:00' ELSE '2024-12-31 00:00:00' END FROM a WHERE n % 10 < "
      "9");
  fuellen(
      "ContactPricelist (CustomerNumber, ArticleNumber, ShortText, NetPrice, VatAmount, GrossPrice, VatCode)",
      a,
      "SELECT printf('%d', 10000 + n % 1000), nr, 'Wanderschuh', p * 0.6, p * 0.114, p * 0.714, '1' FROM a"
      " WHERE n % 10 = 9");
  f.Lauf("COMMIT");
  f.Lauf("PRAGMA wal_checkpoint(TRUNCATE)");
  sqlite3_close(db);
  return f.Gut();
}

struct Mandant {
  Mandant(const QString &Ordner, int Anzahl)
      : Datei(Ordner + QStringLiteral("/a%1.mdb").arg(Anzahl)), Artikelzahl(Anzahl) {
    K.gHeute = QDate(2024, 6, 15);
    K.gConnectionString = QStringLiteral("Provider=SQLite;Data Source=") + Datei +
                          QStringLiteral(";Jet OLEDB:Database Password=481902");
  }
  bool Anlegen() const {
    return db::Datenbank_anlegen(K.gConnectionString) && Mandant_fuellen(Datei, Artikelzahl);
  }
  QString Datei;
  int Artikelzahl;
  Programmkontext K;
};

// --- the same look-ups by hand ----------------------------------------------------------------------------

/// The statements of a finding, prepared once on one connection; of the rows only the fields
/// that count are read.
class Von_Hand {
 public:
  explicit Von_Hand(const QString &Datei) {
    sqlite3_open_v2(QFile::encodeName(Datei).constData(), &Db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    Liste_ = Vorbereiten("SELECT * FROM ContactPricelist WHERE ArticleNumber = ? AND CustomerNumber = ?");
    Kunde_ = Vorbereiten("SELECT CustomerType FROM Contacts WHERE CustomerNumber = ?");
    Gruppenpreis_ =
        Vorbereiten("SELECT * FROM ArticleCustomerTypePrices WHERE ArticleNumber = ? AND CustomerType = ?");
    Gruppe_ = Vorbereiten("SELECT * FROM CustomerTypes WHERE Description = ?");
    Gruppenstaffel_ = Vorbereiten(
        "SELECT * FROM ArticleCustomerTypePricesBlockpricing WHERE ArticleNumber = ? AND "
        "CustomerType = ? ORDER BY Quantity ASC");
    Artikel_ = Vorbereiten("SELECT * FROM Articles WHERE ArticleNumber = ?");
    Staffel_ = Vorbereiten("SELECT * FROM ArticleBlockpricing WHERE ArticleNumber = ? ORDER BY Quantity ASC");
    Variante_ = Vorbereiten(
        "SELECT Articles.ArticleNumber, Articles.ArticleType, ArticleTypes.Description, ArticleTypes.Variant "
        "FROM "
        "Articles, ArticleTypes WHERE Articles.ArticleNumber = ? AND ArticleTypes.Description = "
        "Articles.ArticleType");
    Sonder_ = Vorbereiten("SELECT * FROM ArticleSpecialprices WHERE ArticleNumber = ?");
    Steuer_ = Vorbereiten("SELECT * FROM Taxes WHERE TaxKeyNumber = ?");
  }
  ~Von_Hand() {
    for (sqlite3_stmt *s : Alle_) sqlite3_finalize(s);
    sqlite3_close(Db_);
  }
  Von_Hand(const Von_Hand &) = delete;
  Von_Hand &operator=(const Von_Hand &) = delete;

  double Netto(const Frage &F) {
    const QByteArray artikel = F.Artikel.toUtf8(), kunde = F.Kunde.toUtf8();
    if (Binden(Liste_, {artikel, kunde})) return Zahl(Liste_, 3);
    const QByteArray gruppe = Binden(Kunde_, {kunde}) ? Text(Kunde_, 0) : QByteArray();
    if (!gruppe.isEmpty() && Binden(Gruppenpreis_, {artikel, gruppe})) return Gruppe(F, artikel, gruppe);
    if (!Binden(Artikel_, {artikel})) return -1;
    double netto = Zahl(Artikel_, 11);
    if (F.Menge > 1)
      for (bool da = Binden(Staffel_, {artikel}); da && Zahl(Staffel_, 1) <= F.Menge; da = Weiter(Staffel_))
        netto = std::min(netto, Zahl(Staffel_, 2));
    if (!gruppe.isEmpty() && Binden(Gruppe_, {gruppe}) && Zahl(Gruppe_, 2) != 0 && Erlaubt(artikel))
      return Sonderpreis(artikel, netto);
    return netto;
  }

 private:
  sqlite3_stmt *Vorbereiten(const char *Sql) {
    sqlite3_stmt *s = nullptr;
    if (sqlite3_prepare_v3(Db_, Sql, -1, SQLITE_PREPARE_PERSISTENT, &s, nullptr) != SQLITE_OK)
      std::fprintf(stderr, "%s\n", sqlite3_errmsg(Db_));
    Alle_.push_back(s);
    return s;
  }
  /// Stands on the first row.
  static bool Binden(sqlite3_stmt *S, std::initializer_list<QByteArray> Werte) {
    sqlite3_reset(S);
    int stelle = 0;
    for (const QByteArray &w : Werte)
      sqlite3_bind_text(S, ++stelle, w.constData(), int(w.size()), SQLITE_TRANSIENT);
    return Weiter(S);
  }
  static bool Weiter(sqlite3_stmt *S) { return sqlite3_step(S) == SQLITE_ROW; }
  static double Zahl(sqlite3_stmt *S, int Spalte) { return sqlite3_column_double(S, Spalte); }
  static QByteArray Text(sqlite3_stmt *S, int Spalte) {
    return {reinterpret_cast<const char *>(sqlite3_column_text(S, Spalte)), sqlite3_column_bytes(S, Spalte)};
  }
  double Gruppe(const Frage &F, const QByteArray &Artikel, const QByteArray &G) {
    double netto = Zahl(Gruppenpreis_, 3);
    if (F.Menge == 1 || !Binden(Gruppe_, {G}) || Zahl(Gruppe_, 1) == 0) return netto;
    for (bool da = Binden(Gruppenstaffel_, {Artikel, G}); da && Zahl(Gruppenstaffel_, 2) <= F.Menge;
         da = Weiter(Gruppenstaffel_))
      netto = Zahl(Gruppenstaffel_, 3);
    return netto;
  }
  /// With the article's row at hand.
  bool Erlaubt(const QByteArray &Artikel) {
    const bool selbst = Zahl(Artikel_, 16) != 0;
    const QByteArray hauptartikel = Text(Artikel_, 1);
    if (!Binden(Variante_, {Artikel}) || Zahl(Variante_, 3) == 0) return selbst;
    return Binden(Artikel_, {hauptartikel}) && Zahl(Artikel_, 16) != 0;
  }
  double Sonderpreis(const QByteArray &Artikel, double Sonst) {
    for (bool da = Binden(Sonder_, {Artikel}); da; da = Weiter(Sonder_)) {
      if (Text(Sonder_, 6) > "2024-06-15 24" || Text(Sonder_, 7) < "2024-06-15") continue;
      for (int i = 0; i < 2; ++i) Binden(Steuer_, {Text(Sonder_, 5)});
      return Zahl(Sonder_, 2);
    }
    return Sonst;
  }

  sqlite3 *Db_ = nullptr;
  std::vector<sqlite3_stmt *> Alle_;
  sqlite3_stmt *Liste_, *Kunde_, *Gruppenpreis_, *Gruppe_, *Gruppenstaffel_, *Artikel_, *Staffel_, *Variante_,
      *Sonder_, *Steuer_;
};

// --- the measurement --------------------------------------------------------------------------------------

/// What one side was asked and how long each stretch took; a stretch is short, so that the sides take turns
/// often and none has the machine's caches to itself, as little as a price has among all else that a document
/// takes.
struct Seite {
  std::vector<Frage> Fragen;
  std::vector<double> Strecken{};  ///< microseconds a finding
  double Summe = 0;

  template <typename Finden>
  void Strecke(int Anfang, Finden finden) {
    QElapsedTimer uhr;
    uhr.start();
    for (int i = Anfang; i < Anfang + STRECKE; ++i) Summe += finden(Fragen[size_t(i)]);
    Strecken.push_back(double(uhr.nsecsElapsed()) / 1e3 / STRECKE);
  }
  double Mitte() const {
    std::vector<double> werte = Strecken;
    std::nth_element(werte.begin(), werte.begin() + qsizetype(werte.size() / 2), werte.end());
    return werte[werte.size() / 2];
  }
};

double Finden(const Frage &F) {
  Preis preis;
  const bool da =
      Preis_ermitteln(preis, F.Artikel, F.Kunde, F.Menge, Stammdaten::Lesen, 0) != Preisquelle::Keine;
  return da ? preis.Netto : -1;
}

void Verhaeltnis_zeigen(const char *Was, double Verhaeltnis, double Ziel) {
  std::printf("  %-46s %6.2f  (Ziel höchstens %.1f)%s\n", Was, Verhaeltnis, Ziel,
              Verhaeltnis <= Ziel ? "" : "  VERFEHLT");
}

int Alles_messen(int Viele, int Anzahl, int Runden) {
  const QTemporaryDir ordner;
  const Mandant klein(ordner.path(), WENIGE), gross(ordner.path(), Viele);
  if (!ordner.isValid() || !klein.Anlegen() || !gross.Anlegen()) {
    std::fprintf(stderr, "Die Messung konnte nicht vorbereitet werden.\n");
    return 1;
  }
  Seite wenige{Fragen_stellen(WENIGE, Anzahl)}, viele{Fragen_stellen(Viele, Anzahl)}, von_hand = viele;
  Von_Hand hand(gross.Datei);
  for (int runde = 0; runde < Runden; ++runde) {
    for (int i = 0; i + STRECKE <= Anzahl; i += STRECKE) {
      von_hand.Strecke((i + Anzahl / 2) % Anzahl, [&hand](const Frage &f) { return hand.Netto(f); });
      Kontext = gross.K;
      viele.Strecke(i, Finden);
      Kontext = klein.K;
      wenige.Strecke(i, Finden);
    }
  }
  db::Verbindungen_schliessen();
  std::printf("%d Preise finden, mit %d Artikeln und %d Preiszeilen; Mitte aus Strecken von %d, %d Runden.\n",
              Anzahl, Viele, Viele * 5, STRECKE, Runden);
  std::printf("  %-40s %8.2f µs je Preis\n", "von Hand, vorbereitete Anweisungen", von_hand.Mitte());
  std::printf("  %-40s %8.2f µs je Preis\n", "Preis_ermitteln", viele.Mitte());
  std::printf("  Preis_ermitteln mit %4d Artikeln         %8.2f µs je Preis\n", WENIGE, wenige.Mitte());
  Verhaeltnis_zeigen("Zeit zu der von Hand", viele.Mitte() / von_hand.Mitte(), ZIEL_VON_HAND);
  Verhaeltnis_zeigen("Zeit mit vielen zu der mit wenigen Artikeln", viele.Mitte() / wenige.Mitte(),
                     ZIEL_VIELE);
  const bool gut = std::abs(von_hand.Summe - viele.Summe) < 1e-6 * viele.Summe && wenige.Summe > 0;
  if (!gut) std::printf("FEHLER: beide Seiten fanden nicht dieselben Preise.\n");
  return gut ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  using namespace marklink::messung;
  const bool schnell = argc > 1 && std::strcmp(argv[1], "--schnell") == 0;
  return schnell ? Alles_messen(10 * WENIGE, 2000, 2) : Alles_messen(VIELE, 10000, 5);
}
