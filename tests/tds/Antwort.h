// The tokens of a reply: messages, result sets, ends of statements.
#pragma once

#include <vector>

#include "Pakete.h"
#include "Typen.h"

namespace marklink::tds {

struct Spalte {
  QString Name{};
  Typ T{};
  bool Nullbar = true;
  bool Nummer = false;  ///< the server numbers it
};

/// What a statement did, for the token at its end.
enum class Befehl : quint16 { Ohne = 0, Select = 0xC1, Insert = 0xC3, Delete = 0xC4, Update = 0xC5 };

/// A message with the server's own number and wording; 0: none.
struct Meldung {
  int Nummer = 0;
  QString Text{};
  int Klasse = 16;  ///< above 10: an error
};

class Antwort {
 public:
  explicit Antwort(Leitung &L) : L_(L) {}

  void melden(const Meldung &M);
  /// A change of the session that the client keeps in mind.
  void Umgebung(quint8 Art, const QString &Neu, const QString &Alt = {});
  void Umgebung_Bytes(quint8 Art, const QByteArray &Werte);  ///< the new and the old, a length before each
  void Anmeldung_bestaetigen();
  void Spalten(const std::vector<Spalte> &Alle);
  void Zeile(const std::vector<Spalte> &Alle, const std::vector<Wert> &Werte);
  void Rueckgabe(int Wert);
  void Ausgabewert(qint64 Wert);

  enum class Ort : quint8 { Stapel = 0xFD, Prozedur = 0xFE, in_Prozedur = 0xFF };
  /// The end of a statement; `Zeilen` below 0: no count.
  void Fertig(Ort O, Befehl B, qint64 Zeilen, bool Fehler);
  void Abbruch_bestaetigen();
  /// Sends what is there as the whole reply.
  bool abschicken();
  /// Moves what is there to the line, so that a part of it can be sent.
  void uebergeben();

 private:
  void Ende_schreiben(bool Mehr);
  void beginnen(int Marke);

  Leitung &L_;
  Schreiber S_;
  struct {
    bool da = false;
    Ort O = Ort::Stapel;
    quint16 Status = 0;
    Befehl B = Befehl::Ohne;
    quint64 Zeilen = 0;
  } Ende_;  ///< kept until it is known whether more follows
};

}  // namespace marklink::tds
