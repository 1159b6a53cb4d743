// INI files: what is read, what is kept when something is written.
#include "host/Ini.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

namespace marklink {
namespace {

class Ini_Test : public ::testing::Test {
 protected:
  void Datei_schreiben(const QByteArray &Bytes) {
    QFile f(Pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(Bytes);
  }
  QByteArray Datei_lesen() {
    QFile f(Pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  QTemporaryDir Ordner;
  QString Pfad = Ordner.path() + QStringLiteral("/test.ini");
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
    EXPECT_EQ(Ini_lesen(Pfad, QLatin1String(f.Abschnitt), QLatin1String(f.Schluessel)),
              QString::fromUtf16(f.Erwartet))
        << f.Abschnitt << "/" << f.Schluessel;
  EXPECT_EQ(Ini_lesen(Pfad + QStringLiteral(".fehlt"), QStringLiteral("a"), QStringLiteral("b")), QString());
  EXPECT_EQ(Ini_lesen(Ordner.path(), QStringLiteral("a"), QStringLiteral("b")), QString());
}

TEST_F(Ini_Test, schneidet_bei_255_und_1500_Zeichen_ab) {
  const QString lang(2000, u'x');
  ASSERT_TRUE(Ini_schreiben(Pfad, QStringLiteral("a"), QStringLiteral("k300"), lang.left(300)));
  ASSERT_TRUE(Ini_schreiben(Pfad, QStringLiteral("a"), QStringLiteral("k2000"), lang));
  EXPECT_EQ(Ini_lesen(Pfad, QStringLiteral("a"), QStringLiteral("k300")).size(), 255);
  EXPECT_EQ(Ini_lesen_lang(Pfad, QStringLiteral("a"), QStringLiteral("k300")).size(), 300);
  EXPECT_EQ(Ini_lesen_lang(Pfad, QStringLiteral("a"), QStringLiteral("k2000")).size(), 1500);
}

TEST_F(Ini_Test, schreibt_durch_und_laesst_alles_andere_stehen) {
  Datei_schreiben("; Kopf\r\n[Eins]\r\nA=1\r\n; Mitte\r\n\r\n[Zwei]\r\nB=2\r\n");
  ASSERT_TRUE(Ini_schreiben(Pfad, QStringLiteral("eins"), QStringLiteral("a"), QStringLiteral("neu")));
  ASSERT_TRUE(Ini_schreiben(Pfad, QStringLiteral("EINS"), QStringLiteral("C"), QStringLiteral("3")));
  ASSERT_TRUE(Ini_schreiben(Pfad, QStringLiteral("Drei"), QStringLiteral("D"), QStringLiteral("4")));
  EXPECT_EQ(Datei_lesen(),
            "; Kopf\r\n[Eins]\r\na=neu\r\n; Mitte\r\nC=3\r\n\r\n[Zwei]\r\nB=2\r\n\r\n[Drei]\r\nD=4\r\n");
}

TEST_F(Ini_Test, Werte_kommen_zurueck_wie_sie_geschrieben_wurden) {
  for (const QString &wert :
       {QStringLiteral(" Rand "), QStringLiteral("\"quoted\""), QStringLiteral("'x'"),
        QStringLiteral("äöü ß €"), QStringLiteral("; kein Kommentar"), QStringLiteral("[x]")}) {
    ASSERT_TRUE(Ini_schreiben(Pfad, QStringLiteral("a"), QStringLiteral("k"), wert));
    EXPECT_EQ(Ini_lesen(Pfad, QStringLiteral("a"), QStringLiteral("k")), wert);
  }
  ASSERT_TRUE(
      Ini_schreiben(Pfad, QStringLiteral("a"), QStringLiteral("k"), QStringLiteral("eins\r\n[b]\nx=zwei")));
  EXPECT_EQ(Ini_lesen(Pfad, QStringLiteral("a"), QStringLiteral("k")), QStringLiteral("eins [b] x=zwei"));
}

TEST_F(Ini_Test, verweigert_was_die_Datei_zerstoeren_wuerde) {
  Datei_schreiben("[a]\r\nk=1\r\n");
  EXPECT_FALSE(Ini_schreiben(Pfad, QStringLiteral("a]\n[b"), QStringLiteral("k"), QStringLiteral("2")));
  EXPECT_FALSE(Ini_schreiben(Pfad, QStringLiteral("a"), QStringLiteral("k=1"), QStringLiteral("2")));
  EXPECT_FALSE(Ini_schreiben(Pfad, QStringLiteral("a"), QString(), QStringLiteral("2")));
  EXPECT_FALSE(Ini_schreiben(Ordner.path() + QStringLiteral("/fehlt/x.ini"), QStringLiteral("a"),
                             QStringLiteral("k"), QStringLiteral("2")));
  EXPECT_EQ(Datei_lesen(), "[a]\r\nk=1\r\n");
}

TEST_F(Ini_Test, viele_Abschnitte_und_viele_Schreiber) {
  QByteArray viele;
  for (int i = 0; i < 60000; ++i) viele += "[a" + QByteArray::number(i) + "]\nk=1\n";
  Datei_schreiben(viele);
  QElapsedTimer uhr;
  uhr.start();
  EXPECT_EQ(Ini_lesen(Pfad, QStringLiteral("a59999"), QStringLiteral("k")), QStringLiteral("1"));
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
      gut = Ini_schreiben(Pfad, QStringLiteral("a"), QStringLiteral("k%1_%2").arg(kind).arg(i),
                          QStringLiteral("1")) &&
            gut;
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
  ASSERT_EQ(Ini_lesen(Pfad, QStringLiteral("a"), QStringLiteral("k")), QStringLiteral("1"));
  Datei_schreiben("[a]\r\nk=22\r\n");
  EXPECT_EQ(Ini_lesen(Pfad, QStringLiteral("a"), QStringLiteral("k")), QStringLiteral("22"));
}

TEST_F(Ini_Test, neue_Datei_gehoert_nur_ihrem_Besitzer) {
  ASSERT_TRUE(
      Ini_schreiben(Pfad, QStringLiteral("Marklink"), QStringLiteral("password"), QStringLiteral("x")));
  EXPECT_EQ(QFile::permissions(Pfad) & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
            QFileDevice::Permissions());
}

TEST_F(Ini_Test, eine_volle_Platte_kostet_keine_Zeile) {
  const QByteArray vorher = "[Program]\r\nCurrency=EUR\r\nCountry=Deutschland\r\n";
  Datei_schreiben(vorher);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit grenze{};
  getrlimit(RLIMIT_FSIZE, &grenze);
  const rlimit klein{30, grenze.rlim_max};
  setrlimit(RLIMIT_FSIZE, &klein);
  const bool geschrieben =
      Ini_schreiben(Pfad, QStringLiteral("Program"), QStringLiteral("Neu"), QStringLiteral("1"));
  setrlimit(RLIMIT_FSIZE, &grenze);
  EXPECT_FALSE(geschrieben);
  EXPECT_EQ(Datei_lesen(), vorher);
}

}  // namespace
}  // namespace marklink
