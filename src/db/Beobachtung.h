// The seams for tests (Verbindung.h) as the access layer asks them.
#pragma once

#include <QString>

#include "Anweisung.h"
#include "Verbindung.h"

namespace marklink::db {

/// Counts one engine call; false when it is the one that is to fail.
bool Aufruf_erlaubt();
bool wird_beobachtet();
void Beobachtet(const QString &Text);

/// A second observer beside a test's own, for a whole program: gets every valid statement that is prepared or
/// run, with its dialect, as it was joined.
using Mitschreiber = void (*)(Dialekt, const Anweisung &);
void Mitschreiber_setzen(Mitschreiber M);
void Mitschreiben(Dialekt D, const Anweisung &Sql);

}  // namespace marklink::db
