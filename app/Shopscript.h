// The shop script and its companion file in the program folder, from where they go to the shop's server.
#pragma once

#include <QString>

#include "Ruecknahme.h"

namespace marklink {

/// Puts both there under the names of the host configuration: the script as this program knows it, the
/// companion only where there is none, since it holds the user's settings. Another name than "....php" for
/// the companion gets no file: a server would show its content. False when one cannot be written.
bool Shopscript_bereitlegen(const QString &Ordner, Ruecknahme &Zurueck);

}  // namespace marklink
