// The printed lists from the command line, without a display.
#include <QProcess>

#include "Launcher.h"
#include "support/Datenbank_Test.h"

namespace marklink::test {
namespace {

class Drucken_Test : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Typ, Drucken_Test, testing::Values(0, 1));

TEST_P(Drucken_Test, Listen_in_Dateien) {
  Launcher l;
  for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    l.Umgebung(QLatin1String(name), QString());
  l.Mandant_mit_Shop(GetParam(), 9);
  ASSERT_EQ(l.Starten("einstellung schreiben Marklink ViewablePeriod 1").Ausgang, 0);
  ASSERT_TRUE(Rohe_Verbindung(l.Datei("Test.mdb"))
                  .lauf("INSERT INTO WebshopOrdersXTC (OrderID, Customer, Date, Amount, Payment) VALUES "
                        "('1', 'Jürgen Groß', '2020-01-01 08:00:00', 1000.5, 'Vorkasse'),"
                        "('2', 'Anna; Köhn', '2020-01-02 00:00:00', 0.1, 'Vorkasse')"));
  const struct Fall {
    const char *Zeile;
    int Ausgang;
    const char *Fehler;
  } faelle[] = {
      {"drucken bestellliste", 2, "Es fehlt das Argument DATEI."},
      {"drucken bestellliste a.pdf", 2, "Es fehlen Bestellnummern"},
      {"drucken bestellliste a.pdf --alle 1", 2, "nicht beides"},
      {"drucken bestellliste a.pdf 9", 1, "Die Bestellung '9' ist nicht vorhanden."},
      {"drucken bestellliste nicht/da/a.pdf --alle", 1, "kann nicht geschrieben werden"},
      {"drucken bestellliste a.pdf --alle", 0, ""},
      {"drucken transaktionsliste t.txt 9 2", 1, "'9' ist nicht vorhanden"},
      {"drucken transaktionsliste b.xls --alle", 0, ""},
  };
  for (const Fall &fall : faelle) {
    const Ergebnis e = l.Starten(fall.Zeile);
    EXPECT_EQ(e.Ausgang, fall.Ausgang) << fall.Zeile << e.Fehler.toStdString();
    EXPECT_EQ(e.Ausgabe, QString());
    EXPECT_TRUE(*fall.Fehler == 0 ? e.Fehler.isEmpty() : e.Fehler.contains(QString::fromUtf8(fall.Fehler)))
        << fall.Zeile << e.Fehler.toStdString();
  }
  EXPECT_TRUE(Launcher::Lesen(l.Wurzel() + QStringLiteral("/t.txt"))
                  .contains("\r\n2;02.01.2020;\"Anna; K\xF6hn\";0,10;\r\n"));
  EXPECT_TRUE(Launcher::Lesen(l.Wurzel() + QStringLiteral("/b.xls")).contains(">1000.6</Data>"));
  QProcess leser;
  leser.start(QStringLiteral("pdftotext"),
              {QStringLiteral("-layout"), l.Wurzel() + QStringLiteral("/a.pdf"), QStringLiteral("-")});
  ASSERT_TRUE(leser.waitForFinished());
  const QString text = QString::fromUtf8(leser.readAllStandardOutput());
  for (const char *stelle :
       {"Mittwoch (01.01.2020)", "Jürgen Groß", "1.000,60", "Stand: Samstag, 15. Juni 2024"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(stelle))) << stelle << text.toStdString();
}

}  // namespace
}  // namespace marklink::test
