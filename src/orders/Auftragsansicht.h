// The view of one staged order: positions, addresses, payment text, remark, and the host's data of an
// article.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "Auftragsliste.h"
#include "ui/Auftragsanschriften.h"

namespace marklink {

/// A row of the position list, ready to show.
struct Positionszeile {
  QString ProductsID, Artikelnummer, Menge, Bezeichnung, Optionen, Einzelpreis, Rabatt;
};

struct Artikelanzeige {
  bool Gefunden = false;
  QString ShortText, DateUpdate;
  QString Disposable, Unsociable;  ///< quantity and unit; empty when the article is unknown
  QString Bild;                    ///< path of a picture file
};

struct Auftragsanzeige {
  std::vector<Positionszeile> Positionen;
  Auftragsanschriften Anschriften;
  QString Zahlungsinformationen, Bemerkungen;
  Artikelanzeige Artikel;  ///< of the first position
};

std::vector<Positionszeile> Auftrag_Positionen_anzeigen(const QString &Bestellnummer);
Artikelanzeige Artikel_anzeigen(const QString &ShopID, const QString &Variantentext);
/// The current row's order; nothing while a batch runs, without rows, or without an order number.
std::optional<Auftragsanzeige> Auftrag_anzeigen(const Auftragsliste &Liste);

}  // namespace marklink
