// marklink kunden: the customers of orders, from the shop into the books.
#include "Ausgabe.h"
#include "Bestellauswahl.h"
#include "Kundenhindernis.h"
#include "Sitzung.h"
#include "orders/Kundenuebernahme.h"

namespace marklink {
namespace {

QString Ergebniszeile(const QString &Bestellnummer, const Kundenuebernahme &Kunde) {
  const QString ergebnis = Kunde.Stand == Kundenuebernahme::Ausgang::Gespeichert
                               ? Kunde.Kundennummer + u' ' + Kunde.Suchname
                               : QStringLiteral("kein Kunde, ") + Kundenhindernis(Kunde);
  return Anzeigbar(Bestellnummer + QStringLiteral(": ") + ergebnis);
}

}  // namespace

int Befehl_Kunden_anlegen(const Aufruf &A) {
  if (!Bestellauswahl_gueltig(A)) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  const Shopsperre sperre;
  if (!sperre.Erhalten()) return Fehlgeschlagen;
  Auftragsliste liste;
  const Bestellauswahl auswahl = Bestellungen_markieren(A, liste);
  if (auswahl.Markiert == 0 && !auswahl.Alle_bekannt) return Fehlgeschlagen;
  int gespeichert = 0;
  QStringList zeilen;  // written at the end: the progress bar has the terminal until then
  Kunden_anlegen(liste, [&](int zeile, const Kundenuebernahme &kunde) {
    gespeichert += kunde.Stand == Kundenuebernahme::Ausgang::Gespeichert ? 1 : 0;
    zeilen << Ergebniszeile(liste.Zelle(zeile, "OrderID").toString(), kunde);
  });
  if (!zeilen.isEmpty()) Ausgeben(zeilen.join(u'\n'));
  const bool alles = auswahl.Alle_bekannt && gespeichert > 0 && gespeichert == auswahl.Markiert;
  return alles ? Erledigt : Fehlgeschlagen;
}

}  // namespace marklink
