// What printing needs before it starts: a printer, the preview's tools, the printer's settings.
#pragma once

namespace marklink {

class Report;

/// False, and told in a box, when no printer is installed.
bool Drucker_vorhanden();

/// Turns the preview's tool tips on and names its tools.
void Vorschau_einrichten(Report &R);

/// Hands the current printer's settings to the report: those of the paper to its pages, those of the printer
/// and the colour mode (program/ColorPrint, 0: grey) to its printer. The engine's progress dialog goes off.
void Druckeinstellungen_setzen(Report &R, bool Seite, bool Drucker);

}  // namespace marklink
