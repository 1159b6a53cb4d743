// The preview by key and click, and printing without a printer.
#include "reports/frmVorschau.h"

#include <QApplication>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

#include "Probebericht.h"
#include "reports/clsPrintDialog.h"
#include "reports/clsSeitenansicht.h"
#include "reports/drucken.h"
#include "support/Fenster_Test.h"

namespace marklink {
namespace {

using test::Kind;

class frmVorschau_Test : public testing::Test {
 protected:
  frmVorschau_Test() {
    auto daten = std::make_shared<test::Personen>();
    for (int i = 0; i < 100; ++i)
      daten->Liste.push_back({u"Ort %1"_qs.arg(i / 7), u"Jürgen Großmann %1"_qs.arg(i), u"1,00"_qs, {}, {}});
    R = std::make_unique<Report>(test::Probebericht(), daten);
    R->hyperLink = [this](const QString &text) { Verweis = text; };
    Vorschau_einrichten(*R);
    Fenster = std::make_unique<frmVorschau>(*R);
    Fenster->resize(1000, 700);
    test::Zeigen(*Fenster);
  }
  clsSeitenansicht &Ansicht() { return Kind<clsSeitenansicht>(*Fenster, u"Seitenansicht"); }
  QAction &Werkzeug(const char16_t *Name) {
    QAction *aktion = Fenster->findChild<QAction *>(u"Werkzeug_"_qs + QString::fromUtf16(Name));
    EXPECT_NE(aktion, nullptr);
    return *aktion;
  }
  int Taste(int Taste, Qt::KeyboardModifiers Mit = {}) {
    QTest::keyClick(Fenster->focusWidget(), Qt::Key(Taste), Mit);
    return Ansicht().Seite() + 1;
  }
  std::unique_ptr<Report> R;
  QString Verweis;
  std::unique_ptr<frmVorschau> Fenster;
};

TEST_F(frmVorschau_Test, Blaettert_durch_Taste_Werkzeug_und_Seitenzahl) {
  const int seiten = Ansicht().Seiten();
  ASSERT_GT(seiten, 4);
  EXPECT_EQ(Fenster->windowTitle(), u"Personen & Orte"_qs);
  EXPECT_EQ(Kind<QLabel>(*Fenster, u"lbSeiten").text().trimmed(), u"von %1"_qs.arg(seiten));
  EXPECT_FALSE(Werkzeug(u"VorherigeSeite").isEnabled());
  EXPECT_EQ(Taste(Qt::Key_PageDown, Qt::ControlModifier), 2);
  EXPECT_EQ(Taste(Qt::Key_PageDown, Qt::ControlModifier), 3);
  EXPECT_EQ(Taste(Qt::Key_PageUp, Qt::ControlModifier), 2);
  EXPECT_EQ(Taste(Qt::Key_End), seiten);
  EXPECT_FALSE(Werkzeug(u"NaechsteSeite").isEnabled());
  EXPECT_EQ(Taste(Qt::Key_PageDown, Qt::ControlModifier), seiten);
  Werkzeug(u"Zurueck").trigger();  // to the page that was looked at before
  EXPECT_EQ(Ansicht().Seite() + 1, 2);
  EXPECT_EQ(Taste(Qt::Key_Left, Qt::AltModifier), 3);
  EXPECT_EQ(Taste(Qt::Key_Right, Qt::AltModifier), 2);
  Werkzeug(u"Weiter").trigger();
  EXPECT_EQ(Ansicht().Seite() + 1, seiten);
  EXPECT_FALSE(Werkzeug(u"Weiter").isEnabled());
  EXPECT_EQ(Taste(Qt::Key_Home), 1);
  auto &seite = Kind<QSpinBox>(*Fenster, u"txtSeite");
  seite.setFocus();
  seite.selectAll();
  QTest::keyClicks(&seite, u"4"_qs);
  QTest::keyClick(&seite, Qt::Key_Return);
  EXPECT_EQ(Ansicht().Seite() + 1, 4);
  EXPECT_TRUE(Fenster->isVisible()) << "Return in the page number does not close or print";
}

TEST_F(frmVorschau_Test, Bild_ab_und_Rad_lesen_die_ganze_Seite_bevor_die_naechste_kommt) {
  const QScrollBar &leiste = *Ansicht().verticalScrollBar();
  ASSERT_GT(leiste.maximum(), leiste.pageStep() / 10);
  EXPECT_EQ(Taste(Qt::Key_PageDown), 1);
  EXPECT_GT(leiste.value(), 0);
  EXPECT_LT(leiste.value(), leiste.pageStep()) << "nothing is skipped";
  while (leiste.value() < leiste.maximum()) EXPECT_EQ(Taste(Qt::Key_PageDown), 1);
  EXPECT_EQ(Taste(Qt::Key_PageDown), 2);
  EXPECT_EQ(leiste.value(), 0);
  EXPECT_EQ(Taste(Qt::Key_PageUp), 1);
  EXPECT_EQ(leiste.value(), leiste.maximum());
  EXPECT_EQ(Taste(Qt::Key_Space), 2);
  EXPECT_EQ(Taste(Qt::Key_Space, Qt::ShiftModifier), 1);
  const auto drehen = [this](int um) {
    QWheelEvent rad({100, 100}, Ansicht().viewport()->mapToGlobal(QPointF(100, 100)), {}, {0, um},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Ansicht().viewport(), &rad);
    return Ansicht().Seite() + 1;
  };
  for (int i = 0; i < 7; ++i) EXPECT_EQ(drehen(-15), 1) << "not a notch yet";
  EXPECT_EQ(drehen(-15), 2);
}

TEST_F(frmVorschau_Test, Vergroessert_und_nennt_seine_Werkzeuge) {
  const double anfang = Ansicht().Vergroesserung();
  Taste(Qt::Key_Plus);
  EXPECT_GT(Ansicht().Vergroesserung(), anfang);
  Taste(Qt::Key_Minus);
  Taste(Qt::Key_Minus);
  EXPECT_LT(Ansicht().Vergroesserung(), anfang);
  for (int i = 0; i < 20; ++i) Taste(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_FALSE(Werkzeug(u"ZoomPlus").isEnabled());
  EXPECT_EQ(Kind<QLabel>(*Fenster, u"lbZoom").text().trimmed(), u"300 %"_qs);
  QStringList tipps;
  for (const char16_t *name :
       {u"Drucken", u"ZoomPlus", u"ZoomMinus", u"VorherigeSeite", u"NaechsteSeite", u"Zurueck", u"Weiter"})
    tipps << Werkzeug(name).toolTip();
  EXPECT_EQ(tipps.join(u'|'), u"Drucken|Zoom +|Zoom -|Vorherige Seite|Nächste Seite|Zurück|Weiter"_qs);
  test::Bild_machen(*Fenster, u"frmVorschau_gross"_qs);
}

TEST_F(frmVorschau_Test, Passt_auf_einen_kleinen_Bildschirm_mit_grosser_Schrift) {
  const QFont vorher = QApplication::font();
  QFont gross = vorher;
  gross.setPointSize(12);
  QApplication::setFont(gross);
  Fenster->resize(853, 500);  // 1280x800 at 150 %
  test::Bild_machen(*Fenster, u"frmVorschau_klein"_qs);
  for (QToolButton *knopf : Fenster->findChildren<QToolButton *>())
    EXPECT_TRUE(knopf->defaultAction() == nullptr || knopf->isVisible()) << knopf->text().toStdString();
  QApplication::setFont(vorher);
}

TEST_F(frmVorschau_Test, Ein_Klick_auf_einen_Verweis_wird_gemerkt_und_Esc_schliesst) {
  test::Bild_machen(*Fenster, u"frmVorschau"_qs);
  QWidget &flaeche = *Ansicht().viewport();
  for (int y = 0; y < flaeche.height() && Verweis.isEmpty(); y += 4)
    QTest::mouseClick(&flaeche, Qt::RightButton, {}, {flaeche.width() / 2 - 250, y});
  EXPECT_EQ(Verweis, QString());
  for (int y = 0; y < flaeche.height() && Verweis.isEmpty(); y += 4)
    QTest::mouseClick(&flaeche, Qt::LeftButton, {}, {flaeche.width() / 2 - 250, y});
  EXPECT_EQ(Verweis, u"Jürgen Großmann 0"_qs);
  Taste(Qt::Key_Escape);
  EXPECT_FALSE(Fenster->isVisible());
}

TEST_F(frmVorschau_Test, Der_Druck_hat_die_Seiten_des_Bereichs) {
  const QTemporaryDir ordner;
  QPrinter ziel;
  ziel.setOutputFormat(QPrinter::PdfFormat);
  ziel.setOutputFileName(ordner.path() + u"/druck.pdf"_qs);
  EXPECT_TRUE(Seiten_drucken(ziel, R->Pages(), 2, 3));
  QProcess leser;
  leser.start(u"pdftotext"_qs, {u"-layout"_qs, ziel.outputFileName(), u"-"_qs});
  ASSERT_TRUE(leser.waitForFinished());
  const QString text = QString::fromUtf8(leser.readAllStandardOutput());
  EXPECT_EQ(text.count(u'\f'), 2);
  EXPECT_TRUE(text.contains(QRegularExpression(u"2 +von +%1"_qs.arg(R->Pages().Seiten()))))
      << text.toStdString();
  QPrinter keiner;
  keiner.setOutputFormat(QPrinter::PdfFormat);
  keiner.setOutputFileName(u"/nicht/da.pdf"_qs);
  EXPECT_FALSE(Seiten_drucken(keiner, R->Pages(), 1, 1));
}

}  // namespace
}  // namespace marklink
