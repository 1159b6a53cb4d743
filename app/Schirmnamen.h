// The screens that the launcher opens by name.
#pragma once

#include <QStringList>

namespace marklink {

struct Aufruf;

QStringList Schirmnamen();
/// Whether the command opens a screen, and so needs an application with windows.
bool Braucht_Fenster(const Aufruf &A);

}  // namespace marklink
