// The positions text of an order: what the shop's lines become, and what is read back.
#include "orders/Positionstext.h"

#include <gtest/gtest.h>

#include "Bestellantwort.h"
#include "orders/Bestellabruf.h"

namespace marklink {
namespace {

using test::Option;
using test::Produkt;

QString Text_aus(const QString &Produkte) {
  pugi::xml_document dokument;
  const QString xml = test::Bestellung(QStringLiteral("1"), {{QStringLiteral("PRODUCTS"), Produkte}});
  dokument.load_string(xml.toUtf8().constData());
  return Positionstext_erzeugen(dokument.child("ORDER_INFO"));
}

TEST(Positionstext, Wird_aus_den_Zeilen_des_Shops) {
  const struct {
    const char *Fall;
    QString Produkte;
    QString Erwartet;
  } faelle[] = {
      {"no line", u""_qs, u""_qs},
      {"without options", Produkt(u"5"_qs, u"2"_qs, u"10.50"_qs), u"5~2~M-5~Schuh 5~0~10,5~"_qs},
      {"signed surcharges count",
       Produkt(u"5"_qs, u"1"_qs, u"10"_qs, Option(u"+5.00"_qs, u"Rot"_qs) + Option(u"2.50"_qs, u"XL"_qs)),
       u"5~1~M-5~Schuh 5~0~17,5~Rot, XL"_qs},
      {"a deduction", Produkt(u"5"_qs, u"1"_qs, u"10"_qs, Option(u"-2.5"_qs, u"B-Ware"_qs)),
       u"5~1~M-5~Schuh 5~0~7,5~B-Ware"_qs},
      {"two lines", Produkt(u"5"_qs, u"1"_qs, u"1"_qs) + Produkt(u"6"_qs, u"0.25"_qs, u"1234567.89"_qs),
       u"5~1~M-5~Schuh 5~0~1~×6~0,25~M-6~Schuh 6~0~1234567,89~"_qs},
      {"numbers up to the first strange character", Produkt(u"5"_qs, u"3 Stk"_qs, u"7,50"_qs),
       u"5~3~M-5~Schuh 5~0~7~"_qs},
      {"no numbers at all", Produkt(u"5"_qs, u"viele"_qs, u""_qs), u"5~0~M-5~Schuh 5~0~0~"_qs},
      {"nothing in the line", u"<PRODUCT/>"_qs, u"~0~~~0~0~"_qs},
      {"separators in a text break the record", Produkt(u"5~x"_qs, u"1"_qs, u"1"_qs),
       u"5~x~1~M-5~x~Schuh 5~x~0~1~"_qs},
      {"an option without a value node",
       Produkt(u"5"_qs, u"1"_qs, u"1"_qs, u"<OPTION/>"_qs + Option(u"1"_qs, u"Blau"_qs)),
       u"5~1~M-5~Schuh 5~0~2~Blau"_qs},
  };
  for (const auto &fall : faelle) EXPECT_EQ(Text_aus(fall.Produkte), fall.Erwartet) << fall.Fall;
}

TEST(Positionstext, Kommt_beim_Lesen_zurueck) {
  const auto positionen = Positionstext_lesen(
      Text_aus(Produkt(u"5"_qs, u"2.5"_qs, u"10.50"_qs, Option(u"1.25"_qs, u"Größe 42"_qs)) +
               Produkt(u"6"_qs, u"1"_qs, u"0.99"_qs)));
  ASSERT_EQ(positionen.size(), 2U);
  EXPECT_EQ(positionen[0].ProductsID, u"5"_qs);
  EXPECT_DOUBLE_EQ(positionen[0].Menge, 2.5);
  EXPECT_EQ(positionen[0].Artikelnummer, u"M-5"_qs);
  EXPECT_DOUBLE_EQ(positionen[0].Einzelpreis, 11.75);
  EXPECT_EQ(positionen[0].Optionen, u"Größe 42"_qs);
  EXPECT_DOUBLE_EQ(positionen[1].Einzelpreis, 0.99);
}

TEST(Positionstext, Beschaedigter_Text_ergibt_leere_Felder) {
  EXPECT_TRUE(Positionstext_lesen(QString()).empty());
  const auto positionen = Positionstext_lesen(u"5~×~~~~~x~y~z~mehr"_qs);
  ASSERT_EQ(positionen.size(), 2U);
  EXPECT_EQ(positionen[0].ProductsID, u"5"_qs);
  EXPECT_EQ(positionen[0].Menge, 0);
  EXPECT_EQ(positionen[1].Rabatt, 0);
  EXPECT_EQ(positionen[1].Einzelpreis, 0);
  EXPECT_EQ(positionen[1].Optionen, u"y"_qs);
}

TEST(Bestellsumme, Nimmt_die_erste_der_Klasse) {
  const struct {
    QString Summen;
    double Erwartet;
  } faelle[] = {
      {u"<TOTAL><TOTAL_CLASS>ot_total</TOTAL_CLASS><TOTAL_VALUE>1234.5600</TOTAL_VALUE></TOTAL>"_qs, 1234.56},
      {u"<TOTAL><TOTAL_CLASS>ot_tax</TOTAL_CLASS><TOTAL_VALUE>19</TOTAL_VALUE></TOTAL>"_qs, 0},
      {u"<TOTAL><TOTAL_CLASS>ot_total</TOTAL_CLASS></TOTAL>"_qs, 0},
      {u""_qs, 0},
  };
  for (const auto &fall : faelle) {
    pugi::xml_document dokument;
    dokument.load_string(test::Bestellung(u"1"_qs, {{u"TOTALS"_qs, fall.Summen}}).toUtf8().constData());
    EXPECT_DOUBLE_EQ(Bestellsumme_ermitteln(dokument.child("ORDER_INFO"), "ot_total"), fall.Erwartet)
        << fall.Summen.toStdString();
  }
}

}  // namespace
}  // namespace marklink
