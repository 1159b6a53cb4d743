// Makes the demo shop: a folder with the shop's database and its configure.php, ready for the shop script.
#pragma once

#include <QString>
#include <vector>

#include "Demodaten.h"
#include "Tabellenzeilen.h"

namespace marklink::demo {

/// The administrator who may call the shop script.
struct Shopzugang {
  static QString Benutzer() { return QStringLiteral("chef@demoshop.example"); }
  static QString Passwort() { return QStringLiteral("Feldstecher"); }
};

/// Every row of the demo shop's database.
std::vector<Tabellenzeilen> Shop_Listen(const Demodaten &D);
std::vector<Tabellenzeilen> Shop_Artikel(const Demodaten &D);
std::vector<Tabellenzeilen> Shop_Kunden(const Demodaten &D);
std::vector<Tabellenzeilen> Shop_Bestellungen(const Demodaten &D);

/// The statements that create the shop's tables.
QString Shop_Tabellen();

/// Makes `Ordner` with shop.sqlite and includes/configure.php; a database that is there is replaced as a
/// whole or not at all. When `Skriptordner` is given, the shop script is copied from there to
/// `Ordner`/marklink. Empty on success, else what went wrong (German).
QString Demoshop_anlegen(const QString &Ordner, const QDate &Heute, const QString &Skriptordner = {});

}  // namespace marklink::demo
