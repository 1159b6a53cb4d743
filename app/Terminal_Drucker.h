// The printer of the command line: a file, on A4. Pages are laid out for a printer, whether the machine has
// one or not.
#pragma once

#include "ui/Drucker.h"

namespace marklink {

class Terminal_Drucker : public Drucker {
 public:
  QStringList Namen() const override { return {Standard()}; }
  QString Standard() const override { return QStringLiteral("Datei"); }
};

}  // namespace marklink
