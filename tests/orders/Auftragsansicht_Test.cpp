// The view of one order: its positions, addresses and texts, and the host's data of an article.
#include "orders/Auftragsansicht.h"

#include <QFile>

#include "db/Zeitpunkt.h"
#include "host/Dateien.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Auftragsansicht_Test : public test::Mandant_Test {
 protected:
  void Bestellung(const QString &Nummer, const QString &Positionen) {
    Mandant.Zeile(
        u"WebshopOrdersXTC"_qs,
        {u"OrderID"_qs, Nummer, u"Positions"_qs, Positionen, u"InvoiceAddress"_qs, u"Frau R\r\nHier"_qs,
         u"DeliveryAddress"_qs, u"Herr L"_qs, u"ExtendedInfo"_qs, u"BLZ: 1"_qs, u"Notes"_qs, u"eilig"_qs});
  }
  void Artikel(const QString &Nummer, const QString &ShopID, const QString &Variante,
               const QString &Bild = {}) {
    Mandant.Zeile(u"Articles"_qs,
                  {u"ArticleNumber"_qs, Nummer, u"WebshopID"_qs, ShopID, u"WebshopVariantText"_qs, Variante,
                   u"ShortText"_qs, u"Schuh "_qs + Nummer, u"Unit"_qs, u"Paar"_qs, u"Graphic"_qs, Bild,
                   u"DateUpdate"_qs, Zeitpunkt(QDate(2024, 3, 5), QTime(14, 22, 11))});
  }
  void Bestand(const QString &Artikel, double Verfuegbar, double Gesperrt) {
    Mandant.Zeile(u"Warehouse"_qs,
                  {u"ArticleNumber"_qs, Artikel, u"Disposable"_qs, Verfuegbar, u"Unsociable"_qs, Gesperrt});
  }
  QString Ersatzbild() const { return Kontext.gProgrammpfad + u"noimage.jpg"_qs; }
};
MARKLINK_BEIDE_TYPEN(Auftragsansicht_Test);

TEST_P(Auftragsansicht_Test, Positionen_in_den_Formaten_des_Mandanten) {
  const struct {
    QString Text;
    std::vector<QStringList> Zeilen;
  } faelle[] = {
      {u""_qs, {}},
      {u"5~1234,5~M-5~Schuh~2,5~1234,5~Rot, XL×6~1~M-6~Hut~0~0,995~"_qs,
       {{u"5"_qs, u"M-5"_qs, u"1.234,5"_qs, u"Schuh"_qs, u"Rot, XL"_qs, u"1.234,50"_qs, u"2,50"_qs},
        {u"6"_qs, u"M-6"_qs, u"1"_qs, u"Hut"_qs, u""_qs, u"1,00"_qs, u"0,00"_qs}}},
      {u"5~eins~M"_qs, {{u"5"_qs, u"M"_qs, u"eins"_qs, u""_qs, u""_qs, u""_qs, u""_qs}}},
  };
  Kontext.gMassFormat = u"#,##0.###"_qs;
  for (const auto &fall : faelle) {
    const QString nummer = u"n%1"_qs.arg(&fall - faelle);
    Bestellung(nummer, fall.Text);
    std::vector<QStringList> zeilen;
    for (const Positionszeile &z : Auftrag_Positionen_anzeigen(nummer))
      zeilen.push_back(
          {z.ProductsID, z.Artikelnummer, z.Menge, z.Bezeichnung, z.Optionen, z.Einzelpreis, z.Rabatt});
    EXPECT_EQ(zeilen, fall.Zeilen) << fall.Text.toStdString();
  }
  EXPECT_TRUE(Auftrag_Positionen_anzeigen(u"gibt es nicht"_qs).empty());
  EXPECT_TRUE(Auftrag_Positionen_anzeigen(u"' OR '1'='1"_qs).empty());
}

TEST_P(Auftragsansicht_Test, Artikel_nach_Shopnummer_und_Variante) {
  Artikel(u"A1"_qs, u"5"_qs, u"Rot"_qs);
  Artikel(u"A2"_qs, u"5"_qs, u"Blau"_qs);
  Artikel(u"A3"_qs, u"6"_qs, QString());
  Bestand(u"A2"_qs, 3, 1.5);
  Bestand(u"A2"_qs, 4.25, 0);
  Kontext.gMassFormat = u"0.00"_qs;
  const struct {
    QString ShopID, Variante;
    bool Gefunden;
    QString ShortText, Disposable, Unsociable;
  } faelle[] = {
      {u"5"_qs, u"Blau"_qs, true, u"Schuh A2"_qs, u"7,25 Paar"_qs, u"1,50 Paar"_qs},
      {u"5"_qs, QString(), true, u"Schuh A1"_qs, u" Paar"_qs, u" Paar"_qs},
      {u"6"_qs, QString(), true, u"Schuh A3"_qs, u" Paar"_qs, u" Paar"_qs},
      {u"5"_qs, u"Grün"_qs, false, QString(), QString(), QString()},
      {u"7"_qs, QString(), false, QString(), QString(), QString()},
      {u"5"_qs, u"Jeans '501'"_qs, false, QString(), QString(), QString()},
  };
  for (const auto &fall : faelle) {
    const Artikelanzeige a = Artikel_anzeigen(fall.ShopID, fall.Variante);
    const std::string name = (fall.ShopID + u'/' + fall.Variante).toStdString();
    EXPECT_EQ(a.Gefunden, fall.Gefunden) << name;
    EXPECT_EQ(a.ShortText, fall.ShortText) << name;
    EXPECT_EQ(a.Disposable, fall.Disposable) << name;
    EXPECT_EQ(a.Unsociable, fall.Unsociable) << name;
    EXPECT_EQ(a.Bild, Ersatzbild()) << name;
    EXPECT_EQ(a.DateUpdate, fall.Gefunden ? u"05.03.2024 14:22:11"_qs : QString()) << name;
  }
}

TEST_P(Auftragsansicht_Test, Bild_des_Artikels) {
  const QByteArray bytes("\xFF\xD8 ein Bild \0 mit Null", 23);
  Mandant.Zeile(u"ArticlePictures"_qs, {u"Picture"_qs, bytes});
  const QString id =
      QString::number(static_cast<int>(Abfragen("SELECT * FROM ArticlePictures").Number(u"id"_qs)));
  const QString ziel = Temp_Ordner() + id + u".jpg"_qs;
  QFile::remove(ziel);
  Artikel(u"A1"_qs, u"1"_qs, QString(), id);
  EXPECT_EQ(Artikel_anzeigen(u"1"_qs, QString()).Bild, ziel);
  QFile datei(ziel);
  ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
  EXPECT_EQ(datei.readAll(), bytes);
  datei.close();
  QFile::remove(ziel);

  int nummer = 2;
  for (const QString &boese :
       {u"../../../tmp/boese"_qs, u"1 OR 1=1"_qs, u"-1"_qs, u"987654"_qs, u"99999999999"_qs}) {
    const QString shopid = QString::number(nummer++);
    Artikel(u"A"_qs + shopid, shopid, QString(), boese);
    EXPECT_EQ(Artikel_anzeigen(shopid, QString()).Bild, Ersatzbild()) << boese.toStdString();
  }
  EXPECT_FALSE(QFile::exists(Temp_Ordner() + u"987654.jpg"_qs));
}

TEST_P(Auftragsansicht_Test, Auftrag_der_aktuellen_Zeile) {
  Auftragsliste liste;
  EXPECT_FALSE(Auftrag_anzeigen(liste)) << "no rows";
  Artikel(u"A6"_qs, u"6"_qs, QString());
  Artikel(u"A9"_qs, QString(), QString());
  Bestellung(u"1"_qs, QString());
  Bestellung(u"2"_qs, u"6~1~~Hut~0~1~×7~1~~Schal~0~1~"_qs);
  liste.Auftragsliste_laden();
  const auto ohne = Auftrag_anzeigen(liste);
  ASSERT_TRUE(ohne);
  EXPECT_TRUE(ohne->Positionen.empty());
  EXPECT_FALSE(ohne->Artikel.Gefunden) << "no position must not show the article that has no shop number";
  EXPECT_EQ(ohne->Artikel.Bild, Ersatzbild());

  liste.AktuelleZeile_setzen(1);
  liste.AktuelleZeile_setzen(7);
  const auto anzeige = Auftrag_anzeigen(liste);
  ASSERT_TRUE(anzeige);
  EXPECT_EQ(anzeige->Positionen.size(), 2U);
  EXPECT_EQ(anzeige->Artikel.ShortText, u"Schuh A6"_qs);
  EXPECT_EQ(anzeige->Anschriften.InvoiceAddress, u"Frau R\r\nHier"_qs);
  EXPECT_EQ(anzeige->Anschriften.DeliveryAddress, u"Herr L"_qs);
  EXPECT_EQ(anzeige->Zahlungsinformationen, u"BLZ: 1"_qs);
  EXPECT_EQ(anzeige->Bemerkungen, u"eilig"_qs);

  Kontext.gLaeuft = true;
  EXPECT_FALSE(Auftrag_anzeigen(liste)) << "a batch runs";
  Kontext.gLaeuft = false;
  liste.Zelle_setzen(1, "OrderID", QString());
  EXPECT_FALSE(Auftrag_anzeigen(liste)) << "no order number";
}

}  // namespace
}  // namespace marklink
