// The tables that the tests of the database access work on.
#pragma once

#include "support/Datenbank_Test.h"

namespace marklink::test {

inline std::vector<db::Tabelle> Testtabellen() {
  using db::Spaltentyp;
  return {
      {"Orders",
       {{"OrderID", Spaltentyp::Text, 20},
        {"Customer", Spaltentyp::Text, 50},
        {"Notes", Spaltentyp::Memo},
        {"Amount", Spaltentyp::Gleitkomma},
        {"Count", Spaltentyp::Kurzzahl},
        {"Colour", Spaltentyp::Ganzzahl},
        {"Date", Spaltentyp::Datum},
        {"Invoice", Spaltentyp::Ja_Nein},
        {"Picture", Spaltentyp::Binaer}},
       {"OrderID"},
       {{"Customer"}}},
      {"Lines",
       {{"ID", Spaltentyp::Autowert},
        {"OrderID", Spaltentyp::Text, 20},
        {"Group", Spaltentyp::Text, 20},
        {"Quantity", Spaltentyp::Gleitkomma}},
       {"ID"},
       {{"OrderID"}}},
      {"Options",
       {{"Section", Spaltentyp::Text, 50}, {"Key", Spaltentyp::Text, 50}, {"Value", Spaltentyp::Memo}},
       {},
       {{"Section"}}},
  };
}

inline QString T(const char *Text) { return QString::fromUtf8(Text); }

class Recordset_Test : public Datenbank_Test {
 protected:
  void SetUp() override { anlegen(Testtabellen()); }

  /// Adds orders A1..An (customer "Kunde 1".., amount 1.5, 3, ...).
  void fuellen(int Anzahl) {
    db::Recordset r;
    ASSERT_TRUE(r.Open("SELECT * FROM Orders", verbindung));
    for (int i = 1; i <= Anzahl; ++i) {
      r.AddNew();
      r.SetValue(T("OrderID"), u'A' + QString::number(i));
      r.SetValue(T("Customer"), T("Kunde ") + QString::number(i));
      r.SetValue(T("Amount"), i * 1.5);
      r.Update();
    }
    ASSERT_TRUE(r.UpdateBatch());
  }
  db::Recordset offen(const db::Anweisung &Sql) {
    db::Recordset r;
    EXPECT_TRUE(r.Open(Sql, verbindung)) << Sql.Text().toStdString();
    return r;
  }
  int anzahl(const db::Anweisung &Sql) {
    db::Recordset r;
    return r.Open(Sql, verbindung) ? r.RecordCount() : -1;
  }
};

}  // namespace marklink::test
