// The launcher's screens from the command to the window and back.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeWidget>

#include "Befehlszeile.h"
#include "Start.h"
#include "host/Kontext.h"
#include "marklink/common.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "ui/clsOberflaeche.h"

namespace marklink::test {
namespace {

/// The library brings its windows itself, so the test program's own ones go for a while.
class frmSchirm_Test : public ::testing::TestWithParam<const char *> {
 protected:
  frmSchirm_Test() {
    Oberflaeche_abbauen();
    qputenv("MARKLINK_ORDNER", Ordner_.path().toUtf8());
    EXPECT_EQ(Starten({"mandant", "anlegen", "Test", "--typ", GetParam()}), 0);
    EXPECT_EQ(Starten({"einstellung", "schreiben", "Marklink", "project", ""}), 0);
  }
  ~frmSchirm_Test() override {
    qunsetenv("MARKLINK_ORDNER");
    Oberflaeche_einrichten();
  }
  static int Starten(const std::vector<const char *> &Worte) {
    QStringList worte;
    for (const char *wort : Worte) worte << QString::fromUtf8(wort);
    return Launcher_starten(Befehlszeile_lesen(worte));
  }
  static QString Einstellung(const char *Schluessel) {
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(Starten({"einstellung", "lesen", "Marklink", Schluessel}), 0);
    return QString::fromStdString(::testing::internal::GetCapturedStdout()).trimmed();
  }
  static void Projekt_eintragen(QWidget &Fenster) {
    EXPECT_EQ(Fenster.objectName(), u"frmEinstellungen"_qs);
    Tippen(Fenster, u"txtProjektbezeichnung", u"Laden"_qs);
    Klick(Fenster, u"cmdOK");
  }
  static void Hinweis_bestaetigen(QWidget &Fenster) {
    EXPECT_EQ(Fenster.objectName(), u"Meldung"_qs);
    QTest::keyClick(&Fenster, Qt::Key_Return);
  }

  /// The help window is shown, and the page that it shows.
  static QString Hilfeseite_nach_F1(QWidget &Fenster) {
    QTest::keyClick(&Fenster, Qt::Key_F1);
    for (QWidget *hilfe : QApplication::topLevelWidgets())
      if (hilfe->objectName() == u"frmHilfe" && hilfe->isVisible())
        return Kind<QTextBrowser>(*hilfe, u"txtSeite").source().toString().section(u'/', -1);
    return {};
  }
  static void Einstellen(const char *Abschnitt, const char *Schluessel, const char *Wert) {
    EXPECT_EQ(Starten({"einstellung", "schreiben", Abschnitt, Schluessel, Wert}), 0);
  }

  Modale_Schritte Schritte;

 private:
  QTemporaryDir Ordner_;
};
INSTANTIATE_TEST_SUITE_P(Typ, frmSchirm_Test, ::testing::Values("0", "1"));

TEST_P(frmSchirm_Test, Auftragsverwaltung_fragt_erst_nach_dem_Projekt) {
  Schritte.Dann(&Hinweis_bestaetigen);
  Schritte.Dann([](QWidget &F) { QTest::keyClick(&F, Qt::Key_Escape); });
  Schritte.Dann(&Hinweis_bestaetigen);
  EXPECT_EQ(Starten({"schirm", "auftragsverwaltung"}), 1);
  EXPECT_EQ(Einstellung("project"), QString());
}

TEST_P(frmSchirm_Test, F1_zeigt_die_Seite_des_Fensters) {
  Schritte.Dann([](QWidget &einstellungen) {
    EXPECT_EQ(Hilfeseite_nach_F1(einstellungen), u"einstellungen.html"_qs);
    Projekt_eintragen(einstellungen);
  });
  EXPECT_EQ(Starten({"schirm", "Einstellungen"}), 0) << "also without a project";
  EXPECT_EQ(Einstellung("project"), u"Laden"_qs);
  Schritte.Dann([this](QWidget &pult) {
    EXPECT_EQ(Hilfeseite_nach_F1(pult), u"auftragsverwaltung.html"_qs);
    Schritte.Dann(
        [](QWidget &liste) { EXPECT_EQ(Hilfeseite_nach_F1(liste), u"listen.html#kundengruppen"_qs); });
    Kind<QAction>(pult, u"einstellungen_kundengruppen").trigger();
  });
  EXPECT_EQ(Starten({"schirm", "auftragsverwaltung"}), 0);
}

TEST_P(frmSchirm_Test, Einstellungen_Listen_und_Tabelle_vom_Pult_aus) {
  Einstellen("Marklink", "project", "Laden");
  Einstellen("Program", "Finalize", "1");
  Schritte.Dann([this](QWidget &pult) {
    Schritte.Dann([](QWidget &fenster) {
      Tippen(fenster, u"txtHostname", u"neu.laden.de"_qs);
      Klick(fenster, u"cmdOK");
    });
    Klick(pult, u"Einstellung");
    EXPECT_TRUE(Kontext.gHostname.contains(u"neu.laden.de"_qs)) << "holds for the next fetch";

    auto &stati = Kind<QTreeWidget>(pult, u"lvwAuftragsstatus");
    const int vorher = stati.topLevelItemCount();
    Schritte.Dann([](QWidget &fenster) {
      Zeigen(fenster);
      auto &gitter = Kind<QTableView>(fenster, u"jgTab");
      QTest::mouseClick(gitter.viewport(), Qt::LeftButton, {},
                        Mitte(gitter, gitter.model()->rowCount() - 1, 0));
      for (const QChar zeichen : u"Retoure"_qs)
        QTest::keyClicks(QApplication::focusWidget(), QString(zeichen));
      Klick(fenster, u"cmdOK");
    });
    Kind<QAction>(pult, u"einstellungen_auftragsstati").trigger();
    EXPECT_EQ(stati.topLevelItemCount(), vorher + 1);
    EXPECT_EQ(stati.findItems(u"Retoure"_qs, Qt::MatchExactly).size(), 1);

    Schritte.Dann([](QWidget &fenster) {
      QTest::keyClick(&Kind<QTreeWidget>(fenster, u"lvwTabelle"), Qt::Key_End);
      QTest::keyClick(&Kind<QCheckBox>(fenster, u"chkAktiv"), Qt::Key_Space);
      Klick(fenster, u"cmdSpeichern");
      Klick(fenster, u"cmdOK");
    });
    Kind<QAction>(pult, u"mnuKontext_Tabelle_Formatieren").trigger();
    const auto &gitter = Kind<QTableView>(pult, u"jgTab");
    EXPECT_TRUE(gitter.isColumnHidden(gitter.model()->columnCount() - 1));

    for (const bool ja : {false, true}) {
      Schritte.Dann([ja](QWidget &frage) {
        EXPECT_EQ(frage.windowTitle(), u"Beenden"_qs);
        QTest::keyClick(&frage, ja ? Qt::Key_Return : Qt::Key_Escape);
      });
      Klick(pult, u"Beenden");
      EXPECT_NE(pult.isVisible(), ja);
    }
  });
  EXPECT_EQ(Starten({"schirm", "auftragsverwaltung"}), 0);
  EXPECT_EQ(Einstellung("hostname"), u"neu.laden.de"_qs);
}

TEST_P(frmSchirm_Test, Versandliste_schliesst_auch_das_Pult) {
  Einstellen("Marklink", "project", "Laden");
  Einstellen("Program", "Finalize", "0");
  Schritte.Dann([this](QWidget &pult) {
    Schritte.Dann([this, &pult](QWidget &liste) {
      EXPECT_EQ(liste.windowTitle(), u"Versand: EASYLOG"_qs);
      Schritte.Dann([](QWidget &fenster) {
        Tippen(fenster, u"txtEKPNummer", u"5012345678"_qs);
        Klick(fenster, u"cmdOK");
      });
      Klick(liste, u"Einstellungen");
      for (const bool ja : {false, true}) {
        Schritte.Dann(
            [ja](QWidget &frage) { QTest::keyClick(&frage, ja ? Qt::Key_Return : Qt::Key_Escape); });
        Klick(liste, u"Beenden");
        EXPECT_NE(liste.isVisible(), ja);
      }
      EXPECT_TRUE(pult.isVisible()) << "its command is still under way";
    });
    Klick(pult, u"Versand");
    QTRY_VERIFY(!pult.isVisible());
  });
  EXPECT_EQ(Starten({"schirm", "auftragsverwaltung"}), 0);
  Schritte.Dann([](QWidget &fenster) {
    EXPECT_EQ(Kind<QLineEdit>(fenster, u"txtEKPNummer").text(), u"5012345678"_qs);
    QTest::keyClick(&fenster, Qt::Key_Escape);
  });
  EXPECT_EQ(Starten({"schirm", "versand_einstellungen"}), 0);
}

TEST_P(frmSchirm_Test, das_Pult_ueberlebt_das_Objekt_des_Hosts) {
  Einstellen("Marklink", "project", "Laden");
  common *objekt = nullptr;
  {
    const Dialoge_Skript eigene;
    objekt = marklink_common_erzeugen();
    EXPECT_EQ(&dialoge(), &eigene) << "a host's own dialogs are not replaced";
  }
  ASSERT_TRUE(objekt->Initialisierung(u"Test"_qs, u"Chef"_qs));
  Schritte.Dann([&](QWidget &pult) {
    EXPECT_FALSE(objekt->Initialisierung(u"Andere"_qs, u"Chef"_qs));
    EXPECT_EQ(Kontext.gFirmenname, u"Test"_qs);
    marklink_common_freigeben(objekt);
    Schritte.Dann(&Hinweis_bestaetigen);  // nothing is marked
    Kind<QAction>(pult, u"Rechnung").trigger();
  });
  objekt->Show_Main();
  EXPECT_FALSE(Dialoge_gesetzt()) << "the windows go behind the last one that was open";
}

}  // namespace
}  // namespace marklink::test
