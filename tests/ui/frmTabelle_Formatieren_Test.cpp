// The layout dialog by key and click: what OK does to the grid and its file, and what Abbrechen leaves.
#include "ui/frmTabelle_Formatieren.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "host/Ini.h"
#include "host/Kontext.h"
#include "support/Fenster_Test.h"
#include "support/Testmandant.h"
#include "ui/clsTabelle.h"

namespace marklink {
namespace {

class Leere_Quelle : public Tabellenquelle {
 public:
  int Zeilen() const override { return 0; }
  QVariant Zelle(int, int) const override { return {}; }
};

class frmTabelle_Formatieren_Test : public test::Mandant_Test {
 protected:
  frmTabelle_Formatieren_Test() {
    grid.Einrichten(quelle, {{QStringLiteral("Invoice"), QStringLiteral("Auswahl")},
                             {QStringLiteral("OrderID"), QStringLiteral("Bestellnr.")},
                             {QStringLiteral("Payment"), QStringLiteral("Zahlungsart & -ziel")}});
  }
  Leere_Quelle quelle;
  clsTabelle grid;
};
MARKLINK_BEIDE_TYPEN(frmTabelle_Formatieren_Test);

TEST_P(frmTabelle_Formatieren_Test, aendern_und_anwenden) {
  frmTabelle_Formatieren form(grid, QStringLiteral("T"));
  test::Zeigen(form);
  auto &liste = test::Kind<QTreeWidget>(form, u"lvwTabelle");
  auto &breite = test::Kind<QLineEdit>(form, u"txtSpaltenbreite");
  EXPECT_EQ(test::Kind<QGroupBox>(form, u"fraSpalte").title(),
            QStringLiteral("Spalte 'Auswahl' bearbeiten..."));
  EXPECT_FALSE(test::Kind<QPushButton>(form, u"cmdAuf").isEnabled());
  QTest::keyClick(&liste, Qt::Key_End);
  EXPECT_EQ(test::Kind<QGroupBox>(form, u"fraSpalte").title(),
            QStringLiteral("Spalte 'Zahlungsart && -ziel' bearbeiten..."));
  QTest::mouseClick(&test::Kind<QPushButton>(form, u"cmdAuf"), Qt::LeftButton);
  EXPECT_EQ(liste.indexOfTopLevelItem(liste.currentItem()), 1);
  breite.setFocus();
  QTest::qWait(10);
  QTest::keyClicks(&breite, QStringLiteral("3,5"));  // the focus has selected what stood there
  QTest::keyClick(&test::Kind<QCheckBox>(form, u"chkAktiv"), Qt::Key_Space);
  test::Kind<QComboBox>(form, u"cboSpaltentyp").setCurrentIndex(0);
  QTest::mouseClick(&test::Kind<QPushButton>(form, u"cmdSpeichern"), Qt::LeftButton);
  test::Bild_machen(form, QStringLiteral("frmTabelle_Formatieren"));
  EXPECT_FALSE(grid.isColumnHidden(2));  // not before OK
  QTest::keyClick(&breite, Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_TRUE(grid.isColumnHidden(2));
  EXPECT_EQ(grid.horizontalHeader()->visualIndex(2), 1);
  EXPECT_EQ(Ini_lesen_lang(Kontext.gLayoutDatei, QStringLiteral("Layout"), QStringLiteral("T")),
            QStringLiteral("1,1,1000,1,1;2,3,1000,1,1;3,2,1750,0,0|-|-"));
}

TEST_P(frmTabelle_Formatieren_Test, Abbrechen_laesst_alles) {
  for (const bool escape : {false, true}) {
    frmTabelle_Formatieren form(grid, QStringLiteral("T"));
    test::Zeigen(form);
    QTest::mouseClick(&test::Kind<QPushButton>(form, u"cmdAb"), Qt::LeftButton);
    if (escape)
      QTest::keyClick(&form, Qt::Key_Escape);
    else
      QTest::mouseClick(&test::Kind<QPushButton>(form, u"cmdAbbrechen"), Qt::LeftButton);
    EXPECT_EQ(form.result(), int(QDialog::Rejected));
    EXPECT_EQ(grid.horizontalHeader()->visualIndex(0), 0);
    EXPECT_EQ(Ini_lesen_lang(Kontext.gLayoutDatei, QStringLiteral("Layout"), QStringLiteral("T")), QString());
  }
}

}  // namespace
}  // namespace marklink
