// marklink nummer: the number that the next document of a range will show. Nothing is drawn.
#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Sitzung.h"
#include "Terminal_Ziehung.h"
#include "host/Datenbank.h"
#include "rules/Nummernkreise.h"

namespace marklink {
namespace {

QStringList Bekannte_Bereiche() {
  QStringList namen;
  for (const Nummernkreis &kreis : Nummernkreise()) namen << kreis.Name;
  return namen;
}

/// Why records of the range get no number of it at present; empty when they do.
QString Grund_ohne_Nummer(const Nummernkreis &Kreis) {
  const auto zaehlt = [](const char *abschnitt, const char *schluessel) {
    return Option_lesen(QLatin1String(abschnitt), QLatin1String(schluessel)) == u"1";
  };
  if (Kreis.Name == u"Reservation" && !zaehlt("Counting", "Reservation"))
    return QStringLiteral("sie bekommen eine GUID");
  // The stock take-over looks for its switch with section and key the other way round.
  if (Kreis.Name == u"Stocking" && !zaehlt("Stocking", "Counting"))
    return QStringLiteral("ihre Nummer bleibt leer");
  return {};
}

}  // namespace

int Befehl_Nummer(const Aufruf &A) {
  const Nummernkreis *kreis = Nummernkreis_suchen(A.Argumente[0]);
  if (!kreis) {
    Fehler_melden(QStringLiteral("Den Nummernkreis '%1' gibt es nicht; bekannt: %2.")
                      .arg(A.Argumente[0], Bekannte_Bereiche().join(QLatin1String(", "))));
    return Falscher_Aufruf;
  }
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  if (const QString grund = Grund_ohne_Nummer(*kreis); !grund.isEmpty()) {
    Fehler_melden(
        QStringLiteral("Der Nummernkreis '%1' zählt nicht automatisch; neue Datensätze ziehen keine "
                       "Nummer daraus, %2.")
            .arg(kreis->Name, grund));
    return Fehlgeschlagen;
  }
  const Nummernvorschau vorschau = Nummer_vorausschauen(kreis->Tabelle, kreis->Feld, kreis->Name);
  if (!vorschau.Frei) {
    Fehler_melden(Stillstandstext(kreis->Name, vorschau.Nummer));
    return Fehlgeschlagen;
  }
  if (vorschau.Nummer.isEmpty()) {
    Fehler_melden(QStringLiteral("Der Nummernkreis '%1' ergibt eine leere Nummer.").arg(kreis->Name));
    return Fehlgeschlagen;
  }
  Ausgeben(Anzeigbar(vorschau.Nummer));
  return Erledigt;
}

}  // namespace marklink
