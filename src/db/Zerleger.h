// Cuts a statement or a filter into tokens. Values are tokens of their own and are never looked into.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "Anweisung.h"

namespace marklink::db {

struct Zeichenkette {
  enum class Art {
    Wort,         ///< name, keyword
    Klammerwort,  ///< [name], held without the brackets
    Text,         ///< a text value, from a value or between apostrophes in a literal
    Zahl,
    Datum,   ///< between two "#", held without them
    Zeichen  ///< operator or punctuation
  } Art;
  QString Text;
  int Stueck = -1;  ///< index of the value in Anweisung::Stuecke(), -1 when it stands in a literal

  bool ist(const char *Wort_oder_Zeichen) const;  ///< without regard to case; never true for a value
};

/// Nothing for an open quote, bracket or date, a comment sign, a double quote, anything behind a ";", or a
/// character that could stand for a parameter.
std::optional<std::vector<Zeichenkette>> Zerlegen(const Anweisung &Sql);

/// The date of "#1/31/2024 00:00:00#" (without "#") or of an ISO text as "YYYY-MM-DD hh:mm:ss"; empty if
/// none.
QString Datum_normieren(const QString &Text);

}  // namespace marklink::db
