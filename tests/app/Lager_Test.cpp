// marklink lager zuteilen, on the demo client.
#include <QJsonArray>
#include <QJsonObject>

#include "Launcher.h"

namespace marklink::test {
namespace {

TEST(Lager_Test, zuteilen_zeigt_Lose_und_was_fehlt_und_bucht_nichts) {
  const Launcher l;
  ASSERT_EQ(l.Starten("mandant demo").Ausgang, 0);
  const auto bestand = [&l] { return l.Zeilen("SELECT * FROM Warehouse", "Demo.mdb"); };
  const QString vorher = bestand();

  const QJsonObject json = l.Json("lager zuteilen WK1010 0,5 --lager AL").object();
  EXPECT_EQ(json[u"artikel"_qs].toString(), u"WK1010"_qs);
  EXPECT_EQ(json[u"lager"_qs].toString(), u"AL"_qs);
  EXPECT_EQ(json[u"zugeteilt"_qs].toDouble(), 0.5);
  EXPECT_EQ(json[u"fehlt"_qs].toDouble(), 0.0);
  EXPECT_EQ(json[u"einkaufspreis"_qs].toDouble(), 6.5);
  ASSERT_EQ(json[u"lose"_qs].toArray().size(), 1);
  EXPECT_EQ(json[u"lose"_qs].toArray()[0][u"einlagerung"_qs].toString(), u"LH000004"_qs);

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

}  // namespace
}  // namespace marklink::test
