// The port for help topics, by their numbers.
#pragma once

namespace marklink {

using Hilfeanzeige = void (*)(int Thema);

/// Opens the topic; without a display installed nothing happens.
void Hilfe_zeigen(int Thema);
void Hilfe_setzen(Hilfeanzeige Neu);  ///< nullptr: none

/// The topics of the screens; their pages stand in Hilfethemen.cpp. 1151 is the web article's.
namespace Hilfethema {
enum : int {
  Auftragsverwaltung = 1150,
  Einstellungen = 1152,
  Bestellstatus,
  Bild,
  Tabelle_formatieren,
  Fortschritt,
  Verbindung,
  Liste_Lieferzeiten = 1160,
  Liste_Auftragsstati,
  Liste_Sprachen,
  Liste_Kundengruppen,
  Liste_Artikelvorlagen_Details,
  Liste_Artikelvorlagen_Optionen,
  Liste_Einheiten,
  Versandliste = 1170,
  Versandeinstellungen,
  Druckvorschau,
};
}

}  // namespace marklink
