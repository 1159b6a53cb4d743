// The printed lists from the command line, without a display.
#include <QProcess>

#include "Launcher.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

class Drucken_Test : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Typ, Drucken_Test, testing::Values(0, 1));

TEST_P(Drucken_Test, Listen_in_Dateien) {
  Launcher l;
  for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    l.Umgebung(QLatin1String(name), QString());
  l.Mandant_mit_Shop(GetParam(), 9);
  l.Einstellen("Marklink", "ViewablePeriod", u"1"_qs);
  l.Sql(
      "INSERT INTO WebshopOrdersXTC (OrderID, Customer, Date, Amount, Payment) VALUES "
      "('1', 'Jürgen Groß', '2020-01-01 08:00:00', 1000.5, 'Vorkasse'),"
      "('2', 'Anna; Köhn', '2020-01-02 00:00:00', 0.1, 'Vorkasse')");
  const char *const neun = "marklink: Die Bestellung '9' ist nicht vorhanden.";
  const std::string nicht_da =
      u"marklink: Die Datei '%1/nicht/da/a.pdf' kann nicht geschrieben werden.\n"_qs.arg(l.Wurzel())
          .toStdString();
  const Befehlsfall faelle[] = {
      {"drucken bestellliste", 2, "", "marklink: Es fehlt das Argument DATEI."},
      {"drucken bestellliste a.pdf", 2, "", "marklink: Es fehlen Bestellnummern"},
      {"drucken bestellliste a.pdf --alle 1", 2, "",
       "marklink: Entweder Bestellnummern oder '--alle', nicht beides."},
      {"drucken bestellliste a.pdf 9", 1, "", neun},
      {"drucken bestellliste nicht/da/a.pdf --alle", 1, "", nicht_da.c_str()},
      {"drucken bestellliste a.pdf --alle", 0},
      {"drucken transaktionsliste t.txt 9 2", 1, "", neun},
      {"drucken transaktionsliste b.xls --alle", 0},
  };
  for (const Befehlsfall &fall : faelle) l.Pruefen(fall);
  EXPECT_TRUE(
      Datei_lesen(l.Wurzel() + u"/t.txt"_qs).contains("\r\n2;02.01.2020;\"Anna; K\xF6hn\";0,10;\r\n"));
  EXPECT_TRUE(Datei_lesen(l.Wurzel() + u"/b.xls"_qs).contains(">1000.6</Data>"));
  QProcess leser;
  leser.start(u"pdftotext"_qs, {u"-layout"_qs, l.Wurzel() + u"/a.pdf"_qs, u"-"_qs});
  ASSERT_TRUE(leser.waitForFinished());
  const QString text = QString::fromUtf8(leser.readAllStandardOutput());
  for (const char *stelle :
       {"Mittwoch (01.01.2020)", "Jürgen Groß", "1.000,60", "Stand: Samstag, 15. Juni 2024"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(stelle))) << stelle << text.toStdString();
}

}  // namespace
}  // namespace marklink::test
