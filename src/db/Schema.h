// The tables of the host's database as data: every table and column that Marklink reads or writes.
// The library itself creates no table; whoever sets up a new client makes the DDL from this description.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace marklink::db {

/// What a column holds. Money is a double, as everywhere in the system.
enum class Spaltentyp {
  Text,        ///< up to `Laenge` characters; the embedded engine keeps longer text whole
  Memo,        ///< text without a limit
  Kurzzahl,    ///< 16-bit integer
  Ganzzahl,    ///< 32-bit integer
  Gleitkomma,  ///< double: amounts, prices, quantities, weights, rates
  Datum,       ///< date and time
  Ja_Nein,     ///< Boolean; true is stored as -1 (type 0) or 1 (type 1)
  Binaer,      ///< pictures and other bytes
  Autowert     ///< 32-bit integer that the engine numbers itself; always the primary key
};

struct Spalte {
  const char *Name;
  Spaltentyp Typ;
  int Laenge = 0;  ///< characters, for Text only
};

struct Tabelle {
  const char *Name;
  std::vector<Spalte> Spalten;
  std::vector<const char *> Schluessel;              ///< primary key columns; empty: none
  std::vector<std::vector<const char *>> Indizes{};  ///< further (non-unique) indexes, a column list each
};

/// All tables, ordered by name. Built once, lives as long as the program.
const std::vector<Tabelle> &Schema();

/// The table of that name (case does not matter), or nullptr.
const Tabelle *Schema_Tabelle(const QString &Name);

}  // namespace marklink::db
