// What the editor of a list knows and does: the rows of the whole table, whether they were changed, the rules
// that follow an edit, and writing the table.
#pragma once

#include "Listen.h"
#include "ui/Auftragsstatusliste.h"
#include "ui/Dialoge.h"

namespace marklink {

class Listenpflege : public Tabellenquelle {
 public:
  /// `Was` outlives it. Nothing is read yet.
  explicit Listenpflege(const Liste &Was) : Liste_(Was) {}

  const Liste &Was() const { return Liste_; }
  /// Reads the table in the order in which it comes. When that fails the list is empty, takes no new rows,
  /// and is never written: it would delete what it does not know. The order statuses take their row colours
  /// from the status list as it is now.
  void Liste_laden();
  /// Replaces the whole table by the rows, also when nothing was changed. A failure is passed over: no
  /// transaction holds the deleting and the writing together, on purpose. The order statuses build the status
  /// list anew.
  void Liste_speichern();

  bool Geaendert() const { return Geaendert_; }
  void Geaendert_setzen() { Geaendert_ = true; }
  /// Asks what shall become of the changes; Nein without a question when there are none.
  Antwort Aenderungen_fragen() const;

  bool Loeschen_fragen() const;
  /// Takes the rows away, ascending; the table keeps them until it is written.
  void Zeilen_loeschen(const std::vector<int> &Zeilen);

  /// Lets the user pick the row's colour. False: cancelled, or a list without colours.
  bool Farbe_waehlen(int Zeile);

  int Zeilen() const override { return int(Inhalt_.size()); }
  QVariant Zelle(int Zeile, int Spalte) const override { return Inhalt_[size_t(Zeile)][size_t(Spalte)]; }
  /// An empty WebshopID becomes the row's number; a Standard edit takes it from every other row, whatever
  /// the new value is.
  bool Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) override;
  std::optional<qint32> Zeilenfarbe(int Zeile) const override;
  bool Zeile_anfuegen() override;
  void Zeile_wiederherstellen(int Zeile, const std::vector<QVariant> &Werte) override;
  void Zeile_entfernen(int Zeile) override;
  /// Shows the box about missing fields.
  Zeilenurteil Zeile_beenden(int Zeile, bool Neu) override;

 private:
  QString Text(int Zeile, const char *Feld) const;  ///< null, and a list without the field: empty
  bool Fehlt(int Zeile, const char *Feld) const;    ///< the list has the field, the row no text in it
  void Standard_nehmen(int Zeile);
  void Standards_zuruecksetzen(int Zeile);

  const Liste &Liste_;
  std::vector<std::vector<QVariant>> Inhalt_;  ///< by row, by column of the grid
  std::vector<Auftragsstatusfarbe> Farben_;
  /// By row, what Standard was before the row edit that is under way took it away: an edit that is dropped
  /// must not leave the list without its default.
  std::vector<QVariant> Standards_vorher_;
  bool Geaendert_ = false;
  bool Gelesen_ = false;  ///< Inhalt_ stands for the whole table
};

}  // namespace marklink
