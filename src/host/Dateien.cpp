// Files and paths.
#include "Dateien.h"

#include <QDir>
#include <QFileInfo>
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

}  // namespace marklink
