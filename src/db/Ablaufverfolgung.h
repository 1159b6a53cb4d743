// MARKLINK_TRACE=1: every failure that is passed over in silence leaves one line on standard error.
#pragma once

#include <QString>

namespace marklink {

/// True when MARKLINK_TRACE is "1". Ask before building an expensive text.
bool Ablaufverfolgung_an();

/// Writes "marklink: <Stelle>: <Grund>" as one line (line breaks become blanks). Never hand card, bank or
/// password data to it.
void Ablauf_melden(const QString &Stelle, const QString &Grund);

}  // namespace marklink
