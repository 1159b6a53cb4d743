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
  box.addItems({QStringLiteral("Stück"), QStringLiteral("Stunde"), QStringLiteral("kg")});
  box.clearEditText();
  test::Zeigen(box);
  QLineEdit &feld = *box.lineEdit();
  QTest::keyClicks(&box, QStringLiteral("st"));
  EXPECT_EQ(feld.text(), QStringLiteral("stück"));  // what was typed stays as it was typed
  EXPECT_EQ(feld.selectedText(), QStringLiteral("ück"));
  QTest::keyClicks(&box, QStringLiteral("u"));  // replaces the proposal
  EXPECT_EQ(feld.text(), QStringLiteral("stunde"));
  EXPECT_EQ(feld.selectedText(), QStringLiteral("nde"));
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(feld.text(), QStringLiteral("stu"));
  QTest::keyClicks(&box, QStringLiteral("n"));
  EXPECT_EQ(feld.text(), QStringLiteral("stunde"));
  feld.selectAll();
  QTest::keyClick(&box, Qt::Key_Delete);
  EXPECT_EQ(feld.text(), QString());
  QTest::keyClicks(&box, QStringLiteral("kg"));  // an entry as it is
  EXPECT_FALSE(feld.hasSelectedText());
  QTest::keyClicks(&box, QStringLiteral("x"));
  EXPECT_EQ(feld.text(), QStringLiteral("kgx"));
  // A picked entry stays, whatever begins with it.
  box.insertItem(0, QStringLiteral("kg netto"));
  box.setCurrentIndex(3);
  EXPECT_EQ(feld.text(), QStringLiteral("kg"));
}

class Auswahllisten_Test : public test::Mandant_Test {};
MARKLINK_BEIDE_TYPEN(Auswahllisten_Test);

TEST_P(Auswahllisten_Test, fuellt_und_findet_den_Standard) {
  const QString tabelle = QStringLiteral("Units"), feld = QStringLiteral("Description");
  Ausfuehren("DELETE FROM Units");
  EXPECT_EQ(Standardeintrag_lesen(tabelle, feld), QString());
  for (const auto &[text, standard] :
       {std::pair{u"Karton", false}, {u"Palette", true}, {u"Stück", true}, {u"Karton", false}})
    Mandant.Zeile(tabelle, {feld, QString::fromUtf16(text), QStringLiteral("Standard"), standard});
  EXPECT_EQ(Standardeintrag_lesen(tabelle, feld), QStringLiteral("Palette"));

  QComboBox box;
  box.addItem(QStringLiteral("alt"));
  const auto inhalt = [&box] {
    QStringList liste;
    for (int i = 0; i < box.count(); ++i) liste << box.itemText(i);
    return liste.join(u'|');
  };
  Auswahlliste_fuellen(box, tabelle, feld, feld, "ORDER BY Description", true, true);
  EXPECT_EQ(inhalt(), QStringLiteral("|Liste bearbeiten...|Karton|Palette|Stück"));
  EXPECT_EQ(box.currentIndex(), -1);
  Auswahlliste_fuellen(box, tabelle, feld, feld, "WHERE Description = 'Karton'", false, false);
  EXPECT_EQ(inhalt(), QStringLiteral("Karton"));
  Auswahlliste_fuellen(box, tabelle, QStringLiteral("Standard, Description"), feld,
                       "WHERE Description <> 'Karton'", false, false);
  EXPECT_EQ(inhalt(), QStringLiteral("Palette|Stück"));
  // A table that is not there leaves the box as far as it was filled.
  Auswahlliste_fuellen(box, QStringLiteral("Fehlt"), feld, feld, {}, true, false);
  EXPECT_EQ(inhalt(), QStringLiteral("Liste bearbeiten..."));
}

}  // namespace
}  // namespace marklink
