// How much of an order's line a document takes, what stays in back order, and from which lots it comes.
#pragma once

#include <QString>

namespace marklink {

struct Bestandsanfrage {
  QString Beleg, Belegnummer;
  QString Artikelnummer;
  QString Bezeichnung;  ///< of the order's line, for the question
  int Index = 0;        ///< place of the line in the order, from 0
  double Menge = 0;     ///< ordered
  bool Lager_pruefen = false;
};

struct Positionsmenge {
  double Geliefert = 0;   ///< the position's quantity
  double Rueckstand = 0;  ///< left in back order
  QString Zuteilung{};    ///< lots, see rules/Zuteilungsliste.h; empty where no stock is touched
};

/// With too little stock the setting Program/BackOrderAutoSave or the user decides: a contract keeps the
/// ordered quantity and says what is in back order, an invoice takes what there is. Stock is only touched for
/// a quantity other than 0 of an article whose type keeps stock.
Positionsmenge Positionsmenge_ermitteln(const Bestandsanfrage &Anfrage);

}  // namespace marklink
