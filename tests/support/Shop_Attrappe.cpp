// The shop's server: one thread that accepts, one for each connection.
#include "Shop_Attrappe.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QHash>
#include <atomic>
#include <deque>
#include <mutex>
#include <thread>

#include "host/Kontext.h"

namespace marklink::test {

namespace {

constexpr int Takt_ms = 20;

QByteArray Ziel(const QByteArray &Kopf) {
  const qsizetype anfang = Kopf.indexOf(' ') + 1;
  return Kopf.mid(anfang, Kopf.indexOf(' ', anfang) - anfang);
}

QByteArray Aktion(const QByteArray &Kopf) {
  const QByteArray ziel = Ziel(Kopf);
  const qsizetype anfang = ziel.indexOf("?action=");
  if (anfang < 0) return {};
  const qsizetype ende = ziel.indexOf('&', anfang);
  return ziel.mid(anfang + 8, ende < 0 ? -1 : ende - anfang - 8);
}

bool Senden(int Socket, const QByteArray &Bytes) {
  qsizetype gesendet = 0;
  while (gesendet < Bytes.size()) {
    const ssize_t n = ::send(Socket, Bytes.constData() + gesendet,
                             static_cast<size_t>(Bytes.size() - gesendet), MSG_NOSIGNAL);
    if (n <= 0) return false;
    gesendet += n;
  }
  return true;
}

QByteArray Kopf_bilden(const Shop_Antwort &Antwort) {
  QByteArray kopf = "HTTP/1.1 " + QByteArray::number(Antwort.Status) + " Text\r\nContent-Type: text/xml\r\n";
  for (const QByteArray &zeile : Antwort.Kopfzeilen) kopf += zeile + "\r\n";
  const bool kurz = Antwort.Wie == Unart::Abschneiden || Antwort.Wie == Unart::Steckenbleiben;
  if (Antwort.Wie == Unart::Endlos)
    kopf += "Connection: close\r\n";
  else
    kopf += "Content-Length: " + QByteArray::number(Antwort.Rumpf.size() + (kurz ? 100 : 0)) + "\r\n";
  return kopf + "\r\n";
}

}  // namespace

struct Shop_Attrappe::Innenleben {
  int Lauscher = -1;
  quint16 Port = 0;
  std::atomic<bool> Ende = false;
  std::thread Annahme;
  std::vector<std::thread> Bedienungen;

  mutable std::mutex Sperre;
  std::function<Shop_Antwort(const QByteArray &)> Skript;
  QHash<QByteArray, std::deque<Shop_Antwort>> Vorrat;
  std::vector<QByteArray> Anfragen;
  int Verbindungen = 0;

  void annehmen();
  void bedienen(int Socket);
  bool warten(int Socket) const;
  bool anfrage_lesen(int Socket, QByteArray &Puffer, QByteArray &Kopf) const;
  Shop_Antwort antwort_waehlen(const QByteArray &Kopf);
  bool antworten(int Socket, const Shop_Antwort &Antwort) const;
};

/// False when the shop shuts down.
bool Shop_Attrappe::Innenleben::warten(int Socket) const {
  while (!Ende) {
    pollfd p{Socket, POLLIN, 0};
    if (::poll(&p, 1, Takt_ms) > 0) return true;
  }
  return false;
}

void Shop_Attrappe::Innenleben::annehmen() {
  while (warten(Lauscher)) {
    const int socket = ::accept(Lauscher, nullptr, nullptr);
    if (socket < 0) continue;
    {
      const std::lock_guard wache(Sperre);
      ++Verbindungen;
    }
    Bedienungen.emplace_back([this, socket] { bedienen(socket); });
  }
}

bool Shop_Attrappe::Innenleben::anfrage_lesen(int Socket, QByteArray &Puffer, QByteArray &Kopf) const {
  qsizetype ende = -1;
  while ((ende = Puffer.indexOf("\r\n\r\n")) < 0) {
    char block[16384];
    if (!warten(Socket)) return false;
    const ssize_t n = ::recv(Socket, block, sizeof block, 0);
    if (n <= 0) return false;
    Puffer.append(block, static_cast<qsizetype>(n));
  }
  Kopf = Puffer.left(ende + 4);
  Puffer.remove(0, ende + 4);
  return true;
}

Shop_Antwort Shop_Attrappe::Innenleben::antwort_waehlen(const QByteArray &Kopf) {
  std::unique_lock wache(Sperre);
  Anfragen.push_back(Kopf);
  if (Skript) {
    const auto skript = Skript;
    wache.unlock();  // a script may look at the record
    return skript(Kopf);
  }
  const auto vorrat = Vorrat.find(Aktion(Kopf));
  if (vorrat == Vorrat.end()) return {"keine Antwort vorbereitet", 404};
  const Shop_Antwort antwort = vorrat->front();
  if (vorrat->size() > 1) vorrat->pop_front();
  return antwort;
}

/// False when the connection is to be closed.
bool Shop_Attrappe::Innenleben::antworten(int Socket, const Shop_Antwort &Antwort) const {
  if (Antwort.Wie == Unart::Schliessen) return false;
  if (Antwort.Wie == Unart::Schweigen) {
    warten(Socket);
    return false;
  }
  if (!Senden(Socket, Kopf_bilden(Antwort) + Antwort.Rumpf)) return false;
  if (Antwort.Wie == Unart::Endlos)
    while (!Ende && Senden(Socket, Antwort.Rumpf)) continue;
  if (Antwort.Wie == Unart::Steckenbleiben) warten(Socket);
  return Antwort.Wie == Unart::Keine;
}

void Shop_Attrappe::Innenleben::bedienen(int Socket) {
  QByteArray puffer;
  QByteArray kopf;
  while (anfrage_lesen(Socket, puffer, kopf) && antworten(Socket, antwort_waehlen(kopf))) continue;
  ::shutdown(Socket, SHUT_RDWR);
  ::close(Socket);
}

Shop_Attrappe::Shop_Attrappe() : d(std::make_unique<Innenleben>()) {
  d->Lauscher = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in adresse{};
  adresse.sin_family = AF_INET;
  adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t laenge = sizeof adresse;
  if (::bind(d->Lauscher, reinterpret_cast<sockaddr *>(&adresse), laenge) != 0 ||
      ::listen(d->Lauscher, 16) != 0)
    qFatal("Shop_Attrappe: no loopback port");
  ::getsockname(d->Lauscher, reinterpret_cast<sockaddr *>(&adresse), &laenge);
  d->Port = ntohs(adresse.sin_port);
  d->Annahme = std::thread([this] { d->annehmen(); });
}

Shop_Attrappe::~Shop_Attrappe() {
  d->Ende = true;
  d->Annahme.join();
  for (std::thread &bedienung : d->Bedienungen) bedienung.join();
  ::close(d->Lauscher);
}

quint16 Shop_Attrappe::Port() const { return d->Port; }

void Shop_Attrappe::Einsetzen() const {
  Kontext.gHostname = QStringLiteral("127.0.0.1");
  Kontext.gPort = QString::number(d->Port);
  Kontext.gUrl = QStringLiteral("/shop/marklink.php");
  Kontext.gUsername = QStringLiteral("u");
  Kontext.gPassword = QStringLiteral("0123456789abcdef0123456789abcdef");
  Kontext.gHtaccessUsername.clear();
  Kontext.gHtaccessPassword.clear();
}

void Shop_Attrappe::Antworten(const QByteArray &Aktion, const Shop_Antwort &Antwort) {
  const std::lock_guard wache(d->Sperre);
  d->Vorrat[Aktion].push_back(Antwort);
}

void Shop_Attrappe::Skript_setzen(std::function<Shop_Antwort(const QByteArray &)> Skript) {
  const std::lock_guard wache(d->Sperre);
  d->Skript = std::move(Skript);
}

std::vector<QByteArray> Shop_Attrappe::Anfragen() const {
  const std::lock_guard wache(d->Sperre);
  return d->Anfragen;
}

std::vector<QByteArray> Shop_Attrappe::Aktionen() const {
  std::vector<QByteArray> aktionen;
  for (const QByteArray &kopf : Anfragen()) aktionen.push_back(Aktion(kopf));
  return aktionen;
}

QByteArray Shop_Attrappe::Parameter(size_t n) const {
  const std::vector<QByteArray> anfragen = Anfragen();
  if (n >= anfragen.size()) return {};
  const QByteArray ziel = Ziel(anfragen[n]);
  const qsizetype passwort = ziel.indexOf("&password=");
  const qsizetype anfang = passwort < 0 ? -1 : ziel.indexOf('&', passwort + 1);
  return anfang < 0 ? QByteArray() : ziel.mid(anfang);
}

int Shop_Attrappe::Verbindungen() const {
  const std::lock_guard wache(d->Sperre);
  return d->Verbindungen;
}

void Shop_Attrappe::Vergessen() {
  const std::lock_guard wache(d->Sperre);
  d->Anfragen.clear();
  d->Verbindungen = 0;
}

}  // namespace marklink::test
