// Takes back what was half made: steps are run in reverse order unless the whole came about.
#pragma once

#include <functional>
#include <vector>

namespace marklink {

class Ruecknahme {
 public:
  Ruecknahme() = default;
  ~Ruecknahme() {
    for (; !Schritte_.empty(); Schritte_.pop_back()) Schritte_.back()();
  }
  Ruecknahme(const Ruecknahme &) = delete;
  Ruecknahme &operator=(const Ruecknahme &) = delete;

  void Merken(std::function<void()> Schritt) { Schritte_.push_back(std::move(Schritt)); }
  /// The whole came about: nothing is taken back.
  void Gelungen() { Schritte_.clear(); }

 private:
  std::vector<std::function<void()>> Schritte_;
};

}  // namespace marklink
