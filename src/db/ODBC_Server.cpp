// What all connections to one server with one login have in common.
#include "ODBC_Server.h"

namespace marklink::db {

namespace {

constexpr qint64 Langsam_ms = 1000;  ///< a login that fails later than that was waited for
constexpr qint64 Schonzeit_ms = 5000;

}  // namespace

bool Odbc_Server::Anmelden(Odbc_Griffe &Griffe, const Verbindungsdaten &Daten, QString &Fehler) {
  if (Vergeblich_.isValid() && !Vergeblich_.hasExpired(Schonzeit_ms)) {
    Fehler = Fehler_;
    return false;
  }
  Vergeblich_.invalidate();
  QElapsedTimer uhr;
  uhr.start();
  if (Griffe.Verbinden(Daten, Fehler)) return true;
  if (uhr.elapsed() >= Langsam_ms) {
    Vergeblich_.start();
    Fehler_ = Fehler;
  }
  return false;
}

std::shared_ptr<Odbc_Katalog> Odbc_Server::Katalog() {
  auto katalog = Katalog_.lock();
  if (!katalog) Katalog_ = katalog = std::make_shared<Odbc_Katalog>();
  return katalog;
}

}  // namespace marklink::db
