// The screens by their names: "frmMain", "frmEinstellungen". Every folder with windows enters its own; who
// wants to show one need not know it.
#pragma once

#include <QString>
#include <functional>

namespace marklink {

/// Shows the screen modally.
using Schirm = std::function<void()>;

/// Replaces an entry of the same name.
void Schirm_anmelden(const QString &Name, Schirm Zeigen);
/// False when there is no such screen.
bool Schirm_oeffnen(const QString &Name);

}  // namespace marklink
