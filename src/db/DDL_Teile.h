// Private to the making of tables: what both engines' statements share.
#pragma once

#include "Schema.h"

namespace marklink::db {

QString geklammert(const char *Name);
/// Names in brackets, with commas.
QString Namensliste(const std::vector<const char *> &Namen);
bool im_Schluessel(const Tabelle &T, const Spalte &S);
/// The statements for a table with these columns and clauses, and for its indexes.
std::vector<QString> Tabelle_und_Indizes(const Tabelle &T, const QStringList &Spalten);

}  // namespace marklink::db
