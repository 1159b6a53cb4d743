// The counter of a number range: a text of digits that keeps its width.
#pragma once

#include <QString>

namespace marklink {

/// The counter one further. Only one that holds a "0" anywhere keeps its width: "000199" becomes "000200",
/// "99" becomes "100". A text that is no number (German form) stays as it is. From 15 digits on the counter
/// loses digits and turns into exponent notation ("1E+15"), where it stands still; this is intended.
QString Zaehler_erhoehen(const QString &Zaehler);

}  // namespace marklink
