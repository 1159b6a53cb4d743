// The shipment list's screen without its window: one method for each command, opening and closing. The window
// shows it, and calls a command only when none is under way.
#pragma once

#include <QString>

#include "Versandliste.h"

namespace marklink {

class Versandpult {
 public:
  Versandliste Liste;

  /// Runs the command of that toolbar or menu key. False: no such command, or one that is the window's own.
  bool Befehl(const QString &Schluessel);

  void Laden() { Liste.Versandliste_laden(); }
  /// Stores the list, writes the export file, and shows what is left.
  void Exportieren();
  void Loeschen();
  void Einstellungen();
  /// Another period was picked. It counts from the next load on.
  static void Zeitraum_waehlen(int Zeitraum);

  /// The window is to close: asks where the client wants to be asked, and stores the list. False: it stays.
  bool Beenden();
  /// The window is gone: keeps the period.
  static void Freigeben();
};

}  // namespace marklink
