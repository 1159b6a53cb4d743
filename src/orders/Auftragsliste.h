// What the order desk knows: the staged orders that the filters let through, their marks, and the current
// row. The window over it shows cells and turns clicks into calls.
#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <vector>

#include "db/Anweisung.h"
#include "ui/Pruefliste.h"
#include "ui/Zellenspeicher.h"

namespace marklink {

/// A column of the order grid; `Geladen`: read from the staging table by Auftragsliste_laden().
struct Auftragsspalte {
  const char *Schluessel;
  const char16_t *Titel;
  bool Geladen;
};
/// All columns in grid order.
const std::vector<Auftragsspalte> &Auftragsspalten();
/// Place of a key in Auftragsspalten(); -1 when there is no such column.
int Auftragsspalte_finden(const char *Schluessel);

class Auftragsliste {
 public:
  Auftragsliste();

  Pruefliste lvwAuftragsstatus;

  /// Rebuilds the row array under the status filter (checked rows of lvwAuftragsstatus) and the period filter
  /// (Kontext.gViewablePeriod), and stands on the first row. gAbbrechen ends it with what is there.
  void Auftragsliste_laden();
  /// Called at the end of every load, whoever asked for it: the rows are others.
  std::function<void()> Geladen;
  /// The statement of that load.
  db::Anweisung Ladeanweisung() const;

  int Zeilenzahl() const { return Zellen_.Zeilenzahl(); }
  /// Cell by row (0-based) and column key; null outside and for what was not loaded.
  QVariant Zelle(int Zeile, const char *Schluessel) const;
  /// The same by the column's place in Auftragsspalten().
  QVariant Zelle(int Zeile, int Spalte) const;
  /// Edits stay in the row array; the table is not written. Nothing happens outside.
  void Zelle_setzen(int Zeile, const char *Schluessel, const QVariant &Wert);
  void Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert);

  int AktuelleZeile() const { return Aktuell_; }  ///< -1: none
  /// Ignored when there is no such row.
  void AktuelleZeile_setzen(int Zeile);

  bool Markiert(int Zeile) const;
  void Markieren(int Zeile, bool Ja);
  void Alles_markieren();
  void Markierung_aufheben();
  /// Rows with the selection mark.
  int Auswahl_zaehlen() const;

 private:
  bool Vorhanden(int Zeile) const { return Zeile >= 0 && Zeile < Zeilenzahl(); }
  void Alle_markieren(bool Ja);

  Zellenspeicher Zellen_;
  int Aktuell_ = -1;
};

}  // namespace marklink
