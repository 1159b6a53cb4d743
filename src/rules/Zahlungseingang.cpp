// Incoming payments and their accounting records.
#include "Berechnung.h"
#include "Kunden.h"
#include "Nummernkreise.h"
#include "Zahlungsverkehr.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "host/Uhr.h"
#include "ui/Dialoge.h"
#include "ui/Host_Komponenten.h"

namespace marklink {
namespace {

constexpr QLatin1String RECHNUNG("Rechnung");

void Fehlende_Zahlungsart_melden() {
  dialoge().Meldung(QStringLiteral("Hinweis"),
                    {QStringLiteral("Es ist leider keine Zahlungsart vorhanden."),
                     QStringLiteral("Der Zahlungseingang kann nicht generiert werden.")},
                    Symbol::Information);
}

double Offener_Rest(const Zahlungsangaben &A) {
  return Runden(
      A.Betrag - Zahlungen_Summe(A.Beleg, A.Nummer) - Gutschriften_Summe(A.Nummer) + Mahngebuehren(A.Nummer),
      2);
}

QString Rechnung_Zahlungsbedingung(const QString &Nummer) {
  return Abfragen({"SELECT PaymentPractice FROM Invoice WHERE InvoiceNumber = ", db::Wert{Nummer}})
      .Text(QStringLiteral("PaymentPractice"));
}

/// Amount and cash discount; the discount is what is rounded, so that both make up the whole. The open rest
/// of a new payment does not know of discounts that earlier ones took; the connector books one for each
/// invoice.
Zahlungseingang Zahlung_berechnen(const Zahlungsangaben &A, const db::Recordset &Bisher) {
  Zahlungseingang z;
  const bool neu = A.Modus == Zahlungsmodus::Neu;
  z.Betrag = neu ? Offener_Rest(A) : A.Betrag;
  if (A.Beleg != RECHNUNG || !Skonto_Frist_laeuft(A.Nummer, A.Datum)) return z;
  z.Skonto_genommen = true;
  if (!neu && Bisher.Flag(QStringLiteral("CashDiscount"))) {
    z.Skonto =
        Bisher.Number(QStringLiteral("CashDiscountAmount"));  // the amount is less the discount already
    return z;
  }
  z.Skonto = Runden(Rabattbetrag(Skonto_Prozent(Rechnung_Zahlungsbedingung(A.Nummer)), z.Betrag), 2);
  z.Betrag = Runden(z.Betrag - z.Skonto, 2);
  return z;
}

/// A null text when no number could be drawn.
QString Neue_Zahlungsnummer() {
  return Nummer_nehmen(QStringLiteral("PaymentIncome"), QStringLiteral("PaymentNumber"),
                       QStringLiteral("Payment"), Leere_Nummer::Zaehlt);
}

/// The invoice shows what all its payments took as cash discount.
void Rechnung_Skonto_eintragen(const QString &Nummer) {
  const QString flag = QStringLiteral("CashDiscount"), betrag = QStringLiteral("CashDiscountAmount");
  double summe = 0.0;
  bool genommen = false;
  db::Recordset zahlungen =
      Abfragen({"SELECT CashDiscount, CashDiscountAmount FROM PaymentIncome WHERE Document = ",
                db::Wert{QString(RECHNUNG)}, " AND DocumentNumber = ", db::Wert{Nummer}});
  for (; !zahlungen.IsEOF(); zahlungen.MoveNext()) {
    if (!zahlungen.Flag(flag)) continue;
    genommen = true;
    summe += zahlungen.Number(betrag);
  }
  db::Recordset rechnung = Abfragen({"SELECT * FROM Invoice WHERE InvoiceNumber = ", db::Wert{Nummer}});
  // A discount that somebody entered on the invoice stays where the payments took none.
  const bool eigener = summe == 0.0 && rechnung.Number(betrag) != 0.0 && genommen;
  if (!zahlungen.IsOpen() || rechnung.RecordCount() < 1 || eigener) return;
  rechnung.SetValue(flag, genommen);
  rechnung.SetValue(betrag, Runden(summe, 2));
  rechnung.Update();
  rechnung.UpdateBatch();
}

struct Konten {
  QString Debitor, Kasse;
};

void Zahlung_eintragen(db::Recordset &rs, const Zahlungsangaben &A, const Zahlungseingang &Zahlung) {
  rs.SetValue(QStringLiteral("PaymentNumber"), Zahlung.Nummer);
  rs.SetValue(QStringLiteral("Date"), Tageswert(A.Datum));
  rs.SetValue(QStringLiteral("DocumentNumber"), A.Nummer);
  rs.SetValue(QStringLiteral("document"), A.Beleg);
  rs.SetValue(QStringLiteral("Store"), Kontext.gBenutzer_Filiale);
  rs.SetValue(QStringLiteral("Employee"), Kontext.gBenutzername);
  rs.SetValue(QStringLiteral("MethodPayment"), A.Zahlart);
  rs.SetValue(QStringLiteral("CustomerNumber"), A.Kundennummer);
  rs.SetValue(QStringLiteral("Customer"), A.Kunde);
  rs.SetValue(QStringLiteral("Notice"), A.Notiz);
  rs.SetValue(QStringLiteral("ExcessDeficitAmountBooking"), false);
  rs.SetValue(QStringLiteral("ExcessDeficitAmount"), 0.0);
  rs.SetValue(QStringLiteral("Amount"), Zahlung.Betrag);
  rs.SetValue(QStringLiteral("CashDiscount"), Zahlung.Skonto_genommen);
  rs.SetValue(QStringLiteral("CashDiscountAmount"), Zahlung.Skonto);
}

void Buchung_eintragen(db::Recordset &rs, const Zahlungsangaben &A, const Konten &K) {
  // What comes by way of a transfer account has arrived; anything else waits for the bank statement.
  const bool angekommen = Zahlart_Transferkonto(A.Zahlart);
  rs.SetValue(QStringLiteral("AccountStatementNumber"), QString());
  rs.SetValue(QStringLiteral("TransferAccount"), angekommen);
  rs.SetValue(QStringLiteral("Credited"), angekommen);
  rs.SetValue(QStringLiteral("BookingDate"), angekommen ? Tageswert(A.Datum) : QVariant());
  rs.SetValue(QStringLiteral("DebitorAccount"), K.Debitor);
  rs.SetValue(QStringLiteral("CashAccount"), K.Kasse);
  rs.SetValue(QStringLiteral("DATEVBooked"), false);
  rs.SetValue(QStringLiteral("Email"), false);
  rs.SetValue(QStringLiteral("EmailDate"), QVariant());
  // A payment that is changed keeps its accounting record until it gets another.
  if (A.Modus == Zahlungsmodus::Neu) rs.SetValue(QStringLiteral("AccountingNumber"), QString());
  const QDateTime jetzt = uhr().Jetzt();
  rs.SetValue(QStringLiteral("DateCreation"), jetzt);
  rs.SetValue(QStringLiteral("DateUpdate"), jetzt);
  rs.SetValue(QStringLiteral("WorksOnLastOf"), Kontext.gBenutzername);
}

/// What the host's accounts get of a payment; the order is that of the component's thirteen parameters.
QVariantList Buchungssatz(const Zahlungsangaben &A, const Zahlungseingang &Zahlung, const Konten &K) {
  const QString datum = Datum_formatieren(Zeitpunkt(A.Datum), QStringLiteral("short date"));
  return {QStringLiteral("Zahlungseingang"),
          Zahlung.Nummer,
          A.Datum,
          QStringLiteral("ZE für %1 %2 vom %3").arg(A.Beleg, A.Nummer, datum),
          Zahlung.Betrag,
          QStringLiteral("0,00"),
          K.Kasse,
          K.Debitor,
          A.Beleg,
          A.Nummer,
          A.Kundennummer,
          A.Kunde,
          Kontext.gBenutzer_Filiale};
}

void Zahlung_verbuchen(const Zahlungsangaben &A, const Zahlungseingang &Zahlung, const Konten &K) {
  if (Programmoption("AccountingRecordBooking") != QLatin1String("1")) return;
  const QString tabelle = QStringLiteral("PaymentIncome"), schluessel = QStringLiteral("PaymentNumber");
  const auto datev = Host_Komponente_erzeugen(QStringLiteral("datev.common"));
  Host_Komponente_aufrufen(datev.get(), QStringLiteral("Initialisierung"),
                           {Kontext.gFirmenname, Kontext.gBenutzername});
  if (Host_Komponente_aufrufen(datev.get(), QStringLiteral("Beleg_gebucht"),
                               {tabelle, schluessel, Zahlung.Nummer})
          .toBool())
    return;
  const QString satz =
      Host_Komponente_aufrufen(datev.get(), QStringLiteral("Buchung_speichern"), Buchungssatz(A, Zahlung, K))
          .toString();
  if (!satz.isEmpty())
    Felder_aendern(tabelle, schluessel, Zahlung.Nummer, QStringLiteral("AccountingNumber"), satz);
}

}  // namespace

std::optional<Zahlungseingang> Zahlungseingang_erzeugen(const Zahlungsangaben &Angaben) {
  if (Angaben.Zahlart.isEmpty()) {
    Fehlende_Zahlungsart_melden();
    return std::nullopt;
  }
  db::Recordset rs =
      Abfragen({"SELECT * FROM PaymentIncome WHERE Document = ", db::Wert{Angaben.Beleg},
                " AND DocumentNumber = ", db::Wert{Angaben.Nummer}, " ORDER BY DocumentNumber"});
  const bool neu = Angaben.Modus == Zahlungsmodus::Neu;
  // No number is drawn for a row that cannot be added.
  if (!rs.IsOpen() || (!neu && rs.RecordCount() < 1)) return std::nullopt;
  Zahlungseingang zahlung = Zahlung_berechnen(Angaben, rs);
  const bool skonto_anders = zahlung.Skonto_genommen || (!neu && rs.Flag(QStringLiteral("CashDiscount")));
  zahlung.Nummer = neu ? Neue_Zahlungsnummer() : rs.Text(QStringLiteral("PaymentNumber"));
  if (neu && zahlung.Nummer.isNull()) return std::nullopt;
  if (neu) rs.AddNew();
  const Konten konten{Kunden_Feld(Angaben.Kundennummer, Kundenfeld::DebitorAccount).toString(),
                      Kassenkonto(Angaben.Zahlart, QStringLiteral("AccountPaymentIncome"))};
  Zahlung_eintragen(rs, Angaben, zahlung);
  Buchung_eintragen(rs, Angaben, konten);
  rs.Update();
  if (!rs.UpdateBatch()) return std::nullopt;
  if (skonto_anders && Angaben.Beleg == RECHNUNG) Rechnung_Skonto_eintragen(Angaben.Nummer);
  Zahlung_verbuchen(Angaben, zahlung, konten);
  return zahlung;
}

}  // namespace marklink
