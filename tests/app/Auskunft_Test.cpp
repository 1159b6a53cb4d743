// What answers "why this figure?" on the command line, and books nothing: prices, shipping costs, numbers,
// lots, open items.
#include "Launcher.h"
#include "Terminal_Ziehung.h"

namespace marklink::test {
namespace {

/// As one line, names in order.
QString Json(const Launcher &L, const QStringList &Worte) {
  return QString::fromUtf8(L.Json(Worte).toJson(QJsonDocument::Compact));
}

TEST(Auskunft_Test, Preis_und_woher_er_kommt) {
  const Launcher l;
  l.Mandant_mit_Shop(0, 9);
  l.Sql(
      "INSERT INTO CustomerTypes (Description, BlockingPricing) VALUES ('Händler', -1);"
      "INSERT INTO Contacts (CustomerNumber, CustomerType) VALUES ('10001', 'Händler'), ('10002', NULL);"
      "INSERT INTO Articles (ArticleNumber, ShortText, VatCode, NetPrice, VatAmount, GrossPrice) VALUES "
      "('A-1', 'Schuh', '1', 10, 1.9, 11.9);"
      "INSERT INTO ArticleCustomerTypePrices (ArticleNumber, CustomerType, VatCode, NetPrice, VatAmount, "
      "GrossPrice) VALUES ('A-1', 'Händler', '1', 8.4034, 1.5966, 10)");
  EXPECT_EQ(Json(l, Worte("preis A-1 10001 2,5")),
            uR"({"artikel":"A-1","brutto":10,"kunde":"10001","menge":2.5,"netto":8.4,)"
            R"("quelle":"Kundengruppe","steuer":1.6,"steuerschluessel":"1"})"_qs);
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

TEST(Auskunft_Test, Lose_und_was_fehlt) {
  const Launcher l;
  ASSERT_EQ(l.Starten("mandant demo").Ausgang, 0);
  const auto bestand = [&l] { return l.Zeilen("SELECT * FROM Warehouse", "Demo.mdb"); };
  const QString vorher = bestand();
  EXPECT_EQ(Json(l, Worte("lager zuteilen WK1010 0,5 --lager AL")),
            uR"({"artikel":"WK1010","einkaufspreis":6.5,"fehlt":0,"lager":"AL","lose":[{"charge":"0004",)"
            R"("einkaufspreis":6.5,"einlagerung":"LH000004","lager":"AL-09","menge":0.5}],"menge":0.5,)"
            R"("strategie":0,"zugeteilt":0.5})"_qs);
  const Befehlsfall faelle[] = {
      {"lager zuteilen WK1010 10", 0,
       "Artikel WK1010, Lager 01, älteste zuerst\n\n"
       "  Einlagerung  Lager    Charge  Menge  Einkaufspreis\n"
       "  LH000002     01-W-02  0002     6,00           7,20\n"
       "  LH000003     01-W-03  0003     2,50           6,90\n\n"
       "Zugeteilt: 8,50 von 10,00, es fehlen: 1,50\n"
       "Mittlerer Einkaufspreis: 7,111765\n"},
      {"lager zuteilen RP1010 1", 0,
       "Artikel RP1010, Lager 01, unbekannte Entnahmestrategie 7\nZugeteilt: 0,00 von 1,00, es fehlen: "
       "1,00\n"},
      {"lager zuteilen WK1010 0", 0,
       "Artikel WK1010, Lager 01, älteste zuerst\nZugeteilt: 0,00 von 0,00, es fehlen: 0,00\n"},
      {"lager zuteilen WK1010 -5", 0,
       "Artikel WK1010, Lager 01, älteste zuerst\nZugeteilt: 0,00 von -5,00, es fehlen: 0,00\n"},
      {"lager zuteilen WK1010 viel", 2, "", "marklink: MENGE ist eine Zahl wie 1,5, nicht 'viel'.\n"},
      {"lager zuteilen X'Y 1", 1, "", "marklink: Den Artikel 'X'Y' gibt es nicht.\n"},
      // The demo's counters stand behind its documents, but for one that somebody forgot.
      {"nummer OpenItem", 0, "OP-000018\n"},
      {"nummer Payment", 0, "ZE-000007\n"},
  };
  for (const Befehlsfall &fall : faelle) l.Pruefen(fall);
  EXPECT_EQ(bestand(), vorher);
}

TEST(Auskunft_Test, Versandkosten_und_Posten) {
  const Launcher l;
  l.Mandant_mit_Shop(0, 1);
  const QStringList post{u"versandkosten"_qs, u"Deutsche Post"_qs};
  for (const QString &land : {u"DE"_qs, u"Deutschland"_qs})
    EXPECT_EQ(
        Json(l, post + QStringList{land, u"5,01"_qs}),
        uR"({"gewicht":5.01,"kosten":5.8,"land":"%1","methode":"Deutsche Post","steuerschluessel":"1"})"_qs
            .arg(land));
  const Ergebnis gefragt = l.Starten(QStringList{u"--antwort"_qs, u"Versandkosten=49,90"_qs} + post +
                                     QStringList{u"DE"_qs, u"1200"_qs});
  EXPECT_TRUE(gefragt.Ausgabe.contains(u"49,90 EUR"_qs));
  EXPECT_TRUE(gefragt.Fehler.startsWith(u"[Versandkosten] Leider"_qs));
  EXPECT_EQ(l.Starten(post + QStringList{u"DE"_qs, u"schwer"_qs}).Ausgang, 2);
  EXPECT_EQ(l.Starten("versandkosten Kutsche DE 1").Ausgang, 1);

  l.Sql(
      "INSERT INTO Invoice(InvoiceNumber,TotalAmount,Date) "
      "VALUES('R1',100,'2024-06-01 00:00:00'),('R2',80,'2024-06-01 00:00:00');"
      "INSERT INTO OpenItems(OpenItemNumber,document,DocumentNumber,Amount,OverdueFines,"
      "PaymentsReceived,OutstandingAmount,DuePayment) "
      "VALUES('OP-1','Rechnung','R1',100,5,42,60.5,'2024-06-15 00:00:00')");
  const QJsonDocument posten = l.Json("posten R1"), ohne = l.Json("posten R2");
  EXPECT_EQ(posten[u"posten"].toString(), u"OP-1"_qs);
  EXPECT_EQ(posten[u"offen"].toDouble(), 60.5);
  EXPECT_EQ(posten[u"skonto"].toDouble(), 2.5) << "what makes the figures add up";
  EXPECT_EQ(posten[u"faellig"].toString(), u"2024-06-15"_qs);
  EXPECT_EQ(ohne[u"offen"].toDouble(), 80.0);
  EXPECT_TRUE(ohne[u"posten"].isNull());
  EXPECT_EQ(l.Starten("posten R9").Ausgang, 1);
  EXPECT_EQ(l.Zeilen("SELECT COUNT(*) FROM OpenItems"), u"1"_qs);
}

class Nummer_Test : public testing::TestWithParam<int> {
 protected:
  void SetUp() override { L.Mandant_mit_Shop(GetParam(), 1); }
  Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Nummer_Test, testing::Values(0, 1));

TEST_P(Nummer_Test, zeigen_ohne_zu_verbrauchen) {
  const Befehlsfall faelle[] = {
      {"nummer Contract", 0, "AU-2024-00001\n"}, {"nummer Invoice", 0, "RE-2024-00001\n"},
      {"nummer invoice", 0, "RE-2024-00001\n"},  {"nummer Customer", 0, "10001\n"},
      {"nummer OpenItem", 0, "OP-000001\n"},     {"nummer Stocking", 0, "LG-000001\n"},
  };
  for (const Befehlsfall &fall : faelle) L.Pruefen(fall);
  // A taken number is passed by, and the counter stays.
  L.Sql("INSERT INTO Invoice (InvoiceNumber) VALUES ('RE-2024-00001')");
  L.Pruefen({"nummer Invoice", 0, "RE-2024-00002\n"});
  L.Pruefen({"einstellung lesen NumberRange Invoice", 0, "00001\n"});
}

TEST_P(Nummer_Test, wenn_es_keine_gibt) {
  L.Einstellen("NumberRange", "Invoice", u"zwölf"_qs);
  L.Sql("INSERT INTO Invoice (InvoiceNumber) VALUES ('RE-2024-zwölf')");
  L.Einstellen("Counting", "Reservation", u"0"_qs);
  L.Einstellen("Stocking", "Counting", u"0"_qs);
  L.Einstellen("Formatting", "Article", u";"_qs);
  const Befehlsfall faelle[] = {
      {"nummer Lieferschein", 2, "",
       "marklink: Den Nummernkreis 'Lieferschein' gibt es nicht; bekannt: Contract, Invoice, Customer, "
       "Article, Layout, Reservation, Stocking, Payment, OpenItem.\n"},
      {"nummer Invoice", 1, "",
       "marklink: Im Nummernkreis 'Invoice' ist die Nummer 'RE-2024-zwölf' vergeben, und sein Zähler führt "
       "zu keiner anderen.\n"},
      {"nummer Reservation", 1, "",
       "marklink: Der Nummernkreis 'Reservation' zählt nicht automatisch; neue Datensätze ziehen keine "
       "Nummer daraus, sie bekommen eine GUID.\n"},
      {"nummer Stocking", 1, "",
       "marklink: Der Nummernkreis 'Stocking' zählt nicht automatisch; neue Datensätze ziehen keine Nummer "
       "daraus, ihre Nummer bleibt leer.\n"},
      {"nummer Article", 1, "", "marklink: Der Nummernkreis 'Article' ergibt eine leere Nummer.\n"},
  };
  for (const Befehlsfall &fall : faelle) L.Pruefen(fall);
}

TEST(Nummer_Stillstand_Test, endet_bald_mit_einer_Zeile) {
  Stillstand stand{u"Invoice"_qs, u"RE-\n1"_qs, 1};
  testing::internal::CaptureStderr();
  while (stand.Runden < 100 && Stillstand_im_Terminal(stand)) ++stand.Runden;
  EXPECT_LT(stand.Runden, 100);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "marklink: Im Nummernkreis 'Invoice' ist die Nummer 'RE- | 1' vergeben, und sein Zähler führt zu "
            "keiner anderen.\n");
}

}  // namespace
}  // namespace marklink::test
