// A statement as it goes to the server, kept by its literals, and what its result is made of.
#pragma once

#include <QHash>
#include <memory>
#include <vector>

#include "Anweisung.h"
#include "Gestalt.h"
#include "ODBC_Katalog.h"

namespace marklink::db {

struct Odbc_Plan {
  QString Sql;             ///< with "?" for the values
  std::vector<int> Werte;  ///< their indexes in Anweisung::Stuecke()
  bool Liest = false;      ///< a SELECT: running it twice does no harm
  Gestalt Form;
  std::vector<std::shared_ptr<const Odbc_Tabelle>> Tabellen;  ///< of `Form`, in its order
  QStringList Verborgene;  ///< key columns that were added behind the select list

  std::shared_ptr<const Spaltensatz> Spalten;  ///< of the last result
  QString Merkmal;                             ///< names and types that `Spalten` was made of
};

class Odbc_Plaene {
 public:
  explicit Odbc_Plaene(std::shared_ptr<Odbc_Katalog> Katalog) : Katalog_(std::move(Katalog)) {}

  /// May ask the catalogue, which uses the statement handle. Nothing when the text is not one statement, or
  /// the catalogue did not answer; `Meldung` tells.
  std::shared_ptr<Odbc_Plan> Planen(Odbc_Griffe &Griffe, const Anweisung &Sql, Odbc_Meldung &Meldung);
  /// The columns of the open result; empty when it has none. Sets `Passt` to false when the tables are not
  /// (any more) what the catalogue told.
  std::shared_ptr<const Spaltensatz> Beschreiben(SQLHSTMT Stmt, Odbc_Plan &P, bool &Passt);
  void vergessen();
  Odbc_Katalog &Katalog() { return *Katalog_; }

 private:
  std::shared_ptr<Odbc_Katalog> Katalog_;
  QHash<QString, std::shared_ptr<Odbc_Plan>> Plaene_;
};

}  // namespace marklink::db
