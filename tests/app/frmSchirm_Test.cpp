// The launcher's screens from the command to the window and back.
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "Befehlszeile.h"
#include "Start.h"
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
  static QString Projekt() {
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(Starten({"einstellung", "lesen", "Marklink", "project"}), 0);
    return QString::fromStdString(::testing::internal::GetCapturedStdout()).trimmed();
  }
  static void Projekt_eintragen(QWidget &Fenster) {
    EXPECT_EQ(Fenster.objectName(), QStringLiteral("frmEinstellungen"));
    QTest::keyClicks(&Kind<QLineEdit>(Fenster, u"txtProjektbezeichnung"), QStringLiteral("Laden"));
    QTest::mouseClick(&Kind<QPushButton>(Fenster, u"cmdOK"), Qt::LeftButton);
  }
  static void Hinweis_bestaetigen(QWidget &Fenster) {
    EXPECT_EQ(Fenster.objectName(), QStringLiteral("Meldung"));
    QTest::keyClick(&Fenster, Qt::Key_Return);
  }

  Modale_Schritte Schritte;

 private:
  QTemporaryDir Ordner_;
};
INSTANTIATE_TEST_SUITE_P(Typ, frmSchirm_Test, ::testing::Values("0", "1"));

TEST_P(frmSchirm_Test, Einstellungen_auch_ohne_Projekt) {
  Schritte.Dann(&Projekt_eintragen);
  EXPECT_EQ(Starten({"schirm", "Einstellungen"}), 0);
  EXPECT_EQ(Projekt(), QStringLiteral("Laden"));
}

TEST_P(frmSchirm_Test, Auftragsverwaltung_fragt_erst_nach_dem_Projekt) {
  Schritte.Dann(&Hinweis_bestaetigen);
  Schritte.Dann([](QWidget &F) { QTest::keyClick(&F, Qt::Key_Escape); });
  Schritte.Dann(&Hinweis_bestaetigen);
  EXPECT_EQ(Starten({"schirm", "auftragsverwaltung"}), 1);
  EXPECT_EQ(Projekt(), QString());
}

}  // namespace
}  // namespace marklink::test
