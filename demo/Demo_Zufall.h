// Repeatable chance for the demo data: the same numbers on every machine and with every standard library.
#pragma once

#include <QtGlobal>
#include <random>
#include <vector>

namespace marklink::demo {

class Zufall {
 public:
  explicit Zufall(quint64 Start) : Werk_(Start) {}

  /// 0 <= result < Grenze. The library's own distributions differ between implementations, the engine does
  /// not.
  int unter(int Grenze) { return static_cast<int>(Werk_() % static_cast<quint64>(Grenze)); }
  /// Von <= result <= Bis.
  int zwischen(int Von, int Bis) { return Von + unter(Bis - Von + 1); }
  /// True in `Prozent` of 100 cases.
  bool trifft(int Prozent) { return unter(100) < Prozent; }

  template <typename T>
  const T &aus(const std::vector<T> &Auswahl) {
    return Auswahl[static_cast<std::size_t>(unter(static_cast<int>(Auswahl.size())))];
  }

 private:
  std::mt19937_64 Werk_;
};

}  // namespace marklink::demo
