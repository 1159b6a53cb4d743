// Asking for a password.
#include "Kennwort.h"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>

#include "Ausgabe.h"

namespace marklink {
namespace {

/// The terminal shows nothing of what is typed as long as this lives.
class Verdeckt {
 public:
  Verdeckt() {
    if (::tcgetattr(STDIN_FILENO, &Vorher_) != 0) return;
    termios still = Vorher_;
    still.c_lflag &= ~tcflag_t(ECHO);
    still.c_lflag |= ECHONL;
    Gesetzt_ = ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &still) == 0;
  }
  ~Verdeckt() {
    if (Gesetzt_) ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &Vorher_);
  }
  Verdeckt(const Verdeckt &) = delete;
  Verdeckt &operator=(const Verdeckt &) = delete;

 private:
  termios Vorher_{};
  bool Gesetzt_ = false;
};

std::optional<QString> Zeile_lesen() {
  QByteArray zeile;
  for (char z = 0;;) {
    // Ctrl-C ends the waiting; reading alone would go on after it.
    pollfd eingabe{STDIN_FILENO, POLLIN, 0};
    if (::poll(&eingabe, 1, -1) < 0) return {};
    if (::read(STDIN_FILENO, &z, 1) != 1) break;
    if (z != '\n') {
      zeile += z;
      continue;
    }
    if (zeile.endsWith('\r')) zeile.chop(1);
    return QString::fromUtf8(zeile);
  }
  if (zeile.isEmpty()) return {};
  return QString::fromUtf8(zeile);
}

}  // namespace

std::optional<QString> Kennwort_erfragen(const QString &Anmeldung) {
  const char *const umgebung = "MARKLINK_KENNWORT";
  if (qEnvironmentVariableIsSet(umgebung)) return QString::fromUtf8(qgetenv(umgebung));
  std::optional<QString> kennwort;
  if (::isatty(STDIN_FILENO) != 0) {
    const Verdeckt verdeckt;
    std::fprintf(stderr, "Kennwort für %s: ", Anzeigbar(Anmeldung).toUtf8().constData());
    kennwort = Zeile_lesen();
    if (!kennwort) std::fputc('\n', stderr);
  } else {
    kennwort = Zeile_lesen();
  }
  if (!kennwort)
    Fehler_melden(
        QStringLiteral("Es fehlt das Kennwort für die Anmeldung '%1': in MARKLINK_KENNWORT oder als "
                       "Zeile der Standardeingabe.")
            .arg(Anmeldung));
  return kennwort;
}

}  // namespace marklink
