// What the server counts and how it is made to misbehave: numbers that all its processes share.
//
// Each has a name. On the command line "--NAME WERT" sets one; on standard input "NAME WERT" sets one
// (answered by "ok") and "NAME" alone asks for it. The counters down act when they reach 0 and then rest.
#pragma once

#include <QByteArray>
#include <atomic>

namespace marklink::tds {

struct Stoerung {
  std::atomic<int> Anfragen;  ///< "anfragen": requests answered, that is round trips; logins not among them
  std::atomic<int> Anmeldungen;  ///< "anmeldungen": logins that were granted
  std::atomic<int> Ablehnen;  ///< "ablehnen": 1 refuses every login, 2 hangs up on it, 3 never answers, 4 has
                              ///< no such catalogue
  std::atomic<int> Langsam;   ///< "langsam": milliseconds before each request is served
  std::atomic<int> Trennen;   ///< "trennen": hangs up instead of serving the n-th request
  std::atomic<int>
      Trennen_danach;  ///< "trennen-danach": serves the n-th request and hangs up without a reply
  std::atomic<int> Trennen_mitten;  ///< "trennen-mitten": hangs up in the middle of the n-th reply
  std::atomic<int> Verstummen;      ///< "verstummen": never again answers who sends the n-th request
  std::atomic<int> Fehler;          ///< "fehler": the n-th statement on data fails by ...
  std::atomic<int> Fehlernummer;    ///< "fehlernummer": ... this error
  std::atomic<int> Protokoll;       ///< "protokoll": 1 shows every request on standard error
};

/// The one of this program; memory that child processes share.
Stoerung &Stoerung_holen();

/// Whether a counter down has just reached its end.
bool faellig(std::atomic<int> &Zaehler);

/// The number of that name, or nullptr.
std::atomic<int> *Zahl_finden(const QByteArray &Name);

}  // namespace marklink::tds
