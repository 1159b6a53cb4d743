// The clock as a port: everything that asks for the time asks here.
#pragma once

#include <QDateTime>

namespace marklink {

class Uhr {
 public:
  virtual ~Uhr() = default;
  virtual QDateTime Jetzt() const = 0;
};

/// The installed clock; the system's own when none was installed. MARKLINK_HEUTE=YYYY-MM-DD replaces the
/// date of the system's clock, its time of day goes on.
Uhr &uhr();
/// Installs a clock (not owned; nullptr: the system's own again).
void Uhr_setzen(Uhr *Neu);

}  // namespace marklink
