// Taxes and rounding: the commercial arithmetic that every document and every price goes through.
//
// Money is a double and is rounded by Runden() alone: two digits for sums, Kontext.gPreisNachkommastellen for
// unit prices. Nothing here rounds unless its comment says so, and nothing is kept between calls: each
// function reads the books anew.
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace marklink {

/// Commercial rounding: floor(value * 10^digits + 0.5) / 10^digits on the decimal value (about 15 significant
/// digits), so that the noise of a double never changes a half cent. Halves go up, also below zero:
/// 2.675 -> 2.68, -1.005 -> -1.00. A value beyond the range of a decimal (7.9e28) or no number is given back
/// as it is.
double Runden(double Wert, int Stellen);

/// To a twentieth, halves up: floor(value * 20 + 0.5) / 20.
double Runden_5_Rappen(double Wert);

/// `Prozent` per cent of `Betrag`.
double Rabattbetrag(double Prozent, double Betrag);

// --- between net and gross; an unknown tax key counts as 0 per cent ---------------------------------------

double Brutto_zu_Netto(double Brutto, const QString &Steuerschluessel);
double Netto_zu_Brutto(double Netto, const QString &Steuerschluessel);
double Steuer_aus_Brutto(double Brutto, const QString &Steuerschluessel);
double Steuer_aus_Netto(double Netto, const QString &Steuerschluessel);

// --- tax keys ---------------------------------------------------------------------------------------------

/// A field of the tax key's row. Without a row 0 for "Percentage" and the empty text for any other field.
QVariant Steuerfeld_lesen(const QString &Steuerschluessel, const QString &Feld);
/// The field of Taxes that turns an article's tax key into that of a customer, by Contacts.TaxCalculation:
/// 0 domestic, 1 EU with VAT id, 2 EU without, 3 outside the EU. Empty for any other value.
QString Steuerfeld_Kunde(int TaxCalculation);
/// All tax keys in table order, each once, joined by ";". A null text when they cannot be read.
QString Steuerschluessel_Liste();
/// The first tax key of that rate; empty when there is none.
QString Steuerschluessel_aus_Prozent(double Prozent);

// --- documents --------------------------------------------------------------------------------------------

/// A document's Taxation, by Contacts.TaxCalculation of its customer: 0 (net) for 1 and 3, whatever is set;
/// for any other the setting Program/Taxation as it stands: 0 net, 1 gross. A setting that is no number is 0.
int Besteuerung_ermitteln(int TaxCalculation);

/// Due date: `Datum` plus the days of the payment terms. Unknown terms, or terms without days: no date.
QDate Zahlungsziel_ermitteln(const QString &Zahlungsbedingung, const QDate &Datum);

}  // namespace marklink
