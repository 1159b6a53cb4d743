// Files and paths.
#include "Dateien.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include "db/Ablaufverfolgung.h"

namespace marklink {

QString Temp_Ordner() {
  QString ordner = QDir::toNativeSeparators(QDir::tempPath());
  if (!ordner.endsWith(QDir::separator())) ordner.append(QDir::separator());
  return ordner;
}

QString Temp_Dateiname() {
  QTemporaryFile datei(Temp_Ordner() + QStringLiteral("4XXXXXX.tmp"));
  datei.setAutoRemove(false);
  if (!datei.open()) {
    Ablauf_melden(QStringLiteral("Temp_Dateiname"), datei.errorString());
    return {};
  }
  return datei.fileName();
}

bool Datei_existiert(const QString &Pfad) { return !Pfad.isEmpty() && QFileInfo::exists(Pfad); }

QString Dateiname_aus_Pfad(const QString &Pfad) {
  return Pfad.mid(qMax(Pfad.lastIndexOf(u'\\'), Pfad.lastIndexOf(u'/')) + 1);
}

bool Datei_ersetzen(const QString &Pfad, const QByteArray &Bytes, const QString &Stelle,
                    std::optional<QFileDevice::Permissions> Rechte) {
  QSaveFile datei(Pfad);
  if (datei.open(QIODevice::WriteOnly)) {
    if (Rechte) datei.setPermissions(*Rechte);
    // commit() alone takes no notice of what its own last write could not store.
    if (datei.write(Bytes) == Bytes.size() && datei.flush() && datei.commit()) return true;
  }
  Ablauf_melden(Stelle, QStringLiteral("%1: %2").arg(Pfad, datei.errorString()));
  return false;
}

}  // namespace marklink
