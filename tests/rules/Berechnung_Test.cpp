// Taxes, fields of customers and articles, discount lists.
#include "rules/Berechnung.h"

#include <gtest/gtest.h>

#include <array>

#include "Regeln.h"
#include "rules/Artikelfelder.h"
#include "rules/Kunden.h"
#include "rules/Rabattliste.h"

namespace marklink::test {
namespace {

const QString S(const char *Text) { return QString::fromUtf8(Text); }

class Berechnung_Test : public Mandant_Test {};
MARKLINK_BEIDE_TYPEN(Berechnung_Test);

TEST_P(Berechnung_Test, Steuern) {
  Zeile("Taxes", {{"TaxKeyNumber", "9"},
                  {"Percentage", 19.0},
                  {"TaxRateEUVatID", "0"},
                  {"TaxRateEUNonVatID", "8"},
                  {"TaxRateNonEU", "7"}});
  Zeile("Taxes", {{"TaxKeyNumber", "2 "}, {"Percentage", 5.5}});
  EXPECT_DOUBLE_EQ(Netto_zu_Brutto(200, S("9")), 238);
  EXPECT_DOUBLE_EQ(Brutto_zu_Netto(238, S("9")), 200);
  EXPECT_DOUBLE_EQ(Steuer_aus_Brutto(238, S("9")), 38);
  EXPECT_DOUBLE_EQ(Steuer_aus_Netto(200, S("2 ")), 11);
  EXPECT_DOUBLE_EQ(Netto_zu_Brutto(200, S("?")), 200);
  EXPECT_DOUBLE_EQ(Steuer_aus_Brutto(200, S("1' OR '1'='1")), 0);
  const char *kunde[] = {"9", "0", "8", "7", ""}, *artikel[] = {"9", "8", "0", "7", ""};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Steuerfeld_lesen(S("9"), Steuerfeld_Kunde(i)).toString(), S(kunde[i])) << i;
    EXPECT_EQ(Steuerfeld_lesen(S("9"), Steuerfeld_ermitteln(i)).toString(), S(artikel[i])) << i;
  }
  const std::pair<const char *, std::array<int, 5>> besteuerung[] = {
      {"1", {1, 0, 1, 0, 1}}, {"0", {0, 0, 0, 0, 0}}, {"", {0, 0, 0, 0, 0}}};
  for (const auto &[wert, je_Kunde] : besteuerung) {
    Mandant.Einstellen("Program", "Taxation", S(wert));
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Besteuerung_ermitteln(i), je_Kunde[size_t(i)]) << wert << ' ' << i;
  }
  EXPECT_EQ(Steuerfeld_lesen(S("?"), S("Percentage")), QVariant(0.0));
  EXPECT_EQ(Steuerfeld_lesen(S("?"), S("TaxKeyNumber")), QVariant(QString()));
  EXPECT_EQ(Steuerschluessel_Liste(), S("9;2 "));
  EXPECT_EQ(Steuerschluessel_aus_Prozent(5.5), S("2 "));
  EXPECT_EQ(Steuerschluessel_aus_Prozent(6), QString());
}

TEST_P(Berechnung_Test, Zahlungsziel) {
  Zeile("PaymentPractices", {{"Description", "30 Tage"}, {"PaymentPeriod", 30}});
  Zeile("PaymentPractices", {{"Description", "ohne"}});
  EXPECT_EQ(Zahlungsziel_ermitteln(S("30 tage"), QDate(2024, 2, 1)), QDate(2024, 3, 2));
  EXPECT_FALSE(Zahlungsziel_ermitteln(S("ohne"), QDate(2024, 2, 1)).isValid());
  EXPECT_FALSE(Zahlungsziel_ermitteln(S("?"), QDate(2024, 2, 1)).isValid());
}

TEST_P(Berechnung_Test, Kunden) {
  Zeile("Countries", {{"Token", "AT"}, {"Description", "Österreich"}, {"EU", true}});
  Zeile("Countries", {{"Token", "CH"}, {"Description", "Schweiz"}});
  Zeile("Contacts", {{"CustomerNumber", "10"},
                     {"Matchcode", "Müller"},
                     {"Country", "Österreich"},
                     {"Discount", 2.5},
                     {"TaxCalculation", 2},
                     {"Bankname", "Sparkasse"},
                     {"iban", "AT61"},
                     {"CollectionAuthorisation", true},
                     {"DebitorAccount", "10010"}});
  Zeile("Contacts", {{"CustomerNumber", "11"}, {"Matchcode", "Fremd"}, {"Country", "Atlantis"}});
  Zeile("CustomerTypes", {{"Description", ""}, {"SpecialOfferPrice", true}});
  Zeile("CustomerTypes", {{"Description", "Händler"}, {"SpecialOfferPrice", true}});
  EXPECT_EQ(Kunden_Feld(S("10"), Kundenfeld::Matchcode).toString(), S("Müller"));
  EXPECT_EQ(Kunden_Feld(S("10"), 1), QVariant(2.5));
  EXPECT_EQ(Kunden_Feld(S("10"), 8).toString(), S("10010"));
  EXPECT_EQ(Kunden_Feld(S("10"), 12).toString(), S("AT"));
  for (int feld : {-1, 2, 13}) EXPECT_TRUE(Kunden_Feld(S("10"), feld).isNull()) << feld;
  EXPECT_TRUE(Kunden_Feld(S("11"), 0).isNull()) << "a country that is not listed";
  Bankdaten bank{S("alt"), {}, {}, {}, {}, {}};
  EXPECT_FALSE(Kunden_Bankdaten(bank, S("?")));
  EXPECT_EQ(bank.Bankname, S("alt"));
  EXPECT_TRUE(Kunden_Bankdaten(bank, S("10")));
  EXPECT_EQ(bank.Bankname + bank.iban + bank.bic, S("SparkasseAT61"));
  EXPECT_TRUE(Kunden_Lastschrift(S("10")));
  EXPECT_FALSE(Kunden_Lastschrift(S("11")));
  EXPECT_TRUE(Kundengruppe_Sonderpreis(S("händler")));
  EXPECT_FALSE(Kundengruppe_Staffelpreis(S("Händler")));
  EXPECT_FALSE(Kundengruppe_Sonderpreis(QString()));
  EXPECT_EQ(Steuerberechnung_ermitteln(S("Deutschland"), S("DE1")), 0);
  EXPECT_EQ(Steuerberechnung_ermitteln(S("Österreich"), S("ATU1")), 1);
  EXPECT_EQ(Steuerberechnung_ermitteln(S("Österreich"), QString()), 2);
  EXPECT_EQ(Steuerberechnung_ermitteln(S("Schweiz"), S("CHE1")), 3);
  EXPECT_EQ(Steuerberechnung_ermitteln(QString(), S("X1")), 3);
}

TEST_P(Berechnung_Test, Artikel) {
  Zeile("ArticleTypes", {{"Description", "Ware"}, {"Stock", true}});
  Zeile("ArticleTypes", {{"Description", "Variante"}, {"Variant", true}});
  Zeile("Articles", {{"ArticleNumber", "A"},
                     {"ArticleType", "ware"},
                     {"Barcode", "40"},
                     {"UnloadingPolicy", 3},
                     {"WeightNet", 1.25},
                     {"Storage", "Halle"},
                     {"Unsociable", 1.0}});
  Zeile("Articles", {{"ArticleNumber", "V"}, {"ArticleType", "Variante"}});
  EXPECT_EQ(Artikel_Feld_lesen(S("a"), Artikelfeld::Barcode), QVariant(S("40")));
  EXPECT_EQ(Artikel_Feld_lesen(S("A"), 6), QVariant(3));
  EXPECT_EQ(Artikel_Feld_lesen(S("A"), 8), QVariant(1.25));
  for (int feld : {-1, 9, 20, 21, 26}) EXPECT_TRUE(Artikel_Feld_lesen(S("A"), feld).isNull()) << feld;
  EXPECT_TRUE(Artikel_Feld_schreiben(S("A"), Artikelfeld::Storage, S("Hof")));
  EXPECT_TRUE(Artikel_Feld_schreiben(S("A"), Artikelfeld::Unsociable, S("2,5")));
  EXPECT_TRUE(Artikel_Feld_schreiben(S("A"), Artikelfeld::Disposable, S("viele")));
  EXPECT_TRUE(Artikel_Feld_schreiben(S("A"), Artikelfeld::Barcode, S("nie")));
  EXPECT_FALSE(Artikel_Feld_schreiben(S("?"), Artikelfeld::Storage, S("Hof")));
  EXPECT_EQ(Artikel_Feld_lesen(S("A"), 19).toString() + Artikel_Feld_lesen(S("A"), 0).toString(), S("Hof40"));
  EXPECT_TRUE(Artikelart_Lagerfuehrung(S("A")));
  EXPECT_FALSE(Artikelart_Variante(S("A")));
  EXPECT_TRUE(Artikelart_Variante(S("V")));
}

TEST(Rabattliste, wird_erweitert_und_ausgewertet) {
  QString liste;
  liste = Rabattliste_erweitern(liste, S("Rabatt 3%"), Rabattart::Prozent, 3, false, {});
  liste = Rabattliste_erweitern(liste, S("Treue"), Rabattart::Prozent, 2, false, {});
  liste = Rabattliste_erweitern(liste, S("Gutschein"), Rabattart::Betrag, 1234.5, false, {});
  liste = Rabattliste_erweitern(liste, S("Aktion"), Rabattart::Betrag, 4.2, true, S("2"));
  EXPECT_EQ(liste, S("Rabatt 3%;0;3;0;|Treue;0;2;0;|Gutschein;1;1234,5;0;|Aktion;1;4,2;-1;2"));
  const Rabattauswertung eins = Rabattliste_auswerten(liste, 200, S("1")),
                         zwei = Rabattliste_auswerten(liste, 200, S("2"));
  EXPECT_EQ(eins.Text, S("Rabatt 3%\r\nTreue\r\nGutschein\r\nAktion\r\n"));
  EXPECT_DOUBLE_EQ(eins.Prozentbetrag, 10);  // 5 per cent, not 3 and then 2
  EXPECT_DOUBLE_EQ(eins.Freibetrag, 1234.5);
  EXPECT_DOUBLE_EQ(eins.Gebunden, 0);
  EXPECT_DOUBLE_EQ(zwei.Gebunden, 4.2);
  const Rabattauswertung kaputt =
      Rabattliste_auswerten(S("a;2;5;0;|b;0|c|d;1;x;0;|e;1;5;vielleicht;|f;1;1.000,5;0;||;;;;"), 100, S("1"));
  EXPECT_DOUBLE_EQ(kaputt.Prozentbetrag, 0);
  EXPECT_DOUBLE_EQ(kaputt.Freibetrag, 1000.5);
  EXPECT_EQ(kaputt.Text.count(S("\r\n")), 8);
  EXPECT_TRUE(Rabattliste_auswerten({}, 100, {}).Text.isEmpty());
}

}  // namespace
}  // namespace marklink::test
