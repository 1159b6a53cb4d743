// Any bytes as a reply file: reading never fails hard, and what is no document keeps nothing.
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "shop/Antwort.h"

using namespace marklink;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Daten, std::size_t Groesse) {
  static const QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("antwort.xml"));
  QFile f(pfad);
  if (!f.open(QIODevice::WriteOnly)) std::abort();
  f.write(reinterpret_cast<const char *>(Daten), qint64(Groesse));
  f.close();

  pugi::xml_document dokument;
  const bool geladen = Antwort_laden(pfad, dokument);
  if (geladen == dokument.first_child().empty()) std::abort();
  const pugi::xml_node wurzel = dokument.document_element();
  for (const char *weg : {"", "ORDER_INFO/ORDER_HEADER/ORDER_ID", "STATUS_DATA/MESSAGE", "/", "//", "A/"})
    if (Knoten_Text(wurzel, weg).size() > qsizetype(Groesse) * 2) std::abort();
  if (!geladen && !Statusantwort_lesen(pfad, "MESSAGE").isEmpty()) std::abort();
  return 0;
}
