// Staging the orders of a reply, one row an order, each saved before the next is read.
#include <array>

#include "Anschriftblock.h"
#include "Bestellabruf.h"
#include "Positionstext.h"
#include "Zahlungshinweis.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "host/Nachschlagen.h"
#include "host/Uhr.h"
#include "host/Zahlen.h"
#include "rules/Versandkosten.h"
#include "shop/Antwort.h"
#include "ui/Fortschritt.h"

namespace marklink {

namespace {

constexpr int Auf_einmal = 50;          ///< orders whose rows are read together
constexpr int Versuche_hoechstens = 3;  ///< to read rows, one after the other in vain

/// A column that takes a node's text as it stands.
struct Textspalte {
  QString Spalte;
  const char *Knoten;
};

/// Columns from ORDER_HEADER, OrderID first.
const std::array<Textspalte, 13> &Kopfspalten() {
  static const std::array<Textspalte, 13> spalten = {{{QStringLiteral("OrderID"), "ORDER_ID"},
                                                      {QStringLiteral("CustomerID"), "CUSTOMER_ID"},
                                                      {QStringLiteral("Customer"), "CUSTOMER_NAME"},
                                                      {QStringLiteral("CustomerNumber"), "CUSTOMER_CID"},
                                                      {QStringLiteral("Telephone"), "CUSTOMER_TELEPHONE"},
                                                      {QStringLiteral("Email"), "CUSTOMER_EMAIL"},
                                                      {QStringLiteral("VatID"), "CUSTOMER_VAT_ID"},
                                                      {QStringLiteral("CustomerType"), "CUSTOMER_GROUP_NAME"},
                                                      {QStringLiteral("Rebate"), "CUSTOMER_DISCOUNT"},
                                                      {QStringLiteral("Status"), "ORDER_STATUS"},
                                                      {QStringLiteral("Date"), "ORDER_DATE"},
                                                      {QStringLiteral("OrderIP"), "ORDER_IP"},
                                                      {QStringLiteral("Currency"), "ORDER_CURRENCY"}}};
  return spalten;
}

using Anschriftspalten = std::array<Textspalte, 9>;

const Anschriftspalten &Rechnungsspalten() {
  static const Anschriftspalten spalten = {{{QStringLiteral("InvoiceCompany"), "COMPANY"},
                                            {QStringLiteral("InvoiceName"), "NAME"},
                                            {QStringLiteral("InvoiceFirstname"), "FIRSTNAME"},
                                            {QStringLiteral("InvoiceLastname"), "LASTNAME"},
                                            {QStringLiteral("InvoiceStreet"), "STREET"},
                                            {QStringLiteral("InvoicePostcode"), "POSTCODE"},
                                            {QStringLiteral("InvoiceCity"), "CITY"},
                                            {QStringLiteral("InvoiceSuburb"), "SUBURB"},
                                            {QStringLiteral("InvoiceCountry"), "COUNTRY"}}};
  return spalten;
}

const Anschriftspalten &Lieferspalten() {
  static const Anschriftspalten spalten = {{{QStringLiteral("DeliveryCompany"), "COMPANY"},
                                            {QStringLiteral("DeliveryName"), "NAME"},
                                            {QStringLiteral("DeliveryFirstname"), "FIRSTNAME"},
                                            {QStringLiteral("DeliveryLastname"), "LASTNAME"},
                                            {QStringLiteral("DeliveryStreet"), "STREET"},
                                            {QStringLiteral("DeliveryPostcode"), "POSTCODE"},
                                            {QStringLiteral("DeliveryCity"), "CITY"},
                                            {QStringLiteral("DeliverySuburb"), "SUBURB"},
                                            {QStringLiteral("DeliveryCountry"), "COUNTRY"}}};
  return spalten;
}

template <std::size_t N>
void Texte_schreiben(db::Recordset &Satz, const pugi::xml_node &Knoten,
                     const std::array<Textspalte, N> &Spalten) {
  for (const Textspalte &spalte : Spalten) Satz.SetValue(spalte.Spalte, Knoten_Text(Knoten, spalte.Knoten));
}

/// All columns of one order, in the order of the staging table.
void Bestellung_schreiben(db::Recordset &Satz, const pugi::xml_node &OrderInfo) {
  const pugi::xml_node rechnung = OrderInfo.child("BILLING_ADDRESS");
  const pugi::xml_node lieferung = OrderInfo.child("DELIVERY_ADDRESS");
  Texte_schreiben(Satz, OrderInfo.child("ORDER_HEADER"), Kopfspalten());
  Satz.SetValue(QStringLiteral("Amount"), Bestellsumme_ermitteln(OrderInfo, "ot_total"));
  Satz.SetValue(QStringLiteral("Notes"), Knoten_Text(OrderInfo, "ORDER_COMMENTS"));
  Satz.SetValue(QStringLiteral("Invoice"), false);  // the selection mark, whatever the name says
  Satz.SetValue(QStringLiteral("Payment"),
                Zahlungsart_aus_Token(Knoten_Text(OrderInfo, "PAYMENT/PAYMENT_METHOD")));
  Satz.SetValue(QStringLiteral("Shipping"),
                Versandart_aus_Token(Knoten_Text(OrderInfo, "SHIPPING/SHIPPING_CLASS")));
  Satz.SetValue(QStringLiteral("ExtendedInfo"), Zahlungshinweis_erzeugen(OrderInfo));
  Texte_schreiben(Satz, rechnung, Rechnungsspalten());
  Satz.SetValue(QStringLiteral("InvoiceAddress"), Anschriftblock_erzeugen(rechnung));
  Texte_schreiben(Satz, lieferung, Lieferspalten());
  Satz.SetValue(QStringLiteral("DeliveryAddress"), Anschriftblock_erzeugen(lieferung));
  Satz.SetValue(QStringLiteral("Positions"), Positionstext_erzeugen(OrderInfo));
}

/// What a trace may say of a skipped order: its number, never its data.
void Auslassung_melden(const QString &Bestellnummer, const QString &Grund) {
  Ablauf_melden(QStringLiteral("Bestellungen_einlesen"),
                QStringLiteral("order '") + Bestellnummer + QStringLiteral("' skipped: ") + Grund);
}

/// Why a reply brought nothing: what the shop says instead, if it says something.
void Keine_Liste_melden(const pugi::xml_document &Dokument) {
  const QString meldung = Knoten_Text(Dokument, "STATUS/STATUS_DATA/MESSAGE");
  Ablauf_melden(QStringLiteral("Bestellungen_einlesen"),
                QStringLiteral("the reply holds no order list") +
                    (meldung.isEmpty() ? QString() : QStringLiteral(": ") + meldung));
}

/// The staged rows of some orders: a server that is asked for each one by one takes its time.
struct Ausschnitt {
  db::Recordset Satz;
  QStringList Nummern;
  int Gescheitert = 0;  ///< reads in a row

  bool Lesen(const QStringList &Neue) {
    // A table that cannot be read now is not waited for with every order that is left.
    if (Neue.isEmpty() || Gescheitert >= Versuche_hoechstens) return false;
    Nummern = Neue;
    Satz = Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID IN (", db::Werteliste{Neue}, ")"});
    Gescheitert = Satz.IsOpen() ? 0 : Gescheitert + 1;
    return Satz.IsOpen();
  }
  /// Whether a row that is not here is not there either; reads it where that is open.
  bool Umfasst(const QString &Nummer) {
    return (Satz.IsOpen() && Nummern.contains(Nummer)) || (Nachschlagbar(Nummer) && Lesen({Nummer}));
  }
  /// A number with an apostrophe is in no statement.
  static bool Nachschlagbar(const QString &Nummer) { return !Nummer.isEmpty() && !Nummer.contains(u'\''); }
};

/// The numbers of the next orders, those that can be looked up.
QStringList Naechste_Nummern(pugi::xml_node OrderInfo, int Anzahl) {
  QStringList nummern;
  for (; OrderInfo && Anzahl > 0; OrderInfo = OrderInfo.next_sibling("ORDER_INFO"), --Anzahl) {
    const QString nummer = Knoten_Text(OrderInfo, "ORDER_HEADER/ORDER_ID");
    if (Ausschnitt::Nachschlagbar(nummer)) nummern << nummer;
  }
  return nummern;
}

/// Writes one order into its row, or into a new one, and saves it; once more where another workstation has
/// staged or changed it at that very moment. What cannot be saved is dropped from the set, so that it does
/// not come back with every order behind it.
bool Bestellung_ablegen(db::Recordset &Satz, const QString &Bestellnummer, const pugi::xml_node &OrderInfo) {
  bool war_neu = false;
  for (int versuch = 0; versuch < 2; ++versuch) {
    Satz.ClearFilter();
    // With a failed filter the set would stand on the row of another order.
    if (!Satz.Filter({"OrderID = ", db::Wert{Bestellnummer}})) {
      Auslassung_melden(Bestellnummer, QStringLiteral("its row cannot be looked up"));
      return false;
    }
    const bool neu = Satz.RecordCount() == 0;
    if (neu && war_neu) break;  // refused, but not for a row of somebody else
    if (neu) Satz.AddNew();
    Bestellung_schreiben(Satz, OrderInfo);
    Satz.Update();
    if (Satz.UpdateBatch()) return true;
    war_neu = neu;
    if (Satz.Requery()) continue;
    Satz = db::Recordset();
    break;
  }
  Auslassung_melden(Bestellnummer, QStringLiteral("its row cannot be saved"));
  return false;
}

/// False when the order was not saved.
bool Bestellknoten_einlesen(Ausschnitt &Zeilen, const pugi::xml_node &OrderInfo) {
  const pugi::xml_node knoten = OrderInfo.child("ORDER_HEADER").child("ORDER_ID");
  if (!knoten) return false;
  const QString nummer = Knoten_Text(knoten, "");
  fortschritt().Text(QStringLiteral("Die Bestellung '") + nummer + QStringLiteral("' wird eingelesen..."));
  if (nummer.isEmpty()) {
    // On purpose like an order without the node: orders without a number would overwrite each other.
    Auslassung_melden(nummer, QStringLiteral("it has no number"));
    return false;
  }
  if (!Zeilen.Umfasst(nummer)) {
    Auslassung_melden(nummer, QStringLiteral("its row cannot be read"));
    return false;
  }
  return Bestellung_ablegen(Zeilen.Satz, nummer, OrderInfo);
}

}  // namespace

double Bestellsumme_ermitteln(const pugi::xml_node &OrderInfo, const char *Klasse) {
  const QLatin1String klasse(Klasse);
  for (const pugi::xml_node &liste : OrderInfo.children("ORDER_TOTAL")) {
    for (const pugi::xml_node &summe : liste.children("TOTAL")) {
      if (Knoten_Text(summe, "TOTAL_CLASS") == klasse)
        return Zahl_mit_Punkt(Knoten_Text(summe, "TOTAL_VALUE"));
    }
  }
  return 0;
}

bool Bestellungen_einlesen(const QString &Antwortdatei, Auftragsliste &Liste) {
  bool gelungen = false;
  {
    pugi::xml_document dokument;
    Antwort_laden(Antwortdatei, dokument);
    Ausschnitt zeilen;
    const Nachschlagelauf lauf;
    Kontext.gLaeuft = true;
    if (dokument.child("ORDER").empty()) Keine_Liste_melden(dokument);
    const auto bestellungen = dokument.child("ORDER").children("ORDER_INFO");
    fortschritt().ProgressAnzeigen(QStringLiteral("Die Bestellungen werden eingelesen..."),
                                   static_cast<int>(std::distance(bestellungen.begin(), bestellungen.end())));
    int erledigt = 0, gespeichert = 0;
    for (const pugi::xml_node &bestellung : bestellungen) {
      if (erledigt % Auf_einmal == 0) zeilen.Lesen(Naechste_Nummern(bestellung, Auf_einmal));
      if (Bestellknoten_einlesen(zeilen, bestellung)) ++gespeichert;
      fortschritt().Wert(++erledigt);
      if (Kontext.gAbbrechen) break;
    }
    fortschritt().Verbergen();
    gelungen = !dokument.child("ORDER").empty() && (gespeichert > 0 || erledigt == 0);
  }  // document and record set end here, before the list takes its own room
  Liste.Auftragsliste_laden();
  Option_schreiben(QStringLiteral("Marklink"), QStringLiteral("LastRetrieve"),
                   Zeitpunkt_als_Text(uhr().Jetzt()));
  Kontext.gLaeuft = false;
  return gelungen;
}

}  // namespace marklink
