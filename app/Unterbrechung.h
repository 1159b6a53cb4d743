// Ctrl-C: the first press asks the running batch to stop after the current record, the second ends the
// program.
#pragma once

namespace marklink {

void Unterbrechung_einrichten();
/// Whether Ctrl-C was pressed since the start.
bool Unterbrochen();

}  // namespace marklink
