// Single fields of articles and of their types, for everybody who needs one. Each call reads the books anew.
#pragma once

#include <QString>
#include <QVariant>

namespace marklink {

/// The fields of Articles by their selectors, one list for reading and writing.
enum class Artikelfeld {
  Barcode = 0,
  Unit = 1,
  ArticleGroup_fullpath = 2,
  ShortText = 3,
  LayoutNumber = 4,  ///< also written
  ArticleNumberVariant = 5,
  UnloadingPolicy = 6,
  ProcurementType = 7,
  WeightNet = 8,
  WeightGross = 9,
  ShortTextPOS = 10,
  Substitute = 11,
  Webshop = 12,
  SerialnumberAble = 13,
  ProductionCosts = 14,
  StockMin = 15,
  StockMax = 16,
  NetPrice = 17,
  GrossPrice = 18,
  Storage = 19,     ///< also written
  Unsociable = 20,  ///< only written
  Disposable = 21,  ///< only written
  WebshopID = 22,   ///< also written
  VatCode = 23,
  PurchasePrice = 24,
  SpecialOfferPrice = 25
};

/// The field as text, 16-bit number, double or flag. A null value for an unknown article, an unknown or only
/// written selector, and for a field that is null.
QVariant Artikel_Feld_lesen(const QString &Artikelnummer, int Feld);
inline QVariant Artikel_Feld_lesen(const QString &Artikelnummer, Artikelfeld Feld) {
  return Artikel_Feld_lesen(Artikelnummer, int(Feld));
}

/// Writes LayoutNumber, Storage and WebshopID (text), Unsociable and Disposable (number, or its German text);
/// any other selector, and a value that is no number where one is needed, writes nothing. False when the
/// article is unknown or the books refused the change.
bool Artikel_Feld_schreiben(const QString &Artikelnummer, int Feld, const QVariant &Wert);
inline bool Artikel_Feld_schreiben(const QString &Artikelnummer, Artikelfeld Feld, const QVariant &Wert) {
  return Artikel_Feld_schreiben(Artikelnummer, int(Feld), Wert);
}

/// Column of Taxes by kind: 0 own key, 1 EU without VAT id, 2 EU with VAT id, 3 outside the EU; else empty.
/// Not the numbers of Steuerfeld_Kunde(): 1 and 2 stand the other way round, on purpose.
QString Steuerfeld_ermitteln(int Art);

/// Whether the article's type keeps stock; false for an unknown article or type.
bool Artikelart_Lagerfuehrung(const QString &Artikelnummer);
/// Whether the article's type is one of variants; false for an unknown article or type.
bool Artikelart_Variante(const QString &Artikelnummer);

}  // namespace marklink
