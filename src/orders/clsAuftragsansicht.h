// The lower half of the order desk: the current order's positions with the article behind them, and its
// customer.
#pragma once

#include <QTabWidget>

#include "Auftragsansicht.h"

class QLabel;
class QPlainTextEdit;
class QSplitter;
class QTreeWidget;

namespace marklink {

class clsBildfeld;

/// gnTab1 with the tabs "Positionen" and "Kunde".
class clsAuftragsansicht : public QTabWidget {
  Q_OBJECT
 public:
  explicit clsAuftragsansicht(QWidget *Eltern = nullptr);

  void Anzeigen(const Auftragsanzeige &Anzeige);
  void Leeren() { Anzeigen({}); }
  QSplitter *Teiler() const { return Teiler_; }  ///< between positions and article

 private:
  QWidget *Positionen_bauen();
  QWidget *Artikel_bauen();
  QWidget *Kunde_bauen();
  void Artikel_zeigen(const Artikelanzeige &Artikel);
  void Position_gewaehlt();
  void Bild_zeigen();

  std::vector<Positionszeile> Positionen_;
  QSplitter *Teiler_;
  QTreeWidget *lvwPositionen;
  clsBildfeld *picBild;
  QLabel *lbKurztext, *lbGeaendert, *lbVerfuegbar, *lbReserviert;
  QPlainTextEdit *txtRechnungsanschrift, *txtLieferanschrift, *txtZahlungsinformationen, *txtBemerkungen;
};

}  // namespace marklink
