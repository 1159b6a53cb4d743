// How the launcher is called: exit statuses, messages, help, completion.
#include <QDir>
#include <QProcess>

#include "Launcher.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

TEST(Aufruf_Test, falsche_Aufrufe) {
  const Launcher l;
  const char *const faelle[][2] = {
      // the line, and how standard error begins
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
  for (const auto &[zeile, fehler] : faelle) l.Pruefen({zeile, 2, "", fehler});
  EXPECT_EQ(QDir(l.Wurzel()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST(Aufruf_Test, Hilfe_auf_jeder_Ebene) {
  const Launcher l;
  const char *const faelle[][2] = {
      // the line, and a part of what it prints
      {"--help", "bestellungen status NR STATUS [--mail] [--kommentar TEXT]"},
      {"-h", "--ordner DIR"},
      {"--hilfe", "mandant anlegen NAME [--typ 0|1]"},
      {"bestellungen --help", "Aufruf: marklink bestellungen BEFEHL"},
      {"bestellungen liste --help", "--zeitraum N"},
      {"--unfug bestellungen liste zu viel -h", "Aufruf: marklink bestellungen liste"},
      {"schirm --help", "Aufruf: marklink schirm NAME"},
      {"--version", "marklink 1."},
  };
  for (const auto &[zeile, teil] : faelle) {
    const Ergebnis e = l.Starten(zeile);
    EXPECT_EQ(e.Ausgang, 0) << zeile;
    EXPECT_TRUE(e.Ausgabe.contains(QString::fromUtf8(teil))) << zeile << "\n" << e.Ausgabe.toStdString();
    EXPECT_EQ(e.Fehler, QString()) << zeile;
  }
}

TEST(Aufruf_Test, Befehle_ohne_brauchbaren_Mandanten) {
  Launcher l;
  const std::string niemand =
      u"marklink: Im Ordner '%1/' gibt es noch keinen Mandanten;"_qs.arg(l.Ordner()).toStdString();
  for (const char *zeile :
       {"bestellungen liste", "bestellungen abrufen", "bestellungen zeigen 5", "bestellungen loeschen",
        "bestellungen status 5 3", "einstellung lesen A B", "einstellung schreiben A B C"})
    l.Pruefen({zeile, 1, "", niemand.c_str()});
  ASSERT_EQ(l.Starten("mandant anlegen Müller").Ausgang, 0);
  l.Pruefen({"bestellungen liste", 1, "",
             "[Hinweis] Nehmen Sie zunächst bitte die Einstellungen für Marklink vor.\n"
             "[Hinweis] Sie haben leider kein Projekt für Marklink definiert. | "
             "Die Auftragsverwaltung kann nicht geöffnet werden.\n"
             "marklink: Der Mandant 'Müller' hat noch kein Shopprojekt;"});
  l.Einstellen("Marklink", "project", u"P"_qs);
  EXPECT_EQ(l.Starten("bestellungen liste").Ausgang, 0);
  ASSERT_EQ(l.Starten("mandant anlegen Meier --typ 1").Ausgang, 0);
  l.Pruefen({"bestellungen liste", 1, "", "marklink: Es gibt mehrere Mandanten (Müller, Meier)"});
  l.Pruefen({"bestellungen liste --mandant Schulz", 1, "", "marklink: Den Mandanten 'Schulz' gibt es"});
  l.Pruefen({"bestellungen liste --mandant müller --ordner anderswo", 1, "",
             "marklink: Den Mandanten 'müller' gibt es im Ordner"});
  EXPECT_EQ(l.Starten("bestellungen liste --mandant=müller").Ausgang, 0)
      << "case does not matter, as in the list";
  l.Umgebung(u"MARKLINK_MANDANT"_qs, u"Müller"_qs);
  EXPECT_EQ(l.Starten("bestellungen liste").Ausgang, 0);
}

TEST(Aufruf_Test, Schirme_brauchen_einen_Bildschirm) {
  Launcher l;
  ASSERT_EQ(l.Starten("mandant anlegen Test").Ausgang, 0);
  for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    l.Umgebung(QLatin1String(variable), QString());
  l.Pruefen({"schirm einstellungen", 1, "", "marklink: Es gibt keinen Bildschirm"});

  l.Umgebung(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
  const auto prozess = l.Anstossen({u"schirm"_qs, u"einstellungen"_qs});
  ASSERT_TRUE(prozess->waitForStarted());
  const QString karte = u"/proc/%1/maps"_qs.arg(prozess->processId());
  bool mit_fenstern = false;
  for (int i = 0; i < 1000 && !mit_fenstern && !prozess->waitForFinished(10); ++i)
    mit_fenstern = Datei_lesen(karte).contains("libqoffscreen");
  EXPECT_TRUE(mit_fenstern) << prozess->readAllStandardError().toStdString();
  EXPECT_FALSE(prozess->waitForFinished(300)) << "the dialog stays open";
  prozess->kill();
  prozess->waitForFinished();
}

TEST(Aufruf_Test, Datenordner_des_Benutzers_ohne_Angabe) {
  Launcher l;
  l.Umgebung(u"MARKLINK_ORDNER"_qs, QString());
  EXPECT_EQ(l.Starten("mandant anlegen Test").Ausgang, 0);
  EXPECT_TRUE(QFile::exists(l.Wurzel() + u"/daten/marklink/Test.mdb"_qs));
}

TEST(Aufruf_Test, Vervollstaendigung_in_der_Shell) {
  const Launcher l;
  const Ergebnis skript = l.Starten("vervollstaendigung bash");
  ASSERT_EQ(skript.Ausgang, 0);
  Datei_schreiben(l.Wurzel() + u"/skript"_qs, skript.Ausgabe.toUtf8());
  const char *const faelle[][2] = {
      // what is typed, and what the shell offers for its last word
      {"marklink be", "bestellungen belege"},
      {"marklink bestellungen l", "liste loeschen"},
      {"marklink --ordner mandant bestellungen liste --j", "--json"},
      {"marklink bestellungen --mandant X zeigen --js", "--json"},
      {"marklink mandant anlegen --ty", "--typ"},
      {"marklink vervollstaendigung b", "bash"},
      {"marklink --mandant be", ""},
  };
  for (const auto &[getippt, vorschlaege] : faelle) {
    QProcess bash;
    bash.start(u"bash"_qs,
               {u"-c"_qs,
                u"source %1/skript; COMP_WORDS=(%2); COMP_CWORD=$((${#COMP_WORDS[@]}-1)); _marklink; "
                "echo -n \"${COMPREPLY[*]}\""_qs.arg(l.Wurzel(), QString::fromUtf8(getippt))});
    ASSERT_TRUE(bash.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(bash.readAllStandardOutput()).toStdString(), vorschlaege) << getippt;
    EXPECT_EQ(bash.readAllStandardError(), QByteArray()) << getippt;
  }
}

}  // namespace
}  // namespace marklink::test
