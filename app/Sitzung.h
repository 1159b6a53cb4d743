// Opening a client for a command: program folder, client, employee, and what can go wrong with them.
#pragma once

#include <QString>

#include <memory>
#include "host/Dateisperre.h"

#include "marklink/common.h"

namespace marklink {

struct Aufruf;

struct Objektfreigabe {
  void operator()(common *Objekt) const { marklink_common_freigeben(Objekt); }
};
/// The library as its host holds it.
using Bibliothek = std::unique_ptr<common, Objektfreigabe>;
inline Bibliothek Objekt_erzeugen() { return Bibliothek(marklink_common_erzeugen()); }

/// The program folder by option, environment or default; absolute, without a trailing separator.
QString Programmordner_bestimmen(const Aufruf &A);

/// Points the library at the program folder and reads the host configuration.
void Programm_vorbereiten(const Aufruf &A);

/// Opens the client for its settings alone, also when no shop project is set up. False: told on standard
/// error.
bool Einstellungen_oeffnen(const Aufruf &A);

/// Opens the client as the host does. False: told on standard error.
bool Mandant_oeffnen(const Aufruf &A);

/// Keeps other runs in this program folder from the shop while it lives: all its clients share one reply
/// file.
class Shopsperre {
 public:
  Shopsperre();
  /// False, told on standard error, when another run kept the shop busy for a minute.
  bool Erhalten() const { return Erhalten_; }

 private:
  Dateisperre Sperre_;
  bool Erhalten_;
};

/// Whether the client's database and settings take changes just now; if not, that is told on standard error.
bool Datenbank_beschreibbar();

}  // namespace marklink
