// The demo client's invoices and what became of them: paid, in part or too much, with cash discount,
// reminded, credited, written off. All figures are whole cents until they go into a row.
#include "Demomandant_Buecher.h"

namespace marklink::demo {

namespace {

QString Text(const char16_t *T) { return QString::fromUtf16(T); }
double Eur(Cent C) { return double(C) / 100; }

struct Rechnungsfall {
  int Alter;  ///< days
  const char *Kunde;
  const char16_t *Bedingung;
  int Ziel;        ///< days of the terms; -1: terms that the books do not know
  int Skontosatz;  ///< per cent of the terms
  const char16_t *Zahlungsart;
  enum Ausgang { Offen, Teilweise, Bezahlt, Ueberzahlt, Mit_Skonto, Gutgeschrieben } Ausgang_ = Offen;
  Cent Mahngebuehr = 0;
  bool Netto = false, Rabattliste = false, Positionsrabatt = false, Fremde_Steuer = false, Ausfall = false;
};

constexpr const char16_t *Netto14 = u"14 Tage netto", *Netto30 = u"30 Tage netto";
constexpr const char16_t *Skonto8 = u"8 Tage 2 % Skonto, 14 Tage netto";
constexpr const char16_t *Skonto10 = u"10 Tage 3 % Skonto, 30 Tage netto";

using F = Rechnungsfall;
/// The first three stand before, on and behind the last day of their cash discount.
const Rechnungsfall Falltafel[] = {
    {3, "K30001", Skonto10, 30, 3, u"Rechnung"},
    {10, "K30001", Skonto10, 30, 3, u"Rechnung"},
    {11, "K30001", Skonto10, 30, 3, u"Rechnung"},
    {60, "K30002", Netto14, 14, 0, u"Rechnung", F::Offen, 500},
    {40, "K30007", Netto14, 14, 0, u"Vorkasse", F::Teilweise, 250, false, false, true},
    {35, "K30006", Netto14, 14, 0, u"Lastschrift", F::Bezahlt},
    {50, "K30006", Netto14, 14, 0, u"Vorkasse", F::Ueberzahlt},
    {25, "K30002", Netto14, 14, 0, u"Rechnung", F::Gutgeschrieben},
    {22, "K30006", Skonto8, 14, 2, u"Rechnung", F::Mit_Skonto},
    {130, "K30004", u"nach Vereinbarung", -1, 0, u"Vorkasse", F::Offen, 1000, false, false, false, false,
     true},
    {8, "K30003", Skonto8, 14, 2, u"Rechnung", F::Offen, 0, false, false, false, true},
    {20, "K30001", Netto30, 30, 0, u"Kreditkarte", F::Bezahlt, 0, true},
    {2, "K30002", Netto14, 14, 0, u"Rechnung", F::Offen, 0, false, true},
};

/// Amounts of an invoice in cents, rounded as the books do.
struct Belegbetraege {
  Cent Zwischensumme = 0, Netto = 0, Steuer = 0, Brutto = 0, Positionsrabatt = 0, Belegrabatt = 0, Frei = 0;
  Cent Gesamt() const { return Brutto - Frei; }
};

class Belegwerk {
 public:
  Belegwerk(const Demodaten &D, const Mandantenvorgaben &V)
      : D_(D), V_(V), Kunden_(Kunden_der_Buecher(D, V).front()) {}

  std::vector<Tabellenzeilen> alles() {
    for (const Rechnungsfall &Fall : Falltafel) Rechnung_anhaengen(Fall);
    Andere_anhaengen();
    std::vector<Tabellenzeilen> Alle;
    for (Tabellenzeilen *T : {&Rechnungen_, &Positionen_, &Posten_, &Eingaenge_, &Ausgaenge_, &Gutschriften_,
                              &Mahnungen_, &Quittungen_, &Eingangsrechnungen_})
      Alle.push_back(std::move(*T));
    return Alle;
  }

 private:
  struct Postenangaben {
    QString Beleg, Nummer, Kontakt, Kontaktname;
    QDate Tag, Faellig;
    Cent Betrag = 0, Skonto = 0, Gebuehr = 0, Gutschrift = 0, Eingang = 0, Ausgang = 0, Offen = 0;
    bool Ausfall = false;
  };

  void Rechnung_anhaengen(const Rechnungsfall &Fall);
  Belegbetraege Positionen_anhaengen(const Rechnungsfall &Fall, const QString &Nummer, const QDate &Tag);
  Cent Position_anhaengen(const Rechnungsfall &Fall, const QString &Nummer, const QDate &Tag, int Zeile);
  void Ausgang_eintragen(const Rechnungsfall &Fall, Postenangaben &P);
  void Posten_anhaengen(const Postenangaben &P);
  void Andere_anhaengen();
  void Eingang_anhaengen(const Postenangaben &P, const QString &Zahlungsart, Cent Betrag, Cent Zuviel = 0);
  QString Belegnummer(const char *Kuerzel, const QDate &Tag, int Laufend, int Stellen) const {
    return QStringLiteral("%1-%2-%3")
        .arg(QLatin1String(Kuerzel))
        .arg(Tag.year())
        .arg(Laufend, Stellen, 10, QLatin1Char('0'));
  }
  QString Kundentext(const QString &Nummer, const char *Spalte) const {
    const qsizetype Stelle = Kunden_.Spalten.indexOf(QLatin1String(Spalte));
    for (const QVariantList &Zeile : Kunden_.Zeilen)
      if (Zeile[0].toString() == Nummer) return Zeile[Stelle].toString();
    return {};
  }
  QString Rabattliste() const {
    return QStringLiteral("Rabatt 2%;0;2;0;1|Treuerabatt 3%;0;3;0;1|Gutschein;1;5;-1;%1|Kulanz;1;2,5;0;")
        .arg(V_.Steuer_voll);
  }

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
  const Tabellenzeilen Kunden_;
  Tabellenzeilen Rechnungen_{
      "Invoice",
      Spalten(
          "InvoiceNumber Form Date CustomerNumber Customer Address DeliveryAddress Employee Store "
          "PaymentPractice MethodPayment SubTotal NetAmount VatAmount GrossAmount DiscountAmount SalesReturn "
          "SalesReturnString ForwardingCharges FreeForwarding TotalAmount CashAmount Taxation TaxCalculation "
          "DuePayment Paid PaidDate CashDiscount CashDiscountAmount DunningDate InvoiceType DateCreation"),
      {}};
  Tabellenzeilen Positionen_{
      "Positions",
      Spalten("document DocumentNumber LineItemNumber SequentialNumber ArticleNumber ShortText Unit Quantity "
              "BackOrder QuantityDelivered VatCode Rebate UnitpriceNet UnitpriceVat UnitpriceGross "
              "AllroundpriceNet AllroundpriceVat AllroundpriceGross WeightNet WeightGross Employee Date"),
      {}};
  Tabellenzeilen Posten_{
      "OpenItems",
      Spalten(
          "OpenItemNumber document DocumentNumber Date ContactNumber Contact Store Employee Amount "
          "OverdueFines CreditAmount PaymentsReceived OutgoingPayments OutstandingAmount DuePayment BadDebt "
          "BadDebtNotice Paid PaidDate"),
      {}};
  Tabellenzeilen Eingaenge_{
      "PaymentIncome",
      Spalten(
          "PaymentNumber Date document DocumentNumber Store Employee MethodPayment CustomerNumber Customer "
          "ExcessDeficitAmountBooking ExcessDeficitAmount Amount CashDiscount CashDiscountAmount "
          "TransferAccount Credited BookingDate DebitorAccount CashAccount"),
      {}};
  Tabellenzeilen Ausgaenge_{"PaymentOutcome", Spalten("document DocumentNumber Amount"), {}};
  Tabellenzeilen Gutschriften_{
      "Credit",
      Spalten("CreditNumber Date CustomerNumber Customer TotalAmount PaymentPractice ConversionType "
              "InvoiceNumber ReceiptNumber ClearedDocumentNumber Paid PaidDate"),
      {}};
  Tabellenzeilen Mahnungen_{"Dunning", Spalten("InvoiceNumber Date OverdueFines"), {}};
  Tabellenzeilen Quittungen_{
      "Receipt",
      Spalten("ReceiptNumber Date CustomerNumber Customer GrossAmount Dispatch DispatchDate Paid PaidDate"),
      {}};
  Tabellenzeilen Eingangsrechnungen_{
      "SupplierInvoices",
      Spalten("IncomingInvoiceNumber Date SupplierNumber Supplier InvoiceAmount PaymentPractice Paid"),
      {}};
};

struct Ware {
  const char *Artikel;
  const char16_t *Name;
  Cent Preis;  ///< leading: gross, of a net document net
  int Satz, Menge;
};
const Ware Warentafel[] = {{"ST1010", u"Werbebecher, Staffel mit Ausreißer", 476, 19, 20},
                           {"WK1010", u"Wasserkanister 10 l", 1428, 19, 2},
                           {"KT1010", u"Hausmischung Kaffee", 899, 7, 3},
                           {"FS1010", u"Altware mit fremdem Steuerschlüssel", 1190, 19, 1}};

/// Leading total of the line in cents; 0 for a line whose tax key no document counts.
Cent Belegwerk::Position_anhaengen(const Rechnungsfall &Fall, const QString &Nummer, const QDate &Tag,
                                   int Zeile) {
  const Ware &W = Warentafel[Zeile - 1];
  const int Rabatt = Fall.Positionsrabatt && Zeile == 2 ? 10 : 0;
  const Cent Einzel = W.Preis - teilen_gerundet(W.Preis * Rabatt, 100);
  const Cent Fuehrend = Einzel * W.Menge;
  const Cent Brutto = Fall.Netto ? Brutto_aus(Fuehrend, W.Satz) : Fuehrend;
  const Cent Netto = Fall.Netto ? Fuehrend : Netto_aus(Fuehrend, W.Satz);
  const Cent Einzel_Brutto = Fall.Netto ? Brutto_aus(W.Preis, W.Satz) : W.Preis;
  const Cent Einzel_Netto = Fall.Netto ? W.Preis : Netto_aus(W.Preis, W.Satz);
  const QString Schluessel = Zeile == 4     ? QStringLiteral("99")
                             : W.Satz == 19 ? V_.Steuer_voll
                                            : V_.Steuer_ermaessigt;
  Positionen_.Zeilen.push_back({QStringLiteral("Rechnung"),
                                Nummer,
                                QString::number(Zeile),
                                QStringLiteral("%1").arg(Zeile, 4, 10, QLatin1Char('0')),
                                QLatin1String(W.Artikel),
                                Text(W.Name),
                                QStringLiteral("Stück"),
                                double(W.Menge),
                                0.0,
                                double(W.Menge),
                                Schluessel,
                                double(Rabatt),
                                Eur(Einzel_Netto),
                                Eur(Einzel_Brutto - Einzel_Netto),
                                Eur(Einzel_Brutto),
                                Eur(Netto),
                                Eur(Brutto - Netto),
                                Eur(Brutto),
                                0.14,
                                0.15,
                                QStringLiteral("Chef"),
                                Buchungstag(Tag)});
  return Zeile == 4 ? 0 : Fuehrend;
}

Belegbetraege Belegwerk::Positionen_anhaengen(const Rechnungsfall &Fall, const QString &Nummer,
                                              const QDate &Tag) {
  Cent Summe[2] = {0, 0};  // full and reduced rate
  const int Zeilen = Fall.Fremde_Steuer ? 4 : 3;
  for (int Zeile = 1; Zeile <= Zeilen; ++Zeile)
    Summe[Zeile == 3] += Position_anhaengen(Fall, Nummer, Tag, Zeile);
  Belegbetraege B;
  B.Zwischensumme = Summe[0] + Summe[1];
  if (Fall.Positionsrabatt)
    B.Positionsrabatt = teilen_gerundet(Warentafel[1].Preis * Warentafel[1].Menge * 10, 100);
  if (Fall.Rabattliste) B.Frei = 250;
  Cent Fein = 0;  // hundredths of a cent, since the discounts are not rounded key by key
  for (int i = 0; i < 2; ++i) {
    const int Satz = i == 0 ? 19 : 7;
    const Cent Rest = Fall.Rabattliste ? Summe[i] * 95 - (i == 0 ? 50000 : 0) : Summe[i] * 100;
    B.Steuer +=
        Fall.Netto ? teilen_gerundet(Rest * Satz, 10000) : teilen_gerundet(Rest * Satz, (100 + Satz) * 100);
    Fein += Rest;
  }
  B.Belegrabatt = teilen_gerundet(B.Zwischensumme * 100 - Fein + B.Frei * 100, 100);
  B.Brutto = teilen_gerundet(Fein, 100) + (Fall.Netto ? B.Steuer : 0);
  B.Netto = teilen_gerundet(Fein - (Fall.Netto ? 0 : B.Steuer * 100), 100);
  return B;
}

void Belegwerk::Eingang_anhaengen(const Postenangaben &P, const QString &Zahlungsart, Cent Betrag,
                                  Cent Zuviel) {
  const bool Transfer = Zahlungsart == QLatin1String("Kreditkarte"), Gebucht = Transfer || Zuviel > 0;
  const QDateTime Tag = Buchungstag(qMin(P.Tag.addDays(7), D_.Heute));
  Eingaenge_.Zeilen.push_back(
      {QStringLiteral("ZE-%1").arg(Eingaenge_.Zeilen.size() + 1, 6, 10, QLatin1Char('0')), Tag, P.Beleg,
       P.Nummer, QStringLiteral("Zentrale"), QStringLiteral("Chef"), Zahlungsart, P.Kontakt, P.Kontaktname,
       Zuviel > 0, Eur(Zuviel), Eur(Betrag), P.Skonto > 0, Eur(P.Skonto), Transfer, Gebucht,
       Gebucht ? QVariant(Tag) : QVariant(), Kundentext(P.Kontakt, "DebitorAccount"),
       QStringLiteral("1200")});
}

/// Payments, credit notes and reminders of the case, and what they leave open.
void Belegwerk::Ausgang_eintragen(const Rechnungsfall &Fall, Postenangaben &P) {
  constexpr Cent Teilzahlung = 5000, Zuviel = 500;
  P.Gebuehr = Fall.Mahngebuehr;
  P.Ausfall = Fall.Ausfall;
  if (Fall.Ausgang_ == F::Mit_Skonto) P.Skonto = teilen_gerundet(P.Betrag * Fall.Skontosatz, 100);
  const QString Art = Text(Fall.Zahlungsart);
  switch (Fall.Ausgang_) {
    case F::Teilweise:
      P.Eingang = Teilzahlung;
      Eingang_anhaengen(P, Art, Teilzahlung);
      break;
    case F::Bezahlt:
    case F::Mit_Skonto:
      P.Eingang = P.Betrag - P.Skonto;
      Eingang_anhaengen(P, Art, P.Eingang);
      break;
    case F::Ueberzahlt:
      P.Eingang = P.Betrag + Zuviel;
      Eingang_anhaengen(P, Art, P.Betrag, Zuviel);
      P.Ausgang = Zuviel;
      Ausgaenge_.Zeilen.push_back({P.Beleg, P.Nummer, Eur(Zuviel)});
      break;
    case F::Gutgeschrieben:
      P.Gutschrift = P.Betrag;
      break;
    case F::Offen:
      break;
  }
  // Of several reminders the last one's fine counts.
  if (P.Gebuehr > 0) {
    Mahnungen_.Zeilen.push_back({P.Nummer, Buchungstag(P.Tag.addDays(20)), Eur(P.Gebuehr / 2)});
    Mahnungen_.Zeilen.push_back({P.Nummer, Buchungstag(P.Tag.addDays(30)), Eur(P.Gebuehr)});
  }
  P.Offen = P.Betrag - P.Skonto + P.Gebuehr - P.Eingang - P.Gutschrift;
}

void Belegwerk::Posten_anhaengen(const Postenangaben &P) {
  const bool Bezahlt = P.Offen <= 0;
  Posten_.Zeilen.push_back({QStringLiteral("OP-%1").arg(Posten_.Zeilen.size() + 1, 6, 10, QLatin1Char('0')),
                            P.Beleg, P.Nummer, Buchungstag(P.Tag), P.Kontakt, P.Kontaktname,
                            QStringLiteral("Zentrale"), QStringLiteral("Chef"), Eur(P.Betrag), Eur(P.Gebuehr),
                            Eur(P.Gutschrift), Eur(P.Eingang), Eur(P.Ausgang), Eur(P.Offen),
                            P.Faellig.isValid() ? QVariant(Buchungstag(P.Faellig)) : QVariant(), P.Ausfall,
                            P.Ausfall ? QStringLiteral("Empfänger unbekannt verzogen.") : QString(), Bezahlt,
                            Bezahlt ? QVariant(Buchungstag(qMin(P.Tag.addDays(7), D_.Heute))) : QVariant()});
}

void Belegwerk::Rechnung_anhaengen(const Rechnungsfall &Fall) {
  Postenangaben P;
  P.Beleg = QStringLiteral("Rechnung");
  P.Tag = D_.Heute.addDays(-Fall.Alter);
  P.Nummer = Belegnummer("RE", P.Tag, int(Rechnungen_.Zeilen.size()) + 1, 5);
  P.Kontakt = QLatin1String(Fall.Kunde);
  P.Kontaktname = Kundentext(P.Kontakt, "Matchcode");
  if (Fall.Ziel >= 0) P.Faellig = P.Tag.addDays(Fall.Ziel);
  const Belegbetraege B = Positionen_anhaengen(Fall, P.Nummer, P.Tag);
  P.Betrag = B.Gesamt();
  Ausgang_eintragen(Fall, P);
  Posten_anhaengen(P);
  const QVariantList &Posten = Posten_.Zeilen.back();
  const QString Adresse = Kundentext(P.Kontakt, "InvoiceAddress");
  Rechnungen_.Zeilen.push_back({P.Nummer,
                                QStringLiteral("Rechnung"),
                                Buchungstag(P.Tag),
                                P.Kontakt,
                                P.Kontaktname,
                                Adresse,
                                Adresse,
                                QStringLiteral("Chef"),
                                QStringLiteral("Zentrale"),
                                Text(Fall.Bedingung),
                                Text(Fall.Zahlungsart),
                                Eur(B.Zwischensumme),
                                Eur(B.Netto),
                                Eur(B.Steuer),
                                Eur(B.Brutto),
                                Eur(B.Positionsrabatt),
                                Eur(B.Belegrabatt),
                                Fall.Rabattliste ? Rabattliste() : QString(),
                                0.0,
                                true,
                                Eur(P.Betrag),
                                Eur(P.Betrag - teilen_gerundet(P.Betrag * Fall.Skontosatz, 100)),
                                Fall.Netto ? 0 : 1,
                                Kundentext(P.Kontakt, "TaxCalculation").toInt(),
                                P.Faellig.isValid() ? QVariant(Buchungstag(P.Faellig)) : QVariant(),
                                Posten[17],
                                Posten[18],
                                P.Skonto > 0,
                                Eur(P.Skonto),
                                P.Gebuehr > 0 ? QVariant(Buchungstag(P.Tag.addDays(30))) : QVariant(),
                                0,
                                Buchungstag(P.Tag)});
  if (Fall.Ausgang_ != F::Gutgeschrieben) return;
  const QDate Tag = P.Tag.addDays(4);
  Postenangaben G{
      QStringLiteral("Gutschrift"), Belegnummer("GU", Tag, 1, 5), P.Kontakt, P.Kontaktname, Tag, Tag};
  G.Betrag = G.Gutschrift = P.Betrag;
  Posten_anhaengen(G);
  Gutschriften_.Zeilen.push_back({G.Nummer, Buchungstag(Tag), G.Kontakt, G.Kontaktname, Eur(G.Betrag),
                                  QStringLiteral("Zahlbar sofort ohne Abzug"), 0, P.Nummer, QString(),
                                  P.Nummer, true, Buchungstag(Tag)});
}

/// A receipt paid in cash, a credit note that is paid out in part, a supplier's invoice likewise.
void Belegwerk::Andere_anhaengen() {
  const QString Kunde = QStringLiteral("K30003"), Name = Kundentext(Kunde, "Matchcode");
  const QDate Gestern = D_.Heute.addDays(-1), Frueher = D_.Heute.addDays(-12);
  Postenangaben Q{
      QStringLiteral("Quittung"), Belegnummer("QU", Gestern, 1, 5), Kunde, Name, Gestern, Gestern};
  Q.Betrag = Q.Eingang = 1428;
  Eingang_anhaengen(Q, QStringLiteral("Barzahlung"), Q.Betrag);
  Posten_anhaengen(Q);
  Quittungen_.Zeilen.push_back({Q.Nummer, Buchungstag(Gestern), Kunde, Name, Eur(Q.Betrag), true,
                                Buchungstag(Gestern), true, Buchungstag(Gestern)});
  Postenangaben G{
      QStringLiteral("Gutschrift"), Belegnummer("GU", Frueher, 2, 5), Kunde, Name, Frueher, Frueher};
  G.Betrag = 2000;
  G.Ausgang = 500;
  G.Offen = G.Betrag - G.Ausgang;
  Ausgaenge_.Zeilen.push_back({G.Beleg, G.Nummer, Eur(G.Ausgang)});
  Posten_anhaengen(G);
  Gutschriften_.Zeilen.push_back({G.Nummer, Buchungstag(Frueher), Kunde, Name, Eur(G.Betrag),
                                  QStringLiteral("Zahlbar sofort ohne Abzug"), 1, QString(), Q.Nummer,
                                  QString(), false, QVariant()});
  Postenangaben E{QStringLiteral("Lieferanten-Rechnung"),
                  QStringLiteral("ER-4711"),
                  QStringLiteral("L790"),
                  QStringLiteral("Kunststoffwerk Ith"),
                  Frueher,
                  Frueher.addDays(30)};
  E.Betrag = 35700;
  E.Ausgang = 10000;
  E.Offen = E.Betrag - E.Ausgang;
  Ausgaenge_.Zeilen.push_back({E.Beleg, E.Nummer, Eur(E.Ausgang)});
  Posten_anhaengen(E);
  Eingangsrechnungen_.Zeilen.push_back(
      {E.Nummer, Buchungstag(Frueher), E.Kontakt, E.Kontaktname, Eur(E.Betrag), Text(Netto30), false});
}

}  // namespace

std::vector<Tabellenzeilen> Belege_der_Buecher(const Demodaten &D, const Mandantenvorgaben &V) {
  std::vector<Tabellenzeilen> Alle = Belegwerk(D, V).alles();
  for (Tabellenzeilen &T : Lagerbelege(D, V)) Alle.push_back(std::move(T));
  return Alle;
}

}  // namespace marklink::demo
