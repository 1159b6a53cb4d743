// The installed printers, and none at all when no port was installed.
#include "Drucker.h"

namespace marklink {

namespace {

class Ohne_Drucker final : public Drucker {
 public:
  QStringList Namen() const override { return {}; }
  QString Standard() const override { return {}; }
};

Drucker *Installiert = nullptr;

}  // namespace

Drucker &drucker() {
  static Ohne_Drucker ohne;
  return Installiert != nullptr ? *Installiert : ohne;
}

void Drucker_setzen(Drucker *Neu) { Installiert = Neu; }

}  // namespace marklink
