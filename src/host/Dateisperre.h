// Locks between programs that work on the same files.
#pragma once

#include <QLockFile>

namespace marklink {

/// Takes the lock within that time. False when another program holds it all the while, or when it cannot be
/// made at all (Sperre.error() tells which).
bool Sperren(QLockFile &Sperre, int Wartezeit_ms);

}  // namespace marklink
