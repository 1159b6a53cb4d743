// The comparisons of Textvergleich.h on UTF-8 bytes, as the engine and the cells of a record set hold them.
// Plain ASCII, the common case, is compared in place.
#pragma once

#include <QtGlobal>

namespace marklink::db {

struct Utf8 {
  const char *Daten;
  qsizetype Laenge;
};

bool Utf8_nur_Ascii(Utf8 Text);
bool Utf8_gleich(Utf8 A, Utf8 B);
int Utf8_vergleichen(Utf8 A, Utf8 B);
bool Utf8_aehnlich(Utf8 Text, Utf8 Muster);
/// Equal for texts that are Utf8_gleich.
quint32 Utf8_streuen(Utf8 Text);

}  // namespace marklink::db
