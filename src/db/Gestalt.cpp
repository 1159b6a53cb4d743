// Reading the shape of a SELECT from its tokens.
#include "Gestalt.h"

#include <algorithm>

namespace marklink::db {

namespace {

using Ketten = std::vector<Zeichenkette>;
using Art = enum Zeichenkette::Art;

bool ist(const Ketten &K, std::size_t i, const char *Wort) { return i < K.size() && K[i].ist(Wort); }

bool ist_Name(const Ketten &K, std::size_t i) {
  return i < K.size() && (K[i].Art == Art::Wort || K[i].Art == Art::Klammerwort);
}

bool einer_von(const Ketten &K, std::size_t i, std::initializer_list<const char *> Worte) {
  return std::any_of(Worte.begin(), Worte.end(), [&](const char *wort) { return ist(K, i, wort); });
}

/// The first of these words outside parentheses, or the end.
std::size_t suchen(const Ketten &K, std::size_t Von, std::initializer_list<const char *> Worte) {
  int tiefe = 0;
  for (std::size_t i = Von; i < K.size(); ++i) {
    if (K[i].ist("(")) ++tiefe;
    if (K[i].ist(")")) --tiefe;
    if (tiefe == 0 && einer_von(K, i, Worte)) return i;
  }
  return K.size();
}

Gestalt::Glied Glied_lesen(const Ketten &K, std::size_t Von, std::size_t Bis) {
  Gestalt::Glied glied;
  std::size_t i = Von;
  if (ist_Name(K, i) && ist(K, i + 1, ".")) {
    glied.Quelle = K[i].Text;
    i += 2;
  }
  if (i >= Bis) return {};
  glied.Stern = ist(K, i, "*");
  if (!glied.Stern && !ist_Name(K, i)) return {};
  const bool allein = i + 1 == Bis;
  const bool umbenannt = (i + 3 == Bis && ist(K, i + 1, "AS")) || (i + 2 == Bis && ist_Name(K, i + 1));
  if (!allein && (glied.Stern || !umbenannt)) return {};
  if (!glied.Stern) glied.Spalte = K[i].Text;
  return glied;
}

void Auswahl_lesen(const Ketten &K, std::size_t Von, std::size_t Bis, Gestalt &G) {
  if (ist(K, Von, "TOP")) Von += 2;
  for (std::size_t anfang = Von; anfang < Bis;) {
    const std::size_t ende = std::min(suchen(K, anfang, {","}), Bis);
    G.Auswahl.push_back(Glied_lesen(K, anfang, ende));
    anfang = ende + 1;
  }
}

void Tabellen_lesen(const Ketten &K, std::size_t Von, std::size_t Bis, Gestalt &G) {
  for (std::size_t i = Von; i < Bis; ++i) {
    const bool Klammer = K[i - 1].ist("(") && einer_von(K, i - 2, {"FROM", "JOIN", "("});
    const bool vorn = i == Von || Klammer || einer_von(K, i - 1, {"JOIN", ","});
    if (!vorn || !ist_Name(K, i)) continue;
    Gestalt::Herkunft quelle{K[i].Text, K[i].Text};
    std::size_t danach = i + 1;
    while (ist(K, danach, ".") && ist_Name(K, danach + 1)) {  // dbo.Table
      quelle = {K[danach + 1].Text, K[danach + 1].Text};
      danach += 2;
    }
    if (ist(K, danach, "AS")) ++danach;
    const bool Wort_der_Sprache =
        einer_von(K, danach, {"ON", "INNER", "LEFT", "RIGHT", "FULL", "CROSS", "OUTER", "JOIN", "WITH"});
    if (danach < Bis && ist_Name(K, danach) && !Wort_der_Sprache) quelle.Zweitname = K[danach].Text;
    G.Tabellen.push_back(quelle);
  }
}

/// Rows of one table and no others.
void Einzeltabelle_erkennen(const Ketten &K, std::size_t From, Gestalt &G) {
  for (std::size_t i = 1; i < From; ++i) {
    if (K[i].ist("(")) return;
  }
  const std::size_t danach = From + 2;
  if (!ist_Name(K, From + 1)) return;
  if (danach < K.size() && !einer_von(K, danach, {"WHERE", "ORDER"})) return;
  for (std::size_t i = danach; i < K.size(); ++i) {
    if (einer_von(K, i, {"UNION", "GROUP"})) return;
  }
  const Zeichenkette &name = K[From + 1];
  G.Einzeltabelle = name.Art == Art::Klammerwort ? u'[' + name.Text + u']' : name.Text;
  G.Alle_Spalten = From == 2 && ist(K, 1, "*");
  G.Ganze_Tabelle = G.Alle_Spalten && danach == K.size();
  G.From = From;
}

}  // namespace

Gestalt Gestalt_lesen(const std::vector<Zeichenkette> &Ketten) {
  Gestalt g;
  if (!ist(Ketten, 0, "SELECT") || ist(Ketten, 1, "DISTINCT")) return g;
  const std::size_t from = suchen(Ketten, 1, {"FROM"});
  if (from >= Ketten.size()) return g;
  Einzeltabelle_erkennen(Ketten, from, g);
  const std::size_t ende = suchen(Ketten, from, {"WHERE", "ORDER", "GROUP", "UNION"});
  if (suchen(Ketten, from, {"GROUP", "UNION"}) < Ketten.size()) return g;
  Auswahl_lesen(Ketten, 1, from, g);
  Tabellen_lesen(Ketten, from + 1, ende, g);
  return g;
}

}  // namespace marklink::db
