// Observation of statements and injected failures.
#include "Beobachtung.h"

namespace marklink::db {

namespace {

struct Stand {
  std::function<void(const QString &)> Beobachter;
  db::Mitschreiber Mitschreiber = nullptr;
  int Scheitern_bei = 0;
  int Aufrufe = 0;
};

Stand &stand() {
  static Stand s;
  return s;
}

}  // namespace

bool Aufruf_erlaubt() {
  Stand &s = stand();
  return ++s.Aufrufe != s.Scheitern_bei;
}

bool wird_beobachtet() { return static_cast<bool>(stand().Beobachter); }

void Beobachtet(const QString &Text) {
  // A copy: the observer may end the observation.
  const auto beobachter = stand().Beobachter;
  if (beobachter) beobachter(Text);
}

void Beobachter_setzen(std::function<void(const QString &Text)> Beobachter) {
  stand().Beobachter = std::move(Beobachter);
}

void Mitschreiber_setzen(Mitschreiber M) { stand().Mitschreiber = M; }

void Mitschreiben(Dialekt D, const Anweisung &Sql) {
  if (stand().Mitschreiber && Sql.Gueltig()) stand().Mitschreiber(D, Sql);
}

void Fehler_einspeisen(int n) {
  stand().Scheitern_bei = n;
  stand().Aufrufe = 0;
}

int Aufrufe_gezaehlt() { return stand().Aufrufe; }

}  // namespace marklink::db
