// Customers: the small reading functions.
#include "Kunden.h"

#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Laender.h"

namespace marklink {
namespace {

QString Feldname(int Feld) {
  switch (Feld) {
    case int(Kundenfeld::Matchcode):
      return QStringLiteral("Matchcode");
    case int(Kundenfeld::Discount):
      return QStringLiteral("Discount");
    case int(Kundenfeld::Closed):
      return QStringLiteral("Closed");
    case int(Kundenfeld::CustomerType):
      return QStringLiteral("CustomerType");
    case int(Kundenfeld::InvoiceAddress):
      return QStringLiteral("InvoiceAddress");
    case int(Kundenfeld::DeliveryAddress):
      return QStringLiteral("DeliveryAddress");
    case int(Kundenfeld::TaxCalculation):
      return QStringLiteral("TaxCalculation");
    case int(Kundenfeld::DebitorAccount):
      return QStringLiteral("DebitorAccount");
    case int(Kundenfeld::Mileage):
      return QStringLiteral("Mileage");
    case int(Kundenfeld::CreditLimit):
      return QStringLiteral("CreditLimit");
    case int(Kundenfeld::Rating):
      return QStringLiteral("Rating");
    case int(Kundenfeld::Versandzone):
      return QStringLiteral("Versandzone");
    default:
      return {};
  }
}

bool Gruppenschalter(const QString &Kundengruppe, const QString &Feld) {
  // A customer without a group shares in nothing, whatever a nameless row says.
  if (Kundengruppe.isEmpty()) return false;
  return Abfragen({"SELECT * FROM CustomerTypes WHERE Description = ", db::Wert{Kundengruppe}}).Flag(Feld);
}

}  // namespace

QVariant Kunden_Feld(const QString &Kundennummer, int Feld) {
  const QString name = Feldname(Feld);
  if (name.isEmpty()) return {};
  return Abfragen({"SELECT Contacts.*, Countries.Token AS Versandzone FROM Contacts, Countries"
                   " WHERE Contacts.CustomerNumber = ",
                   db::Wert{Kundennummer}, " AND Countries.Description = Contacts.Country"})
      .Value(name);
}

bool Kunden_Bankdaten(Bankdaten &Daten, const QString &Kundennummer) {
  const db::Recordset rs =
      Abfragen({"SELECT Bankname, BankCode, AccountNumber, AccountHolder, bic, iban FROM Contacts WHERE "
                "CustomerNumber "
                "= ",
                db::Wert{Kundennummer}});
  if (rs.RecordCount() == 0) return false;
  Daten = {rs.Text(QStringLiteral("Bankname")),      rs.Text(QStringLiteral("BankCode")),
           rs.Text(QStringLiteral("AccountNumber")), rs.Text(QStringLiteral("AccountHolder")),
           rs.Text(QStringLiteral("bic")),           rs.Text(QStringLiteral("iban"))};
  return true;
}

bool Kunden_Lastschrift(const QString &Kundennummer) {
  return Abfragen(
             {"SELECT CollectionAuthorisation FROM Contacts WHERE CustomerNumber = ", db::Wert{Kundennummer}})
      .Flag(QStringLiteral("CollectionAuthorisation"));
}

bool Kundengruppe_Sonderpreis(const QString &Kundengruppe) {
  return Gruppenschalter(Kundengruppe, QStringLiteral("SpecialOfferPrice"));
}

bool Kundengruppe_Staffelpreis(const QString &Kundengruppe) {
  return Gruppenschalter(Kundengruppe, QStringLiteral("BlockingPricing"));
}

int Steuerberechnung_ermitteln(const QString &Land, const QString &UstId) {
  if (Land == Kontext.gCountry) return 0;
  if (!Land_ist_EU(Land)) return 3;
  return UstId.isEmpty() ? 2 : 1;
}

}  // namespace marklink
