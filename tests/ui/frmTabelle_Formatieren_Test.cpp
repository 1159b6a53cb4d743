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
    grid.Einrichten(quelle, {{u"Invoice"_qs, u"Auswahl"_qs},
                             {u"OrderID"_qs, u"Bestellnr."_qs},
                             {u"Payment"_qs, u"Zahlungsart & -ziel"_qs}});
  }
  Leere_Quelle quelle;
  clsTabelle grid;
};
MARKLINK_BEIDE_TYPEN(frmTabelle_Formatieren_Test);

TEST_P(frmTabelle_Formatieren_Test, aendern_und_anwenden) {
  frmTabelle_Formatieren form(grid, u"T"_qs);
  test::Zeigen(form);
  auto &liste = test::Kind<QTreeWidget>(form, u"lvwTabelle");
  auto &breite = test::Kind<QLineEdit>(form, u"txtSpaltenbreite");
  EXPECT_EQ(test::Kind<QGroupBox>(form, u"fraSpalte").title(), u"Spalte 'Auswahl' bearbeiten..."_qs);
  EXPECT_FALSE(test::Kind<QPushButton>(form, u"cmdAuf").isEnabled());
  QTest::keyClick(&liste, Qt::Key_End);
  EXPECT_EQ(test::Kind<QGroupBox>(form, u"fraSpalte").title(),
            u"Spalte 'Zahlungsart && -ziel' bearbeiten..."_qs);
  test::Klick(form, u"cmdAuf");
  EXPECT_EQ(liste.indexOfTopLevelItem(liste.currentItem()), 1);
  test::Tippen(form, u"txtSpaltenbreite", u"3,5"_qs);
  QTest::keyClick(&test::Kind<QCheckBox>(form, u"chkAktiv"), Qt::Key_Space);
  test::Kind<QComboBox>(form, u"cboSpaltentyp").setCurrentIndex(0);
  test::Klick(form, u"cmdSpeichern");
  test::Bild_machen(form, u"frmTabelle_Formatieren"_qs);
  EXPECT_FALSE(grid.isColumnHidden(2));  // not before OK
  QTest::keyClick(&breite, Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_TRUE(grid.isColumnHidden(2));
  EXPECT_EQ(grid.horizontalHeader()->visualIndex(2), 1);
  EXPECT_EQ(Ini_lesen_lang(Kontext.gLayoutDatei, u"Layout"_qs, u"T"_qs),
            u"1,1,1000,1,1;2,3,1000,1,1;3,2,1750,0,0|-|-"_qs);
}

TEST_P(frmTabelle_Formatieren_Test, Abbrechen_laesst_alles) {
  for (const bool escape : {false, true}) {
    frmTabelle_Formatieren form(grid, u"T"_qs);
    test::Zeigen(form);
    test::Klick(form, u"cmdAb");
    if (escape)
      QTest::keyClick(&form, Qt::Key_Escape);
    else
      test::Klick(form, u"cmdAbbrechen");
    EXPECT_EQ(form.result(), int(QDialog::Rejected));
    EXPECT_EQ(grid.horizontalHeader()->visualIndex(0), 0);
    EXPECT_EQ(Ini_lesen_lang(Kontext.gLayoutDatei, u"Layout"_qs, u"T"_qs), QString());
  }
}

}  // namespace
}  // namespace marklink
