// The shop script in the program folder.
#include "Shopscript.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "Hostkonfiguration.h"
#include "host/Dateien.h"
#include "host/Ini.h"

namespace marklink {
namespace {

QByteArray Inhalt(const QString &Datei) {
  QFile f(Datei);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool Ablegen(const QString &Quelle, const QString &Ziel, Ruecknahme &Zurueck) {
  const QByteArray neu = Inhalt(Quelle);
  if (neu.isEmpty()) return false;
  if (Inhalt(Ziel) == neu) return true;
  Datei_merken(Ziel, Zurueck);
  QSaveFile f(Ziel);
  if (!f.open(QIODevice::WriteOnly)) return false;
  f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);  // the companion may hold logins
  return f.write(neu) == neu.size() && f.commit();
}

/// Where the file lies in the program folder; empty for a name that could lead out of it.
QString Platz(const QString &Ordner, const char *Schluessel) {
  const QString name = Ini_lesen(Ordner + QDir::separator() + QStringLiteral("varda.ini"),
                                 QStringLiteral("Marklink"), QLatin1String(Schluessel));
  const bool brauchbar = name == Dateiname_aus_Pfad(name) && name.endsWith(QLatin1String(".php"));
  return brauchbar ? Ordner + QDir::separator() + name : QString();
}

}  // namespace

bool Shopscript_bereitlegen(const QString &Ordner, Ruecknahme &Zurueck) {
  const QString script = Platz(Ordner, "script"), begleiter = Platz(Ordner, "exportfile");
  if (!script.isEmpty() && !Ablegen(QStringLiteral(":/marklink/shopscript/marklink.php"), script, Zurueck))
    return false;
  if (begleiter.isEmpty() || QFile::exists(begleiter)) return true;
  return Ablegen(QStringLiteral(":/marklink/shopscript/marklink_einstellungen.php"), begleiter, Zurueck);
}

}  // namespace marklink
