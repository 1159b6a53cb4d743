// The settings of the export by key and click.
#include "shipping/frmVersender_EASYLOG_Einstellungen.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "host/Datenbank.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Testmandant.h"
#include "ui/Hilfe.h"

namespace marklink {
namespace {

using test::Kind;

int Gezeigtes_Thema = 0;

class frmVersender_EASYLOG_Einstellungen_Test : public test::Mandant_Test {
 protected:
  frmVersender_EASYLOG_Einstellungen_Test() {
    Hilfe_setzen([](int Thema) { Gezeigtes_Thema = Thema; });
  }
  ~frmVersender_EASYLOG_Einstellungen_Test() override { Hilfe_setzen(nullptr); }
  static QString Gespeichert(const char *Schluessel) {
    return Option_lesen(u"easylog"_qs, QLatin1String(Schluessel));
  }
  static void Tippen(QWidget &F, const char16_t *Feld, const QString &Text) {
    auto &feld = Kind<QLineEdit>(F, Feld);
    feld.setFocus();
    QTest::qWait(0);  // the focus selects the old text, which typing replaces
    QTest::keyClicks(&feld, Text);
  }
  test::Dialoge_Skript Dialoge;
};
MARKLINK_BEIDE_TYPEN(frmVersender_EASYLOG_Einstellungen_Test);

TEST_P(frmVersender_EASYLOG_Einstellungen_Test, Aendern_und_mit_OK_schreiben) {
  Option_schreiben(u"easylog"_qs, u"client"_qs, u"alt"_qs);
  Option_schreiben(u"easylog"_qs, u"columnheader"_qs, u"1"_qs);
  frmVersender_EASYLOG_Einstellungen f;
  test::Zeigen(f);
  EXPECT_EQ(f.windowTitle(), u"Versand: EASYLOG: Einstellungen"_qs);
  Tippen(f, u"txtEKPNummer", u"5012345678"_qs);
  Tippen(f, u"txtMandant", u"neu"_qs);
  Tippen(f, u"txtExportdatei", u"/daten/alt.csv"_qs);
  Dialoge.Erwarten_Datei(test::Dialoge_Skript::Art::Speichern, QString());
  QTest::keyClick(&Kind<QPushButton>(f, u"cmdDatei"), Qt::Key_Space);
  EXPECT_EQ(Kind<QLineEdit>(f, u"txtExportdatei").text(), u"/daten/alt.csv"_qs);
  Dialoge.Erwarten_Datei(test::Dialoge_Skript::Art::Speichern, u"/daten/neu.csv"_qs);
  QTest::mouseClick(&Kind<QPushButton>(f, u"cmdDatei"), Qt::LeftButton);
  const auto &dialog = Dialoge.Gezeigt.back();
  EXPECT_EQ(dialog.Titel, u"Exportieren zur Versandsoftware"_qs);
  EXPECT_EQ(dialog.Zeilen, QStringList{u"Easylog-Format (*.csv)|*.csv"_qs});
  EXPECT_EQ(dialog.Vorbelegung, u"/daten/alt.csv"_qs);
  QTest::keyClick(&Kind<QCheckBox>(f, u"chkExport_fortschreiben"), Qt::Key_Space);
  Tippen(f, u"txtTrennzeichen", u"124"_qs);
  EXPECT_EQ(Gespeichert("client"), u"alt"_qs) << "nothing is stored before OK";
  QTest::keyClick(&f, Qt::Key_Return);
  EXPECT_EQ(f.result(), QDialog::Accepted);
  const std::pair<const char *, QString> erwartet[] = {
      {"ekp", u"5012345678"_qs},  {"client", u"neu"_qs},    {"file", u"/daten/neu.csv"_qs},
      {"appendrecords", u"1"_qs}, {"delimiter", u"124"_qs}, {"columnheader", u"1"_qs}};
  for (const auto &[schluessel, wert] : erwartet) EXPECT_EQ(Gespeichert(schluessel), wert) << schluessel;
}

TEST_P(frmVersender_EASYLOG_Einstellungen_Test, Escape_verwirft_und_F1_hilft) {
  Option_schreiben(u"easylog"_qs, u"client"_qs, u"alt"_qs);
  frmVersender_EASYLOG_Einstellungen f;
  test::Zeigen(f);
  Tippen(f, u"txtMandant", u"neu"_qs);
  QTest::keyClick(&f, Qt::Key_F1);
  EXPECT_EQ(std::exchange(Gezeigtes_Thema, 0), int(Hilfethema::Versandeinstellungen));
  QTest::mouseClick(&Kind<QPushButton>(f, u"cmdHilfe"), Qt::LeftButton);
  EXPECT_EQ(std::exchange(Gezeigtes_Thema, 0), int(Hilfethema::Versandeinstellungen));
  QTest::keyClick(&f, Qt::Key_Escape);
  EXPECT_FALSE(f.isVisible());
  EXPECT_EQ(Gespeichert("client"), u"alt"_qs);
}

TEST_P(frmVersender_EASYLOG_Einstellungen_Test, Was_nicht_zu_zeigen_ist_bleibt_erhalten) {
  const QString lang(300, u'x');
  Option_schreiben(u"easylog"_qs, u"file"_qs, lang);
  Option_schreiben(u"easylog"_qs, u"appendrecords"_qs, u"7"_qs);
  const QString vorher = Gespeichert("file");
  frmVersender_EASYLOG_Einstellungen f;
  test::Zeigen(f);
  QTest::mouseClick(&Kind<QPushButton>(f, u"cmdOK"), Qt::LeftButton);
  EXPECT_EQ(Gespeichert("file"), vorher);
  EXPECT_EQ(Gespeichert("appendrecords"), u"7"_qs);
}

TEST_P(frmVersender_EASYLOG_Einstellungen_Test, Passt_auf_den_Bildschirm) {
  frmVersender_EASYLOG_Einstellungen f;
  QFont schrift = f.font();
  schrift.setPointSize(12);
  f.setFont(schrift);
  f.resize(853, 533);  // 1280x800 at 150 %
  test::Zeigen(f);
  EXPECT_EQ(f.size(), QSize(853, 533)) << "its least size is larger";
  test::Bild_machen(f, u"frmVersender_EASYLOG_Einstellungen_12"_qs);
  frmVersender_EASYLOG_Einstellungen g;
  test::Bild_machen(g, u"frmVersender_EASYLOG_Einstellungen"_qs);
}

}  // namespace
}  // namespace marklink
