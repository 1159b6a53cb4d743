// Waiting for a lock file.
#include "Dateisperre.h"

#include <QElapsedTimer>
#include <QThread>

namespace marklink {

bool Sperren(QLockFile &Sperre, int Wartezeit_ms) {
  // Evenly: the lock's own waiting doubles its pauses and starves the last of many.
  constexpr int Pause_ms = 20;
  QElapsedTimer uhr;
  uhr.start();
  while (!Sperre.tryLock(0)) {
    if (Sperre.error() != QLockFile::LockFailedError || uhr.hasExpired(Wartezeit_ms)) return false;
    QThread::msleep(Pause_ms);
  }
  return true;
}

}  // namespace marklink
