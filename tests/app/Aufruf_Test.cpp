// How the launcher is called: exit statuses, messages, help, completion.
#include <QDir>
#include <QProcess>

#include "Launcher.h"

namespace marklink::test {
namespace {

TEST(Aufruf_Test, falsche_Aufrufe) {
  const Launcher l;
  const struct {
    const char *Zeile;
    const char *Fehler;  ///< begins standard error
  } faelle[] = {
      {"", "marklink: Es fehlt ein Befehl."},
      {"fliegen", "marklink: Den Befehl 'fliegen' gibt es nicht."},
      {"fliegen --help", "marklink: Den Befehl 'fliegen' gibt es nicht."},
      {"bestellungen", "marklink: Zum Befehl 'bestellungen' fehlt, was er tun soll."},
      {"bestellungen holen", "marklink: Den Befehl 'bestellungen holen' gibt es nicht."},
      {"bestellungen liste 5", "marklink: Das Argument '5' ist zu viel."},
      {"bestellungen status 5", "marklink: Es fehlt das Argument STATUS."},
      {"bestellungen liste --typ 1", "marklink: Die Option '--typ' gehört nicht zu diesem Befehl."},
      {"bestellungen liste --farbe", "marklink: Die Option '--farbe' gibt es nicht."},
      {"bestellungen liste -j", "marklink: Die Option '-j' gibt es nicht."},
      {"bestellungen liste --json=1", "marklink: Die Option '--json' hat keinen Wert."},
      {"bestellungen liste --zeitraum", "marklink: Zur Option '--zeitraum' fehlt der Wert N."},
      {"bestellungen liste --ordner=", "marklink: Der Wert der Option '--ordner' ist leer."},
      {"bestellungen liste --antwort Ja", "marklink: Die Option '--antwort' hat die Form TITEL=ANTWORT."},
      {"bestellungen liste --zeitraum 41",
       "marklink: Die Option '--zeitraum' nimmt eine Zahl von 0 bis 40, nicht '41'."},
      {"bestellungen liste --zeitraum -1",
       "marklink: Die Option '--zeitraum' nimmt eine Zahl von 0 bis 40, nicht '-1'."},
      {"bestellungen liste --status 1,,3",
       "marklink: Die Option '--status' nimmt eine Liste wie 1,3, nicht '1,,3'."},
      {"bestellungen status 5 x", "marklink: Der Status ist eine Status-ID wie 3, nicht 'x'."},
      {"bestellungen status 5 3 --kommentar ☃",
       "marklink: Der Kommentar enthält Zeichen, die der Shop nicht annimmt."},
      {"mandant anlegen Test --typ 2",
       "marklink: Die Option '--typ' nimmt eine Zahl von 0 bis 1, nicht '2'."},
      {"mandant demo --port 0", "marklink: Die Option '--port' nimmt eine Zahl von 1 bis 65535, nicht '0'."},
      {"schirm kasse",
       "marklink: Den Schirm 'kasse' gibt es nicht; es gibt: auftragsverwaltung, einstellungen, versand, "
       "versand_einstellungen."},
      {"vervollstaendigung fisch", "marklink: Für die Shell 'fisch' gibt es keine Vervollständigung"},
  };
  for (const auto &fall : faelle) {
    const Ergebnis e = l.Starten(fall.Zeile);
    EXPECT_EQ(e.Ausgang, 2) << fall.Zeile;
    EXPECT_TRUE(e.Fehler.startsWith(QString::fromUtf8(fall.Fehler)))
        << fall.Zeile << ": " << e.Fehler.toStdString();
    EXPECT_EQ(e.Ausgabe, QString()) << fall.Zeile;
  }
  EXPECT_EQ(QDir(l.Wurzel()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST(Aufruf_Test, Hilfe_auf_jeder_Ebene) {
  const Launcher l;
  const struct {
    const char *Zeile;
    const char *Enthaelt;
  } faelle[] = {
      {"--help", "bestellungen status NR STATUS [--mail] [--kommentar TEXT]"},
      {"-h", "--ordner DIR"},
      {"--hilfe", "mandant anlegen NAME [--typ 0|1]"},
      {"bestellungen --help", "Aufruf: marklink bestellungen BEFEHL"},
      {"bestellungen liste --help", "--zeitraum N"},
      {"--unfug bestellungen liste zu viel -h", "Aufruf: marklink bestellungen liste"},
      {"schirm --help", "Aufruf: marklink schirm NAME"},
      {"--version", "marklink 1."},
  };
  for (const auto &fall : faelle) {
    const Ergebnis e = l.Starten(fall.Zeile);
    EXPECT_EQ(e.Ausgang, 0) << fall.Zeile;
    EXPECT_TRUE(e.Ausgabe.contains(QString::fromUtf8(fall.Enthaelt))) << fall.Zeile << "\n"
                                                                      << e.Ausgabe.toStdString();
    EXPECT_EQ(e.Fehler, QString()) << fall.Zeile;
  }
}

TEST(Aufruf_Test, Befehle_ohne_brauchbaren_Mandanten) {
  Launcher l;
  const auto endet_mit_1 = [&](const char *zeile, const char *fehler) {
    const Ergebnis e = l.Starten(zeile);
    EXPECT_EQ(e.Ausgang, 1) << zeile;
    EXPECT_TRUE(e.Fehler.contains(QString::fromUtf8(fehler))) << zeile << ": " << e.Fehler.toStdString();
  };
  for (const char *zeile :
       {"bestellungen liste", "bestellungen abrufen", "bestellungen zeigen 5", "bestellungen loeschen",
        "bestellungen status 5 3", "einstellung lesen A B", "einstellung schreiben A B C"})
    endet_mit_1(zeile, "gibt es noch keinen Mandanten");
  ASSERT_EQ(l.Starten("mandant anlegen Müller").Ausgang, 0);
  endet_mit_1("bestellungen liste",
              "[Hinweis] Nehmen Sie zunächst bitte die Einstellungen für Marklink vor.\n"
              "[Hinweis] Sie haben leider kein Projekt für Marklink definiert. | "
              "Die Auftragsverwaltung kann nicht geöffnet werden.\n");
  ASSERT_EQ(l.Starten("einstellung schreiben Marklink project P").Ausgang, 0);
  EXPECT_EQ(l.Starten("bestellungen liste").Ausgang, 0);
  ASSERT_EQ(l.Starten("mandant anlegen Meier --typ 1").Ausgang, 0);
  endet_mit_1("bestellungen liste", "Es gibt mehrere Mandanten (Müller, Meier)");
  endet_mit_1("bestellungen liste --mandant Schulz", "Den Mandanten 'Schulz' gibt es");
  endet_mit_1("bestellungen liste --mandant müller --ordner anderswo", "gibt es im Ordner");
  EXPECT_EQ(l.Starten("bestellungen liste --mandant=müller").Ausgang, 0)
      << "case does not matter, as in the list";
  l.Umgebung(QStringLiteral("MARKLINK_MANDANT"), QStringLiteral("Müller"));
  EXPECT_EQ(l.Starten("bestellungen liste").Ausgang, 0);
}

TEST(Aufruf_Test, Schirme_brauchen_einen_Bildschirm) {
  Launcher l;
  ASSERT_EQ(l.Starten("mandant anlegen Test").Ausgang, 0);
  for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    l.Umgebung(QLatin1String(variable), QString());
  const Ergebnis e = l.Starten("schirm einstellungen");
  EXPECT_EQ(e.Ausgang, 1);
  EXPECT_TRUE(e.Fehler.startsWith(QStringLiteral("marklink: Es gibt keinen Bildschirm")))
      << e.Fehler.toStdString();

  l.Umgebung(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  const auto prozess = l.Anstossen({QStringLiteral("schirm"), QStringLiteral("einstellungen")});
  ASSERT_TRUE(prozess->waitForStarted());
  const QString karte = QStringLiteral("/proc/%1/maps").arg(prozess->processId());
  bool mit_fenstern = false;
  for (int i = 0; i < 1000 && !mit_fenstern && !prozess->waitForFinished(10); ++i)
    mit_fenstern = Launcher::Lesen(karte).contains("libqoffscreen");
  EXPECT_TRUE(mit_fenstern) << prozess->readAllStandardError().toStdString();
  EXPECT_FALSE(prozess->waitForFinished(300)) << "the dialog stays open";
  prozess->kill();
  prozess->waitForFinished();
}

TEST(Aufruf_Test, Datenordner_des_Benutzers_ohne_Angabe) {
  Launcher l;
  l.Umgebung(QStringLiteral("MARKLINK_ORDNER"), QString());
  EXPECT_EQ(l.Starten("mandant anlegen Test").Ausgang, 0);
  EXPECT_TRUE(QFile::exists(l.Wurzel() + QStringLiteral("/daten/marklink/Test.mdb")));
}

TEST(Aufruf_Test, Vervollstaendigung_in_der_Shell) {
  const Launcher l;
  const Ergebnis skript = l.Starten("vervollstaendigung bash");
  ASSERT_EQ(skript.Ausgang, 0);
  Launcher::Schreiben(l.Wurzel() + QStringLiteral("/skript"), skript.Ausgabe.toUtf8());
  const struct {
    const char *Worte;  ///< the last one is being typed
    const char *Vorschlaege;
  } faelle[] = {
      {"marklink be", "bestellungen belege"},
      {"marklink bestellungen l", "liste loeschen"},
      {"marklink --ordner mandant bestellungen liste --j", "--json"},
      {"marklink bestellungen --mandant X zeigen --js", "--json"},
      {"marklink mandant anlegen --ty", "--typ"},
      {"marklink vervollstaendigung b", "bash"},
      {"marklink --mandant be", ""},
  };
  for (const auto &fall : faelle) {
    QProcess bash;
    bash.start(
        QStringLiteral("bash"),
        {QStringLiteral("-c"),
         QStringLiteral("source %1/skript; COMP_WORDS=(%2); COMP_CWORD=$((${#COMP_WORDS[@]}-1)); _marklink; "
                        "echo -n \"${COMPREPLY[*]}\"")
             .arg(l.Wurzel(), QString::fromUtf8(fall.Worte))});
    ASSERT_TRUE(bash.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(bash.readAllStandardOutput()).toStdString(), fall.Vorschlaege) << fall.Worte;
    EXPECT_EQ(bash.readAllStandardError(), QByteArray()) << fall.Worte;
  }
}

}  // namespace
}  // namespace marklink::test
