// Runs the built launcher.
#include "Launcher.h"

#include <signal.h>

#include <QProcess>
#include <QProcessEnvironment>

#include "support/Datenbank_Test.h"

namespace marklink::test {

namespace {

constexpr int Geduld_ms = 60000;

bool Passt(const QString &Gesehen, const QString &Erwartet) {
  return Erwartet.isEmpty() || Erwartet.endsWith(u'\n') ? Gesehen == Erwartet : Gesehen.startsWith(Erwartet);
}

}  // namespace

QStringList Worte(const char *Zeile) {
  QStringList worte = QString::fromUtf8(Zeile).split(u' ', Qt::SkipEmptyParts);
  for (QString &wort : worte) wort.replace(u'_', u' ');
  return worte;
}

Launcher::Launcher() {
  Umgebung(u"MARKLINK_ORDNER"_qs, Ordner());
  Umgebung(u"XDG_DATA_HOME"_qs, Wurzel() + u"/daten"_qs);
  Umgebung(u"MARKLINK_HEUTE"_qs, u"2024-06-15"_qs);
  Umgebung(u"TMPDIR"_qs, Wurzel());  // reply files hold customers' data
  Umgebung(u"LC_ALL"_qs, u"C"_qs);   // output and arguments are UTF-8 all the same
}

Launcher::~Launcher() = default;

void Launcher::Umgebung(const QString &Name, const QString &Wert) { Umgebung_ << Name << Wert; }

std::unique_ptr<QProcess> Launcher::Anstossen(const QStringList &Argumente) const {
  auto prozess = std::make_unique<QProcess>();
  QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
  for (const char *name : {"MARKLINK_MANDANT", "MARKLINK_BENUTZER", "MARKLINK_TRACE"})
    umgebung.remove(QLatin1String(name));
  for (qsizetype i = 0; i + 1 < Umgebung_.size(); i += 2) umgebung.insert(Umgebung_[i], Umgebung_[i + 1]);
  prozess->setProcessEnvironment(umgebung);
  prozess->setWorkingDirectory(Wurzel());
  // Ctrl+C works also where the tests run in the background.
  prozess->setChildProcessModifier([] { ::signal(SIGINT, SIG_DFL); });
  prozess->start(QStringLiteral(MARKLINK_PROGRAMM), Argumente);
  return prozess;
}

Ergebnis Launcher::Abwarten(QProcess &Prozess) {
  if (!Prozess.waitForFinished(Geduld_ms)) {
    Prozess.kill();
    Prozess.waitForFinished();
    ADD_FAILURE() << "marklink ends not: " << Prozess.arguments().join(u' ').toStdString();
    return {};
  }
  EXPECT_EQ(Prozess.exitStatus(), QProcess::NormalExit) << Prozess.arguments().join(u' ').toStdString();
  return {Prozess.exitStatus() == QProcess::NormalExit ? Prozess.exitCode() : -1,
          QString::fromUtf8(Prozess.readAllStandardOutput()),
          QString::fromUtf8(Prozess.readAllStandardError())};
}

Ergebnis Launcher::Starten(const QStringList &Argumente) const { return Abwarten(*Anstossen(Argumente)); }

void Launcher::Pruefen(const Befehlsfall &Erwartet) const {
  SCOPED_TRACE(Erwartet.Zeile);
  const Ergebnis e = Starten(Erwartet.Zeile);
  EXPECT_EQ(e.Ausgang, Erwartet.Ausgang);
  EXPECT_TRUE(Passt(e.Ausgabe, QString::fromUtf8(Erwartet.Ausgabe))) << "output: " << e.Ausgabe.toStdString();
  EXPECT_TRUE(Passt(e.Fehler, QString::fromUtf8(Erwartet.Fehler))) << "error: " << e.Fehler.toStdString();
}

QJsonDocument Launcher::Json(const QStringList &Argumente) const {
  const Ergebnis e = Starten(Argumente + QStringList{u"--json"_qs});
  EXPECT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  return QJsonDocument::fromJson(e.Ausgabe.toUtf8());
}

void Launcher::Einstellen(const char *Abschnitt, const char *Schluessel, const QString &Wert) const {
  ASSERT_EQ(Starten(Worte("einstellung schreiben") +
                    QStringList{QString::fromUtf8(Abschnitt), QString::fromUtf8(Schluessel), Wert})
                .Ausgang,
            0);
}

void Launcher::Mandant_mit_Shop(int Typ, quint16 Port) const {
  ASSERT_EQ(Starten(Worte("mandant anlegen Test --typ") + QStringList{QString::number(Typ)}).Ausgang, 0);
  Einstellen("Marklink", "project", u"Shop"_qs);
  Einstellen("Marklink", "hostname", u"127.0.0.1"_qs);
  Einstellen("Marklink", "port", QString::number(Port));
  Einstellen("Marklink", "folder", u"/shop/"_qs);
  Einstellen("Marklink", "username", u"u"_qs);
  Einstellen("Marklink", "password", u"geheim"_qs);
}

void Launcher::Sql(const char *Text) const {
  ASSERT_TRUE(Rohe_Verbindung(Datei("Test.mdb")).lauf(Text)) << Text;
}

QString Launcher::Zeilen(const char *Sql, const char *Datenbank) const {
  return Rohe_Verbindung(Datei(Datenbank)).lesen(Sql);
}

}  // namespace marklink::test
