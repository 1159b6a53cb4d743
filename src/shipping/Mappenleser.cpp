// Reading an Excel file. The reader of the format trusts its file: a damaged one can crash it, or send it
// astray for ever. So it works in a process of its own, and what goes wrong there is a workbook that cannot
// be read. A file that has not changed is not read again.
//
// A library has no program of its own that it could start, so the process is a copy of the caller's. Where
// that has threads, a lock that one of them holds can stop the copy: then it is given up after a while, and
// the next look-up tries again.
#include "Mappenleser.h"

#include <fcntl.h>
#include <freexl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>

#include "host/Datumsbilder.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

constexpr unsigned int Wartezeit_Sekunden = 10;
constexpr rlim_t Rechenzeit_Sekunden = 5;  // less, so that a loaded machine is told from a reader astray
constexpr rlim_t Mehr_Speicher = rlim_t{512} * 1024 * 1024;
constexpr qsizetype Groesste_Antwort = qsizetype{64} * 1024 * 1024;
constexpr unsigned int Meiste_Zeilen = 65536, Meiste_Spalten = 256;  // of the format
constexpr quint32 Endemarke = 0x4d415050;

/// A date, ISO in the workbook, as the system writes dates.
QString Datum_umschreiben(const QString &Iso) {
  const QDateTime zeit = Datum_lesen(Iso);
  return zeit.isValid() ? Zeitpunkt_als_Text(zeit) : Iso;
}

QString Zelle_lesen(const void *Griff, unsigned int Zeile, unsigned short Spalte) {
  FreeXL_CellValue wert{};
  if (freexl_get_cell_value(Griff, Zeile, Spalte, &wert) != FREEXL_OK) return {};
  switch (wert.type) {
    case FREEXL_CELL_INT:
      return QString::number(wert.value.int_value);
    case FREEXL_CELL_DOUBLE:
      return Zahl_als_Text(wert.value.double_value);
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
      return QString::fromUtf8(wert.value.text_value);
    case FREEXL_CELL_DATE:
    case FREEXL_CELL_DATETIME:
    case FREEXL_CELL_TIME:
      return Datum_umschreiben(QString::fromUtf8(wert.value.text_value));
    default:
      return {};
  }
}

std::vector<QStringList> Zeilen_lesen(const void *Griff) {
  unsigned int zeilen = 0;
  unsigned short spalten = 0;
  if (freexl_worksheet_dimensions(Griff, &zeilen, &spalten) != FREEXL_OK) return {};
  if (zeilen > Meiste_Zeilen || spalten > Meiste_Spalten) return {};
  std::vector<QStringList> liste(zeilen);
  for (unsigned int zeile = 0; zeile < zeilen; ++zeile)
    for (unsigned short spalte = 0; spalte < spalten; ++spalte) {
      const QString text = Zelle_lesen(Griff, zeile, spalte);
      if (text.isEmpty()) continue;
      while (liste[zeile].size() < spalte) liste[zeile].append(QString());
      liste[zeile].append(text);
    }
  return liste;
}

QString Hindernis_ermitteln(const void *Griff, int Ergebnis) {
  if (Ergebnis != FREEXL_OK) return QStringLiteral("no readable workbook (%1)").arg(Ergebnis);
  unsigned int kennwort = FREEXL_BIFF_PLAIN;
  freexl_get_info(Griff, FREEXL_BIFF_PASSWORD, &kennwort);
  return kennwort == FREEXL_BIFF_OBFUSCATED ? QStringLiteral("the workbook has a password") : QString();
}

/// The work of the process of its own.
QByteArray Mappe_uebersetzen(const QByteArray &Pfad) {
  const void *griff = nullptr;
  const int ergebnis = freexl_open(Pfad.constData(), &griff);
  const QString hindernis = Hindernis_ermitteln(griff, ergebnis);
  unsigned int anzahl = 0;
  if (hindernis.isEmpty()) freexl_get_info(griff, FREEXL_BIFF_SHEET_COUNT, &anzahl);
  QByteArray bytes;
  QDataStream strom(&bytes, QIODevice::WriteOnly);
  strom << hindernis << quint32(anzahl);
  for (unsigned int i = 0; i < anzahl; ++i) {
    const auto nummer = static_cast<unsigned short>(i);
    const char *name = nullptr;
    freexl_get_worksheet_name(griff, nummer, &name);
    const bool gewaehlt = freexl_select_active_worksheet(griff, nummer) == FREEXL_OK;
    const std::vector<QStringList> zeilen = gewaehlt ? Zeilen_lesen(griff) : std::vector<QStringList>();
    strom << QString::fromUtf8(name) << quint32(zeilen.size());
    for (const QStringList &zeile : zeilen) strom << zeile;
  }
  strom << Endemarke;
  return bytes;
}

void Grenze_setzen(__rlimit_resource Was, rlim_t Wert) {
  rlimit grenze{};
  if (getrlimit(Was, &grenze) != 0) return;
  grenze.rlim_cur = std::min(grenze.rlim_cur, Wert);
  setrlimit(Was, &grenze);
}

/// A damaged size in the file is not to cost the caller's program its memory.
void Speicher_begrenzen() {
  unsigned long seiten = 0;
  std::FILE *datei = std::fopen("/proc/self/statm", "re");
  if (datei == nullptr) return;
  if (std::fscanf(datei, "%lu", &seiten) == 1)
    Grenze_setzen(RLIMIT_AS, rlim_t(seiten) * rlim_t(sysconf(_SC_PAGESIZE)) + Mehr_Speicher);
  std::fclose(datei);
}

/// Takes off what the caller's program has set up for itself: its crash handlers are not for this process.
void Prozess_einrichten() {
  for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGFPE, SIGILL, SIGALRM, SIGXCPU, SIGPIPE})
    std::signal(signal, SIG_DFL);
  std::set_terminate(std::abort);
  sigset_t keine;
  sigemptyset(&keine);
  sigprocmask(SIG_SETMASK, &keine, nullptr);
  Grenze_setzen(RLIMIT_CORE, 0);
  Grenze_setzen(RLIMIT_CPU, Rechenzeit_Sekunden);
  Speicher_begrenzen();
  const int stumm = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (stumm >= 0) dup2(stumm, STDERR_FILENO);
  alarm(Wartezeit_Sekunden);
}

/// An exception ends it too; the caller's own work is not to run a second time.
[[noreturn]] void Im_eigenen_Prozess(const QByteArray &Pfad, int Ausgang) noexcept {
  Prozess_einrichten();
  const QByteArray bytes = Mappe_uebersetzen(Pfad);
  if (bytes.size() >= Groesste_Antwort) std::abort();
  for (qsizetype n = 0; n < bytes.size();) {
    const ssize_t geschrieben = write(Ausgang, bytes.constData() + n, size_t(bytes.size() - n));
    if (geschrieben <= 0) break;
    n += geschrieben;
  }
  _exit(0);
}

/// What the process wrote until it ended, in one way or another. Nothing when it did not end in time.
std::optional<QByteArray> Antwort_holen(int Eingang) {
  QByteArray bytes;
  std::array<char, 65536> puffer{};
  QElapsedTimer uhr;
  uhr.start();
  while (bytes.size() < Groesste_Antwort) {
    pollfd warten{Eingang, POLLIN, 0};
    const qint64 rest = Wartezeit_Sekunden * qint64{1000} - uhr.elapsed();
    const int bereit = rest > 0 ? poll(&warten, 1, int(rest)) : 0;
    if (bereit == 0) return std::nullopt;
    const ssize_t gelesen = bereit < 0 ? -1 : read(Eingang, puffer.data(), puffer.size());
    if (gelesen < 0 && errno == EINTR) continue;
    if (gelesen <= 0) return bytes;
    bytes.append(puffer.data(), gelesen);
  }
  return std::nullopt;
}

/// Nothing when it breaks off.
std::optional<Tabellenmappe> Antwort_deuten(const QByteArray &Bytes) {
  Tabellenmappe mappe;
  QDataStream strom(Bytes);
  quint32 blaetter = 0, zeilen = 0, ende = 0;
  strom >> mappe.Hindernis >> blaetter;
  for (quint32 i = 0; i < blaetter && strom.status() == QDataStream::Ok; ++i) {
    Tabellenblatt blatt;
    strom >> blatt.Name >> zeilen;
    for (quint32 z = 0; z < zeilen && strom.status() == QDataStream::Ok; ++z)
      strom >> blatt.Zeilen.emplace_back();
    mappe.Blaetter.push_back(std::move(blatt));
  }
  strom >> ende;
  if (ende != Endemarke) return std::nullopt;
  return mappe;
}

struct Lesung {
  Tabellenmappe Mappe;
  bool Liegt_an_Datei;  ///< reading it again would give the same
};

Lesung Verhindert(const char *Grund) { return {{{}, QLatin1String(Grund)}, false}; }

/// Whether it was the file that ended the process: not the time that a loaded machine takes, nor somebody
/// who killed it.
bool An_Datei_gescheitert(int Ende) {
  if (!WIFSIGNALED(Ende)) return false;
  const int signal = WTERMSIG(Ende);
  return signal != SIGALRM && signal != SIGKILL && signal != SIGTERM;
}

Lesung Geschuetzt_lesen(const QByteArray &Pfad) {
  int rohr[2];
  if (pipe2(rohr, O_CLOEXEC) != 0) return Verhindert("no pipe");
  const pid_t kind = fork();
  if (kind == 0) Im_eigenen_Prozess(Pfad, rohr[1]);
  close(rohr[1]);
  std::optional<QByteArray> bytes;
  if (kind > 0) bytes = Antwort_holen(rohr[0]);
  close(rohr[0]);
  if (kind < 0) return Verhindert("no process");
  if (!bytes) kill(kind, SIGKILL);
  int ende = 0;
  while (waitpid(kind, &ende, 0) < 0 && errno == EINTR) {
  }
  if (!bytes) return Verhindert("the workbook takes too long");
  if (const auto mappe = Antwort_deuten(*bytes)) return {*mappe, true};
  return {{{}, QStringLiteral("the workbook is damaged")}, An_Datei_gescheitert(ende)};
}

/// What tells one state of a file from another.
struct Dateistand {
  QByteArray Pfad;
  ino_t Nummer = 0;
  off_t Groesse = 0;
  qint64 Geaendert = 0, Geschrieben = 0;  ///< nanoseconds
  bool operator==(const Dateistand &) const = default;
};

qint64 Nanosekunden(const timespec &Zeit) { return qint64(Zeit.tv_sec) * 1'000'000'000 + Zeit.tv_nsec; }

}  // namespace

std::shared_ptr<const Tabellenmappe> Mappe_lesen(const QString &Pfad) {
  static Dateistand letzter;
  static std::shared_ptr<const Tabellenmappe> letzte;

  const QByteArray pfad = QFile::encodeName(Pfad);
  struct stat angaben {};
  // Only a plain file: opening anything else may wait for ever.
  if (stat(pfad.constData(), &angaben) != 0 || !S_ISREG(angaben.st_mode))
    return std::make_shared<Tabellenmappe>(Tabellenmappe{{}, QStringLiteral("no such file")});
  const Dateistand stand{pfad, angaben.st_ino, angaben.st_size, Nanosekunden(angaben.st_ctim),
                         Nanosekunden(angaben.st_mtim)};
  if (letzte && letzter == stand) return letzte;
  const Lesung lesung = Geschuetzt_lesen(pfad);
  const auto mappe = std::make_shared<Tabellenmappe>(lesung.Mappe);
  // What has only happened now is not kept: the next look-up may succeed.
  if (lesung.Liegt_an_Datei) {
    letzte = mappe;
    letzter = stand;
  }
  return mappe;
}

}  // namespace marklink
