// By which way a report leaves the program: printer, settings, preview, file.
#include "reports/Report.h"

#include "Probebericht.h"
#include "host/Datenbank.h"
#include "reports/drucken.h"
#include "support/Dialoge_Skript.h"
#include "support/Drucker_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Report_Test : public test::Mandant_Test {
 protected:
  Report_Test() {
    Berichtsfenster_setzen(
        {[this] {
           Schritte << u"Dialog"_qs;
           return Dialog_bestaetigt;
         },
         [this](Report &r) { Schritte << (r.DisplayToolTips ? u"Show"_qs : u"Show without tips"_qs); },
         [this](Report &) { Schritte << u"PrintReport"_qs; }});
  }
  ~Report_Test() override { Berichtsfenster_setzen({}); }
  QStringList Ausgeben(bool Dialog, bool Nur_Vorschau) {
    Schritte.clear();
    Report_ausgeben(R, Dialog, Nur_Vorschau, true);
    return Schritte;
  }
  void Einstellen(const char *Schluessel, const char16_t *Wert) {
    EXPECT_TRUE(Option_schreiben(u"Program"_qs, QLatin1String(Schluessel), QString::fromUtf16(Wert)));
  }
  QStringList Schritte;
  bool Dialog_bestaetigt = true;
  test::Dialoge_Skript Dialoge;
  Report R{test::Probebericht(), std::make_shared<test::Personen>()};
};
MARKLINK_BEIDE_TYPEN(Report_Test);

TEST_P(Report_Test, Ohne_Drucker_eine_Meldung_und_sonst_nichts) {
  const QString datei = Mandant.Ordner() + u"liste.pdf"_qs;
  Dialoge.Erwarten(u"Kein Drucker vorhanden"_qs);
  EXPECT_EQ(Ausgeben(true, true), QStringList());
  Dialoge.Erwarten(u"Kein Drucker vorhanden"_qs);
  EXPECT_FALSE(Report_exportieren(R, Export_PDF, datei));
  EXPECT_FALSE(QFile::exists(datei));
  ASSERT_EQ(Dialoge.Gezeigt.size(), 2U);
  EXPECT_EQ(Dialoge.Gezeigt[0].Bild, Symbol::Warnung);
  EXPECT_EQ(Dialoge.Gezeigt[0].Zeilen, (QStringList{u"Sie haben keinen Drucker installiert."_qs,
                                                    u"Der Ausdruck kann nicht gestartet werden."_qs}));
}

TEST_P(Report_Test, Einstellungen_entscheiden_ueber_Dialog_Vorschau_und_Druck) {
  const test::Drucker_Skript drucker({u"Laser"_qs});
  EXPECT_EQ(Ausgeben(true, false), QStringList{u"PrintReport"_qs}) << "nothing set";
  Einstellen("Preview", u"0");
  EXPECT_EQ(Ausgeben(true, true), QStringList{u"Show"_qs});
  Einstellen("Preview", u"1");
  Einstellen("PrinterSetup", u"1");
  EXPECT_EQ(Ausgeben(true, false), (QStringList{u"Dialog"_qs, u"Show"_qs}));
  EXPECT_EQ(Ausgeben(false, false), QStringList{u"Show"_qs});
  Dialog_bestaetigt = false;
  EXPECT_EQ(Ausgeben(true, false), QStringList{u"Dialog"_qs});
}

TEST_P(Report_Test, Die_Seiten_sind_die_des_aktuellen_Druckers) {
  test::Drucker_Skript drucker({u"Laser"_qs, u"Plotter"_qs});
  drucker.Form.Papierbreite = 148;
  drucker.Form.Papierhoehe = 210;
  drucker.Form.Querformat = true;
  drucker.Form.Copies = 3;
  Einstellen("ColorPrint", u"1");
  Druckeinstellungen_setzen(R, true, false);
  EXPECT_EQ(R.Printer.DeviceName, QString());
  Druckeinstellungen_setzen(R, false, true);
  EXPECT_FALSE(R.DisplayProgressDialog);
  EXPECT_EQ(R.Printer.DeviceName, u"Laser"_qs);
  EXPECT_EQ(R.Printer.Copies, 3);
  EXPECT_TRUE(R.ColorMode);
  EXPECT_EQ(R.Run().Masse().Breite, 210);
  EXPECT_EQ(R.Run().Masse().Hoehe, 148);
  Aktueller_Drucker_setzen(drucker.Einstellung(u"Plotter"_qs));
  Druckeinstellungen_setzen(R, true, true);
  EXPECT_EQ(R.Printer.DeviceName, u"Plotter"_qs);
}

TEST_P(Report_Test, Die_Art_des_Exports_ergibt_sich_aus_der_Endung) {
  const std::pair<const char16_t *, Exportart> faelle[] = {
      {u"a.pdf", Export_PDF}, {u"a.Xls", Export_XLS},  {u"a.RTF", Export_RTF},  {u"a.txt", Export_TXT},
      {u"a.htm", Export_HTM}, {u"a.html", Export_PDF}, {u"a.xlsx", Export_PDF}, {u"", Export_PDF}};
  for (const auto &[datei, art] : faelle)
    EXPECT_EQ(Exportart_ermitteln(QString::fromUtf16(datei)), art) << QString::fromUtf16(datei).toStdString();
}

}  // namespace
}  // namespace marklink
