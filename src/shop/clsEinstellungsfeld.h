// The fields of a page of the settings dialog, made from their table.
#pragma once

#include "Shopeinstellungen.h"

class QVBoxLayout;
class QWidget;

namespace marklink {

/// Adds the page's fields with labels and tips below each other. What the user changes goes to `Werte`, and
/// nothing else: a value that a control cannot show stays as it was read.
void Felder_bauen(Einstellungsseite Seite, Shopeinstellungen &Werte, QVBoxLayout *Zeilen, QWidget *Eltern);

}  // namespace marklink
