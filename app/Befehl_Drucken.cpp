// marklink drucken: the printed lists of orders into a file.
#include <QFileInfo>

#include "Ausgabe.h"
#include "Bestellauswahl.h"
#include "Schirmnamen.h"
#include "Sitzung.h"
#include "orders/Auftragsdruck.h"

namespace marklink {
namespace {

int Liste_schreiben(const Aufruf &A, Listenbericht::Art Art) {
  // The first argument is the file, the others choose orders.
  Aufruf auswahl = A;
  const QString datei = QFileInfo(auswahl.Argumente.takeFirst()).absoluteFilePath();
  if (!Bestellauswahl_gueltig(auswahl)) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  Auftragsliste liste;
  const Bestellauswahl gewaehlt = Bestellungen_markieren(auswahl, liste);
  if (!gewaehlt.Alle_bekannt && gewaehlt.Markiert == 0) return Fehlgeschlagen;
  auto report = Liste_erstellen(Art, liste);
  if (!report) return Fehlgeschlagen;
  if (!Report_exportieren(*report, Exportart_ermitteln(datei), datei)) {
    Fehler_melden(QStringLiteral("Die Datei '%1' kann nicht geschrieben werden.").arg(datei));
    return Fehlgeschlagen;
  }
  return gewaehlt.Alle_bekannt ? Erledigt : Fehlgeschlagen;
}

}  // namespace

bool Braucht_Schriften(const Aufruf &A) {
  return A.Was != nullptr && (A.Was->Ausfuehren == &Befehl_Drucken_bestellliste ||
                              A.Was->Ausfuehren == &Befehl_Drucken_transaktionsliste);
}

int Befehl_Drucken_bestellliste(const Aufruf &A) {
  return Liste_schreiben(A, Listenbericht::Art::Bestellliste);
}

int Befehl_Drucken_transaktionsliste(const Aufruf &A) {
  return Liste_schreiben(A, Listenbericht::Art::Transaktionsliste);
}

}  // namespace marklink
