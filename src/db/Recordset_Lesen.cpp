// The record set: opening, reading late, filters and the rows under them.
#include <algorithm>

#include "Ablaufverfolgung.h"
#include "Recordset_Daten.h"
#include "Zeilenabgleich.h"

namespace marklink::db {

namespace {

void Indizes_auffrischen(Feldindex &Index, const std::vector<Zeile> &Zeilen, const Spaltensatz &Spalten) {
  for (int i = Index.Zeilen(); i < static_cast<int>(Zeilen.size()); ++i) {
    Index.eintragen(i, Zeilen[static_cast<std::size_t>(i)].Zellen(), Spalten);
  }
}

}  // namespace

bool ganze_Tabelle_moeglich(const Anweisung &Sql) {
  if (Sql.Stuecke().size() != 1) return false;
  const QStringList worte = Sql.Stuecke()[0].Text.simplified().split(u' ');
  return worte.size() == 4 && worte[0].compare(u"SELECT", Qt::CaseInsensitive) == 0 && worte[1] == u"*";
}

void Recordset::Daten::leeren() {
  Zeilen.clear();
  Offene.clear();
  Indizes.clear();
  Lager.clear();
  Aenderungen.leeren();
  Sicht.clear();
  Texte = {};
  In_Arbeit = false;
  Stelle = 0;
  Aktuell = -1;
  Vorher_Aktuell = -1;
}

/// After a late read that failed. An empty set would take every row of the table for a new one.
void Recordset::Daten::schliessen() {
  const bool angefangen = In_Arbeit && Aktuell >= 0 && !Zeilen[static_cast<std::size_t>(Aktuell)].Offen;
  const std::size_t verloren = Offene.size() + (angefangen ? 1 : 0);
  if (Ablaufverfolgung_an()) {
    Ablauf_melden(QStringLiteral("late read"),
                  QStringLiteral("the set on %1 is closed, pending rows lost: %2")
                      .arg(Spalten->Ganze_Tabelle)
                      .arg(verloren));
  }
  leeren();
  Filter.reset();
  Spalten = Keine_Spalten();
  Gelesen = true;
  Sicht_gilt = true;
  Geoeffnet = false;
}

bool Recordset::Daten::oeffnen() {
  leeren();
  Gelesen = true;
  Sicht_gilt = true;
  Leihe leihe(Verbindung);
  Mundart = leihe.Mundart();
  if (!leihe) return false;
  if (ganze_Tabelle_moeglich(Sql)) {
    const auto spalten = leihe.Beschreiben(Sql);
    if (!spalten) return false;
    Gelesen = spalten->Ganze_Tabelle.isEmpty();
    Sicht_gilt = Gelesen;
    Spalten = spalten;
    if (!Gelesen) return true;
  }
  Ergebnis ergebnis;
  const bool gelesen = leihe.Lesen(Sql, ergebnis);
  if (!gelesen) {
    Spalten = Keine_Spalten();
    return false;
  }
  Spalten = ergebnis.Spalten ? ergebnis.Spalten : Keine_Spalten();
  Zeilen_uebernehmen(ergebnis);
  Lager.push_back(std::move(ergebnis.Lager));
  Sicht_bauen();
  Stellen(0);
  return true;
}

void Recordset::Daten::Zeilen_uebernehmen(const Ergebnis &E) {
  Zeilen.reserve(Zeilen.size() + E.Zeilen.size());
  for (const Zelle *zellen : E.Zeilen) {
    Zeile z;
    z.Basis = zellen;
    Zeilen.push_back(z);
  }
}

/// Sets the place under the filter and the current row with it.
void Recordset::Daten::Stellen(int Neue_Stelle) {
  const int anzahl = static_cast<int>(Sicht.size());
  Stelle = std::clamp(Neue_Stelle, -1, anzahl);
  Aktuell = Stelle >= 0 && Stelle < anzahl ? Sicht[static_cast<std::size_t>(Stelle)] : -1;
}

/// To be called before anything that depends on which rows there are.
void Recordset::Daten::Sicht_fordern() {
  if (!Sicht_gilt) Alles_lesen();
}

/// Reads the table and lays over it what is known here: changed, deleted and new rows, and the current one.
/// Closes the set when the table cannot be read.
void Recordset::Daten::Alles_lesen() {
  Ergebnis ergebnis;
  bool gleich = false;
  {
    Leihe leihe(Verbindung);
    gleich = leihe.Lesen(Sql, ergebnis) && ergebnis.Spalten &&
             ergebnis.Spalten->Zellen() == Spalten->Zellen() &&
             ergebnis.Spalten->Zeilennummer == Spalten->Zeilennummer;
  }
  if (!gleich) {
    schliessen();
    return;
  }
  const int vorher = Aktuell;
  Gelesen = true;
  Sicht_gilt = true;
  Indizes.clear();
  const std::vector<Zeile> bekannte = std::move(Zeilen);
  Zeilen.clear();
  Zeilen_uebernehmen(ergebnis);
  Lager.push_back(std::move(ergebnis.Lager));

  const std::vector<int> neue_Nummer = Bekanntes_auflegen(bekannte);
  for (int &offen : Offene) offen = neue_Nummer[static_cast<std::size_t>(offen)];
  if (Vorher_Aktuell >= 0) Vorher_Aktuell = neue_Nummer[static_cast<std::size_t>(Vorher_Aktuell)];

  Sicht_bauen();
  const int aktuell = vorher >= 0 ? neue_Nummer[static_cast<std::size_t>(vorher)] : -1;
  const auto platz = std::find(Sicht.begin(), Sicht.end(), aktuell);
  Stellen(aktuell >= 0 && platz != Sicht.end() ? static_cast<int>(platz - Sicht.begin()) : 0);
}

/// The row just read that each known one is; -1 for none.
std::vector<int> Recordset::Daten::Bekanntes_finden(const std::vector<Zeile> &Bekannte) const {
  std::vector<int> gefunden(Bekannte.size(), -1);
  const int nummer = Spalten->Zeilennummer;
  if (nummer < 0) {
    // By what it holds; a row that nobody uses may be out of date and take another's place.
    std::vector<std::size_t> gesuchte;
    std::vector<const Zelle *> zellen, gelesene;
    for (std::size_t i = 0; i < Bekannte.size(); ++i) {
      const bool gebraucht = Bekannte[i].Offen || in_Gebrauch(static_cast<int>(i));
      if (!Bekannte[i].Basis || !gebraucht) continue;
      gesuchte.push_back(i);
      zellen.push_back(Bekannte[i].Basis);
    }
    for (const Zeile &z : Zeilen) gelesene.push_back(z.Basis);
    const std::vector<int> orte = Inhalte_zuordnen(*Spalten, zellen, gelesene);
    for (std::size_t k = 0; k < gesuchte.size(); ++k) gefunden[gesuchte[k]] = orte[k];
    return gefunden;
  }
  std::unordered_map<qint64, int> nach_Nummer;
  for (const Zeile &z : Bekannte) {
    if (z.Basis) nach_Nummer.emplace(z.Basis[nummer].Ganz, -1);
  }
  for (std::size_t i = 0; !nach_Nummer.empty() && i < Zeilen.size(); ++i) {
    const auto da = nach_Nummer.find(Zeilen[i].Basis[nummer].Ganz);
    if (da != nach_Nummer.end()) da->second = static_cast<int>(i);
  }
  for (std::size_t i = 0; i < Bekannte.size(); ++i) {
    if (Bekannte[i].Basis) gefunden[i] = nach_Nummer[Bekannte[i].Basis[nummer].Ganz];
  }
  return gefunden;
}

/// Puts the rows in use in the place of the table's; gives the new index of each known row, -1 for none.
std::vector<int> Recordset::Daten::Bekanntes_auflegen(const std::vector<Zeile> &Bekannte) {
  std::vector<int> neue_Nummer = Bekanntes_finden(Bekannte);
  for (std::size_t i = 0; i < Bekannte.size(); ++i) {
    const Zeile &z = Bekannte[i];
    const bool gebraucht = z.Offen || static_cast<int>(i) == Aktuell;
    if (neue_Nummer[i] < 0 && (gebraucht || z.S == Zeile::Stand::Neu)) {
      neue_Nummer[i] = static_cast<int>(Zeilen.size());
      Zeilen.push_back(z);
    } else if (neue_Nummer[i] >= 0 && gebraucht) {
      // Of several copies of one row the changed one counts; one that nobody uses may be out of date.
      Zeile &platz = Zeilen[static_cast<std::size_t>(neue_Nummer[i])];
      if (!platz.Offen) platz = z;
    }
  }
  return neue_Nummer;
}

/// Lists the rows of a read-out set under the filter.
void Recordset::Daten::Sicht_bauen() {
  Sicht.clear();
  const auto pruefen = [this](int i) {
    const Zeile &z = Zeilen[static_cast<std::size_t>(i)];
    if (z.sichtbar() && (!Filter || Filter->passt(z.Zellen()))) Sicht.push_back(i);
  };
  if (Filter && !Filter->Gleichungen().empty()) {
    for (const int i : Kandidaten(Filter->Gleichungen())) pruefen(i);
    return;
  }
  if (!Filter) Sicht.reserve(Zeilen.size());
  for (int i = 0; i < static_cast<int>(Zeilen.size()); ++i) pruefen(i);
}

/// Rows known here that may satisfy all these equations, by an index that is made once and then kept.
std::vector<int> Recordset::Daten::Kandidaten(const std::vector<const Filterausdruck::Knoten *> &Werte) {
  std::vector<int> felder;
  std::vector<const Filterausdruck::Knoten *> brauchbare;
  for (const auto *k : Werte) {
    if (k->Wert.unvereinbar) return {};
    // The cells of a computed column may be of any kind.
    if (Spalten->Felder[static_cast<std::size_t>(k->Feld)].Art == Feldart::Offen) continue;
    felder.push_back(k->Feld);
    brauchbare.push_back(k);
  }
  auto index =
      std::find_if(Indizes.begin(), Indizes.end(), [&](const Feldindex &i) { return i.Felder() == felder; });
  if (index == Indizes.end()) index = Indizes.emplace(Indizes.end(), felder);
  Indizes_auffrischen(*index, Zeilen, *Spalten);
  return index->Kandidaten(brauchbare);
}

/// Makes the rows under the (new) filter the visible ones and stands on the first.
void Recordset::Daten::Filter_anwenden() {
  Unbenutztes_vergessen();
  if (!Gelesen && !Filter) {
    Sicht_gilt = false;
    Sicht.clear();
    Stelle = 0;
    Aktuell = -1;
    return;
  }
  if (Gelesen) {
    Sicht_bauen();
  } else if (Nachschlagbar(*Filter) && Nachschlagen(*Filter, Sicht)) {
    Sicht_gilt = true;
  } else {
    Alles_lesen();
  }
  Stellen(0);
}

/// The place of the first match from the current row on, or the end.
int Recordset::Daten::Suchen(const Filterausdruck &Suche) {
  const int ende = static_cast<int>(Sicht.size());
  const int anfang = std::max(Stelle, 0);
  const bool geordnet = Gelesen;  // rows of a read-out set stand in `Sicht` in ascending order
  if (geordnet && !Suche.Gleichungen().empty()) {
    for (const int i : Kandidaten(Suche.Gleichungen())) {
      const auto platz = std::lower_bound(Sicht.begin() + anfang, Sicht.end(), i);
      const bool da = platz != Sicht.end() && *platz == i;
      if (da && Suche.passt(Zeilen[static_cast<std::size_t>(i)].Zellen()))
        return static_cast<int>(platz - Sicht.begin());
    }
    return ende;
  }
  for (int s = anfang; s < ende; ++s) {
    if (Suche.passt(Zeilen[static_cast<std::size_t>(Sicht[static_cast<std::size_t>(s)])].Zellen())) return s;
  }
  return ende;
}

}  // namespace marklink::db
