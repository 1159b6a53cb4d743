// Cells and the memory behind them.
#include "Zelle.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace marklink::db {

namespace {
constexpr std::size_t Block_klein = std::size_t(8) << 10;
constexpr std::size_t Block_gross = std::size_t(1) << 20;
}  // namespace

bool Zelle::gleich(const Zelle &Andere) const {
  if (Inhalt != Andere.Inhalt) return false;
  if (!hat_Bytes()) return Ganz == Andere.Ganz;
  return Laenge == Andere.Laenge && (Laenge == 0 || std::memcmp(Daten, Andere.Daten, Laenge) == 0);
}

char *Speicher::Bytes(std::size_t Anzahl) {
  if (Bloecke_.empty() || Bloecke_.back().Groesse - Belegt_ < Anzahl) {
    const std::size_t naechste =
        Bloecke_.empty() ? Block_klein : std::min(Block_gross, Bloecke_.back().Groesse * 2);
    const std::size_t groesse = std::max(naechste, Anzahl);
    Bloecke_.push_back({std::make_unique_for_overwrite<char[]>(groesse), groesse});
    Belegt_ = 0;
  }
  char *stelle = Bloecke_.back().Daten.get() + Belegt_;
  Belegt_ += Anzahl;
  return stelle;
}

Zelle *Speicher::Zellen(std::size_t Anzahl) {
  if (!Bloecke_.empty()) Belegt_ = std::min((Belegt_ + 7) & ~std::size_t(7), Bloecke_.back().Groesse);
  char *stelle = Bytes(Anzahl * sizeof(Zelle));
  return std::uninitialized_default_construct_n(reinterpret_cast<Zelle *>(stelle), Anzahl) - Anzahl;
}

Zelle Speicher::Kopie(const Zelle &Vorlage) {
  Zelle kopie = Vorlage;
  if (Vorlage.hat_Bytes() && Vorlage.Laenge > 0) {
    char *ziel = Bytes(Vorlage.Laenge);
    std::memcpy(ziel, Vorlage.Daten, Vorlage.Laenge);
    kopie.Daten = ziel;
  }
  return kopie;
}

void Speicher::leeren() {
  if (Bloecke_.size() > 1) {
    Bloecke_.erase(Bloecke_.begin(), Bloecke_.end() - 1);
  }
  Belegt_ = 0;
}

}  // namespace marklink::db
