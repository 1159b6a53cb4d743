// New clients: what is in the folder afterwards, and that a failed one leaves nothing behind.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>

#include "Launcher.h"
#include "host/Ini.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

QStringList Inhalt(const QString &Ordner) {
  return QDir(Ordner).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

class Mandant_anlegen_Test : public testing::TestWithParam<int> {
 protected:
  QStringList Anlegen(const char *Name) const {
    return {u"mandant"_qs, u"anlegen"_qs, QString::fromUtf8(Name), u"--typ"_qs, QString::number(GetParam())};
  }
  const Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Mandant_anlegen_Test, testing::Values(0, 1));

TEST_P(Mandant_anlegen_Test, alles_was_ein_Mandant_braucht) {
  const Ergebnis e = L.Starten(Anlegen("Müller & Söhne"));
  ASSERT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_EQ(e.Fehler, QString());
  const QString begleiter = Ini_lesen(L.Datei("varda.ini"), u"Marklink"_qs, u"exportfile"_qs);
  QStringList dateien{u"Müller & Söhne.mdb"_qs, u"mandanten.ini"_qs, u"marklink.php"_qs, begleiter,
                      u"noimage.jpg"_qs,        u"varda.ini"_qs};
  if (GetParam() == 0) dateien.prepend(u"Müller & Söhne.afk"_qs);
  EXPECT_EQ(Inhalt(L.Ordner()), dateien);
  for (const QString &datei : dateien)
    EXPECT_EQ(QFileInfo(L.Ordner() + u'/' + datei).permissions() & (QFile::ReadGroup | QFile::ReadOther), 0)
        << "readable by others: " << datei.toStdString();

  EXPECT_FALSE(QImage(L.Datei("noimage.jpg")).isNull()) << "the order desk shows it for an unknown article";
  L.Pruefen({"einstellung lesen Program Country", 0, "Deutschland\n"});
  EXPECT_EQ(L.Starten("einstellung lesen Program DocumentPath").Ausgabe, L.Ordner() + u"/\n"_qs);
  const auto zeilen = [this](const char *sql) { return L.Zeilen(sql, "Müller & Söhne.mdb"); };
  EXPECT_EQ(zeilen("SELECT Description FROM Employees"), u"Chef"_qs);
  EXPECT_EQ(zeilen("SELECT DISTINCT Standard FROM Forms WHERE Standard <> 0"),
            GetParam() == 0 ? u"-1"_qs : u"1"_qs);
  EXPECT_EQ(zeilen("SELECT COUNT(*) FROM Options WHERE Section = 'Program' AND Key = 'Country'"),
            QString::number(GetParam()));
}

TEST_P(Mandant_anlegen_Test, nie_zweimal_derselbe) {
  ASSERT_EQ(L.Starten(Anlegen("Test")).Ausgang, 0);
  L.Einstellen("Marklink", "project", u"P"_qs);
  const QStringList vorher = Inhalt(L.Ordner());
  for (const char *name : {"Test", "TEST"}) {
    const Ergebnis e = L.Starten(Anlegen(name));
    EXPECT_EQ(e.Ausgang, 1);
    EXPECT_TRUE(e.Fehler.contains(u"gibt es schon"_qs)) << e.Fehler.toStdString();
  }
  EXPECT_EQ(Inhalt(L.Ordner()), vorher);
  L.Pruefen({"einstellung lesen Marklink project", 0, "P\n"});
}

TEST_P(Mandant_anlegen_Test, mehrere_zugleich_und_nach_einem_abgeschossenen) {
  ASSERT_TRUE(QDir().mkpath(L.Datei(".neu-AbCdEf/x")));
  std::vector<std::unique_ptr<QProcess>> alle;
  for (const char *name : {"A", "B", "C", "D", "D"}) alle.push_back(L.Anstossen(Anlegen(name)));
  int gelungen = 0;
  for (const auto &prozess : alle) gelungen += Launcher::Abwarten(*prozess).Ausgang == 0 ? 1 : 0;
  EXPECT_EQ(gelungen, 4) << "each name once";
  EXPECT_EQ(Datei_lesen(L.Datei("mandanten.ini")).count('['), 4);
  EXPECT_EQ(Inhalt(L.Ordner()).size(), GetParam() == 0 ? 13 : 9)
      << Inhalt(L.Ordner()).join(u' ').toStdString();
}

TEST_P(Mandant_anlegen_Test, vorhandene_Hostkonfiguration_bleibt) {
  ASSERT_TRUE(QDir().mkpath(L.Ordner()));
  Datei_schreiben(L.Datei("varda.ini"),
                  "; von Hand\r\n[files]\r\nuiffile=firmen.ini\r\n[Marklink]\r\nscript=s.php\r\n");
  ASSERT_EQ(L.Starten(Anlegen("Test")).Ausgang, 0);
  const QByteArray ini = Datei_lesen(L.Datei("varda.ini"));
  EXPECT_TRUE(ini.startsWith("; von Hand\r\n[files]\r\nuiffile=firmen.ini\r\n")) << ini.toStdString();
  EXPECT_TRUE(ini.contains("script=s.php\r\n"));
  EXPECT_TRUE(Datei_lesen(L.Datei("firmen.ini")).contains("[Test]"));
  L.Pruefen({"einstellung lesen Program Currency", 0, "EUR\n"});
}

TEST_P(Mandant_anlegen_Test, gescheitert_laesst_nichts_zurueck) {
  const QString im_weg = L.Wurzel() + u"/datei"_qs;
  Datei_schreiben(im_weg, "x");
  const auto scheitert = [&](const char *name, const QString &ordner, int ausgang) {
    const Ergebnis e = L.Starten(Anlegen(name) << u"--ordner"_qs << ordner);
    EXPECT_EQ(e.Ausgang, ausgang) << name << " " << ordner.toStdString();
    EXPECT_TRUE(e.Fehler.startsWith(u"marklink: Der "_qs)) << e.Fehler.toStdString();
    EXPECT_EQ(e.Fehler.count(u'\n'), 1) << e.Fehler.toStdString();
    EXPECT_EQ(Inhalt(L.Wurzel()), QStringList{u"datei"_qs});
  };
  for (const char *name :
       {"", " ", ".versteckt", "..", "a/b", "a\\b", "[a]", "a]", "O'Neil", "a;b", "a\tb", "☃", "a "})
    scheitert(name, L.Ordner(), 2);
  scheitert("Test", im_weg, 1);
  scheitert("Test", im_weg + u"/darunter"_qs, 1);
  scheitert("Test", u"/proc/nirgends"_qs, 1);
  scheitert("Test", L.Wurzel() + u"/mit;Strichpunkt"_qs, 1);
  scheitert("Test", L.Wurzel() + u'/' + QString(200, u'x') + u'/' + QString(200, u'y'), 1);
}

TEST_P(Mandant_anlegen_Test, fremde_Dateien_bleiben) {
  ASSERT_TRUE(QDir().mkpath(L.Ordner() + u"/mandanten.ini"_qs));  // a folder where the list should be
  EXPECT_EQ(L.Starten(Anlegen("Test")).Ausgang, 1);
  EXPECT_EQ(Inhalt(L.Ordner()), QStringList{u"mandanten.ini"_qs});
  ASSERT_TRUE(QDir(L.Ordner()).rmdir(u"mandanten.ini"_qs));

  Datei_schreiben(L.Datei("Test.mdb"), "fremd");
  EXPECT_EQ(L.Starten(Anlegen("Test")).Ausgang, 1);
  EXPECT_EQ(Datei_lesen(L.Datei("Test.mdb")), QByteArray("fremd"));
  EXPECT_EQ(Inhalt(L.Ordner()), QStringList{u"Test.mdb"_qs});

  Datei_schreiben(L.Datei("varda.ini"), "[Provider]\r\naccess=Fremd\r\nsql=Fremd\r\n");
  EXPECT_EQ(L.Starten(Anlegen("Zwei")).Ausgang, 1);
  EXPECT_EQ(Datei_lesen(L.Datei("varda.ini")), QByteArray("[Provider]\r\naccess=Fremd\r\nsql=Fremd\r\n"));
}

TEST_P(Mandant_anlegen_Test, Demomandant) {
  const Ergebnis e =
      L.Starten({u"mandant"_qs, u"demo"_qs, u"--port=8123"_qs, u"--typ=%1"_qs.arg(GetParam())});
  ASSERT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  L.Pruefen({"einstellung lesen Marklink hostname", 0, "127.0.0.1\n"});
  L.Pruefen({"einstellung lesen Marklink port", 0, "8123\n"});
  QStringList schluessel;
  for (const QByteArray &zeile : Datei_lesen(L.Datei("Demo.afk")).toLower().split('\n')) {
    if (zeile.startsWith('[')) schluessel.clear();
    const QString name = QString::fromLatin1(zeile.left(zeile.indexOf('=')));
    EXPECT_FALSE(zeile.contains('=') && schluessel.contains(name)) << "twice: " << zeile.toStdString();
    schluessel << name;
  }
  L.Pruefen({"bestellungen liste", 0, "Keine Bestellungen.\n"});
  EXPECT_EQ(L.Zeilen("SELECT COUNT(*) > 100 FROM Articles", "Demo.mdb"), u"1"_qs);
}

TEST_P(Mandant_anlegen_Test, Einstellungen) {
  ASSERT_EQ(L.Starten(Anlegen("Test")).Ausgang, 0);
  const struct {
    const char *Schluessel, *Wert, *Gelesen;
    int Ausgang;
  } faelle[] = {
      {"neu", "Grüße", "Grüße\n", 0}, {"NEU", "zwei", "zwei\n", 0}, {"leer", "", "\n", 0},
      {"zahl", "-5", "-5\n", 0},      {"rand", " x ", " x \n", 0},  {"fremd", "☃", "\n", 2},
  };
  for (const auto &fall : faelle) {
    const QString schluessel = QString::fromUtf8(fall.Schluessel), wert = QString::fromUtf8(fall.Wert);
    EXPECT_EQ(L.Starten(Worte("einstellung schreiben Abschnitt") + QStringList{schluessel, wert}).Ausgang,
              fall.Ausgang)
        << fall.Schluessel;
    EXPECT_EQ(L.Starten(Worte("einstellung lesen abschnitt") + QStringList{schluessel}).Ausgabe,
              QString::fromUtf8(fall.Gelesen))
        << fall.Schluessel;
  }
}

}  // namespace
}  // namespace marklink::test
