// The installed help display.
#include "Hilfe.h"

#include "db/Ablaufverfolgung.h"

namespace marklink {
namespace {

Hilfeanzeige Installiert = nullptr;

}  // namespace

void Hilfe_zeigen(int Thema) {
  if (Installiert != nullptr)
    Installiert(Thema);
  else
    Ablauf_melden(QStringLiteral("Hilfe"), QStringLiteral("topic %1: no help installed").arg(Thema));
}

void Hilfe_setzen(Hilfeanzeige Neu) { Installiert = Neu; }

}  // namespace marklink
