// The port for the printers that the machine knows.
#pragma once

#include <QString>
#include <QStringList>

namespace marklink {

class Drucker {
 public:
  virtual ~Drucker() = default;
  virtual QStringList Namen() const = 0;
  virtual QString Standard() const = 0;  ///< empty when there is none
};

/// The installed port; one without printers when none was installed.
Drucker &drucker();
void Drucker_setzen(Drucker *Neu);  ///< not owned; nullptr: none

}  // namespace marklink
