// A shop customer in the books: from a CUSTOMERS_DATA node of the shop to a row of Contacts. The shop is the
// master: a refresh overwrites also discount, payment and shipping defaults, on purpose.
#pragma once

#include <QDateTime>
#include <QString>
#include <pugixml.hpp>

#include "db/Recordset.h"

namespace marklink {

/// What the node itself does not say. Refreshed as well, empty or not.
struct Kundenvorgaben {
  QString InvoiceAddress, DeliveryAddress;
  QString PaymentPractice, MethodPayment, Forwarding, Impartation;
};

/// The customers with that e-mail address, by which a shop customer is found in the books; never by the
/// shop's id. Not open when they cannot be looked up (an apostrophe in the address).
db::Recordset Kunden_mit_Email(const QString &Email);

/// Stands `Satz` on its first row or, when it is empty, on a new one with number, debtor account and search
/// name; the user is asked for a search name when the customer's is taken. `Stand` goes into DateUpdate.
/// False, and no row added, when there is no customer number. A drawn number and debtor account are not given
/// back when the row is not saved later.
bool Kunde_beginnen(db::Recordset &Satz, const pugi::xml_node &Kunde, const QDateTime &Stand);

/// Writes the fields that every take-over writes, TaxCalculation last.
void Kunde_ausfuellen(db::Recordset &Satz, const pugi::xml_node &Kunde, const Kundenvorgaben &Vorgaben);

}  // namespace marklink
