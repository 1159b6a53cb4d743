// Prices from the command line.
#include <QJsonObject>

#include "Launcher.h"

namespace marklink::test {
namespace {

TEST(Preis, zeigt_woher_er_kommt) {
  const Launcher l;
  l.Mandant_mit_Shop(0, 9);
  l.Sql(
      "INSERT INTO CustomerTypes (Description, BlockingPricing) VALUES ('Händler', -1);"
      "INSERT INTO Contacts (CustomerNumber, CustomerType) VALUES ('10001', 'Händler'), ('10002', NULL);"
      "INSERT INTO Articles (ArticleNumber, ShortText, VatCode, NetPrice, VatAmount, GrossPrice) VALUES "
      "('A-1', 'Schuh', '1', 10, 1.9, 11.9);"
      "INSERT INTO ArticleCustomerTypePrices (ArticleNumber, CustomerType, VatCode, NetPrice, VatAmount, "
      "GrossPrice) VALUES ('A-1', 'Händler', '1', 8.4034, 1.5966, 10)");
  const QJsonObject erwartet{{u"artikel"_qs, u"A-1"_qs},
                             {u"kunde"_qs, u"10001"_qs},
                             {u"menge"_qs, 2.5},
                             {u"netto"_qs, 8.4},
                             {u"steuer"_qs, 1.6},
                             {u"brutto"_qs, 10},
                             {u"steuerschluessel"_qs, u"1"_qs},
                             {u"quelle"_qs, u"Kundengruppe"_qs}};
  EXPECT_EQ(l.Json("preis A-1 10001 2,5").object(), erwartet);
  const Befehlsfall faelle[] = {
      {"preis A-1 10002 1", 0,
       "Artikel:         A-1\nKunde:           10002\nMenge:           1\nNetto:           10,00\n"
       "Steuer:          1,90\nBrutto:          11,90\nSteuerschlüssel: 1\nQuelle:          Artikel\n"},
      {"preis A-1 gibtsnicht 1", 0,
       "Artikel:         A-1\nKunde:           gibtsnicht\nMenge:           1\nNetto:           10,00\n"
       "Steuer:          1,90\nBrutto:          11,90\nSteuerschlüssel: 1\nQuelle:          Artikel\n",
       "marklink: Der Kunde 'gibtsnicht' ist nicht vorhanden"},
      {"preis A-9 10001 1", 1, "", "marklink: Der Artikel 'A-9' ist nicht vorhanden.\n"},
      {"preis A' 10001 -1", 1, "", "marklink: Der Artikel 'A'' ist nicht vorhanden.\n"},
      {"preis A-1 10001 viel", 2, "", "marklink: MENGE ist eine Zahl wie 1,5, nicht 'viel'.\n"},
      {"preis A-1 10001 1e999", 2, "", "marklink: MENGE"},
      {"preis A-1 10001", 2, "", "marklink: Es fehlt das Argument MENGE"},
  };
  for (const Befehlsfall &fall : faelle) l.Pruefen(fall);
}

}  // namespace
}  // namespace marklink::test
