// Number ranges: the numbers of documents, customers, articles and bookings.
//
// A range is a counter and a format in the settings store. Drawing is two steps: Nummer_ziehen() gives the
// number, and once it is to be used Nummernkreis_hochzaehlen() moves the counter. So the counter holds the
// number that the next document will show, not the last one used. No lock is held in between, and only rows
// that are stored already are seen: who draws only can get the number of another workstation. Whoever uses
// what it draws takes it by Nummer_nehmen(), which gives a number that is counted to one workstation only.
#pragma once

#include <QString>
#include <vector>

namespace marklink {

struct Nummernkreis {
  QString Name;
  QString Tabelle, Feld;  ///< where each number must be unique
};

/// The ranges in use.
const std::vector<Nummernkreis> &Nummernkreise();
/// The range of that name (case does not matter), or nullptr.
const Nummernkreis *Nummernkreis_suchen(const QString &Name);

/// The number that the range's counter and format give now; nothing is changed. Empty, but not null, for a
/// range without any format.
QString Belegnummer_formatieren(const QString &Bereich);

/// Whether the table holds a row with that value. False when the table cannot be read or the value holds an
/// apostrophe: the number then counts as free.
bool Nummer_vorhanden(const QString &Tabelle, const QString &Feld, const QString &Wert);

/// The next unused number. The counter moves only past numbers that are taken, and then even where counting
/// is switched off. A null text when the drawing was ended without a number, by a cancel (Kontext.gAbbrechen)
/// or at a standstill (Ziehungsaufsicht.h): the caller then writes nothing.
QString Nummer_ziehen(const QString &Tabelle, const QString &Feld, const QString &Bereich);

/// Moves the counter by one, unless counting is switched off for the range ("0").
void Nummernkreis_hochzaehlen(const QString &Bereich);

/// What a range without a format gives, an empty number, does to its counter.
enum class Leere_Nummer { Zaehlt_nicht, Zaehlt };

/// Both at once: draws a number and moves the counter, and draws again where another workstation has moved it
/// in the meantime. With counting switched off two workstations can still get the same one. A number that
/// could not be drawn (null) is not counted; an empty one, of a range without a format, as is said.
QString Nummer_nehmen(const QString &Tabelle, const QString &Feld, const QString &Bereich,
                      Leere_Nummer Leere = Leere_Nummer::Zaehlt_nicht);

struct Nummernvorschau {
  QString Nummer;
  bool Frei = false;  ///< false: `Nummer` is taken and the range leads to no other, or Kontext.gAbbrechen
};

/// What Nummer_ziehen() would give; nothing is changed. Always ends.
Nummernvorschau Nummer_vorausschauen(const QString &Tabelle, const QString &Feld, const QString &Bereich);

}  // namespace marklink
