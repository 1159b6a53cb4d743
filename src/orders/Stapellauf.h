// A run over the marked orders, as all commands of the order desk for them have it.
#pragma once

#include <QStringList>
#include <functional>

#include "Auftragsliste.h"
#include "ui/Dialoge.h"

namespace marklink {

struct Stapellauf {
  QStringList Ohne_Auswahl;  ///< the box when no row is marked
  Symbol Bild = Symbol::Stopp;
  std::function<QString(int Zeile)> Ansage;  ///< what the progress window says of a row; none: no word
  std::function<void(int Zeile)> Arbeit;
  bool Immer_laden = false;  ///< load the list again also when the progress window was closed meanwhile
};

/// The lines of the box that no order is marked, ending in what it should have been marked for.
QStringList Ohne_Auswahl(const QString &Zweck);
QStringList Ohne_Auswahl_Belege();

/// Works the marked rows off in list order, with progress, until all are done or gAbbrechen is set; gLaeuft
/// is set meanwhile. Then the list is loaded again.
void Markierte_abarbeiten(Auftragsliste &Liste, const Stapellauf &Lauf);

}  // namespace marklink
