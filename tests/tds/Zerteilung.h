// A batch of T-SQL cut into its statements, and these into tokens.
#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace marklink::tds {

struct Marke {
  enum class Art {
    Wort,
    Name,  ///< [x] or "x", without what encloses it
    Text,  ///< 'x' or N'x', as it is meant
    Zahl,
    Binaer,    ///< 0x..., the digits
    Variable,  ///< @x, @@x
    Zeichen
  } A;
  QString Inhalt;

  bool ist(const char *Wort_oder_Zeichen) const;  ///< without regard to case
  bool ist_Name() const { return A == Art::Name || A == Art::Wort; }
};

using Satz = std::vector<Marke>;

/// The statements in order, none of them empty; nothing when a quote or a bracket stays open.
std::optional<std::vector<Satz>> Zerteilen(const QString &Stapel);

/// The parts of a list that stand between commas outside parentheses.
std::vector<Satz> Liste_teilen(const Satz &Marken, std::size_t Von, std::size_t Bis);

/// Where the parenthesis at `Auf` closes; the end when it does not.
std::size_t Klammerende(const Satz &S, std::size_t Auf);

}  // namespace marklink::tds
