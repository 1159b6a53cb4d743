// The record set: answering filters and searches from the engine's indexes, without reading the table.
#include <algorithm>
#include <limits>

#include "Recordset_Daten.h"
#include "Zeilenabgleich.h"

namespace marklink::db {

namespace {

constexpr std::size_t Wenige = 32;  ///< pending rows that are looked through one by one

}  // namespace

bool Recordset::Daten::Nachschlagbar(const Filterausdruck &Suche) const {
  if (Gelesen || Spalten->Tabellen.size() != 1) return false;
  const auto &gleichungen = Suche.Gleichungen();
  return std::any_of(gleichungen.begin(), gleichungen.end(), [this](const Filterausdruck::Knoten *k) {
    const auto feld = static_cast<std::size_t>(k->Feld);
    const Feldart art = Spalten->Felder[feld].Art;
    return Spalten->Tabellen[0].Nachschlagbar[feld] && (art == Feldart::Text || art == Feldart::Ganzzahl);
  });
}

/// Drops the rows that carry no changes from an unread set.
void Recordset::Daten::Unbenutztes_vergessen() {
  if (Gelesen || !Offene.empty()) return;
  Zeilen.clear();
  Sicht.clear();
  Indizes.clear();
  if (Lager.size() > 1) Lager.erase(Lager.begin(), std::prev(Lager.end()));
  if (!Lager.empty()) Lager.back().leeren();
  Aenderungen.leeren();
  Aktuell = -1;
  Vorher_Aktuell = -1;
}

/// The rows that the engine's index finds for the equations, in `Ziel`. False when the engine failed.
bool Recordset::Daten::Engine_fragen(const Filterausdruck &Suche, Ergebnis &Ziel) {
  Anweisung sql("SELECT * FROM ", Teiltext{Spalten->Ganze_Tabelle});
  const char *davor = " WHERE ";
  for (const auto *k : Suche.Gleichungen()) {
    const Feld &feld = Spalten->Felder[static_cast<std::size_t>(k->Feld)];
    if (feld.Art != Feldart::Text && feld.Art != Feldart::Ganzzahl) continue;
    sql += Anweisung(Teiltext{QLatin1String(davor) + u'[' + feld.Name + u']'}, " = ");
    const bool zahl = k->Wert.Roh_Zahl && feld.Art == Feldart::Ganzzahl;
    sql += zahl ? Anweisung(Zahl(k->Wert.Zahl), "") : Anweisung(Wert{k->Wert.Roh}, "");
    davor = " AND ";
  }
  if (Lager.empty()) Lager.emplace_back();
  std::swap(Ziel.Lager, Lager.back());
  bool gut = false;
  {
    Leihe leihe(Verbindung);
    gut = leihe.Lesen(sql, Ziel) && Ziel.Spalten && Ziel.Spalten->Zellen() == Spalten->Zellen();
  }
  std::swap(Ziel.Lager, Lager.back());
  return gut;
}

/// Where a row stands in the table's order; new rows come last.
qint64 Recordset::Daten::Ort(int Nummer) const {
  const Zelle *basis = Zeilen[static_cast<std::size_t>(Nummer)].Basis;
  return basis ? basis[Spalten->Zeilennummer].Ganz : std::numeric_limits<qint64>::max();
}

/// Pending rows that may satisfy the equations.
std::vector<int> Recordset::Daten::Offene_Kandidaten(const Filterausdruck &Suche) {
  if (Offene.size() <= Wenige) return Offene;
  std::vector<int> zeilen = Kandidaten(Suche.Gleichungen());
  std::erase_if(zeilen, [this](int i) { return !Zeilen[static_cast<std::size_t>(i)].Offen; });
  return zeilen;
}

/// The pending row that each row of the engine's answer is; -1 for none.
std::vector<int> Recordset::Daten::Offene_zuordnen(const Ergebnis &E) const {
  std::vector<int> offene(E.Zeilen.size(), -1);
  if (E.Zeilen.empty()) return offene;
  std::vector<int> nummern;
  for (const int i : Offene) {
    if (Zeilen[static_cast<std::size_t>(i)].Basis) nummern.push_back(i);
  }
  if (Spalten->Zeilennummer >= 0) {
    std::unordered_map<qint64, int> nach_Ort;
    for (const int i : nummern) nach_Ort.emplace(Ort(i), i);
    for (std::size_t k = 0; k < E.Zeilen.size(); ++k) {
      const auto da = nach_Ort.find(E.Zeilen[k][Spalten->Zeilennummer].Ganz);
      if (da != nach_Ort.end()) offene[k] = da->second;
    }
    return offene;
  }
  std::vector<const Zelle *> gesuchte;
  gesuchte.reserve(nummern.size());
  for (const int i : nummern) gesuchte.push_back(Zeilen[static_cast<std::size_t>(i)].Basis);
  const std::vector<int> orte = Inhalte_zuordnen(*Spalten, gesuchte, E.Zeilen);
  for (std::size_t k = 0; k < orte.size(); ++k) {
    if (orte[k] >= 0) offene[static_cast<std::size_t>(orte[k])] = nummern[k];
  }
  return offene;
}

/// The rows of an unread set that satisfy `Suche`, in the table's order where it is known: those of the
/// table, with the rows changed here in their place. False when the engine failed.
bool Recordset::Daten::Nachschlagen(const Filterausdruck &Suche, std::vector<int> &Treffer) {
  Treffer.clear();
  const auto &gleichungen = Suche.Gleichungen();
  if (std::any_of(gleichungen.begin(), gleichungen.end(), [](const auto *k) { return k->Wert.unvereinbar; }))
    return true;
  Ergebnis ergebnis;
  if (!Engine_fragen(Suche, ergebnis)) return false;
  for (const int i : Offene_Kandidaten(Suche)) {
    const Zeile &z = Zeilen[static_cast<std::size_t>(i)];
    if (z.sichtbar() && Suche.passt(z.Zellen())) Treffer.push_back(i);
  }
  const std::vector<int> offene = Offene_zuordnen(ergebnis);
  std::unordered_map<int, qint64> folge;  // where the engine's order is all there is
  for (std::size_t k = 0; k < ergebnis.Zeilen.size(); ++k) {
    int zeile = offene[k];
    if (zeile < 0) {
      if (!Suche.passt(ergebnis.Zeilen[k])) continue;
      zeile = static_cast<int>(Zeilen.size());
      Zeilen.emplace_back().Basis = ergebnis.Zeilen[k];
      Treffer.push_back(zeile);
    }
    if (!geordnet()) folge.emplace(zeile, static_cast<qint64>(k));
  }
  const auto ort = [&](int i) {
    if (geordnet()) return Ort(i);
    const auto da = folge.find(i);
    if (da != folge.end()) return da->second;
    // A changed row that is not in the table any more: perhaps somebody else changed it. Who looks whether it
    // is still pending must not meet the other's first.
    const bool geaendert = Zeilen[static_cast<std::size_t>(i)].Basis != nullptr;
    return geaendert ? qint64(-1) : std::numeric_limits<qint64>::max();
  };
  std::stable_sort(Treffer.begin(), Treffer.end(), [&](int a, int b) { return ort(a) < ort(b); });
  return true;
}

/// Find() in an unread set. False when it cannot be answered without reading the table.
bool Recordset::Daten::Vorwaerts_nachschlagen(const Filterausdruck &Suche) {
  if (Sicht_gilt) return false;
  const int von = Aktuell;
  // Which rows lie behind the current one nobody knows without their order.
  if (!geordnet() && von >= 0) {
    const Zeile &hier = Zeilen[static_cast<std::size_t>(von)];
    return hier.sichtbar() && Suche.passt(hier.Zellen());
  }
  std::vector<int> treffer;
  if (!Nachschlagbar(Suche) || !Nachschlagen(Suche, treffer)) return false;
  const auto da = std::find_if(treffer.begin(), treffer.end(), [&](int i) {
    if (von < 0) return true;
    return Ort(i) != Ort(von) ? Ort(i) > Ort(von) : Zeilen[static_cast<std::size_t>(von)].Basis || i >= von;
  });
  if (da == treffer.end()) return false;
  Aktuell = *da;
  return true;
}

}  // namespace marklink::db
