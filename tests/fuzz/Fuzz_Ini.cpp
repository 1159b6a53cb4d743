// Any bytes as an INI file: reading never fails hard, and a written value comes back whatever stood there
// before.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "host/Ini.h"

using namespace marklink;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Daten, std::size_t Groesse) {
  static const QTemporaryDir ordner;
  const QString pfad = ordner.path() + QStringLiteral("/fuzz.ini");
  QFile::remove(pfad);
  QFile f(pfad);
  if (!f.open(QIODevice::WriteOnly)) std::abort();
  f.write(reinterpret_cast<const char *>(Daten), qint64(Groesse));
  f.close();
  const QString abschnitt = QStringLiteral("Marklink"), schluessel = QStringLiteral("project");
  if (Ini_lesen(pfad, abschnitt, schluessel).size() > 255) std::abort();
  if (!Ini_schreiben(pfad, abschnitt, schluessel, QStringLiteral(" Wert "))) std::abort();
  if (Ini_lesen(pfad, abschnitt, schluessel) != QStringLiteral(" Wert ")) std::abort();
  return 0;
}
