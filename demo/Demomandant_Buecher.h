// What the demo client's books hold beside the shop's assortment: articles, customers and documents that
// reach every rule for prices, stock and open items.
#pragma once

#include "Demomandant.h"

namespace marklink::demo {

/// Articles that only the host sells: parts lists, services, scales, special prices past, present and to
/// come, a variant, an article nobody can take from stock. With their stock and prices, group prices
/// included.
std::vector<Tabellenzeilen> Hausartikel(const Demodaten &D, const Mandantenvorgaben &V);

/// The shop's regular customers and some that only the host knows, their groups, price lists, payment and
/// shipping.
std::vector<Tabellenzeilen> Kunden_der_Buecher(const Demodaten &D, const Mandantenvorgaben &V);

/// Invoices and other documents with payments, credit notes, reminders and open items; contracts with
/// reservations and back orders.
std::vector<Tabellenzeilen> Belege_der_Buecher(const Demodaten &D, const Mandantenvorgaben &V);

/// The part of them that concerns stock (Demomandant_Lagerbelege.cpp).
std::vector<Tabellenzeilen> Lagerbelege(const Demodaten &D, const Mandantenvorgaben &V);

/// A day without a time.
inline QDateTime Buchungstag(const QDate &Tag) { return QDateTime(Tag, QTime(0, 0), Qt::UTC); }

/// Gross and net of one rate, in cents.
inline Cent Netto_aus(Cent Brutto, int Satz) { return teilen_gerundet(Brutto * 100, 100 + Satz); }
inline Cent Brutto_aus(Cent Netto, int Satz) { return teilen_gerundet(Netto * (100 + Satz), 100); }

/// The article that shows the stock rules, with its lots.
inline QString Lagerbeispiel() { return QStringLiteral("WK1010"); }

}  // namespace marklink::demo
