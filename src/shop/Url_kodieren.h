// Percent-encoding of one request value.
#pragma once

#include <QString>

namespace marklink {

/// The value's Windows-1252 bytes, percent-encoded; letters, digits and "-", "_", "." pass. A text with
/// characters outside the set gives the empty text.
QString Url_kodieren(const QString &Wert);

}  // namespace marklink
