// The file formats that a report can be exported to.
#pragma once

#include <QString>

namespace marklink {

enum Exportart : qint16 { Export_PDF = 0, Export_XLS = 1, Export_RTF = 2, Export_TXT = 3, Export_HTM = 4 };

/// By the last three characters of the name, whatever their case; any other ending is a PDF.
Exportart Exportart_ermitteln(const QString &Dateiname);

}  // namespace marklink
