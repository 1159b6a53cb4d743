// The installed printers, and none at all when no port was installed.
#include "Drucker.h"

#include <optional>

namespace marklink {

namespace {

class Ohne_Drucker final : public Drucker {
 public:
  QStringList Namen() const override { return {}; }
  QString Standard() const override { return {}; }
};

Drucker *Installiert = nullptr;
std::optional<Druckereinstellung> Gewaehlt;

}  // namespace

Drucker &drucker() {
  static Ohne_Drucker ohne;
  return Installiert != nullptr ? *Installiert : ohne;
}

void Drucker_setzen(Drucker *Neu) {
  Installiert = Neu;
  Gewaehlt.reset();
}

Druckereinstellung Aktueller_Drucker() {
  if (Gewaehlt) return *Gewaehlt;
  const QString standard = drucker().Standard();
  return drucker().Einstellung(standard.isEmpty() ? drucker().Namen().value(0) : standard);
}

void Aktueller_Drucker_setzen(const Druckereinstellung &Neu) { Gewaehlt = Neu; }

}  // namespace marklink
