// Building replies of get_orders.
#include "Bestellantwort.h"

#include <QFile>

#include "host/Zeichensatz.h"

namespace marklink::test {

namespace {

QString Knoten(const QHash<QString, QString> &Ersatz, const char *Name, const QString &Vorgabe) {
  const QString name = QLatin1String(Name);
  if (!Ersatz.contains(name)) return QStringLiteral("<%1>%2</%1>").arg(name, Vorgabe);
  const QString wert = Ersatz.value(name);
  return wert.isNull() ? QString() : QStringLiteral("<%1>%2</%1>").arg(name, wert);
}

QString Anschrift(const QHash<QString, QString> &Ersatz, const QString &Vorname, const QString &Ort) {
  return Knoten(Ersatz, "COMPANY", QStringLiteral("Groß & Söhne").toHtmlEscaped()) +
         Knoten(Ersatz, "NAME", Vorname + QStringLiteral(" Groß")) + Knoten(Ersatz, "FIRSTNAME", Vorname) +
         Knoten(Ersatz, "LASTNAME", QStringLiteral("Groß")) +
         Knoten(Ersatz, "STREET", QStringLiteral("Am Weg 1")) +
         Knoten(Ersatz, "POSTCODE", QStringLiteral("01067")) + Knoten(Ersatz, "CITY", Ort) +
         Knoten(Ersatz, "SUBURB", QStringLiteral("Hinterhaus")) +
         Knoten(Ersatz, "COUNTRY", QStringLiteral("DE"));
}

}  // namespace

QString Option(const QString &Preis, const QString &Wert) {
  return QStringLiteral("<OPTION><PRODUCTS_OPTIONS_PRICE>") + Preis +
         QStringLiteral("</PRODUCTS_OPTIONS_PRICE><PRODUCTS_OPTIONS_VALUES>") + Wert +
         QStringLiteral("</PRODUCTS_OPTIONS_VALUES></OPTION>");
}

QString Produkt(const QString &ID, const QString &Menge, const QString &Preis, const QString &Optionen) {
  return QStringLiteral(
             "<PRODUCT><PRODUCTS_ID>%1</PRODUCTS_ID><PRODUCTS_QUANTITY>%2</PRODUCTS_QUANTITY>"
             "<PRODUCTS_MODEL>M-%1</PRODUCTS_MODEL><PRODUCTS_NAME>Schuh %1</PRODUCTS_NAME>"
             "<PRODUCTS_DISCOUNT_MADE>0.00</PRODUCTS_DISCOUNT_MADE><PRODUCTS_PRICE>%3</PRODUCTS_PRICE>%4</"
             "PRODUCT>")
      .arg(ID, Menge, Preis, Optionen);
}

QString Bestellung(const QString &Nummer, const QHash<QString, QString> &Ersatz) {
  const auto k = [&](const char *Name, const char *Vorgabe) {
    return Knoten(Ersatz, Name, QString::fromUtf8(Vorgabe));
  };
  const QString kopf =
      Knoten(Ersatz, "ORDER_ID", Nummer) + k("CUSTOMER_ID", "17") + k("CUSTOMER_NAME", "Jürgen Groß") +
      k("CUSTOMER_CID", "K-4711") + k("CUSTOMER_TELEPHONE", "0351 123") +
      k("CUSTOMER_EMAIL", "j.gross@example.de") + k("CUSTOMER_VAT_ID", "DE123456789") +
      k("CUSTOMER_GROUP_NAME", "Händler") + k("CUSTOMER_DISCOUNT", "1.50") + k("ORDER_STATUS", "1") +
      k("ORDER_DATE", "2024-03-05 14:22:11") + k("ORDER_IP", "192.0.2.7") + k("ORDER_CURRENCY", "EUR");
  const QString summen = QStringLiteral(
      "<TOTAL><TOTAL_CLASS>ot_subtotal</TOTAL_CLASS><TOTAL_VALUE>100.0000</TOTAL_VALUE></TOTAL>"
      "<TOTAL><TOTAL_CLASS>ot_total</TOTAL_CLASS><TOTAL_VALUE>119.9000</TOTAL_VALUE></TOTAL>");
  const QString zahlung = k("PAYMENT_METHOD", "banktransfer") + k("PAYMENT_BANKTRANS_NUMBER", "12345") +
                          k("PAYMENT_BANKTRANS_BNAME", "Sparkasse") + k("PAYMENT_BANKTRANS_BLZ", "85050300") +
                          k("PAYMENT_BANKTRANS_OWNER", "J. Groß") + k("PAYMENT_CC_NUMBER", "4111 1111") +
                          k("PAYMENT_CC_CVV", "987") + k("PAYMENT_CC_EXPIRES", "05/27") +
                          k("PAYMENT_CC_OWNER", "Jürgen Groß");
  return QStringLiteral("<ORDER_INFO>") + Knoten(Ersatz, "ORDER_HEADER", kopf) +
         k("ORDER_COMMENTS", "Bitte „schnell“ – 5 €") + QStringLiteral("<ORDER_TOTAL>") +
         Ersatz.value(QStringLiteral("TOTALS"), summen) + QStringLiteral("</ORDER_TOTAL><PAYMENT>") +
         zahlung + QStringLiteral("</PAYMENT><SHIPPING>") + k("SHIPPING_CLASS", "dp_dp") +
         QStringLiteral("</SHIPPING><BILLING_ADDRESS>") +
         Anschrift(Ersatz, QStringLiteral("Jürgen"), QStringLiteral("Dresden")) +
         QStringLiteral("</BILLING_ADDRESS><DELIVERY_ADDRESS>") +
         Anschrift(Ersatz, QStringLiteral("Änne"), QStringLiteral("Görlitz")) +
         QStringLiteral("</DELIVERY_ADDRESS><ORDER_PRODUCTS>") +
         Ersatz.value(QStringLiteral("PRODUCTS"),
                      Produkt(QStringLiteral("5"), QStringLiteral("2"), QStringLiteral("10.50"))) +
         QStringLiteral("</ORDER_PRODUCTS></ORDER_INFO>");
}

QString Antwort_schreiben(const QString &Ordner, const QStringList &Bestellungen) {
  const QString pfad = Ordner + QStringLiteral("antwort.xml");
  QFile datei(pfad);
  if (datei.open(QIODevice::WriteOnly)) {
    datei.write("<?xml version=\"1.0\" encoding=\"windows-1252\"?><ORDER>" +
                Nach_1252(Bestellungen.join(QString())) + "</ORDER>");
  }
  return pfad;
}

}  // namespace marklink::test
