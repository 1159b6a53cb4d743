// What the server counts and how it is made to misbehave.
#include "Stoerung.h"

#include <sys/mman.h>

#include <new>
#include <utility>

namespace marklink::tds {

Stoerung &Stoerung_holen() {
  static Stoerung &gemeinsam =
      *new (::mmap(nullptr, sizeof(Stoerung), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
          Stoerung{};
  return gemeinsam;
}

bool faellig(std::atomic<int> &Zaehler) { return Zaehler > 0 && --Zaehler == 0; }

std::atomic<int> *Zahl_finden(const QByteArray &Name) {
  Stoerung &s = Stoerung_holen();
  const std::pair<const char *, std::atomic<int> *> alle[] = {{"anfragen", &s.Anfragen},
                                                              {"anmeldungen", &s.Anmeldungen},
                                                              {"ablehnen", &s.Ablehnen},
                                                              {"langsam", &s.Langsam},
                                                              {"trennen", &s.Trennen},
                                                              {"trennen-danach", &s.Trennen_danach},
                                                              {"trennen-mitten", &s.Trennen_mitten},
                                                              {"verstummen", &s.Verstummen},
                                                              {"fehler", &s.Fehler},
                                                              {"fehlernummer", &s.Fehlernummer},
                                                              {"protokoll", &s.Protokoll}};
  for (const auto &[name, zahl] : alle) {
    if (Name == name) return zahl;
  }
  return nullptr;
}

}  // namespace marklink::tds
