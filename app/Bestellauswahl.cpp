// Choosing orders on the command line.
#include "Bestellauswahl.h"

#include "Ausgabe.h"
#include "host/Kontext.h"

namespace marklink {

bool Bestellauswahl_gueltig(const Aufruf &A) {
  if (A.Gegeben("erneut") && !A.Gegeben("alle")) {
    Fehler_melden(QStringLiteral("'--erneut' gilt nur mit '--alle'."));
    return false;
  }
  if (A.Gegeben("alle") == A.Argumente.isEmpty()) return true;
  Fehler_melden(A.Argumente.isEmpty()
                    ? QStringLiteral("Es fehlen Bestellnummern; '--alle' nimmt alle.")
                    : QStringLiteral("Entweder Bestellnummern oder '--alle', nicht beides."));
  return false;
}

void Alle_Bestellungen_laden(Auftragsliste &Liste) {
  Kontext.gViewablePeriod = 0;
  Liste.Auftragsliste_laden();
}

int Bestellung_suchen(const Auftragsliste &Liste, const QString &Nummer) {
  for (int i = 0; i < Liste.Zeilenzahl(); ++i)
    if (Liste.Zelle(i, "OrderID").toString() == Nummer) return i;
  return -1;
}

void Unbekannte_Bestellung_melden(const QString &Nummer) {
  Fehler_melden(QStringLiteral("Die Bestellung '%1' ist nicht vorhanden.").arg(Nummer));
}

Bestellauswahl Bestellungen_markieren(const Aufruf &A, Auftragsliste &Liste,
                                      const std::function<std::optional<bool>(const QString &)> &Fertig) {
  Bestellauswahl auswahl;
  Alle_Bestellungen_laden(Liste);
  Liste.Markierung_aufheben();
  for (const QString &nummer : A.Argumente) {
    const int zeile = Bestellung_suchen(Liste, nummer);
    Liste.Markieren(zeile, true);
    if (zeile >= 0) continue;
    auswahl.Alle_bekannt = false;
    Unbekannte_Bestellung_melden(nummer);
  }
  for (int i = 0; A.Gegeben("alle") && i < Liste.Zeilenzahl(); ++i) {
    const QString nummer = Liste.Zelle(i, "OrderID").toString();
    const std::optional<bool> fertig = Fertig && !A.Gegeben("erneut") ? Fertig(nummer) : false;
    Liste.Markieren(i, fertig == false);
    if (fertig) continue;
    auswahl.Alle_bekannt = false;
    Fehler_melden(QStringLiteral("Ob die Bestellung '%1' schon fertig ist, ist nicht zu lesen.").arg(nummer));
  }
  auswahl.Markiert = Liste.Auswahl_zaehlen();
  return auswahl;
}

}  // namespace marklink
