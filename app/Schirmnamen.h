// The screens that the launcher opens by name.
#pragma once

#include <QStringList>

namespace marklink {

struct Aufruf;

QStringList Schirmnamen();
/// Whether the command opens a screen, and so needs an application with windows.
bool Braucht_Fenster(const Aufruf &A);
/// Whether the command lays out pages, and so needs an application with fonts.
bool Braucht_Schriften(const Aufruf &A);

}  // namespace marklink
