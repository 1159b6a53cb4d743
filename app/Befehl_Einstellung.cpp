// marklink einstellung: the client's settings store.
#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Sitzung.h"
#include "host/Datenbank.h"
#include "host/Zeichensatz.h"

namespace marklink {

int Befehl_Einstellung_lesen(const Aufruf &A) {
  if (!Einstellungen_oeffnen(A)) return Fehlgeschlagen;
  Ausgeben(Anzeigbar(Option_lesen(A.Argumente[0], A.Argumente[1])));
  return Erledigt;
}

int Befehl_Einstellung_schreiben(const Aufruf &A) {
  bool darstellbar = true;
  Nach_1252(A.Argumente.join(u' '), &darstellbar);
  if (!darstellbar) {
    Fehler_melden(QStringLiteral("Die Einstellung enthält Zeichen, die nicht gespeichert werden können."));
    return Falscher_Aufruf;
  }
  if (!Einstellungen_oeffnen(A)) return Fehlgeschlagen;
  const QString &wert = A.Argumente[2];
  if (!Option_schreiben(A.Argumente[0], A.Argumente[1], wert)) {
    Fehler_melden(QStringLiteral("Die Einstellung konnte nicht gespeichert werden."));
    return Fehlgeschlagen;
  }
  // Long texts and line ends do not survive in every store.
  if (Option_lesen(A.Argumente[0], A.Argumente[1]) == wert) return Erledigt;
  Fehler_melden(QStringLiteral("Die Einstellung wurde gespeichert, wird aber nur verkürzt gelesen."));
  return Fehlgeschlagen;
}

}  // namespace marklink
