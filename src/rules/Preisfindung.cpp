// The price of an article for a customer and a quantity.
#include "Preisfindung.h"

#include <cmath>

#include "Artikelfelder.h"
#include "Berechnung.h"
#include "Kunden.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

void Text_nehmen(QString &Ziel, const db::Recordset &Satz, const QString &Feld) {
  if (!Satz.IsNull(Feld)) Ziel = Satz.Text(Feld);
}

void Zahl_nehmen(double &Ziel, const db::Recordset &Satz, const QString &Feld) {
  if (!Satz.IsNull(Feld)) Ziel = Satz.Number(Feld);
}

void Betraege_nehmen(Preis &P, const db::Recordset &Satz) {
  Zahl_nehmen(P.Netto, Satz, QStringLiteral("NetPrice"));
  Zahl_nehmen(P.Steuer, Satz, QStringLiteral("VatAmount"));
  Zahl_nehmen(P.Brutto, Satz, QStringLiteral("GrossPrice"));
}

void Artikel_nehmen(Preis &P, const db::Recordset &Satz, const QString &Nummernfeld) {
  Text_nehmen(P.Artikelnummer, Satz, Nummernfeld);
  Text_nehmen(P.Kurztext, Satz, QStringLiteral("ShortText"));
  Betraege_nehmen(P, Satz);
  Text_nehmen(P.Steuerschluessel, Satz, QStringLiteral("VatCode"));
}

/// Hands over the rows of a scale, sorted by quantity, that the quantity reaches.
template <typename Nehmen>
void Staffel_ablaufen(db::Recordset &Staffel, double Menge, Nehmen nehmen) {
  for (; !Staffel.IsEOF() && !(Staffel.Number(QStringLiteral("Quantity")) > Menge); Staffel.MoveNext())
    nehmen(Staffel);
}

/// One search. A member for each step; what a step finds goes to P.
class Preissuche {
 public:
  Preissuche(Preis &P, const QString &Artikelnummer, const QString &Kundennummer, double Menge)
      : P_(P), Artikel_(Artikelnummer), Kunde_(Kundennummer), Menge_(Menge) {}

  Preisquelle Suchen(Stammdaten Herkunft, int Auslesung, const db::Recordset *Satz) {
    if (Kundenpreisliste()) return Preisquelle::Kundenpreisliste;
    Gruppe_ = Abfragen({"SELECT CustomerType FROM Contacts WHERE CustomerNumber = ", db::Wert{Kunde_}})
                  .Text(QStringLiteral("CustomerType"));
    if (Gruppenpreis()) return Quelle_;
    if (!Artikelpreis(Herkunft, Satz)) return Preisquelle::Keine;
    if (Auslesung == 2) Teile();
    if (Menge_ > 1) Staffelpreis();
    Sonderpreis();
    return Quelle_;
  }

 private:
  bool Kundenpreisliste() {
    const db::Recordset rs =
        Abfragen({"SELECT * FROM ContactPricelist WHERE ArticleNumber = ", db::Wert{Artikel_},
                  " AND CustomerNumber = ", db::Wert{Kunde_}});
    if (rs.RecordCount() == 0) return false;
    Artikel_nehmen(P_, rs, QStringLiteral("ArticleNumber"));
    return true;
  }

  bool Gruppenpreis() {
    if (Gruppe_.isEmpty()) return false;
    const db::Recordset rs =
        Abfragen({"SELECT * FROM ArticleCustomerTypePrices WHERE ArticleNumber = ", db::Wert{Artikel_},
                  " AND CustomerType = ", db::Wert{Gruppe_}});
    if (rs.RecordCount() == 0) return false;
    Quelle_ = Preisquelle::Kundengruppe;
    Betraege_nehmen(P_, rs);
    Text_nehmen(P_.Steuerschluessel, rs, QStringLiteral("VatCode"));
    if (Menge_ != 1 && Kundengruppe_Staffelpreis(Gruppe_)) Gruppenstaffel();
    return true;
  }

  void Gruppenstaffel() {
    db::Recordset rs = Abfragen(
        {"SELECT * FROM ArticleCustomerTypePricesBlockpricing WHERE ArticleNumber = ", db::Wert{Artikel_},
         " AND CustomerType = ", db::Wert{Gruppe_}, " ORDER BY Quantity ASC"});
    Staffel_ablaufen(rs, Menge_, [this](const db::Recordset &zeile) {
      Betraege_nehmen(P_, zeile);
      Quelle_ = Preisquelle::Gruppenstaffel;
    });
  }

  /// False for an unknown article.
  bool Artikelpreis(Stammdaten Herkunft, const db::Recordset *Satz) {
    if (Herkunft == Stammdaten::Gegeben) {
      if (!Satz) return false;
      Artikel_nehmen(P_, *Satz, QStringLiteral("SubArticle"));
      Sonderpreis_erlaubt_ = Satz->Flag(QStringLiteral("SpecialOfferPrice"));
    } else if (Herkunft == Stammdaten::Lesen) {
      const db::Recordset rs =
          Abfragen({"SELECT * FROM Articles WHERE ArticleNumber = ", db::Wert{Artikel_}});
      if (rs.RecordCount() == 0) return false;
      Artikel_nehmen(P_, rs, QStringLiteral("ArticleNumber"));
      Sonderpreis_erlaubt_ = rs.Flag(QStringLiteral("SpecialOfferPrice"));
      Hauptartikel_ = rs.Text(QStringLiteral("ArticleNumberVariant"));
    }
    Gegeben_ = Herkunft == Stammdaten::Gegeben;
    Quelle_ = Preisquelle::Artikel;
    return true;
  }

  /// The parts raise the net price alone, intended; a scale or special price then sets all three.
  void Teile() {
    db::Recordset rs = Abfragen({"SELECT * FROM ArticlePartslist WHERE ListID = ", db::Wert{Artikel_}});
    for (; !rs.IsEOF(); rs.MoveNext()) Teilesumme_ += rs.Number(QStringLiteral("AmountPriceNet"));
    P_.Netto += Teilesumme_;
  }

  /// A scale can lower a price, never raise it.
  void Staffelpreis() {
    db::Recordset rs =
        Abfragen({"SELECT * FROM ArticleBlockpricing WHERE ArticleNumber = ", db::Wert{Artikel_},
                  " ORDER BY Quantity ASC"});
    Staffel_ablaufen(rs, Menge_, [this](const db::Recordset &zeile) {
      const QString netto = QStringLiteral("NetPrice");
      if (zeile.IsNull(netto) || !(zeile.Number(netto) < P_.Netto)) return;
      Betraege_nehmen(P_, zeile);
      Quelle_ = Preisquelle::Staffel;
    });
  }

  /// Of a variant the article that it is a variant of allows special prices or not; the special prices
  /// themselves are its own.
  bool Artikel_hat_Sonderpreise() const {
    if (Gegeben_ || !Artikelart_Variante(Artikel_)) return Sonderpreis_erlaubt_;
    return Artikel_Feld_lesen(Hauptartikel_, Artikelfeld::SpecialOfferPrice).toBool();
  }

  void Sonderpreis() {
    if (!Kundengruppe_Sonderpreis(Gruppe_) || !Artikel_hat_Sonderpreise()) return;
    db::Recordset rs =
        Abfragen({"SELECT * FROM ArticleSpecialprices WHERE ArticleNumber = ", db::Wert{Artikel_}});
    for (; !rs.IsEOF(); rs.MoveNext()) {
      // By days: whatever time stands with them, both ends count as whole days.
      const QDate von = rs.Value(QStringLiteral("DateFrom")).toDate();
      const QDate bis = rs.Value(QStringLiteral("DateTo")).toDate();
      if (!von.isValid() || !bis.isValid() || von > Kontext.gHeute || bis < Kontext.gHeute) continue;
      Sonderpreis_nehmen(rs);
      return;
    }
  }

  void Sonderpreis_nehmen(const db::Recordset &Zeile) {
    Quelle_ = Preisquelle::Sonderpreis;
    Text_nehmen(P_.Steuerschluessel, Zeile, QStringLiteral("VatCode"));
    if (!Zeile.IsNull(QStringLiteral("NetPrice")))
      P_.Netto = Zeile.Number(QStringLiteral("NetPrice")) + Teilesumme_;
    P_.Brutto = Netto_zu_Brutto(P_.Netto, P_.Steuerschluessel);
    P_.Steuer = Steuer_aus_Brutto(P_.Brutto, P_.Steuerschluessel);
  }

  Preis &P_;
  const QString Artikel_, Kunde_;  // copies: the caller may hand in what P holds
  const double Menge_;
  QString Gruppe_;
  Preisquelle Quelle_ = Preisquelle::Keine;
  double Teilesumme_ = 0;
  bool Gegeben_ = false, Sonderpreis_erlaubt_ = false;
  QString Hauptartikel_;  ///< that the article is a variant of
};

}  // namespace

Preisquelle Preis_ermitteln(Preis &P, const QString &Artikelnummer, const QString &Kundennummer, double Menge,
                            Stammdaten Herkunft, int Auslesung, const db::Recordset *Satz) {
  const Preis vorher = P;
  const Preisquelle quelle =
      Preissuche(P, Artikelnummer, Kundennummer, Menge).Suchen(Herkunft, Auslesung, Satz);
  if (std::isfinite(P.Netto) && std::isfinite(P.Steuer) && std::isfinite(P.Brutto)) return quelle;
  P = vorher;  // an overflow ends the search with nothing found
  return Preisquelle::Keine;
}

}  // namespace marklink
