// The demo shop's reference lists: languages, settings, statuses, groups, taxes, countries, currencies.
#include "Demoshop.h"
#include "Demoshop_Zeilen.h"

namespace marklink::demo {

namespace {

/// One row for each language: id, language, name, then `Weitere`.
void zweisprachig(Tabellenzeilen &T, int Id, const QString &Deutsch, const QString &Englisch,
                  const QVariantList &Weitere = {}) {
  T.Zeilen.push_back(QVariantList{Id, Deutsch_Id, Deutsch} + Weitere);
  T.Zeilen.push_back(QVariantList{Id, Englisch_Id, Englisch} + Weitere);
}

Tabellenzeilen Einstellungen(const Demodaten &D) {
  Tabellenzeilen T{"configuration",
                   Spalten("configuration_key configuration_value configuration_group_id date_added"),
                   {}};
  const std::vector<std::pair<const char *, QString>> Werte{
      {"STORE_NAME", QStringLiteral("Demoshop „Haus & Heide“")},
      {"STORE_OWNER", QStringLiteral("Haus & Heide Versand")},
      {"STORE_OWNER_EMAIL_ADDRESS", QStringLiteral("post@demoshop.example")},
      {"EMAIL_FROM", QStringLiteral("Haus & Heide <post@demoshop.example>")},
      {"EMAIL_SUPPORT_ADDRESS", QStringLiteral("post@demoshop.example")},
      {"EMAIL_BILLING_ADDRESS", QStringLiteral("post@demoshop.example")},
      {"EMAIL_BILLING_NAME", QStringLiteral("Haus & Heide")},
      {"SEND_EMAILS", QStringLiteral("true")},
      {"STORE_COUNTRY", QStringLiteral("81")},
      {"STORE_ZONE", QStringLiteral("79")},
      {"DEFAULT_LANGUAGE", QStringLiteral("de")},
      {"DEFAULT_CURRENCY", QStringLiteral("EUR")},
      {"DEFAULT_ORDERS_STATUS_ID", QStringLiteral("1")},
      {"DEFAULT_SHIPPING_STATUS_ID", QStringLiteral("1")},
      {"DEFAULT_PRODUCTS_VPE_ID", QStringLiteral("1")},
      {"DEFAULT_CUSTOMERS_STATUS_ID_ADMIN", QStringLiteral("0")},
      {"DEFAULT_CUSTOMERS_STATUS_ID_GUEST", QStringLiteral("1")},
      {"DEFAULT_CUSTOMERS_STATUS_ID", QStringLiteral("2")},
      {"PRICE_IS_BRUTTO", QStringLiteral("false")},
      {"PRICE_PRECISION", QStringLiteral("4")},
      {"MO_PICS", QStringLiteral("2")},
      {"STOCK_LIMITED", QStringLiteral("true")},
      {"STOCK_ALLOW_CHECKOUT", QStringLiteral("true")},
      {"GROUP_CHECK", QStringLiteral("false")},
      {"CURRENT_TEMPLATE", QStringLiteral("xtc4")},
      {"CC_ENC", QStringLiteral("false")},
      {"CC_KEYCHAIN", QString()},
      {"DELETE_GUEST_ACCOUNT", QStringLiteral("true")},
      {"MODULE_ORDER_TOTAL_INSTALLED",
       QStringLiteral("ot_subtotal.php;ot_discount.php;ot_coupon.php;ot_shipping.php;ot_cod_fee.php;ot_"
                      "subtotal_no_tax.php;ot_tax.php;ot_gv.php;ot_total.php")},
      {"MODULE_PAYMENT_INSTALLED",
       QStringLiteral("banktransfer.php;cc.php;cod.php;invoice.php;moneyorder.php;paypal.php")},
      {"MODULE_SHIPPING_INSTALLED", QStringLiteral("dp.php;flat.php;selfpickup.php")},
      {"PRODUCT_IMAGE_INFO_WIDTH", QStringLiteral("200")},
      {"PRODUCT_IMAGE_INFO_HEIGHT", QStringLiteral("160")},
      {"PRODUCT_IMAGE_THUMBNAIL_WIDTH", QStringLiteral("120")},
      {"PRODUCT_IMAGE_THUMBNAIL_HEIGHT", QStringLiteral("80")},
      {"PRODUCT_IMAGE_POPUP_WIDTH", QStringLiteral("300")},
      {"PRODUCT_IMAGE_POPUP_HEIGHT", QStringLiteral("240")},
  };
  for (const auto &[Schluessel, Wert] : Werte)
    T.Zeilen.push_back({QLatin1String(Schluessel), Wert, 1, Zeitpunkt(Einrichtung(D))});
  return T;
}

Tabellenzeilen Kundengruppen() {
  Tabellenzeilen T{
      "customers_status",
      Spalten(
          "customers_status_id language_id customers_status_name customers_status_discount "
          "customers_status_ot_discount_flag "
          "customers_status_ot_discount customers_status_graduated_prices customers_status_show_price_tax "
          "customers_status_add_tax_ot customers_status_payment_unallowed "
          "customers_status_shipping_unallowed"),
      {}};
  for (int i = 0; i < Gruppen; ++i) {
    const Kundengruppe &G = Gruppendaten(i);
    zweisprachig(T, i, G.Name, G.Name_Englisch,
                 {G.Artikelrabatt, G.Gesamtrabatt > 0 ? QStringLiteral("1") : QStringLiteral("0"),
                  G.Gesamtrabatt, G.Staffelpreise ? QStringLiteral("1") : QStringLiteral("0"),
                  G.Brutto ? 1 : 0, G.Steuer_dazu ? 1 : 0, QString(), QString()});
  }
  return T;
}

void Steuern(const Demodaten &D, std::vector<Tabellenzeilen> &Alle) {
  const QString Angelegt = Zeitpunkt(Einrichtung(D));
  Alle.push_back({"tax_class",
                  Spalten("tax_class_id tax_class_title tax_class_description date_added"),
                  {{1, QStringLiteral("Standardsatz"), QStringLiteral("voller Steuersatz"), Angelegt},
                   {2, QStringLiteral("ermäßigter Steuersatz"),
                    QStringLiteral("Bücher, Lebensmittel, Pflanzen"), Angelegt}}});
  Alle.push_back({"geo_zones",
                  Spalten("geo_zone_id geo_zone_name geo_zone_description date_added"),
                  {{5, QStringLiteral("Steuerzone EU"), QStringLiteral("Steuerzone für die EU"), Angelegt},
                   {6, QStringLiteral("Steuerzone Nicht-EU-Ausland"),
                    QStringLiteral("Steuerzone für Nicht-EU-Ausland"), Angelegt}}});
  Tabellenzeilen Saetze{
      "tax_rates", Spalten("tax_zone_id tax_class_id tax_priority tax_rate tax_description date_added"), {}};
  Saetze.Zeilen = {{5, 1, 1, 19.0, QStringLiteral("UST 19%"), Angelegt},
                   {5, 2, 1, 7.0, QStringLiteral("UST 7%"), Angelegt},
                   {6, 1, 1, 0.0, QStringLiteral("UST 0%"), Angelegt},
                   {6, 2, 1, 0.0, QStringLiteral("UST 0%"), Angelegt}};
  Alle.push_back(std::move(Saetze));
  Tabellenzeilen Zuordnung{
      "zones_to_geo_zones", Spalten("zone_country_id zone_id geo_zone_id date_added"), {}};
  Tabellenzeilen Laenderliste{
      "countries",
      Spalten(
          "countries_id countries_name countries_iso_code_2 countries_iso_code_3 address_format_id status"),
      {}};
  for (const Land &L : Laender()) {
    Zuordnung.Zeilen.push_back({L.Id, 0, L.EU ? 5 : 6, Angelegt});
    Laenderliste.Zeilen.push_back(
        {L.Id, QLatin1String(L.Name), QLatin1String(L.Iso2), QLatin1String(L.Iso3), L.Adressformat, 1});
  }
  Alle.push_back(std::move(Zuordnung));
  Alle.push_back(std::move(Laenderliste));
}

}  // namespace

std::vector<Tabellenzeilen> Shop_Listen(const Demodaten &D) {
  std::vector<Tabellenzeilen> Alle;
  const QString Angelegt = Zeitpunkt(Einrichtung(D));
  Alle.push_back({"languages",
                  Spalten("languages_id name code image directory sort_order language_charset"),
                  {{Englisch_Id, QStringLiteral("English"), QStringLiteral("en"), QStringLiteral("icon.gif"),
                    QStringLiteral("english"), 2, QStringLiteral("iso-8859-15")},
                   {Deutsch_Id, QStringLiteral("Deutsch"), QStringLiteral("de"), QStringLiteral("icon.gif"),
                    QStringLiteral("german"), 1, QStringLiteral("iso-8859-15")}}});
  Alle.push_back(Einstellungen(D));
  Tabellenzeilen Stati{"orders_status", Spalten("orders_status_id language_id orders_status_name"), {}};
  for (const Bestellstatus &S : Bestellstati()) zweisprachig(Stati, S.Id, S.Name, S.Name_Englisch);
  Alle.push_back(std::move(Stati));
  Tabellenzeilen Lieferzeiten{
      "shipping_status",
      Spalten("shipping_status_id language_id shipping_status_name shipping_status_image"),
      {}};
  zweisprachig(Lieferzeiten, 1, QStringLiteral("3-4 Tage"), QStringLiteral("3-4 Days"), {QString()});
  zweisprachig(Lieferzeiten, 2, QStringLiteral("1 Woche"), QStringLiteral("1 Week"), {QString()});
  zweisprachig(Lieferzeiten, 3, QStringLiteral("2 Wochen"), QStringLiteral("2 Weeks"), {QString()});
  Alle.push_back(std::move(Lieferzeiten));
  Tabellenzeilen Einheiten{"products_vpe", Spalten("products_vpe_id language_id products_vpe_name"), {}};
  const QStringList Namen = Einheitenliste(D);
  for (int i = 0; i < Namen.size(); ++i) zweisprachig(Einheiten, i + 1, Namen[i], Namen[i]);
  Alle.push_back(std::move(Einheiten));
  Alle.push_back(Kundengruppen());
  Steuern(D, Alle);
  Tabellenzeilen Laenderteile{"zones", Spalten("zone_id zone_country_id zone_code zone_name"), {}};
  for (const Bundesland &B : Bundeslaender())
    Laenderteile.Zeilen.push_back({B.Id, B.Land, QLatin1String(B.Kuerzel), QString::fromUtf8(B.Name)});
  Alle.push_back(std::move(Laenderteile));
  Alle.push_back(
      {"address_format",
       Spalten("address_format_id address_format address_summary"),
       {{1, QStringLiteral("$firstname $lastname$cr$streets$cr$city, $postcode$cr$statecomma$country"),
         QStringLiteral("$city / $country")},
        {2, QStringLiteral("$firstname $lastname$cr$streets$cr$city, $state    $postcode$cr$country"),
         QStringLiteral("$city, $state / $country")},
        {3, QStringLiteral("$firstname $lastname$cr$streets$cr$city$cr$postcode - $statecomma$country"),
         QStringLiteral("$state / $country")},
        {5, QStringLiteral("$firstname $lastname$cr$streets$cr$postcode $city$cr$country"),
         QStringLiteral("$city / $country")}}});
  Alle.push_back(
      {"currencies",
       Spalten("title code symbol_left symbol_right decimal_point thousands_point decimal_places value "
               "last_updated"),
       {{QStringLiteral("Euro"), QStringLiteral("EUR"), QString(), QStringLiteral("EUR"), QStringLiteral(","),
         QStringLiteral("."), QStringLiteral("2"), 1.0, Angelegt},
        {QStringLiteral("Schweizer Franken"), QStringLiteral("CHF"), QString(), QStringLiteral("CHF"),
         QStringLiteral(","), QStringLiteral("."), QStringLiteral("2"), 0.9735, Angelegt}}});
  return Alle;
}

}  // namespace marklink::demo
