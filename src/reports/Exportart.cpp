// The export kinds by the endings of file names.
#include "Exportart.h"

namespace marklink {

Exportart Exportart_ermitteln(const QString &Dateiname) {
  const QString endung = Dateiname.right(3).toUpper();
  if (endung == u"XLS") return Export_XLS;
  if (endung == u"RTF") return Export_RTF;
  if (endung == u"TXT") return Export_TXT;
  if (endung == u"HTM") return Export_HTM;
  return Export_PDF;
}

}  // namespace marklink
