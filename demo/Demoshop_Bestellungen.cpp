// The demo shop's orders with everything that hangs on them.
#include "Demoshop_Zeilen.h"

namespace marklink::demo {

namespace {

QString Bundeslandname(int Id) {
  for (const Bundesland &B : Bundeslaender())
    if (B.Id == Id) return QString::fromUtf8(B.Name);
  return {};
}

/// Name, first and last name, company, street, suburb, city, postcode, state, country: the order of
/// `Blockspalten`.
QVariantList Adressblock(const Anschrift &A) {
  // Companies are cut where the column ends, as the shop does.
  return {A.Name(),
          A.Vorname,
          A.Nachname,
          A.Firma.left(32),
          A.Strasse,
          A.Zusatz,
          A.Ort,
          A.Plz,
          Bundeslandname(A.Bundesland),
          QLatin1String(Land_mit_Id(A.Land).Name),
          Land_mit_Id(A.Land).Adressformat};
}
/// A shop that is paid by voucher alone leaves the block empty.
QVariantList Leerer_Block() {
  return {QString(), QString(), QString(), QString(), QString(), QString(),
          QString(), QString(), QString(), QString(), 0};
}

QStringList Blockspalten(const char *Block) {
  QStringList Namen = Spalten(
      "name firstname lastname company street_address suburb city postcode state country address_format_id");
  for (QString &Name : Namen) Name = QLatin1String(Block) + QLatin1Char('_') + Name;
  return Namen;
}

QVariantList Kopf(const Bestellung &B, const Kunde &K) {
  const Kundengruppe &G = Gruppendaten(K.Gruppe);
  QVariantList Zeile{
      B.Nummer,  K.Id,           K.Kundennummer, K.Ust_Id, K.Gruppe, B.Englisch ? G.Name_Englisch : G.Name,
      QString(), G.Gesamtrabatt, K.Telefon,      K.Email};
  Zeile << Adressblock(K.Adresse) << Adressblock(B.Lieferung)
        << (B.Guthaben_deckt ? Leerer_Block() : Adressblock(B.Rechnung));
  const auto Iso = [](const Anschrift &A) { return QString::fromLatin1(Land_mit_Id(A.Land).Iso2); };
  Zeile << Iso(B.Lieferung) << (B.Guthaben_deckt ? QString() : Iso(B.Rechnung));
  Zeile << B.Zahlung << B.Zahlung << B.Versandart.left(32) << B.Versandklasse;
  Zeile << B.Karte.Art << B.Karte.Inhaber << B.Karte.Nummer << B.Karte.Ablauf << B.Karte.Pruefziffer;
  Zeile << B.Kommentar.left(255) << Zeitpunkt(B.Datum)
        << (B.Verlauf.size() > 1 ? QVariant(Zeitpunkt(B.Verlauf.back().Zeitpunkt)) : QVariant()) << B.Status;
  Zeile << B.Waehrung << B.Kurs / 10000.0 << (K.Gruppe == Gast ? 1 : 0) << B.Ip;
  Zeile << (B.Guthaben_deckt ? QString()
            : B.Englisch     ? QStringLiteral("english")
                             : QStringLiteral("german"))
        << QString();
  return Zeile;
}

}  // namespace

std::vector<Tabellenzeilen> Shop_Bestellungen(const Demodaten &D) {
  Tabellenzeilen O{"orders",
                   Spalten("orders_id customers_id customers_cid customers_vat_id customers_status "
                           "customers_status_name customers_status_image "
                           "customers_status_discount customers_telephone customers_email_address") +
                       Blockspalten("customers") + Blockspalten("delivery") + Blockspalten("billing") +
                       Spalten("delivery_country_iso_code_2 billing_country_iso_code_2 payment_method "
                               "payment_class shipping_method shipping_class cc_type "
                               "cc_owner cc_number cc_expires cc_cvv comments date_purchased last_modified "
                               "orders_status currency currency_value "
                               "account_type customers_ip language refferers_id"),
                   {}};
  Tabellenzeilen P{"orders_products",
                   Spalten("orders_products_id orders_id products_id products_model products_name "
                           "products_price products_discount_made "
                           "products_shipping_time final_price products_tax products_quantity allow_tax"),
                   {}};
  Tabellenzeilen M{"orders_products_attributes",
                   Spalten("orders_id orders_products_id products_options products_options_values "
                           "options_values_price price_prefix"),
                   {}};
  Tabellenzeilen S{"orders_total", Spalten("orders_id title text value class sort_order"), {}};
  Tabellenzeilen V{"orders_status_history",
                   Spalten("orders_id orders_status_id date_added customer_notified comments"),
                   {}};
  Tabellenzeilen Bank{"banktransfer",
                      Spalten("orders_id banktransfer_owner banktransfer_number banktransfer_bankname "
                              "banktransfer_blz banktransfer_status banktransfer_prz"),
                      {}};
  int Positionsnummer = 0;
  for (const Bestellung &B : D.Bestellungen) {
    O.Zeilen.push_back(Kopf(B, *D.Kunde_mit_Id(B.Kunde)));
    for (const Position &Pos : B.Positionen) {
      P.Zeilen.push_back({++Positionsnummer, B.Nummer, Pos.Artikel, Pos.Nummer, Pos.Name,
                          Euro(Pos.Einzelpreis), Pos.Rabatt,
                          B.Englisch ? QStringLiteral("3-4 Days") : QStringLiteral("3-4 Tage"),
                          Euro(Pos.Summe()), Pos.Steuersatz, Pos.Menge, B.Brutto ? 1 : 0});
      for (const Positionsoption &Opt : Pos.Optionen)
        M.Zeilen.push_back({B.Nummer, Positionsnummer, Opt.Option, Opt.Wert, Euro_fein(qAbs(Opt.Aufpreis)),
                            Opt.Aufpreis < 0 ? QStringLiteral("-") : QStringLiteral("+")});
    }
    for (const Summenzeile &Z : B.Summen)
      S.Zeilen.push_back({B.Nummer, Z.Titel, Z.Text, Euro(Z.Wert), Z.Klasse, Z.Sortierung});
    for (const Statuswechsel &W : B.Verlauf)
      V.Zeilen.push_back({B.Nummer, W.Status, Zeitpunkt(W.Zeitpunkt), W.Benachrichtigt ? 1 : 0, W.Kommentar});
    if (!B.Bank.Blz.isEmpty())
      Bank.Zeilen.push_back(
          {B.Nummer, B.Bank.Inhaber, B.Bank.Konto, B.Bank.Bank, B.Bank.Blz, 0, QStringLiteral("00")});
  }
  return {std::move(O), std::move(P), std::move(M), std::move(S), std::move(V), std::move(Bank)};
}

}  // namespace marklink::demo
