// Fetching and status feedback against a shop: requests, boxes, and what the table keeps.
#include "orders/Bestellstatus.h"

#include "Bestellantwort.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"
#include "orders/Bestellabruf.h"
#include "support/Dialoge_Skript.h"
#include "support/Shop_Attrappe.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Bestellstatus_Test : public test::Mandant_Test {
 protected:
  Bestellstatus_Test() { Shop.Einsetzen(); }
  void Bestellung(const QString &Nummer, const QString &Status, bool Markiert = false) {
    Mandant.Zeile(u"WebshopOrdersXTC"_qs,
                  {u"OrderID"_qs, Nummer, u"Status"_qs, Status, u"Invoice"_qs, Markiert});
  }
  static QString Status(const QString &Nummer) {
    return Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{Nummer}}).Text(u"Status"_qs);
  }
  test::Shop_Attrappe Shop;
  test::Dialoge_Skript Dialoge;
  test::Fortschritt_Skript Fortschritt;
  Auftragsliste Liste;
};
MARKLINK_BEIDE_TYPEN(Bestellstatus_Test);

TEST_P(Bestellstatus_Test, Abrufen_stellt_bereit_und_meldet) {
  Shop.Antworten("get_orders", Nach_1252(u"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><ORDER>"_qs +
                                         test::Bestellung(u"1"_qs) + u"</ORDER>"_qs)
                                   .constData());
  Shop.Antworten("get_orders", "<?xml version=\"1.0\"?><ORDER></ORDER>");
  Shop.Antworten(
      "get_orders",
      "<?xml version=\"1.0\"?><STATUS><STATUS_DATA><MESSAGE>nein</MESSAGE></STATUS_DATA></STATUS>");
  Shop.Antworten("get_orders", test::Shop_Antwort{"nein", 500});
  Dialoge.Erwarten(u"Hinweis"_qs);
  EXPECT_TRUE(Bestellungen_abrufen(u"&order_status='1','3'"_qs, Liste));
  EXPECT_EQ(Shop.Parameter(0), "&order_status='1','3'");
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen, QStringList{u"Die Bestellungen wurden in Varda importiert."_qs});
  EXPECT_EQ(Dialoge.Gezeigt.back().Bild, Symbol::Information);
  EXPECT_EQ(Liste.Zelle(0, "Customer").toString(), u"Jürgen Groß"_qs);

  Dialoge.Erwarten(u"Hinweis"_qs);
  EXPECT_TRUE(Bestellungen_abrufen(QString(), Liste)) << "no order is no failure";
  EXPECT_EQ(Shop.Parameter(1), "");
  EXPECT_EQ(Liste.Zeilenzahl(), 1);

  // A refused login shows the box of success all the same, but is none.
  Dialoge.Erwarten(u"Hinweis"_qs);
  EXPECT_FALSE(Bestellungen_abrufen(QString(), Liste));
  EXPECT_EQ(Liste.Zeilenzahl(), 1);

  Dialoge.Erwarten(u"Fehler"_qs);
  EXPECT_FALSE(Bestellungen_abrufen(QString(), Liste));
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen,
            (QStringList{u"Beim Einlesen der Bestellungen ist ein Fehler aufgetreten."_qs,
                         u"Die Bestellungen konnten nicht abgerufen werden."_qs}));
  EXPECT_EQ(Dialoge.Gezeigt.back().Bild, Symbol::Stopp);
  EXPECT_EQ(Liste.Zeilenzahl(), 1);
}

TEST_P(Bestellstatus_Test, Uebertragen_baut_die_Anfrage_und_gibt_die_Meldung) {
  Shop.Antworten("set_order_update",
                 "<?xml version=\"1.0\"?><STATUS><STATUS_DATA><MESSAGE>OK 7</MESSAGE>"
                 "</STATUS_DATA></STATUS>");
  Shop.Antworten("set_order_update", "<?xml version=\"1.0\"?><STATUS/>");
  Shop.Antworten("set_order_update", test::Shop_Antwort{"", 404});
  EXPECT_EQ(Bestellstatus_uebertragen(u"7"_qs, u"3"_qs, u"on"_qs, u"off"_qs, u"Danke & Grüße"_qs),
            u"OK 7"_qs);
  EXPECT_EQ(Shop.Parameter(0),
            "&order_id=7&status=3&notify=on&notify_comments=off&comments=Danke%20%26%20Gr%FC%DFe");
  EXPECT_EQ(Bestellstatus_uebertragen(u"7"_qs, u"3"_qs, u"off"_qs, u"off"_qs, QString()), QString());
  EXPECT_EQ(Bestellstatus_uebertragen(u"7"_qs, u"3"_qs, u"off"_qs, u"off"_qs, QString()), QString());
}

TEST_P(Bestellstatus_Test, Speichern_setzt_oder_zaehlt_weiter) {
  const struct {
    QString Vorher, Neu, Nachher;
  } faelle[] = {{u"1"_qs, u"5"_qs, u"5"_qs},
                {u"1"_qs, QString(), u"2"_qs},
                {u"9"_qs, QString(), u"10"_qs},
                {u"offen"_qs, QString(), u"1"_qs}};
  for (const auto &fall : faelle) {
    ASSERT_TRUE(Bestellungen_loeschen());
    Bestellung(u"7"_qs, fall.Vorher);
    Bestellung(u"8"_qs, u"1"_qs);
    EXPECT_TRUE(Bestellstatus_speichern(u"7"_qs, fall.Neu));
    EXPECT_EQ(Status(u"7"_qs), fall.Nachher);
    EXPECT_EQ(Status(u"8"_qs), u"1"_qs);
  }
  for (const QString &fremd : {u"9"_qs, u""_qs, u"7' OR '1'='1"_qs})
    EXPECT_FALSE(Bestellstatus_speichern(fremd, u"6"_qs)) << fremd.toStdString();
  EXPECT_EQ(Status(u"8"_qs), u"1"_qs);
}

TEST_P(Bestellstatus_Test, Rechnung_zur_Bestellung_nur_aus_dem_Shop) {
  Mandant.Zeile(u"Invoice"_qs,
                {u"InvoiceNumber"_qs, u"R1"_qs, u"OrderingNumber"_qs, u"7"_qs, u"Webshop"_qs, true});
  Mandant.Zeile(u"Invoice"_qs,
                {u"InvoiceNumber"_qs, u"R2"_qs, u"OrderingNumber"_qs, u"8"_qs, u"Webshop"_qs, false});
  QString nummer = u"bleibt"_qs;
  EXPECT_FALSE(Rechnung_zur_Bestellung(nummer, u"8"_qs));
  EXPECT_EQ(nummer, u"bleibt"_qs);
  EXPECT_TRUE(Rechnung_zur_Bestellung(nummer, u"7"_qs));
  EXPECT_EQ(nummer, u"R1"_qs);
}

TEST_P(Bestellstatus_Test, Status_setzen_braucht_eine_Auswahl) {
  Bestellung(u"1"_qs, u"1"_qs);
  Liste.Auftragsliste_laden();
  Dialoge.Erwarten(u"Hinweis"_qs);
  Status_setzen(Liste, u"4"_qs);
  EXPECT_EQ(
      Dialoge.Gezeigt.back().Zeilen.join(u"\r\n"_qs),
      u"Es wurden keine Aufträge ausgewählt. \r\nMarkieren Sie bitte alle Aufträge, für die Sie den Status "
      "ändern möchten."_qs);
  EXPECT_TRUE(Shop.Anfragen().empty());
}

TEST_P(Bestellstatus_Test, Status_setzen_geht_in_Listenfolge_auch_wenn_der_Shop_ablehnt) {
  Bestellung(u"10"_qs, u"1"_qs, true);
  Bestellung(u"9"_qs, u"1"_qs, true);
  Bestellung(u"5"_qs, u"1"_qs);
  Bestellung(u"7"_qs, u"1"_qs, true);
  Shop.Antworten("set_order_update", test::Shop_Antwort{"", 500});
  Liste.Auftragsliste_laden();
  Fortschritt.Werte.clear();
  Status_setzen(Liste, u"4"_qs);
  ASSERT_EQ(Shop.Anfragen().size(), 3U);
  const QByteArray rest = "&status=4&notify=off&notify_comments=off&comments=";
  EXPECT_EQ(Shop.Parameter(0), "&order_id=10" + rest);
  EXPECT_EQ(Shop.Parameter(1), "&order_id=7" + rest);
  EXPECT_EQ(Shop.Parameter(2), "&order_id=9" + rest);
  EXPECT_EQ(Liste.Zelle(0, "Status").toString(), u"4"_qs) << "the list is loaded again";
  EXPECT_EQ(Status(u"5"_qs), u"1"_qs);
  EXPECT_FALSE(Kontext.gLaeuft);
  EXPECT_FALSE(Fortschritt.Sichtbar);

  Liste.Alles_markieren();
  Fortschritt.Abbrechen_bei = 2;
  Status_setzen(Liste, u"6"_qs);
  EXPECT_EQ(Status(u"10"_qs) + Status(u"5"_qs) + Status(u"7"_qs) + Status(u"9"_qs), u"6644"_qs);
}

}  // namespace
}  // namespace marklink
