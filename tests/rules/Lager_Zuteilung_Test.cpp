// Which lots serve a quantity, and what an allocation list says.
#include "Lager_Test.h"

namespace marklink::test {
namespace {

class Lager_Zuteilung_Test : public Lager_Test {};
MARKLINK_BEIDE_TYPEN(Lager_Zuteilung_Test);

TEST_P(Lager_Zuteilung_Test, Entnahme_nach_Strategie) {
  // Dates, prices and amounts all ask for another order; L3 has nothing left.
  Artikel("A1");
  Los_einlagern("L1", 3, 2, 4.0);
  Los_einlagern("L2", 4, 5, 3.0);
  Los_einlagern("L3", 0, 1, 9.0);
  Los_einlagern("L4", 1.5, 9, 3.5);
  Los_einlagern("L5", 7, 7, 1.0, "02-A");
  Los_einlagern("L6", 7, 3, 5.0, "01-A", "A2");
  const struct {
    int Strategie;
    double Menge;
    const char *Lager;
    const char *Lose;  ///< lots : quantities
  } faelle[] = {{0, 5, "01", "L1;L2:3;2"},
                {1, 5, "01", "L4;L2:1,5;3,5"},
                {2, 5, "01", "L1;L4;L2:3;1,5;0,5"},
                {3, 5, "01", "L2;L4:4;1"},
                {4, 5, "01", "L4;L1;L2:1,5;3;0,5"},
                {0, 3, "01", "L1:3"},
                {0, 1e300, "0", "L1;L2;L5;L4:3;4;7;1,5"},
                {0, 2, "02", "L5:2"},
                {0, 2, "03", ":"},
                {0, 2, "0'1", ":"},
                {5, 5, "01", ":"},
                {-1, 5, "01", ":"},
                {0, 0, "01", ":"},
                {0, -3, "01", ":"},
                {0, qQNaN(), "01", ":"},
                {0, qInf(), "01", ":"},
                {3, 0.1, "", "L5:0,1"}};
  for (const auto &f : faelle) {
    QString liste;
    Lager_Aufteilung(liste, Q("A1"), Q(f.Lager), f.Menge, f.Strategie);
    QStringList mengen;
    for (const Los &los : Zuteilung_zerlegen(liste)) mengen << los.value(2);
    EXPECT_EQ(Zuteilung_Wert(liste, 3).toString() + u':' + mengen.join(u';'), Q(f.Lose))
        << f.Strategie << " " << f.Menge << " " << f.Lager;
  }
  QString liste = Q("vorher");
  Lager_Aufteilung(liste, Q("A1"), Q("01"), 5, 0);
  EXPECT_EQ(liste, Q("vorher|A1;01-A;3;L1;CHL1;4;|A1;01-A;2;L2;CHL2;3;"));
}

TEST_P(Lager_Zuteilung_Test, Trennzeichen_im_Lager_verschieben_kein_Feld) {
  Artikel("A1");
  Los_einlagern("L1", 3, 1, 2.5, "01;A|B");
  EXPECT_EQ(Bestand_zuteilen(Q("A1"), 1, QString()), Q("A1;01 A B;1;L1;CHL1;2,5;"));
}

TEST_P(Lager_Zuteilung_Test, Lager_und_Strategie_kommen_vom_Artikel_oder_Mitarbeiter) {
  Artikel("A1", 1, "02");
  Artikel("A7", 7);
  Los_einlagern("L1", 1, 1, 1.0, "02");
  Los_einlagern("L2", 2, 2, 1.0, "020");
  Los_einlagern("L3", 4, 3, 1.0, "1");
  Los_einlagern("L7", 4, 3, 1.0, "01", "A7");
  const auto lose = [&](const char *artikel, const char *lager) {
    return Zuteilung_Wert(Bestand_zuteilen(Q(artikel), 100, Q(lager)), 3).toString();
  };
  EXPECT_EQ(lose("A1", ""), Q("L2;L1"));
  EXPECT_EQ(lose("A1", "1"), Q("L3"));
  EXPECT_EQ(lose("A7", ""), QString()) << "no such policy";
  EXPECT_EQ(lose("unbekannt", ""), QString());
  EXPECT_EQ(Artikel_Lager(Q("unbekannt")), QString());
  EXPECT_EQ(Lager_Verfuegbar(Q("A1"), Q("02")), 3);
  EXPECT_EQ(Lager_Verfuegbar(Q("A1"), QString()), 7);
  EXPECT_EQ(Lager_Verfuegbar(Q("A'1"), Q("02")), 0);
  Mandant.Einstellen("Program", "StorageAllocation", Q("1"));
  EXPECT_EQ(lose("A1", ""), Q("L3")) << "the employee's storage is 1";
  Kontext.gBenutzer_Lagernummer.clear();
  EXPECT_EQ(lose("A1", ""), Q("L2;L1"));
}

TEST_P(Lager_Zuteilung_Test, Werte_aus_der_Liste) {
  const QString liste = Q("A;01;3;L1;C1;4;5|A;02;2;L2;C2;4,5;7");
  EXPECT_EQ(Zuteilung_Wert(liste, 2), QVariant(5.0));
  EXPECT_EQ(Zuteilung_Wert(liste, 5), QVariant(4.2));  // (3 * 4 + 2 * 4.5) / 5
  EXPECT_EQ(Zuteilung_Wert(liste, 6), QVariant(12.0));
  EXPECT_EQ(Zuteilung_Wert(liste, 3), QVariant(Q("L1;L2")));
  EXPECT_EQ(Zuteilung_Wert(liste, 9), QVariant(Q(";")));
  EXPECT_TRUE(Zuteilung_Wert(QString(), 5).isNull());
  EXPECT_EQ(Zuteilung_Wert(QString(), 2), QVariant(0.0));
  const QString schaden = Q("|A;01;drei;L1|;;2;L2;;x;");
  EXPECT_EQ(Zuteilung_Wert(schaden, 2), QVariant(2.0));
  EXPECT_EQ(Zuteilung_Wert(schaden, 5), QVariant(0.0));
  EXPECT_EQ(Zuteilung_Wert(schaden, -1), QVariant(Q(";;")));
  EXPECT_EQ(Zuteilung_verbinden(Zuteilung_zerlegen(schaden)), schaden);
}

TEST_P(Lager_Zuteilung_Test, Mengen_zu_einer_Position) {
  const auto reservierung = [&](const char *nummer, const char *artikel, const char *zeile, double menge) {
    Mandant.Zeile(Q("Reservations"), {Q("ReservationNumber"), Q(nummer), Q("document"), Q("Auftrag"),
                                      Q("DocumentNumber"), Q("7"), Q("ArticleNumber"), Q(artikel),
                                      Q("LineItemNumber"), Q(zeile), Q("Quantity"), menge});
  };
  reservierung("R1", "A1", "001", 0.1);
  reservierung("R2", "A1", "001", 0.2);
  reservierung("R3", "A1", "002", 4);
  reservierung("R4", "A2", "001", 8);
  EXPECT_EQ(Reserviert_fuer_Position(Q("Auftrag"), Q("7"), Q("A1"), Q("001")), 0.3);
  EXPECT_EQ(Reserviert_fuer_Position(Q("Rechnung"), Q("7"), Q("A1"), Q("001")), 0);
  Mandant.Zeile(Q("Positions"),
                {Q("document"), Q("Transportauftrag"), Q("DocumentNumber"), Q("T1"), Q("ReferenceDocument"),
                 Q("Auftrag"), Q("ReferenceDocumentNumber"), Q("7"), Q("ReferenceLineItemNumber"), Q("001"),
                 Q("ArticleNumber"), Q("A1"), Q("Quantity"), 5.0});
  EXPECT_EQ(Transportauftrag_Menge(Q("Auftrag"), Q("7"), Q("A1"), Q("001"), Q("T1")), 5);
  EXPECT_EQ(Transportauftrag_Menge(Q("Auftrag"), Q("7"), Q("A1"), Q("001"), QString()), 0);
  EXPECT_EQ(Transportauftrag_Menge(Q("Auftrag"), Q("7"), Q("A1"), Q("002"), Q("T1")), 0);
}

}  // namespace
}  // namespace marklink::test
