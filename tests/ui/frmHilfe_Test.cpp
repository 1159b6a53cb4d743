// The help: its pages as a whole, and its window by key and click.
#include "ui/frmHilfe.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTextBrowser>
#include <QWindow>

#include "host/Kontext.h"
#include "support/Fenster_Test.h"
#include "support/Testdateien.h"
#include "support/Testmandant.h"
#include "ui/Hilfe.h"
#include "ui/Hilfethemen.h"
#include "ui/frmProgress.h"

namespace marklink {
namespace {

const QString Ordner = u":/marklink/hilfe/"_qs;

QString Lesen(const QString &Seite) {
  EXPECT_TRUE(QFile::exists(Ordner + Seite)) << Seite.toStdString();
  return QString::fromUtf8(test::Datei_lesen(Ordner + Seite));
}

QStringList Fundstellen(const QString &Text, const char *Muster) {
  QStringList alle;
  for (const auto &fund : QRegularExpression(QLatin1String(Muster)).globalMatch(Text))
    alle << fund.captured(1);
  return alle;
}

/// "seite.html#stelle", or "#stelle" on `Von`.
bool Ziel_vorhanden(const QString &Ziel, const QString &Von) {
  const QString seite = Ziel.section(u'#', 0, 0), stelle = Ziel.section(u'#', 1);
  if (!seite.isEmpty() && !QFile::exists(Ordner + seite)) return false;
  return stelle.isEmpty() || Lesen(seite.isEmpty() ? Von : seite).contains(u"id=\"%1\""_qs.arg(stelle));
}

TEST(frmHilfe_Seiten, Jedes_Thema_hat_seine_Seite) {
  QSet<QString> seiten;
  for (const Hilfethemenseite &thema : Hilfethemen()) {
    const QString seite = Hilfeseite(thema.Thema);
    EXPECT_TRUE(Ziel_vorhanden(seite, QString())) << thema.Seite;
    seiten << seite;
  }
  EXPECT_EQ(seiten.size(), qsizetype(Hilfethemen().size())) << "two topics with the same page";
  EXPECT_EQ(Hilfeseite(1), u"index.html"_qs);
}

TEST(frmHilfe_Seiten, Jeder_Verweis_und_jedes_Bild_ist_da) {
  const QStringList seiten = QDir(Ordner).entryList({u"*.html"_qs});
  EXPECT_GE(seiten.size(), 10);
  const QString inhalt = Lesen(u"index.html"_qs);
  QSet<QString> bilder;
  for (const QString &seite : seiten) {
    const QString text = Lesen(seite);
    EXPECT_TRUE(seite == u"index.html" || inhalt.contains(u"href=\"%1\""_qs.arg(seite)))
        << seite.toStdString() << " is not in the contents";
    for (const QString &ziel : Fundstellen(text, "<a href=\"([^\"]+)\""))
      EXPECT_TRUE(Ziel_vorhanden(ziel, seite)) << seite.toStdString() << " -> " << ziel.toStdString();
    const QStringList quellen = Fundstellen(text, "(?:src|srcset)=\"([^\"]+)\"");
    for (const QString &bild : quellen) {
      EXPECT_TRUE(QFile::exists(Ordner + bild)) << seite.toStdString() << ": " << bild.toStdString();
      bilder << bild.section(u'/', -1);
    }
    EXPECT_EQ(Fundstellen(text, "alt=\"([^\"]+)\"").size() * 2, quellen.size())
        << seite.toStdString() << ": light, dark and what it shows for each picture";
  }
  for (const QString &bild : QDir(Ordner + u"bilder"_qs).entryList(QDir::Files))
    EXPECT_TRUE(bilder.contains(bild)) << bild.toStdString() << " is on no page";
}

class frmHilfe_Test : public test::Mandant_Test {
 protected:
  ~frmHilfe_Test() override { frmHilfe::Abbauen(); }
  static frmHilfe *Fenster() {
    for (QWidget *fenster : QApplication::topLevelWidgets())
      if (auto *hilfe = qobject_cast<frmHilfe *>(fenster)) return hilfe;
    return nullptr;
  }
  static frmHilfe &Zeigen(int Thema) {
    Hilfe_zeigen(Thema);
    EXPECT_TRUE(QTest::qWaitForWindowActive(Fenster()));
    return *Fenster();
  }
  static QTextBrowser &Text() { return test::Kind<QTextBrowser>(*Fenster(), u"txtSeite"); }
  static QString Seite() { return Text().source().toString().section(u'/', -1); }
  static void Knopf(const char16_t *Name) { test::Klick(*Fenster(), Name); }
};
INSTANTIATE_TEST_SUITE_P(Typ, frmHilfe_Test, ::testing::Values(0), test::Typname);

TEST_P(frmHilfe_Test, Blaettern_und_schliessen) {
  frmHilfe &hilfe = Zeigen(Hilfethema::Liste_Sprachen);
  EXPECT_EQ(Seite(), u"listen.html#sprachen"_qs);
  EXPECT_EQ(hilfe.windowTitle(), u"Listen – Hilfe zu Marklink"_qs);
  Knopf(u"cmdInhalt");
  EXPECT_EQ(Seite(), u"index.html"_qs);
  QTest::keyClick(&Text(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Seite(), u"listen.html#sprachen"_qs);
  Knopf(u"cmdVor");
  EXPECT_EQ(Seite(), u"index.html"_qs);
  EXPECT_FALSE(test::Kind<QPushButton>(hilfe, u"cmdVor").isEnabled());
  hilfe.resize(700, 500);
  QTest::keyClick(&Text(), Qt::Key_Escape);
  EXPECT_FALSE(hilfe.isVisible());
  frmHilfe::Abbauen();
  EXPECT_EQ(Zeigen(Hilfethema::Bild).size(), QSize(700, 500)) << "remembers its size";
}

TEST_P(frmHilfe_Test, Suchen_auf_der_Seite) {
  frmHilfe &hilfe = Zeigen(Hilfethema::Einstellungen);
  QTest::keyClick(&Text(), Qt::Key_F, Qt::ControlModifier);
  auto &suche = test::Kind<QLineEdit>(hilfe, u"txtSuche");
  EXPECT_EQ(QApplication::focusWidget(), &suche);
  QTest::keyClicks(&suche, u"ordner"_qs);
  const int erste = Text().textCursor().selectionStart();
  EXPECT_EQ(Text().textCursor().selectedText().toLower(), u"ordner"_qs);
  QTest::keyClick(&suche, Qt::Key_Return);
  EXPECT_GT(Text().textCursor().selectionStart(), erste);
  QTest::keyClick(&suche, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Text().textCursor().selectionStart(), erste);
  QTest::keyClick(&suche, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_GT(Text().textCursor().selectionStart(), erste) << "goes on at the other end of the page";
  QTest::keyClicks(&suche, u"xyz"_qs);
  EXPECT_EQ(test::Kind<QLabel>(hilfe, u"lbSuche").text(), u"nicht gefunden"_qs);
  EXPECT_FALSE(Text().textCursor().hasSelection());
}

TEST_P(frmHilfe_Test, Bedienbar_ueber_einem_modalen_Fenster) {
  QDialog pult, dialog(&pult);
  dialog.setModal(true);
  pult.show();
  Zeigen(Hilfethema::Auftragsverwaltung);
  test::Zeigen(dialog);
  frmHilfe &hilfe = Zeigen(Hilfethema::Bestellstatus);
  EXPECT_EQ(Seite(), u"bestellstatus.html"_qs);
  // To the window, not to the button: this is what a window that is blocked does not get.
  auto &inhalt = test::Kind<QPushButton>(hilfe, u"cmdInhalt");
  QTest::mouseClick(hilfe.windowHandle(), Qt::LeftButton, {}, inhalt.mapTo(&hilfe, inhalt.rect().center()));
  EXPECT_EQ(Seite(), u"index.html"_qs);
  dialog.reject();
  EXPECT_TRUE(hilfe.isVisible()) << "stays with the window below";
  EXPECT_EQ(hilfe.parentWidget(), &pult);
  pult.close();
  EXPECT_FALSE(hilfe.isVisible());
}

TEST_P(frmHilfe_Test, F1_mitten_in_einem_Lauf) {
  frmProgress lauf;
  lauf.Einrichten(u"Lauf"_qs, 3, true);
  test::Zeigen(lauf);
  QTest::keyClick(&lauf, Qt::Key_F1);
  ASSERT_NE(Fenster(), nullptr);
  EXPECT_EQ(Seite(), u"fortschritt.html"_qs);
  EXPECT_FALSE(Kontext.gAbbrechen) << "the run goes on";
}

TEST_P(frmHilfe_Test, Bilder_passen_zum_Desktop_und_in_das_Fenster) {
  frmHilfe &hilfe = Zeigen(Hilfethema::Auftragsverwaltung);
  const auto bild = [] {
    return Text()
        .document()
        ->resource(QTextDocument::ImageResource, QUrl(u"bilder/auftragsverwaltung.png"_qs))
        .value<QPixmap>()
        .toImage();
  };
  const QImage hell = bild();
  test::Palette_setzen(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return bild().pixelColor(20, 60).lightness() < 100; }, 2000));
  test::Palette_setzen(false);
  EXPECT_TRUE(QTest::qWaitFor([&] { return bild() == hell; }));
  hilfe.resize(700, 500);
  EXPECT_TRUE(QTest::qWaitFor([&] { return bild().width() < 700; }));
  test::Bild_machen(hilfe, u"hilfe_schmal"_qs);
}

}  // namespace
}  // namespace marklink
