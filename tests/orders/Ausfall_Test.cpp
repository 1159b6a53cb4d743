// Any call to the database may fail. A batch of three documents is run with the n-th call failing, for every
// n: the run ends, shows no box but those that it may show, and the documents of the other orders are what
// they would have been. MARKLINK_ALLE=1 tries every call, otherwise every few.
#include <gtest/gtest.h>

#include <set>

#include "Stapelmandant.h"
#include "db/Verbindung.h"
#include "host/Kontext.h"
#include "orders/Belegstapel.h"

namespace marklink {
namespace {

constexpr int BESTELLUNGEN = 3;
constexpr int SCHRITT = 17, SCHRITT_ZUM_SERVER = 59;

/// Says no to every question and keeps the text of every box.
class Mitschrift : public Dialoge {
 public:
  Mitschrift() { Dialoge_setzen(this); }
  ~Mitschrift() override { Dialoge_setzen(nullptr); }
  Mitschrift(const Mitschrift &) = delete;
  Mitschrift &operator=(const Mitschrift &) = delete;

  QStringList Gezeigt;

  Antwort Meldung(const QString &Titel, const QStringList &Zeilen, Symbol /*S*/, Knoepfe K,
                  Antwort /*Vorgabe*/) override {
    Gezeigt << Titel + u": "_qs + Zeilen.value(0);
    return K == Knoepfe::OK ? Antwort::OK : Antwort::Nein;
  }
  QString Eingabe(const QString &Titel, const QString &Text, const QString & /*Vorgabe*/) override {
    Gezeigt << Titel + u": "_qs + Text;
    return {};
  }
  QString Datei_oeffnen(const QString &, const QString &, const QString &) override { return {}; }
  QString Datei_speichern(const QString &, const QString &, const QString &) override { return {}; }
  std::optional<quint32> Farbe(quint32) override { return {}; }
  bool Schirm_zeigen(const QString &) override { return false; }
};

/// What making a document may show of its own accord, by its beginning.
bool Vorgesehen(const QString &Text) {
  static const QStringList anfaenge{
      u"Fehler: Beim Einlesen des Kunden ist ein Fehler aufgetreten."_qs,
      u"Fehler: Die Reservierungen konnten nicht erzeugt werden."_qs,
      u"Fehler: Bei der Erstellung der Auftragsbestätigung ist ein Fehler aufgetreten."_qs,
      u"Fehler: Bei der Erstellung der Rechnung ist ein Fehler aufgetreten."_qs,
      u"Suchname vergeben: Der Suchname '"_qs,
      u"Hinweis: Sie haben leider keinen Suchnamen vergeben."_qs,
      u"Belegnummer: Geben Sie bitte eine "_qs,
      u"Reservierungen: Möchten Sie nun Reservierungen für die Positionen erzeugen?"_qs,
      u"Artikel nicht vorhanden: Der Artikel '"_qs,
      u"Rückstellung bilden: Von Artikel '"_qs,
      u"Versandkosten: Leider ist in der Versandkosten-Preisstaffel kein ausreichendes Gewicht vorhanden."_qs,
      u"Hinweis: Es konnte leider kein Lastschrifteneinzug für diese Rechnung erzeugt werden"_qs,
      u"Hinweis: Es liegt für diesen Kunden leider keine Einzugsermächtigung vor."_qs,
      u"Hinweis: Es ist leider keine Zahlungsart vorhanden."_qs};
  return std::any_of(anfaenge.begin(), anfaenge.end(), [&](const QString &a) { return Text.startsWith(a); });
}

struct Fall {
  int Typ;
  Stapelart Art;
};

class Ausfall_Test : public testing::TestWithParam<Fall> {
 protected:
  /// How a run went: calls and boxes up to the end of the loading and of each order.
  struct Verlauf {
    std::vector<int> Grenzen;
    std::vector<qsizetype> Meldungen;
    QStringList Gezeigt;
    std::vector<QString> Bilder;
    int Aufrufe = 0;
  };

  Ausfall_Test() : Mandant(GetParam().Typ, GetParam().Art == Stapel_Auftraege ? 2 : 0) {
    // Contracts leave the stock reserved, invoices book it out.
    Mandant.Einstellen("Program", "ReservationBooking", GetParam().Art == Stapel_Auftraege ? "0" : "1");
    Mandant.Artikel(9, u"Ware"_qs, {{u"L9"_qs, 100.0}});
    Mandant.Artikel(8, u"Dienst"_qs, {});
    for (int b = 1; b <= BESTELLUNGEN; ++b) {
      // Two lots of its own that do not suffice, one that all orders share, and something without stock.
      Mandant.Artikel(b, u"Ware"_qs,
                      {{QStringLiteral("L%1a").arg(b), 2.0}, {QStringLiteral("L%1b").arg(b), 2.0}});
      Mandant.Bestellung(b, b == 2 ? u"Lastschrift"_qs : u"PayPal"_qs, {{b, 5.0}, {9, 3.0}, {8, 1.0}});
    }
    Mandant.Sichern();
  }

  /// The run with the n-th call failing; 0: none.
  Verlauf Laufen(int n) {
    Mandant.Zuruecksetzen();
    Mitschrift mitschrift;
    Verlauf v;
    const auto grenze = [&] {
      v.Grenzen.push_back(db::Aufrufe_gezaehlt());
      v.Meldungen.push_back(mitschrift.Gezeigt.size());
    };
    db::Fehler_einspeisen(n);
    Auftragsliste liste;
    liste.Auftragsliste_laden();
    liste.Alles_markieren();
    grenze();
    Belege_erzeugen(GetParam().Art, liste,
                    [&](int, const Kundenuebernahme &, const Belegergebnis &) { grenze(); });
    v.Aufrufe = db::Aufrufe_gezaehlt();
    db::Fehler_einspeisen(0);
    v.Gezeigt = mitschrift.Gezeigt;
    db::Verbindungen_schliessen();
    for (int b = 1; b <= BESTELLUNGEN; ++b) v.Bilder.push_back(Bild(b));
    return v;
  }
  QString Bild(int Bestellung) const {
    return Mandant.Belegbild(GetParam().Art == Stapel_Auftraege ? u"Contract"_qs : u"Invoice"_qs,
                             Bestellung) +
           Mandant.Roh(
               QStringLiteral("SELECT * FROM Warehouse WHERE ArticleNumber = 'A%1'").arg(Bestellung)) +
           Mandant.Roh(QStringLiteral("SELECT * FROM Articles WHERE ArticleNumber = 'A%1'").arg(Bestellung));
  }
  void Pruefen(const Verlauf &V, const Verlauf &Ohne, int n);

  test::Stapelmandant Mandant;
};

/// The order that is hit: from 1; 0 or behind the last one: the loading of the list before and after the run.
int Betroffene(const std::vector<int> &Grenzen, int n) {
  return int(std::lower_bound(Grenzen.begin(), Grenzen.end(), n) - Grenzen.begin());
}

void Ausfall_Test::Pruefen(const Verlauf &V, const Verlauf &Ohne, int n) {
  EXPECT_EQ(Mandant.Ungereimtheit(), QString());
  if (V.Grenzen.size() == 1) {
    EXPECT_LE(n, V.Grenzen[0]) << "only a list that could not be loaded is empty";
    EXPECT_EQ(V.Gezeigt, QStringList{u"Hinweis: Es wurden keine Aufträge ausgewählt. "_qs});
    return;
  }
  ASSERT_EQ(V.Grenzen.size(), BESTELLUNGEN + 1);
  const int betroffen = Betroffene(V.Grenzen, n);
  for (int b = 1; b <= BESTELLUNGEN; ++b) {
    const auto stelle = static_cast<std::size_t>(b);
    if (b != betroffen) {
      EXPECT_EQ(V.Bilder[stelle - 1], Ohne.Bilder[stelle - 1]) << "order " << b;
      EXPECT_EQ(V.Meldungen[stelle], V.Meldungen[stelle - 1]) << "order " << b;
    }
  }
  EXPECT_EQ(V.Meldungen.front(), 0);
  EXPECT_EQ(V.Meldungen.back(), V.Gezeigt.size());
  for (const QString &text : V.Gezeigt) EXPECT_TRUE(Vorgesehen(text)) << text.toStdString();
  if (betroffen == BESTELLUNGEN) return;
  EXPECT_EQ(
      Mandant.Roh(u"SELECT Disposable, Unsociable FROM Articles WHERE ArticleNumber = 'A9'"_qs),
      Mandant.Roh(u"SELECT sum(Disposable), sum(Unsociable) FROM Warehouse WHERE ArticleNumber = 'A9'"_qs))
      << "totals of the shared article";
}

TEST_P(Ausfall_Test, Trifft_nur_eine_Bestellung) {
  const Verlauf ohne = Laufen(0);
  ASSERT_EQ(ohne.Gezeigt, QStringList());
  ASSERT_EQ(ohne.Grenzen.size(), BESTELLUNGEN + 1);
  for (const QString &bild : ohne.Bilder) ASSERT_TRUE(bild.contains(u"Schuh A9"_qs)) << bild.toStdString();
  const int schritt = test::Alle_Versuche() ? 1 : Mandant.Server() ? SCHRITT_ZUM_SERVER : SCHRITT;
  std::set<int> getroffene;
  for (int n = 1; n <= ohne.Aufrufe && !HasFatalFailure(); n += schritt) {
    SCOPED_TRACE(testing::Message() << "call " << n << " of " << ohne.Aufrufe);
    const Verlauf v = Laufen(n);
    Pruefen(v, ohne, n);
    getroffene.insert(Betroffene(v.Grenzen, n));
  }
  EXPECT_GE(getroffene.size(), BESTELLUNGEN + 1);
}

INSTANTIATE_TEST_SUITE_P(Typ, Ausfall_Test,
                         testing::Values(Fall{0, Stapel_Auftraege}, Fall{0, Stapel_Rechnungen},
                                         Fall{1, Stapel_Auftraege}, Fall{1, Stapel_Rechnungen}),
                         [](const auto &Info) {
                           return std::string(Info.param.Art == Stapel_Auftraege ? "Auftrag" : "Rechnung") +
                                  (Info.param.Typ == 0 ? "_Jet" : "_SqlServer");
                         });

}  // namespace
}  // namespace marklink
