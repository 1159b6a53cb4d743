// Finding rows again by all that they hold.
#include "Zeilenabgleich.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace marklink::db {

namespace {

constexpr std::size_t Streubytes = 64;  ///< of a long text or picture; the comparison sees all of it

/// A server does not see blanks at a text's end, and fills up some columns with them.
std::string_view Rumpf(const Zelle &Z) {
  std::string_view bytes(Z.Daten, Z.Laenge);
  while (Z.Inhalt == Zelle::Art::Text && bytes.ends_with(' ')) bytes.remove_suffix(1);
  return bytes;
}

bool gleich(const Zelle &A, const Zelle &B) {
  return A.hat_Bytes() && A.Inhalt == B.Inhalt ? Rumpf(A) == Rumpf(B) : A.gleich(B);
}

class Abgleich {
 public:
  Abgleich(const Spaltensatz &S, const std::vector<const Zelle *> &Gesuchte) : S_(S) {
    for (std::size_t k = 0; k < S.Felder.size(); ++k) {
      const bool sicher = std::none_of(Gesuchte.begin(), Gesuchte.end(),
                                       [k](const Zelle *zellen) { return zellen[k].Ungewiss; });
      if (S.Felder[k].Genau && S.Felder[k].Bestaendig && sicher) Streufelder_.push_back(k);
    }
  }

  std::size_t streuen(const Zelle *Zellen) const {
    std::size_t summe = 0;
    for (const std::size_t k : Streufelder_) {
      const Zelle &z = Zellen[k];
      const std::size_t wert = z.hat_Bytes() ? std::hash<std::string_view>{}(Rumpf(z).substr(0, Streubytes))
                                             : static_cast<std::size_t>(z.Ganz);
      summe = (summe ^ wert) * 0x9E3779B97F4A7C15u + static_cast<std::size_t>(z.Inhalt);
    }
    return summe;
  }

  /// With `Nachsicht` what a column may have made of a value that was sent fits, too.
  bool passt(const Zelle *Gesucht, const Zelle *Gefunden, bool Nachsicht) const {
    for (std::size_t k = 0; k < S_.Felder.size(); ++k) {
      const Feld &feld = S_.Felder[k];
      const bool egal = Gesucht[k].Ungewiss || !feld.Bestaendig || (Nachsicht && !feld.Genau);
      if (!egal && !gleich(Gesucht[k], Gefunden[k])) return false;
    }
    return true;
  }

 private:
  const Spaltensatz &S_;
  std::vector<std::size_t> Streufelder_;
};

/// The rows of which most is known first.
std::vector<std::size_t> Reihenfolge(const Spaltensatz &S, const std::vector<const Zelle *> &Gesuchte) {
  std::vector<std::size_t> folge(Gesuchte.size());
  std::iota(folge.begin(), folge.end(), std::size_t{0});
  const auto ungewisse = [&](std::size_t i) {
    return std::count_if(Gesuchte[i], Gesuchte[i] + S.Felder.size(),
                         [](const Zelle &z) { return z.Ungewiss; });
  };
  std::stable_sort(folge.begin(), folge.end(),
                   [&](std::size_t a, std::size_t b) { return ungewisse(a) < ungewisse(b); });
  return folge;
}

}  // namespace

std::vector<int> Inhalte_zuordnen(const Spaltensatz &Spalten, const std::vector<const Zelle *> &Gesuchte,
                                  const std::vector<const Zelle *> &Gefundene) {
  std::vector<int> orte(Gesuchte.size(), -1);
  if (Gesuchte.empty() || Gefundene.empty()) return orte;
  const Abgleich abgleich(Spalten, Gesuchte);
  std::vector<std::pair<std::size_t, int>> tafel;  // by hash, then in order
  for (std::size_t i = 0; i < Gefundene.size(); ++i)
    tafel.emplace_back(abgleich.streuen(Gefundene[i]), static_cast<int>(i));
  std::sort(tafel.begin(), tafel.end());
  std::vector<bool> vergeben(Gefundene.size(), false);
  const auto folge = Reihenfolge(Spalten, Gesuchte);
  for (const bool nachsicht : {false, true}) {
    for (const std::size_t g : folge) {
      const std::size_t streu = abgleich.streuen(Gesuchte[g]);
      auto t = std::lower_bound(tafel.begin(), tafel.end(), std::pair(streu, -1));
      for (; orte[g] < 0 && t != tafel.end() && t->first == streu; ++t) {
        const auto i = static_cast<std::size_t>(t->second);
        if (vergeben[i] || !abgleich.passt(Gesuchte[g], Gefundene[i], nachsicht)) continue;
        vergeben[i] = true;
        orte[g] = t->second;
      }
    }
  }
  return orte;
}

}  // namespace marklink::db
