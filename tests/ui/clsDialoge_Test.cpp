// The message boxes as windows: their German buttons, and what closing them means.
#include "ui/clsDialoge.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "support/Fenster_Test.h"

namespace marklink {
namespace {

TEST(clsDialoge_Test, Antworten_durch_Taste_und_Schliessen) {
  clsDialoge dialoge;
  const auto fragen = [&dialoge](Knoepfe Auswahl, const test::Modale_Schritte::Schritt &Tun) {
    test::Modale_Schritte schritte;
    schritte.Dann(Tun);
    return dialoge.Meldung(u"Löschen"_qs, {u"<b>a</b>"_qs, u"b"_qs}, Symbol::Frage, Auswahl, Antwort::Ja);
  };
  const auto enter = [](QWidget &w) {
    auto &box = dynamic_cast<QMessageBox &>(w);
    EXPECT_EQ(box.text(), u"<b>a</b>\nb"_qs);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove(u'&'), u"Ja"_qs);
    QTest::keyClick(&w, Qt::Key_Return);
  };
  const auto escape = [](QWidget &w) { QTest::keyClick(&w, Qt::Key_Escape); };
  EXPECT_EQ(fragen(Knoepfe::JaNein, enter), Antwort::Ja);
  EXPECT_EQ(fragen(Knoepfe::JaNein, escape), Antwort::Nein);
  EXPECT_EQ(fragen(Knoepfe::JaNeinAbbrechen, escape), Antwort::Abbrechen);
  EXPECT_EQ(fragen(Knoepfe::JaNeinAbbrechen, [](QWidget &) {}), Antwort::Abbrechen);
  EXPECT_EQ(fragen(Knoepfe::OK, escape), Antwort::OK);
}

TEST(clsDialoge_Test, Ein_Name_ohne_Endung_bekommt_die_der_gewaehlten_Art) {
  const QTemporaryDir ordner;
  clsDialoge dialoge;
  const auto speichern = [&](const char16_t *name, int art) {
    test::Modale_Schritte schritte;
    schritte.Dann([&](QWidget &w) {
      EXPECT_EQ(w.windowTitle(), u"Speichern unter"_qs);
      auto &dialog = dynamic_cast<QFileDialog &>(w);
      EXPECT_EQ(dialog.directory().path(), ordner.path());
      EXPECT_EQ(dialog.nameFilters(), (QStringList{u"Microsoft Excel (*.xls)"_qs, u"PDF (*.pdf)"_qs,
                                                   u"Text (*.txt)"_qs, u"Alle (*.*)"_qs}));
      dialog.selectNameFilter(dialog.nameFilters().value(art));
      Q_EMIT dialog.filterSelected(dialog.selectedNameFilter());
      dialog.findChild<QLineEdit *>(u"fileNameEdit"_qs)->setText(QString::fromUtf16(name));
      dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });
    return dialoge.Datei_speichern(u"Speichern unter"_qs,
                                   u"Microsoft Excel |*.xls|PDF (*.pdf)|*.pdf|Text |*.txt|Alle|*.*"_qs,
                                   ordner.path());
  };
  EXPECT_EQ(speichern(u"Juni", 0), ordner.path() + u"/Juni.xls"_qs);
  EXPECT_EQ(speichern(u"Juni", 1), ordner.path() + u"/Juni.pdf"_qs);
  EXPECT_EQ(speichern(u"Juni.htm", 2), ordner.path() + u"/Juni.htm"_qs);
  EXPECT_EQ(speichern(u"Juni", 3), ordner.path() + u"/Juni"_qs);
}

}  // namespace
}  // namespace marklink
