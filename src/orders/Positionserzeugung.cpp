// The lines of a staged order as positions of a document.
#include "Positionserzeugung.h"

#include "Positionsbestand.h"
#include "Positionspreise.h"
#include "Positionstext.h"
#include "db/Ablaufverfolgung.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "rules/Berechnung.h"
#include "rules/Zuteilungsliste.h"
#include "sync/down/Artikel_holen.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

/// What became of the look for a line's article.
struct Artikelsuche {
  db::Recordset Artikel;     ///< stands on the article; without rows: the line is left out
  bool Gescheitert = false;  ///< the books could not be asked
};

/// An article without a shop id is never found: those that the shop does not know have none either.
Artikelsuche Artikel_suchen(const Bestellposition &Zeile) {
  if (Zeile.ProductsID.isEmpty()) return {};
  db::Anweisung sql{"SELECT * FROM Articles WHERE Character = ", db::Zahl(int{Kontext.gSQL_False}),
                    " AND WebshopID = ", db::Wert{Zeile.ProductsID}};
  if (!Zeile.Optionen.isEmpty()) sql += db::Anweisung{" AND WebshopVariantText = ", db::Wert{Zeile.Optionen}};
  Artikelsuche suche{Abfragen(sql)};
  // An apostrophe in what the shop says finds nothing; that is no failure.
  suche.Gescheitert = sql.Gueltig() && !suche.Artikel.IsOpen();
  return suche;
}

bool Artikel_anlegen_fragen(const QString &Name) {
  return dialoge().Meldung(
             QStringLiteral("Artikel nicht vorhanden"),
             {QStringLiteral("Der Artikel '%1' ist nicht vorhanden.").arg(Name),
              QStringLiteral("Möchten Sie den Artikel nun anlegen und die Position berücksichtigen?")},
             Symbol::Frage, Knoepfe::JaNein, Antwort::Ja) == Antwort::Ja;
}

/// The article of a line, fetched from the shop if the user wants that. A line whose article is missing even
/// then has no price and no tax key, so it is left out too.
Artikelsuche Artikel_beschaffen(const Bestellposition &Zeile) {
  Artikelsuche suche = Artikel_suchen(Zeile);
  if (suche.Gescheitert || suche.Artikel.RecordCount() > 0) return suche;
  const Fortschritt_verdeckt pause;
  if (!Artikel_anlegen_fragen(Zeile.Bezeichnung)) return suche;
  Artikel_holen(Zeile.ProductsID);
  suche = Artikel_suchen(Zeile);
  if (suche.Artikel.RecordCount() < 1)
    Ablauf_melden(QStringLiteral("Positionen_erzeugen"),
                  QStringLiteral("line left out, no article for product ") + Zeile.ProductsID);
  return suche;
}

/// One position in the making.
struct Position {
  int Index;  ///< place of the line in the order, from 0
  const Bestellposition &Zeile;
  const db::Recordset &Artikel;
  QString Steuerschluessel;
  Positionsmenge Menge;
  Positionspreise Preise;
};

void Bezeichnung_eintragen(db::Recordset &rs, const Positionsvorgabe &V, const Position &P) {
  rs.SetValue(QStringLiteral("DocumentNumber"), V.Belegnummer);
  rs.SetValue(QStringLiteral("document"), V.Beleg);
  rs.SetValue(QStringLiteral("LineItemNumber"), Zahl_formatieren(P.Index + 1, Kontext.gPositionFormat));
  rs.SetValue(QStringLiteral("SequentialNumber"), Zahl_formatieren(P.Index + 1, QStringLiteral("0000")));
  for (const char *feld : {"ArticleNumber", "ShortText", "Unit", "LongText", "ArticleType", "WeightNet",
                           "WeightGross", "Barcode", "Graphic"})
    rs.SetValue(QLatin1String(feld), P.Artikel.Value(QLatin1String(feld)));
  rs.SetValue(QStringLiteral("ArticleGroup"), P.Artikel.Value(QStringLiteral("ArticleGroup_fullpath")));
  rs.SetValue(QStringLiteral("Employee"), Kontext.gBenutzername);
  rs.SetValue(QStringLiteral("Date"), Zeitpunkt(Kontext.gHeute));
  for (const char *feld : {"Calculate", "SerialNumber", "DeliveryNumber", "OrderingNumber", "TransportNumber",
                           "AccountingNumber"})
    rs.SetValue(QLatin1String(feld), QString());
}

void Menge_eintragen(db::Recordset &rs, const Positionsvorgabe &V, const Positionsmenge &Menge) {
  rs.SetValue(QStringLiteral("Quantity"), Menge.Geliefert);
  rs.SetValue(QStringLiteral("BackOrder"), Menge.Rueckstand);
  rs.SetValue(QStringLiteral("QuantityDelivered"), 0.0);
  rs.SetValue(QStringLiteral("StorageNumber"), Menge.Zuteilung);
  rs.SetValue(QStringLiteral("PurchasePrice"), Zuteilung_Wert(Menge.Zuteilung, int(Losfeld::Einkaufspreis)));
  if (V.Lager_pruefen) rs.SetValue(QStringLiteral("ProcessingStatus"), 1);
}

void Preise_eintragen(db::Recordset &rs, const Position &P) {
  rs.SetValue(QStringLiteral("VatCode"), P.Steuerschluessel);
  rs.SetValue(QStringLiteral("Rebate"), P.Zeile.Rabatt);
  rs.SetValue(QStringLiteral("UnitpriceNet"), P.Preise.Netto);
  rs.SetValue(QStringLiteral("UnitpriceVat"), P.Preise.Steuer);
  rs.SetValue(QStringLiteral("UnitpriceGross"), P.Preise.Brutto);
  rs.SetValue(QStringLiteral("AllroundpriceGross"), P.Preise.Gesamt_Brutto);
  rs.SetValue(QStringLiteral("AllroundpriceNet"), P.Preise.Gesamt_Netto);
  rs.SetValue(QStringLiteral("AllroundpriceVat"), P.Preise.Gesamt_Steuer);
  rs.SetValue(QStringLiteral("UnitpriceNetDiscounted"), P.Preise.Netto_rabattiert);
  rs.SetValue(QStringLiteral("UnitpriceGrossDiscounted"), P.Preise.Brutto_rabattiert);
}

Position Position_ermitteln(const Positionsvorgabe &V, int Index, const Bestellposition &Zeile,
                            const db::Recordset &Artikel) {
  const QString nummer = Artikel.Text(QStringLiteral("ArticleNumber"));
  Position p{Index,
             Zeile,
             Artikel,
             Steuerfeld_lesen(Artikel.Text(QStringLiteral("VatCode")), Steuerfeld_Kunde(V.TaxCalculation))
                 .toString(),
             {},
             {}};
  p.Menge = Positionsmenge_ermitteln(
      {V.Beleg, V.Belegnummer, nummer, Zeile.Bezeichnung, Index, Zeile.Menge, V.Lager_pruefen});
  p.Preise =
      Positionspreise_ermitteln({V.Taxation, V.Kundennummer, V.Preisherkunft, nummer, p.Steuerschluessel,
                                 Zeile.Einzelpreis, Zeile.Rabatt, p.Menge.Geliefert});
  return p;
}

}  // namespace

bool Positionen_erzeugen(const Positionsvorgabe &Vorgabe, double &Rabatt) {
  db::Recordset rs = Abfragen({"SELECT * FROM Positions WHERE Document = ", db::Wert{Vorgabe.Beleg},
                               " AND DocumentNumber = ", db::Wert{Vorgabe.Belegnummer}});
  const db::Recordset bestellung =
      Abfragen({"SELECT Positions FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{Vorgabe.Bestellnummer}});
  bool vollstaendig = rs.IsOpen() && bestellung.RecordCount() > 0;
  int index = -1;
  for (const Bestellposition &zeile : Positionstext_lesen(bestellung.Text(QStringLiteral("Positions")))) {
    ++index;
    const Artikelsuche suche = Artikel_beschaffen(zeile);
    vollstaendig &= !suche.Gescheitert;
    if (suche.Artikel.RecordCount() < 1) continue;
    Rabatt = zeile.Rabatt;
    const Position p = Position_ermitteln(Vorgabe, index, zeile, suche.Artikel);
    vollstaendig &= p.Preise.Gefunden;
    rs.AddNew();
    Bezeichnung_eintragen(rs, Vorgabe, p);
    Menge_eintragen(rs, Vorgabe, p.Menge);
    Preise_eintragen(rs, p);
    rs.Update();
  }
  return (!rs.HasPendingChanges() || rs.UpdateBatch()) && vollstaendig;
}

}  // namespace marklink
