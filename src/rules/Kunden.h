// Customers: the small reading functions. Each reads the books anew.
#pragma once

#include <QString>
#include <QVariant>

namespace marklink {

/// The fields that Kunden_Feld() gives, by their selectors.
enum class Kundenfeld {
  Matchcode = 0,
  Discount = 1,
  Closed = 3,
  CustomerType = 4,
  InvoiceAddress = 5,
  DeliveryAddress = 6,
  TaxCalculation = 7,
  DebitorAccount = 8,
  Mileage = 9,
  CreditLimit = 10,
  Rating = 11,
  Versandzone = 12  ///< token of the customer's country
};

/// A field of the customer as the column holds it (text, number, flag). A null value for an unknown customer
/// or selector, and, on purpose, for a customer whose country is not in the list of countries.
QVariant Kunden_Feld(const QString &Kundennummer, int Feld);
inline QVariant Kunden_Feld(const QString &Kundennummer, Kundenfeld Feld) {
  return Kunden_Feld(Kundennummer, int(Feld));
}

struct Bankdaten {
  QString Bankname, BankCode, AccountNumber, AccountHolder, bic, iban;
};

/// False, and `Daten` as it was, when the customer is unknown.
bool Kunden_Bankdaten(Bankdaten &Daten, const QString &Kundennummer);
/// Whether the customer allows collection from the account.
bool Kunden_Lastschrift(const QString &Kundennummer);

/// Whether the group of customers gets special prices; false for an unknown or empty one.
bool Kundengruppe_Sonderpreis(const QString &Kundengruppe);
/// Whether the group of customers gets scale prices; false for an unknown or empty one.
bool Kundengruppe_Staffelpreis(const QString &Kundengruppe);

/// How a customer of that country (by Description) is taxed: 0 domestic, 1 EU with VAT id, 2 EU without,
/// 3 outside the EU; an unknown country is outside.
int Steuerberechnung_ermitteln(const QString &Land, const QString &UstId);

}  // namespace marklink
