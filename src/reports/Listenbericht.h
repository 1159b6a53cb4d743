// The rows of the two printed lists of orders: from the staged orders to the fields of the report, row by
// row.
#pragma once

#include <array>

#include "Report.h"
#include "db/Recordset.h"

namespace marklink {

/// The lists' descriptions; both have the fields of Listenbericht.
Bericht Bestellliste_beschreiben();
Bericht Transaktionsliste_beschreiben();

class Listenbericht final : public Berichtsdaten {
 public:
  enum class Art { Bestellliste, Transaktionsliste };
  explicit Listenbericht(Art Was) : Was_(Was) {}

  // --- to be set before it runs
  db::Anweisung mSQL;  ///< selects rows of WebshopOrdersXTC
  QString Titeltext, Zeitraum_von, Zeitraum_bis;

  /// Reads the rows and gives the list's description its texts; rows that cannot be read are none.
  static Report Report_Initialisieren(std::shared_ptr<Listenbericht> Daten);

  // --- events of the report
  /// The report's fields and what they are grouped by.
  static void ActiveReport_DataInitialize(Bericht &B, Art Was);
  /// Sets the fields from the current row and moves on; false at the end.
  bool ActiveReport_FetchData(QStringList &Felder) const;
  /// Keeps the text of a clicked link in the program context.
  static void ActiveReport_hyperLink(const QString &Text);
  /// Releases the rows.
  void ActiveReport_ReportEnd();

  int Zeilen() const override { return Anzahl_; }
  QString Feld(int Zeile, int Feld) const override;

 private:
  struct Gelesen {
    int Zeile = -1;
    QStringList Felder;
  };

  Art Was_;
  int Anzahl_ = 0;
  mutable db::Recordset Satz_;
  mutable std::array<Gelesen, 4> Zuletzt_;  ///< by row number: a page asks for a row and its neighbours
};

}  // namespace marklink
