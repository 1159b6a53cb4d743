// The launcher `marklink`: a small host that opens a client and drives the library from a terminal.
#include <QCoreApplication>
#include <cstdlib>

#include "Start.h"

int main(int argc, char *argv[]) {
  // Arguments and texts are UTF-8 whatever the machine's locale says; Qt would complain about any other.
  ::setenv("LC_ALL", "C.UTF-8", 1);
  QCoreApplication programm(argc, argv);
  QStringList argumente;
  for (int i = 1; i < argc; ++i) argumente << QString::fromUtf8(argv[i]);
  return marklink::Launcher_starten(argumente);
}
