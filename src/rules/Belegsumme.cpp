// The figures of a document's head.
#include "Belegsumme.h"

#include <cmath>

#include "Berechnung.h"
#include "Rabattliste.h"
#include "Versandkosten.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

/// Beyond this a sum of cents is none any more.
constexpr double SUMMENGRENZE = 7.9e26;

struct Positionsfelder {
  QString Gesamtpreis, Einzelpreis;
};

double Betragsoption(const char *Schluessel) {
  return Zahl_deutsch(Programmoption(Schluessel)).value_or(0.0);
}

/// Adds the positions of one tax key; gives their sum.
double Positionen_summieren(Belegsumme &S, db::Recordset &Positionen, const QString &Steuerschluessel,
                            const Positionsfelder &Felder) {
  double summe = 0;
  for (Positionen.MoveFirst(); !Positionen.IsEOF(); Positionen.MoveNext()) {
    if (Positionen.Text(QStringLiteral("VatCode")) != Steuerschluessel) continue;
    // Rounded again so that many cents add up to the very sum, not to one beside it.
    summe = Runden(summe + Runden(Positionen.Number(Felder.Gesamtpreis), 2), 2);
    const double wert =
        Runden(Positionen.Number(Felder.Einzelpreis) * Positionen.Number(QStringLiteral("Quantity")), 2);
    S.Positionsrabatt += Rabattbetrag(Positionen.Number(QStringLiteral("Rebate")), wert);
  }
  return summe;
}

/// Positions and discount list of one tax key.
void Steuerschluessel_summieren(Belegsumme &S, const Belegangaben &B, db::Recordset &Positionen,
                                const QString &Steuerschluessel) {
  const bool brutto = B.Taxation == 1, netto = B.Taxation == 0;
  double summe = 0;
  if (brutto || netto)
    summe = Positionen_summieren(
        S, Positionen, Steuerschluessel,
        brutto ? Positionsfelder{QStringLiteral("AllroundpriceGross"), QStringLiteral("UnitpriceGross")}
               : Positionsfelder{QStringLiteral("AllroundpriceNet"), QStringLiteral("UnitpriceNet")});
  const Rabattauswertung rabatt = Rabattliste_auswerten(B.Rabattliste, summe, Steuerschluessel);
  const double abzug = rabatt.Prozentbetrag + rabatt.Gebunden;
  // The noise of a difference must not decide a half cent.
  const double rest = Runden(summe - abzug, 8);
  if (brutto) {
    S.Steuer += Runden(Steuer_aus_Brutto(rest, Steuerschluessel), 2);
    S.Brutto += rest;
  } else if (netto) {
    S.Steuer += Runden(Steuer_aus_Netto(rest, Steuerschluessel), 2);
    S.Netto += rest;
  }
  S.Zwischensumme += summe;
  S.Belegrabatt += abzug;
  S.Freibetrag = rabatt.Freibetrag;  // the same for every tax key, so it counts once
}

bool Versand_zu_berechnen(const Belegangaben &B, double Brutto) {
  const double brutto = Runden(Brutto, 6);  // the limit itself is not missed by the noise of a sum
  if (B.Belegwort == QLatin1String("Retoure"))
    return Programmoption("RefundForwarding") == QLatin1String("1") &&
           Betragsoption("RefundForwardingAmount") <= brutto;
  Versandfreigrenze_ermitteln(B.Land);
  return Programmoption("FreeShipping") != QLatin1String("1") || brutto < Kontext.gFreeShippingAmount;
}

void Versand_hinzurechnen(Belegsumme &S, const Belegangaben &B) {
  if (B.Versandart.isEmpty() || !Versand_zu_berechnen(B, S.Brutto)) return;
  double kosten = 0;
  QString schluessel;
  Versandkosten_ermitteln(kosten, schluessel, B.Versandart, B.Versandzone, B.Gewicht);
  schluessel = Steuerfeld_lesen(schluessel, Steuerfeld_Kunde(B.TaxCalculation)).toString();
  const double brutto = Runden(Netto_zu_Brutto(kosten, schluessel), 2);
  const bool brutto_zeigen =
      B.Taxation == 1 && Programmoption("ForwardingChargesDisplay") != QLatin1String("1");
  S.Versandkosten = brutto_zeigen ? brutto : kosten;
  S.Steuer += Runden(Steuer_aus_Netto(kosten, schluessel), 2);
  S.Netto += Runden(kosten, 2);
  S.Brutto += brutto;
  S.Versand_berechnet = true;
}

/// Cuts every amount to two decimals. False when one is beyond all bounds.
bool Betraege_abschliessen(Belegsumme &S) {
  for (double *betrag : {&S.Netto, &S.Steuer, &S.Brutto, &S.Positionsrabatt, &S.Belegrabatt, &S.Freibetrag,
                         &S.Zwischensumme, &S.Versandkosten}) {
    if (!(std::fabs(*betrag) < SUMMENGRENZE)) return false;
    *betrag = Zahl_durch_Bild(*betrag, QStringLiteral("standard"));
  }
  return true;
}

}  // namespace

bool Beleg_summieren(Belegsumme &Summe, const Belegangaben &Beleg) {
  Belegsumme s;
  db::Recordset positionen = Abfragen({"SELECT * FROM Positions WHERE Document = ", db::Wert{Beleg.Belegwort},
                                       " AND DocumentNumber = ", db::Wert{Beleg.Belegnummer}});
  // An empty key among the others is a key too; an empty list holds none.
  const QString liste = Steuerschluessel_Liste();
  if (!positionen.IsOpen() || liste.isNull()) return false;
  const QStringList alle = liste.isEmpty() ? QStringList() : liste.split(u';');
  for (const QString &schluessel : alle) Steuerschluessel_summieren(s, Beleg, positionen, schluessel);
  if (Beleg.Taxation == 0) s.Brutto = s.Netto + s.Steuer;
  if (Beleg.Taxation == 1) s.Netto = s.Brutto - s.Steuer;
  s.Belegrabatt += s.Freibetrag;
  Versand_hinzurechnen(s, Beleg);
  if (!Betraege_abschliessen(s)) {
    Ablauf_melden(QStringLiteral("Beleg_summieren"),
                  Beleg.Belegwort + u' ' + Beleg.Belegnummer + QStringLiteral(": amount out of bounds"));
    return false;
  }
  Summe = s;
  return true;
}

double Zahlbetrag_runden(double Betrag) {
  return Programmoption("RoundingSFr") == QLatin1String("1") ? Runden_5_Rappen(Betrag) : Runden(Betrag, 2);
}

double Endbetrag_ermitteln(const Belegsumme &Summe) {
  return Zahlbetrag_runden(Summe.Brutto - Summe.Freibetrag);
}

}  // namespace marklink
