// Ctrl-C.
#include "Unterbrechung.h"

#include <csignal>

#include "host/Kontext.h"

namespace marklink {
namespace {

volatile std::sig_atomic_t Gedrueckt = 0;

void Unterbrechen(int Signal) {
  Gedrueckt = 1;
  Kontext.gAbbrechen = true;
  std::signal(Signal, SIG_DFL);
}

}  // namespace

void Unterbrechung_einrichten() {
  // A program that was started with Ctrl-C ignored (in the background of a script) keeps ignoring it.
  if (std::signal(SIGINT, &Unterbrechen) == SIG_IGN) std::signal(SIGINT, SIG_IGN);
}

bool Unterbrochen() { return Gedrueckt != 0; }

}  // namespace marklink
