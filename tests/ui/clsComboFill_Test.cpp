// The type-ahead of combo boxes, key by key, and their filling from a table.
#include "ui/clsComboFill.h"

#include <QLineEdit>

#include "host/Datenbank.h"
#include "support/Fenster_Test.h"
#include "support/Testmandant.h"
#include "ui/Auswahllisten.h"

namespace marklink {
namespace {

TEST(clsComboFill_Test, ergaenzt_was_getippt_wird) {
  QComboBox box;
  clsComboFill::Anschliessen(box);
  box.addItems({u"Stück"_qs, u"Stunde"_qs, u"kg"_qs});
  box.clearEditText();
  test::Zeigen(box);
  QLineEdit &feld = *box.lineEdit();
  QTest::keyClicks(&box, u"st"_qs);
  EXPECT_EQ(feld.text(), u"stück"_qs);  // what was typed stays as it was typed
  EXPECT_EQ(feld.selectedText(), u"ück"_qs);
  QTest::keyClicks(&box, u"u"_qs);  // replaces the proposal
  EXPECT_EQ(feld.text(), u"stunde"_qs);
  EXPECT_EQ(feld.selectedText(), u"nde"_qs);
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(feld.text(), u"stu"_qs);
  QTest::keyClicks(&box, u"n"_qs);
  EXPECT_EQ(feld.text(), u"stunde"_qs);
  feld.selectAll();
  QTest::keyClick(&box, Qt::Key_Delete);
  EXPECT_EQ(feld.text(), QString());
  QTest::keyClicks(&box, u"kg"_qs);  // an entry as it is
  EXPECT_FALSE(feld.hasSelectedText());
  QTest::keyClicks(&box, u"x"_qs);
  EXPECT_EQ(feld.text(), u"kgx"_qs);
  // A picked entry stays, whatever begins with it.
  box.insertItem(0, u"kg netto"_qs);
  box.setCurrentIndex(3);
  EXPECT_EQ(feld.text(), u"kg"_qs);
}

class Auswahllisten_Test : public test::Mandant_Test {};
MARKLINK_BEIDE_TYPEN(Auswahllisten_Test);

TEST_P(Auswahllisten_Test, fuellt_und_findet_den_Standard) {
  const QString tabelle = u"Units"_qs, feld = u"Description"_qs;
  Ausfuehren("DELETE FROM Units");
  EXPECT_EQ(Standardeintrag_lesen(tabelle, feld), QString());
  for (const auto &[text, standard] :
       {std::pair{u"Karton", false}, {u"Palette", true}, {u"Stück", true}, {u"Karton", false}})
    Mandant.Zeile(tabelle, {feld, QString::fromUtf16(text), u"Standard"_qs, standard});
  EXPECT_EQ(Standardeintrag_lesen(tabelle, feld), u"Palette"_qs);

  QComboBox box;
  box.addItem(u"alt"_qs);
  const auto inhalt = [&box] {
    QStringList liste;
    for (int i = 0; i < box.count(); ++i) liste << box.itemText(i);
    return liste.join(u'|');
  };
  Auswahlliste_fuellen(box, tabelle, feld, feld, "ORDER BY Description", true, true);
  EXPECT_EQ(inhalt(), u"|Liste bearbeiten...|Karton|Palette|Stück"_qs);
  EXPECT_EQ(box.currentIndex(), -1);
  Auswahlliste_fuellen(box, tabelle, feld, feld, "WHERE Description = 'Karton'", false, false);
  EXPECT_EQ(inhalt(), u"Karton"_qs);
  Auswahlliste_fuellen(box, tabelle, u"Standard, Description"_qs, feld, "WHERE Description <> 'Karton'",
                       false, false);
  EXPECT_EQ(inhalt(), u"Palette|Stück"_qs);
  // A table that is not there leaves the box as far as it was filled.
  Auswahlliste_fuellen(box, u"Fehlt"_qs, feld, feld, {}, true, false);
  EXPECT_EQ(inhalt(), u"Liste bearbeiten..."_qs);
}

}  // namespace
}  // namespace marklink
