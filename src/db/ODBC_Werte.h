// Values to the driver and from it: parameters of one call, cells of the current row.
#pragma once

#include <deque>
#include <vector>

#include "Anweisung.h"
#include "Ergebnis.h"
#include "ODBC_Griffe.h"

namespace marklink::db {

/// The parameters of one statement; must live until it has run. Bound anew for each call: the server keeps
/// the plan by the statement's text, and a text of up to 4000 characters always has the same type.
class Odbc_Parameter {
 public:
  void Anweisungswert(const Anweisung::Stueck &S);
  /// False when the cell is nothing that the column could hold.
  bool Zelle_anfuegen(const Zelle &Z, const Feld *Spalte);
  bool Binden(SQLHSTMT Stmt);
  bool Leer() const { return Alle_.empty(); }

 private:
  struct Einer {
    SQLSMALLINT C = 0, Sql = 0;
    SQLULEN Groesse = 0;
    SQLSMALLINT Stellen = 0;
    QString Text{};
    union {
      qint64 Ganz = 0;
      double Gleit;
      SQL_TIMESTAMP_STRUCT Zeit;
    };
    const char *Bytes = nullptr;
    SQLLEN Laenge = 0;
  };
  Einer &Text(const QString &Wert);
  Einer &Zahl(qint64 Wert);
  Einer &Zahl(double Wert);
  Einer &Anfuegen(SQLSMALLINT C, SQLSMALLINT Sql, SQLULEN Groesse, SQLSMALLINT Stellen, SQLLEN Laenge);
  Einer &Leer_von(Feldart Art);  ///< of the type that such a column takes

  std::deque<Einer> Alle_;  ///< whose places do not change
};

/// Field `Nummer` (0-based) of the row just fetched; false when the driver fails.
bool Odbc_Zelle_holen(SQLHSTMT Stmt, int Nummer, Feldart Art, Speicher &Lager, Zelle &Ziel);

}  // namespace marklink::db
