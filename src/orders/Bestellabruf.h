// Fetching orders from the shop and staging them in WebshopOrdersXTC.
#pragma once

#include <QString>
#include <pugixml.hpp>

#include "Auftragsliste.h"

namespace marklink {

/// Fetches orders ("" or "&order_status='1','3'"), stages them and shows the stated box: the one of success
/// for every reply, also for one that refuses the login, on purpose. True when an order list came and, unless
/// it was empty, an order of it was saved.
bool Bestellungen_abrufen(const QString &Parameter, Auftragsliste &Liste);

/// "&order_status=" and the checked statuses; empty when none is checked.
QString Bestellparameter(const Pruefliste &lvwAuftragsstatus);

/// Stages every order of a reply file, each saved before the next is read; then reloads the list and writes
/// Marklink/LastRetrieve. An order that is staged already is updated in place and its mark cleared.
/// False when the reply held no order list, or none of its orders could be saved.
bool Bestellungen_einlesen(const QString &Antwortdatei, Auftragsliste &Liste);

/// Empties the staging table. The caller asks first. False when nothing could be deleted.
bool Bestellungen_loeschen();

/// TOTAL_VALUE of the total with that class; 0 without one.
double Bestellsumme_ermitteln(const pugi::xml_node &OrderInfo, const char *Klasse);

QString Zahlungsart_aus_Token(const QString &Token);  ///< Description; empty when unknown

}  // namespace marklink
