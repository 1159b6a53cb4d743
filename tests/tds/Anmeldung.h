// How a connection begins: agreeing that nothing is encrypted, then name and password.
#pragma once

#include "Pakete.h"

namespace marklink::tds {

struct Zugang {
  QString Benutzer, Kennwort;
};

/// Answers until the client is in. False when it was refused or went away; `Katalog` is the database it asked
/// for.
bool Anmelden(Leitung &L, const Zugang &Erlaubt, QString &Katalog);

}  // namespace marklink::tds
