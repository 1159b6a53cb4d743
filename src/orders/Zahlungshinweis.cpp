// Payment details by the payment method's token.
#include "Zahlungshinweis.h"

#include "shop/Antwort.h"

namespace marklink {

namespace {

struct Hinweiszeile {
  const char16_t *Titel;
  const char *Knoten;
};

QString Zeilen_verbinden(const pugi::xml_node &Zahlung, const Hinweiszeile (&Zeilen)[4]) {
  QString text;
  for (const Hinweiszeile &zeile : Zeilen) {
    if (!text.isEmpty()) text += QStringLiteral("\r\n");
    text += QStringView(zeile.Titel);
    text += Knoten_Text(Zahlung, zeile.Knoten);
  }
  return text;
}

}  // namespace

QString Zahlungshinweis_erzeugen(const pugi::xml_node &OrderInfo) {
  static constexpr Hinweiszeile BANK[] = {{u"Kontonummer: ", "PAYMENT_BANKTRANS_NUMBER"},
                                          {u"Kreditinstitut: ", "PAYMENT_BANKTRANS_BNAME"},
                                          {u"BLZ: ", "PAYMENT_BANKTRANS_BLZ"},
                                          {u"Kontoinhaber: ", "PAYMENT_BANKTRANS_OWNER"}};
  static constexpr Hinweiszeile KARTE[] = {{u"Kartennummer: ", "PAYMENT_CC_NUMBER"},
                                           {u"CVV/CVC-Nummer: ", "PAYMENT_CC_CVV"},
                                           {u"Gültig bis (MM/JJ): ", "PAYMENT_CC_EXPIRES"},
                                           {u"Karteninhaber: ", "PAYMENT_CC_OWNER"}};
  const pugi::xml_node zahlung = OrderInfo.child("PAYMENT");
  const QString methode = Knoten_Text(zahlung, "PAYMENT_METHOD");
  if (methode == QLatin1String("banktransfer")) return Zeilen_verbinden(zahlung, BANK);
  if (methode == QLatin1String("cc")) return Zeilen_verbinden(zahlung, KARTE);
  return {};
}

}  // namespace marklink
