// The launcher's "datev.common": accounting records of documents and payments.
#include "Komponente.h"
#include "Launcher_Komponenten.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "rules/Kunden.h"

namespace marklink {
namespace {

/// What a document is called in the books: its table, key and the columns that a record is made of.
struct Belegart {
  const char *Wort, *Tabelle, *Schluessel, *Betrag, *Steuer, *Kontaktnummer, *Kontakt;
};

constexpr Belegart Belegarten[] = {
    {"Rechnung", "Invoice", "InvoiceNumber", "TotalAmount", "VatAmount", "CustomerNumber", "Customer"},
    {"Quittung", "Receipt", "ReceiptNumber", "GrossAmount", "", "CustomerNumber", "Customer"},
    {"Gutschrift", "Credit", "CreditNumber", "TotalAmount", "", "CustomerNumber", "Customer"},
    {"Lieferanten-Rechnung", "SupplierInvoices", "IncomingInvoiceNumber", "InvoiceAmount", "",
     "SupplierNumber", "Supplier"},
    {"Zahlungseingang", "PaymentIncome", "PaymentNumber", "Amount", "", "CustomerNumber", "Customer"},
};

const Belegart *Belegart_suchen(const char *Belegart::*Merkmal, const QString &Wert) {
  for (const Belegart &art : Belegarten)
    if (Wert.compare(QLatin1String(art.*Merkmal), Qt::CaseInsensitive) == 0) return &art;
  return nullptr;
}

QVariant Beleg_gebucht(const QVariantList &Argumente) {
  const Belegart *art = Belegart_suchen(&Belegart::Tabelle, Argumente[0].toString());
  if (art == nullptr) return false;
  return Abfragen({"SELECT AccountingNumber FROM AccountingRecords WHERE document = ",
                   db::Wert{QLatin1String(art->Wort)},
                   " AND DocumentNumber = ", db::Wert{Argumente[2].toString()}})
             .RecordCount() > 0;
}

QVariant Satz_anlegen(const QVariantList &Werte) {
  return Buchungszeile_anlegen("SELECT * FROM AccountingRecords", "AccountingNumber",
                               {"document", "DocumentNumber", "Date", "BookingText", "Amount", "VatAmount",
                                "DebitAccount", "CreditAccount", "ReferenceDocument",
                                "ReferenceDocumentNumber", "ContactNumber", "Contact", "Store", "RecordType"},
                               Werte);
}

QVariant Buchung_speichern(const QVariantList &Argumente) {
  return Satz_anlegen(Argumente + QVariantList{0});  // of a payment, not of a document
}

/// One record over the whole document; on which revenue account it goes is left open.
QVariant Beleg_Buchungen_erstellen(const QVariantList &Argumente) {
  const QString wort = Argumente[0].toString(), nummer = Argumente[1].toString();
  const Belegart *art = Belegart_suchen(&Belegart::Wort, wort);
  if (art == nullptr) return false;
  const db::Recordset rs = Abfragen({"SELECT * FROM ", db::Name{QLatin1String(art->Tabelle)}, " WHERE ",
                                     db::Name{QLatin1String(art->Schluessel)}, " = ", db::Wert{nummer}});
  if (rs.RecordCount() < 1) return false;
  const QVariant datum = rs.Value(QStringLiteral("Date"));
  const QString kontakt = rs.Text(QLatin1String(art->Kontaktnummer));
  const QVariant satz = Satz_anlegen(
      {wort, nummer, datum,
       QStringLiteral("%1 %2 vom %3")
           .arg(wort, nummer, Datum_formatieren(datum.toDateTime(), QStringLiteral("short date"))),
       rs.Number(QLatin1String(art->Betrag)), rs.Number(QLatin1String(art->Steuer)),
       Kunden_Feld(kontakt, Kundenfeld::DebitorAccount), QString(), QString(), QString(), kontakt,
       rs.Text(QLatin1String(art->Kontakt)), Kontext.gBenutzer_Filiale, Argumente[2]});
  return satz.isValid();
}

QVariant Beleg_Buchungen_loeschen(const QVariantList &Argumente) {
  return Ausfuehren({"DELETE FROM AccountingRecords WHERE document = ", db::Wert{Argumente[0].toString()},
                     " AND DocumentNumber = ", db::Wert{Argumente[1].toString()}});
}

class Datev : public Komponente {
 public:
  Datev()
      : Komponente("datev.common", {{"Beleg_gebucht", 3, &Beleg_gebucht},
                                    {"Beleg_Buchungen_erstellen", 3, &Beleg_Buchungen_erstellen},
                                    {"Beleg_Buchungen_loeschen", 2, &Beleg_Buchungen_loeschen},
                                    {"Buchung_speichern", 13, &Buchung_speichern}}) {}
};

}  // namespace

std::unique_ptr<Host_Komponente> Datev_erzeugen() { return std::make_unique<Datev>(); }

}  // namespace marklink
