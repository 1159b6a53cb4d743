// The next number of a range from the command line.
#include "Launcher.h"
#include "Terminal_Ziehung.h"

namespace marklink::test {
namespace {

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
