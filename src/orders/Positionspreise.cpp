// The unit prices and totals of a position.
#include "Positionspreise.h"

#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "rules/Berechnung.h"
#include "rules/Preisfindung.h"

namespace marklink {
namespace {

double Preis_runden(double Preis) { return Runden(Preis, Kontext.gPreisNachkommastellen); }

double Rabattiert(double Preis, double Rabatt) { return Preis_runden(Preis - Rabattbetrag(Rabatt, Preis)); }

void Preis_der_Buecher(Positionspreise &P, const Preisanfrage &A) {
  Preis preis;
  P.Gefunden = Preis_ermitteln(preis, A.Artikelnummer, A.Kundennummer, A.Menge, Stammdaten::Lesen,
                               Kontext.gArticlePriceReadout) != Preisquelle::Keine;
  P.Netto = Zahl_durch_Bild(Preis_runden(preis.Netto), Kontext.gPriceFormat);
  P.Steuer = Zahl_durch_Bild(Preis_runden(preis.Steuer), Kontext.gPriceFormat);
  P.Brutto = Zahl_durch_Bild(Preis_runden(preis.Brutto), Kontext.gPriceFormat);
}

void Preis_der_Bestellung(Positionspreise &P, const Preisanfrage &A) {
  P.Netto = Preis_runden(A.Einzelpreis);
  P.Steuer = Steuer_aus_Netto(P.Netto, A.Steuerschluessel);
  P.Brutto = Preis_runden(Netto_zu_Brutto(P.Netto, A.Steuerschluessel));
}

}  // namespace

Positionspreise Positionspreise_ermitteln(const Preisanfrage &A) {
  Positionspreise p;
  if (A.Preisherkunft == 0) Preis_der_Buecher(p, A);
  if (A.Preisherkunft == 1) Preis_der_Bestellung(p, A);
  p.Netto_rabattiert = Rabattiert(p.Netto, A.Rabatt);
  p.Brutto_rabattiert = Rabattiert(p.Brutto, A.Rabatt);
  if (A.Taxation == 1) {
    p.Gesamt_Brutto = p.Brutto_rabattiert * A.Menge;
    p.Gesamt_Netto = Runden(Brutto_zu_Netto(p.Gesamt_Brutto, A.Steuerschluessel), 2);
    p.Gesamt_Steuer = Steuer_aus_Brutto(p.Gesamt_Brutto, A.Steuerschluessel);
  } else if (A.Taxation == 0) {
    p.Gesamt_Netto = p.Netto_rabattiert * A.Menge;
    p.Gesamt_Brutto = Runden(Netto_zu_Brutto(p.Gesamt_Netto, A.Steuerschluessel), 2);
    p.Gesamt_Steuer = Steuer_aus_Netto(p.Gesamt_Netto, A.Steuerschluessel);
  }
  return p;
}

}  // namespace marklink
