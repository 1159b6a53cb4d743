// Cutting a reply body to its XML and landing it in the reply file.
#include "Antwortdatei.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <cstdlib>

namespace marklink {

namespace {

bool Alles_schreiben(int Datei, const QByteArray &Inhalt) {
  const char *daten = Inhalt.constData();
  auto rest = static_cast<size_t>(Inhalt.size());
  while (rest > 0) {
    const ssize_t n = ::write(Datei, daten, rest);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    daten += n;
    rest -= static_cast<size_t>(n);
  }
  return true;
}

/// The file of an earlier reply, opened for writing, when nobody else can reach it: ours, readable by us
/// alone, under this one name, no link and no pipe. -1 otherwise.
int Eigene_oeffnen(const QByteArray &Pfad, qint64 &Groesse) {
  const int datei = ::open(Pfad.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (datei < 0) return -1;
  struct stat lage {};
  if (::fstat(datei, &lage) == 0 && S_ISREG(lage.st_mode) && lage.st_uid == ::geteuid() &&
      lage.st_nlink == 1 && (lage.st_mode & 0777) == 0600) {
    Groesse = lage.st_size;
    return datei;
  }
  ::close(datei);
  return -1;
}

/// Takes the file over. Writing in place spares the file system a new file for each of thousands of replies,
/// which costs many times the exchange itself where a replaced file is flushed to disk at once.
bool Ueberschreiben(int Datei, qint64 Alte_Groesse, const QByteArray &Pfad, const QByteArray &Inhalt) {
  bool gut = Alles_schreiben(Datei, Inhalt);
  if (Alte_Groesse > Inhalt.size()) gut = gut && ::ftruncate(Datei, Inhalt.size()) == 0;
  gut = ::close(Datei) == 0 && gut;
  if (!gut) ::unlink(Pfad.constData());  // better none than a mixture of two replies
  return gut;
}

/// A new file beside the old one (mkstemp makes it 0600 and never opens one that exists) takes its place
/// whole.
bool Neu_anlegen(const QByteArray &Pfad, const QByteArray &Inhalt) {
  QByteArray neu = Pfad + ".XXXXXX";
  const int datei = ::mkstemp(neu.data());
  if (datei < 0) return false;
  bool gut = Alles_schreiben(datei, Inhalt);
  gut = ::close(datei) == 0 && gut;
  gut = gut && ::rename(neu.constData(), Pfad.constData()) == 0;
  if (!gut) ::unlink(neu.constData());
  return gut;
}

}  // namespace

QByteArray Antwort_zuschneiden(const QByteArray &Rumpf) {
  const qsizetype anfang = Rumpf.indexOf("<?xml version=");
  if (anfang < 0) return {};
  return Rumpf.mid(anfang) + "\r\n";
}

bool Antwort_speichern(const QString &Datei, const QByteArray &Inhalt) {
  const QByteArray ziel = QFile::encodeName(Datei);
  qint64 groesse = 0;
  const int alte = Eigene_oeffnen(ziel, groesse);
  return alte >= 0 ? Ueberschreiben(alte, groesse, ziel, Inhalt) : Neu_anlegen(ziel, Inhalt);
}

}  // namespace marklink
