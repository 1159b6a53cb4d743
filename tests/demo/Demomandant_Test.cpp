// The demo client's books beside the demo shop: what is ordered there is found here.
#include <cmath>

#include "db/Recordset.h"
#include "demo/Demomandant.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Testmandant.h"

namespace marklink::demo {
namespace {

class Demomandant_Test : public test::Mandant_Test {
 protected:
  Demomandant_Test() {
    for (const auto &[Schluessel, Prozent] : {std::pair{0, 0}, {1, 19}, {2, 7}})
      Mandant.Zeile(u"Taxes"_qs,
                    {u"TaxKeyNumber"_qs, QString::number(Schluessel), u"Percentage"_qs, Prozent});
    for (const auto &[Art, Standard] : {std::pair{u"Dienst"_qs, false}, {u"Lagerartikel"_qs, true}})
      Mandant.Zeile(u"ArticleTypes"_qs,
                    {u"Description"_qs, Art, u"Stock"_qs, true, u"Standard"_qs, Standard});
    Mandant.Zeile(u"Units"_qs, {u"Description"_qs, u"Paar"_qs, u"Active"_qs, true});
    EXPECT_TRUE(Demomandant_schreiben(Kontext.gConnectionString, Demo_Stichtag()));
  }
  static int Anzahl(const db::Anweisung &Sql) { return Abfragen(Sql).RecordCount(); }
};
MARKLINK_BEIDE_TYPEN(Demomandant_Test);

TEST_P(Demomandant_Test, Jede_Bestellzeile_findet_ihren_Artikel_ausser_den_gewollten) {
  const Demodaten D = Demodaten_erzeugen(Demo_Stichtag());
  db::Recordset Artikelliste =
      Abfragen({"SELECT * FROM Articles WHERE Character = ", db::Zahl(Kontext.gSQL_False)});
  int Nur_im_Shop = 0, Geloescht = 0, Knapp = 0;
  for (const Bestellung &B : D.Bestellungen) {
    for (const Position &P : B.Positionen) {
      QStringList Werte;
      for (const Positionsoption &O : P.Optionen) Werte << O.Wert;
      db::Anweisung Bedingung("WebshopID = ", db::Wert{QString::number(P.Artikel)});
      Bedingung += db::Anweisung(" AND WebshopVariantText = ", db::Wert{Werte.join(u", "_qs)});
      ASSERT_TRUE(Artikelliste.Filter(Bedingung));
      if (const Artikel *A = D.Artikel_mit_Id(P.Artikel); !A || A->Nur_im_Shop) {
        ++(A ? Nur_im_Shop : Geloescht);
        EXPECT_EQ(Artikelliste.RecordCount(), 0);
        continue;
      }
      ASSERT_EQ(Artikelliste.RecordCount(), 1)
          << P.Nummer.toStdString() << Werte.join(QLatin1Char('/')).toStdString();
      Artikelliste.MoveFirst();
      if (P.Menge > Artikelliste.Number(u"Disposable"_qs)) ++Knapp;
      // A private buyer paid exactly the price in the books, unless the article was on offer.
      if (B.Brutto && B.Kurs == 10000 && P.Steuersatz > 0 && P.Optionen.empty() &&
          !Artikelliste.Flag(u"SpecialOfferPrice"_qs)) {
        EXPECT_EQ(std::llround(Artikelliste.Number(u"GrossPrice"_qs) * 100), P.Einzelpreis)
            << P.Nummer.toStdString();
      }
    }
  }
  EXPECT_EQ(Nur_im_Shop, 6);
  EXPECT_EQ(Geloescht, 2);
  EXPECT_GE(Knapp, 3);
}

TEST_P(Demomandant_Test, Bestand_der_Artikel_ist_die_Summe_der_Lagerzeilen) {
  std::map<QString, double> Summen;
  bool Aussen = false;
  for (db::Recordset L = Abfragen("SELECT * FROM Warehouse"); !L.IsEOF(); L.MoveNext()) {
    Summen[L.Text(u"ArticleNumber"_qs)] += L.Number(u"Disposable"_qs);
    EXPECT_EQ(L.Number(u"Quantity"_qs), L.Number(u"Disposable"_qs) + L.Number(u"Unsociable"_qs));
    Aussen |= !L.Text(u"StorageNumber"_qs).startsWith(QLatin1Char('1'));
  }
  EXPECT_TRUE(Aussen) << "stock out of the orders' reach";
  std::map<QString, double> Varianten;
  int Hauptartikel = 0;
  db::Recordset A = Abfragen({"SELECT * FROM Articles WHERE Character = ", db::Zahl(Kontext.gSQL_False)});
  for (; !A.IsEOF(); A.MoveNext()) {
    if (A.Text(u"WebshopID"_qs).isEmpty()) continue;  // the host's own, without the shop's form
    const QString Nummer = A.Text(u"ArticleNumber"_qs);
    if (A.Flag(u"Variant"_qs))
      Varianten[A.Text(u"ArticleNumberVariant"_qs)] += A.Number(u"Disposable"_qs);
    else
      ++Hauptartikel;
    if (A.Flag(u"Variant"_qs) || A.Text(u"LayoutNumber"_qs).isEmpty()) {
      EXPECT_EQ(A.Number(u"Disposable"_qs), Summen[Nummer]) << Nummer.toStdString();
    }
    EXPECT_FALSE(A.Text(u"VatCode"_qs).isEmpty() ||
                 A.Text(u"ArticleType"_qs) != QLatin1String("Lagerartikel"))
        << Nummer.toStdString();
  }
  EXPECT_EQ(Hauptartikel, 116);
  EXPECT_FALSE(Varianten.empty());
  for (const auto &[Nummer, Bestand] : Varianten)
    EXPECT_EQ(Abfragen({"SELECT * FROM Articles WHERE ArticleNumber = ", db::Wert{Nummer}})
                  .Number(u"Disposable"_qs),
              Bestand)
        << Nummer.toStdString();
}

TEST_P(Demomandant_Test, Varianten_fuehren_ihre_Auspraegungen) {
  int Zeilen = 0;
  for (db::Recordset S =
           Abfragen({"SELECT * FROM ArticlePartslist WHERE Layout = ", db::Zahl(Kontext.gSQL_True)});
       !S.IsEOF() && Zeilen < 60; S.MoveNext(), ++Zeilen) {
    const db::Recordset Auspraegung =
        Abfragen({"SELECT * FROM Articles WHERE ArticleNumber = ", db::Wert{S.Text(u"ArticleNumber"_qs)}});
    EXPECT_TRUE(Auspraegung.Flag(u"Character"_qs) && Auspraegung.Flag(u"Variant"_qs));
    EXPECT_EQ(Auspraegung.Text(u"ShortText"_qs), S.Text(u"ShortText"_qs));
    EXPECT_EQ(S.Text(u"WebshopAttributes"_qs).count(QLatin1Char('\\')), 5);
  }
  EXPECT_EQ(Zeilen, 60);
  EXPECT_EQ(Anzahl({"SELECT * FROM Articles WHERE LayoutNumber = ", db::Wert{u"LY0001"_qs},
                    " AND Variant = ", db::Zahl(Kontext.gSQL_False)}),
            Anzahl({"SELECT DISTINCT ArticleNumberVariant FROM Articles WHERE LayoutNumber = ",
                    db::Wert{u"LY0001"_qs}, " AND Variant = ", db::Zahl(Kontext.gSQL_True)}));
}

TEST_P(Demomandant_Test, Vorhandene_Listenzeilen_bleiben_wie_sie_sind) {
  const db::Recordset Paar = Abfragen("SELECT * FROM Units WHERE Description = 'Paar'");
  EXPECT_EQ(Paar.RecordCount(), 1);
  EXPECT_EQ(Paar.Text(u"WebshopID"_qs), QString());
  EXPECT_EQ(Anzahl("SELECT * FROM Units"), 18);
  EXPECT_EQ(Anzahl("SELECT * FROM CustomerTypes"), 7);
  // The books refuse the same articles a second time.
  EXPECT_FALSE(Demomandant_schreiben(Kontext.gConnectionString, Demo_Stichtag()));
  EXPECT_EQ(Anzahl("SELECT * FROM Units"), 18);
}

}  // namespace
}  // namespace marklink::demo
