// The demo client's books: the articles of the demo shop as the merchandise-management system keeps them,
// with groups, variants, prices and stock. They go on top of a new client's reference rows.
#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "Demodaten.h"
#include "Tabellenzeilen.h"

namespace marklink::demo {

/// What the demo rows take from the client's reference rows and settings.
struct Mandantenvorgaben {
  QString Artikelart;                                ///< standard type of articles
  QString Variantenart, Stuecklistenart, Dienstart;  ///< of variants, parts lists, what is not in stock
  QString Steuer_voll, Steuer_ermaessigt;            ///< tax keys of 19 and 7 per cent
  QString Lager = QStringLiteral("1");               ///< storage number that the articles are taken from
  QString Variantenzeichen = QStringLiteral("-");    ///< Program/VariantToken
  QHash<QString, QString> Laender;                   ///< Description by token ("DE")
};
/// From the database `Verbindung` and the settings of the client in the program context.
Mandantenvorgaben Vorgaben_lesen(const QString &Verbindung);

/// All rows, table by table. Articles that only the shop knows are left out.
std::vector<Tabellenzeilen> Demomandant_Zeilen(const Demodaten &D, const Mandantenvorgaben &V);

/// Writes the rows as of the date `Heute` (the shop's has to be the same) to the client's database, a batch a
/// table; rows of the shop's lists (units, groups, statuses) only where they are missing. False when a table
/// could not be written; what was written before stays.
bool Demomandant_schreiben(const QString &Verbindung, const QDate &Heute);

struct Demoeinstellung {
  QString Abschnitt, Schluessel, Wert;
};
/// The demo client's access to the demo shop on that port of this machine.
std::vector<Demoeinstellung> Demomandant_Einstellungen(int Port);

}  // namespace marklink::demo
