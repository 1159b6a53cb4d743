// The settings dialog by key and click.
#include "shop/frmEinstellungen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeWidget>

#include "host/Datenbank.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Komponenten_Attrappe.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

using test::Kind;
using test::Klick;
using test::Tippen;

class frmEinstellungen_Test : public test::Mandant_Test {
 protected:
  static QString Gespeichert(const char *Schluessel) {
    return Option_lesen(u"Marklink"_qs, QLatin1String(Schluessel));
  }
  /// Walks to a page by the arrow keys of the tree.
  static void Seite(frmEinstellungen &F, int Nummer) {
    auto &baum = Kind<QTreeWidget>(F, u"tvwNavigation");
    baum.setFocus();
    QTest::keyClick(&baum, Qt::Key_Home);
    for (int i = 0; i <= Nummer; ++i) QTest::keyClick(&baum, Qt::Key_Down);
    EXPECT_EQ(Kind<QStackedWidget>(F, u"picWizard").currentIndex(), Nummer);
  }
  test::Hilfe_Skript Hilfe;
  test::Dialoge_Skript Skript;
};
MARKLINK_BEIDE_TYPEN(frmEinstellungen_Test);

TEST_P(frmEinstellungen_Test, aendern_und_mit_der_Eingabetaste_speichern) {
  Mandant.Einstellen("Marklink", "autoretrieve", u"1"_qs);
  Mandant.Einstellen("Marklink", "attributematrix", u"5"_qs);
  frmEinstellungen f;
  test::Zeigen(f);
  EXPECT_EQ(f.windowTitle(), u"Einstellungen zum Webshop"_qs);
  Tippen(f, u"txtProjektbezeichnung", u"Neuer Laden"_qs);
  auto &richtung = Kind<QComboBox>(f, u"cboSynchronisierung");
  richtung.setFocus();
  QTest::keyClick(&richtung, Qt::Key_Down);
  Seite(f, 2);
  EXPECT_TRUE(Kind<QCheckBox>(f, u"chkBestellungsabruf").isChecked());
  auto &preise = Kind<QCheckBox>(f, u"chkPreisfindung");
  preise.setFocus();
  QTest::keyClick(&preise, Qt::Key_Space);
  Seite(f, 3);
  Tippen(f, u"txtFTP_Ordner", u"/web"_qs);
  EXPECT_EQ(Gespeichert("ftpfolder"), QString()) << "nothing is stored before it is saved";
  QTest::keyClick(&f, Qt::Key_Return);
  EXPECT_EQ(f.result(), QDialog::Accepted);
  const std::pair<const char *, const char *> erwartet[] = {
      {"project", "Neuer Laden"}, {"synchronisation", "1"}, {"articlepricing", "1"},  {"autoretrieve", "1"},
      {"attributematrix", "5"},   {"ftpfolder", "/web"},    {"disposeproductid", "0"}};
  for (const auto &[schluessel, wert] : erwartet)
    EXPECT_EQ(Gespeichert(schluessel), QLatin1String(wert)) << schluessel;
}

TEST_P(frmEinstellungen_Test, Escape_verwirft_und_F1_hilft) {
  frmEinstellungen f;
  test::Zeigen(f);
  Tippen(f, u"txtProjektbezeichnung", u"verworfen"_qs);
  QTest::keyClick(&f, Qt::Key_F1);
  EXPECT_EQ(std::exchange(Hilfe.Thema, 0), 1152);
  Klick(f, u"cmdHilfe");
  EXPECT_EQ(std::exchange(Hilfe.Thema, 0), 1152);
  QTest::keyClick(&f, Qt::Key_Escape);
  EXPECT_FALSE(f.isVisible());
  EXPECT_EQ(Gespeichert("project"), u"Test"_qs);
}

TEST_P(frmEinstellungen_Test, Verbindungstest_gibt_das_Hochladen_frei_und_speichert) {
  test::Komponenten_Attrappe host;
  frmEinstellungen f;
  test::Zeigen(f);
  Seite(f, 3);
  Tippen(f, u"txtFTP_Hostname", u"ftp.laden.de"_qs);
  auto &hochladen = Kind<QPushButton>(f, u"cmdFTP_Upload");
  const auto testen = [&](bool Gelingt) {
    host.Vorbereiten({Gelingt});
    Skript.Erwarten(Gelingt ? u"Hinweis"_qs : u"Fehler"_qs);
    Klick(f, u"cmdFTP_Verbindungstest");
    return hochladen.isEnabled();
  };
  EXPECT_FALSE(hochladen.isEnabled());
  EXPECT_TRUE(testen(true));
  Skript.Erwarten(u"Fehler"_qs);
  QTest::mouseClick(&hochladen, Qt::LeftButton);
  EXPECT_FALSE(testen(false));
  QTest::keyClick(&f, Qt::Key_Escape);
  EXPECT_EQ(Gespeichert("ftphostname"), u"ftp.laden.de"_qs) << "the test has saved already";
}

TEST_P(frmEinstellungen_Test, ein_zweiter_Klick_startet_nichts_zweites) {
  test::Komponenten_Attrappe host;
  frmEinstellungen f;
  test::Zeigen(f);
  Seite(f, 3);
  const auto klick = [&f] { Klick(f, u"cmdFTP_Verbindungstest"); };
  host.Vorbereiten({true, true});
  Skript.Erwarten(u"Hinweis"_qs);
  QTimer::singleShot(0, &f, [&] {  // while the first one waits
    klick();
    QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_TRUE(f.isVisible());
  });
  klick();
  EXPECT_EQ(host.Aufrufe.filter(u"FTP_Verbindungstest"_qs).size(), 1);
  QTest::keyClick(&f, Qt::Key_Escape);
  EXPECT_FALSE(f.isVisible());
}

TEST_P(frmEinstellungen_Test, was_nicht_zu_zeigen_ist_bleibt_erhalten) {
  const QString lang = QString(5000, u'x');
  Mandant.Einstellen("Marklink", "hostname", lang);
  Mandant.Einstellen("Marklink", "synchronisation", u"7"_qs);
  const QString vorher = Gespeichert("hostname");
  frmEinstellungen f;
  test::Zeigen(f);
  EXPECT_EQ(Kind<QComboBox>(f, u"cboSynchronisierung").currentIndex(), -1);
  Klick(f, u"cmdOK");
  EXPECT_EQ(Gespeichert("hostname"), vorher);
  EXPECT_EQ(Gespeichert("synchronisation"), u"7"_qs);
}

TEST_P(frmEinstellungen_Test, nichts_ist_abgeschnitten) {
  const struct {
    int Schriftgrad;
    QSize Bildschirm;
  } faelle[] = {{9, QSize(1280, 800) / 1.5}, {12, QSize(1280, 800)}};
  for (const auto &fall : faelle) {
    frmEinstellungen f;
    QFont schrift = f.font();
    schrift.setPointSize(fall.Schriftgrad);
    f.setFont(schrift);
    f.resize(fall.Bildschirm);
    test::Zeigen(f);
    EXPECT_EQ(f.size(), fall.Bildschirm) << "its least size is larger";
    for (int seite = 0; seite < 4; ++seite) {
      Seite(f, seite);
      const auto *blatt = qobject_cast<QScrollArea *>(Kind<QStackedWidget>(f, u"picWizard").currentWidget());
      EXPECT_EQ(blatt->horizontalScrollBar()->maximum(), 0) << "page " << seite << " at " << fall.Schriftgrad;
      test::Bild_machen(f, u"frmEinstellungen_%1_%2"_qs.arg(seite + 1).arg(fall.Schriftgrad));
    }
  }
}

}  // namespace
}  // namespace marklink
