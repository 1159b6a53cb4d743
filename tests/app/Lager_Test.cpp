// marklink lager zuteilen, on the demo client.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Launcher.h"

namespace marklink::test {
namespace {

TEST(Lager_Test, zuteilen_zeigt_Lose_und_was_fehlt_und_bucht_nichts) {
  const Launcher l;
  ASSERT_EQ(l.Starten("mandant demo").Ausgang, 0);
  const char *bestand = "SELECT * FROM Warehouse";
  const QStringList vorher = Launcher::Roh_lesen(l.Datei("Demo.mdb"), bestand);

  const Ergebnis text = l.Starten("lager zuteilen WK1010 10");
  EXPECT_EQ(text.Ausgang, 0);
  EXPECT_EQ(text.Ausgabe, QStringLiteral("Artikel WK1010, Lager 01, älteste zuerst\n\n"
                                         "  Einlagerung  Lager    Charge  Menge  Einkaufspreis\n"
                                         "  LH000002     01-W-02  0002     6,00           7,20\n"
                                         "  LH000003     01-W-03  0003     2,50           6,90\n\n"
                                         "Zugeteilt: 8,50 von 10,00, es fehlen: 1,50\n"
                                         "Mittlerer Einkaufspreis: 7,111765\n"));

  const QJsonObject json =
      QJsonDocument::fromJson(l.Starten("lager zuteilen WK1010 0,5 --lager AL --json").Ausgabe.toUtf8())
          .object();
  EXPECT_EQ(json[QLatin1String("artikel")].toString(), QStringLiteral("WK1010"));
  EXPECT_EQ(json[QLatin1String("lager")].toString(), QStringLiteral("AL"));
  EXPECT_EQ(json[QLatin1String("zugeteilt")].toDouble(), 0.5);
  EXPECT_EQ(json[QLatin1String("fehlt")].toDouble(), 0.0);
  EXPECT_EQ(json[QLatin1String("einkaufspreis")].toDouble(), 6.5);
  ASSERT_EQ(json[QLatin1String("lose")].toArray().size(), 1);
  EXPECT_EQ(json[QLatin1String("lose")].toArray()[0][QLatin1String("einlagerung")].toString(),
            QStringLiteral("LH000004"));

  const struct {
    const char *Zeile;
    int Ausgang;
    const char *Ausgabe, *Fehler;
  } faelle[] = {
      {"lager zuteilen RP1010 1", 0,
       "Artikel RP1010, Lager 01, unbekannte Entnahmestrategie 7\nZugeteilt: 0,00 von 1,00, es fehlen: "
       "1,00\n",
       ""},
      {"lager zuteilen WK1010 0", 0,
       "Artikel WK1010, Lager 01, älteste zuerst\nZugeteilt: 0,00 von 0,00, es fehlen: 0,00\n", ""},
      {"lager zuteilen WK1010 -5", 0,
       "Artikel WK1010, Lager 01, älteste zuerst\nZugeteilt: 0,00 von -5,00, es fehlen: 0,00\n", ""},
      {"lager zuteilen WK1010 viel", 2, "", "marklink: MENGE ist eine Zahl wie 1,5, nicht 'viel'.\n"},
      {"lager zuteilen X'Y 1", 1, "", "marklink: Den Artikel 'X'Y' gibt es nicht.\n"},
  };
  for (const auto &fall : faelle) {
    const Ergebnis e = l.Starten(fall.Zeile);
    EXPECT_EQ(e.Ausgang, fall.Ausgang) << fall.Zeile;
    EXPECT_EQ(e.Ausgabe, QString::fromUtf8(fall.Ausgabe)) << fall.Zeile;
    EXPECT_EQ(e.Fehler, QString::fromUtf8(fall.Fehler)) << fall.Zeile;
  }
  EXPECT_EQ(Launcher::Roh_lesen(l.Datei("Demo.mdb"), bestand), vorher);
  // The demo's counters stand behind its documents, but for one that somebody forgot.
  EXPECT_EQ(l.Starten("nummer OpenItem").Ausgabe, QStringLiteral("OP-000018\n"));
  EXPECT_EQ(l.Starten("nummer Payment").Ausgabe, QStringLiteral("ZE-000007\n"));
}

}  // namespace
}  // namespace marklink::test
