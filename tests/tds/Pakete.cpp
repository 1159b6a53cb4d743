// The packets of a connection.
#include "Pakete.h"

#include <poll.h>
#include <sys/socket.h>

namespace marklink::tds {

namespace {

constexpr int Kopf = 8;
constexpr qsizetype Paketgroesse = 4096;
constexpr qsizetype Nachricht_hoechstens = 256 << 20;

}  // namespace

quint64 Leser::Ganz(int Breite) {
  const QByteArray b = Bytes(Breite);
  quint64 wert = 0;
  for (qsizetype i = b.size(); i-- > 0;) wert = wert << 8 | static_cast<quint8>(b[i]);
  return wert;
}

QByteArray Leser::Bytes(qint64 Anzahl) {
  if (Anzahl < 0 || Anzahl > Bytes_.size() - Stelle_) {
    Gut_ = false;
    Stelle_ = Bytes_.size();
    return {};
  }
  Stelle_ += Anzahl;
  return Bytes_.mid(Stelle_ - Anzahl, Anzahl);
}

QString Leser::Text16(qint64 Zeichen) {
  const QByteArray b = Bytes(Zeichen * 2);
  QString text;
  for (qsizetype i = 0; i + 1 < b.size(); i += 2) {
    text += QChar(static_cast<quint8>(b[i]) | static_cast<quint8>(b[i + 1]) << 8);
  }
  return text;
}

void Schreiber::Ganz(quint64 Wert, int Breite) {
  for (int i = 0; i < Breite; ++i) Bytes_ += static_cast<char>(Wert >> (8 * i) & 0xFF);
}

void Schreiber::Text16(const QString &Text) {
  for (const QChar c : Text) Ganz(c.unicode(), 2);
}

void Schreiber::Text16_Zaehler(const QString &Text, int Breite) {
  Ganz(static_cast<quint64>(Text.size()), Breite);
  Text16(Text);
}

bool Leitung::Empfangen(char *Ziel, qsizetype Anzahl) const {
  while (Anzahl > 0) {
    const ssize_t n = ::recv(Socket_, Ziel, static_cast<size_t>(Anzahl), 0);
    if (n <= 0) return false;
    Ziel += n;
    Anzahl -= n;
  }
  return true;
}

bool Leitung::Wartet(int Millisekunden) const {
  pollfd p{Socket_, POLLIN, 0};
  return ::poll(&p, 1, Millisekunden) > 0;
}

bool Leitung::Lesen(Nachricht &Ziel) {
  Ziel.Inhalt.clear();
  for (;;) {
    quint8 kopf[Kopf];
    if (!Empfangen(reinterpret_cast<char *>(kopf), Kopf)) return false;
    const qsizetype laenge = (kopf[2] << 8 | kopf[3]) - Kopf;
    if (laenge < 0 || Ziel.Inhalt.size() > Nachricht_hoechstens) return false;
    Ziel.Art = static_cast<Paketart>(kopf[0]);
    const qsizetype bisher = Ziel.Inhalt.size();
    Ziel.Inhalt.resize(bisher + laenge);
    if (!Empfangen(Ziel.Inhalt.data() + bisher, laenge)) return false;
    if (kopf[1] & 1) return true;
  }
}

bool Leitung::Paket_senden(const QByteArray &Inhalt, bool Ende) {
  const qsizetype laenge = Inhalt.size() + Kopf;
  QByteArray paket;
  paket += static_cast<char>(Paketart::Antwort);
  paket += static_cast<char>(Ende ? 1 : 0);
  paket += static_cast<char>(laenge >> 8);
  paket += static_cast<char>(laenge & 0xFF);
  paket += QByteArray(2, '\0');
  paket += static_cast<char>(Nummer_++);
  paket += '\0';
  paket += Inhalt;
  qsizetype gesendet = 0;
  while (gesendet < paket.size()) {
    const ssize_t n = ::send(Socket_, paket.constData() + gesendet,
                             static_cast<size_t>(paket.size() - gesendet), MSG_NOSIGNAL);
    if (n <= 0) return false;
    gesendet += n;
  }
  return true;
}

bool Leitung::Senden(const QByteArray &Bytes, bool Ende) {
  Rest_ += Bytes;
  constexpr qsizetype platz = Paketgroesse - Kopf;
  qsizetype stelle = 0;
  for (; Rest_.size() - stelle > platz; stelle += platz) {
    if (!Paket_senden(Rest_.mid(stelle, platz), false)) return false;
  }
  Rest_ = Rest_.mid(stelle);
  if (!Ende) return true;
  const bool gut = Paket_senden(Rest_, true);
  Rest_.clear();
  Nummer_ = 1;
  return gut;
}

void Leitung::Halb_senden() { Paket_senden(Rest_.left(Rest_.size() / 2), false); }

}  // namespace marklink::tds
