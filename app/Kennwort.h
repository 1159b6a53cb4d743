// The password for the server, which stands on no command line: every user of the machine could read it
// there.
#pragma once

#include <QString>
#include <optional>

namespace marklink {

/// From the environment (MARKLINK_KENNWORT), else a line of standard input; a terminal is asked for it and
/// does not show it. Nothing, told on standard error, when none came.
std::optional<QString> Kennwort_erfragen(const QString &Anmeldung);

}  // namespace marklink
