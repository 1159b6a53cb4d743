// Any text as a number or a date: always finite, and what is written reads back.
#include <QString>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "db/Zeitpunkt.h"
#include "host/Datumsbilder.h"
#include "host/Zahlen.h"

using namespace marklink;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Daten, std::size_t Groesse) {
  const QString text = QString::fromUtf8(reinterpret_cast<const char *>(Daten), qsizetype(Groesse));
  if (!std::isfinite(Zahl_mit_Punkt(text))) std::abort();
  if (const auto zahl = Zahl_deutsch(text)) {
    if (!std::isfinite(*zahl)) std::abort();
    // 15 significant digits survive the way over text; denormal and huge values may lose their last ones.
    const auto zurueck = Zahl_deutsch(Zahl_als_Text(*zahl));
    if (!zurueck) std::abort();
    if (std::fabs(*zahl) > 1e-280 && std::fabs(*zahl) < 1e280 &&
        std::fabs(*zurueck - *zahl) > std::fabs(*zahl) * 1e-14)
      std::abort();
    Zahl_formatieren(*zahl, QStringLiteral("#,##0.00"));
  }
  Zahl_formatieren(1234.5, text);
  Als_Kurzzahl(text);
  Als_Ganzzahl(text);
  const QDateTime zeit = Datum_lesen(text);
  if (zeit.isValid() && Datum_lesen(Zeitpunkt_als_Text(zeit)) != zeit && zeit.date().year() > 999)
    std::abort();
  Datum_formatieren(Zeitpunkt(QDate(2024, 2, 29), QTime(1, 2, 3)), text);
  return 0;
}
