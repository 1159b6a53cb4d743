// Incoming payments: the row that is written, its cash discount, and what the host's accounts are told.
#include "Zahlungsverkehr_Test.h"
#include "host/Kontext.h"
#include "support/Dialoge_Skript.h"
#include "ui/Host_Komponenten.h"

namespace marklink {
namespace {

/// Components that write down every call and answer as told.
class Komponenten_Attrappe : public Host_Komponenten {
 public:
  struct Ruf {
    QString Operation;
    QVariantList Argumente;
  };
  Komponenten_Attrappe() { Host_Komponenten_setzen(this); }
  ~Komponenten_Attrappe() override { Host_Komponenten_setzen(nullptr); }
  std::unique_ptr<Host_Komponente> Erzeugen(const QString &Name) override {
    if (Name != u"datev.common"_qs) return nullptr;
    return std::make_unique<Komponente>(*this);
  }
  std::vector<Ruf> Rufe;
  bool Gebucht = false;

 private:
  class Komponente : public Host_Komponente {
   public:
    explicit Komponente(Komponenten_Attrappe &Alles) : Alles_(Alles) {}
    QVariant Aufrufen(const QString &Operation, QVariantList &Argumente) override {
      Alles_.Rufe.push_back({Operation, Argumente});
      if (Operation == u"Beleg_gebucht"_qs) return Alles_.Gebucht;
      return Operation == u"Buchung_speichern"_qs ? QVariant(u"B-77"_qs) : QVariant();
    }

   private:
    Komponenten_Attrappe &Alles_;
  };
};

class Zahlungseingang_Test : public test::Zahlungsverkehr_Test {
 protected:
  static Zahlungsangaben Angaben(double Betrag, const QString &Zahlart = u"PayPal"_qs) {
    return {u"Rechnung"_qs, u"R1"_qs, QDate(2024, 6, 15), Zahlart, u"Groß, Jürgen"_qs, u"K1"_qs, Betrag};
  }
  static db::Recordset Zahlungen() { return Abfragen("SELECT * FROM PaymentIncome ORDER BY PaymentNumber"); }
};
MARKLINK_BEIDE_TYPEN(Zahlungseingang_Test);

TEST_P(Zahlungseingang_Test, Schreibt_alle_Felder) {
  Rechnung(u"R1"_qs, 119);
  Option_schreiben(u"DATEV"_qs, u"UseMethodPaymentsAccounts"_qs, u"1"_qs);
  const auto zahlung = Zahlungseingang_erzeugen(Angaben(119));
  ASSERT_TRUE(zahlung);
  EXPECT_EQ(zahlung->Nummer, u"ZE-001"_qs);
  EXPECT_EQ(zahlung->Betrag, 119);
  EXPECT_FALSE(zahlung->Skonto_genommen);
  const db::Recordset rs = Zahlungen();
  ASSERT_EQ(rs.RecordCount(), 1);
  const std::pair<const char *, const char *> felder[] = {{"PaymentNumber", "ZE-001"},
                                                          {"document", "Rechnung"},
                                                          {"DocumentNumber", "R1"},
                                                          {"Date", "2024-06-15 00:00:00"},
                                                          {"Store", "Zentrale"},
                                                          {"Employee", "Chef"},
                                                          {"MethodPayment", "PayPal"},
                                                          {"CustomerNumber", "K1"},
                                                          {"Customer", "Groß, Jürgen"},
                                                          {"BookingDate", "2024-06-15 00:00:00"},
                                                          {"DebitorAccount", "10001"},
                                                          {"CashAccount", "1362"},
                                                          {"DateCreation", "2024-06-15 10:30:00"},
                                                          {"WorksOnLastOf", "Chef"},
                                                          {"EmailDate", ""},
                                                          {"AccountingNumber", ""}};
  for (const auto &[feld, wert] : felder)
    EXPECT_EQ(rs.Text(QLatin1String(feld)), QString::fromUtf8(wert)) << feld;
  for (const QString &feld : {u"TransferAccount"_qs, u"Credited"_qs}) EXPECT_TRUE(rs.Flag(feld));
  for (const QString &feld : {u"CashDiscount"_qs, u"DATEVBooked"_qs, u"Email"_qs})
    EXPECT_FALSE(rs.Flag(feld));
  EXPECT_EQ(Option_lesen(u"NumberRange"_qs, u"Payment"_qs), u"002"_qs);
  ASSERT_TRUE(Zahlungseingang_erzeugen(Angaben(219, u"Rechnung"_qs)));
  db::Recordset zweite = Zahlungen();
  zweite.MoveNext();
  EXPECT_FALSE(zweite.Flag(u"Credited"_qs)) << "without a transfer account it has not arrived";
  EXPECT_TRUE(zweite.IsNull(u"BookingDate"_qs));
}

TEST_P(Zahlungseingang_Test, Zahlt_den_Rest_mit_Skonto_in_der_Frist) {
  const struct {
    QString Bedingung, Wort;
    QDate Tag;
    double Betrag, Gutschrift, Gebuehr, Vorher, Gezahlt, Skonto;
    bool Genommen;
  } faelle[] = {
      {u"8 Tage 3 %"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 100, 0, 0, 0, 97, 3, true},
      {u"8 Tage 3 %"_qs, u"Rechnung"_qs, QDate(2024, 6, 19), 100, 0, 0, 0, 100, 0, false},
      {u"8 Tage 3 %"_qs, u"Quittung"_qs, QDate(2024, 6, 18), 100, 0, 0, 0, 100, 0, false},
      {u"8 Tage 3 %"_qs, u"Standard"_qs, QDate(2024, 6, 18), 100, 0, 0, 0, 100, 0, false},
      {u"8 Tage ohne"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 100, 0, 0, 0, 100, 0, true},
      {u"8 Tage 3 %"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 100, 20, 5, 35, 48.5, 1.5, true},
      {u"8 Tage 3 %"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 103, 0, 0, 0, 99.91, 3.09, true},
      {u"8 Tage 3 %"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 10.5, 0, 0, 0, 10.18, 0.32, true},
      {u"14 Tage netto"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 0.3, 0, 0, 0.1, 0.2, 0, false},
      {u"unbekannt"_qs, u"Rechnung"_qs, QDate(2024, 6, 18), 50, 0, 0, 80, -30, 0, false},
  };
  for (const auto &fall : faelle) {
    for (const char *tabelle : {"Invoice", "PaymentIncome", "Credit", "Dunning"})
      ASSERT_TRUE(Ausfuehren({"DELETE FROM ", db::Name{QLatin1String(tabelle)}}));
    Rechnung(u"R1"_qs, fall.Betrag, fall.Bedingung);
    if (fall.Gutschrift > 0) Gutschrift(u"G1"_qs, u"R1"_qs, fall.Gutschrift);
    if (fall.Gebuehr > 0) Mahnung(u"R1"_qs, QDate(2024, 6, 1), fall.Gebuehr);
    if (fall.Vorher > 0) Zahlung(u"A1"_qs, u"R1"_qs, fall.Vorher);
    Zahlungsangaben angaben = Angaben(fall.Betrag);
    angaben.Beleg = fall.Wort;
    angaben.Datum = fall.Tag;
    const auto zahlung = Zahlungseingang_erzeugen(angaben);
    ASSERT_TRUE(zahlung);
    const db::Recordset rs =
        Abfragen({"SELECT * FROM PaymentIncome WHERE PaymentNumber = ", db::Wert{zahlung->Nummer}});
    EXPECT_EQ(rs.Number(u"Amount"_qs), fall.Gezahlt) << fall.Betrag;
    EXPECT_EQ(rs.Number(u"CashDiscountAmount"_qs), fall.Skonto) << fall.Betrag;
    EXPECT_EQ(rs.Flag(u"CashDiscount"_qs), fall.Genommen) << fall.Betrag;
    if (fall.Wort != u"Rechnung"_qs) continue;
    for (const double skonto : {zahlung->Skonto, 0.0}) {  // what the caller hands on, and what the books hold
      ASSERT_TRUE(Offenen_Posten_aktualisieren(Postenart::Rechnung, u"R1"_qs, u"Rechnung"_qs, 0, skonto));
      EXPECT_EQ(Posten(u"R1"_qs).Number(u"OutstandingAmount"_qs), 0) << fall.Betrag;
      EXPECT_TRUE(Posten(u"R1"_qs).Flag(u"Paid"_qs)) << fall.Betrag;
    }
  }
}

TEST_P(Zahlungseingang_Test, Aendern_behaelt_die_Nummer_und_nimmt_kein_zweites_Skonto) {
  Rechnung(u"R1"_qs, 103, u"8 Tage 3 %"_qs);
  Zahlungsangaben angaben = Angaben(99.91);
  angaben.Modus = Zahlungsmodus::Aendern;
  EXPECT_FALSE(Zahlungseingang_erzeugen(angaben)) << "there is none to change";
  EXPECT_EQ(Zahlungen().RecordCount(), 0);
  ASSERT_TRUE(Zahlungseingang_erzeugen(Angaben(103)));
  const auto rechnung = [] { return Abfragen("SELECT * FROM Invoice").Number(u"CashDiscountAmount"_qs); };
  const struct {
    QDate Tag;
    double Angegeben, Betrag, Skonto;
  } faelle[] = {{QDate(2024, 6, 16), 99.91, 99.91, 3.09},  // reduced already
                {QDate(2024, 6, 19), 103, 103, 0},         // too late now
                {QDate(2024, 6, 18), 103, 99.91, 3.09}};
  for (const auto &fall : faelle) {
    angaben.Datum = fall.Tag;
    angaben.Betrag = fall.Angegeben;
    const auto zahlung = Zahlungseingang_erzeugen(angaben);
    EXPECT_EQ(zahlung->Nummer, u"ZE-001"_qs);
    EXPECT_EQ(Zahlungen().RecordCount(), 1);
    EXPECT_EQ(Zahlungen().Number(u"Amount"_qs), fall.Betrag);
    EXPECT_EQ(zahlung->Skonto, fall.Skonto);
    EXPECT_EQ(rechnung(), fall.Skonto);
  }
}

TEST_P(Zahlungseingang_Test, Ohne_Zahlungsart_ein_Hinweis_und_Boeses_schreibt_nichts) {
  test::Dialoge_Skript dialoge;
  dialoge.Erwarten(u"Hinweis"_qs);
  EXPECT_FALSE(Zahlungseingang_erzeugen(Angaben(100, u""_qs)));
  EXPECT_EQ(dialoge.Gezeigt.back().Zeilen,
            (QStringList{u"Es ist leider keine Zahlungsart vorhanden."_qs,
                         u"Der Zahlungseingang kann nicht generiert werden."_qs}));
  Zahlungsangaben angaben = Angaben(100);
  angaben.Nummer = u"R' OR '1'='1"_qs;
  Zahlungseingang_erzeugen(angaben);
  EXPECT_EQ(Zahlungen().RecordCount(), 0);
  EXPECT_EQ(Option_lesen(u"NumberRange"_qs, u"Payment"_qs), u"001"_qs);
  angaben = Angaben(-0.01);
  angaben.Datum = QDate();
  angaben.Kundennummer = u"K9"_qs;
  EXPECT_TRUE(Zahlungseingang_erzeugen(angaben)) << "no date and no customer are no reason";
}

TEST_P(Zahlungseingang_Test, Buchungssatz_nur_wenn_gewollt_und_einmal) {
  Rechnung(u"R1"_qs, 119);
  Option_schreiben(u"DATEV"_qs, u"AccountPaymentIncome"_qs, u"1200"_qs);
  Komponenten_Attrappe komponenten;
  ASSERT_TRUE(Zahlungseingang_erzeugen(Angaben(119)));
  EXPECT_TRUE(komponenten.Rufe.empty());

  Option_schreiben(u"Program"_qs, u"AccountingRecordBooking"_qs, u"1"_qs);
  ASSERT_TRUE(Zahlungseingang_erzeugen(Angaben(219)));
  ASSERT_EQ(komponenten.Rufe.size(), 3U);
  EXPECT_EQ(komponenten.Rufe[0].Operation, u"Initialisierung"_qs);
  EXPECT_EQ(komponenten.Rufe[0].Argumente, (QVariantList{u"Test"_qs, u"Chef"_qs}));
  EXPECT_EQ(komponenten.Rufe[1].Operation, u"Beleg_gebucht"_qs);
  EXPECT_EQ(komponenten.Rufe[1].Argumente,
            (QVariantList{u"PaymentIncome"_qs, u"PaymentNumber"_qs, u"ZE-002"_qs}));
  EXPECT_EQ(komponenten.Rufe[2].Argumente,
            (QVariantList{u"Zahlungseingang"_qs, u"ZE-002"_qs, QDate(2024, 6, 15),
                          u"ZE für Rechnung R1 vom 15.06.2024"_qs, 100.0, u"0,00"_qs, u"1200"_qs, u"10001"_qs,
                          u"Rechnung"_qs, u"R1"_qs, u"K1"_qs, u"Groß, Jürgen"_qs, u"Zentrale"_qs}));
  db::Recordset rs = Zahlungen();
  EXPECT_EQ(rs.Text(u"AccountingNumber"_qs), QString());
  rs.MoveNext();
  EXPECT_EQ(rs.Text(u"AccountingNumber"_qs), u"B-77"_qs);

  komponenten.Gebucht = true;
  Felder_aendern(u"PaymentIncome"_qs, u"PaymentNumber"_qs, u"ZE-001"_qs, u"AccountingNumber"_qs, u"B-7"_qs);
  Zahlungsangaben angaben = Angaben(119);
  angaben.Modus = Zahlungsmodus::Aendern;
  ASSERT_TRUE(Zahlungseingang_erzeugen(angaben));
  EXPECT_EQ(komponenten.Rufe.back().Operation, u"Beleg_gebucht"_qs);
  EXPECT_EQ(Zahlungen().Text(u"AccountingNumber"_qs), u"B-7"_qs) << "a changed payment stays booked";

  Host_Komponenten_setzen(nullptr);  // a host without accounts: the payment stands
  EXPECT_TRUE(Zahlungseingang_erzeugen(Angaben(219)));
  EXPECT_EQ(Zahlungen().RecordCount(), 3);
}

}  // namespace
}  // namespace marklink
