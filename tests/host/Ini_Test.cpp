// INI files: what is read, what is kept when something is written.
#include "host/Ini.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include "support/Testdateien.h"

namespace marklink {
namespace {

class Ini_Test : public ::testing::Test {
 protected:
  void Datei_schreiben(const QByteArray &Bytes) const { test::Datei_schreiben(Pfad, Bytes); }
  QByteArray Datei_lesen() const { return test::Datei_lesen(Pfad); }
  QString Lesen(const char *Abschnitt, const char *Schluessel) const {
    return Ini_lesen(Pfad, QLatin1String(Abschnitt), QLatin1String(Schluessel));
  }
  bool Schreiben(const char *Abschnitt, const char *Schluessel, const QString &Wert) const {
    return Ini_schreiben(Pfad, QLatin1String(Abschnitt), QLatin1String(Schluessel), Wert);
  }
  QTemporaryDir Ordner;
  QString Pfad = Ordner.path() + u"/test.ini"_qs;
};

TEST_F(Ini_Test, liest_wie_das_System) {
  Datei_schreiben(
      "\xEF\xBB\xBF; Kommentar\r\nverloren=1\r\n[ Program ]\r\n Currency = EUR \r\nLeer=\r\n;Currency=USD\r\n"
      "Quoted=\"  zwei  \"\nUmlaut=Gr\xF6\xDF"
      "e \x80\nGleich=a=b\nCurrency=zweite\n[program]\nNeu=doppelter Abschnitt\n"
      "[offen\nX=1\n");
  const struct {
    const char *Abschnitt, *Schluessel;
    const char16_t *Erwartet;
  } faelle[] = {{"program", "CURRENCY", u"EUR"},
                {"Program", "Leer", u""},
                {"Program", "Quoted", u"  zwei  "},
                {"Program", "Umlaut", u"Größe €"},
                {"Program", "Gleich", u"a=b"},
                {"Program", "Neu", u""},
                {"", "verloren", u""},
                {"Program", "fehlt", u""},
                {"fehlt", "Currency", u""}};
  for (const auto &f : faelle)
    EXPECT_EQ(Lesen(f.Abschnitt, f.Schluessel), QString::fromUtf16(f.Erwartet))
        << f.Abschnitt << "/" << f.Schluessel;
  EXPECT_EQ(Ini_lesen(Pfad + u".fehlt"_qs, u"a"_qs, u"b"_qs), QString());
  EXPECT_EQ(Ini_lesen(Ordner.path(), u"a"_qs, u"b"_qs), QString());
}

TEST_F(Ini_Test, schneidet_bei_255_und_1500_Zeichen_ab) {
  const QString lang(2000, u'x');
  ASSERT_TRUE(Schreiben("a", "k300", lang.left(300)));
  ASSERT_TRUE(Schreiben("a", "k2000", lang));
  EXPECT_EQ(Lesen("a", "k300").size(), 255);
  EXPECT_EQ(Ini_lesen_lang(Pfad, u"a"_qs, u"k300"_qs).size(), 300);
  EXPECT_EQ(Ini_lesen_lang(Pfad, u"a"_qs, u"k2000"_qs).size(), 1500);
}

TEST_F(Ini_Test, schreibt_durch_und_laesst_alles_andere_stehen) {
  Datei_schreiben("; Kopf\r\n[Eins]\r\nA=1\r\n; Mitte\r\n\r\n[Zwei]\r\nB=2\r\n");
  ASSERT_TRUE(Schreiben("eins", "a", u"neu"_qs));
  ASSERT_TRUE(Schreiben("EINS", "C", u"3"_qs));
  ASSERT_TRUE(Schreiben("Drei", "D", u"4"_qs));
  EXPECT_EQ(Datei_lesen(),
            "; Kopf\r\n[Eins]\r\na=neu\r\n; Mitte\r\nC=3\r\n\r\n[Zwei]\r\nB=2\r\n\r\n[Drei]\r\nD=4\r\n");
}

TEST_F(Ini_Test, Werte_kommen_zurueck_wie_sie_geschrieben_wurden) {
  for (const QString &wert :
       {u" Rand "_qs, u"\"quoted\""_qs, u"'x'"_qs, u"äöü ß €"_qs, u"; kein Kommentar"_qs, u"[x]"_qs}) {
    ASSERT_TRUE(Schreiben("a", "k", wert));
    EXPECT_EQ(Lesen("a", "k"), wert);
  }
  ASSERT_TRUE(Schreiben("a", "k", u"eins\r\n[b]\nx=zwei"_qs));
  EXPECT_EQ(Lesen("a", "k"), u"eins [b] x=zwei"_qs);
}

TEST_F(Ini_Test, verweigert_was_die_Datei_zerstoeren_wuerde) {
  Datei_schreiben("[a]\r\nk=1\r\n");
  EXPECT_FALSE(Schreiben("a]\n[b", "k", u"2"_qs));
  EXPECT_FALSE(Schreiben("a", "k=1", u"2"_qs));
  EXPECT_FALSE(Schreiben("a", "", u"2"_qs));
  EXPECT_FALSE(Ini_schreiben(Ordner.path() + u"/fehlt/x.ini"_qs, u"a"_qs, u"k"_qs, u"2"_qs));
  EXPECT_EQ(Datei_lesen(), "[a]\r\nk=1\r\n");
}

TEST_F(Ini_Test, viele_Abschnitte_und_viele_Schreiber) {
  QByteArray viele;
  for (int i = 0; i < 60000; ++i) viele += "[a" + QByteArray::number(i) + "]\nk=1\n";
  Datei_schreiben(viele);
  QElapsedTimer uhr;
  uhr.start();
  EXPECT_EQ(Lesen("a59999", "k"), u"1"_qs);
  EXPECT_LT(uhr.elapsed(), 5000);

  Datei_schreiben("[a]\n");
  std::vector<pid_t> kinder;
  for (int kind = 0; kind < 3; ++kind) {
    const pid_t pid = fork();
    if (pid != 0) {
      kinder.push_back(pid);
      continue;
    }
    bool gut = true;
    for (int i = 0; i < 10; ++i)
      gut = Ini_schreiben(Pfad, u"a"_qs, u"k%1_%2"_qs.arg(kind).arg(i), u"1"_qs) && gut;
    _exit(gut ? 0 : 1);
  }
  for (const pid_t pid : kinder) {
    int ende = 1;
    waitpid(pid, &ende, 0);
    EXPECT_EQ(ende, 0);
  }
  EXPECT_EQ(Datei_lesen().count("=1"), 30) << "no writer loses another's line";
}

TEST_F(Ini_Test, sieht_Aenderungen_von_aussen) {
  Datei_schreiben("[a]\r\nk=1\r\n");
  ASSERT_EQ(Lesen("a", "k"), u"1"_qs);
  Datei_schreiben("[a]\r\nk=22\r\n");
  EXPECT_EQ(Lesen("a", "k"), u"22"_qs);
}

TEST_F(Ini_Test, neue_Datei_gehoert_nur_ihrem_Besitzer) {
  ASSERT_TRUE(Schreiben("Marklink", "password", u"x"_qs));
  EXPECT_EQ(QFile::permissions(Pfad) & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
            QFileDevice::Permissions());
}

TEST_F(Ini_Test, eine_volle_Platte_kostet_keine_Zeile) {
  const QByteArray vorher = "[Program]\r\nCurrency=EUR\r\nCountry=Deutschland\r\n";
  Datei_schreiben(vorher);
  {
    const test::Volle_Platte voll(30);
    EXPECT_FALSE(Schreiben("Program", "Neu", u"1"_qs));
  }
  EXPECT_EQ(Datei_lesen(), vorher);
}

}  // namespace
}  // namespace marklink
