// The figures of a document's head: its positions by tax key, discounts, shipping.
//
// Each position counts with its total rounded to two digits, the tax of each tax key is rounded to two digits
// after discounts. The tax keys are those of Taxes: a position under any other key is left out of all
// figures, on purpose.
#pragma once

#include <QString>

namespace marklink {

struct Belegangaben {
  QString Belegwort{}, Belegnummer{};  ///< as in Positions: "Auftrag", "Rechnung", "Retoure" ...
  int Taxation = 0;                    ///< 0: net document, 1: gross document; any other adds nothing
  QString Versandart{};                ///< empty: no shipping at all
  QString Land{};                      ///< Description, for the free-shipping limit
  QString Versandzone{};               ///< the country as the zones of the shipping method name it
  double Gewicht = 0;                  ///< gross, kg
  QString Rabattliste{};               ///< see Rabattliste.h
  int TaxCalculation = 0;              ///< of the customer, see Steuerfeld_Kunde()
};

/// Amounts with two decimals.
struct Belegsumme {
  double Netto = 0;
  double Steuer = 0;
  double Brutto = 0;
  double Positionsrabatt = 0;  ///< what the positions' own rebates come to
  double Belegrabatt = 0;      ///< what the discount list comes to, Freibetrag included
  double Freibetrag = 0;       ///< part of Belegrabatt that no tax key bears; not yet off Brutto
  double Zwischensumme = 0;    ///< positions before the discount list, without shipping
  double Versandkosten = 0;    ///< as shown on the head: net or gross
  bool Versand_berechnet = false;
};

/// The user may be asked for the shipping costs, see Versandkosten_Staffel(). False, and `Summe` as it was,
/// when positions or tax keys cannot be read, or an amount is beyond all bounds (7.9e26).
bool Beleg_summieren(Belegsumme &Summe, const Belegangaben &Beleg);

/// An amount to be paid: to a twentieth with the setting Program/RoundingSFr, else two digits.
double Zahlbetrag_runden(double Betrag);

/// What is to be paid: Brutto less Freibetrag, rounded so.
double Endbetrag_ermitteln(const Belegsumme &Summe);

}  // namespace marklink
