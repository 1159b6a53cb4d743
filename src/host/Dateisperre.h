// Locks between programs that work on the same files.
#pragma once

#include <QString>

namespace marklink {

/// A lock on a file of its own, which is there as long as the lock is held. The system gives it back when the
/// program ends, however it ends: no lock is ever left behind.
class Dateisperre {
 public:
  explicit Dateisperre(const QString &Datei) : Datei_(Datei) {}
  ~Dateisperre();
  Dateisperre(const Dateisperre &) = delete;
  Dateisperre &operator=(const Dateisperre &) = delete;

  enum class Stand {
    Erhalten,
    Belegt,      ///< somebody else held it all the while
    Unmoeglich,  ///< the file cannot be made here
  };
  Stand Sperren(int Wartezeit_ms);

 private:
  Stand Versuchen();

  QString Datei_;
  int Griff_ = -1;
};

}  // namespace marklink
