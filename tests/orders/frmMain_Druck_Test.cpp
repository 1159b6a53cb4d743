// The order desk's lists by their entries: preview on screen, and into a file.
#include <QAction>
#include <QToolButton>

#include "db/Zeitpunkt.h"
#include "host/Kontext.h"
#include "orders/frmMain.h"
#include "reports/frmVorschau.h"
#include "support/Dialoge_Skript.h"
#include "support/Drucker_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Testmandant.h"
#include "ui/clsTabelle.h"

namespace marklink {
namespace {

class frmMain_Druck_Test : public test::Mandant_Test {
 protected:
  frmMain_Druck_Test() {
    Kontext.gViewablePeriod = 0;
    for (int i = 1; i <= 30; ++i)
      Mandant.Zeile(
          u"WebshopOrdersXTC"_qs,
          {u"OrderID"_qs, QString::number(100 + i), u"Customer"_qs, u"Käufer %1"_qs.arg(i), u"Date"_qs,
           Zeitpunkt(QDate(2024, 6, 1 + i / 3), QTime(9, 30)), u"Amount"_qs, 10.1 * i, u"Payment"_qs,
           i % 2 == 0 ? u"Vorkasse"_qs : u"Lastschrift"_qs, u"Email"_qs, u"k@example.de"_qs});
    Druckfenster_einrichten();
    Drucker_setzen(&Drucker);
    Fenster = std::make_unique<frmMain>();
    test::Zeigen(*Fenster);
    auto &jg = test::Kind<clsTabelle>(*Fenster, u"jgTab");
    EXPECT_TRUE(QTest::qWaitFor([&] { return jg.Aktuelle_Zeile() == 0; }));
    Eintrag(u"mnuKontext_Alles_markieren");
  }
  ~frmMain_Druck_Test() override { Druckfenster_abbauen(); }
  void Eintrag(const char16_t *Name) { test::Kind<QAction>(*Fenster, Name).trigger(); }
  test::Drucker_Skript Drucker{{u"Laser"_qs}};
  test::Dialoge_Skript Dialoge;
  std::unique_ptr<frmMain> Fenster;
};
MARKLINK_BEIDE_TYPEN(frmMain_Druck_Test);

TEST_P(frmMain_Druck_Test, Die_Listen_erscheinen_in_der_Vorschau) {
  QStringList titel;
  test::Modale_Schritte schritte;
  const auto ansehen = [&](QWidget &vorschau) {
    EXPECT_EQ(vorschau.objectName(), u"frmVorschau"_qs);
    titel << vorschau.windowTitle();
    test::Bild_machen(vorschau, u"Vorschau_%1"_qs.arg(titel.size()));
    QTest::keyClick(&vorschau, Qt::Key_Escape);
  };
  for (int i = 0; i < 4; ++i) schritte.Dann(ansehen);
  QTest::mouseClick(&test::Kind<QToolButton>(*Fenster, u"Drucken"), Qt::LeftButton);
  Eintrag(u"drucken_transaktionsliste");
  Eintrag(u"mnuKontext_Drucken_Bestellliste");
  Eintrag(u"mnuKontext_Drucken_Transaktionsliste");
  const QString bestellliste = u"Tennwerk Varda Bestellliste"_qs,
                transaktionen = u"Tennwerk Varda Transaktionsliste"_qs;
  EXPECT_EQ(titel, (QStringList{bestellliste, transaktionen, bestellliste, transaktionen}));
}

TEST_P(frmMain_Druck_Test, Die_Transaktionsliste_geht_in_eine_Datei) {
  const QString pfad = Mandant.Ordner() + u"Liste.txt"_qs;
  Dialoge.Erwarten_Datei(test::Dialoge_Skript::Art::Speichern, pfad);
  Eintrag(u"drucken_transaktionsliste_datei");
  QFile datei(pfad);
  ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
  const QString text = QString::fromLatin1(datei.readAll());
  EXPECT_TRUE(text.startsWith(u"Transaktionsliste\r\n - \r\n"_qs)) << text.left(100).toStdString();
  EXPECT_TRUE(text.contains(u"\r\nLastschrift\r\n101;01.06.2024;Käufer 1;10,10;\r\n"_qs));
  EXPECT_TRUE(text.contains(u"Zwischensummen:;;;2.272,50;\r\n"_qs));
  EXPECT_TRUE(text.contains(u"Gesamtsummen:;;;4.696,50;\r\n"_qs));
}

TEST_P(frmMain_Druck_Test, Ohne_Drucker_geschieht_nichts) {
  Drucker_setzen(nullptr);
  Dialoge.Erwarten(u"Kein Drucker vorhanden"_qs);
  Eintrag(u"mnuKontext_Drucken_Bestellliste");
}

}  // namespace
}  // namespace marklink
