// Finding the parts of a report by name.
#include "Bericht.h"

namespace marklink {

int Bericht::Feld_finden(const QString &Name) const {
  for (std::size_t i = 0; i < Felder.size(); ++i)
    if (Felder[i].Name == Name) return int(i);
  return -1;
}

Berichtselement *Bericht::Element_finden(const QString &Name) {
  for (Band &band : Baender)
    for (Berichtselement &element : band.Elemente)
      if (element.Name == Name) return &element;
  return nullptr;
}

}  // namespace marklink
