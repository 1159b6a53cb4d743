// Finding rows by the values of some fields: a hash over rows that grows and never shrinks. It answers
// candidates only; whoever asks checks them.
#pragma once

#include <algorithm>
#include <vector>

#include "Filterausdruck.h"

namespace marklink::db {

class Feldindex {
 public:
  explicit Feldindex(std::vector<int> Felder) : Felder_(std::move(Felder)) {}

  const std::vector<int> &Felder() const { return Felder_; }
  bool enthaelt(int Feld) const { return std::find(Felder_.begin(), Felder_.end(), Feld) != Felder_.end(); }
  int Zeilen() const { return Zeilen_; }

  /// Enters row `Nummer`; again, when its values have changed since.
  void eintragen(int Nummer, const Zelle *Zeile, const Spaltensatz &Spalten) {
    quint32 streu = 0;
    for (const int feld : Felder_) {
      streu = mischen(streu, Streuwert(Zeile[feld], Spalten.Felder[static_cast<std::size_t>(feld)].Art));
    }
    if (Eintraege_.size() >= Koepfe_.size()) verdoppeln();
    einhaengen({streu, Nummer, -1});
    Zeilen_ = std::max(Zeilen_, Nummer + 1);
  }

  /// Rows in ascending order that may hold these values, one for each field.
  std::vector<int> Kandidaten(const std::vector<const Filterausdruck::Knoten *> &Werte) const {
    quint32 streu = 0;
    for (const auto *k : Werte) streu = mischen(streu, Streuwert(k->Wert));
    std::vector<int> zeilen;
    if (Koepfe_.empty()) return zeilen;
    for (int e = Koepfe_[streu & (Koepfe_.size() - 1)]; e >= 0;
         e = Eintraege_[static_cast<std::size_t>(e)].Naechster) {
      const Eintrag &eintrag = Eintraege_[static_cast<std::size_t>(e)];
      if (eintrag.Streu == streu) zeilen.push_back(eintrag.Zeile);
    }
    std::sort(zeilen.begin(), zeilen.end());
    zeilen.erase(std::unique(zeilen.begin(), zeilen.end()), zeilen.end());
    return zeilen;
  }

 private:
  struct Eintrag {
    quint32 Streu;
    int Zeile;
    int Naechster;
  };

  static quint32 mischen(quint32 Bisher, quint32 Neu) { return (Bisher ^ Neu) * 0x85EBCA6Bu + 0x27D4EB2Fu; }
  void einhaengen(Eintrag E) {
    int &kopf = Koepfe_[E.Streu & (Koepfe_.size() - 1)];
    E.Naechster = kopf;
    kopf = static_cast<int>(Eintraege_.size());
    Eintraege_.push_back(E);
  }
  void verdoppeln() {
    std::vector<Eintrag> alle = std::move(Eintraege_);
    Eintraege_.clear();
    Eintraege_.reserve(alle.size() * 2);
    Koepfe_.assign(std::max<std::size_t>(16, alle.size() * 2), -1);
    for (const Eintrag &e : alle) einhaengen(e);
  }

  std::vector<int> Felder_;
  std::vector<int> Koepfe_;  ///< a power of two of them
  std::vector<Eintrag> Eintraege_;
  int Zeilen_ = 0;
};

}  // namespace marklink::db
