// The message boxes as windows: their German buttons, and what closing them means.
#include "ui/clsDialoge.h"

#include <QMessageBox>
#include <QPushButton>

#include "support/Fenster_Test.h"

namespace marklink {
namespace {

TEST(clsDialoge_Test, Antworten_durch_Taste_und_Schliessen) {
  clsDialoge dialoge;
  const auto fragen = [&dialoge](Knoepfe Auswahl, const test::Modale_Schritte::Schritt &Tun) {
    test::Modale_Schritte schritte;
    schritte.Dann(Tun);
    return dialoge.Meldung(QStringLiteral("Löschen"), {QStringLiteral("<b>a</b>"), QStringLiteral("b")},
                           Symbol::Frage, Auswahl, Antwort::Ja);
  };
  const auto enter = [](QWidget &w) {
    auto &box = dynamic_cast<QMessageBox &>(w);
    EXPECT_EQ(box.text(), QStringLiteral("<b>a</b>\nb"));
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove(u'&'), QStringLiteral("Ja"));
    QTest::keyClick(&w, Qt::Key_Return);
  };
  const auto escape = [](QWidget &w) { QTest::keyClick(&w, Qt::Key_Escape); };
  EXPECT_EQ(fragen(Knoepfe::JaNein, enter), Antwort::Ja);
  EXPECT_EQ(fragen(Knoepfe::JaNein, escape), Antwort::Nein);
  EXPECT_EQ(fragen(Knoepfe::JaNeinAbbrechen, escape), Antwort::Abbrechen);
  EXPECT_EQ(fragen(Knoepfe::JaNeinAbbrechen, [](QWidget &) {}), Antwort::Abbrechen);
  EXPECT_EQ(fragen(Knoepfe::OK, escape), Antwort::OK);
}

}  // namespace
}  // namespace marklink
