// The fields of a head that contract and invoice share.
#include "Belegvorgang.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Uhr.h"
#include "host/Zahlen.h"

namespace marklink {

void Belegvorgang::Anfang_eintragen() {
  const auto setzen = [this](const char *Feld, const QVariant &Wert) {
    Kopf_.SetValue(QLatin1String(Feld), Wert);
  };
  const auto kunde = [this](const char *Feld) { return Kunde_.Value(QLatin1String(Feld)); };
  const auto bestellung = [this](const char *Feld) { return Bestellung_.Value(QLatin1String(Feld)); };
  const int lieferfrist = Als_Kurzzahl(Programmoption("ConsignmentDays"));
  Kopf_.SetValue(Art_.Schluesselfeld, Nummer());
  setzen("Form", Formular_Standard(Art_.Wort));
  setzen("Date", Zeitpunkt(Kontext.gHeute));
  setzen("CustomerNumber", kunde("CustomerNumber"));
  setzen("Customer", kunde("Matchcode"));
  setzen("OrderingDate", bestellung("Date"));
  setzen("OrderingNumber", bestellung("OrderID"));
  setzen("DeliveryDate", Zeitpunkt(Kontext.gHeute.addDays(lieferfrist)));
  setzen("Orderer", bestellung("Email"));
  setzen("webshop", true);
  setzen("Address", kunde("InvoiceAddress"));
  setzen("DeliveryAddress", kunde("DeliveryAddress"));
  setzen("Employee", Kontext.gBenutzername);
  setzen("ContactPerson", QString());
  setzen("Store", Kontext.gBenutzer_Filiale);
  setzen("TextModuleHeader", QString());
  setzen("Impartation", kunde("Impartation"));
  setzen("PaymentPractice", Zahlungsbedingung());
}

void Belegvorgang::Summen_eintragen() {
  const auto setzen = [this](const char *Feld, const QVariant &Wert) {
    Kopf_.SetValue(QLatin1String(Feld), Wert);
  };
  setzen("WeightNet", Gewicht_Netto_);
  setzen("WeightGross", Gewicht_Brutto_);
  setzen("SubTotal", Summe_.Zwischensumme);
  setzen("NetAmount", Summe_.Netto);
  setzen("VatAmount", Summe_.Steuer);
  setzen("GrossAmount", Summe_.Brutto);
  setzen("DiscountAmount", Summe_.Positionsrabatt);
  setzen("SalesReturn", Summe_.Belegrabatt);
  setzen("SalesReturnString", Rabattliste_);
  setzen("ForwardingCharges", Summe_.Versandkosten);
  setzen("Forwarding", Versandart_);
  setzen("FreeForwarding", !Summe_.Versand_berechnet);
  setzen("TotalAmount", Endbetrag());
}

void Belegvorgang::Ende_eintragen() {
  const auto setzen = [this](const char *Feld, const QVariant &Wert) {
    Kopf_.SetValue(QLatin1String(Feld), Wert);
  };
  const QDateTime jetzt = uhr().Jetzt();
  setzen("MethodPayment", Zahlungsart());
  setzen("Printed", false);
  setzen("PrintDate", QVariant());
  setzen("EmailAddress", Bestellung_.Value(QStringLiteral("Email")));
  setzen("Email", false);
  setzen("EmailDate", QVariant());
  setzen("TextModuleFooter", QString());
  setzen("Taxation", Taxation_);
  // The customer's own, also where an unknown country made the document count as a domestic one. Intended.
  setzen("TaxCalculation", Kunde_.Value(QStringLiteral("TaxCalculation")));
  setzen("StorageBooking", Art_.Bucht_Lager());
  setzen("DateCreation", jetzt);
  setzen("DateUpdate", jetzt);
  setzen("WorksOnLastOf", Kontext.gBenutzername);
}

}  // namespace marklink
