// The demo client's articles with groups, prices and stock.
#include "Demomandant_Buecher.h"
#include "Demomandant_Varianten.h"

#include "Demoshop_Zeilen.h"

namespace marklink::demo {

namespace {

const Kategorie &Kategorie_zu(const Demodaten &D, int Id) {
  for (const Kategorie &K : D.Kategorien)
    if (K.Id == Id) return K;
  return D.Kategorien.front();
}

/// "Warengruppen\Draußen\Zelte"; the root alone for category 0.
QString Pfad(const Demodaten &D, int Id) {
  if (Id == 0) return QStringLiteral("Warengruppen");
  const Kategorie &K = Kategorie_zu(D, Id);
  return Pfad(D, K.Oberkategorie) + QLatin1Char('\\') + K.Name;
}

Tabellenzeilen Warengruppen(const Demodaten &D) {
  Tabellenzeilen T{"ArticleGroups",
                   Spalten("ID Group SubGroup Description Rebate Symbol WebshopID WebshopAttributes"),
                   {}};
  int Nummer = 100;
  for (const Kategorie &K : D.Kategorien) {
    // The shop's thirteen values, as a run of the category synchronisation would leave them.
    const QStringList Merkmale{QString(),
                               QStringLiteral("1"),
                               QStringLiteral("categorie_listing.html"),
                               QStringLiteral("product_listing_v1.html"),
                               QString::number(K.Id),
                               QStringLiteral("p.products_price"),
                               QStringLiteral("ASC"),
                               K.Name,
                               K.Name,
                               QStringLiteral("Alles rund um %1.").arg(K.Name),
                               K.Name,
                               QString(),
                               QString()};
    T.Zeilen.push_back({QStringLiteral("%1").arg(++Nummer, 6, 10, QLatin1Char('0')), Pfad(D, K.Oberkategorie),
                        Pfad(D, K.Id), K.Name, 0.0, 1, QString::number(K.Id),
                        Merkmale.join(QLatin1Char('|'))});
  }
  return T;
}

/// A new client may know the shop's lists already; whoever writes the rows leaves those alone.
void Shoplisten(const Demodaten &D, std::vector<Tabellenzeilen> &Alle) {
  Tabellenzeilen Einheiten{"Units", Spalten("Description WebshopID Active Standard"), {}};
  const QStringList Namen = Einheitenliste(D);
  for (int i = 0; i < Namen.size(); ++i)
    Einheiten.Zeilen.push_back({Namen[i], QString::number(i + 1), true, i == 0});
  Tabellenzeilen Arten{
      "CustomerTypes",
      Spalten("Description BlockingPricing SpecialOfferPrice Taxable WebshopID Active Standard"),
      {}};
  for (int i = Gast; i < Gruppen; ++i) {
    const Kundengruppe &G = Gruppendaten(i);
    Arten.Zeilen.push_back({G.Name, G.Staffelpreise, true, G.Brutto || G.Steuer_dazu, QString::number(i),
                            true, i == Neuer_Kunde});
  }
  Tabellenzeilen Stati{"WebshopOrderStatusXTC", Spalten("Description Colour WebshopID Active Standard"), {}};
  const std::vector<int> Farben{0x00FFFF, 0xFFFF00, 0x00C000, 0xC0C000, 0xC0C0C0};
  for (const Bestellstatus &S : Bestellstati())
    Stati.Zeilen.push_back(
        {S.Name, Farben[static_cast<std::size_t>(S.Id - 1)], QString::number(S.Id), true, S.Id == 1});
  Alle.push_back(std::move(Einheiten));
  Alle.push_back(std::move(Arten));
  Alle.push_back(std::move(Stati));
}

/// Lots of one article or variant. Date, price and quantity of the lots put them into different orders, so
/// that each unloading policy takes others. What is left over of larger stocks lies in the outside store,
/// where orders do not reach it.
class Lagerschreiber {
 public:
  Lagerschreiber(const Demodaten &D, const Mandantenvorgaben &V) : D_(D), V_(V) {}

  void einlagern(const Artikel &A, const QString &Nummer, const QString &Kurztext, int Menge) {
    if (Menge <= 0) return;
    const int Zweiter = Menge >= 8 ? Menge / 5 : 0;
    const int Dritter = Menge >= 10 ? Menge * 3 / 10 : 0;
    const int Aussen = Menge >= 40 ? Menge / 10 : 0;
    Posten(A, Nummer, Kurztext, Menge - Zweiter - Dritter - Aussen, 0);
    Posten(A, Nummer, Kurztext, Zweiter, 1);
    Posten(A, Nummer, Kurztext, Dritter, 2);
    Posten(A, Nummer, Kurztext, Aussen, 3);
  }
  Tabellenzeilen Zeilen{
      "Warehouse",
      Spalten("StockingNumber Storage StorageNumber ArticleNumber ShortText SupplierNumber Supplier Date "
              "PurchasePrice "
              "ChargeNumber Unit Quantity Unsociable Disposable ArticleGroup ArticleGroup_fullpath Employee"),
      {}};

 private:
  void Posten(const Artikel &A, const QString &Nummer, const QString &Kurztext, int Menge, int Lauf) {
    if (Menge <= 0) return;
    const int n = static_cast<int>(Zeilen.Zeilen.size()) + 1;
    const bool Aussen = Lauf == 3;
    const QString Fach = Aussen ? QStringLiteral("AL-%1").arg(A.Id % 7 + 1, 2, 10, QLatin1Char('0'))
                                : QStringLiteral("%1-%2-%3")
                                      .arg(V_.Lager)
                                      .arg(QChar(u'A' + A.Kategorie / 10))
                                      .arg(A.Id % 20 + Lauf + 1, 2, 10, QLatin1Char('0'));
    // Per cent of the net price: the second lot was the dearest, the third the cheapest.
    constexpr int Einkaufssatz[] = {60, 64, 56, 61};
    const Cent Einkauf = teilen_gerundet(A.Netto * Einkaufssatz[Lauf], 10000);
    Zeilen.Zeilen.push_back(
        {QStringLiteral("LA%1").arg(n, 6, 10, QLatin1Char('0')),
         Aussen ? QStringLiteral("Außenlager") : QStringLiteral("Hauptlager"), Fach, Nummer, Kurztext,
         QStringLiteral("L%1").arg(700 + A.Kategorie), QStringLiteral("Großhandel Weserbergland"),
         QDateTime(D_.Heute.addDays(-320 + 80 * Lauf + A.Id % 30), QTime(0, 0)), Euro(Einkauf),
         QStringLiteral("CH%1%2").arg(A.Id).arg(Lauf + 1), A.Einheit, double(Menge), 0.0, double(Menge),
         Kategorie_zu(D_, A.Kategorie).Name, Pfad(D_, A.Kategorie), QStringLiteral("Chef")});
  }

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
};

class Mandantenwerk {
 public:
  Mandantenwerk(const Demodaten &D, const Mandantenvorgaben &V)
      : D_(D), V_(V), Lager_(D, V), Varianten_(D, V) {}

  std::vector<Tabellenzeilen> alles() {
    std::vector<Tabellenzeilen> Alle;
    Shoplisten(D_, Alle);
    Alle.push_back(Warengruppen(D_));
    Varianten_.Merkmale_anhaengen(Artikel_);
    for (const Artikel &A : D_.Artikel_) {
      if (A.Sonderpreis > 0) ++Sondernummer_;  // the shop numbers its offers in this order
      Varianten_.Zaehlen(A);
      if (!A.Nur_im_Shop) Artikel_anhaengen(A);
    }
    Alle.push_back(std::move(Artikel_));
    for (Tabellenzeilen &T : Varianten_.Tabellen()) Alle.push_back(std::move(T));
    for (Tabellenzeilen *T : {&Lager_.Zeilen, &Gruppenpreise_, &Staffeln_, &Sonderpreise_})
      Alle.push_back(std::move(*T));
    return Alle;
  }

 private:
  void Artikel_anhaengen(const Artikel &A);
  void Preise_anhaengen(const Artikel &A, const QString &Nummer, Feinpreis Aufpreis);
  QString Steuerschluessel(const Artikel &A) const {
    return A.Steuersatz == 7 ? V_.Steuer_ermaessigt : V_.Steuer_voll;
  }

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
  Lagerschreiber Lager_;
  Variantenwerk Varianten_;
  int Sondernummer_ = 0;
  Tabellenzeilen Artikel_{"Articles", Artikelspalten(), {}};
  Tabellenzeilen Gruppenpreise_{
      "ArticleCustomerTypePrices",
      Spalten("ArticleNumber CustomerType VatCode NetPrice VatAmount GrossPrice WebshopID"),
      {}};
  Tabellenzeilen Staffeln_{
      "ArticleCustomerTypePricesBlockpricing",
      Spalten("CustomerType ArticleNumber Quantity NetPrice VatAmount GrossPrice WebshopID"),
      {}};
  Tabellenzeilen Sonderpreise_{"ArticleSpecialprices",
                               Spalten("ArticleNumber Description NetPrice VatAmount GrossPrice VatCode "
                                       "DateFrom DateTo Synchronise WebshopID"),
                               {}};
};

void Mandantenwerk::Artikel_anhaengen(const Artikel &A) {
  Artikelzeile Z;
  Z.Nummer = Z.Hauptnummer = A.Nummer;
  Z.Kurztext = A.Name;
  Z.Netto = A.Netto;
  Z.Gewicht_g = A.Gewicht_g;
  Z.Bestand = A.Bestand;
  Z.Barcode = A.Ean;
  Z.Artikelart = V_.Artikelart;
  Z.Steuerschluessel = Steuerschluessel(A);
  Z.Warengruppe = Kategorie_zu(D_, A.Kategorie).Name;
  Z.Warengruppenpfad = Pfad(D_, A.Kategorie);
  Z.Lager = V_.Lager;
  Z.Layout = Varianten_.Layout(A);
  Artikel_.Zeilen.push_back(Artikelzeile_bilden(A, Z));
  Preise_anhaengen(A, A.Nummer, 0);

  const std::vector<Kombination> Alle = Kombinationen(A);
  if (Alle.empty()) Lager_.einlagern(A, A.Nummer, A.Name, A.Bestand);
  for (std::size_t i = 0; i < Alle.size(); ++i) {
    const Artikelzeile Variante =
        Varianten_.Variante(A, Z, Alle[i], static_cast<int>(i), Bestand_Kombination(A, i, Alle.size()));
    Artikel_.Zeilen.push_back(Artikelzeile_bilden(A, Variante));
    Preise_anhaengen(A, Variante.Nummer, Variante.Aufpreis);
    Lager_.einlagern(A, Variante.Nummer, Variante.Kurztext, Variante.Bestand);
  }
}

void Mandantenwerk::Preise_anhaengen(const Artikel &A, const QString &Nummer, Feinpreis Aufpreis) {
  const auto Betraege = [&](Feinpreis Netto) {
    const double Brutto = Euro(Preis_anzeigen(Netto, A.Steuersatz, true, 10000));
    return QVariantList{Euro_fein(Netto), Brutto - Euro_fein(Netto), Brutto};
  };
  for (const int Gruppe : {Haendler, Haendler_EU}) {
    if (A.Haendlerpreis == 0) continue;
    const QString Name = Gruppendaten(Gruppe).Name;
    Gruppenpreise_.Zeilen.push_back(QVariantList{Nummer, Name, Steuerschluessel(A)} +
                                    Betraege(A.Haendlerpreis + Aufpreis) + QVariantList{QString()});
    // The basic price stands in the list of steps as well, for one piece.
    Staffeln_.Zeilen.push_back(QVariantList{Name, Nummer, 1.0} + Betraege(A.Haendlerpreis + Aufpreis) +
                               QVariantList{QString()});
    for (const Staffel &S : A.Staffeln)
      Staffeln_.Zeilen.push_back(QVariantList{Name, Nummer, double(S.Ab)} + Betraege(S.Netto + Aufpreis) +
                                 QVariantList{QString()});
  }
  if (A.Sonderpreis > 0 && Nummer == A.Nummer)
    Sonderpreise_.Zeilen.push_back(
        QVariantList{Nummer, A.Name} + Betraege(A.Sonderpreis) +
        QVariantList{Steuerschluessel(A), QDateTime(D_.Heute.addDays(-190), QTime(0, 0)),
                     QDateTime(D_.Heute.addDays(30), QTime(0, 0)), false, QString::number(Sondernummer_)});
}

}  // namespace

std::vector<Tabellenzeilen> Demomandant_Zeilen(const Demodaten &D, const Mandantenvorgaben &V) {
  std::vector<Tabellenzeilen> Alle = Mandantenwerk(D, V).alles();
  for (auto Teil : {Hausartikel(D, V), Kunden_der_Buecher(D, V), Belege_der_Buecher(D, V)})
    for (Tabellenzeilen &T : Teil) Alle.push_back(std::move(T));
  return Alle;
}

}  // namespace marklink::demo
