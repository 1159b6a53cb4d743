// Open items: what is owed on a document, kept in step with it.
#include "Berechnung.h"
#include "Nummernkreise.h"
#include "Zahlungsverkehr.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

/// Where a kind of document stands and what its columns are called.
struct Belegquelle {
  const char *Tabelle, *Schluessel, *Betrag, *Kontaktnummer, *Kontakt;
};

const Belegquelle &Quelle(Postenart Art) {
  static constexpr Belegquelle rechnung{"Invoice", "InvoiceNumber", "TotalAmount", "CustomerNumber",
                                        "Customer"};
  static constexpr Belegquelle quittung{"Receipt", "ReceiptNumber", "GrossAmount", "CustomerNumber",
                                        "Customer"};
  static constexpr Belegquelle gutschrift{"Credit", "CreditNumber", "TotalAmount", "CustomerNumber",
                                          "Customer"};
  static constexpr Belegquelle lieferant{"SupplierInvoices", "IncomingInvoiceNumber", "InvoiceAmount",
                                         "SupplierNumber", "Supplier"};
  switch (Art) {
    case Postenart::Quittung:
      return quittung;
    case Postenart::Gutschrift:
      return gutschrift;
    case Postenart::Lieferantenrechnung:
      return lieferant;
    default:
      return rechnung;
  }
}

bool Ist_Rechnung(Postenart Art) {
  return Art == Postenart::Rechnung || Art == Postenart::Rechnungskorrektur;
}

/// The client owes, not the customer.
bool Ist_Verbindlichkeit(Postenart Art) {
  return Art == Postenart::Gutschrift || Art == Postenart::Lieferantenrechnung;
}

db::Recordset Beleg_lesen(Postenart Art, const QString &Nummer) {
  const Belegquelle &quelle = Quelle(Art);
  return Abfragen({"SELECT * FROM ", db::Name{QLatin1String(quelle.Tabelle)}, " WHERE ",
                   db::Name{QLatin1String(quelle.Schluessel)}, " = ", db::Wert{Nummer}});
}

QDate Tag(const QVariant &Wert) { return Wert.toDateTime().date(); }

double Rechnungsskonto(const QString &Nummer) {
  double betrag = 0.0;
  return Rechnung_Skonto(Nummer, betrag) ? betrag : 0.0;
}

/// What credit notes took off the document; a credit note that clears a document is used up by it.
double Gutgeschrieben(Postenart Art, const db::Recordset &Beleg, const QString &Nummer, double Betrag) {
  if (Art == Postenart::Gutschrift)
    return Beleg.Text(QStringLiteral("ClearedDocumentNumber")).isEmpty() ? 0.0 : Betrag;
  return Art == Postenart::Lieferantenrechnung ? 0.0 : Runden(Gutschriften_Summe(Nummer), 2);
}

/// What has been settled of the document, in the direction in which it is owed.
double Beglichen(Postenart Art, const Postenwerte &Werte) {
  if (Ist_Verbindlichkeit(Art)) return Werte.Auszahlungen + Werte.Gutschriften;
  const double eingegangen = Werte.Zahlungseingaenge + Werte.Gutschriften;
  return Art == Postenart::Rechnungskorrektur ? eingegangen - Werte.Auszahlungen : eingegangen;
}

Postenwerte Werte_berechnen(Postenart Art, const db::Recordset &Beleg, const QString &Nummer,
                            const QString &Belegwort, double Neue_Zahlung, double Skonto) {
  const Belegquelle &quelle = Quelle(Art);
  const bool rechnung = Ist_Rechnung(Art), verbindlichkeit = Ist_Verbindlichkeit(Art);
  Postenwerte w;
  w.Kontaktnummer = Beleg.Text(QLatin1String(quelle.Kontaktnummer));
  w.Kontakt = Beleg.Text(QLatin1String(quelle.Kontakt));
  w.Datum = Tag(Beleg.Value(QStringLiteral("Date")));
  const QString bedingung = Beleg.Text(QStringLiteral("PaymentPractice"));
  // A receipt has no terms: it is due at once.
  w.Faellig = Art == Postenart::Quittung ? w.Datum : Zahlungsziel_ermitteln(bedingung, w.Datum);

  w.Betrag = Runden(Beleg.Number(QLatin1String(quelle.Betrag)), 2);
  w.Gutschriften = Gutgeschrieben(Art, Beleg, Nummer, w.Betrag);
  w.Zahlungseingaenge = Runden(Zahlungen_Summe(Belegwort, Nummer) + Ueberzahlung_Summe(Belegwort, Nummer) +
                                   (verbindlichkeit ? 0.0 : Neue_Zahlung),
                               2);
  w.Auszahlungen = Runden(Auszahlungen_Summe(Belegwort, Nummer) + (verbindlichkeit ? Neue_Zahlung : 0.0), 2);
  w.Skonto = Runden(Skonto == 0.0 && rechnung ? Rechnungsskonto(Nummer) : Skonto, 2);
  w.Mahngebuehren = rechnung ? Runden(Mahngebuehren(Nummer), 2) : 0.0;
  w.Offen = Runden(Runden(w.Betrag - w.Skonto + w.Mahngebuehren, 2) - Runden(Beglichen(Art, w), 2), 2);
  w.Bezahlt = w.Betrag < 0 ? w.Offen >= 0 : w.Offen <= 0;
  return w;
}

/// The day on which an item or document was first seen as paid stays.
void Bezahlt_setzen(db::Recordset &rs, bool Bezahlt) {
  const QString bezahlt = QStringLiteral("Paid"), datum = QStringLiteral("PaidDate");
  if (!Bezahlt)
    rs.SetValue(datum, QVariant());
  else if (!rs.Flag(bezahlt) || rs.IsNull(datum))
    rs.SetValue(datum, Tageswert(Kontext.gHeute));
  rs.SetValue(bezahlt, Bezahlt);
}

/// False when no number could be drawn: nothing is added then.
bool Posten_anlegen(db::Recordset &Posten, const Postenwerte &Werte, const QString &Nummer,
                    const QString &Belegwort) {
  const QString postennummer = Nummer_nehmen(QStringLiteral("OpenItems"), QStringLiteral("OpenItemNumber"),
                                             QStringLiteral("OpenItem"), Leere_Nummer::Zaehlt);
  if (postennummer.isNull()) return false;
  Posten.AddNew();
  Posten.SetValue(QStringLiteral("OpenItemNumber"), postennummer);
  Posten.SetValue(QStringLiteral("DocumentNumber"), Nummer);
  Posten.SetValue(QStringLiteral("document"), Belegwort);
  Posten.SetValue(QStringLiteral("Date"), Tageswert(Werte.Datum));
  Posten.SetValue(QStringLiteral("BadDebt"), false);
  Posten.SetValue(QStringLiteral("BadDebtNotice"), QString());
  return true;
}

bool Posten_speichern(const Postenwerte &Werte, const QString &Nummer, const QString &Belegwort) {
  db::Recordset posten = Abfragen({"SELECT * FROM OpenItems WHERE Document = ", db::Wert{Belegwort},
                                   " AND  DocumentNumber = ", db::Wert{Nummer}});
  if (!posten.IsOpen()) return false;
  if (posten.RecordCount() < 1 && !Posten_anlegen(posten, Werte, Nummer, Belegwort)) return false;
  posten.SetValue(QStringLiteral("ContactNumber"), Werte.Kontaktnummer);
  posten.SetValue(QStringLiteral("Contact"), Werte.Kontakt);
  posten.SetValue(QStringLiteral("Store"), Kontext.gBenutzer_Filiale);
  posten.SetValue(QStringLiteral("Employee"), Kontext.gBenutzername);
  posten.SetValue(QStringLiteral("Amount"), Werte.Betrag);
  posten.SetValue(QStringLiteral("OverdueFines"), Werte.Mahngebuehren);
  posten.SetValue(QStringLiteral("CreditAmount"), Werte.Gutschriften);
  posten.SetValue(QStringLiteral("PaymentsReceived"), Werte.Zahlungseingaenge);
  posten.SetValue(QStringLiteral("OutgoingPayments"), Werte.Auszahlungen);
  posten.SetValue(QStringLiteral("OutstandingAmount"), Werte.Offen);
  posten.SetValue(QStringLiteral("DuePayment"), Tageswert(Werte.Faellig));
  Bezahlt_setzen(posten, Werte.Bezahlt);
  posten.Update();
  return posten.UpdateBatch();
}

/// A credit note changes what is owed on the document that it was made of.
void Ausgeglichenen_Beleg_aktualisieren(const db::Recordset &Gutschrift) {
  const QString rechnung = Gutschrift.Text(QStringLiteral("InvoiceNumber"));
  const QString quittung = Gutschrift.Text(QStringLiteral("ReceiptNumber"));
  if (!rechnung.isEmpty())
    Offenen_Posten_aktualisieren(Postenart::Rechnung, rechnung, QStringLiteral("Rechnung"));
  else if (!quittung.isEmpty())
    Offenen_Posten_aktualisieren(Postenart::Quittung, quittung, QStringLiteral("Quittung"));
}

}  // namespace

std::optional<Postenwerte> Postenwerte_ermitteln(Postenart Art, const QString &Nummer, const QString &Beleg,
                                                 double Neue_Zahlung, double Skonto) {
  const db::Recordset beleg = Beleg_lesen(Art, Nummer);
  if (beleg.RecordCount() < 1) return std::nullopt;
  return Werte_berechnen(Art, beleg, Nummer, Beleg, Neue_Zahlung, Skonto);
}

bool Offenen_Posten_aktualisieren(Postenart Art, const QString &Nummer, const QString &Beleg,
                                  double Neue_Zahlung, double Skonto) {
  db::Recordset beleg = Beleg_lesen(Art, Nummer);
  if (beleg.RecordCount() < 1) return false;
  const Postenwerte werte = Werte_berechnen(Art, beleg, Nummer, Beleg, Neue_Zahlung, Skonto);
  // A document is not marked paid by an item that is not there.
  if (!Posten_speichern(werte, Nummer, Beleg)) return false;
  Bezahlt_setzen(beleg, werte.Bezahlt);
  beleg.Update();
  const bool gespeichert = beleg.UpdateBatch();
  if (Art == Postenart::Gutschrift) Ausgeglichenen_Beleg_aktualisieren(beleg);
  return gespeichert;
}

}  // namespace marklink
