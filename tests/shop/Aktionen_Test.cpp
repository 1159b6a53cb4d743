// The action tables, the request that they build, and the path of the reply file.
#include "shop/Aktionen.h"

#include "Shop_Test.h"
#include "shop/Austausch.h"
#include "shop/Url_kodieren.h"

namespace marklink {
namespace {

using Aktionen_Test = test::Shop_Test;
using test::Shop_Antwort;

Verbindungsauftrag Letzter_Auftrag;

TEST_F(Aktionen_Test, jeder_Selektor) {
  // By selector; "+" behind a name: parameters go along; "-": no request of its own.
  const QByteArrayList abrufen =
      QByteArray(
          "get_version get_categories - get_customers+ get_products+ get_orders+ get_languages - "
          "get_shop_configuration get_shipping_status get_customers_status get_orders_status "
          "get_products_specials get_products_stockings+ get_products_vpe get_products_categories+ "
          "get_products_list+ -")
          .split(' ');
  const QByteArrayList uebertragen =
      QByteArray(
          "set_categories+ - set_products+ set_customers_status+ set_orders_status+ "
          "set_shipping_status+ set_products_options+ set_products_options_values+ "
          "set_products_attributes+ set_products_personal_offers+ set_languages+ "
          "set_products_images+ set_products_descriptions+ set_categories_descriptions+ "
          "set_products_specials+ set_products_stockvalues+ set_products_variants_stockvalues+ "
          "set_products_attributmatrix+ set_products_vpe+ set_products_categories+ "
          "set_products_defaultimage+ set_products_list+ -")
          .split(' ');
  const QByteArrayList aendern =
      QByteArray(
          "del_categories+ del_categories_all set_order_update+ del_customers_status+ "
          "del_customers_status_all del_orders_status+ del_orders_status_all del_shipping_status+ "
          "del_shipping_status_all del_products+ get_products_exists+ del_languages+ "
          "del_languages_all del_products_specials+ del_products_specials_all update_tables "
          "del_products_vpe+ del_products_vpe_all del_products_categories+ "
          "del_products_categories_all -")
          .split(' ');
  Immer({test::Kurzes_XML});
  const QByteArray login = "&user=u&password=0123456789abcdef0123456789abcdef";
  QByteArray vorige = "GET /vorher HTTP/1.1";
  gAktion_Url = u"/vorher"_qs;
  const auto pruefen = [&](const QByteArray &erwartet, const QString &ergebnis) {
    if (erwartet != "-") {
      const bool mit = erwartet.endsWith('+');
      vorige = "GET /shop/marklink.php?action=" + (mit ? erwartet.chopped(1) : erwartet) + login +
               (mit ? "&a=1&b=2" : "") + " HTTP/1.1";
      EXPECT_EQ(gAktion.toLatin1(), mit ? erwartet.chopped(1) : erwartet);
    }
    const QByteArray kopf = Shop.Anfragen().back();
    EXPECT_EQ(kopf.left(kopf.indexOf('\r')).toStdString(), vorige.toStdString());
    EXPECT_EQ(ergebnis, Antwortdatei());
  };
  const QString p1 = u"&a=1"_qs, p2 = u"&b=2"_qs;
  for (qint16 i = 0; i < abrufen.size(); ++i) pruefen(abrufen[i], Daten_abrufen(i, p1 + p2));
  for (qint16 i = 0; i < uebertragen.size(); ++i) pruefen(uebertragen[i], Daten_uebertragen(i, p1, p2));
  for (qint16 i = 0; i < aendern.size(); ++i) pruefen(aendern[i], Daten_aendern(i, p1 + p2));
  pruefen("-", Daten_abrufen(-1, p1));
  EXPECT_EQ(Shop.Verbindungen(), 1);
}

TEST_F(Aktionen_Test, Selektoren_die_nur_den_Namen_setzen) {
  Immer({test::Kurzes_XML});
  Daten_abrufen(Abrufen::Sprachen, {});
  const QString vorher = gAktion_Url;
  const struct {
    QString (*Rufen)();
    const char *Aktion;
  } faelle[] = {{[] { return Daten_abrufen(2, {}); }, "get_manufacturers"},
                {[] { return Daten_abrufen(7, {}); }, "get_customers_newsletter"},
                {[] { return Daten_uebertragen(1, {}, {}); }, "get_customers_newsletter"},
                {[] { return Daten_abrufen(17, {}); }, "get_customers_newsletter"}};
  for (const auto &fall : faelle) {
    fall.Rufen();
    EXPECT_EQ(gAktion, QLatin1String(fall.Aktion));
    EXPECT_EQ(gAktion_Url, vorher);
  }
}

TEST_F(Aktionen_Test, ohne_vorige_Anfrage_geht_nichts_hinaus) {
  EXPECT_EQ(Daten_abrufen(99, {}), QString());
  EXPECT_TRUE(Shop.Anfragen().empty());
}

TEST_F(Aktionen_Test, Auftrag_an_das_Verbindungsfenster) {
  Kontext.gHtaccessUsername = u"dir"_qs;
  Kontext.gHtaccessPassword = u"geheim"_qs;
  Verbindungsfenster_setzen([](Verbindungsauftrag &a) { Letzter_Auftrag = a; });
  const struct {
    QString (*Rufen)();
    const char *Text;
  } faelle[] = {
      {[] { return Daten_abrufen(5, {}); }, "Einen Moment bitte. Die Daten werden abgerufen..."},
      {[] { return Daten_uebertragen(2, {}, {}); }, "Einen Moment bitte. Die Daten werden übertragen..."},
      {[] { return Daten_aendern(10, {}); }, "Einen Moment bitte. Die Daten werden abgerufen..."}};
  for (const auto &fall : faelle) {
    EXPECT_EQ(fall.Rufen(), QString());  // a window that is closed without an exchange is a failure
    EXPECT_EQ(Letzter_Auftrag.Statustext.toStdString(), fall.Text);
  }
  Verbindungsfenster_setzen(nullptr);
  EXPECT_EQ(Letzter_Auftrag.URL, gAktion_Url);
  EXPECT_EQ(Letzter_Auftrag.xmlDatei, Antwortdatei());
  EXPECT_EQ(Letzter_Auftrag.Verzeichnisschutz_Benutzername, u"dir"_qs);
  EXPECT_EQ(Letzter_Auftrag.Verzeichnisschutz_Passwort, u"geheim"_qs);
}

TEST_F(Aktionen_Test, Antwortdatei_bleibt_im_temporaeren_Ordner) {
  Shop.Antworten("get_orders", test::Kurzes_XML);
  const struct {
    const char *Eingestellt, *Datei;  // nullptr: no request goes out
  } faelle[] = {{"antwort.xml", "antwort.xml"},
                {"../oben.xml", "oben.xml"},
                {"/etc/x.xml", "x.xml"},
                {"a\\b\\c.xml", "c.xml"},
                {"", nullptr},
                {"..", nullptr},
                {"a/..", nullptr},
                {"unter/", nullptr}};
  for (const auto &fall : faelle) {
    Exportdatei_setzen(QLatin1String(fall.Eingestellt));
    Shop.Vergessen();
    const QString pfad = Bestellungen();
    EXPECT_EQ(pfad, fall.Datei ? Ordner.filePath(QLatin1String(fall.Datei)) : QString()) << fall.Eingestellt;
    EXPECT_EQ(Shop.Anfragen().size(), fall.Datei ? 1U : 0U) << fall.Eingestellt;
  }
}

TEST(Url_kodieren_Test, Werte) {
  const struct {
    const char16_t *Wert;
    const char *Kodiert;
  } faelle[] = {{u"", ""},
                {u"AZaz09-_.", "AZaz09-_."},
                {u" &=+%#?/~'\"", "%20%26%3D%2B%25%23%3F%2F%7E%27%22"},
                {u"Größe: 5 €", "Gr%F6%DFe%3A%205%20%80"},
                {u"a\r\nb", "a%0D%0Ab"},
                {u"日本", ""},
                {u"gut und 日", ""}};
  for (const auto &fall : faelle)
    EXPECT_EQ(Url_kodieren(QString::fromUtf16(fall.Wert)).toStdString(), fall.Kodiert);
}

}  // namespace
}  // namespace marklink
