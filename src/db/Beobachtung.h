// The seams for tests (Verbindung.h) as the access layer asks them.
#pragma once

#include <QString>

namespace marklink::db {

/// Counts one engine call; false when it is the one that is to fail.
bool Aufruf_erlaubt();
bool wird_beobachtet();
void Beobachtet(const QString &Text);

}  // namespace marklink::db
