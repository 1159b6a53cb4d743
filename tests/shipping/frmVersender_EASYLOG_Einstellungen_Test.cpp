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
using test::Tippen;

class frmVersender_EASYLOG_Einstellungen_Test : public test::Mandant_Test {
 protected:
  static QString Gespeichert(const char *Schluessel) {
    return Option_lesen(u"easylog"_qs, QLatin1String(Schluessel));
  }
  test::Hilfe_Skript Hilfe;
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
  test::Klick(f, u"cmdDatei");
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
  EXPECT_EQ(std::exchange(Hilfe.Thema, 0), int(Hilfethema::Versandeinstellungen));
  test::Klick(f, u"cmdHilfe");
  EXPECT_EQ(std::exchange(Hilfe.Thema, 0), int(Hilfethema::Versandeinstellungen));
  QTest::keyClick(&f, Qt::Key_Escape);
  EXPECT_FALSE(f.isVisible());
  EXPECT_EQ(Gespeichert("client"), u"alt"_qs);
}

TEST_P(frmVersender_EASYLOG_Einstellungen_Test, Was_nicht_zu_zeigen_ist_bleibt_erhalten) {
  const QString lang(300, u'x');
  Option_schreiben(u"easylog"_qs, u"file"_qs, lang);
  Option_schreiben(u"easylog"_qs, u"appendrecords"_qs, u"7"_qs);
  Option_schreiben(u"easylog"_qs, u"delimiter"_qs, u" "_qs);
  const QString vorher = Gespeichert("file");
  frmVersender_EASYLOG_Einstellungen f;
  test::Zeigen(f);
  test::Klick(f, u"cmdOK");
  EXPECT_EQ(Gespeichert("file"), vorher);
  EXPECT_EQ(Gespeichert("appendrecords"), u"7"_qs);
  EXPECT_EQ(Gespeichert("delimiter"), u" "_qs);
}

TEST_P(frmVersender_EASYLOG_Einstellungen_Test, Passt_auf_den_Bildschirm) {
  const QString name = u"frmVersender_EASYLOG_Einstellungen"_qs;
  frmVersender_EASYLOG_Einstellungen f, g;
  const auto oeffnen = [&f]() -> QWidget & {
    test::Zeigen(f);
    return f;
  };
  test::Kleiner_Bildschirm(oeffnen, name);
  test::Bild_machen(g, name);
}

}  // namespace
}  // namespace marklink
