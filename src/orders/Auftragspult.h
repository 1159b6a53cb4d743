// The order desk without its window: what it holds, and one method for each command of its toolbar, menu and
// keys. The window shows it, and calls a command only when none is under way.
#pragma once

#include <functional>

#include "Auftragsansicht.h"
#include "Auftragsliste.h"
#include "Auftragstabelle.h"
#include "Auswahllisten.h"
#include "Bestellstatusdialog.h"

namespace marklink {

class Auftragspult {
 public:
  Auftragsliste Liste;
  Auftragstabelle Tabelle{Liste};
  Auswahllisten Listen;
  /// Shows frmBestellstatus modally; without it the command ends as if the dialog had been cancelled.
  std::function<void(Bestellstatusdialog &)> Statusdialog_zeigen;

  // --- opening and closing ------------------------------------------------------------------------
  /// Reads pick lists and order statuses. Statuses that were checked before are checked again.
  void Oeffnen();
  void Auftragsstati_laden();
  /// On the first activation: fetches the orders if the client wants that, else loads the list.
  void Erste_Aktivierung();
  /// The window is to close: keeps the period and asks where the client wants to be asked. False: it stays.
  bool Beenden();
  /// The window is gone.
  static void Freigeben();

  // --- toolbar ------------------------------------------------------------------------------------
  void Bestellungen();
  void Bestellungen_abrufen_auftragsstatusliste();
  void Bestellungen_Loeschen();
  void Kunden();
  void Auftrag();
  void Rechnung();
  // The lists of the marked orders.
  void drucken_bestellliste();
  void drucken_transaktionsliste();
  void drucken_transaktionsliste_datei();
  void Einstellung();
  void Versand();
  void versand_einstellungen();

  // --- context menu; those for one order do nothing without a current row ---------------------------
  void mnuKontext_Status_Dialog();
  void mnuKontext_Status_setzen(const QString &Status);
  void mnuKontext_Alles_markieren() { Liste.Alles_markieren(); }
  void mnuKontext_Markierung_aufheben() { Liste.Markierung_aufheben(); }
  void mnuKontext_Versender();
  void mnuKontext_Rechnungscheck();

  /// Runs the command of that key ("Bestellungen", "einstellungen_sprachen", "mnuKontext_Rechnungscheck").
  /// False: no such command, or one that is the window's own.
  bool Befehl(const QString &Schluessel);

  // --- other controls -----------------------------------------------------------------------------
  /// Loads the list, unless a run is under way.
  void Aktualisieren();
  /// Another period was picked.
  void Zeitraum_waehlen(int Zeitraum);

 private:
  QString Aktuelle_Bestellung() const;
};

}  // namespace marklink
