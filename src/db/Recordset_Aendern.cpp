// The record set: editing, adding and deleting rows.
#include <algorithm>

#include "Ablaufverfolgung.h"
#include "Feldwert.h"
#include "Recordset_Daten.h"

namespace marklink::db {

Zeile *Recordset::Daten::Aktuelle() {
  if (Aktuell < 0) Sicht_fordern();
  return Aktuell >= 0 ? &Zeilen[static_cast<std::size_t>(Aktuell)] : nullptr;
}

/// Gives the row cells of its own and remembers them for CancelUpdate().
void Recordset::Daten::Bearbeiten(Zeile &Z) {
  const std::size_t anzahl = Spalten->Zellen();
  if (!Z.Neu) {
    Z.Neu = Aenderungen.Zellen(anzahl);
    if (Z.Basis) std::copy_n(Z.Basis, anzahl, Z.Neu);
  }
  if (In_Arbeit) return;
  In_Arbeit = true;
  Vorher.assign(Z.Neu, Z.Neu + anzahl);
  Vorher_Stand = Z.S;
}

void Recordset::Daten::vormerken(int Nummer) {
  Zeile &z = Zeilen[static_cast<std::size_t>(Nummer)];
  if (z.Offen) return;
  z.Offen = true;
  Offene.push_back(Nummer);
}

void Recordset::Daten::Arbeit_uebernehmen() {
  if (!In_Arbeit) return;
  In_Arbeit = false;
  if (Aktuell < 0) return;
  Zeile &z = Zeilen[static_cast<std::size_t>(Aktuell)];
  if (z.S == Zeile::Stand::Sauber) z.S = Zeile::Stand::Geaendert;
  vormerken(Aktuell);
}

void Recordset::Daten::Arbeit_verwerfen() {
  if (!In_Arbeit || Aktuell < 0) return;
  In_Arbeit = false;
  Zeile &z = Zeilen[static_cast<std::size_t>(Aktuell)];
  if (z.S == Zeile::Stand::Neu && !z.Offen) {
    z.S = Zeile::Stand::Weg;
    const int zurueck = Vorher_Aktuell;
    aus_Sicht_nehmen(Aktuell);
    Aktuell = zurueck;
    if (Sicht_gilt) {
      const auto platz = std::find(Sicht.begin(), Sicht.end(), zurueck);
      Stellen(static_cast<int>(platz - Sicht.begin()));
    }
    return;
  }
  std::copy(Vorher.begin(), Vorher.end(), z.Neu);
  for (Feldindex &index : Indizes) {
    if (Aktuell < index.Zeilen()) index.eintragen(Aktuell, z.Neu, *Spalten);
  }
}

void Recordset::Daten::Neue_Zeile() {
  Arbeit_uebernehmen();
  Vorher_Aktuell = Aktuell;
  Zeile z;
  z.S = Zeile::Stand::Neu;
  const int nummer = static_cast<int>(Zeilen.size());
  z.Neu = Aenderungen.Zellen(Spalten->Zellen());
  for (std::size_t i = 0; i < Spalten->Felder.size(); ++i) {
    if (Spalten->Felder[i].Art != Feldart::Ja_Nein) continue;
    z.Neu[i] = Zelle::aus_Ganz(0);
    z.Neu[i].Gesetzt = true;
  }
  Zeilen.push_back(z);
  if (Sicht_gilt) {
    Sicht.push_back(nummer);
    Stelle = static_cast<int>(Sicht.size()) - 1;
  }
  Aktuell = nummer;
  Bearbeiten(Zeilen.back());
}

void Recordset::Daten::aus_Sicht_nehmen(int Nummer) {
  if (!Sicht_gilt) return;
  const bool hier = Stelle >= 0 && Stelle < static_cast<int>(Sicht.size()) &&
                    Sicht[static_cast<std::size_t>(Stelle)] == Nummer;
  const auto platz = hier ? Sicht.begin() + Stelle : std::find(Sicht.begin(), Sicht.end(), Nummer);
  if (platz != Sicht.end()) Sicht.erase(platz);
}

void Recordset::Daten::Loeschen() {
  if (!Aktuelle()) return;
  Sicht_fordern();
  if (Aktuell < 0) return;  // the late read failed
  In_Arbeit = false;
  const int nummer = Aktuell;
  Zeile &z = Zeilen[static_cast<std::size_t>(nummer)];
  const bool neu = z.S == Zeile::Stand::Neu;
  z.S = neu ? Zeile::Stand::Weg : Zeile::Stand::Geloescht;
  aus_Sicht_nehmen(nummer);
  if (neu) {
    std::erase(Offene, nummer);
    z.Offen = false;
  } else {
    vormerken(nummer);
  }
  Stellen(Stelle);
}

void Recordset::Daten::Setzen(const QString &Name, const QVariant &Wert) {
  const int nummer = Spalten->finden(Name);
  Zeile *zeile = nummer >= 0 ? Aktuelle() : nullptr;
  if (!zeile) {
    if (Geoeffnet && Ablaufverfolgung_an())
      Ablauf_melden(QStringLiteral("set field"), QStringLiteral("no such field or row: ") + Name);
    return;
  }
  const Feld &feld = Spalten->Felder[static_cast<std::size_t>(nummer)];
  auto zelle = feld.Autowert ? std::nullopt : Zelle_bilden(Wert, feld, Mundart, Aenderungen);
  if (!zelle) {
    if (Ablaufverfolgung_an()) {
      Ablauf_melden(QStringLiteral("set field"), QStringLiteral("the column cannot take the value: ") + Name);
    }
    return;
  }
  Bearbeiten(*zeile);
  zelle->Gesetzt = true;
  zeile->Neu[nummer] = *zelle;
  for (Feldindex &index : Indizes) {
    if (Aktuell < index.Zeilen() && index.enthaelt(nummer)) index.eintragen(Aktuell, zeile->Neu, *Spalten);
  }
}

}  // namespace marklink::db
