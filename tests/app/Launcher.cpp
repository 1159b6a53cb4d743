// Runs the built launcher.
#include "Launcher.h"

#include <sqlite3.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

namespace marklink::test {

namespace {

constexpr int Geduld_ms = 60000;

}  // namespace

QStringList Worte(const char *Zeile) {
  QStringList worte = QString::fromUtf8(Zeile).split(u' ', Qt::SkipEmptyParts);
  for (QString &wort : worte) wort.replace(u'_', u' ');
  return worte;
}

Launcher::Launcher() {
  Umgebung(QStringLiteral("MARKLINK_ORDNER"), Ordner());
  Umgebung(QStringLiteral("XDG_DATA_HOME"), Wurzel() + QStringLiteral("/daten"));
  Umgebung(QStringLiteral("MARKLINK_HEUTE"), QStringLiteral("2024-06-15"));
  Umgebung(QStringLiteral("TMPDIR"), Wurzel());             // reply files hold customers' data
  Umgebung(QStringLiteral("LC_ALL"), QStringLiteral("C"));  // output and arguments are UTF-8 all the same
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

void Launcher::Mandant_mit_Shop(int Typ, quint16 Port) const {
  ASSERT_EQ(Starten({QStringLiteral("mandant"), QStringLiteral("anlegen"), QStringLiteral("Test"),
                     QStringLiteral("--typ"), QString::number(Typ)})
                .Ausgang,
            0);
  const std::pair<const char *, QString> werte[] = {
      {"project", QStringLiteral("Shop")}, {"hostname", QStringLiteral("127.0.0.1")},
      {"port", QString::number(Port)},     {"folder", QStringLiteral("/shop/")},
      {"username", QStringLiteral("u")},   {"password", QStringLiteral("geheim")}};
  for (const auto &[schluessel, wert] : werte)
    ASSERT_EQ(Starten({QStringLiteral("einstellung"), QStringLiteral("schreiben"), QStringLiteral("Marklink"),
                       QLatin1String(schluessel), wert})
                  .Ausgang,
              0);
}

QStringList Launcher::Roh_lesen(const QString &Datei, const char *Sql) {
  QStringList zeilen;
  sqlite3 *db = nullptr;
  sqlite3_stmt *stmt = nullptr;
  EXPECT_EQ(sqlite3_open_v2(Datei.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  EXPECT_EQ(sqlite3_prepare_v2(db, Sql, -1, &stmt, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
  while (sqlite3_step(stmt) == SQLITE_ROW) {
    QStringList zellen;
    for (int i = 0; i < sqlite3_column_count(stmt); ++i)
      zellen << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, i)));
    zeilen << zellen.join(u'|');
  }
  sqlite3_finalize(stmt);
  sqlite3_close(db);
  return zeilen;
}

void Launcher::Schreiben(const QString &Datei, const QByteArray &Inhalt) {
  QFile f(Datei);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(Inhalt);
}

QByteArray Launcher::Lesen(const QString &Datei) {
  QFile f(Datei);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace marklink::test
