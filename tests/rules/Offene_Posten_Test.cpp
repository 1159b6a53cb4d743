// Open items: sums of a document, cash discount, and what an item shows before and after payments.
#include "Zahlungsverkehr_Test.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

class Offene_Posten_Test : public test::Zahlungsverkehr_Test {};
MARKLINK_BEIDE_TYPEN(Offene_Posten_Test);

TEST_P(Offene_Posten_Test, Zahlungsarten_und_Kassenkonto) {
  EXPECT_EQ(Zahlart_Bezeichnung(u"paypal"_qs), u"PayPal"_qs);
  const struct {
    QString Zahlart;
    bool An;
  } faelle[] = {{u"PayPal"_qs, true}, {u"Rechnung"_qs, false}, {u"Tausch"_qs, false}, {u"Pay'Pal"_qs, false}};
  for (const auto &fall : faelle) {
    for (auto schalter : {Zahlart_Lastschrift, Zahlart_Nachnahme, Zahlart_Transferkonto, Zahlart_Zahlung})
      EXPECT_EQ(schalter(fall.Zahlart), fall.An) << fall.Zahlart.toStdString();
    EXPECT_EQ(Zahlart_Gebuehr(fall.Zahlart), fall.An ? 1.5 : 0.0);
  }
  Option_schreiben(u"DATEV"_qs, u"AccountPaymentIncome"_qs, u"1200"_qs);
  const QString feld = u"AccountPaymentIncome"_qs;
  EXPECT_EQ(Kassenkonto(u"PayPal"_qs, feld), u"1200"_qs);
  Option_schreiben(u"DATEV"_qs, u"UseMethodPaymentsAccounts"_qs, u"1"_qs);
  EXPECT_EQ(Kassenkonto(u"PayPal"_qs, feld), u"1362"_qs);
  EXPECT_EQ(Kassenkonto(u"Rechnung"_qs, feld), u"0"_qs);
  EXPECT_EQ(Kassenkonto(u"Tausch"_qs, feld), u"0"_qs);
}

TEST_P(Offene_Posten_Test, Skonto_auf_den_Versand_nur_wenn_gewollt) {
  Mandant.Zeile(u"Taxes"_qs, {u"TaxKeyNumber"_qs, u"1"_qs, u"Percentage"_qs, 25.0});
  Mandant.Zeile(u"ForwardingCharges"_qs,
                {u"Description"_qs, u"Paket"_qs, u"Costs"_qs, 2.4, u"VatCode"_qs, u"1"_qs});
  const struct {
    QString Berechnung;
    double Betrag;
    QString Bedingung, Versand;
    double Skonto;
  } faelle[] = {{u"0"_qs, 103, u"8 Tage 3 %"_qs, u"Paket"_qs, 3.00},
                {u"1"_qs, 103, u"8 Tage 3 %"_qs, u"Paket"_qs, 3.09},
                {u""_qs, 103, u"8 Tage 3 %"_qs, u"Paket"_qs, 3.09},
                {u"0"_qs, 103, u"8 Tage 3 %"_qs, u"Bote"_qs, 3.09},
                {u"0"_qs, 103, u"unbekannt"_qs, u"Paket"_qs, 0},
                {u"1"_qs, 0.5, u"8 Tage 3 %"_qs, u"Paket"_qs, 0.02},  // 0.015, half away from zero
                {u"1"_qs, -0.5, u"8 Tage 3 %"_qs, u"Paket"_qs, -0.02},
                {u"1"_qs, 41'152.5, u"8 Tage 3 %"_qs, u"Paket"_qs, 1234.58}};
  for (const auto &fall : faelle) {
    Option_schreiben(u"Program"_qs, u"DiscountCalculation"_qs, fall.Berechnung);
    EXPECT_EQ(Skonto_Betrag(fall.Betrag, fall.Bedingung, fall.Versand), fall.Skonto)
        << fall.Betrag << fall.Berechnung.toStdString();
  }
}

TEST_P(Offene_Posten_Test, Skontofrist_endet_mit_ihrem_letzten_Tag) {
  Rechnung(u"R1"_qs, 100, u"8 Tage 3 %"_qs);
  Rechnung(u"R2"_qs, 100, u"14 Tage netto"_qs);
  Rechnung(u"R3"_qs, 100, u"unbekannt"_qs);
  const struct {
    QString Rechnung;
    QDate Tag;
    bool Laeuft;
  } faelle[] = {{u"R1"_qs, QDate(2024, 6, 18), true},  {u"R1"_qs, QDate(2024, 6, 19), false},
                {u"R1"_qs, QDate(2024, 6, 1), true},   {u"R1"_qs, QDate(), false},
                {u"R2"_qs, QDate(2024, 6, 10), false}, {u"R3"_qs, QDate(2024, 6, 10), false},
                {u"R9"_qs, QDate(2024, 6, 10), false}};
  for (const auto &fall : faelle)
    EXPECT_EQ(Skonto_Frist_laeuft(fall.Rechnung, fall.Tag), fall.Laeuft) << fall.Rechnung.toStdString();
}

TEST_P(Offene_Posten_Test, Neuer_Posten_mit_allen_Feldern) {
  Rechnung(u"R1"_qs, 119);
  Zahlung(u"Z1"_qs, u"R1"_qs, 10.5, -2);
  Zahlung(u"Z2"_qs, u"R1"_qs, 4.25, 1.5);
  Zahlung(u"Z3"_qs, u"R1"_qs, 1, 100, false);
  Zahlung(u"Z4"_qs, u"R2"_qs, 1000, 1000);
  Gutschrift(u"G1"_qs, u"R1"_qs, 7);
  Gutschrift(u"G2"_qs, u"R1"_qs, 0.5);
  Mahnung(u"R1"_qs, QDate(2024, 6, 9), 10);  // the last one by date
  Mahnung(u"R1"_qs, QDate(2024, 5, 9), 5);
  Auszahlung(u"Rechnung"_qs, u"R1"_qs, 3);
  Auszahlung(u"Quittung"_qs, u"R1"_qs, 30);
  QStringList zahlungen, gutschriften;
  Zahlungen_Summe(u"Rechnung"_qs, u"R1"_qs, &zahlungen);
  Gutschriften_Summe(u"R1"_qs, &gutschriften);
  EXPECT_EQ(zahlungen, (QStringList{u"Z1"_qs, u"Z2"_qs, u"Z3"_qs}));
  EXPECT_EQ(gutschriften, (QStringList{u"Gutschrift G1"_qs, u"Gutschrift G2"_qs}));
  EXPECT_TRUE(Offenen_Posten_aktualisieren(Postenart::Rechnung, u"R1"_qs, u"Rechnung"_qs));
  const db::Recordset rs = Posten(u"R1"_qs);
  ASSERT_EQ(rs.RecordCount(), 1);
  const std::pair<QString, QString> texte[] = {{u"OpenItemNumber"_qs, u"OP-001"_qs},
                                               {u"ContactNumber"_qs, u"K1"_qs},
                                               {u"Contact"_qs, u"Groß, Jürgen"_qs},
                                               {u"Store"_qs, u"Zentrale"_qs},
                                               {u"Employee"_qs, u"Chef"_qs},
                                               {u"Date"_qs, u"2024-06-10 00:00:00"_qs},
                                               {u"DuePayment"_qs, u"2024-06-24 00:00:00"_qs}};
  for (const auto &[feld, wert] : texte) EXPECT_EQ(rs.Text(feld), wert);
  const std::pair<QString, double> betraege[] = {
      {u"Amount"_qs, 119},         {u"OverdueFines"_qs, 10},
      {u"CreditAmount"_qs, 7.5},   {u"PaymentsReceived"_qs, 19.25},
      {u"OutgoingPayments"_qs, 3}, {u"OutstandingAmount"_qs, 102.25}};
  for (const auto &[feld, wert] : betraege) EXPECT_EQ(rs.Number(feld), wert) << feld.toStdString();
  EXPECT_FALSE(rs.Flag(u"BadDebt"_qs));
  EXPECT_FALSE(rs.Flag(u"Paid"_qs));
  EXPECT_TRUE(rs.IsNull(u"PaidDate"_qs));
  EXPECT_EQ(Option_lesen(u"NumberRange"_qs, u"OpenItem"_qs), u"002"_qs);
}

TEST_P(Offene_Posten_Test, Bezahlt_folgt_dem_Rest) {
  Rechnung(u"R1"_qs, 100);
  const auto aktualisieren = [](double zahlung = 0, double skonto = 0) {
    EXPECT_TRUE(Offenen_Posten_aktualisieren(Postenart::Rechnung, u"R1"_qs, u"Rechnung"_qs, zahlung, skonto));
    return Posten(u"R1"_qs).Number(u"OutstandingAmount"_qs);
  };
  const auto rechnung = [] { return Abfragen("SELECT * FROM Invoice WHERE InvoiceNumber = 'R1'"); };
  EXPECT_EQ(aktualisieren(), 100);
  EXPECT_EQ(aktualisieren(99.99), 0.01);
  EXPECT_FALSE(rechnung().Flag(u"Paid"_qs));
  EXPECT_EQ(aktualisieren(97, 3.0), 0);
  EXPECT_TRUE(rechnung().Flag(u"Paid"_qs));
  Kontext.gHeute = Kontext.gHeute.addDays(5);
  EXPECT_EQ(aktualisieren(101), -1);
  EXPECT_TRUE(Posten(u"R1"_qs).Flag(u"Paid"_qs));
  EXPECT_EQ(Tag(rechnung(), u"PaidDate"_qs), QDate(2024, 6, 15))
      << "the first day on which it was paid stays";
  EXPECT_EQ(Tag(Posten(u"R1"_qs), u"PaidDate"_qs), QDate(2024, 6, 15));
  EXPECT_EQ(aktualisieren(), 100);
  EXPECT_FALSE(rechnung().Flag(u"Paid"_qs));
  EXPECT_TRUE(rechnung().IsNull(u"PaidDate"_qs));
  EXPECT_EQ(Posten(u"R1"_qs).RecordCount(), 1);
  EXPECT_EQ(Posten(u"R1"_qs).Text(u"OpenItemNumber"_qs), u"OP-001"_qs);

  // What the invoice says of its cash discount counts if it was taken, and what the caller says before it.
  Felder_aendern(u"Invoice"_qs, u"InvoiceNumber"_qs, u"R1"_qs, u"CashDiscountAmount"_qs, 2.5);
  EXPECT_EQ(aktualisieren(), 100);
  Felder_aendern(u"Invoice"_qs, u"InvoiceNumber"_qs, u"R1"_qs, u"CashDiscount"_qs, true);
  EXPECT_EQ(aktualisieren(), 97.5);
  EXPECT_EQ(aktualisieren(0, 2.4), 97.6);
  Zahlung(u"Z1"_qs, u"R1"_qs, 97.4);
  EXPECT_EQ(aktualisieren(), 0.1) << "to the cent, without noise";
}

TEST_P(Offene_Posten_Test, Verschwundener_Beleg_laesst_den_Posten_stehen) {
  Rechnung(u"R1"_qs, 100);
  EXPECT_TRUE(Offenen_Posten_aktualisieren(Postenart::Rechnung, u"R1"_qs, u"Rechnung"_qs));
  EXPECT_TRUE(Ausfuehren("DELETE FROM Invoice WHERE InvoiceNumber = 'R1'"));
  for (const QString &nummer : {u"R1"_qs, u""_qs, u"R'1"_qs})
    EXPECT_FALSE(Offenen_Posten_aktualisieren(Postenart::Rechnung, nummer, u"Rechnung"_qs, 100));
  EXPECT_EQ(Posten(u"R1"_qs).Number(u"OutstandingAmount"_qs), 100);
  EXPECT_EQ(Abfragen("SELECT * FROM OpenItems").RecordCount(), 1);
}

TEST_P(Offene_Posten_Test, Andere_Belegarten) {
  Mandant.Zeile(u"Receipt"_qs, {u"ReceiptNumber"_qs, u"Q1"_qs, u"GrossAmount"_qs, 50.0, u"Date"_qs,
                                Zeitpunkt(QDate(2024, 6, 14))});
  Mandant.Zeile(u"SupplierInvoices"_qs, {u"IncomingInvoiceNumber"_qs, u"L1"_qs, u"InvoiceAmount"_qs, 80.0,
                                         u"Supplier"_qs, u"Leder KG"_qs});
  Rechnung(u"R1"_qs, 100);
  Rechnung(u"K1"_qs, -30);
  Gutschrift(u"G1"_qs, u"R1"_qs, 25);
  Gutschrift(u"G2"_qs, u""_qs, 40);
  Auszahlung(u"Lieferanten-Rechnung"_qs, u"L1"_qs, 30);
  Auszahlung(u"Gutschrift"_qs, u"G2"_qs, 40);
  Auszahlung(u"Rechnungskorrektur"_qs, u"K1"_qs, 10);
  const struct {
    Postenart Art;
    QString Wort, Nummer;
    double Offen;
    bool Bezahlt;
  } faelle[] = {{Postenart::Quittung, u"Quittung"_qs, u"Q1"_qs, 50, false},
                {Postenart::Gutschrift, u"Gutschrift"_qs, u"G1"_qs, 0, true},  // used up by the invoice
                {Postenart::Gutschrift, u"Gutschrift"_qs, u"G2"_qs, 0, true},  // paid out
                {Postenart::Rechnungskorrektur, u"Rechnungskorrektur"_qs, u"K1"_qs, -20, false},
                {Postenart::Lieferantenrechnung, u"Lieferanten-Rechnung"_qs, u"L1"_qs, 50, false}};
  for (const auto &fall : faelle) {
    EXPECT_TRUE(Offenen_Posten_aktualisieren(fall.Art, fall.Nummer, fall.Wort));
    const db::Recordset rs = Posten(fall.Nummer, fall.Wort);
    EXPECT_EQ(rs.Number(u"OutstandingAmount"_qs), fall.Offen) << fall.Nummer.toStdString();
    EXPECT_EQ(rs.Flag(u"Paid"_qs), fall.Bezahlt) << fall.Nummer.toStdString();
  }
  EXPECT_EQ(Posten(u"R1"_qs).Number(u"OutstandingAmount"_qs), 75) << "brought up to date by its credit note";
  EXPECT_EQ(Posten(u"L1"_qs, u"Lieferanten-Rechnung"_qs).Text(u"Contact"_qs), u"Leder KG"_qs);
}

}  // namespace
}  // namespace marklink
