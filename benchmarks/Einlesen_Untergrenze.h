// The least that staging a reply can cost: the same parse, look-ups, rows and list, by hand on raw
// statements.
#pragma once

#include <string>

namespace marklink::messung {

/// The year that the list shows, as the product's period filter does.
inline constexpr const char *JAHR_VON = "2024-01-01 00:00:00";
inline constexpr const char *JAHR_BIS = "2024-12-31 00:00:00";
inline constexpr const char *VORLAGE = "$Company$Cr$Affix$Cr$Surname $Name$Cr$Street$Cr$Zip $Town$Cr$Country";
inline constexpr const char *HEIMATLAND = "Land 0";

/// Stages the reply into the database, one transaction an order, and reads the list. Gives the rows of the
/// list, -1 when something failed.
int Untergrenze_einlesen(const std::string &Antwortdatei, const std::string &Datenbank);

/// Adds `Anzahl` orders of another year, made from those that are staged, in one transaction.
bool Altbestand_anlegen(const std::string &Datenbank, int Anzahl);
/// Rows that stand in one database and not, to the byte, in the other; -1 when something failed.
int Abweichungen_zaehlen(const std::string &Eine, const std::string &Andere);

}  // namespace marklink::messung
