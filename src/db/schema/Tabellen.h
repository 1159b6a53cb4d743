// Private to the schema: the areas of the description, and short words for the kinds of columns.
#pragma once

#include <vector>

#include "../Schema.h"

namespace marklink::db::schema {

inline Spalte Text(const char *Name) { return {Name, Spaltentyp::Text, 255}; }
/// Numbers of documents, articles and customers, which are text throughout.
inline Spalte Nummer(const char *Name) { return {Name, Spaltentyp::Text, 100}; }
/// Tokens, tax keys, document words and the shop's ids.
inline Spalte Kurztext(const char *Name) { return {Name, Spaltentyp::Text, 50}; }
inline Spalte Memo(const char *Name) { return {Name, Spaltentyp::Memo}; }
inline Spalte Kurzzahl(const char *Name) { return {Name, Spaltentyp::Kurzzahl}; }
inline Spalte Ganzzahl(const char *Name) { return {Name, Spaltentyp::Ganzzahl}; }
inline Spalte Gleitkomma(const char *Name) { return {Name, Spaltentyp::Gleitkomma}; }
inline Spalte Datum(const char *Name) { return {Name, Spaltentyp::Datum}; }
inline Spalte Ja_Nein(const char *Name) { return {Name, Spaltentyp::Ja_Nein}; }
inline Spalte Binaer(const char *Name) { return {Name, Spaltentyp::Binaer}; }
inline Spalte Autowert(const char *Name) { return {Name, Spaltentyp::Autowert}; }

/// Columns of a staged order, which a shipment repeats.
std::vector<Spalte> Bestellspalten();

// A table has a unique key only where two rows of the same key would be wrong: lots may lack a number, and
// the lists that an editor rewrites as a whole may hold a name twice for a while.
std::vector<Tabelle> Artikeltabellen();
std::vector<Tabelle> Belegtabellen();
std::vector<Tabelle> Bestelltabellen();
std::vector<Tabelle> Kontakttabellen();
std::vector<Tabelle> Lagertabellen();
std::vector<Tabelle> Stammdatentabellen();
std::vector<Tabelle> Versandtabellen();
std::vector<Tabelle> Webshoptabellen();
std::vector<Tabelle> Zahlungstabellen();

}  // namespace marklink::db::schema
