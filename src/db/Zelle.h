// One value of a row as it came from the engine or goes to it: 16 bytes, the bytes of a text elsewhere.
#pragma once

#include <QtGlobal>
#include <cstddef>
#include <memory>
#include <vector>

#include "Textvergleich_Utf8.h"

namespace marklink::db {

struct Zelle {
  enum class Art : quint8 { Null, Ganz, Gleit, Text, Binaer };

  union {
    qint64 Ganz;
    double Gleit;
    const char *Daten;  ///< UTF-8 or bytes; not ended by a NUL
  };
  quint32 Laenge;  ///< bytes
  Art Inhalt;
  bool Gesetzt;   ///< in a changed row: assigned since the row was read
  bool Ungewiss;  ///< in a row inserted here: not sent, so the engine may have put a default there

  Zelle() : Ganz(0), Laenge(0), Inhalt(Art::Null), Gesetzt(false), Ungewiss(false) {}
  static Zelle aus_Ganz(qint64 Wert) {
    Zelle z;
    z.Ganz = Wert;
    z.Inhalt = Art::Ganz;
    return z;
  }
  static Zelle aus_Gleit(double Wert) {
    Zelle z;
    z.Gleit = Wert;
    z.Inhalt = Art::Gleit;
    return z;
  }
  static Zelle aus_Bytes(Art Inhalt, const char *Daten, std::size_t Laenge) {
    Zelle z;
    z.Daten = Daten;
    z.Laenge = static_cast<quint32>(Laenge);
    z.Inhalt = Inhalt;
    return z;
  }

  bool ist_Null() const { return Inhalt == Art::Null; }
  bool hat_Bytes() const { return Inhalt == Art::Text || Inhalt == Art::Binaer; }
  Utf8 Bytes() const { return {Daten, static_cast<qsizetype>(Laenge)}; }
  /// Same kind and same content, to the byte.
  bool gleich(const Zelle &Andere) const;
};
static_assert(sizeof(Zelle) == 16);

/// Memory for cells and texts that is given back all at once.
class Speicher {
 public:
  char *Bytes(std::size_t Anzahl);
  /// Gives back the end of the bytes handed out last.
  void zurueckgeben(std::size_t Anzahl) { Belegt_ -= Anzahl; }
  Zelle *Zellen(std::size_t Anzahl);  ///< all null
  /// A copy of the cell whose bytes lie here.
  Zelle Kopie(const Zelle &Vorlage);
  /// Forgets everything; one block is kept for the next use.
  void leeren();

 private:
  struct Block {
    std::unique_ptr<char[]> Daten;
    std::size_t Groesse;
  };
  std::vector<Block> Bloecke_;
  std::size_t Belegt_ = 0;  ///< in the last block
};

}  // namespace marklink::db
