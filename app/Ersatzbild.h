// The picture that stands in for an article without one.
#pragma once

#include <QString>

#include "Ruecknahme.h"

namespace marklink {

/// Puts "noimage.jpg" into the program folder where there is none; the user may lay down another one. What
/// cannot be written is passed over: the order desk then shows an empty field.
void Ersatzbild_bereitlegen(const QString &Ordner, Ruecknahme &Zurueck);

}  // namespace marklink
