// What the books say of payment methods and terms.
#include "Zahlungsverkehr.h"
#include "host/Datenbank.h"
#include "host/Nachschlagen.h"

namespace marklink {
namespace {

/// One row of MethodPayments or PaymentPractices, by its Description.
db::Recordset Zeile_lesen(const char *Feld, const char *Tabelle, const QString &Bezeichnung) {
  return Abfragen({"SELECT ", db::Name{QLatin1String(Feld)}, " FROM ", db::Name{QLatin1String(Tabelle)},
                   " WHERE Description = ", db::Wert{Bezeichnung}});
}

bool Zahlart_Schalter(const char *Feld, const QString &Zahlart) {
  return Zeile_lesen(Feld, "MethodPayments", Zahlart).Flag(QLatin1String(Feld));
}

}  // namespace

QString Zahlart_Bezeichnung(const QString &Token) {
  return Nachschlagen({"SELECT Description FROM MethodPayments WHERE Token = ", db::Wert{Token}},
                      QStringLiteral("Description"));
}

bool Zahlart_Lastschrift(const QString &Zahlart) { return Zahlart_Schalter("DebitAdvice", Zahlart); }

bool Zahlart_Nachnahme(const QString &Zahlart) { return Zahlart_Schalter("CashOnDelivery", Zahlart); }

bool Zahlart_Transferkonto(const QString &Zahlart) { return Zahlart_Schalter("TransferAccount", Zahlart); }

bool Zahlart_Zahlung(const QString &Zahlart) { return Zahlart_Schalter("Payment", Zahlart); }

double Zahlart_Gebuehr(const QString &Zahlart) {
  return Zeile_lesen("PaymentFee", "MethodPayments", Zahlart).Number(QStringLiteral("PaymentFee"));
}

double Skonto_Prozent(const QString &Bedingung) {
  return Zeile_lesen("Discount", "PaymentPractices", Bedingung).Number(QStringLiteral("Discount"));
}

QString Kassenkonto(const QString &Zahlart, const QString &Feld) {
  const QString abschnitt = QStringLiteral("DATEV");
  if (Option_lesen(abschnitt, QStringLiteral("UseMethodPaymentsAccounts")) != QLatin1String("1"))
    return Option_lesen(abschnitt, Feld);
  const QString konto =
      Zeile_lesen("CashAccount", "MethodPayments", Zahlart).Text(QStringLiteral("CashAccount"));
  return konto.isEmpty() ? QStringLiteral("0") : konto;
}

}  // namespace marklink
