// The columns of the shipment list, and what can be picked in them.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "ui/Tabellenquelle.h"

namespace marklink {

/// The key of the grid's layout.
constexpr const char16_t *Versandliste_Layout = u"Webshop_Versandliste_xtc_easylog";

/// A column of the list; its key is the field of LogisticsEASYLOG.
struct Versandspalte {
  const char *Schluessel;
  const char16_t *Titel;
};
/// All columns in grid order.
const std::vector<Versandspalte> &Versandspalten();
/// Place of a key in Versandspalten(); -1 when there is no such column.
int Versandspalte_finden(const char *Schluessel);

/// The columns as the grid shows them, with their pick lists from the value workbook (jgVerfahren,
/// jgTeilnahme, jgProdukte and those of the single fields). A column without entries takes any text.
std::vector<Tabellenspalte> Versandtabelle_Spalten();

/// The products of a shipping method for the pick list of POOL_V_PRODUKT_CN.
std::vector<QStringList> Produkte_des_Verfahrens(const QString &Verfahren);

}  // namespace marklink
