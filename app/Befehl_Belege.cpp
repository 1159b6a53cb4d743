// marklink belege: contracts and invoices for orders.
#include "Ausgabe.h"
#include "Bestellauswahl.h"
#include "Kundenhindernis.h"
#include "Sitzung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "orders/Belegart.h"
#include "orders/Belegstapel.h"

namespace marklink {
namespace {

QString Hindernis(const Kundenuebernahme &Kunde, const Belegergebnis &Beleg) {
  switch (Beleg.Hindernis) {
    case Beleghindernis::Bestellung_fehlt:
      return QStringLiteral("die Bestellung ist nicht mehr vorhanden oder nicht zu lesen");
    case Beleghindernis::Kunde_fehlt:
      return Kunde.Stand == Kundenuebernahme::Ausgang::Gespeichert
                 ? QStringLiteral("der Kunde ist nicht zu lesen")
                 : Kundenhindernis(Kunde);
    case Beleghindernis::Ohne_Nummer:
      return QStringLiteral("es gibt keine Belegnummer");
    case Beleghindernis::Unvollstaendig:
    case Beleghindernis::Keines:
      break;
  }
  return {};
}

QString Ergebniszeile(const QString &Bestellnummer, const Kundenuebernahme &Kunde,
                      const Belegergebnis &Beleg) {
  QStringList felder{Bestellnummer + u':'};
  if (!Kunde.Kundennummer.isEmpty()) felder << Kunde.Kundennummer;
  if (Beleg.Belegnummer.isEmpty()) {
    felder << QStringLiteral("kein Beleg, ") + Hindernis(Kunde, Beleg);
  } else {
    felder << Beleg.Belegnummer << Zahl_formatieren(Beleg.Endbetrag, QStringLiteral("standard"))
           << Kontext.gCurrency;
    if (Beleg.Hindernis == Beleghindernis::Unvollstaendig)
      felder << QStringLiteral("unvollständig: die Datenbank ließ etwas nicht lesen oder speichern");
  }
  return Anzeigbar(felder.join(u' '));
}

/// Whether the order has a document of that kind; nothing when the books do not tell.
std::optional<bool> Beleg_vorhanden(const Belegart &Art, const QString &Bestellnummer) {
  const db::Recordset belege = Abfragen({"SELECT OrderingNumber FROM ", db::Name{Art.Tabelle},
                                         " WHERE OrderingNumber = ", db::Wert{Bestellnummer},
                                         " AND Webshop = ", db::Zahl(int{Kontext.gSQL_True})});
  if (!belege.IsOpen()) return std::nullopt;
  return belege.RecordCount() > 0;
}

int Belege_anlegen(const Aufruf &A, const Belegart &Art, Stapelart Stapel) {
  if (!Bestellauswahl_gueltig(A)) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  // Before the choice: another run may be making the very documents that are missing now.
  const Shopsperre sperre;
  if (!sperre.Erhalten()) return Fehlgeschlagen;
  Auftragsliste liste;
  const Bestellauswahl auswahl = Bestellungen_markieren(
      A, liste, [&Art](const QString &nummer) { return Beleg_vorhanden(Art, nummer); });
  if (auswahl.Markiert == 0 && !auswahl.Alle_bekannt) return Fehlgeschlagen;
  if (auswahl.Markiert == 0 && auswahl.Alle_bekannt && liste.Zeilenzahl() > 0) {
    Ausgeben(QStringLiteral("Alle Bestellungen haben schon einen solchen Beleg."));
    return Erledigt;
  }
  int erstellt = 0;
  QStringList zeilen;  // written at the end: the progress bar has the terminal until then
  Belege_erzeugen(Stapel, liste, [&](int zeile, const Kundenuebernahme &kunde, const Belegergebnis &beleg) {
    erstellt += beleg.Hindernis == Beleghindernis::Keines ? 1 : 0;
    zeilen << Ergebniszeile(liste.Zelle(zeile, "OrderID").toString(), kunde, beleg);
  });
  if (!zeilen.isEmpty()) Ausgeben(zeilen.join(u'\n'));
  const bool alles = auswahl.Alle_bekannt && erstellt > 0 && erstellt == auswahl.Markiert;
  return alles ? Erledigt : Fehlgeschlagen;
}

}  // namespace

int Befehl_Belege_auftrag(const Aufruf &A) { return Belege_anlegen(A, Belegart_Auftrag(), Stapel_Auftraege); }

int Befehl_Belege_rechnung(const Aufruf &A) {
  return Belege_anlegen(A, Belegart_Rechnung(), Stapel_Rechnungen);
}

}  // namespace marklink
