// New clients: what is in the folder afterwards, and that a failed one leaves nothing behind.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>

#include "Launcher.h"
#include "host/Ini.h"

namespace marklink::test {
namespace {

QStringList Inhalt(const QString &Ordner) {
  return QDir(Ordner).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

class Mandant_anlegen_Test : public testing::TestWithParam<int> {
 protected:
  QStringList Anlegen(const char *Name) const {
    return {QStringLiteral("mandant"), QStringLiteral("anlegen"), QString::fromUtf8(Name),
            QStringLiteral("--typ"), QString::number(GetParam())};
  }
  const Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Mandant_anlegen_Test, testing::Values(0, 1));

TEST_P(Mandant_anlegen_Test, alles_was_ein_Mandant_braucht) {
  const Ergebnis e = L.Starten(Anlegen("Müller & Söhne"));
  ASSERT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_EQ(e.Fehler, QString());
  const QString begleiter =
      Ini_lesen(L.Datei("varda.ini"), QStringLiteral("Marklink"), QStringLiteral("exportfile"));
  QStringList dateien{QStringLiteral("Müller & Söhne.mdb"), QStringLiteral("mandanten.ini"),
                      QStringLiteral("marklink.php"),       begleiter,
                      QStringLiteral("noimage.jpg"),        QStringLiteral("varda.ini")};
  if (GetParam() == 0) dateien.prepend(QStringLiteral("Müller & Söhne.afk"));
  EXPECT_EQ(Inhalt(L.Ordner()), dateien);
  for (const QString &datei : dateien)
    EXPECT_EQ(QFileInfo(L.Ordner() + u'/' + datei).permissions() & (QFile::ReadGroup | QFile::ReadOther), 0)
        << "readable by others: " << datei.toStdString();

  EXPECT_FALSE(QImage(L.Datei("noimage.jpg")).isNull()) << "the order desk shows it for an unknown article";
  EXPECT_EQ(L.Starten("einstellung lesen Program Country").Ausgabe, QStringLiteral("Deutschland\n"));
  EXPECT_EQ(L.Starten("einstellung lesen Program DocumentPath").Ausgabe, L.Ordner() + QStringLiteral("/\n"));
  const QString mdb = L.Datei("Müller & Söhne.mdb");
  EXPECT_EQ(Launcher::Roh_lesen(mdb, "SELECT Description FROM Employees"),
            QStringList{QStringLiteral("Chef")});
  EXPECT_EQ(Launcher::Roh_lesen(mdb, "SELECT DISTINCT Standard FROM Forms WHERE Standard <> 0"),
            QStringList{GetParam() == 0 ? QStringLiteral("-1") : QStringLiteral("1")});
  EXPECT_EQ(
      Launcher::Roh_lesen(mdb, "SELECT COUNT(*) FROM Options WHERE Section = 'Program' AND Key = 'Country'"),
      QStringList{QString::number(GetParam())});
}

TEST_P(Mandant_anlegen_Test, nie_zweimal_derselbe) {
  ASSERT_EQ(L.Starten(Anlegen("Test")).Ausgang, 0);
  ASSERT_EQ(L.Starten("einstellung schreiben Marklink project P").Ausgang, 0);
  const QStringList vorher = Inhalt(L.Ordner());
  for (const char *name : {"Test", "TEST"}) {
    const Ergebnis e = L.Starten(Anlegen(name));
    EXPECT_EQ(e.Ausgang, 1);
    EXPECT_TRUE(e.Fehler.contains(QStringLiteral("gibt es schon"))) << e.Fehler.toStdString();
  }
  EXPECT_EQ(Inhalt(L.Ordner()), vorher);
  EXPECT_EQ(L.Starten("einstellung lesen Marklink project").Ausgabe, QStringLiteral("P\n"));
}

TEST_P(Mandant_anlegen_Test, mehrere_zugleich_und_nach_einem_abgeschossenen) {
  ASSERT_TRUE(QDir().mkpath(L.Datei(".neu-AbCdEf/x")));
  std::vector<std::unique_ptr<QProcess>> alle;
  for (const char *name : {"A", "B", "C", "D", "D"}) alle.push_back(L.Anstossen(Anlegen(name)));
  int gelungen = 0;
  for (const auto &prozess : alle) gelungen += Launcher::Abwarten(*prozess).Ausgang == 0 ? 1 : 0;
  EXPECT_EQ(gelungen, 4) << "each name once";
  EXPECT_EQ(Launcher::Lesen(L.Datei("mandanten.ini")).count('['), 4);
  EXPECT_EQ(Inhalt(L.Ordner()).size(), GetParam() == 0 ? 13 : 9)
      << Inhalt(L.Ordner()).join(u' ').toStdString();
}

TEST_P(Mandant_anlegen_Test, vorhandene_Hostkonfiguration_bleibt) {
  ASSERT_TRUE(QDir().mkpath(L.Ordner()));
  Launcher::Schreiben(L.Datei("varda.ini"),
                      "; von Hand\r\n[files]\r\nuiffile=firmen.ini\r\n[Marklink]\r\nscript=s.php\r\n");
  ASSERT_EQ(L.Starten(Anlegen("Test")).Ausgang, 0);
  const QByteArray ini = Launcher::Lesen(L.Datei("varda.ini"));
  EXPECT_TRUE(ini.startsWith("; von Hand\r\n[files]\r\nuiffile=firmen.ini\r\n")) << ini.toStdString();
  EXPECT_TRUE(ini.contains("script=s.php\r\n"));
  EXPECT_TRUE(Launcher::Lesen(L.Datei("firmen.ini")).contains("[Test]"));
  EXPECT_EQ(L.Starten("einstellung lesen Program Currency").Ausgabe, QStringLiteral("EUR\n"));
}

TEST_P(Mandant_anlegen_Test, gescheitert_laesst_nichts_zurueck) {
  const QString im_weg = L.Wurzel() + QStringLiteral("/datei");
  Launcher::Schreiben(im_weg, "x");
  const auto scheitert = [&](const char *name, const QString &ordner, int ausgang) {
    const Ergebnis e = L.Starten(Anlegen(name) << QStringLiteral("--ordner") << ordner);
    EXPECT_EQ(e.Ausgang, ausgang) << name << " " << ordner.toStdString();
    EXPECT_TRUE(e.Fehler.startsWith(QStringLiteral("marklink: Der "))) << e.Fehler.toStdString();
    EXPECT_EQ(e.Fehler.count(u'\n'), 1) << e.Fehler.toStdString();
    EXPECT_EQ(Inhalt(L.Wurzel()), QStringList{QStringLiteral("datei")});
  };
  for (const char *name :
       {"", " ", ".versteckt", "..", "a/b", "a\\b", "[a]", "a]", "O'Neil", "a;b", "a\tb", "☃", "a "})
    scheitert(name, L.Ordner(), 2);
  scheitert("Test", im_weg, 1);
  scheitert("Test", im_weg + QStringLiteral("/darunter"), 1);
  scheitert("Test", QStringLiteral("/proc/nirgends"), 1);
  scheitert("Test", L.Wurzel() + QStringLiteral("/mit;Strichpunkt"), 1);
  scheitert("Test", L.Wurzel() + u'/' + QString(200, u'x') + u'/' + QString(200, u'y'), 1);
}

TEST_P(Mandant_anlegen_Test, fremde_Dateien_bleiben) {
  ASSERT_TRUE(
      QDir().mkpath(L.Ordner() + QStringLiteral("/mandanten.ini")));  // a folder where the list should be
  EXPECT_EQ(L.Starten(Anlegen("Test")).Ausgang, 1);
  EXPECT_EQ(Inhalt(L.Ordner()), QStringList{QStringLiteral("mandanten.ini")});
  ASSERT_TRUE(QDir(L.Ordner()).rmdir(QStringLiteral("mandanten.ini")));

  Launcher::Schreiben(L.Datei("Test.mdb"), "fremd");
  EXPECT_EQ(L.Starten(Anlegen("Test")).Ausgang, 1);
  EXPECT_EQ(Launcher::Lesen(L.Datei("Test.mdb")), QByteArray("fremd"));
  EXPECT_EQ(Inhalt(L.Ordner()), QStringList{QStringLiteral("Test.mdb")});

  Launcher::Schreiben(L.Datei("varda.ini"), "[Provider]\r\naccess=Fremd\r\nsql=Fremd\r\n");
  EXPECT_EQ(L.Starten(Anlegen("Zwei")).Ausgang, 1);
  EXPECT_EQ(Launcher::Lesen(L.Datei("varda.ini")), QByteArray("[Provider]\r\naccess=Fremd\r\nsql=Fremd\r\n"));
}

TEST_P(Mandant_anlegen_Test, Demomandant) {
  const Ergebnis e = L.Starten({QStringLiteral("mandant"), QStringLiteral("demo"),
                                QStringLiteral("--port=8123"), QStringLiteral("--typ=%1").arg(GetParam())});
  ASSERT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_EQ(L.Starten("einstellung lesen Marklink hostname").Ausgabe, QStringLiteral("127.0.0.1\n"));
  EXPECT_EQ(L.Starten("einstellung lesen Marklink port").Ausgabe, QStringLiteral("8123\n"));
  QStringList schluessel;
  for (const QByteArray &zeile : Launcher::Lesen(L.Datei("Demo.afk")).toLower().split('\n')) {
    if (zeile.startsWith('[')) schluessel.clear();
    const QString name = QString::fromLatin1(zeile.left(zeile.indexOf('=')));
    EXPECT_FALSE(zeile.contains('=') && schluessel.contains(name)) << "twice: " << zeile.toStdString();
    schluessel << name;
  }
  EXPECT_EQ(L.Starten("bestellungen liste").Ausgabe, QStringLiteral("Keine Bestellungen.\n"));
  EXPECT_EQ(Launcher::Roh_lesen(L.Datei("Demo.mdb"), "SELECT COUNT(*) > 100 FROM Articles"),
            QStringList{QStringLiteral("1")});
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
    const QString schluessel = QString::fromUtf8(fall.Schluessel);
    EXPECT_EQ(L.Starten({QStringLiteral("einstellung"), QStringLiteral("schreiben"),
                         QStringLiteral("Abschnitt"), schluessel, QString::fromUtf8(fall.Wert)})
                  .Ausgang,
              fall.Ausgang)
        << fall.Schluessel;
    EXPECT_EQ(L.Starten({QStringLiteral("einstellung"), QStringLiteral("lesen"), QStringLiteral("abschnitt"),
                         schluessel})
                  .Ausgabe.toStdString(),
              fall.Gelesen)
        << fall.Schluessel;
  }
}

}  // namespace
}  // namespace marklink::test
