// Dialect text to the embedded engine's SQL, token by token.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "Anweisung.h"
#include "Verbindung.h"

namespace marklink::db {

/// A statement for the embedded engine: text with ?1, ?2, ... and the values to bind, in order.
struct Uebersetzung {
  QString Sql;
  std::vector<Anweisung::Stueck> Werte;
  /// For each of `Werte` the index in Anweisung::Stuecke() that it was taken from, -1 for one of the text's
  /// own.
  std::vector<int> Herkunft;
  /// True when `Sql` suits every statement of the same literals that differs in plain values only (see
  /// Wert_schlicht); the others shape it. False when it suits these values only.
  bool Wiederverwendbar = true;
  /// The table of a plain SELECT on one table (no join, no sums), and where in `Sql` its select list ends.
  QString Einzeltabelle;
  qsizetype Listenende = -1;
  bool Alle_Spalten = false;   ///< its select list is "*"
  bool Ganze_Tabelle = false;  ///< SELECT * FROM Einzeltabelle and nothing else
};

/// Nothing when the text cannot be one statement: a ";" with anything behind it, a comment sign, an open
/// quote, an open bracket.
std::optional<Uebersetzung> Fuer_SQLite_uebersetzen(const Anweisung &Sql, Dialekt D);

}  // namespace marklink::db
