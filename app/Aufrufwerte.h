// Reading the values of options and arguments that are more than text.
#pragma once

#include <QStringList>
#include <optional>

#include "Befehlszeile.h"

namespace marklink {

/// A whole number within bounds (both included), `Vorgabe` when the option was not given. Nothing when it is
/// none: told on standard error.
std::optional<int> Zahl_aus_Option(const Aufruf &A, const char *Option, int Vorgabe, int Kleinste,
                                   int Groesste);

/// The parts of "1,3" without blanks; an empty list when the option was not given. Nothing when a part is
/// empty: told on standard error.
std::optional<QStringList> Liste_aus_Option(const Aufruf &A, const char *Option);

/// The argument at that place as a number, "1,5" or "1.5"; "1.500" is German. Nothing when it is none: told
/// on standard error.
std::optional<double> Zahl_aus_Argument(const Aufruf &A, int Stelle);

}  // namespace marklink
