// The launcher from its arguments to its exit status.
#pragma once

namespace marklink {

struct Befehlszeile;

/// Installs the ports for the terminal, unless the command opens a screen, and runs the command.
int Launcher_starten(const Befehlszeile &Zeile);

}  // namespace marklink
