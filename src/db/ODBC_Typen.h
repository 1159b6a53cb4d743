// The server's column types: what they hold, and how a value that was read is compared with its column.
#pragma once

#include "Ergebnis.h"
#include "ODBC_Griffe.h"

namespace marklink::db {

/// What a column holds whose ODBC type is `Typ`.
Feldart Feldart_aus_Odbc(SQLSMALLINT Typ, int &Bits);

/// A column as the catalogue tells of it.
struct Odbc_Spalte {
  QString Name;
  SQLSMALLINT Typ = 0;
  QString Typname;               ///< "nvarchar", "int identity", "decimal() identity", ...
  int Groesse = 0, Stellen = 0;  ///< digits of a decimal number; characters of a text
  QString Vorgabe;               ///< the default's text
};

/// All of the field but where it stands.
Feld Feld_aus_Katalog(const Odbc_Spalte &S);

}  // namespace marklink::db
