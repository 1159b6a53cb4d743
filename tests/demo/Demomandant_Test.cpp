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
    const auto Steuer = [this](const char *Schluessel, double Prozent) {
      Mandant.Zeile(QStringLiteral("Taxes"), {QStringLiteral("TaxKeyNumber"), QLatin1String(Schluessel),
                                              QStringLiteral("Percentage"), Prozent});
    };
    Steuer("0", 0);
    Steuer("1", 19);
    Steuer("2", 7);
    const auto Art = [this](const char *Name, bool Standard) {
      Mandant.Zeile(QStringLiteral("ArticleTypes"),
                    {QStringLiteral("Description"), QLatin1String(Name), QStringLiteral("Stock"), true,
                     QStringLiteral("Standard"), Standard});
    };
    Art("Dienst", false);
    Art("Lagerartikel", true);
    Mandant.Zeile(QStringLiteral("Units"),
                  {QStringLiteral("Description"), QStringLiteral("Paar"), QStringLiteral("Active"), true});
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
      Bedingung += db::Anweisung(" AND WebshopVariantText = ", db::Wert{Werte.join(QStringLiteral(", "))});
      ASSERT_TRUE(Artikelliste.Filter(Bedingung));
      if (const Artikel *A = D.Artikel_mit_Id(P.Artikel); !A || A->Nur_im_Shop) {
        ++(A ? Nur_im_Shop : Geloescht);
        EXPECT_EQ(Artikelliste.RecordCount(), 0);
        continue;
      }
      ASSERT_EQ(Artikelliste.RecordCount(), 1)
          << P.Nummer.toStdString() << Werte.join(QLatin1Char('/')).toStdString();
      Artikelliste.MoveFirst();
      if (P.Menge > Artikelliste.Number(QStringLiteral("Disposable"))) ++Knapp;
      // A private buyer paid exactly the price in the books, unless the article was on offer.
      if (B.Brutto && B.Kurs == 10000 && P.Steuersatz > 0 && P.Optionen.empty() &&
          !Artikelliste.Flag(QStringLiteral("SpecialOfferPrice"))) {
        EXPECT_EQ(std::llround(Artikelliste.Number(QStringLiteral("GrossPrice")) * 100), P.Einzelpreis)
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
    Summen[L.Text(QStringLiteral("ArticleNumber"))] += L.Number(QStringLiteral("Disposable"));
    EXPECT_EQ(L.Number(QStringLiteral("Quantity")),
              L.Number(QStringLiteral("Disposable")) + L.Number(QStringLiteral("Unsociable")));
    Aussen |= !L.Text(QStringLiteral("StorageNumber")).startsWith(QLatin1Char('1'));
  }
  EXPECT_TRUE(Aussen) << "stock out of the orders' reach";
  std::map<QString, double> Varianten;
  int Hauptartikel = 0;
  db::Recordset A = Abfragen({"SELECT * FROM Articles WHERE Character = ", db::Zahl(Kontext.gSQL_False)});
  for (; !A.IsEOF(); A.MoveNext()) {
    if (A.Text(QStringLiteral("WebshopID")).isEmpty()) continue;  // the host's own, without the shop's form
    const QString Nummer = A.Text(QStringLiteral("ArticleNumber"));
    if (A.Flag(QStringLiteral("Variant")))
      Varianten[A.Text(QStringLiteral("ArticleNumberVariant"))] += A.Number(QStringLiteral("Disposable"));
    else
      ++Hauptartikel;
    if (A.Flag(QStringLiteral("Variant")) || A.Text(QStringLiteral("LayoutNumber")).isEmpty()) {
      EXPECT_EQ(A.Number(QStringLiteral("Disposable")), Summen[Nummer]) << Nummer.toStdString();
    }
    EXPECT_FALSE(A.Text(QStringLiteral("VatCode")).isEmpty() ||
                 A.Text(QStringLiteral("ArticleType")) != QLatin1String("Lagerartikel"))
        << Nummer.toStdString();
  }
  EXPECT_EQ(Hauptartikel, 116);
  EXPECT_FALSE(Varianten.empty());
  for (const auto &[Nummer, Bestand] : Varianten)
    EXPECT_EQ(Abfragen({"SELECT * FROM Articles WHERE ArticleNumber = ", db::Wert{Nummer}})
                  .Number(QStringLiteral("Disposable")),
              Bestand)
        << Nummer.toStdString();
}

TEST_P(Demomandant_Test, Varianten_fuehren_ihre_Auspraegungen) {
  int Zeilen = 0;
  for (db::Recordset S =
           Abfragen({"SELECT * FROM ArticlePartslist WHERE Layout = ", db::Zahl(Kontext.gSQL_True)});
       !S.IsEOF() && Zeilen < 60; S.MoveNext(), ++Zeilen) {
    const db::Recordset Auspraegung = Abfragen(
        {"SELECT * FROM Articles WHERE ArticleNumber = ", db::Wert{S.Text(QStringLiteral("ArticleNumber"))}});
    EXPECT_TRUE(Auspraegung.Flag(QStringLiteral("Character")) && Auspraegung.Flag(QStringLiteral("Variant")));
    EXPECT_EQ(Auspraegung.Text(QStringLiteral("ShortText")), S.Text(QStringLiteral("ShortText")));
    EXPECT_EQ(S.Text(QStringLiteral("WebshopAttributes")).count(QLatin1Char('\\')), 5);
  }
  EXPECT_EQ(Zeilen, 60);
  EXPECT_EQ(Anzahl({"SELECT * FROM Articles WHERE LayoutNumber = ", db::Wert{QStringLiteral("LY0001")},
                    " AND Variant = ", db::Zahl(Kontext.gSQL_False)}),
            Anzahl({"SELECT DISTINCT ArticleNumberVariant FROM Articles WHERE LayoutNumber = ",
                    db::Wert{QStringLiteral("LY0001")}, " AND Variant = ", db::Zahl(Kontext.gSQL_True)}));
}

TEST_P(Demomandant_Test, Vorhandene_Listenzeilen_bleiben_wie_sie_sind) {
  const db::Recordset Paar = Abfragen("SELECT * FROM Units WHERE Description = 'Paar'");
  EXPECT_EQ(Paar.RecordCount(), 1);
  EXPECT_EQ(Paar.Text(QStringLiteral("WebshopID")), QString());
  EXPECT_EQ(Anzahl("SELECT * FROM Units"), 18);
  EXPECT_EQ(Anzahl("SELECT * FROM CustomerTypes"), 7);
  // The books refuse the same articles a second time.
  EXPECT_FALSE(Demomandant_schreiben(Kontext.gConnectionString, Demo_Stichtag()));
  EXPECT_EQ(Anzahl("SELECT * FROM Units"), 18);
}

}  // namespace
}  // namespace marklink::demo
