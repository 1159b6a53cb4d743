// Making the positions text from a reply and taking it apart again.
#include "Positionstext.h"

#include "host/Zahlen.h"
#include "shop/Antwort.h"

namespace marklink {

namespace {

constexpr QChar POSITION_TRENNER(0x00D7);  // "×"
constexpr QChar FELD_TRENNER(u'~');
constexpr int FELDER = 7;

/// The number of a reply's text ("7.50") as the books write it ("7,5").
QString Zahltext(const pugi::xml_node &Produkt, const char *Feld) {
  return Zahl_als_Text(Zahl_mit_Punkt(Knoten_Text(Produkt, Feld)));
}

void Feld_anhaengen(QString &Text, const QString &Feld) {
  Text += FELD_TRENNER;
  Text += Feld;
}

/// The surcharges of all options, and their values joined by ", ".
double Optionen_lesen(const pugi::xml_node &Produkt, QString &Werte) {
  double aufpreis = 0;
  bool erster = true;
  for (const pugi::xml_node &option : Produkt.children("OPTION")) {
    aufpreis += Zahl_mit_Punkt(Knoten_Text(option, "PRODUCTS_OPTIONS_PRICE"));
    if (!option.child("PRODUCTS_OPTIONS_VALUES")) continue;
    if (!erster) Werte += QStringLiteral(", ");
    Werte += Knoten_Text(option, "PRODUCTS_OPTIONS_VALUES");
    erster = false;
  }
  return aufpreis;
}

void Position_anhaengen(QString &Text, const pugi::xml_node &Produkt) {
  Text += Knoten_Text(Produkt, "PRODUCTS_ID");
  Feld_anhaengen(Text, Zahltext(Produkt, "PRODUCTS_QUANTITY"));
  Feld_anhaengen(Text, Knoten_Text(Produkt, "PRODUCTS_MODEL"));
  Feld_anhaengen(Text, Knoten_Text(Produkt, "PRODUCTS_NAME"));
  Feld_anhaengen(Text, Zahltext(Produkt, "PRODUCTS_DISCOUNT_MADE"));
  QString optionen;
  const double preis =
      Zahl_mit_Punkt(Knoten_Text(Produkt, "PRODUCTS_PRICE")) + Optionen_lesen(Produkt, optionen);
  Feld_anhaengen(Text, Zahl_als_Text(preis));
  Feld_anhaengen(Text, optionen);
}

}  // namespace

QString Positionstext_erzeugen(const pugi::xml_node &OrderInfo) {
  QString text;
  bool erste = true;
  for (const pugi::xml_node &liste : OrderInfo.children("ORDER_PRODUCTS")) {
    for (const pugi::xml_node &produkt : liste.children("PRODUCT")) {
      if (!erste) text += POSITION_TRENNER;
      Position_anhaengen(text, produkt);
      erste = false;
    }
  }
  return text;
}

std::vector<QStringList> Positionstext_teilen(const QString &Text) {
  std::vector<QStringList> positionen;
  if (Text.isEmpty()) return positionen;
  for (const QString &satz : Text.split(POSITION_TRENNER)) {
    QStringList felder = satz.split(FELD_TRENNER);
    while (felder.size() < FELDER) felder.append(QString());
    positionen.push_back(std::move(felder));
  }
  return positionen;
}

std::vector<Bestellposition> Positionstext_lesen(const QString &Text) {
  std::vector<Bestellposition> positionen;
  for (const QStringList &felder : Positionstext_teilen(Text)) {
    Bestellposition p;
    p.ProductsID = felder[0];
    p.Menge = Zahl_deutsch(felder[1]).value_or(0);
    p.Artikelnummer = felder[2];
    p.Bezeichnung = felder[3];
    p.Rabatt = Zahl_deutsch(felder[4]).value_or(0);
    p.Einzelpreis = Zahl_deutsch(felder[5]).value_or(0);
    p.Optionen = felder[6];
    positionen.push_back(std::move(p));
  }
  return positionen;
}

}  // namespace marklink
