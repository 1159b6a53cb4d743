// The launcher `marklink`: a small host that opens a client and drives the library from a terminal or with
// its windows.
#include <cstdlib>

#include "Anwendung.h"
#include "Befehlszeile.h"
#include "Schirmnamen.h"
#include "Start.h"

int main(int argc, char *argv[]) {
  // Arguments and texts are UTF-8 whatever the machine's locale says; Qt would complain about any other.
  ::setenv("LC_ALL", "C.UTF-8", 1);
  QStringList argumente;
  for (int i = 1; i < argc; ++i) argumente << QString::fromUtf8(argv[i]);
  const marklink::Befehlszeile zeile = marklink::Befehlszeile_lesen(argumente);
  auto art = marklink::Anwendungsart::Ohne;
  if (zeile.Was == marklink::Befehlszeile::Art::Ausfuehren) {
    if (marklink::Braucht_Fenster(zeile.Aufruf_)) art = marklink::Anwendungsart::Fenster;
    if (marklink::Braucht_Schriften(zeile.Aufruf_)) art = marklink::Anwendungsart::Schriften;
  }
  int nur_name = 1;  // the arguments are ours, none of them is the toolkit's
  const auto programm = marklink::Anwendung_erzeugen(nur_name, argv, art);
  return marklink::Launcher_starten(zeile);
}
