// Locks between programs that work on the same files.
#include "Dateisperre.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <cerrno>

namespace marklink {

Dateisperre::~Dateisperre() {
  if (Griff_ < 0) return;
  // Before the lock goes: afterwards the name may be somebody else's file.
  ::unlink(QFile::encodeName(Datei_).constData());
  ::close(Griff_);
}

Dateisperre::Stand Dateisperre::Versuchen() {
  const QByteArray datei = QFile::encodeName(Datei_);
  const int griff = ::open(datei.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (griff < 0) return Stand::Unmoeglich;
  struct stat offen {
  }, da{};
  if (::flock(griff, LOCK_EX | LOCK_NB) != 0) {
    const bool belegt = errno == EWOULDBLOCK || errno == EINTR;
    ::close(griff);
    return belegt ? Stand::Belegt : Stand::Unmoeglich;
  }
  // The last holder may have taken the file away between the two calls: then this lock locks nobody out.
  if (::fstat(griff, &offen) != 0 || ::stat(datei.constData(), &da) != 0 || offen.st_ino != da.st_ino) {
    ::close(griff);
    return Stand::Belegt;
  }
  Griff_ = griff;
  return Stand::Erhalten;
}

Dateisperre::Stand Dateisperre::Sperren(int Wartezeit_ms) {
  constexpr int Pause_ms = 20;
  QElapsedTimer uhr;
  uhr.start();
  for (;;) {
    const Stand stand = Versuchen();
    if (stand != Stand::Belegt || uhr.hasExpired(Wartezeit_ms)) return stand;
    QThread::msleep(Pause_ms);
  }
}

}  // namespace marklink
