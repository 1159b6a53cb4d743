// A run over the marked orders.
#include "Stapellauf.h"

#include <QCoreApplication>

#include "host/Kontext.h"
#include "ui/Fortschritt.h"

namespace marklink {

QStringList Ohne_Auswahl(const QString &Zweck) {
  return {QStringLiteral("Es wurden keine Aufträge ausgewählt. "),
          QStringLiteral("Markieren Sie bitte alle Aufträge, ") + Zweck};
}

QStringList Ohne_Auswahl_Belege() {
  return Ohne_Auswahl(QStringLiteral("für die Sie ein Beleg erstellen möchten."));
}

void Markierte_abarbeiten(Auftragsliste &Liste, const Stapellauf &Lauf) {
  const int anzahl = Liste.Auswahl_zaehlen();
  if (anzahl == 0) {
    dialoge().Meldung(QStringLiteral("Hinweis"), Lauf.Ohne_Auswahl, Lauf.Bild);
    return;
  }
  fortschritt().ProgressAnzeigen(QStringLiteral("Vorgang wird bearbeitet. Einen Moment bitte..."), anzahl);
  Kontext.gLaeuft = true;  // the message loop runs between rows: nobody may load the list meanwhile
  int erledigt = 0;
  for (int zeile = 0; zeile < Liste.Zeilenzahl() && !Kontext.gAbbrechen; ++zeile) {
    if (!Liste.Markiert(zeile)) continue;
    if (Lauf.Ansage) fortschritt().Text(Lauf.Ansage(zeile));
    QCoreApplication::processEvents();
    Lauf.Arbeit(zeile);
    fortschritt().Wert(++erledigt);
  }
  const bool offen = fortschritt().Offen();
  fortschritt().Verbergen();
  Kontext.gLaeuft = false;
  if (offen || Lauf.Immer_laden) Liste.Auftragsliste_laden();
}

}  // namespace marklink
