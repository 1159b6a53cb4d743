// Variants in the demo client's books.
#include "Demomandant_Varianten.h"

#include "Demoshop_Zeilen.h"

namespace marklink::demo {

QStringList Artikelspalten() {
  return Spalten(
      "ArticleNumber ArticleNumberVariant ShortText LongText Label ArticleType ArticleGroup "
      "ArticleGroup_fullpath Unit VatCode NetPrice VatAmount "
      "GrossPrice PurchasePrice SpecialOfferPrice Storage Disposable Unsociable UnloadingPolicy WeightNet "
      "WeightGross Barcode LayoutNumber Character "
      "Characteristic Variant Active Webshop WebshopID WebshopVariant WebshopVariantText WebshopAttributes "
      "BuildBy DateCreation DateUpdate WorksOnLastOf");
}

QVariantList Artikelzeile_bilden(const Artikel &A, const Artikelzeile &Z) {
  // The host rounds variants to whole cents, plain articles keep what the shop sent.
  const Feinpreis Netto = Z.Variante ? teilen_gerundet(Z.Netto, 100) * 100 : Z.Netto;
  const Cent Brutto = Preis_anzeigen(Netto, A.Steuersatz, true, 10000);
  const double Gewicht = Z.Gewicht_g / 1000.0;
  const QString Langtext =
      Z.Variante ? QString()
                 : QStringLiteral(
                       "%1 aus unserem Sortiment %2.\n\nSorgfältig ausgewählt, geprüft und sofort lieferbar.")
                       .arg(A.Name, Z.Warengruppe);
  const QString Etikett =
      QStringLiteral("Artikelnummer: %1\n%2\n\n%3 EUR")
          .arg(Z.Nummer, Z.Kurztext,
               QString::number(Euro(Brutto), 'f', 2).replace(QLatin1Char('.'), QLatin1Char(',')));
  // What the shop reworked lately still has its older date here.
  const QDateTime Geaendert = A.Im_Shop_neuer ? A.Geaendert.addDays(-60) : A.Geaendert;
  return {Z.Nummer,
          Z.Hauptnummer,
          Z.Kurztext,
          Langtext,
          Etikett,
          Z.Artikelart,
          Z.Warengruppe,
          Z.Warengruppenpfad,
          A.Einheit,
          Z.Steuerschluessel,
          Euro_fein(Netto),
          Euro(Brutto) - Euro_fein(Netto),
          Euro(Brutto),
          Euro(teilen_gerundet(A.Netto * 60, 10000)),
          A.Sonderpreis > 0,
          Z.Lager,
          double(Z.Bestand),
          0.0,
          A.Id % 5,
          Gewicht,
          Gewicht,
          Z.Barcode,
          Z.Layout,
          false,
          Z.Zaehlnummer,
          Z.Variante,
          true,
          true,
          QString::number(A.Id),
          Z.Wertkennungen,
          Z.Variantentext,
          QString(),
          QStringLiteral("xtc"),
          A.Angelegt,
          Geaendert,
          QStringLiteral("Chef")};
}

Variantenwerk::Variantenwerk(const Demodaten &D, const Mandantenvorgaben &V)
    : D_(D),
      V_(V),
      Layouts_{"ArticleLayout", Spalten("LayoutNumber Layout Description Active"), {}},
      Stueckliste_{"ArticlePartslist",
                   Spalten("ListID Variant ArticleNumber ShortText WeightNet Quantity UnitpriceNet Surcharge "
                           "AmountPriceNet ArticleNumberVariant "
                           "Characteristic VariantArticleNumber MainArticleNumber Layout WebshopAttributes "
                           "WebshopID OptionsID"),
                   {}} {}

QString Variantenwerk::Merkmalnummer(int Option) const {
  int n = 0;
  while (D_.Optionen[static_cast<std::size_t>(n)].Id != Option) ++n;
  return QStringLiteral("Merkmal") + V_.Variantenzeichen + Zweistellig(n);
}

QString Variantenwerk::Auspraegungscode(int Wert) const {
  int n = 0;
  for (const Optionswert &W : D_.Optionswerte) {
    if (W.Id == Wert) break;
    if (W.Option == D_.Wert_mit_Id(Wert).Option) ++n;
  }
  return Zweistellig(n);
}

void Variantenwerk::Merkmale_anhaengen(Tabellenzeilen &Artikel_) {
  const auto anhaengen = [&](const QString &Nummer, const QString &Hauptnummer, const QString &Text,
                             const QString &Code, bool Auspraegung, int Id) {
    QVariantList Zeile;
    for (const QString &Spalte : Artikel_.Spalten) {
      if (Spalte == QLatin1String("ArticleNumber"))
        Zeile << Nummer;
      else if (Spalte == QLatin1String("ArticleNumberVariant"))
        Zeile << Hauptnummer;
      else if (Spalte == QLatin1String("ShortText"))
        Zeile << Text;
      else if (Spalte == QLatin1String("Characteristic"))
        Zeile << Code;
      else if (Spalte == QLatin1String("Character") || Spalte == QLatin1String("Active"))
        Zeile << true;
      else if (Spalte == QLatin1String("Variant"))
        Zeile << Auspraegung;
      else if (Spalte == QLatin1String("WebshopID"))
        Zeile << QString::number(Id);
      else if (Auspraegung &&
               (Spalte.endsWith(QLatin1String("Price")) || Spalte == QLatin1String("VatAmount")) &&
               !Spalte.startsWith(QLatin1String("Special")))
        Zeile << 0.0;
      else
        Zeile << QVariant();
    }
    Artikel_.Zeilen.push_back(std::move(Zeile));
  };
  for (const Option &O : D_.Optionen) {
    const QString Nummer = Merkmalnummer(O.Id);
    anhaengen(Nummer, Nummer, O.Name, Nummer.right(2), false, O.Id);
    for (const Optionswert &W : D_.Optionswerte)
      if (W.Option == O.Id)
        anhaengen(Nummer + V_.Variantenzeichen + Auspraegungscode(W.Id), Nummer, W.Name,
                  Auspraegungscode(W.Id), true, W.Id);
  }
}

void Variantenwerk::Zaehlen(const Artikel &A) {
  Erste_Attributnummer_ = Naechste_Attributnummer_;
  for (const Artikeloption &O : A.Optionen) Naechste_Attributnummer_ += static_cast<int>(O.Werte.size());
}

int Variantenwerk::Attributnummer(const Artikel &A, int Wert) const {
  int n = Erste_Attributnummer_;
  for (const Artikeloption &O : A.Optionen)
    for (const Auswahl &W : O.Werte) {
      if (W.Wert == Wert) return n;
      ++n;
    }
  return 0;
}

QString Variantenwerk::Layout(const Artikel &A) {
  if (A.Optionen.empty()) return {};
  QStringList Nummern;
  for (const Artikeloption &O : A.Optionen) Nummern << Merkmalnummer(O.Option);
  const QString Schluessel = Nummern.join(QLatin1Char(';'));
  for (const QVariantList &Zeile : Layouts_.Zeilen)
    if (Zeile[1].toString() == Schluessel) return Zeile[0].toString();
  QString Nummer = QStringLiteral("LY%1").arg(Layouts_.Zeilen.size() + 1, 4, 10, QLatin1Char('0'));
  Layouts_.Zeilen.push_back({Nummer, Schluessel, Nummern.join(QStringLiteral(" + ")), true});
  return Nummer;
}

/// The shop's attribute as one text: id, model, text, weight, price and row, joined by backslashes.
QString Variantenwerk::Eintrag(const Artikel &A, const Auswahl &W) const {
  const auto Zahl = [](double Wert) {
    return (Wert < 0 ? QStringLiteral("-") : QStringLiteral("+")) + QString::number(qAbs(Wert), 'f', 4);
  };
  return QStringList{QString::number(W.Wert),     QStringLiteral("%1-%2").arg(A.Nummer).arg(W.Wert),
                     D_.Wert_mit_Id(W.Wert).Name, Zahl(W.Gewicht_g / 1000.0),
                     Zahl(Euro_fein(W.Aufpreis)), QString::number(Attributnummer(A, W.Wert))}
      .join(QLatin1Char('\\'));
}

Artikelzeile Variantenwerk::Variante(const Artikel &A, const Artikelzeile &Haupt, const Kombination &K,
                                     int Laufend, int Bestand) {
  Artikelzeile Z = Haupt;
  QStringList Codes, Texte, Kennungen;
  for (const Auswahl *W : K) {
    Codes << Auspraegungscode(W->Wert);
    Texte << D_.Wert_mit_Id(W->Wert).Name;
    Kennungen << QString::number(W->Wert);
    Z.Aufpreis += W->Aufpreis;
    Z.Gewicht_g += W->Gewicht_g;
  }
  Z.Variante = true;
  Z.Netto += Z.Aufpreis;
  Z.Zaehlnummer = Zweistellig(Laufend);
  Z.Nummer = QStringList{A.Nummer, Z.Zaehlnummer, Codes.join(V_.Variantenzeichen)}.join(V_.Variantenzeichen);
  Z.Variantentext = Texte.join(QStringLiteral(", "));
  Z.Wertkennungen = Kennungen.join(QLatin1Char(','));
  Z.Kurztext = QStringLiteral("%1 (%2)").arg(A.Name, Z.Variantentext);
  Z.Barcode.clear();
  Z.Bestand = Bestand;
  for (const Auswahl *W : K) {
    const Optionswert &Wert = D_.Wert_mit_Id(W->Wert);
    const QString Merkmal = Merkmalnummer(Wert.Option), Code = Auspraegungscode(W->Wert);
    Stueckliste_.Zeilen.push_back({A.Nummer + V_.Variantenzeichen + Z.Zaehlnummer, Z.Variantentext,
                                   Merkmal + V_.Variantenzeichen + Code, Wert.Name, W->Gewicht_g / 1000.0,
                                   1.0, Euro_fein(W->Aufpreis), 0.0, Euro_fein(W->Aufpreis), Merkmal, Code,
                                   Z.Zaehlnummer, A.Nummer, true, Eintrag(A, *W),
                                   QString::number(Attributnummer(A, W->Wert)), QString::number(W->Wert)});
  }
  return Z;
}

std::vector<Tabellenzeilen> Variantenwerk::Tabellen() {
  return {std::move(Layouts_), std::move(Stueckliste_)};
}

}  // namespace marklink::demo
