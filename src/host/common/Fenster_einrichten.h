// The library's own windows, for a host that brings none.
#pragma once

namespace marklink {

/// In a program with windows (QApplication) whose host has installed no dialogs: installs dialogs, progress
/// and the window of an exchange, and enters all screens. May be called again. The windows go with the
/// application.
void Fenster_einrichten();
/// Takes them away, as long as there is an application.
void Fenster_abbauen();

}  // namespace marklink
