// Shipping: weights of a document, the free-shipping limit, costs of a shipping method.
//
// Weights are kilograms, costs are net amounts as stored, nothing is rounded here. A missing row is not an
// error: outputs stay as they were.
#pragma once

#include <QString>

namespace marklink {

/// Adds `WeightNet` and `WeightGross` times the quantity of every position of the document to the two sums.
void Gewicht_summieren(double &Netto, double &Brutto, const QString &Beleg, const QString &Nummer);

/// Description of the shipping method with the shop's code; empty when unknown.
QString Versandart_aus_Token(const QString &Token);

/// Sets Kontext.gFreeShippingAmount by the settings; `Land` is a country's Description. Leaves it as the last
/// call left it while free shipping is off, or is of a type other than 0 (one limit) and 1 (by country).
void Versandfreigrenze_ermitteln(const QString &Land);

/// Costs and tax key of a shipping method for a parcel of that weight; `Land` as the zones of the method's
/// scale name it.
void Versandkosten_ermitteln(double &Kosten, QString &Steuerschluessel, const QString &Versandart,
                             const QString &Land, double Gewicht);

/// Looks the costs up in a scale "DE;AT~5:4,90;10:6,90~1|CH~5:14,90~1": zones of countries, steps "up to this
/// weight:costs" and tax key. A country in no zone takes the last one, intended. Where no step is heavy
/// enough the user is asked for the costs; no answer is 0. A step of 999 or more is found by exactly its
/// weight only. A zone without any steps, and a step without costs, cost 0: nobody is asked.
void Versandkosten_Staffel(double &Kosten, QString &Steuerschluessel, const QString &Staffel,
                           const QString &Land, double Gewicht);

/// The method's flat costs, tax key and greatest weight, whether it has a scale or not.
void Versandkosten_lesen(double &Kosten, QString &Steuerschluessel, double &Gewicht,
                         const QString &Versandart);

}  // namespace marklink
