// Keeps the drawing of a number from freezing the program.
#include "Ziehungsaufsicht.h"

#include <QCoreApplication>
#include <QThread>
#include <utility>

#include "host/Kontext.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

constexpr unsigned long Pause_ms = 20;  ///< between two tries, which only others can make succeed

Stillstandsfrage Installiert;

}  // namespace

void Stillstandsfrage_setzen(Stillstandsfrage Neu) { Installiert = std::move(Neu); }

Ziehungsaufsicht::Ziehungsaufsicht(const QString &Bereich)
    : Vorher_abgebrochen_(std::exchange(Kontext.gAbbrechen, false)) {
  Stand_.Bereich = Bereich;
}

Ziehungsaufsicht::~Ziehungsaufsicht() {
  if (Fenster_) fortschritt().Verbergen();
  Kontext.gAbbrechen = Kontext.gAbbrechen || Vorher_abgebrochen_;
}

bool Ziehungsaufsicht::Weiter(const QString &Vergeben) {
  QCoreApplication::processEvents();
  Stand_.Runden = Letzte_ == Vergeben ? Stand_.Runden + 1 : 0;
  Letzte_ = Stand_.Nummer = Vergeben;
  if (Stand_.Runden == 0) return true;
  // While the counter moves the record at hand is finished; a press of cancel counts after it.
  if (Kontext.gAbbrechen || Vorher_abgebrochen_) return false;
  return Installiert ? Installiert(Stand_) : Bediener_fragen();
}

/// Shows the progress window where the caller has none, and waits for its cancel button a moment.
bool Ziehungsaufsicht::Bediener_fragen() {
  if (!fortschritt().Offen()) {
    fortschritt().ProgressAnzeigen(QStringLiteral("Vorgang wird bearbeitet. Einen Moment bitte..."), 0);
    Fenster_ = true;
  }
  if (Fenster_) fortschritt().Wert(Stand_.Runden);
  QThread::msleep(Pause_ms);
  QCoreApplication::processEvents();
  return !Kontext.gAbbrechen;
}

}  // namespace marklink
