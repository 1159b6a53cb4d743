// Private to the stock booking: what its files share.
#pragma once

#include <QElapsedTimer>
#include <QMap>
#include <QSet>
#include <QStringList>

#include "db/Recordset.h"

namespace marklink {

/// The lines of a document.
db::Recordset Positionen_lesen(const QString &Beleg, const QString &Belegnummer);
/// The reservations of a document.
db::Recordset Reservierungen_lesen(const QString &Beleg, const QString &Belegnummer);

/// Stands on the lot. An empty number names no lot, though several rows may have none.
bool Los_suchen(db::Recordset &Lager, const QString &Einlagerung);
/// Adds to a quantity of the current lot.
void Menge_aendern(db::Recordset &Lager, const QString &Feld, double Um);
/// A set that a failed read has closed holds nothing any more, so nothing of it is saved.
bool Speichern(db::Recordset &Satz);

/// Quantities by StockingNumber.
using Losmengen = QMap<QString, double>;
/// Changes the figures of the current lot by a quantity.
using Losaenderung = void (*)(db::Recordset &Lager, double Menge);
/// Reads, changes and saves the lots as one batch. One that somebody else changed at that very moment is read
/// and changed again. Gives the lots that were not saved.
QSet<QString> Lose_buchen(const Losmengen &Mengen, Losaenderung Aendern);

/// Counts the tries to write what other workstations change as well. Each that fails has let another one
/// through, so there are many; but only two where the second has found what the first did, or where they take
/// long: then a row is refused for another reason, or a lock is waited for.
class Versuche {
 public:
  Versuche() { Uhr_.start(); }
  /// `Gelesen`: the figures that the last try was about to change.
  bool Noch_einer(const QStringList &Gelesen) {
    constexpr int Hoechstens = 100, Geduld_ms = 3000;
    const bool dasselbe = Gelesen == Vorher_;
    Vorher_ = Gelesen;
    ++Zahl_;
    return Zahl_ <= 2 || (Zahl_ <= Hoechstens && !dasselbe && !Uhr_.hasExpired(Geduld_ms));
  }

 private:
  QElapsedTimer Uhr_;
  QStringList Vorher_;
  int Zahl_ = 0;
};

}  // namespace marklink
