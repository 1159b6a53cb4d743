// What the shipment list knows: the shipments that were not exported yet, as the grid jgTab asks for them,
// the user's changes, and the marks.
#pragma once

#include <functional>
#include <map>

#include "db/Anweisung.h"
#include "db/Recordset.h"
#include "ui/Auftragsanschriften.h"
#include "ui/Tabellenquelle.h"
#include "ui/Zellenspeicher.h"

namespace marklink {

/// Cells by row and the column's place in Versandspalten().
class Versandliste : public Tabellenquelle {
 public:
  Versandliste();

  /// Reads the shipments under the period filter (Kontext.gViewablePeriod) anew; changes that were not stored
  /// are gone. gLaeuft cleared or gAbbrechen set ends it with what is there.
  void Versandliste_laden();
  /// Called at the end of every load: the rows are others.
  std::function<void()> Geladen;
  /// The statement of that load.
  static db::Anweisung Ladeanweisung();

  /// Writes the list back to the table, row by row, matched by OrderID. What the user did not change is as it
  /// was read, so only changed cells are sent: a row that is gone by now, and a field that somebody else
  /// changed meanwhile, stay as they are. False when something could not be stored; it can be tried again.
  bool Versandliste_speichern();
  /// Whether there is something to be stored.
  bool Geaendert() const { return !Vorher_.empty(); }

  void Alles_markieren() { Alle_markieren(true); }
  void Markierung_aufheben() { Alle_markieren(false); }
  int Auswahl_zaehlen() const;

  /// Of the row's order; empty for a row that does not exist.
  Auftragsanschriften Anschriften(int Zeile) const;

  /// The row colours of the two participations, "01" and "02"; none at first.
  void Teilnahmefarben_setzen(std::optional<qint32> Eins, std::optional<qint32> Zwei);

  int Zeilen() const override { return Zellen_.Zeilenzahl(); }
  QVariant Zelle(int Zeile, int Spalte) const override;
  /// A date cell takes a date or nothing, every other one any text.
  bool Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) override;
  bool Gesperrt() const override;  ///< in the middle of a run
  std::optional<qint32> Zeilenfarbe(int Zeile) const override;

 private:
  bool Vorhanden(int Zeile, int Spalte) const;
  void Alle_markieren(bool Ja);
  void Zeile_schreiben(db::Recordset &Satz, int Zeile);

  Zellenspeicher Zellen_;
  /// What changed cells held when they were read, by row and column.
  std::map<std::pair<int, int>, QVariant> Vorher_;
  std::optional<qint32> Farbe_Eins_, Farbe_Zwei_;
};

}  // namespace marklink
