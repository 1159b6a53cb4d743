// Stock: which lots serve a document's line, reservations of them, booking them out, back orders, and the
// stock totals of the articles.
//
// A lot is one row of Warehouse, known by its StockingNumber. What a line takes from which lots stands in
// Positions.StorageNumber as one text, the allocation list (Zuteilungsliste.h). Stock rows are read, changed
// in memory and written without a lock, each lot by itself. A lot that another workstation changed at that
// very moment is read and booked once more; one that cannot be booked is left out, together with what depends
// on it, and the result tells. No step takes an earlier one back.
#pragma once

#include <QString>

namespace marklink {

/// The storage that the article is taken from: the employee's own where Program/StorageAllocation says so,
/// else the article's. Empty for an unknown article.
QString Artikel_Lager(const QString &Artikel);

/// What is freely available of the article in all storages whose number begins with `Lager`.
double Lager_Verfuegbar(const QString &Artikel, const QString &Lager);

/// What is reserved for that line of a document already.
double Reserviert_fuer_Position(const QString &Beleg, const QString &Belegnummer, const QString &Artikel,
                                const QString &Position);

/// What a transport order brings for that line of a document; 0 when there is none.
double Transportauftrag_Menge(const QString &Beleg, const QString &Belegnummer, const QString &Artikel,
                              const QString &Position, const QString &Transportnummer);

/// The allocation list for that quantity, by the article's unloading policy. An empty storage means
/// Artikel_Lager(). Where stock does not reach, the list holds what there is; nothing else tells of the gap.
/// A quantity of 0 or below gets an empty list.
QString Bestand_zuteilen(const QString &Artikel, double Menge, const QString &Lager);

/// Appends lots to an allocation list, in the order of `Strategie` (Articles.UnloadingPolicy): 0 oldest,
/// 1 newest, 2 dearest, 3 cheapest, 4 smallest remainder first; any other value appends nothing.
void Lager_Aufteilung(QString &Zuteilung, const QString &Artikel, const QString &Lager, double Menge,
                      int Strategie);

/// `Modus` of Reservierungen_erzeugen().
enum Reservierungsmodus { Reservierungen_aufloesen = 0, Reservierungen_anlegen = 1 };

/// Reserves what the document's lines were allocated, or gives all its reservations back to stock. True when
/// everything was reserved (given back) and stored. A lot that cannot be read or booked, or is gone from
/// stock, is left out, without a reservation. A reservation whose quantity could not be given back stays; one
/// whose lot is gone is given up with a message.
bool Reservierungen_erzeugen(const QString &Beleg, const QString &Belegnummer, const QString &Mitarbeiter,
                             int Modus, bool Reservierungsart);

/// Takes the document's reservations out of stock and marks its lines and its head as dispatched; a line of
/// which a lot could not be booked, and the head when none could, stay unmarked. The reservations stay in the
/// books; a second call takes them out once more.
void Reservierungen_buchen(const QString &Beleg, const QString &Belegnummer, const QString &Mitarbeiter);

/// Marks a document's head as dispatched today.
void Kopf_Versand_setzen(const QString &Tabelle, const QString &Schluesselfeld, const QString &Belegnummer);

/// Writes the document's back orders anew: one row for each line that has any.
void Rueckstaende_erzeugen(const QString &Beleg, const QString &Belegnummer, const QString &Kundennummer);

/// Sets the totals of the document's articles to the sums of their lots: of all, or of exactly one storage.
void Artikelbestand_aktualisieren(const QString &Beleg, const QString &Belegnummer,
                                  const QString &Lager = QString());

}  // namespace marklink
