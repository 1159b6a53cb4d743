// What the launcher writes: results to standard output, everything else to standard error, always UTF-8.
#pragma once

#include <QString>

namespace marklink {

/// One line (or several) of a result; a line end is added.
void Ausgeben(const QString &Text);
/// One line to standard error. Text from outside cannot break it: see Anzeigbar().
void Melden(const QString &Text);
/// "marklink: <Text>" to standard error.
void Fehler_melden(const QString &Text);
/// False when a result could not be written as a whole (disk full, closed pipe).
bool Ausgabe_abschliessen();

/// The text on one line: line ends become " | ", other control characters blanks, so that no text from a shop
/// can steer the terminal.
QString Anzeigbar(const QString &Text);
/// The same for a text of several lines, whose line ends stay.
QString Anzeigbar_mehrzeilig(const QString &Text);

}  // namespace marklink
