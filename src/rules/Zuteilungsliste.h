// The allocation list: one text that tells which lots serve a line. Lots are joined by "|", the seven fields
// of a lot by ";":
//
//   ART-1;01-A;3;LG-000007;CH12;4,5;|ART-1;01-B;2;LG-000009;CH14;4,8;
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

namespace marklink {

/// Fields of a lot.
enum class Losfeld {
  Artikel = 0,
  Lager = 1,
  Menge = 2,  ///< taken from this lot, with a decimal comma
  Einlagerung = 3,
  Charge = 4,
  Einkaufspreis = 5,  ///< for one piece, with a decimal comma
  Reservierung = 6    ///< empty until there is one
};

/// Selector 2 or 6: sum of that field. 5: average of field 5 weighted by field 2; null where the list takes
/// nothing, so an unserved line has no purchase price. Any other: the field's values joined by ";".
/// Texts that are no number count as 0.
QVariant Zuteilung_Wert(const QString &Zuteilung, int Feld);

/// A lot's fields as they stand there: fewer or more than seven in a damaged list.
using Los = QStringList;
std::vector<Los> Zuteilung_zerlegen(const QString &Zuteilung);
QString Zuteilung_verbinden(const std::vector<Los> &Lose);

/// The field's text; empty when it is missing.
QString Los_Text(const Los &L, Losfeld Feld);
/// 0 for a text that is no number.
double Los_Zahl(const Los &L, Losfeld Feld);
/// Fills up with empty fields where some are missing.
void Los_setzen(Los &L, Losfeld Feld, const QString &Text);

/// Quantity or price as it stands in a list: reads back as the very same number.
QString Loszahl_als_Text(double Zahl);

/// The sum without the noise of binary fractions (0.1 + 0.2 gives 0.3), so that taking away what was added
/// leaves what was there.
double Menge_summe(double A, double B);

}  // namespace marklink
