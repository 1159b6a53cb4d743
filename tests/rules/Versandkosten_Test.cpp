// Shipping costs by scale and flat, the free-shipping limit, and the weight of a document.
#include "rules/Versandkosten.h"

#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

const QString Beispiel = QStringLiteral("DE;AT~5:4,90;10:6,90;31,5:9,90~1|CH;LI~5:14,90;31,5:24,90~2");

struct Gefunden {
  double Kosten = -1.0;
  QString Schluessel = QStringLiteral("?");
};

Gefunden Suchen(const QString &Staffel, const QString &Land, double Gewicht) {
  Gefunden g;
  Versandkosten_Staffel(g.Kosten, g.Schluessel, Staffel, Land, Gewicht);
  return g;
}

TEST(Versandkosten_Staffel_Test, Zonen_und_Stufen) {
  test::Dialoge_Skript dialoge;  // no case may ask
  const struct {
    QString Staffel, Land;
    double Gewicht, Kosten;
    QString Schluessel;
  } faelle[] = {
      {Beispiel, u"DE"_qs, 5, 4.9, u"1"_qs},
      {Beispiel, u"DE"_qs, 5.01, 6.9, u"1"_qs},
      {Beispiel, u"AT"_qs, 0, 4.9, u"1"_qs},
      {Beispiel, u"LI"_qs, 5.5, 24.9, u"2"_qs},
      {Beispiel, u"FR"_qs, 1, 14.9, u"2"_qs},
      {Beispiel, u"de"_qs, 1, 14.9, u"2"_qs},                    // countries compare exactly
      {u"DE~10:2;5:1~1|DE~10:9~3"_qs, u"DE"_qs, 7, 2, u"1"_qs},  // first zone, unsorted steps
      {u"DE~5:1;10:2;10:3~1"_qs, u"DE"_qs, 10, 3, u"1"_qs},      // of equal steps the last
      {u"DE~999:7~1"_qs, u"DE"_qs, 999, 7, u"1"_qs},
      {u"DE~998,9:7~1"_qs, u"DE"_qs, 3, 7, u"1"_qs},
      {u"DE~1.000:7;1:3~1"_qs, u"DE"_qs, 1000, 7, u"1"_qs},
      {u"DE~3,3:1;10:2~1"_qs, u"DE"_qs, 1.1 + 1.1 + 1.1, 1, u"1"_qs},
      {u"DE~5~1"_qs, u"DE"_qs, 5, 0, u"1"_qs},      // a step without costs
      {u"AT~5:1~1|DE"_qs, u"DE"_qs, 5, 0, u""_qs},  // a zone cut short costs nothing
      {u"DE~"_qs, u"DE"_qs, 5, 0, u""_qs},
      {u"DE~~1"_qs, u"DE"_qs, 5, 0, u"1"_qs},
      {u""_qs, u"DE"_qs, 5, 0, u""_qs},
      {u"DE~kg:1;5:2;~1"_qs, u"DE"_qs, 0, 2, u"1"_qs},  // what has no weight is no step
      {u"DE~5:1"_qs, u"DE"_qs, 5, 1, u""_qs},           // no tax key
  };
  for (const auto &fall : faelle) {
    const Gefunden g = Suchen(fall.Staffel, fall.Land, fall.Gewicht);
    EXPECT_EQ(g.Kosten, fall.Kosten) << fall.Staffel.toStdString() << ' ' << fall.Gewicht;
    EXPECT_EQ(g.Schluessel, fall.Schluessel) << fall.Staffel.toStdString() << ' ' << fall.Gewicht;
  }
}

TEST(Versandkosten_Staffel_Test, Fragt_ohne_ausreichendes_Gewicht) {
  const struct {
    QString Staffel;
    double Gewicht;
    QString Antwort;
    double Kosten;
  } faelle[] = {{Beispiel, 31.6, u"12,50"_qs, 12.5}, {Beispiel, 1e300, u"1.234,5"_qs, 1234.5},
                {Beispiel, 32, u""_qs, 0},           {Beispiel, 32, u"viel"_qs, 0},
                {u"DE~999:7~1"_qs, 5, u"3"_qs, 3},   {u"DE~1500:7~1"_qs, 1499, u"3"_qs, 3}};
  for (const auto &fall : faelle) {
    test::Dialoge_Skript dialoge;
    dialoge.Erwarten_Eingabe(u"Versandkosten"_qs, fall.Antwort);
    const Gefunden g = Suchen(fall.Staffel, u"DE"_qs, fall.Gewicht);
    EXPECT_EQ(g.Kosten, fall.Kosten) << fall.Staffel.toStdString();
    EXPECT_EQ(g.Schluessel, u"1"_qs);
    EXPECT_EQ(
        dialoge.Gezeigt[0].Zeilen,
        QStringList{u"Leider ist in der Versandkosten-Preisstaffel kein ausreichendes Gewicht vorhanden. "
                    u"Geben Sie daher bitte die Versandkosten (netto) manuell ein."_qs});
    EXPECT_EQ(dialoge.Gezeigt[0].Vorbelegung, u"0,00"_qs);
  }
}

class Versandkosten_Test : public test::Mandant_Test {
 protected:
  Versandkosten_Test() {
    Versandart(u"Paket"_qs, u"dp_dp"_qs, true);
    Versandart(u"Pauschal"_qs, u"flat_flat"_qs, false);
  }
  void Versandart(const QString &Bezeichnung, const QString &Token, bool Staffel) {
    Mandant.Zeile(u"ForwardingCharges"_qs,
                  {u"Description"_qs, Bezeichnung, u"Token"_qs, Token, u"Costs"_qs, 5.8, u"VatCode"_qs,
                   u"7"_qs, u"Weight"_qs, 31.5, u"PriceScaleEnable"_qs, Staffel, u"PriceScale"_qs, Beispiel});
  }
};
MARKLINK_BEIDE_TYPEN(Versandkosten_Test);

TEST_P(Versandkosten_Test, Versandart_entscheidet_ueber_die_Quelle) {
  test::Dialoge_Skript dialoge;
  const struct {
    QString Versandart;
    double Kosten;
    QString Schluessel;
  } faelle[] = {{u"Paket"_qs, 6.9, u"1"_qs},
                {u"Pauschal"_qs, 5.8, u"7"_qs},
                {u"Bote"_qs, 0, u""_qs},
                {u""_qs, 0, u""_qs},
                {u"Paket' OR '1'='1"_qs, 0, u""_qs}};
  for (const auto &fall : faelle) {
    double kosten = 0;
    QString schluessel;
    Versandkosten_ermitteln(kosten, schluessel, fall.Versandart, u"AT"_qs, 7);
    EXPECT_EQ(kosten, fall.Kosten) << fall.Versandart.toStdString();
    EXPECT_EQ(schluessel, fall.Schluessel) << fall.Versandart.toStdString();
  }
  double kosten = 0, gewicht = 0;
  QString schluessel;
  Versandkosten_lesen(kosten, schluessel, gewicht, u"Paket"_qs);
  EXPECT_EQ(kosten, 5.8) << "the flat costs, scale or not";
  EXPECT_EQ(schluessel, u"7"_qs);
  EXPECT_EQ(gewicht, 31.5);
  EXPECT_EQ(Versandart_aus_Token(u"flat_flat"_qs), u"Pauschal"_qs);
  EXPECT_EQ(Versandart_aus_Token(u"fremd"_qs), QString());
}

TEST_P(Versandkosten_Test, Freigrenze) {
  Mandant.Zeile(u"Countries"_qs, {u"Token"_qs, u"AT"_qs, u"Description"_qs, u"Österreich"_qs,
                                  u"FreeShippingAmount"_qs, 150.0});
  const auto option = [](const char *schluessel, const QString &wert) {
    Option_schreiben(u"Program"_qs, QLatin1String(schluessel), wert);
  };
  option("FreeShippingAmount", u"1.100,5"_qs);
  const struct {
    QString An, Art, Land;
    double Grenze;
  } faelle[] = {{u"1"_qs, u"0"_qs, u"Österreich"_qs, 1100.5}, {u"1"_qs, u"1"_qs, u"Österreich"_qs, 150},
                {u"1"_qs, u"1"_qs, u"Frankreich"_qs, 1100.5}, {u"1"_qs, u"1"_qs, u""_qs, 1100.5},
                {u"1"_qs, u"2"_qs, u"Österreich"_qs, 42},     {u"0"_qs, u"0"_qs, u"Österreich"_qs, 42},
                {u""_qs, u"1"_qs, u"Österreich"_qs, 42}};
  for (const auto &fall : faelle) {
    option("FreeShipping", fall.An);
    option("FreeShippingType", fall.Art);
    Kontext.gFreeShippingAmount = 42;
    Versandfreigrenze_ermitteln(fall.Land);
    EXPECT_EQ(Kontext.gFreeShippingAmount, fall.Grenze)
        << fall.An.toStdString() << fall.Art.toStdString() << fall.Land.toStdString();
  }
}

TEST_P(Versandkosten_Test, Gewicht_zaehlt_nur_den_eigenen_Beleg) {
  const auto position = [this](const QString &beleg, const QString &nummer, double menge) {
    Mandant.Zeile(u"Positions"_qs, {u"document"_qs, beleg, u"DocumentNumber"_qs, nummer, u"Quantity"_qs,
                                    menge, u"WeightNet"_qs, 1.5, u"WeightGross"_qs, 2.0});
  };
  position(u"Rechnung"_qs, u"7"_qs, 2.0);
  position(u"Rechnung"_qs, u"7"_qs, 0.5);
  position(u"Auftrag"_qs, u"7"_qs, 10);
  position(u"Rechnung"_qs, u"8"_qs, 10);
  double netto = 1, brutto = 0;
  Gewicht_summieren(netto, brutto, u"Rechnung"_qs, u"7"_qs);
  EXPECT_EQ(netto, 4.75) << "adds to what was there";
  EXPECT_EQ(brutto, 5);
}

}  // namespace
}  // namespace marklink
