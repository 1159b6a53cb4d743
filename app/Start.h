// The launcher from its arguments to its exit status.
#pragma once

#include <QStringList>

namespace marklink {

/// `Argumente` without the program's own name. Installs the ports for the terminal and runs the command.
int Launcher_starten(const QStringList &Argumente);

}  // namespace marklink
