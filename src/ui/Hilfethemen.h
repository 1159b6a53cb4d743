// Which help page tells about which topic.
#pragma once

#include <QString>
#include <span>

namespace marklink {

struct Hilfethemenseite {
  int Thema;          ///< of Hilfethema
  const char *Seite;  ///< file in docs/hilfe, with "#" and the place on it
};

std::span<const Hilfethemenseite> Hilfethemen();

/// The contents for a topic that has no page.
QString Hilfeseite(int Thema);

}  // namespace marklink
