// The program folder and the host configuration.
#include "Hostkonfiguration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include "host/Dateien.h"
#include "host/Ini.h"
#include "host/Zeichensatz.h"
#include "stammdaten/Stammdaten.h"

namespace marklink {
namespace {

constexpr int Laengster_Pfad = 240;  ///< a setting is read to 255 characters

/// One name for two files. The reply file lies in the temporary folder that all users share: a name of its
/// own for each program folder. The script's companion lies in the program folder and goes to the shop's
/// server, which must run it rather than show what it holds.
QString Exportdatei() {
  return QStringLiteral("marklink_%1.php").arg(QRandomGenerator::system()->generate64(), 16, 16, QChar(u'0'));
}

/// What depends on the machine comes first: values that are there stay.
std::vector<app::Einstellung> Hostwerte(const QString &Ordner) {
  std::vector<app::Einstellung> werte{
      {QStringLiteral("Connection"), QStringLiteral("DataSource"), Ordner},
      {QStringLiteral("Marklink"), QStringLiteral("exportfile"), Exportdatei()},
  };
  const std::vector<app::Einstellung> uebrige = app::Host_Einstellungen();
  werte.insert(werte.end(), uebrige.begin(), uebrige.end());
  return werte;
}

}  // namespace

QString Programmordner_pruefen(const QString &Ordner) {
  bool darstellbar = true;
  Nach_1252(Ordner, &darstellbar);
  if (!darstellbar || Ordner.contains(u';'))
    return QStringLiteral(
               "Der Pfad '%1' enthält Zeichen, die in einem Programmordner nicht vorkommen dürfen.")
        .arg(Ordner);
  if (Ordner.size() > Laengster_Pfad)
    return QStringLiteral("Der Pfad '%1' ist zu lang; er darf höchstens %2 Zeichen haben.")
        .arg(Ordner)
        .arg(Laengster_Pfad);
  return {};
}

bool Programmordner_anlegen(const QString &Ordner, Ruecknahme &Zurueck) {
  QStringList fehlend;
  for (QString pfad = Ordner; !QFileInfo::exists(pfad) && pfad != QFileInfo(pfad).path();
       pfad = QFileInfo(pfad).path())
    fehlend.prepend(pfad);
  for (const QString &pfad : fehlend) {
    if (!QDir().mkdir(pfad)) return false;
    Zurueck.Merken([pfad] { QDir().rmdir(pfad); });
  }
  return QFileInfo(Ordner).isDir();
}

void Datei_merken(const QString &Datei, Ruecknahme &Zurueck) {
  QFile f(Datei);
  if (!f.exists()) {
    Zurueck.Merken([Datei] { QFile::remove(Datei); });
  } else if (f.open(QIODevice::ReadOnly)) {
    Zurueck.Merken([Datei, alt = f.readAll()] {
      QFile jetzt(Datei);
      if (jetzt.open(QIODevice::ReadOnly) && jetzt.readAll() == alt) return;
      Datei_ersetzen(Datei, alt, QStringLiteral("Ruecknahme"));
    });
  }
}

bool Hostkonfiguration_ergaenzen(const QString &Ordner, Ruecknahme &Zurueck) {
  const QString datei = Ordner + QDir::separator() + QStringLiteral("varda.ini");
  Datei_merken(datei, Zurueck);
  for (const app::Einstellung &e : Hostwerte(Ordner)) {
    if (!Ini_lesen(datei, e.Abschnitt, e.Schluessel).isEmpty()) continue;
    if (!Ini_schreiben(datei, e.Abschnitt, e.Schluessel, e.Wert)) return false;
  }
  return true;
}

}  // namespace marklink
