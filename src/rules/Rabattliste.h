// The discount list of a document (SalesReturnString): one text, items joined by "|", each of them
// "name;kind;value;bound;tax key".
#pragma once

#include <QString>

namespace marklink {

enum class Rabattart {
  Prozent = 0,  ///< value: per cent
  Betrag = 1    ///< value: an amount, of one tax key (bound) or of the whole document
};

/// The list with one item more. `Gebunden`: the amount belongs to `Steuerschluessel`; otherwise it comes off
/// the final sum, after tax. A name with ";" or "|" in it is taken as it is and breaks its item.
QString Rabattliste_erweitern(const QString &Liste, const QString &Name, Rabattart Art, double Wert,
                              bool Gebunden, const QString &Steuerschluessel);

/// What the list comes to for the positions of one tax key; nothing is rounded.
struct Rabattauswertung {
  QString Text;              ///< the names of all items, a line break behind each
  double Freibetrag = 0;     ///< amounts that belong to no tax key
  double Prozentbetrag = 0;  ///< the percentages of all items together (not one after the other) of the base
  double Gebunden = 0;       ///< amounts that belong to this tax key
};

/// An item of another kind, or whose value cannot be read, counts with its name only.
Rabattauswertung Rabattliste_auswerten(const QString &Liste, double Grundbetrag,
                                       const QString &Steuerschluessel);

}  // namespace marklink
