// Prices from the command line.
#include <QJsonDocument>
#include <QJsonObject>

#include "Launcher.h"
#include "support/Datenbank_Test.h"

namespace marklink::test {
namespace {

TEST(Preis, zeigt_woher_er_kommt) {
  const Launcher l;
  l.Mandant_mit_Shop(0, 9);
  Rohe_Verbindung datei(l.Datei("Test.mdb"));
  for (const char *sql :
       {"INSERT INTO CustomerTypes (Description, BlockingPricing) VALUES ('Händler', -1)",
        "INSERT INTO Contacts (CustomerNumber, CustomerType) VALUES ('10001', 'Händler'), ('10002', NULL)",
        "INSERT INTO Articles (ArticleNumber, ShortText, VatCode, NetPrice, VatAmount, GrossPrice) VALUES "
        "('A-1', 'Schuh', '1', 10, 1.9, 11.9)",
        "INSERT INTO ArticleCustomerTypePrices (ArticleNumber, CustomerType, VatCode, NetPrice, VatAmount, "
        "GrossPrice) VALUES ('A-1', 'Händler', '1', 8.4034, 1.5966, 10)"})
    ASSERT_TRUE(datei.lauf(sql)) << sql;
  const Ergebnis gruppe = l.Starten("preis A-1 10001 2,5 --json");
  EXPECT_EQ(gruppe.Ausgang, 0) << gruppe.Fehler.toStdString();
  const QJsonObject erwartet{{QStringLiteral("artikel"), QStringLiteral("A-1")},
                             {QStringLiteral("kunde"), QStringLiteral("10001")},
                             {QStringLiteral("menge"), 2.5},
                             {QStringLiteral("netto"), 8.4},
                             {QStringLiteral("steuer"), 1.6},
                             {QStringLiteral("brutto"), 10},
                             {QStringLiteral("steuerschluessel"), QStringLiteral("1")},
                             {QStringLiteral("quelle"), QStringLiteral("Kundengruppe")}};
  EXPECT_EQ(QJsonDocument::fromJson(gruppe.Ausgabe.toUtf8()).object(), erwartet);
  const struct {
    const char *Zeile, *Ausgabe, *Fehler;
    int Ausgang;
  } tafel[] = {
      {"preis A-1 10002 1", "Brutto:          11,90\nSteuerschlüssel: 1\nQuelle:          Artikel\n", "", 0},
      {"preis A-1 gibtsnicht 1", "Quelle:          Artikel\n", "Der Kunde 'gibtsnicht' ist nicht vorhanden",
       0},
      {"preis A-9 10001 1", "", "Der Artikel 'A-9' ist nicht vorhanden.", 1},
      {"preis A' 10001 -1", "", "Der Artikel 'A'' ist nicht vorhanden.", 1},
      {"preis A-1 10001 viel", "", "MENGE ist eine Zahl wie 1,5, nicht 'viel'.", 2},
      {"preis A-1 10001 1e999", "", "MENGE", 2},
      {"preis A-1 10001", "", "MENGE", 2},
  };
  for (const auto &t : tafel) {
    const Ergebnis e = l.Starten(t.Zeile);
    EXPECT_EQ(e.Ausgang, t.Ausgang) << t.Zeile;
    EXPECT_EQ(e.Ausgabe.right(QString::fromUtf8(t.Ausgabe).size()), QString::fromUtf8(t.Ausgabe)) << t.Zeile;
    EXPECT_EQ(e.Ausgabe.isEmpty(), t.Ausgang != 0) << t.Zeile;
    EXPECT_TRUE(e.Fehler.contains(QString::fromUtf8(t.Fehler))) << e.Fehler.toStdString();
  }
}

}  // namespace
}  // namespace marklink::test
