// What the server's catalogue tells of its tables; asked once for each table.
#pragma once

#include <QHash>
#include <QStringList>
#include <memory>
#include <vector>

#include "Ergebnis.h"
#include "ODBC_Griffe.h"

namespace marklink::db {

struct Odbc_Tabelle {
  std::vector<Feld> Spalten;  ///< in the table's order, of table 0; empty: there is no such table
  QStringList Schluessel;     ///< primary key, else columns that are unique and never null
  QStringList Indexanfaenge;
  bool Vollstaendig = false;  ///< the server told all of it

  const Feld *finden(const QString &Name) const;
};

/// Shared by all connections to one catalogue, as long as there is one.
class Odbc_Katalog {
 public:
  /// The table of that name; asks the server when it is not known yet, which uses the statement handle.
  /// Nothing when the connection, the time-out or the transaction was lost over it; `Meldung` tells.
  std::shared_ptr<const Odbc_Tabelle> Tabelle(Odbc_Griffe &Griffe, const QString &Name,
                                              Odbc_Meldung &Meldung);
  /// After a failure that may come from another schema than the one known.
  void vergessen() { Tabellen_.clear(); }

 private:
  QHash<QString, std::shared_ptr<const Odbc_Tabelle>> Tabellen_;
};

/// The columns of a whole table, without a round trip when it is known; nothing when there is no such table.
std::shared_ptr<const Spaltensatz> Odbc_Tabelle_beschreiben(const Odbc_Tabelle &Tabelle, const QString &Name);

/// Lets the columns of one table find their key and their indexes: `Feld::Tabelle` and `Feld::Ursprung` are
/// set.
void Odbc_Schluessel_zuordnen(Spaltensatz &Satz, std::size_t Nummer, const Odbc_Tabelle &Tabelle);

}  // namespace marklink::db
