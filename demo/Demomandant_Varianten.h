// Variants in the demo client's books: characteristics, expressions, layouts, variant articles, parts lists,
// in the form that fetching the articles from the shop would give them.
#pragma once

#include "Demomandant.h"

namespace marklink::demo {

/// What differs between a plain article, its variants and the rows that hold characteristics.
struct Artikelzeile {
  QString Nummer, Hauptnummer, Kurztext, Barcode, Artikelart, Steuerschluessel, Warengruppe, Warengruppenpfad,
      Lager, Layout;
  Feinpreis Netto = 0, Aufpreis = 0;  ///< Netto holds the surcharge already
  int Gewicht_g = 0, Bestand = 0;
  bool Variante = false;
  QString Zaehlnummer, Wertkennungen, Variantentext;  ///< of a variant
};

QStringList Artikelspalten();
QVariantList Artikelzeile_bilden(const Artikel &A, const Artikelzeile &Z);

class Variantenwerk {
 public:
  Variantenwerk(const Demodaten &D, const Mandantenvorgaben &V);

  /// Adds the characteristics with their expressions to the articles.
  void Merkmale_anhaengen(Tabellenzeilen &Artikel_);
  /// Every article of the shop in turn, the unknown ones too: keeps count of the shop's attribute rows.
  void Zaehlen(const Artikel &A);
  /// Number of the layout of an article's options; empty without options.
  QString Layout(const Artikel &A);
  /// The variant of the article counted last; its parts list is kept for Tabellen().
  Artikelzeile Variante(const Artikel &A, const Artikelzeile &Haupt, const Kombination &K, int Laufend,
                        int Bestand);
  /// ArticleLayout and ArticlePartslist.
  std::vector<Tabellenzeilen> Tabellen();

 private:
  QString Zweistellig(int n) const { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }
  QString Merkmalnummer(int Option) const;
  QString Auspraegungscode(int Wert) const;
  QString Eintrag(const Artikel &A, const Auswahl &W) const;
  int Attributnummer(const Artikel &A, int Wert) const;

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
  int Erste_Attributnummer_ = 1, Naechste_Attributnummer_ = 1;
  Tabellenzeilen Layouts_, Stueckliste_;
};

}  // namespace marklink::demo
