// Orders as text for people and as JSON for programs.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "orders/Auftragsansicht.h"
#include "orders/Auftragsliste.h"

namespace marklink {

/// All rows as a table with German dates and amounts, and how many they are.
QString Bestelltabelle(const Auftragsliste &Liste);
/// The row with every column of the grid by its key; numbers as numbers, dates as ISO text, no value as null.
QJsonObject Bestellung_als_Json(const Auftragsliste &Liste, int Zeile);
QJsonArray Bestellungen_als_Json(const Auftragsliste &Liste);

/// The current row with positions, addresses, payment and remark as the order desk shows them.
QString Bestellung_als_Text(const Auftragsliste &Liste, const Auftragsanzeige &Anzeige);
/// The same as JSON: the columns of the grid and "Positions".
QJsonObject Bestellanzeige_als_Json(const Auftragsliste &Liste);

}  // namespace marklink
