// The pick lists of the order grid's columns Shipping, Payment and PaymentPractice.
#pragma once

#include <QStringList>
#include <vector>

namespace marklink {

struct Versandauswahl {
  QString Description;
  double Costs = 0;   ///< of one parcel, net
  double Weight = 0;  ///< kilograms
};

/// What a drop-down offers: active entries, ordered by Description.
struct Auswahllisten {
  std::vector<Versandauswahl> jgVersandart;
  QStringList jgZahlungsart, jgZahlungsbedingungen;
  /// What a cell may show beyond that: every entry, deactivated ones included. By column.
  QStringList Shipping, Payment, PaymentPractice;
};

/// A list whose query fails is empty.
Auswahllisten Auswahllisten_laden();

}  // namespace marklink
