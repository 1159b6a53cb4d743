// Setting up a new client: host configuration, client list, database with its reference rows, settings.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "Serverzugang.h"
#include "stammdaten/Stammdaten.h"

namespace marklink {

struct Mandantenplan {
  QString Name;
  int Typ = 0;                                    ///< database type, 0 or 1
  QString Ordner;                                 ///< the program folder, absolute; made when it is missing
  std::vector<app::Einstellung> Einstellungen{};  ///< on top of those of every new client
  /// Adds further rows while the program context points at the new database; false gives the client up.
  std::function<bool()> Nachtragen{};
  /// For type 1: where the server is. Without it the host configuration says whether there is one.
  std::optional<Serverzugang> Server{};
};

/// Empty when the client is there; else why not, and then nothing of it is left behind. The client list is
/// written last: a client that is in the list is complete.
QString Mandant_anlegen(const Mandantenplan &Plan);

}  // namespace marklink
