// What a grid takes from the client's files: its layout and its looks.
#include <algorithm>

#include "Farbwert.h"
#include "clsTabelle.h"
#include "host/Datenbank.h"
#include "host/Zahlen.h"

namespace marklink {

constexpr qint32 Kleinste_Schrift = 8, Groesste_Schrift = 200;  ///< points

void Layout_laden(clsTabelle &Tabelle, const QString &Schluessel, bool Liste1, bool Liste2) {
  Tabellenlayout layout = Tabelle.Anordnung();
  Layout_laden(layout, Schluessel, Liste1, Liste2);
  Tabelle.Anordnung_setzen(layout);
}

void Layout_speichern(const clsTabelle &Tabelle, const QString &Schluessel, bool Liste1, bool Liste2) {
  Layout_speichern(Tabelle.Anordnung(), Schluessel, Liste1, Liste2);
}

void Tabelle_Aussehen_setzen(clsTabelle &Tabelle) {
  const QString abschnitt = QStringLiteral("Program"), groesse = QStringLiteral("GridFontSize");
  Tabelle.Zeilenfarben_setzen(Farbwert_lesen(Option_lesen(abschnitt, QStringLiteral("RowColorEven"))),
                              Farbwert_lesen(Option_lesen(abschnitt, QStringLiteral("RowColorOdd"))));
  const qint32 punkt = Als_Ganzzahl(Option_lesen(abschnitt, groesse));
  if (punkt < Kleinste_Schrift) Option_schreiben(abschnitt, groesse, QString::number(Kleinste_Schrift));
  Tabelle.Schriftgroesse_setzen(std::clamp(punkt, Kleinste_Schrift, Groesste_Schrift));
}

}  // namespace marklink
