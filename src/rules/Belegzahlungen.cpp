// What was paid, credited and fined on one document, and its cash discount.
#include <cmath>

#include "Berechnung.h"
#include "Versandkosten.h"
#include "Zahlungsverkehr.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

const QString &Betragsfeld() {
  static const QString feld = QStringLiteral("Amount");
  return feld;
}

}  // namespace

double Ueberzahlung_Summe(const QString &Beleg, const QString &Nummer) {
  double summe = 0.0;
  db::Recordset rs =
      Abfragen({"SELECT ExcessDeficitAmount FROM PaymentIncome WHERE Document = ", db::Wert{Beleg},
                " AND DocumentNumber = ", db::Wert{Nummer}, " AND Credited = ", db::Zahl(Kontext.gSQL_True)});
  for (; !rs.IsEOF(); rs.MoveNext()) summe += std::fabs(rs.Number(QStringLiteral("ExcessDeficitAmount")));
  return summe;
}

double Zahlungen_Summe(const QString &Beleg, const QString &Nummer, QStringList *Zahlungsnummern) {
  double summe = 0.0;
  db::Recordset rs =
      Abfragen({"SELECT PaymentNumber, Amount FROM PaymentIncome WHERE Document = ", db::Wert{Beleg},
                " AND DocumentNumber = ", db::Wert{Nummer}});
  for (; !rs.IsEOF(); rs.MoveNext()) {
    summe += rs.Number(Betragsfeld());
    if (Zahlungsnummern != nullptr) *Zahlungsnummern << rs.Text(QStringLiteral("PaymentNumber"));
  }
  return summe;
}

double Auszahlungen_Summe(const QString &Beleg, const QString &Nummer) {
  double summe = 0.0;
  db::Recordset rs = Abfragen({"SELECT Amount FROM PaymentOutcome WHERE Document = ", db::Wert{Beleg},
                               " AND DocumentNumber = ", db::Wert{Nummer}});
  for (; !rs.IsEOF(); rs.MoveNext()) summe += rs.Number(Betragsfeld());
  return summe;
}

double Gutschriften_Summe(const QString &Nummer, QStringList *Gutschriften) {
  double summe = 0.0;
  db::Recordset rs = Abfragen(
      {"SELECT CreditNumber, TotalAmount FROM Credit WHERE ClearedDocumentNumber = ", db::Wert{Nummer}});
  for (; !rs.IsEOF(); rs.MoveNext()) {
    summe += rs.Number(QStringLiteral("TotalAmount"));
    if (Gutschriften != nullptr)
      *Gutschriften << QStringLiteral("Gutschrift ") + rs.Text(QStringLiteral("CreditNumber"));
  }
  return summe;
}

double Mahngebuehren(const QString &Rechnungsnummer) {
  db::Recordset rs =
      Abfragen({"SELECT OverdueFines FROM Dunning WHERE InvoiceNumber = ", db::Wert{Rechnungsnummer},
                " ORDER BY Date"});
  rs.MoveLast();
  return rs.Number(QStringLiteral("OverdueFines"));
}

double Skonto_Betrag(double Betrag, const QString &Bedingung, const QString &Versandart) {
  const double prozent = Skonto_Prozent(Bedingung);
  double kosten = 0.0, gewicht = 0.0;
  QString schluessel;
  Versandkosten_lesen(kosten, schluessel, gewicht, Versandart);
  // "0" grants no cash discount on shipping.
  const bool ohne_Versand = Programmoption("DiscountCalculation") == QLatin1String("0");
  const double basis = ohne_Versand ? Betrag - Netto_zu_Brutto(kosten, schluessel) : Betrag;
  return Zahl_durch_Bild(basis / 100 * prozent, QStringLiteral("standard"));
}

bool Skonto_Frist_laeuft(const QString &Rechnungsnummer, const QDate &Tag) {
  const db::Recordset rs = Abfragen(
      {"SELECT Invoice.InvoiceNumber, Invoice.Date, Invoice.PaymentPractice, PaymentPractices.Description, "
       "PaymentPractices.DiscountPeriod FROM Invoice,PaymentPractices WHERE Invoice.InvoiceNumber = ",
       db::Wert{Rechnungsnummer}, " AND PaymentPractices.Description = Invoice.PaymentPractice"});
  const double frist = rs.Number(QStringLiteral("DiscountPeriod"));
  const QDate beginn = rs.Value(QStringLiteral("Date")).toDateTime().date();
  return frist > 0 && beginn.isValid() && Tag.isValid() && Tag <= beginn.addDays(qint64(frist));
}

bool Rechnung_Skonto(const QString &Rechnungsnummer, double &Betrag) {
  const db::Recordset rs =
      Abfragen({"SELECT * FROM Invoice WHERE InvoiceNumber = ", db::Wert{Rechnungsnummer}});
  if (rs.RecordCount() > 0) Betrag = rs.Number(QStringLiteral("CashDiscountAmount"));
  return rs.Flag(QStringLiteral("CashDiscount"));
}

}  // namespace marklink
