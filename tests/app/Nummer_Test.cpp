// The next number of a range from the command line.
#include <sqlite3.h>

#include "Launcher.h"
#include "Terminal_Ziehung.h"

namespace marklink::test {
namespace {

class Nummer_Test : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    L.Umgebung(QStringLiteral("MARKLINK_HEUTE"), QStringLiteral("2024-06-15"));
    L.Mandant_mit_Shop(GetParam(), 1);
  }
  void Setzen(const char *Abschnitt, const char *Schluessel, const char *Wert) const {
    const Ergebnis e =
        L.Starten({QStringLiteral("einstellung"), QStringLiteral("schreiben"), QLatin1String(Abschnitt),
                   QLatin1String(Schluessel), QString::fromUtf8(Wert)});
    ASSERT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  }
  /// As the host would have stored it.
  void Rechnung(const char *Nummer) const {
    sqlite3 *db = nullptr;
    EXPECT_EQ(sqlite3_open(L.Datei("Test.mdb").toUtf8().constData(), &db), SQLITE_OK);
    const QByteArray sql = QByteArray("INSERT INTO Invoice (InvoiceNumber) VALUES ('") + Nummer + "')";
    EXPECT_EQ(sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
    sqlite3_close(db);
  }
  Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Nummer_Test, testing::Values(0, 1));

TEST_P(Nummer_Test, zeigen_ohne_zu_verbrauchen) {
  const struct {
    const char *Zeile, *Ausgabe;
  } faelle[] = {
      {"nummer Contract", "AU-2024-00001\n"}, {"nummer Invoice", "RE-2024-00001\n"},
      {"nummer invoice", "RE-2024-00001\n"},  {"nummer Customer", "10001\n"},
      {"nummer OpenItem", "OP-000001\n"},     {"nummer Stocking", "LG-000001\n"},
  };
  for (const auto &fall : faelle) {
    const Ergebnis e = L.Starten(fall.Zeile);
    EXPECT_EQ(e.Ausgang, 0) << fall.Zeile << e.Fehler.toStdString();
    EXPECT_EQ(e.Ausgabe, QString::fromUtf8(fall.Ausgabe)) << fall.Zeile;
    EXPECT_EQ(e.Fehler, QString()) << fall.Zeile;
  }
  // A taken number is passed by, and the counter stays.
  Rechnung("RE-2024-00001");
  EXPECT_EQ(L.Starten("nummer Invoice").Ausgabe, QStringLiteral("RE-2024-00002\n"));
  EXPECT_EQ(L.Starten("einstellung lesen NumberRange Invoice").Ausgabe, QStringLiteral("00001\n"));
}

TEST_P(Nummer_Test, wenn_es_keine_gibt) {
  const Ergebnis unbekannt = L.Starten("nummer Lieferschein");
  EXPECT_EQ(unbekannt.Ausgang, 2);
  EXPECT_EQ(
      unbekannt.Fehler,
      QStringLiteral("marklink: Den Nummernkreis 'Lieferschein' gibt es nicht; bekannt: Contract, "
                     "Invoice, Customer, Article, Layout, Reservation, Stocking, Payment, OpenItem.\n"));

  Setzen("NumberRange", "Invoice", "zwölf");
  Rechnung("RE-2024-zwölf");
  Setzen("Counting", "Reservation", "0");
  Setzen("Stocking", "Counting", "0");
  Setzen("Formatting", "Article", ";");
  const struct {
    const char *Zeile, *Fehler;
  } faelle[] = {
      {"nummer Invoice",
       "marklink: Im Nummernkreis 'Invoice' ist die Nummer 'RE-2024-zwölf' vergeben, und sein Zähler führt "
       "zu keiner anderen.\n"},
      {"nummer Reservation",
       "marklink: Der Nummernkreis 'Reservation' zählt nicht automatisch; neue Datensätze ziehen keine "
       "Nummer daraus, sie bekommen eine GUID.\n"},
      {"nummer Stocking",
       "marklink: Der Nummernkreis 'Stocking' zählt nicht automatisch; neue Datensätze ziehen keine Nummer "
       "daraus, ihre Nummer bleibt leer.\n"},
      {"nummer Article", "marklink: Der Nummernkreis 'Article' ergibt eine leere Nummer.\n"},
  };
  for (const auto &fall : faelle) {
    const Ergebnis e = L.Starten(fall.Zeile);
    EXPECT_EQ(e.Ausgang, 1) << fall.Zeile;
    EXPECT_EQ(e.Ausgabe, QString()) << fall.Zeile;
    EXPECT_EQ(e.Fehler, QString::fromUtf8(fall.Fehler)) << fall.Zeile;
  }
}

TEST(Nummer_Stillstand_Test, endet_bald_mit_einer_Zeile) {
  Stillstand stand{QStringLiteral("Invoice"), QStringLiteral("RE-\n1"), 1};
  testing::internal::CaptureStderr();
  while (stand.Runden < 100 && Stillstand_im_Terminal(stand)) ++stand.Runden;
  EXPECT_LT(stand.Runden, 100);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "marklink: Im Nummernkreis 'Invoice' ist die Nummer 'RE- | 1' vergeben, und sein Zähler führt zu "
            "keiner anderen.\n");
}

}  // namespace
}  // namespace marklink::test
