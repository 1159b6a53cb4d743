// The shipment list by key and click.
#include "shipping/frmVersender_EASYLOG.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>

#include "Versandmandant.h"
#include "host/Ini.h"
#include "shipping/frmVersender_EASYLOG_Einstellungen.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Testdateien.h"
#include "ui/Hilfe.h"
#include "ui/clsTabelle.h"

namespace marklink {
namespace {

class frmVersender_EASYLOG_Test : public test::Versand_Test {
 protected:
  frmVersender_EASYLOG_Test() {
    Option_schreiben(u"Program"_qs, u"Finalize"_qs, u"1"_qs);
    for (int i = 1; i <= 4; ++i) Auftrag(i);
  }

  void Oeffnen() {
    Fenster = std::make_unique<frmVersender_EASYLOG>();
    test::Zeigen(*Fenster);
    QTRY_COMPARE(Jg().Aktuelle_Zeile(), 0);
  }
  template <typename W>
  W &Kind(const char16_t *Name) {
    return test::Kind<W>(*Fenster, Name);
  }
  clsTabelle &Jg() { return Kind<clsTabelle>(u"jgTab"); }
  int Spalte(const char16_t *Name) { return Jg().Spalte_finden(QString::fromUtf16(Name)); }
  QModelIndex Stelle(int Zeile, const char16_t *Name) { return Jg().model()->index(Zeile, Spalte(Name)); }
  QString Zelle(int Zeile, const char16_t *Name) { return Stelle(Zeile, Name).data().toString(); }
  void Knopf(const char16_t *Name) { test::Klick(*Fenster, Name); }
  void Eintrag(const char16_t *Name) { Kind<QAction>(Name).trigger(); }
  QString Anzahltext() { return Kind<QLabel>(u"lbAnzahl").text(); }
  void Tippen(int Zeile, const char16_t *Name, const QString &Text) {
    Jg().Zelle_anspringen(Zeile, QString::fromUtf16(Name));
    QTest::keyClick(&Jg(), Qt::Key_F2);
    QTest::qWait(1);
    QTest::keyClicks(QApplication::focusWidget(), Text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::qWait(1);
  }
  /// Picks the entry with that value in the cell's list, by keys; gives all that could be picked.
  QStringList Waehlen(int Zeile, const char16_t *Name, const QString &Wert) {
    QTest::qWait(1);  // an editor that was closed goes
    Jg().Zelle_anspringen(Zeile, QString::fromUtf16(Name));
    QTest::keyClick(&Jg(), Qt::Key_F4);
    auto *box = Jg().findChild<QComboBox *>();
    if (box == nullptr) {
      ADD_FAILURE() << "no list to pick from";
      return {};
    }
    QTest::qWait(1);  // the list drops down behind the key
    QStringList eintraege;
    for (int i = 0; i < box->count(); ++i) eintraege << box->itemText(i);
    box->view()->setCurrentIndex(box->model()->index(box->findText(Wert), 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    return eintraege;
  }
  QString Exportdatei() const { return Mandant.Ordner() + u"easylog.csv"_qs; }

  test::Dialoge_Skript Dialoge;
  test::Hilfe_Skript Hilfe;
  std::unique_ptr<frmVersender_EASYLOG> Fenster;
};
MARKLINK_BEIDE_TYPEN(frmVersender_EASYLOG_Test);

TEST_P(frmVersender_EASYLOG_Test, Zeigt_die_Auftraege_und_die_Anschriften_des_aktuellen) {
  Oeffnen();
  EXPECT_EQ(Fenster->windowTitle(), u"Versand: EASYLOG"_qs);
  EXPECT_EQ(Anzahltext(), u"4 Versandaufträge, 0 markiert"_qs);
  const QAbstractItemModelTester pruefer(Jg().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  EXPECT_EQ(Jg().model()->headerData(Spalte(u"POOL_REFNR"), Qt::Horizontal).toString(),
            u"Referenznummer (Polling)"_qs);
  EXPECT_EQ(Zelle(1, u"POOL_V_VERFAHREN") + Zelle(1, u"POOL_V_PRODUKT_CN"), u"WeltpaketWeltpaket Premium"_qs);
  EXPECT_EQ(Zelle(0, u"Date"), u"10.06.2024"_qs);
  const auto grund = [this](int Zeile) { return Stelle(Zeile, u"Customer").data(Qt::BackgroundRole); };
  EXPECT_NE(grund(0), grund(1)) << "participations 01 and 02 differ";
  EXPECT_EQ(Kind<QPlainTextEdit>(u"txtRechnungsanschrift").toPlainText(), u"Rechnung 1"_qs);
  QTest::keyClick(&Jg(), Qt::Key_Down);
  EXPECT_EQ(Kind<QPlainTextEdit>(u"txtLieferanschrift").toPlainText(), u"Lieferung 2"_qs);
  QTest::keyClick(Fenster.get(), Qt::Key_F1);
  EXPECT_EQ(Hilfe.Thema, int(Hilfethema::Versandliste));
}

TEST_P(frmVersender_EASYLOG_Test, Ein_Verfahren_bestimmt_die_Produkte) {
  Oeffnen();
  EXPECT_EQ(Waehlen(0, u"POOL_V_PRODUKT_CN", u"102"_qs), (QStringList{u"101"_qs, u"102"_qs, u"5301"_qs}));
  EXPECT_EQ(Zelle(0, u"POOL_V_PRODUKT_CN"), u"DHL Päckchen"_qs);
  Waehlen(0, u"POOL_V_VERFAHREN", u"53"_qs);
  EXPECT_EQ(Zelle(0, u"POOL_V_VERFAHREN"), u"Weltpaket"_qs);
  EXPECT_EQ(Waehlen(0, u"POOL_V_PRODUKT_CN", u"5301"_qs), QStringList{u"5301"_qs});
  Knopf(u"Beenden");
  EXPECT_EQ(Gespeichert(1, "POOL_V_VERFAHREN") + u'/' + Gespeichert(1, "POOL_V_PRODUKT_CN"), u"53/5301"_qs);
}

TEST_P(frmVersender_EASYLOG_Test, Bearbeiten_markieren_und_exportieren) {
  Option_schreiben(u"easylog"_qs, u"file"_qs, Exportdatei());
  Option_schreiben(u"easylog"_qs, u"delimiter"_qs, u"|"_qs);
  Oeffnen();
  Tippen(0, u"POOL_EMPF_ORT", u"Leipzig"_qs);
  Eintrag(u"mnuKontext_Alles_markieren");
  EXPECT_EQ(Anzahltext(), u"4 Versandaufträge, 4 markiert"_qs);
  Eintrag(u"mnuKontext_Markierung_aufheben");
  QTest::mouseClick(Jg().viewport(), Qt::LeftButton, {}, test::Mitte(Jg(), 2, 0));
  EXPECT_EQ(Anzahltext(), u"4 Versandaufträge, 1 markiert"_qs);
  // An edit that is still open counts for the command.
  Jg().Zelle_anspringen(1, u"POOL_EMPF_ORT"_qs);
  QTest::keyClick(&Jg(), Qt::Key_F2);
  QTest::qWait(1);
  QTest::keyClicks(QApplication::focusWidget(), u"Bonn"_qs);
  Dialoge.Erwarten(u"Hinweis"_qs);
  Knopf(u"Versandliste_exportieren");
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen, QStringList{u"Die Daten wurden erfolgreich exportiert."_qs});
  EXPECT_EQ(Anzahltext(), u"0 Versandaufträge, 0 markiert"_qs);
  EXPECT_EQ(Kind<QPlainTextEdit>(u"txtLieferanschrift").toPlainText(), QString());
  const QString inhalt = QString::fromLatin1(test::Datei_lesen(Exportdatei()));
  EXPECT_EQ(inhalt.count(u"\r\n"_qs), 3) << "a marked row counts as handed over already";
  EXPECT_TRUE(inhalt.contains(u"|Leipzig|"_qs) && inhalt.contains(u"|Bonn|"_qs)) << inhalt.toStdString();
  Dialoge.Erwarten(u"Hinweis"_qs);
  Knopf(u"Versandliste_exportieren");
  EXPECT_TRUE(Dialoge.Gezeigt.back().Zeilen[0].startsWith(u"Es sind leider keine Daten"_qs));
}

TEST_P(frmVersender_EASYLOG_Test, Loeschen_fragt_und_Einstellungen_oeffnen) {
  Oeffnen();
  Dialoge.Erwarten_Schirm(u"frmVersender_EASYLOG_Einstellungen"_qs);
  Knopf(u"Einstellungen");
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    Dialoge.Erwarten(u"Versandaufträge in Varda löschen"_qs, antwort);
    if (antwort == Antwort::Ja) Dialoge.Erwarten(u"Hinweis"_qs);
    Knopf(u"Versandliste_loeschen");
    EXPECT_EQ(Anzahl(), antwort == Antwort::Ja ? 0 : 4);
    EXPECT_EQ(Jg().model()->rowCount(), Anzahl());
  }
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen, QStringList{u"Die Versandaufträge wurden in Varda gelöscht."_qs});
  EXPECT_EQ(Anzahltext(), u"0 Versandaufträge, 0 markiert"_qs);
}

TEST_P(frmVersender_EASYLOG_Test, Der_Zeitraum_gilt_beim_naechsten_Laden) {
  Auftrag(5, QDate(2024, 1, 2));
  Oeffnen();
  auto &zeitraum = Kind<QComboBox>(u"cboZeitraum");
  EXPECT_EQ(zeitraum.count(), 41);
  Tippen(0, u"POOL_EMPF_ORT", u"Leipzig"_qs);
  zeitraum.setCurrentText(u"Januar"_qs);
  EXPECT_EQ(Kontext.gViewablePeriod, 17);
  EXPECT_EQ(Zelle(0, u"POOL_EMPF_ORT"), u"Leipzig"_qs) << "picking alone loads nothing";
  QTest::keyClick(&Jg(), Qt::Key_F5);
  EXPECT_EQ(Jg().model()->rowCount(), 1);
  EXPECT_EQ(Zelle(0, u"OrderID"), u"5"_qs);
  Kontext.gLaeuft = true;
  zeitraum.setCurrentIndex(0);
  Knopf(u"Versandliste_laden");
  EXPECT_EQ(Kontext.gViewablePeriod, 17) << "nothing happens in the middle of a run";
  EXPECT_EQ(zeitraum.currentIndex(), 17);
  Kontext.gLaeuft = false;
}

TEST_P(frmVersender_EASYLOG_Test, Schliessen_mit_jeder_Antwort) {
  const QString layout = u"Webshop_Versandliste_xtc_easylog"_qs;
  for (const QString &antwort : {u"Nein"_qs, u"Ja"_qs, u"ungefragt"_qs}) {
    SCOPED_TRACE(antwort.toStdString());
    const bool zu = antwort != u"Nein";
    Option_schreiben(u"Program"_qs, u"Finalize"_qs, antwort == u"ungefragt" ? u"1"_qs : u"0"_qs);
    Option_schreiben(u"Marklink"_qs, u"ViewablePeriod"_qs, u"0"_qs);
    Ini_schreiben(Kontext.gLayoutDatei, u"Layout"_qs, layout, QString());
    frmVersender_EASYLOG_Einstellungen anderes;
    QWidget fremdes;
    test::Zeigen(anderes);
    test::Zeigen(fremdes);
    Oeffnen();
    Kind<QComboBox>(u"cboZeitraum").setCurrentIndex(1);
    Jg().setColumnWidth(3, 200);
    Tippen(0, u"POOL_EMPF_ORT", antwort);
    if (antwort != u"ungefragt") Dialoge.Erwarten(u"Beenden"_qs, zu ? Antwort::Ja : Antwort::Nein);
    Knopf(u"Beenden");
    EXPECT_EQ(Fenster->isHidden(), zu);
    EXPECT_EQ(Gespeichert(1, "POOL_EMPF_ORT"), zu ? antwort : u"Dresden"_qs);
    EXPECT_EQ(Option_lesen(u"Marklink"_qs, u"ViewablePeriod"_qs), zu ? u"1"_qs : u"0"_qs);
    EXPECT_EQ(Ini_lesen_lang(Kontext.gLayoutDatei, u"Layout"_qs, layout).isEmpty(), !zu);
    EXPECT_EQ(anderes.isHidden(), zu) << "the program's other windows are unloaded";
    EXPECT_FALSE(fremdes.isHidden()) << "those of the host are not";
  }
  Oeffnen();
  EXPECT_NEAR(Jg().columnWidth(3), 200, 1);
  EXPECT_EQ(Kind<QComboBox>(u"cboZeitraum").currentIndex(), 1);
}

TEST_P(frmVersender_EASYLOG_Test, Schliessen_mitten_im_Laden_beendet_es_erst) {
  for (int i = 5; i <= 60; ++i) Auftrag(i);
  Oeffnen();
  bool gefragt = false;
  class Stoerer : public test::Fortschritt_Skript {
   public:
    std::function<void()> Tun;
    void Wert(int W) override {
      if (W == 3) Tun();
    }
  } stoerer;
  stoerer.Tun = [&] {
    Knopf(u"Versandliste_loeschen");  // a command in the middle of another is none
    Fenster->close();
    gefragt = Fenster->isVisible();
  };
  QTest::keyClick(&Jg(), Qt::Key_F5);
  EXPECT_TRUE(gefragt);
  EXPECT_EQ(Jg().model()->rowCount(), 3) << "the run was told to end";
  QTRY_VERIFY(Fenster->isHidden());
  EXPECT_EQ(Anzahl(), 60);
}

TEST_P(frmVersender_EASYLOG_Test, Passt_auf_den_Bildschirm) {
  const auto oeffnen = [this]() -> QWidget & {
    Oeffnen();
    return *Fenster;
  };
  test::Kleiner_Bildschirm(oeffnen, u"frmVersender_EASYLOG"_qs);
  Oeffnen();
  Fenster->resize(1280, 770);
  QTest::mouseClick(Jg().viewport(), Qt::LeftButton, {}, test::Mitte(Jg(), 1, 0));
  test::Bild_machen(*Fenster, u"frmVersender_EASYLOG"_qs);
}

}  // namespace
}  // namespace marklink
