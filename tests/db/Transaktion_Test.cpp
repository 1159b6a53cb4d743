// Type 1 over the wire: what is open on the server between batches, and how it ends.
#include <QElapsedTimer>

#include "db/Bestelltabelle.h"

namespace marklink::test {
namespace {

using namespace db;

class Transaktion_Test : public Recordset_Test {
 protected:
  Recordset umbenannte() {
    Recordset r = offen("SELECT * FROM Orders ORDER BY OrderID");
    for (; !r.IsEOF(); r.MoveNext()) r.SetValue(T("Customer"), T("neu"));
    return r;
  }
  QString neue() { return roh("SELECT count(*) FROM Orders WHERE Customer = 'neu'"); }
};
INSTANTIATE_TEST_SUITE_P(Dialekt, Transaktion_Test, testing::Values(Betriebsart::Leitung), Betriebsname);

// The server ends the transaction that stays open between batches when a statement that reads loses a
// deadlock: the rows of the next batch were written one by one then.
TEST_P(Transaktion_Test, ein_Stapel_bleibt_ganz_wenn_ein_Lesen_davor_scheiterte) {
  fuellen(3);  // from now on one is open
  Recordset r = umbenannte();
  server->Stellen("fehlernummer", 1205);
  server->Stellen("fehler", 1);
  EXPECT_EQ(anzahl("SELECT * FROM Orders WHERE Amount > 0"), -1);
  server->Stellen("trennen", 5);  // begin, three rows, and then no commit
  EXPECT_FALSE(r.UpdateBatch());
  EXPECT_EQ(neue(), T("0"));
  EXPECT_TRUE(r.UpdateBatch());
  EXPECT_EQ(neue(), T("3"));
}

TEST_P(Transaktion_Test, was_scheitert_haelt_niemanden_auf) {
  fuellen(2);
  EXPECT_FALSE(Ausfuehren("UPDATE Orders SET OrderID = 'A1'", verbindung)) << "a key twice";
  QElapsedTimer uhr;
  uhr.start();
  EXPECT_TRUE(Ausfuehren("DELETE FROM Orders WHERE OrderID = 'A2'", server->Verbindungstext(T("geheim"), 9)));
  EXPECT_LT(uhr.elapsed(), 3000) << "another workstation";
}

// As a list is saved: deleted as a whole, then written anew.
TEST_P(Transaktion_Test, ein_Loeschen_verbindet_neu) {
  fuellen(2);
  server->Alle_trennen();
  EXPECT_TRUE(Ausfuehren("DELETE FROM Orders", verbindung));
  EXPECT_EQ(roh("SELECT count(*) FROM Orders"), T("0"));
}

TEST_P(Transaktion_Test, verstummt_an_jeder_Stelle_eines_Stapels) {
  verbindung = server->Verbindungstext(T("geheim"), 1);
  fuellen(3);
  for (int stelle = 1; stelle <= 4; ++stelle) {  // three rows and the commit
    roh_lauf("UPDATE Orders SET Customer = 'alt'");
    Recordset r = umbenannte();
    server->Stellen("verstummen", stelle);
    QElapsedTimer uhr;
    uhr.start();
    EXPECT_FALSE(r.UpdateBatch()) << stelle;
    EXPECT_LT(uhr.elapsed(), 3000) << stelle;
    EXPECT_EQ(neue(), T("0")) << stelle;
    EXPECT_TRUE(r.UpdateBatch()) << stelle;
    EXPECT_EQ(neue(), T("3")) << stelle;
  }
}

// Cut while the catalogue is asked: what the table is like is asked again, and nothing that is pending gets
// lost.
TEST_P(Transaktion_Test, abgeschnitten_beim_Fragen_nach_der_Tabelle) {
  fuellen(2);
  for (int stelle = 2; stelle <= 6; ++stelle) {  // behind the settings of the login
    Verbindungen_schliessen();
    server->Stellen("trennen", stelle);
    Recordset r = offen("SELECT * FROM Orders");
    r.AddNew();
    r.SetValue(T("OrderID"), u'B' + QString::number(stelle));
    r.Update();
    r.MoveFirst();
    EXPECT_EQ(r.RecordCount(), stelle + 1) << "read late";
    EXPECT_TRUE(r.UpdateBatch()) << stelle;
    server->Stellen("trennen", 0);
  }
  EXPECT_EQ(roh("SELECT count(*) FROM Orders"), T("7"));
}

}  // namespace
}  // namespace marklink::test
