// What a new client holds: tables, reference rows and settings, made on the embedded engine wherever they go
// from there.
#pragma once

#include "Mandant_anlegen.h"

namespace marklink {

/// Makes <Name>.mdb and, for type 0, <Name>.afk in the folder `Werkstatt`; the program context points there
/// afterwards. Empty, or why it failed.
QString Mandant_fuellen(const Mandantenplan &Plan, const QString &Werkstatt);

}  // namespace marklink
