// The price of an article for a customer and a quantity.
//
// The sources in their order; the first that applies decides:
//   the customer's own price list; the price of the customer's group, with the group's scale; the article's
//   own price, plus its parts, lowered by the article's scale, replaced by a special price that is valid
//   today when both the group and the article allow special prices - also when the special price is the
//   higher one.
// Discounts are no part of it. Nothing is rounded.
#pragma once

#include <QString>

namespace marklink {
namespace db {
class Recordset;
}

/// A field that the deciding source holds no value for stays as it was.
struct Preis {
  QString Artikelnummer, Kurztext, Steuerschluessel;
  double Netto = 0, Steuer = 0, Brutto = 0;
};

enum class Preisquelle {
  Keine,             ///< unknown article: the price is what it was
  Kundenpreisliste,  ///< whatever the quantity
  Kundengruppe,      ///< article number and short text stay as they were
  Gruppenstaffel,    ///< likewise; the tax key is that of the group's price
  Artikel,
  Staffel,     ///< the tax key is that of the article
  Sonderpreis  ///< gross and tax computed from its net price and the parts
};

enum class Stammdaten {
  Lesen = 0,   ///< from Articles
  Gegeben = 1  ///< from the current row of `Satz`: SubArticle, ShortText, NetPrice, VatAmount, GrossPrice,
               ///< VatCode, SpecialOfferPrice
};

/// `Auslesung`: Kontext.gArticlePriceReadout; 2 adds the net prices of the parts to the net price, and to it
/// alone. Of any other `Herkunft` the price stays as it was where the article's own would be taken.
Preisquelle Preis_ermitteln(Preis &P, const QString &Artikelnummer, const QString &Kundennummer, double Menge,
                            Stammdaten Herkunft, int Auslesung, const db::Recordset *Satz = nullptr);

}  // namespace marklink
