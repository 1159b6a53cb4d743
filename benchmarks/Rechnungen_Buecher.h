// The books for measuring invoices: stock, customers, staged orders, and many invoices of before.
#pragma once

#include <QString>

namespace marklink::messung {

inline constexpr int ARTIKEL = 2000;
inline constexpr int KUNDEN = 1000;
inline constexpr const char *HEUTE = "2024-06-15 00:00:00";
inline constexpr const char *JETZT = "2024-06-15 10:30:00";

/// A client of that type with `Bestellungen` staged orders of three lines each, and `Altbestand` invoices in
/// the books already, with three positions, three reservations and an open item each. `Ordner` takes
/// "buecher.mdb", and for type 0 "buecher.afk".
bool Buecher_anlegen(const QString &Ordner, int Typ, int Bestellungen, int Altbestand);
/// The program context for the books in that folder.
void Mandant_waehlen(const QString &Ordner, int Typ);
/// Rows of the tables that an invoice writes which stand in one client's books and not, to the byte, in the
/// other's; -1 when something failed.
int Abweichungen_zaehlen(const QString &Ordner, const QString &Anderer);

}  // namespace marklink::messung
