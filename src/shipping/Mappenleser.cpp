// Reading an Excel file. The reader of the format trusts its file: a damaged one can crash it, or send it
// astray for ever. So it works in a process of its own, and what goes wrong there is a workbook that cannot
// be read. A file that has not changed is not read again.
#include "Mappenleser.h"

#include <fcntl.h>
#include <freexl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDataStream>
#include <QFile>
#include <array>
#include <cerrno>
#include <csignal>

#include "host/Datumsbilder.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

constexpr unsigned int Wartezeit_Sekunden = 10;
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

/// An exception ends it too; the caller's own work is not to run a second time.
[[noreturn]] void Im_eigenen_Prozess(const QByteArray &Pfad, int Ausgang) noexcept {
  // The caller's crash handler is not for this process, and nobody needs a core of it.
  for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGFPE, SIGILL, SIGALRM, SIGPIPE})
    std::signal(signal, SIG_DFL);
  const rlimit keiner{0, 0};
  setrlimit(RLIMIT_CORE, &keiner);
  const int stumm = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (stumm >= 0) dup2(stumm, STDERR_FILENO);
  alarm(Wartezeit_Sekunden);
  const QByteArray bytes = Mappe_uebersetzen(Pfad);
  for (qsizetype n = 0; n < bytes.size();) {
    const ssize_t geschrieben = write(Ausgang, bytes.constData() + n, size_t(bytes.size() - n));
    if (geschrieben <= 0) break;
    n += geschrieben;
  }
  _exit(0);
}

/// What the process wrote until it ended, in one way or another; at most so much.
QByteArray Antwort_holen(int Eingang) {
  QByteArray bytes;
  std::array<char, 65536> puffer{};
  while (bytes.size() < Groesste_Antwort) {
    const ssize_t gelesen = read(Eingang, puffer.data(), puffer.size());
    if (gelesen < 0 && errno == EINTR) continue;
    if (gelesen <= 0) break;
    bytes.append(puffer.data(), gelesen);
  }
  return bytes;
}

Tabellenmappe Antwort_deuten(const QByteArray &Bytes) {
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
  if (ende != Endemarke) return {{}, QStringLiteral("the workbook is damaged")};
  return mappe;
}

Tabellenmappe Geschuetzt_lesen(const QByteArray &Pfad) {
  int rohr[2];
  if (pipe2(rohr, O_CLOEXEC) != 0) return {{}, QStringLiteral("no pipe")};
  const pid_t kind = fork();
  if (kind == 0) Im_eigenen_Prozess(Pfad, rohr[1]);
  close(rohr[1]);
  const QByteArray bytes = kind > 0 ? Antwort_holen(rohr[0]) : QByteArray();
  close(rohr[0]);
  if (kind < 0) return {{}, QStringLiteral("no process")};
  if (bytes.size() >= Groesste_Antwort) kill(kind, SIGKILL);
  while (waitpid(kind, nullptr, 0) < 0 && errno == EINTR) {
  }
  return Antwort_deuten(bytes);
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
  if (!letzte || letzter != stand) {
    letzte = std::make_shared<Tabellenmappe>(Geschuetzt_lesen(pfad));
    letzter = stand;
  }
  return letzte;
}

}  // namespace marklink
