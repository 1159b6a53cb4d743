// Keeps the drawing of a number from freezing the program: while it lasts, events are handled, a cancel ends
// it, and where it stands still somebody is asked whether it makes sense to go on.
#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace marklink {

/// A drawing that stands still: its number is taken, and the moved counter gave the same number again. That
/// is so where the counter is missing or no number, where the format shows no counter, and where the settings
/// cannot be written.
struct Stillstand {
  QString Bereich;  ///< number range
  QString Nummer;   ///< the number that is taken
  int Runden = 0;   ///< rounds that it stands still already, from 1
};

/// Asked in each round of a standstill: true tries once more, false ends the drawing without a number.
using Stillstandsfrage = std::function<bool(const Stillstand &)>;

/// Installed by a host that has no operator, so that its runs come to an end. Empty, as at the start: the
/// operator decides by the cancel button of the progress window, which is then shown.
void Stillstandsfrage_setzen(Stillstandsfrage Neu);

/// Watches over one drawing. A cancel from before belongs to the caller's run, which ends after its record
/// and gets it back; here it only ends a standstill.
class Ziehungsaufsicht {
 public:
  explicit Ziehungsaufsicht(const QString &Bereich);
  ~Ziehungsaufsicht();
  Ziehungsaufsicht(const Ziehungsaufsicht &) = delete;
  Ziehungsaufsicht &operator=(const Ziehungsaufsicht &) = delete;

  /// That number is taken: whether another round is to follow.
  bool Weiter(const QString &Vergeben);

 private:
  bool Bediener_fragen();

  Stillstand Stand_;
  std::optional<QString> Letzte_;
  bool Vorher_abgebrochen_;
  bool Fenster_ = false;
};

}  // namespace marklink
