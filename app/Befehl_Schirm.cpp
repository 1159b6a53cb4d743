// marklink schirm: opens a screen by its name.
#include "Ausgabe.h"
#include "Befehlszeile.h"

namespace marklink {

int Befehl_Schirm(const Aufruf &A) {
  Fehler_melden(QStringLiteral("Der Schirm '%1' ist nicht vorhanden: diese Ausgabe hat keine Bildschirme.")
                    .arg(A.Argumente[0]));
  return Fehlgeschlagen;
}

}  // namespace marklink
