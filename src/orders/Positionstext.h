// The staged lines of an order as one text: positions joined by "×", their seven fields by "~". Text fields
// are not escaped: a name that holds one of the two breaks its record, on purpose.
#pragma once

#include <QString>
#include <QStringList>
#include <pugixml.hpp>
#include <vector>

namespace marklink {

struct Bestellposition {
  QString ProductsID;
  double Menge = 0;  ///< pieces
  QString Artikelnummer;
  QString Bezeichnung;
  double Rabatt = 0;       ///< percent
  double Einzelpreis = 0;  ///< net, one piece, options included, before the discount
  QString Optionen;        ///< joined by ", "
};

/// The text of an ORDER_INFO node; numbers with a decimal comma.
QString Positionstext_erzeugen(const pugi::xml_node &OrderInfo);
/// Missing fields stay empty or 0, a field that is no number is 0; an empty text has no positions.
std::vector<Bestellposition> Positionstext_lesen(const QString &Text);
/// The fields of each position as they stand, at least seven; what a broken record has behind them follows.
std::vector<QStringList> Positionstext_teilen(const QString &Text);

}  // namespace marklink
