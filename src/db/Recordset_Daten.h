// What a record set holds. Shared by the Recordset*.cpp files and nobody else.
//
// A set on a whole table ("SELECT * FROM T") starts unread. While it is unread its rows are only those that
// it came to know: new ones, and those that look-ups for filters brought. `Alles_lesen` makes an ordinary,
// read-out set of it. Until then the rows are those of the table at the time of asking.
#pragma once

#include <list>
#include <optional>
#include <unordered_map>

#include "Ergebnis.h"
#include "Feldindex.h"
#include "Filterausdruck.h"
#include "Recordset.h"
#include "Verbindungspool.h"

namespace marklink::db {

struct Zeile {
  enum class Stand : quint8 {
    Sauber,
    Geaendert,
    Neu,
    Geloescht,
    Weg  ///< a new row dropped again, or a deleted one that is deleted in the table too
  };
  const Zelle *Basis = nullptr;  ///< as in the table; nullptr for a new row
  Zelle *Neu = nullptr;          ///< all cells with the changes; nullptr when there are none
  Stand S = Stand::Sauber;
  bool Offen = false;  ///< listed in `Offene`

  const Zelle *Zellen() const { return Neu ? Neu : Basis; }
  bool sichtbar() const { return S != Stand::Geloescht && S != Stand::Weg; }
};

/// The text of the last writing statement; rows changed alike share it.
class Stapeltexte {
 public:
  template <typename Bilden>
  const QByteArray &Text(char Art, int Tabelle, const std::vector<int> &Felder,
                         const std::vector<int> &Geprueft, const std::vector<int> &Gesucht, Bilden bilden) {
    const bool gleich = Art == Art_ && Tabelle == Tabelle_ && Felder == Felder_ && Geprueft == Geprueft_ &&
                        Gesucht == Gesucht_;
    if (!gleich) {
      Art_ = Art;
      Tabelle_ = Tabelle;
      Felder_ = Felder;
      Geprueft_ = Geprueft;
      Gesucht_ = Gesucht;
      Text_ = bilden();
    }
    return Text_;
  }

 private:
  char Art_ = 0;
  int Tabelle_ = -1;
  std::vector<int> Felder_, Geprueft_, Gesucht_;
  QByteArray Text_;
};

/// What a set without columns has.
inline const std::shared_ptr<const Spaltensatz> &Keine_Spalten() {
  static const auto keine = std::make_shared<const Spaltensatz>();
  return keine;
}

/// Whether the statement begins like a plain SELECT on a whole table; only then it is worth describing.
bool ganze_Tabelle_moeglich(const Anweisung &Sql);

struct Recordset::Daten {
  Anweisung Sql;
  QString Verbindung;
  Dialekt Mundart = Dialekt::Jet;
  bool Geoeffnet = false;
  std::shared_ptr<const Spaltensatz> Spalten = Keine_Spalten();

  bool Gelesen = true;
  std::list<Speicher> Lager;  ///< cells of the rows read; the last one takes the look-ups
  Speicher Aenderungen;       ///< cells of new and changed rows
  Speicher Zweitlager;        ///< takes turns with it when rows are forgotten
  std::vector<Zeile> Zeilen;
  std::vector<int> Offene;  ///< rows with changes for the next batch, in the order in which they were made
  std::list<Feldindex> Indizes;

  std::optional<Filterausdruck> Filter;
  Anweisung Bedingung;     ///< the text of `Filter`
  std::vector<int> Sicht;  ///< the rows under the filter
  bool Sicht_gilt = true;  ///< false in an unread set without a filter: nobody has asked for rows yet
  int Stelle = 0;          ///< index into `Sicht`; -1 before it, its size behind it
  int Aktuell = -1;        ///< index into `Zeilen`, -1 for none

  Stapeltexte Texte;  ///< to be dropped with `Spalten`

  bool Ungewiss = false;   ///< nobody knows whether the last batch was written
  bool In_Arbeit = false;  ///< the current row has edits since the last Update()
  std::vector<Zelle> Vorher;
  Zeile::Stand Vorher_Stand = Zeile::Stand::Sauber;
  int Vorher_Aktuell = -1;  ///< the row to return to when a new one is cancelled

  // Opening and reading (Recordset_Lesen.cpp)
  bool oeffnen();
  void leeren();
  void Alles_lesen();
  std::vector<int> Bekanntes_auflegen(const std::vector<Zeile> &Bekannte);
  std::vector<int> Bekanntes_finden(const std::vector<Zeile> &Bekannte) const;
  bool in_Gebrauch(int Nummer) const { return Nummer == Aktuell || (In_Arbeit && Nummer == Vorher_Aktuell); }
  void schliessen();
  void Sicht_fordern();
  void Sicht_bauen();
  std::vector<int> Kandidaten(const std::vector<const Filterausdruck::Knoten *> &Werte);
  void Zeilen_uebernehmen(const Ergebnis &E);
  void Stellen(int Neue_Stelle);
  void Filter_anwenden();
  int Suchen(const Filterausdruck &Suche);
  const Zelle &Zelle_von(const QString &Name, Feldart &Art);

  // Look-ups (Recordset_Nachschlagen.cpp)
  bool Nachschlagbar(const Filterausdruck &Suche) const;
  bool Nachschlagen(const Filterausdruck &Suche, std::vector<int> &Treffer);
  bool Vorwaerts_nachschlagen(const Filterausdruck &Suche);
  bool Engine_fragen(const Filterausdruck &Suche, Ergebnis &Ziel);
  std::vector<int> Offene_Kandidaten(const Filterausdruck &Suche);
  std::vector<int> Offene_zuordnen(const Ergebnis &E) const;
  qint64 Ort(int Nummer) const;
  /// Whether the engine numbers its rows in their order.
  bool geordnet() const { return Spalten->Zeilennummer >= 0 && !Spalten->Nummer_aus_Schluessel; }
  void Unbenutztes_vergessen();

  // Changing (Recordset_Aendern.cpp)
  Zeile *Aktuelle();
  void Bearbeiten(Zeile &Z);
  void vormerken(int Nummer);
  void Arbeit_uebernehmen();
  void Arbeit_verwerfen();
  void Neue_Zeile();
  void Loeschen();
  void Setzen(const QString &Feld, const QVariant &Wert);
  void aus_Sicht_nehmen(int Nummer);

  // Sending (Recordset_Stapel.cpp)
  bool Stapel_senden();
  void Geschriebenes_uebernehmen(Zeile &Z);
  void Teil_uebernehmen(Zeile &Z, int Tabellen);
  void Nur_aktuelle_behalten();
};

}  // namespace marklink::db
