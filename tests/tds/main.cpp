// marklink_tds_server --datei DB [--port 0] [--benutzer sa] [--kennwort x] [--STOERUNG ZAHL]...
//
// Stands in for SQL Server in tests: speaks its wire protocol (TDS 7.4, no encryption) on 127.0.0.1, over a
// database file of the embedded engine that it makes when there is none. Prints the port as its first line
// and then takes commands on standard input, one a line, each answered by one line:
//
//   NAME          the number of that name (see Stoerung.h)
//   NAME ZAHL     sets it; "ok"
//   kennwort HEX  the password from now on, its UTF-8 in hexadecimal digits; "ok"
//   verbindungen  how many clients are connected
//   alle-trennen  hangs up on all of them, whatever they are at; "ok"
//
// Ends, and hangs up on everybody, when standard input closes. One process a connection.
//
// It proves the wire and the statements' shape, not the server's semantics: isolation is SQLite's (readers
// see the last commit and wait for nobody; one writes at a time, and who waits 5 s gets error 1222), GROUP BY
// is lenient, a flag column keeps what it is given instead of making 1 of it, decimal and money are doubles,
// and a computed column has its type from its values: nvarchar(max) without any. There are no cursors on the
// server, no procedures but the catalogue's, no DECLARE, IF, OUTPUT, MERGE, INFORMATION_SCHEMA and triggers.
// Index names are unique in the whole database; several rows without a value do not hurt a unique index.
#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <set>

#include "Anfragen.h"
#include "Anmeldung.h"
#include "Stoerung.h"

using namespace marklink::tds;

namespace {

constexpr int Takt_ms = 200;

struct Betrieb {
  QByteArray Datei;
  Zugang Erlaubt{QStringLiteral("sa"), {}};
  int Lauscher = -1;
  std::set<pid_t> Kinder{};
};

int Lauschen(int Port) {
  const int lauscher = ::socket(AF_INET, SOCK_STREAM, 0);
  const int ja = 1;
  ::setsockopt(lauscher, SOL_SOCKET, SO_REUSEADDR, &ja, sizeof ja);
  sockaddr_in adresse{};
  adresse.sin_family = AF_INET;
  adresse.sin_port = htons(static_cast<quint16>(Port));
  adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t laenge = sizeof adresse;
  auto *wo = reinterpret_cast<sockaddr *>(&adresse);
  if (::bind(lauscher, wo, laenge) != 0 || ::listen(lauscher, 64) != 0) return -1;
  ::getsockname(lauscher, wo, &laenge);
  std::printf("%d\n", ntohs(adresse.sin_port));
  std::fflush(stdout);
  return lauscher;
}

void Ausgetretene_vergessen(Betrieb &B) {
  while (true) {
    const pid_t kind = ::waitpid(-1, nullptr, WNOHANG);
    if (kind <= 0) return;
    B.Kinder.erase(kind);
  }
}

void Alle_trennen(Betrieb &B) {
  for (const pid_t kind : B.Kinder) ::kill(kind, SIGKILL);
  for (const pid_t kind : B.Kinder) ::waitpid(kind, nullptr, 0);
  B.Kinder.clear();
}

void Annehmen(Betrieb &B) {
  const int socket = ::accept(B.Lauscher, nullptr, nullptr);
  if (socket < 0) return;
  // The end of a reply of several packets is not held back until its beginning is confirmed, 40 ms later.
  const int ja = 1;
  ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &ja, sizeof ja);
  const pid_t vater = ::getpid();
  const pid_t kind = ::fork();
  if (kind == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != vater) ::_exit(0);
    ::close(B.Lauscher);
    Leitung leitung(socket);
    QString katalog;
    if (Anmelden(leitung, B.Erlaubt, katalog)) Bedienen(leitung, B.Datei, katalog);
    ::_exit(0);
  }
  ::close(socket);
  if (kind > 0) B.Kinder.insert(kind);
}

QByteArray Befehl_ausfuehren(Betrieb &B, const QByteArray &Zeile) {
  const QList<QByteArray> worte = Zeile.simplified().split(' ');
  Ausgetretene_vergessen(B);
  if (worte[0] == "verbindungen") return QByteArray::number(static_cast<int>(B.Kinder.size()));
  if (worte[0] == "alle-trennen") {
    Alle_trennen(B);
    return "ok";
  }
  if (worte[0] == "kennwort" && worte.size() == 2) {
    B.Erlaubt.Kennwort = QString::fromUtf8(QByteArray::fromHex(worte[1]));
    return "ok";
  }
  std::atomic<int> *zahl = Zahl_finden(worte[0]);
  if (!zahl) return "unbekannt";
  if (worte.size() < 2) return QByteArray::number(zahl->load());
  *zahl = worte[1].toInt();
  return "ok";
}

/// False at the end of the input.
bool Eingabe_lesen(Betrieb &B, QByteArray &Rest) {
  char puffer[1024];
  const ssize_t n = ::read(STDIN_FILENO, puffer, sizeof puffer);
  if (n <= 0) return false;
  Rest.append(puffer, n);
  for (qsizetype ende = Rest.indexOf('\n'); ende >= 0; ende = Rest.indexOf('\n')) {
    std::printf("%s\n", Befehl_ausfuehren(B, Rest.left(ende)).constData());
    Rest.remove(0, ende + 1);
  }
  std::fflush(stdout);
  return true;
}

bool Optionen_lesen(int Anzahl, char **Worte, Betrieb &B, int &Port) {
  for (int i = 1; i + 1 < Anzahl; i += 2) {
    const QByteArray name = QByteArray(Worte[i]).mid(2);
    const QByteArray wert = Worte[i + 1];
    if (name == "datei")
      B.Datei = wert;
    else if (name == "port")
      Port = wert.toInt();
    else if (name == "benutzer")
      B.Erlaubt.Benutzer = QString::fromLocal8Bit(wert);
    else if (name == "kennwort")
      B.Erlaubt.Kennwort = QString::fromLocal8Bit(wert);
    else if (auto *zahl = Zahl_finden(name))
      *zahl = wert.toInt();
    else
      return false;
  }
  return Anzahl % 2 == 1 && !B.Datei.isEmpty() && Datei_vorbereiten(B.Datei);
}

}  // namespace

int main(int argc, char **argv) {
  Stoerung_holen();
  Betrieb b;
  int port = 0;
  if (!Optionen_lesen(argc, argv, b, port)) {
    std::fputs(
        "marklink_tds_server --datei DB [--port 0] [--benutzer sa] [--kennwort x] [--STOERUNG ZAHL]...\n",
        stderr);
    return 2;
  }
  b.Lauscher = Lauschen(port);
  if (b.Lauscher < 0) return 1;
  QByteArray eingabe;
  for (bool weiter = true; weiter;) {
    pollfd warten[] = {{b.Lauscher, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    ::poll(warten, 2, Takt_ms);
    Ausgetretene_vergessen(b);
    if (warten[0].revents) Annehmen(b);
    if (warten[1].revents) weiter = Eingabe_lesen(b, eingabe);
  }
  Alle_trennen(b);
  return 0;
}
