// The packets of a connection: whole requests come in, replies of any length go out.
#pragma once

#include <QByteArray>
#include <QString>

namespace marklink::tds {

enum class Paketart : quint8 {
  Stapel = 1,    ///< statements as text
  Prozedur = 3,  ///< call of a procedure
  Antwort = 4,
  Abbruch = 6,  ///< the client no longer wants the reply
  Transaktion = 14,
  Anmeldung = 16,
  Vorab = 18
};

struct Nachricht {
  Paketart Art = Paketart::Vorab;
  QByteArray Inhalt;
};

/// Reads little-endian values. Behind the end everything is 0 and Gut() false.
class Leser {
 public:
  explicit Leser(QByteArray Bytes) : Bytes_(std::move(Bytes)) {}
  bool Gut() const { return Gut_; }
  bool Ende() const { return Stelle_ >= Bytes_.size(); }
  quint64 Ganz(int Breite);  ///< unsigned, `Breite` bytes
  QByteArray Bytes(qint64 Anzahl);
  QString Text16(qint64 Zeichen);
  /// The byte that comes next, without taking it.
  quint8 Naechstes() const { return Ende() ? 0 : static_cast<quint8>(Bytes_[Stelle_]); }

 private:
  QByteArray Bytes_;
  qsizetype Stelle_ = 0;
  bool Gut_ = true;
};

class Schreiber {
 public:
  void Ganz(quint64 Wert, int Breite);
  void Bytes(const QByteArray &B) { Bytes_ += B; }
  void Text16(const QString &Text);                      ///< without a length
  void Text16_Zaehler(const QString &Text, int Breite);  ///< length in characters first, `Breite` bytes wide
  qsizetype Groesse() const { return Bytes_.size(); }
  QByteArray nehmen() { return std::exchange(Bytes_, {}); }

 private:
  QByteArray Bytes_;
};

class Leitung {
 public:
  explicit Leitung(int Socket) : Socket_(Socket) {}
  /// Waits for a whole request; false when the client is gone or sends nonsense.
  bool Lesen(Nachricht &Ziel);
  /// Whether the client sends something within that time.
  bool Wartet(int Millisekunden) const;
  /// The next part of the reply; full packets go out at once, the last one with `Ende`.
  bool Senden(const QByteArray &Bytes, bool Ende);
  /// Sends half of what the reply still holds and never its end.
  void Halb_senden();

 private:
  bool Empfangen(char *Ziel, qsizetype Anzahl) const;
  bool Paket_senden(const QByteArray &Inhalt, bool Ende);

  int Socket_;
  QByteArray Rest_;
  quint8 Nummer_ = 1;
};

}  // namespace marklink::tds
