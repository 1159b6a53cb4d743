// Taxes: rates, net and gross, tax keys; a document's taxation and due date.
#include "Berechnung.h"

#include "host/Datenbank.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

double Steuersatz(const QString &Steuerschluessel) {
  return Steuerfeld_lesen(Steuerschluessel, QStringLiteral("Percentage")).toDouble();
}

}  // namespace

double Rabattbetrag(double Prozent, double Betrag) { return Prozent / 100 * Betrag; }

double Brutto_zu_Netto(double Brutto, const QString &Steuerschluessel) {
  return Brutto / (Steuersatz(Steuerschluessel) / 100 + 1);
}

double Netto_zu_Brutto(double Netto, const QString &Steuerschluessel) {
  return (Steuersatz(Steuerschluessel) / 100 + 1) * Netto;
}

double Steuer_aus_Brutto(double Brutto, const QString &Steuerschluessel) {
  const double satz = Steuersatz(Steuerschluessel);
  return Brutto / (100 + satz) * satz;
}

double Steuer_aus_Netto(double Netto, const QString &Steuerschluessel) {
  return Netto / 100 * Steuersatz(Steuerschluessel);
}

QVariant Steuerfeld_lesen(const QString &Steuerschluessel, const QString &Feld) {
  const db::Recordset rs =
      Abfragen({"SELECT * FROM Taxes WHERE TaxKeyNumber = ", db::Wert{Steuerschluessel}});
  if (Feld.compare(QLatin1String("Percentage"), Qt::CaseInsensitive) == 0) return rs.Number(Feld);
  return rs.Text(Feld);
}

QString Steuerfeld_Kunde(int TaxCalculation) {
  switch (TaxCalculation) {
    case 0:
      return QStringLiteral("TaxKeyNumber");
    case 1:
      return QStringLiteral("TaxRateEUVatID");
    case 2:
      return QStringLiteral("TaxRateEUNonVatID");
    case 3:
      return QStringLiteral("TaxRateNonEU");
    default:
      return {};
  }
}

QString Steuerschluessel_Liste() {
  QStringList schluessel, gesehen;
  // All columns: of the keys alone an engine may give its index, which has an order of its own.
  db::Recordset rs = Abfragen("SELECT * FROM Taxes");
  if (!rs.IsOpen()) return {};
  for (; !rs.IsEOF(); rs.MoveNext()) {
    const QString neu = rs.Text(QStringLiteral("TaxKeyNumber"));
    if (gesehen.contains(neu.trimmed())) continue;
    gesehen << neu.trimmed();
    schluessel << neu;
  }
  const QString liste = schluessel.join(u';');
  return liste.isNull() ? QStringLiteral("") : liste;
}

QString Steuerschluessel_aus_Prozent(double Prozent) {
  return Abfragen({"SELECT * FROM Taxes WHERE Percentage = ", db::Zahl(Prozent)})
      .Text(QStringLiteral("TaxKeyNumber"));
}

int Besteuerung_ermitteln(int TaxCalculation) {
  if (TaxCalculation == 1 || TaxCalculation == 3) return 0;
  return Als_Kurzzahl(Programmoption("Taxation"));
}

QDate Zahlungsziel_ermitteln(const QString &Zahlungsbedingung, const QDate &Datum) {
  const QString tage = QStringLiteral("PaymentPeriod");
  const db::Recordset rs =
      Abfragen({"SELECT * FROM PaymentPractices WHERE Description = ", db::Wert{Zahlungsbedingung}});
  return rs.IsNull(tage) ? QDate() : Datum.addDays(qint64(rs.Number(tage)));
}

}  // namespace marklink
