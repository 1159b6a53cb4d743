// The system's clock, with a date of the operator's choice for tests and reruns.
#include "Uhr.h"
#include "db/Zeitpunkt.h"

namespace marklink {
namespace {

class Systemuhr : public Uhr {
 public:
  QDateTime Jetzt() const override {
    const QDateTime jetzt = QDateTime::currentDateTime();
    const QDate heute = QDate::fromString(QString::fromLatin1(qgetenv("MARKLINK_HEUTE")), Qt::ISODate);
    return Zeitpunkt(heute.isValid() ? heute : jetzt.date(), jetzt.time());
  }
};

Uhr *Eingesetzt = nullptr;

}  // namespace

Uhr &uhr() {
  static Systemuhr system;
  return Eingesetzt ? *Eingesetzt : system;
}

void Uhr_setzen(Uhr *Neu) { Eingesetzt = Neu; }

}  // namespace marklink
