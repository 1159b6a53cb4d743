// Price finding: the rules one by one.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "Regeln.h"
#include "host/Kontext.h"
#include "rules/Preisfindung.h"

namespace marklink::test {
namespace {

using Q = Preisquelle;

/// A row with its three amounts.
Felder Mit_Betraegen(Felder F, double Netto, double Satz = 19) {
  F.insert(
      F.end(),
      {{"NetPrice", Netto}, {"VatAmount", Netto * Satz / 100}, {"GrossPrice", Netto * (100 + Satz) / 100}});
  return F;
}

class Preisfindung_Test : public Mandant_Test {
 protected:
  Preisfindung_Test() {
    Steuer("1", 19);
    Steuer("2", 7);
  }
  void Steuer(const char *Schluessel, double Satz) {
    Zeile("Taxes", {{"TaxKeyNumber", Schluessel}, {"Percentage", Satz}});
  }
  void Artikel(const char *Nummer, double Netto, bool Sonderpreise, const char *Art = "Ware",
               const char *Hauptartikel = "") {
    Zeile("Articles", Mit_Betraegen({{"ArticleNumber", Nummer},
                                     {"ShortText", "Schuh"},
                                     {"VatCode", "1"},
                                     {"ArticleType", Art},
                                     {"SpecialOfferPrice", Sonderpreise},
                                     {"ArticleNumberVariant", Hauptartikel}},
                                    Netto));
  }
  void Gruppe(const char *Name, bool Staffel, bool Sonder) {
    Zeile("CustomerTypes",
          {{"Description", Name}, {"BlockingPricing", Staffel}, {"SpecialOfferPrice", Sonder}});
  }
  void Sonderpreis(const char *Nummer, double Netto, QDate Von, QDate Bis) {
    Zeile("ArticleSpecialprices",
          Mit_Betraegen({{"ArticleNumber", Nummer}, {"VatCode", "2"}, {"DateFrom", Von}, {"DateTo", Bis}},
                        Netto));
  }
  Q Finden(const char *Nummer, const char *Kunde, double Menge, int Auslesung = 0) {
    P = {};
    return Preis_ermitteln(P, QString::fromUtf8(Nummer), QString::fromUtf8(Kunde), Menge, Stammdaten::Lesen,
                           Auslesung);
  }
  Preis P;
};
MARKLINK_BEIDE_TYPEN(Preisfindung_Test);

TEST_P(Preisfindung_Test, jede_Quelle_an_ihrem_Platz) {
  const QDate heute = Kontext.gHeute;
  Gruppe("Händler", true, true);
  Gruppe("Privat", false, false);
  Zeile("Contacts", {{"CustomerNumber", "10"}, {"CustomerType", "HÄNDLER"}});  // compares without case
  Zeile("Contacts", {{"CustomerNumber", "20"}, {"CustomerType", "Privat"}});
  Zeile("Contacts", {{"CustomerNumber", "30"}});
  Zeile("ArticleTypes", {{"Description", "Ware"}, {"Variant", false}});
  Zeile("ArticleTypes", {{"Description", "Variante"}, {"Variant", true}});
  for (const char *nummer : {"A", "B", "C", "E"}) Artikel(nummer, 100, true);
  Artikel("D", 100, false);
  Artikel("V", 100, false, "Variante", "A");
  Zeile("ContactPricelist",
        Mit_Betraegen(
            {{"CustomerNumber", "10"}, {"ArticleNumber", "A"}, {"ShortText", "Seiner"}, {"VatCode", "2"}}, 50,
            7));
  for (const char *gruppe : {"Händler", "Privat"}) {
    Zeile("ArticleCustomerTypePrices",
          Mit_Betraegen({{"ArticleNumber", "B"}, {"CustomerType", gruppe}, {"VatCode", "2"}}, 80));
    for (const auto &[menge, netto] : {std::pair{20.0, 60.0}, {1.0, 78.0}, {10.0, 70.0}, {20.0, 65.0}})
      Zeile("ArticleCustomerTypePricesBlockpricing",
            Mit_Betraegen({{"ArticleNumber", "B"}, {"CustomerType", gruppe}, {"Quantity", menge}}, netto));
  }
  for (const auto &[menge, netto] : {std::pair{1.0, 99.0}, {1.5, 95.0}, {5.0, 120.0}, {10.0, 90.0}})
    Zeile("ArticleBlockpricing", Mit_Betraegen({{"ArticleNumber", "C"}, {"Quantity", menge}}, netto));
  // Of the same net price for the same quantity the first stands.
  Zeile("ArticleBlockpricing", Mit_Betraegen({{"ArticleNumber", "C"}, {"Quantity", 10.0}}, 90, 7));
  Sonderpreis("C", 110, heute, heute);                        // dearer than the scale, and wins
  Sonderpreis("D", 1, heute, heute);                          // the article allows none
  Sonderpreis("E", 1, heute.addDays(-9), heute.addDays(-1));  // ended yesterday
  Sonderpreis("E", 2, heute.addDays(1), heute.addDays(9));    // starts tomorrow
  Sonderpreis("V", 40, heute.addDays(-1), heute.addDays(1));
  Zeile("ArticlePartslist", {{"ListID", "C"}, {"AmountPriceNet", 4.5}});
  Zeile("ArticlePartslist", {{"ListID", "C"}, {"AmountPriceNet", 0.5}});
  const struct {
    const char *Artikel, *Kunde;
    double Menge;
    int Auslesung;
    Q Quelle;
    double Netto, Brutto;
    const char *Schluessel;
  } tafel[] = {
      {"A", "10", 99, 0, Q::Kundenpreisliste, 50, 53.5, "2"},
      {"a", "20", 1, 0, Q::Artikel, 100, 119, "1"},
      {"B", "10", 0.5, 0, Q::Kundengruppe, 80, 95.2, "2"},
      {"B", "10", 1, 0, Q::Kundengruppe, 80, 95.2, "2"},  // a single piece never gets to a scale
      {"B", "10", 9.99, 0, Q::Gruppenstaffel, 78, 92.82, "2"},
      {"B", "10", 10, 0, Q::Gruppenstaffel, 70, 83.3, "2"},
      {"B", "10", 1e9, 0, Q::Gruppenstaffel, 65, 77.35, "2"},  // the later one of equal quantities
      {"B", "20", 20, 0, Q::Kundengruppe, 80, 95.2, "2"},      // the group has no scales
      {"B", "30", 20, 0, Q::Artikel, 100, 119, "1"},
      {"C", "20", 1, 0, Q::Artikel, 100, 119, "1"},
      {"C", "20", 1.5, 0, Q::Staffel, 95, 113.05, "1"},
      {"C", "20", 5, 0, Q::Staffel, 95, 113.05, "1"},  // a dearer row is passed over
      {"C", "20", 10, 0, Q::Staffel, 90, 107.1, "1"},
      {"C", "20", -3, 0, Q::Artikel, 100, 119, "1"},
      {"C", "20", 1, 2, Q::Artikel, 105, 119, "1"},  // parts raise the net price alone
      {"C", "10", 10, 0, Q::Sonderpreis, 110, 117.7, "2"},
      {"C", "10", 10, 2, Q::Sonderpreis, 115, 123.05, "2"},
      {"D", "10", 1, 0, Q::Artikel, 100, 119, "1"},
      {"E", "10", 1, 0, Q::Artikel, 100, 119, "1"},
      {"V", "10", 1, 0, Q::Sonderpreis, 40, 42.8, "2"},  // its main article allows it
      {"unbekannt", "10", 1, 0, Q::Keine, 0, 0, ""},
      {"O'Neill", "10", 1, 0, Q::Keine, 0, 0, ""},
  };
  for (const auto &t : tafel) {
    SCOPED_TRACE(testing::Message() << t.Artikel << ' ' << t.Kunde << ' ' << t.Menge);
    EXPECT_EQ(int(Finden(t.Artikel, t.Kunde, t.Menge, t.Auslesung)), int(t.Quelle));
    EXPECT_NEAR(P.Netto, t.Netto, 1e-9);
    EXPECT_NEAR(P.Brutto, t.Brutto, 1e-9);
    EXPECT_EQ(P.Steuerschluessel, QString::fromUtf8(t.Schluessel));
  }
  EXPECT_EQ(int(Finden("C", "10", 10, 2)), int(Q::Sonderpreis));
  EXPECT_NEAR(P.Steuer, 123.05 - 115, 1e-9);
  Finden("A", "10", 1);
  EXPECT_EQ(P.Kurztext, QStringLiteral("Seiner"));
}

TEST_P(Preisfindung_Test, ein_unbekannter_Artikel_und_leere_Felder_lassen_was_da_war) {
  Zeile("Articles", {{"ArticleNumber", "L"}, {"ShortText", "Leer"}});
  const Preis vorher{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), 1, 2, 3};
  P = vorher;
  EXPECT_EQ(int(Preis_ermitteln(P, QStringLiteral("?"), QString(), 1, Stammdaten::Lesen, 0)), int(Q::Keine));
  EXPECT_EQ(P.Artikelnummer, vorher.Artikelnummer);
  EXPECT_EQ(P.Brutto, 3);
  // The caller may name the article by what the price itself holds.
  P.Artikelnummer = QStringLiteral("l");
  EXPECT_EQ(int(Preis_ermitteln(P, P.Artikelnummer, QString(), 1, Stammdaten::Lesen, 0)), int(Q::Artikel));
  EXPECT_EQ(P.Artikelnummer, QStringLiteral("L"));
  EXPECT_EQ(P.Kurztext, QStringLiteral("Leer"));
  EXPECT_EQ(P.Steuerschluessel, QStringLiteral("z"));
  EXPECT_EQ(P.Netto, 1);
}

TEST_P(Preisfindung_Test, nimmt_die_Stammdaten_des_Aufrufers) {
  Zeile("ArticlePartslist", {{"ListID", "S"}, {"SubArticle", "T-1"}, {"ShortText", "Teil"}});
  const db::Recordset satz =
      Abfragen("SELECT SubArticle, ShortText, 7 AS NetPrice, '1' AS VatCode FROM ArticlePartslist");
  EXPECT_EQ(int(Preis_ermitteln(P, QStringLiteral("T-1"), QString(), 1, Stammdaten::Gegeben, 0, &satz)),
            int(Q::Artikel));
  EXPECT_EQ(P.Artikelnummer, QStringLiteral("T-1"));
  EXPECT_EQ(P.Kurztext, QStringLiteral("Teil"));
  EXPECT_EQ(P.Netto, 7);
}

// --- beside a model ---------------------------------------------------------------------------------------

struct Preiszeile {
  int Artikel, Wer;  ///< customer or group
  int Menge, Netto;  ///< whole units, cents
  int Von, Bis;      ///< days from today
};

/// The price tables in memory, and the rule said plainly.
struct Modell {
  std::vector<Preiszeile> Liste, Gruppe, Gruppenstaffel, Staffel, Sonder, Teile;
  std::vector<int> Netto;           ///< by article
  std::vector<int> Sonder_erlaubt;  ///< by article
  std::vector<int> Gruppe_von;      ///< by customer, -1: none
  static constexpr bool STAFFEL[] = {true, false, true, false}, SONDER[] = {true, true, false, false};

  static const Preiszeile *Erste(const std::vector<Preiszeile> &Z, int Artikel, int Wer) {
    for (const Preiszeile &z : Z)
      if (z.Artikel == Artikel && z.Wer == Wer) return &z;
    return nullptr;
  }
  std::pair<Q, int> Finden(int Artikel, int Kunde, int Menge, bool Mit_Teilen) const {
    if (const auto *z = Erste(Liste, Artikel, Kunde)) return {Q::Kundenpreisliste, z->Netto};
    const int g = Gruppe_von[size_t(Kunde)];
    if (const auto *z = g < 0 ? nullptr : Erste(Gruppe, Artikel, g)) {
      const Preiszeile *beste = nullptr;
      for (const Preiszeile &s : Gruppenstaffel) {
        const bool gilt = STAFFEL[g] && Menge != 1 && s.Artikel == Artikel && s.Wer == g && s.Menge <= Menge;
        if (gilt && (!beste || s.Menge >= beste->Menge)) beste = &s;
      }
      return beste ? std::pair{Q::Gruppenstaffel, beste->Netto} : std::pair{Q::Kundengruppe, z->Netto};
    }
    int teile = 0;
    for (const Preiszeile &t : Teile) teile += Mit_Teilen && t.Artikel == Artikel ? t.Netto : 0;
    std::pair<Q, int> preis{Q::Artikel, Netto[size_t(Artikel)] + teile};
    for (const Preiszeile &s : Staffel)
      if (Menge > 1 && s.Artikel == Artikel && s.Menge <= Menge && s.Netto < preis.second)
        preis = {Q::Staffel, s.Netto};
    for (const Preiszeile &s : Sonder)
      if (g >= 0 && SONDER[g] && Sonder_erlaubt[size_t(Artikel)] && s.Artikel == Artikel && s.Von <= 0 &&
          s.Bis >= 0)
        return {Q::Sonderpreis, s.Netto + teile};
    return preis;
  }
};

QString Nr(int n) { return QStringLiteral("N%1").arg(n); }
QString Gruppenname(int n) { return QStringLiteral("Grüppe %1").arg(n); }

void Schreiben(const char *Tabelle, const std::vector<Preiszeile> &Zeilen, const char *Artikelfeld,
               const char *Werfeld, bool Gruppe) {
  Fueller f(Tabelle);
  for (const Preiszeile &z : Zeilen) {
    const double netto = z.Netto / 100.0;
    Felder felder{{Artikelfeld, Nr(z.Artikel)},
                  {"Quantity", z.Menge},
                  {"AmountPriceNet", netto},
                  {"VatCode", "1"},
                  {"DateFrom", Kontext.gHeute.addDays(z.Von)},
                  {"DateTo", Kontext.gHeute.addDays(z.Bis)}};
    if (Werfeld) felder.emplace_back(Werfeld, Gruppe ? Gruppenname(z.Wer) : Nr(z.Wer));
    f.Zeile(Mit_Betraegen(felder, netto));
  }
}

TEST_P(Preisfindung_Test, gleicht_dem_Modell) {
  constexpr int ARTIKEL = 60, KUNDEN = 20, GRUPPEN = 4;
  std::mt19937 zufall(41);
  const auto bis = [&zufall](int n) { return int(zufall() % unsigned(n)); };
  Modell m;
  const auto zeilen = [&](int anzahl, int wer) {
    std::vector<Preiszeile> alle;
    for (int i = 0; i < anzahl; ++i)
      alle.push_back({bis(ARTIKEL), bis(wer), 1 + bis(12), bis(5000), bis(5) - 3, bis(5) - 1});
    return alle;
  };
  m.Liste = zeilen(80, KUNDEN);
  m.Gruppe = zeilen(60, GRUPPEN);
  m.Gruppenstaffel = zeilen(300, GRUPPEN);
  m.Staffel = zeilen(150, 1);
  m.Sonder = zeilen(80, 1);
  m.Teile = zeilen(40, 1);
  // Without an order of their own rows of equal quantity count as they were entered.
  const auto nach_Menge = [](const Preiszeile &a, const Preiszeile &b) { return a.Menge < b.Menge; };
  {
    Fueller artikel("Articles"), kunden("Contacts"), gruppen("CustomerTypes");
    for (int i = 0; i < ARTIKEL; ++i) {
      m.Netto.push_back(bis(5000));
      m.Sonder_erlaubt.push_back(bis(2));
      artikel.Zeile(
          Mit_Betraegen({{"ArticleNumber", Nr(i)}, {"SpecialOfferPrice", m.Sonder_erlaubt.back() == 1}},
                        m.Netto.back() / 100.0));
    }
    for (int i = 0; i < KUNDEN; ++i) {
      m.Gruppe_von.push_back(bis(GRUPPEN + 1) - 1);
      const int g = m.Gruppe_von.back();
      kunden.Zeile({{"CustomerNumber", Nr(i)}, {"CustomerType", g < 0 ? QString() : Gruppenname(g)}});
    }
    for (int i = 0; i < GRUPPEN; ++i)
      gruppen.Zeile({{"Description", Gruppenname(i)},
                     {"BlockingPricing", Modell::STAFFEL[i]},
                     {"SpecialOfferPrice", Modell::SONDER[i]}});
  }
  Schreiben("ContactPricelist", m.Liste, "ArticleNumber", "CustomerNumber", false);
  Schreiben("ArticleCustomerTypePrices", m.Gruppe, "ArticleNumber", "CustomerType", true);
  Schreiben("ArticleCustomerTypePricesBlockpricing", m.Gruppenstaffel, "ArticleNumber", "CustomerType", true);
  Schreiben("ArticleBlockpricing", m.Staffel, "ArticleNumber", nullptr, false);
  Schreiben("ArticleSpecialprices", m.Sonder, "ArticleNumber", nullptr, false);
  Schreiben("ArticlePartslist", m.Teile, "ListID", nullptr, false);
  std::stable_sort(m.Staffel.begin(), m.Staffel.end(), nach_Menge);
  std::array<int, 7> gesehen{};
  for (int fall = 0; fall < 10000; ++fall) {
    const int artikel = bis(ARTIKEL), kunde = bis(KUNDEN), menge = bis(14);
    const bool teile = bis(3) == 0;
    const auto [quelle, netto] = m.Finden(artikel, kunde, menge, teile);
    P = {};
    const Q gefunden = Preis_ermitteln(P, Nr(artikel), Nr(kunde), menge, Stammdaten::Lesen, teile ? 2 : 0);
    ASSERT_EQ(int(gefunden), int(quelle)) << artikel << ' ' << kunde << ' ' << menge << ' ' << teile;
    ASSERT_NEAR(P.Netto, netto / 100.0, 1e-9) << artikel << ' ' << kunde << ' ' << menge << ' ' << teile;
    ++gesehen[size_t(quelle)];
  }
  for (size_t q = 1; q < gesehen.size(); ++q) EXPECT_GT(gesehen[q], 100) << q;
}

}  // namespace
}  // namespace marklink::test
