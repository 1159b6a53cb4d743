// Where a new client's database goes once it is made: a file, or a server's catalogue.
#pragma once

#include <memory>

#include "Mandant_anlegen.h"
#include "Ruecknahme.h"

namespace marklink {

class Mandantenablage {
 public:
  virtual ~Mandantenablage() = default;
  /// Where the workshop, a folder beside what is made, is to lie.
  virtual QString Ordner() const = 0;
  /// Why the client cannot go there, as far as the folder tells; empty when it can.
  virtual QString Pruefen() const = 0;
  /// Puts there what the workshop holds: <Name>.mdb and, for type 0, <Name>.afk. Empty, or why it failed.
  virtual QString Ablegen(const QString &Werkstatt, Ruecknahme &Zurueck) = 0;
};

/// By the plan and the program context, whose host configuration is complete. The plan has to live as long.
std::unique_ptr<Mandantenablage> Mandantenablage_waehlen(const Mandantenplan &Plan);

std::unique_ptr<Mandantenablage> Ablage_in_Dateien(const Mandantenplan &Plan);
std::unique_ptr<Mandantenablage> Ablage_auf_Server(const Mandantenplan &Plan, const Serverzugang &Zugang);

}  // namespace marklink
