// Document sums: figures by hand, and beside exact arithmetic over random documents.
#include "rules/Belegsumme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "Regeln.h"
#include "rules/Rabattliste.h"

namespace marklink::test {
namespace {

QString S(const char *Text) { return QString::fromUtf8(Text); }

class Belegsumme_Test : public Mandant_Test {
 protected:
  Belegsumme_Test() {
    Fueller steuern("Taxes");
    steuern.Zeile({{"TaxKeyNumber", "1"},
                   {"Percentage", 19.0},
                   {"TaxRateEUVatID", "0"},
                   {"TaxRateEUNonVatID", "1"},
                   {"TaxRateNonEU", "0"}});
    steuern.Zeile({{"TaxKeyNumber", "2"},
                   {"Percentage", 5.5},
                   {"TaxRateEUVatID", "0"},
                   {"TaxRateEUNonVatID", "2"},
                   {"TaxRateNonEU", "0"}});
    steuern.Zeile({{"TaxKeyNumber", "0"},
                   {"Percentage", 0.0},
                   {"TaxRateEUVatID", "0"},
                   {"TaxRateEUNonVatID", "0"},
                   {"TaxRateNonEU", "0"}});
    steuern.Zeile({{"TaxKeyNumber", ""}, {"Percentage", 25.0}});
    Fueller versand("ForwardingCharges");
    versand.Zeile({{"Description", "Post"}, {"Costs", 4.9}, {"VatCode", "1"}});
    versand.Zeile({{"Description", "Bote"}, {"Costs", 12.345}, {"VatCode", "2"}});
  }
  void Programm(const char *Schluessel, const char *Wert) {
    ASSERT_TRUE(Option_schreiben(S("Program"), S(Schluessel), S(Wert)));
  }
};
MARKLINK_BEIDE_TYPEN(Belegsumme_Test);

Felder Position(const char *Nummer, const char *Schluessel, double Netto, double Brutto, double Menge,
                double Rabatt) {
  const double anteil = Menge * (100 - Rabatt) / 100;
  return {{"Document", "Auftrag"},
          {"DocumentNumber", Nummer},
          {"VatCode", Schluessel},
          {"Quantity", Menge},
          {"Rebate", Rabatt},
          {"UnitpriceNet", Netto},
          {"UnitpriceGross", Brutto},
          {"AllroundpriceNet", Netto * anteil},
          {"AllroundpriceGross", Brutto * anteil}};
}

TEST_P(Belegsumme_Test, von_Hand_gerechnet) {
  {
    Fueller f("Positions");
    f.Zeile(Position("1", "1", 100, 119, 2, 10));  // 180.00 / 214.20, rebate 20.00 / 23.80
    f.Zeile(Position("1", "2", 10, 10.55, 3, 0));  // 30.00 / 31.65
    f.Zeile(Position("1", "7", 500, 595, 1, 0));   // under a key that Taxes does not know
    f.Zeile(Position("3", "1", 1e300, 1e300, 1e9, 0));
    f.Zeile(Position("4", "1", 4.22, 5.02, 1, 0));
    for (int i = 0; i < 3; ++i) f.Zeile(Position("5", "0", 1.005, 1.115, 1, 50));  // 0.5025 / 0.5575 a line
    f.Zeile(Position("6", "", 10, 10, 1, 0));
    f.Zeile(Position("7", "1", 10.02, 10.04, 1, 0));
    f.Zeile(Position("7", "2", 10.04, 10.06, 1, 0));
  }
  QString rabatte = Rabattliste_erweitern({}, S("a"), Rabattart::Prozent, 2, false, {});
  rabatte = Rabattliste_erweitern(rabatte, S("b"), Rabattart::Prozent, 3, false, {});
  rabatte = Rabattliste_erweitern(rabatte, S("c"), Rabattart::Betrag, 1.5, true, S("2"));
  rabatte = Rabattliste_erweitern(rabatte, S("d"), Rabattart::Betrag, 10, false, {});
  const QString gebunden = Rabattliste_erweitern({}, S("e"), Rabattart::Betrag, 3.72, true, S("1"));
  const struct {
    const char *Nummer;
    int Taxation;
    const char *Versandart;
    QString Rabatte;
    int TaxCalculation;
    Belegsumme Erwartet;
  } tafel[] = {
      {"1", 0, "", {}, 0, {210, 35.85, 245.85, 20, 0, 0, 210, 0, false}},
      {"1", 1, "", {}, 0, {210, 35.85, 245.85, 23.8, 0, 0, 245.85, 0, false}},
      // 171 + 27 net; tax 32.49 + 1.485 -> 1.49
      {"1", 0, "", rabatte, 0, {198, 33.98, 231.98, 20, 22, 10, 210, 0, false}},
      // 203.49 + 28.5675; tax 32.49 + 1.489... -> 1.49
      {"1", 1, "", rabatte, 0, {198.08, 33.98, 232.06, 23.8, 23.79, 10, 245.85, 0, false}},
      {"1", 1, "Post", {}, 0, {214.9, 36.78, 251.68, 23.8, 0, 0, 245.85, 5.83, true}},
      {"1", 0, "Post", {}, 0, {214.9, 36.78, 251.68, 20, 0, 0, 210, 4.9, true}},
      {"1", 1, "Post", {}, 1, {214.9, 35.85, 250.75, 23.8, 0, 0, 245.85, 4.9, true}},  // by a key of 0 per
                                                                                       // cent
      {"1", 1, "Bote", {}, 0, {222.35, 36.53, 258.87, 23.8, 0, 0, 245.85, 13.02, true}},
      {"1", 1, "unbekannt", {}, 0, {210, 35.85, 245.85, 23.8, 0, 0, 245.85, 0, true}},
      {"1", 2, "", rabatte, 0, {0, 0, 0, 0, 11.5, 10, 0, 0, false}},
      // 0.50 net is 0.095 of tax, whatever noise the difference of 4.22 and 3.72 holds
      {"4", 0, "", gebunden, 0, {0.5, 0.1, 0.6, 0, 3.72, 0, 4.22, 0, false}},
      // each line is rounded, and so is what its rebate is taken of: 50 per cent of 1.01 / 1.12
      {"5", 0, "", {}, 0, {1.5, 0, 1.5, 1.52, 0, 0, 1.5, 0, false}},
      {"5", 1, "", {}, 0, {1.68, 0, 1.68, 1.68, 0, 0, 1.68, 0, false}},
      // the tax of each key is rounded: 1.9038 and 0.5522, 1.6030 and 0.5245
      {"7", 0, "", {}, 0, {20.06, 2.45, 22.51, 0, 0, 0, 20.06, 0, false}},
      {"7", 1, "", {}, 0, {17.98, 2.12, 20.1, 0, 0, 0, 20.1, 0, false}},
      {"6", 0, "", {}, 0, {10, 2.5, 12.5, 0, 0, 0, 10, 0, false}},  // the empty key is one of Taxes
  };
  for (const auto &t : tafel) {
    SCOPED_TRACE(testing::Message() << t.Nummer << ' ' << t.Taxation << ' ' << t.Versandart);
    Belegsumme s;
    ASSERT_TRUE(Beleg_summieren(
        s, {S("Auftrag"), S(t.Nummer), t.Taxation, S(t.Versandart), {}, {}, 1, t.Rabatte, t.TaxCalculation}));
    EXPECT_EQ(s.Netto, t.Erwartet.Netto);
    EXPECT_EQ(s.Steuer, t.Erwartet.Steuer);
    EXPECT_EQ(s.Brutto, t.Erwartet.Brutto);
    EXPECT_EQ(s.Positionsrabatt, t.Erwartet.Positionsrabatt);
    EXPECT_EQ(s.Belegrabatt, t.Erwartet.Belegrabatt);
    EXPECT_EQ(s.Freibetrag, t.Erwartet.Freibetrag);
    EXPECT_EQ(s.Zwischensumme, t.Erwartet.Zwischensumme);
    EXPECT_EQ(s.Versandkosten, t.Erwartet.Versandkosten);
    EXPECT_EQ(s.Versand_berechnet, t.Erwartet.Versand_berechnet);
  }
  Belegsumme vorher{.Netto = 5};
  EXPECT_FALSE(Beleg_summieren(vorher, {.Belegwort = S("Auftrag"), .Belegnummer = S("3")}));
  EXPECT_EQ(vorher.Netto, 5) << "an overflow leaves what was there";
}

TEST_P(Belegsumme_Test, Versand_und_Endbetrag_nach_den_Einstellungen) {
  {
    Fueller f("Positions");
    f.Zeile(Position("1", "0", 100, 100, 1, 0));
    Felder retoure = Position("2", "0", 100, 100, 1, 0);
    retoure[0].second = "Retoure";
    f.Zeile(retoure);
  }
  const auto berechnet = [](const char *wort, const char *nummer) {
    Belegsumme s;
    EXPECT_TRUE(Beleg_summieren(
        s, {.Belegwort = S(wort), .Belegnummer = S(nummer), .Taxation = 1, .Versandart = S("Post")}));
    return s.Versand_berechnet;
  };
  Programm("FreeShipping", "1");
  Programm("FreeShippingType", "0");
  Programm("FreeShippingAmount", "100,00");
  EXPECT_FALSE(berechnet("Auftrag", "1")) << "free from the limit on";
  Programm("FreeShippingAmount", "100,004");
  EXPECT_TRUE(berechnet("Auftrag", "1")) << "not even half a cent below";
  EXPECT_FALSE(berechnet("Retoure", "2")) << "returns have a setting of their own";
  Programm("RefundForwarding", "1");
  Programm("RefundForwardingAmount", "100");
  EXPECT_TRUE(berechnet("Retoure", "2"));
  Programm("RefundForwardingAmount", "100,004");
  EXPECT_FALSE(berechnet("Retoure", "2"));
  Programm("ForwardingChargesDisplay", "1");
  Belegsumme s;
  ASSERT_TRUE(Beleg_summieren(
      s, {.Belegwort = S("Auftrag"), .Belegnummer = S("1"), .Taxation = 1, .Versandart = S("Post")}));
  EXPECT_EQ(s.Versandkosten, 4.9);
  EXPECT_EQ(Endbetrag_ermitteln({.Brutto = 110.13, .Freibetrag = 10.11}), 100.02);
  Programm("RoundingSFr", "1");
  EXPECT_EQ(Endbetrag_ermitteln({.Brutto = 110.13, .Freibetrag = 10.11}), 100.00);
}

// --- beside exact arithmetic ------------------------------------------------------------------------------

__extension__ typedef __int128 Gross;

Gross Abwaerts_teilen(Gross Zaehler, Gross Nenner) {
  const Gross ganz = Zaehler / Nenner;
  return Zaehler % Nenner < 0 ? ganz - 1 : ganz;
}
/// Commercial rounding of a fraction: halves up.
Gross Kaufmaennisch(Gross Zaehler, Gross Nenner) { return Abwaerts_teilen(2 * Zaehler + Nenner, 2 * Nenner); }
/// Halves away from zero, as the final number text rounds.
Gross Vom_Nullpunkt(Gross Zaehler, Gross Nenner) {
  return Zaehler < 0 ? -Kaufmaennisch(-Zaehler, Nenner) : Kaufmaennisch(Zaehler, Nenner);
}

constexpr Gross CENT = 1000000;  ///< sums are kept in millionths of a cent

struct Modellposition {
  int Schluessel;                        ///< index of a tax key; 3: unknown
  qint64 Menge;                          ///< hundredths
  qint64 Rabatt;                         ///< hundredths of a per cent
  std::array<qint64, 2> Einzel, Gesamt;  ///< net, gross; ten-thousandths
};

struct Modellbeleg {
  std::vector<Modellposition> Positionen;
  int Taxation, TaxCalculation, Versandart;  ///< 0: none, 1: Post, 2: Bote
  qint64 Prozent = 0, Frei = 0;              ///< hundredths of a per cent, cents
  std::array<qint64, 3> Gebunden{};          ///< cents, by tax key
  QString Rabattliste;
};

struct Modellsumme {
  Gross Netto = 0, Steuer = 0, Brutto = 0, Positionsrabatt = 0, Belegrabatt = 0, Zwischensumme = 0,
        Versand = 0;
};

constexpr const char *SCHLUESSEL[] = {"1", "2", "0", "7"};
constexpr int SATZ[] = {190, 55, 0};  ///< tenths of a per cent
constexpr qint64 FREIGRENZE = 40000;  ///< cents

/// Tax, rounded to cents, of an amount in millionths of a cent; in cents.
Gross Steuer(Gross Betrag, int Satz, bool Brutto) {
  return Kaufmaennisch(Betrag * Satz, CENT * (Brutto ? 1000 + Satz : 1000));
}

Modellsumme Summieren(const Modellbeleg &B, bool Freigrenze) {
  Modellsumme s;
  const bool brutto = B.Taxation == 1;
  for (size_t k = 0; k < 3; ++k) {
    Gross cents = 0;
    for (const Modellposition &p : B.Positionen) {
      if (size_t(p.Schluessel) != k) continue;
      cents += Kaufmaennisch(p.Gesamt[brutto], 100);
      s.Positionsrabatt +=
          Kaufmaennisch(Gross(p.Einzel[brutto]) * p.Menge, 10000) * p.Rabatt * (CENT / 10000);
    }
    const Gross abzug = cents * B.Prozent * (CENT / 10000) + B.Gebunden[k] * CENT;
    const Gross rest = cents * CENT - abzug;
    s.Steuer += Steuer(rest, SATZ[k], brutto) * CENT;
    (brutto ? s.Brutto : s.Netto) += rest;
    s.Zwischensumme += cents * CENT;
    s.Belegrabatt += abzug;
  }
  if (brutto)
    s.Netto = s.Brutto - s.Steuer;
  else
    s.Brutto = s.Netto + s.Steuer;
  s.Belegrabatt += B.Frei * CENT;
  if (B.Versandart == 0 || (Freigrenze && s.Brutto >= FREIGRENZE * CENT)) return s;
  const Gross kosten = B.Versandart == 1 ? 49000 : 123450;  // ten-thousandths
  const bool eigener = B.TaxCalculation == 0 || B.TaxCalculation == 2;
  const bool ohne_Schluessel = B.TaxCalculation == 4;  // no such kind of customer: the empty tax key
  const int satz = ohne_Schluessel ? 250 : !eigener ? 0 : SATZ[B.Versandart - 1];
  const Gross mit_Steuer = Kaufmaennisch(kosten * (1000 + satz), 100 * 1000) * CENT;
  s.Steuer += Kaufmaennisch(kosten * satz, 100 * 1000) * CENT;
  s.Netto += Kaufmaennisch(kosten, 100) * CENT;
  s.Brutto += mit_Steuer;
  s.Versand = brutto ? mit_Steuer : kosten * (CENT / 100);
  return s;
}

class Belegwuerfel {
 public:
  explicit Belegwuerfel(unsigned Saat) : Zufall_(Saat) {}
  qint64 Bis(qint64 Grenze) { return qint64(Zufall_() % quint64(Grenze)); }

  Modellbeleg Wuerfeln() {
    Modellbeleg b{{}, int(Bis(2)), int(Bis(5)), int(Bis(3)), 0, 0, {}, {}};
    for (qint64 n = Bis(6); n > 0; --n) {
      Modellposition p{int(Bis(4)), (Bis(10) - 1) * (Bis(2) ? 100 : 25), Bis(3) ? 0 : Bis(10000), {}, {}};
      for (size_t i = 0; i < 2; ++i) {
        p.Einzel[i] = Bis(2000000);
        p.Gesamt[i] = p.Einzel[i] * p.Menge / 100 - Bis(20000);
      }
      b.Positionen.push_back(p);
    }
    for (qint64 n = Bis(4); n > 0; --n) Rabatt(b);
    return b;
  }

 private:
  void Rabatt(Modellbeleg &B) {
    const qint64 wert = Bis(2000), schluessel = Bis(3);
    const int art = int(Bis(3));
    if (art == 0) B.Prozent += wert;
    if (art == 1) B.Frei += wert;
    if (art == 2) B.Gebunden[size_t(schluessel)] += wert;
    B.Rabattliste = Rabattliste_erweitern(B.Rabattliste, QStringLiteral("R"),
                                          art == 0 ? Rabattart::Prozent : Rabattart::Betrag,
                                          double(wert) / 100, art == 2, S(SCHLUESSEL[schluessel]));
  }
  std::mt19937_64 Zufall_;
};

TEST_P(Belegsumme_Test, gleicht_der_Rechnung_mit_ganzen_Zahlen) {
  constexpr int FAELLE = 10000;
  Belegwuerfel wuerfel(2024);
  std::vector<Modellbeleg> belege;
  {
    Fueller f("Positions");
    for (int n = 0; n < FAELLE; ++n) {
      belege.push_back(wuerfel.Wuerfeln());
      for (const Modellposition &p : belege.back().Positionen)
        f.Zeile({{"document", "Rechnung"},
                 {"DocumentNumber", QString::number(n)},
                 {"VatCode", SCHLUESSEL[p.Schluessel]},
                 {"Quantity", double(p.Menge) / 100},
                 {"Rebate", double(p.Rabatt) / 100},
                 {"UnitpriceNet", double(p.Einzel[0]) / 10000},
                 {"UnitpriceGross", double(p.Einzel[1]) / 10000},
                 {"AllroundpriceNet", double(p.Gesamt[0]) / 10000},
                 {"AllroundpriceGross", double(p.Gesamt[1]) / 10000}});
    }
  }
  Programm("FreeShippingType", "0");
  Programm("FreeShippingAmount", "400");
  for (int n = 0; n < FAELLE; ++n) {
    const bool freigrenze = n >= FAELLE / 2;
    if (n == FAELLE / 2) Programm("FreeShipping", "1");
    const Modellbeleg &b = belege[size_t(n)];
    const QString art = S(b.Versandart == 0 ? "" : b.Versandart == 1 ? "Post" : "Bote");
    Belegsumme s;
    ASSERT_TRUE(Beleg_summieren(
        s, {S("Rechnung"), QString::number(n), b.Taxation, art, {}, {}, 1, b.Rabattliste, b.TaxCalculation}));
    const Modellsumme m = Summieren(b, freigrenze);
    const auto euro = [](Gross g) { return double(qint64(Vom_Nullpunkt(g, CENT))) / 100; };
    SCOPED_TRACE(testing::Message() << "Beleg " << n << ", Taxation " << b.Taxation << ", Rabatte '"
                                    << b.Rabattliste.toStdString() << "', Versand " << b.Versandart);
    ASSERT_EQ(s.Netto, euro(m.Netto));
    ASSERT_EQ(s.Steuer, euro(m.Steuer));
    ASSERT_EQ(s.Brutto, euro(m.Brutto));
    ASSERT_EQ(s.Positionsrabatt, euro(m.Positionsrabatt));
    ASSERT_EQ(s.Belegrabatt, euro(m.Belegrabatt));
    ASSERT_EQ(s.Freibetrag, double(b.Frei) / 100);
    ASSERT_EQ(s.Zwischensumme, euro(m.Zwischensumme));
    ASSERT_EQ(s.Versandkosten, euro(m.Versand));
  }
}

}  // namespace
}  // namespace marklink::test
