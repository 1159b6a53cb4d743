// The list editors by key and click.
#include "lists/frmListen.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "host/Datenbank.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Testmandant.h"
#include "ui/Schirme.h"
#include "ui/clsTabelle.h"

namespace marklink {
namespace {

class frmListen_Test : public test::Mandant_Test {
 protected:
  frmListen_Test() {
    Ausfuehren("DELETE FROM WebshopOrderStatusXTC");
    int nummer = 0;
    for (const auto &[text, farbe] : {std::pair{u"Offen", 0xC8F5FF}, {u"Versendet", 0xD0F0D0}})
      Mandant.Zeile(u"WebshopOrderStatusXTC"_qs,
                    {u"Description"_qs, QString::fromUtf16(text), u"WebshopID"_qs, QString::number(++nummer),
                     u"Colour"_qs, farbe, u"Active"_qs, true});
    Auftragsstatusliste_aufbauen();
    Fenster = std::make_unique<frmListen>(Listen()[1]);
    test::Zeigen(*Fenster);
  }
  clsTabelle &Grid() { return test::Kind<clsTabelle>(*Fenster, u"jgTab"); }
  /// Each key goes where the focus is by then: the first one opens a cell's editor.
  static void Tippen(const QString &Text) {
    for (const QChar zeichen : Text) QTest::keyClicks(QApplication::focusWidget(), QString(zeichen));
  }
  static void Taste(Qt::Key K) {
    QTest::keyClick(QApplication::focusWidget(), K);
    QCoreApplication::processEvents();
  }
  void Klick(const char16_t *Knopf) { test::Klick(*Fenster, Knopf); }
  void Klick(int Zeile, int Spalte) {
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, test::Mitte(Grid(), Zeile, Spalte));
  }
  static QString Tabelle() {
    QStringList zeilen;
    for (auto satz = Abfragen("SELECT * FROM WebshopOrderStatusXTC"); !satz.IsEOF(); satz.MoveNext())
      zeilen << satz.Text(u"WebshopID"_qs) + satz.Text(u"Description"_qs) + satz.Text(u"Standard"_qs);
    return zeilen.join(u' ');
  }
  test::Dialoge_Skript Dialoge;
  test::Hilfe_Skript Hilfe;
  std::unique_ptr<frmListen> Fenster;
};
MARKLINK_BEIDE_TYPEN(frmListen_Test);

TEST_P(frmListen_Test, die_Tastatur_erreicht_jede_Zelle_und_OK) {
  Klick(0, 0);
  Taste(Qt::Key_Escape);
  const QModelIndex vorher = Grid().currentIndex();
  Taste(Qt::Key_Tab);
  EXPECT_NE(Grid().currentIndex(), vorher);
  EXPECT_TRUE(Grid().hasFocus());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(test::Kind<QPushButton>(*Fenster, u"cmdOK").hasFocus());
  // With Ctrl or Shift a click selects and turns no mark over.
  QTest::mouseClick(Grid().viewport(), Qt::LeftButton, Qt::ControlModifier,
                    test::Mitte(Grid(), 1, Grid().Spalte_finden(u"Standard"_qs)));
  Klick(u"cmdOK");
  EXPECT_EQ(Tabelle(), u"1Offen0 2Versendet0"_qs);
}

TEST_P(frmListen_Test, neue_Zeile_Standard_und_Farbe_mit_OK) {
  const QAbstractItemModelTester pruefer(Grid().model(),
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
  Klick(1, 4);
  Klick(2, 0);
  Tippen(u"Storno"_qs);
  Taste(Qt::Key_Return);
  Taste(Qt::Key_Up);
  Klick(2, 0);
  Dialoge.Erwarten_Farbe(0xE0E0E0U);
  Taste(Qt::Key_F4);
  Klick(2, 4);
  test::Bild_machen(*Fenster, Fenster->objectName());
  Klick(u"cmdOK");
  EXPECT_FALSE(Fenster->isVisible());
  EXPECT_EQ(Tabelle(), u"1Offen0 2Versendet0 3Storno-1"_qs);
  EXPECT_TRUE(gAuftragsstati_Liste.endsWith(u"|3;Storno;14737632"_qs));
}

TEST_P(frmListen_Test, Schliessen_fragt_nach_Aenderungen) {
  Taste(Qt::Key_F1);
  EXPECT_EQ(Hilfe.Thema, Listen()[1].Hilfethema);
  Taste(Qt::Key_Escape);
  EXPECT_FALSE(Fenster->isVisible()) << "nothing changed, nothing asked";
  for (const Antwort antwort : {Antwort::Abbrechen, Antwort::Nein, Antwort::Ja}) {
    Fenster = std::make_unique<frmListen>(Listen()[1]);
    test::Zeigen(*Fenster);
    Klick(1, 0);
    Tippen(u"Fort"_qs);  // still in the cell's editor
    Dialoge.Erwarten(u"Speichern"_qs, antwort);
    Klick(u"cmdAbbrechen");
    EXPECT_EQ(Fenster->isVisible(), antwort == Antwort::Abbrechen);
    EXPECT_EQ(Tabelle(), antwort == Antwort::Ja ? u"1Offen0 2Fort0"_qs : u"1Offen0 2Versendet0"_qs);
  }
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen, QStringList{u"Möchten Sie die Änderungen speichern?"_qs});
}

TEST_P(frmListen_Test, unvollstaendige_Zeile_haelt_das_Fenster_offen) {
  Klick(0, 0);  // the cursor stood there: opens the editor
  Taste(Qt::Key_Backspace);
  Dialoge.Erwarten(u"Hinweis"_qs);
  Klick(u"cmdOK");
  EXPECT_TRUE(Fenster->isVisible());
  EXPECT_EQ(Tabelle(), u"1Offen0 2Versendet0"_qs);
  Grid().setFocus();
  Taste(Qt::Key_Escape);  // brings the row back before it closes anything
  EXPECT_TRUE(Fenster->isVisible());
  EXPECT_EQ(Grid().model()->index(0, 0).data().toString(), u"Offen"_qs);
}

TEST_P(frmListen_Test, Loeschen_im_Kontextmenue) {
  Tippen(u"x"_qs);  // an edit under way in a row that goes
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    Dialoge.Erwarten(u"Löschen"_qs, antwort);
    test::Kind<QAction>(*Fenster, u"mnuKontext_Loeschen").trigger();
    EXPECT_EQ(Grid().model()->rowCount(), antwort == Antwort::Ja ? 2 : 3);
  }
  EXPECT_EQ(Grid().currentIndex(), Grid().model()->index(0, 0));
  EXPECT_EQ(Tabelle(), u"1Offen0 2Versendet0"_qs) << "the table waits for OK";
  Klick(u"cmdOK");
  EXPECT_EQ(Tabelle(), u"2Versendet0"_qs);
}

TEST_P(frmListen_Test, alle_sieben_unter_ihrem_Namen) {
  Dialoge_setzen(nullptr);
  Listenfenster_anmelden();
  test::Modale_Schritte schritte;
  QStringList titel;
  int tipps = 0;
  for (const Liste &liste : Listen()) {
    schritte.Dann([&](QWidget &F) {
      EXPECT_EQ(F.objectName(), liste.Schirm);
      titel << F.windowTitle();
      tipps += int(F.findChild<QLabel *>(u"lbTipp"_qs) != nullptr);
      test::Bild_machen(F, F.objectName());
    });
    EXPECT_TRUE(Schirm_oeffnen(liste.Schirm));
  }
  EXPECT_EQ(titel.count(), 7);
  EXPECT_EQ(titel.removeDuplicates(), 0);
  EXPECT_EQ(tipps, 4);
}

}  // namespace
}  // namespace marklink
