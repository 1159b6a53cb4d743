// The launcher's host components: bookings of payments and documents, direct debits.
#include "Launcher_Komponenten.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "rules/Zahlungsverkehr.h"
#include "support/Datenbank_Test.h"
#include "support/Testmandant.h"

namespace marklink::test {
namespace {

class Komponenten_Test : public Mandant_Test {
 protected:
  Komponenten_Test() {
    Host_Komponenten_setzen(&Komponenten);
    Option_schreiben(u"Program"_qs, u"AccountingRecordBooking"_qs, u"1"_qs);
    Option_schreiben(u"DATEV"_qs, u"AccountPaymentIncome"_qs, u"1200"_qs);
    Option_schreiben(u"NumberRange"_qs, u"Payment"_qs, u"1"_qs);
    Option_schreiben(u"Formatting"_qs, u"Payment"_qs, u"Nr."_qs);
    Mandant.Zeile(u"Invoice"_qs,
                  {u"InvoiceNumber"_qs, u"R1"_qs, u"TotalAmount"_qs, 119.0, u"VatAmount"_qs, 19.0, u"Date"_qs,
                   u"2024-06-14 00:00:00"_qs, u"CustomerNumber"_qs, u"K1"_qs, u"Customer"_qs, u"Groß"_qs});
  }
  ~Komponenten_Test() override { Host_Komponenten_setzen(nullptr); }
  static std::unique_ptr<Host_Komponente> Bereit(const QString &Name) {
    auto k = Host_Komponente_erzeugen(Name);
    EXPECT_TRUE(
        Host_Komponente_aufrufen(k.get(), u"Initialisierung"_qs, {Kontext.gFirmenname, u"Chef"_qs}).toBool());
    return k;
  }
  /// What the books hold, as another program reads it.
  QString Zeilen(const char *Sql) const { return Rohe_Verbindung(Mandant.Datenbankdatei()).lesen(Sql); }
  Launcher_Komponenten Komponenten;
};
MARKLINK_BEIDE_TYPEN(Komponenten_Test);

TEST_P(Komponenten_Test, Zahlungseingang_wird_gebucht_und_kennt_seinen_Satz) {
  const auto zahlung = Zahlungseingang_erzeugen(
      {u"Rechnung"_qs, u"R1"_qs, QDate(2024, 6, 15), u"Bar"_qs, u"Groß"_qs, u"K1"_qs, 119.0});
  ASSERT_TRUE(zahlung);
  EXPECT_EQ(Zeilen("SELECT a.BookingText, a.Date, a.Amount, a.VatAmount IS NULL, a.DebitAccount, "
                   "a.ReferenceDocumentNumber FROM AccountingRecords a JOIN PaymentIncome p ON "
                   "p.AccountingNumber = a.AccountingNumber"),
            u"ZE für Rechnung R1 vom 15.06.2024|2024-06-15 00:00:00|119.0|0|1200|R1"_qs);
  EXPECT_EQ(Zeilen("SELECT COUNT(*) FROM AccountingRecords"), u"1"_qs);
  const auto datev = Bereit(u"datev.common"_qs);
  EXPECT_TRUE(Host_Komponente_aufrufen(datev.get(), u"Beleg_gebucht"_qs,
                                       {u"PaymentIncome"_qs, u"PaymentNumber"_qs, zahlung->Nummer})
                  .toBool());
}

TEST_P(Komponenten_Test, Buchungssaetze_eines_Belegs_kommen_und_gehen) {
  const auto datev = Bereit(u"DATEV.common"_qs);
  const auto rufen = [&datev](const QString &operation, const QVariantList &argumente) {
    return Host_Komponente_aufrufen(datev.get(), operation, argumente).toBool();
  };
  const QVariantList frage{u"Invoice"_qs, u"InvoiceNumber"_qs, u"R1"_qs};
  EXPECT_FALSE(rufen(u"Beleg_gebucht"_qs, frage));
  EXPECT_TRUE(rufen(u"Beleg_Buchungen_erstellen"_qs, {u"Rechnung"_qs, u"R1"_qs, 1}));
  EXPECT_TRUE(rufen(u"Beleg_gebucht"_qs, frage));
  EXPECT_EQ(Zeilen("SELECT Amount, VatAmount, RecordType FROM AccountingRecords"), u"119.0|19.0|1"_qs);
  EXPECT_TRUE(rufen(u"Beleg_Buchungen_loeschen"_qs, {u"Rechnung"_qs, u"R1"_qs}));
  EXPECT_FALSE(rufen(u"Beleg_gebucht"_qs, frage));
  EXPECT_FALSE(rufen(u"Beleg_Buchungen_erstellen"_qs, {u"Rechnung"_qs, u"R9"_qs, 1}));
  EXPECT_FALSE(rufen(u"Beleg_Buchungen_erstellen"_qs, {u"Angebot"_qs, u"R1"_qs, 1}));
  EXPECT_EQ(Zeilen("SELECT * FROM AccountingRecords"), QString());
}

TEST_P(Komponenten_Test, Lastschrift_steht_in_der_Tabelle) {
  const QVariantList werte =
      QVariantList{0, false, QDate(2024, 6, 15)} +
      QVariantList{u"Jürgen Groß"_qs, u"123"_qs, u"Sparkasse"_qs, u"85050300"_qs, 119.0} +
      QVariantList{u"Rechnungsnr. R1"_qs, u"Rechnung vom 15.06.2024"_qs, u"Rechnung"_qs, u"R1"_qs};
  const auto dta = Bereit(u"dta.common"_qs);
  const QString erste = Host_Komponente_aufrufen(dta.get(), u"Buchung_speichern"_qs, werte).toString();
  const QString zweite = Host_Komponente_aufrufen(dta.get(), u"Buchung_speichern"_qs, werte).toString();
  EXPECT_NE(erste, zweite);
  EXPECT_EQ(Zeilen("SELECT BookingNumber, AccountHolder, Purpose1, Amount, DocumentNumber FROM DTABookings"),
            u"%1|Jürgen Groß|Rechnungsnr. R1|119.0|R1\n%2|Jürgen Groß|Rechnungsnr. R1|119.0|R1"_qs.arg(
                erste, zweite));

  EXPECT_FALSE(Host_Komponente_aufrufen(dta.get(), u"Buchung_speichern"_qs, {0}).isValid());
  EXPECT_FALSE(Host_Komponente_aufrufen(dta.get(), u"Buchung_drucken"_qs, {}).isValid());
  const auto fremd = Host_Komponente_erzeugen(u"dta.common"_qs);
  EXPECT_FALSE(Host_Komponente_aufrufen(fremd.get(), u"Buchung_speichern"_qs, werte).isValid());
  EXPECT_FALSE(
      Host_Komponente_aufrufen(fremd.get(), u"Initialisierung"_qs, {u"Anderer"_qs, u"x"_qs}).toBool());
  EXPECT_FALSE(Host_Komponente_aufrufen(fremd.get(), u"Buchung_speichern"_qs, werte).isValid());
  EXPECT_EQ(Zeilen("SELECT COUNT(*) FROM DTABookings"), u"2"_qs);
  EXPECT_EQ(Host_Komponente_erzeugen(u"fremd.common"_qs), nullptr);
}

}  // namespace
}  // namespace marklink::test
