// Exporting a report: the file, whatever its format.
#include "Berichtsausgabe.h"

#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

#include "db/Ablaufverfolgung.h"

namespace marklink {
namespace {

bool Schreiben(const Seitensatz &Satz, Exportart Art, QIODevice &Ziel) {
  switch (Art) {
    case Export_XLS:
      return XLS_schreiben(Satz, Ziel);
    case Export_RTF:
      return RTF_schreiben(Satz, Ziel);
    case Export_TXT:
      return TXT_schreiben(Satz, Ziel);
    case Export_HTM:
      return HTM_schreiben(Satz, Ziel);
    case Export_PDF:
      break;
  }
  return PDF_schreiben(Satz, Ziel);
}

}  // namespace

Zielname Zielname_zerlegen(const QString &Dateiname) {
  const qsizetype ordner = std::max(Dateiname.lastIndexOf(u'\\'), Dateiname.lastIndexOf(u'/')) + 1;
  const qsizetype name = std::max(ordner, Dateiname.size() - 4);
  return {Dateiname.left(ordner), Dateiname.mid(ordner, name - ordner), Dateiname.mid(name)};
}

bool Bericht_schreiben(const Seitensatz &Satz, Exportart Art, const QString &Dateiname) {
  const Zielname ziel = Zielname_zerlegen(Dateiname);
  const QString pfad = Art == Export_HTM ? ziel.Ordner + ziel.Name + ziel.Endung : Dateiname;
  const QFileInfo vorhanden(pfad);
  QString grund;
  if (vorhanden.exists() && !vorhanden.isFile()) {
    // A pipe or a device is written to; only a file may be replaced.
    QFile datei(pfad);
    // Not every format sees a device refuse what it is given.
    if (datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && Schreiben(Satz, Art, datei) &&
        datei.error() == QFileDevice::NoError)
      return true;
    grund = datei.errorString();
  } else {
    QSaveFile datei(pfad);
    if (datei.open(QIODevice::WriteOnly) && Schreiben(Satz, Art, datei) && datei.flush() && datei.commit())
      return true;
    grund = datei.errorString();
  }
  Ablauf_melden(QStringLiteral("Export"), pfad + QStringLiteral(": ") + grund);
  return false;
}

}  // namespace marklink
