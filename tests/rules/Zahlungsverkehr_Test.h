// A client with terms, methods, a customer and number ranges, for the tests of payments and open items.
#pragma once

#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "rules/Zahlungsverkehr.h"
#include "support/Testmandant.h"

namespace marklink::test {

class Zahlungsverkehr_Test : public Mandant_Test {
 protected:
  Zahlungsverkehr_Test() {
    Bedingung(u"14 Tage netto"_qs, 14, 0, 0);
    Bedingung(u"8 Tage 3 %"_qs, 30, 8, 3);
    Bedingung(u"8 Tage ohne"_qs, 30, 8, 0);
    Zahlart(u"PayPal"_qs, u"paypal"_qs, true, u"1362"_qs);
    Zahlart(u"Rechnung"_qs, u"invoice"_qs, false, u""_qs);
    Mandant.Zeile(u"Countries"_qs, {u"Token"_qs, u"DE"_qs, u"Description"_qs, u"Deutschland"_qs});
    Mandant.Zeile(u"Contacts"_qs, {u"CustomerNumber"_qs, u"K1"_qs, u"Country"_qs, u"Deutschland"_qs,
                                   u"DebitorAccount"_qs, u"10001"_qs});
    for (const auto &[kreis, kuerzel] : {std::pair{u"Payment"_qs, u"ZE"_qs}, {u"OpenItem"_qs, u"OP"_qs}}) {
      Option_schreiben(u"Counting"_qs, kreis, u"1"_qs);
      Option_schreiben(u"NumberRange"_qs, kreis, u"001"_qs);
      Option_schreiben(u"Formatting"_qs, kreis, u"Kürzel;-;Nr.;Leer;Leer"_qs);
      Option_schreiben(u"Token"_qs, kreis, kuerzel);
    }
  }
  void Bedingung(const QString &Name, int Tage, int Skontotage, double Prozent) {
    Mandant.Zeile(u"PaymentPractices"_qs, {u"Description"_qs, Name, u"PaymentPeriod"_qs, Tage,
                                           u"DiscountPeriod"_qs, Skontotage, u"Discount"_qs, Prozent});
  }
  void Zahlart(const QString &Name, const QString &Token, bool An, const QString &Konto) {
    Mandant.Zeile(u"MethodPayments"_qs,
                  {u"Description"_qs, Name, u"Token"_qs, Token, u"Payment"_qs, An, u"DebitAdvice"_qs, An,
                   u"CashOnDelivery"_qs, An, u"TransferAccount"_qs, An, u"PaymentFee"_qs, An ? 1.5 : 0.0,
                   u"CashAccount"_qs, Konto});
  }
  void Rechnung(const QString &Nummer, double Betrag, const QString &Bedingung = u"14 Tage netto"_qs,
                QDate Tag = QDate(2024, 6, 10)) {
    Mandant.Zeile(u"Invoice"_qs, {u"InvoiceNumber"_qs, Nummer, u"TotalAmount"_qs, Betrag, u"Date"_qs,
                                  Zeitpunkt(Tag, QTime(9, 30)), u"PaymentPractice"_qs, Bedingung,
                                  u"CustomerNumber"_qs, u"K1"_qs, u"Customer"_qs, u"Groß, Jürgen"_qs});
  }
  void Zahlung(const QString &Nummer, const QString &Beleg, double Betrag, double Differenz = 0,
               bool Eingegangen = true) {
    Mandant.Zeile(u"PaymentIncome"_qs,
                  {u"PaymentNumber"_qs, Nummer, u"document"_qs, u"Rechnung"_qs, u"DocumentNumber"_qs, Beleg,
                   u"Amount"_qs, Betrag, u"ExcessDeficitAmount"_qs, Differenz, u"Credited"_qs, Eingegangen});
  }
  void Gutschrift(const QString &Nummer, const QString &Fuer, double Betrag) {
    Mandant.Zeile(u"Credit"_qs,
                  {u"CreditNumber"_qs, Nummer, u"ClearedDocumentNumber"_qs, Fuer, u"InvoiceNumber"_qs, Fuer,
                   u"TotalAmount"_qs, Betrag, u"Date"_qs, Zeitpunkt(QDate(2024, 6, 12))});
  }
  void Mahnung(const QString &Nummer, QDate Tag, double Gebuehr) {
    Mandant.Zeile(u"Dunning"_qs,
                  {u"InvoiceNumber"_qs, Nummer, u"Date"_qs, Zeitpunkt(Tag), u"OverdueFines"_qs, Gebuehr});
  }
  void Auszahlung(const QString &Beleg, const QString &Nummer, double Betrag) {
    Mandant.Zeile(u"PaymentOutcome"_qs,
                  {u"document"_qs, Beleg, u"DocumentNumber"_qs, Nummer, u"Amount"_qs, Betrag});
  }
  static db::Recordset Posten(const QString &Nummer, const QString &Beleg = u"Rechnung"_qs) {
    return Abfragen({"SELECT * FROM OpenItems WHERE document = ", db::Wert{Beleg},
                     " AND DocumentNumber = ", db::Wert{Nummer}});
  }
  static QDate Tag(const db::Recordset &rs, const QString &Feld) {
    return rs.Value(Feld).toDateTime().date();
  }
};

}  // namespace marklink::test
