// A shop on a loopback port: canned or scripted replies over real HTTP, every request recorded byte by byte.
// It can also misbehave as real servers do.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace marklink::test {

enum class Unart {
  Keine,
  Schliessen,     ///< closes without a byte
  Abschneiden,    ///< promises more than it sends, then closes
  Endlos,         ///< the body again and again, until the client has enough
  Schweigen,      ///< takes the request and says nothing more
  Steckenbleiben  ///< head and body, but the last promised bytes never come
};

struct Shop_Antwort {
  QByteArray Rumpf;
  int Status = 200;
  std::vector<QByteArray> Kopfzeilen{};  ///< besides the server's own
  Unart Wie = Unart::Keine;
};

class Shop_Attrappe {
 public:
  Shop_Attrappe();
  ~Shop_Attrappe();
  Shop_Attrappe(const Shop_Attrappe &) = delete;
  Shop_Attrappe &operator=(const Shop_Attrappe &) = delete;

  quint16 Port() const;
  /// Points the program context at this shop: server, script path "/shop/marklink.php", user "u", a password
  /// hash.
  void Einsetzen() const;

  /// The next reply to an action; the last one given goes on. Without any the shop answers 404.
  void Antworten(const QByteArray &Aktion, const Shop_Antwort &Antwort);
  void Antworten(const QByteArray &Aktion, const char *Rumpf) {
    Antworten(Aktion, Shop_Antwort{QByteArray(Rumpf)});
  }
  /// Takes all replies over: raw request head in, reply out. Runs in a thread of the shop.
  void Skript_setzen(std::function<Shop_Antwort(const QByteArray &Kopf)> Skript);

  /// Raw request heads in order, empty line included.
  std::vector<QByteArray> Anfragen() const;
  std::vector<QByteArray> Aktionen() const;
  /// The query of the n-th request behind its login (starts with "&" or is empty).
  QByteArray Parameter(size_t n) const;
  int Verbindungen() const;  ///< connections accepted so far
  void Vergessen();          ///< recorded requests and the connection count

 private:
  struct Innenleben;
  std::unique_ptr<Innenleben> d;
};

}  // namespace marklink::test
