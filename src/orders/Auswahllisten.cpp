// Reading the pick lists.
#include "Auswahllisten.h"

#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {

namespace {

QStringList Bezeichnungen(const db::Anweisung &Sql) {
  QStringList liste;
  for (db::Recordset satz = Abfragen(Sql); !satz.IsEOF(); satz.MoveNext())
    liste << satz.Text(QStringLiteral("Description"));
  return liste;
}

}  // namespace

Auswahllisten Auswahllisten_laden() {
  const db::Zahl ja(int{Kontext.gSQL_True});
  Auswahllisten listen;
  db::Recordset satz =
      Abfragen({"SELECT Description, Costs, Weight From ForwardingCharges WHERE Active = ", ja,
                " ORDER BY Description"});
  for (; !satz.IsEOF(); satz.MoveNext())
    listen.jgVersandart.push_back({satz.Text(QStringLiteral("Description")),
                                   satz.Number(QStringLiteral("Costs")),
                                   satz.Number(QStringLiteral("Weight"))});
  listen.jgZahlungsart =
      Bezeichnungen({"SELECT Description From MethodPayments WHERE Active = ", ja, " ORDER BY Description"});
  listen.jgZahlungsbedingungen = Bezeichnungen(
      {"SELECT Description From PaymentPractices Where Active = ", ja, " Order by Description"});
  listen.Shipping = Bezeichnungen("SELECT Description, Costs, Weight from ForwardingCharges");
  listen.Payment = Bezeichnungen("SELECT Description from MethodPayments");
  listen.PaymentPractice = Bezeichnungen("SELECT Description from PaymentPractices");
  return listen;
}

}  // namespace marklink
