// Loading the rows of a list.
#include "Listenladung.h"

#include "Fortschritt.h"
#include "Zeitraum.h"
#include "host/Kontext.h"

namespace marklink {

db::Anweisung Zeitraumbedingung(const QString &Feld) {
  if (Kontext.gViewablePeriod == 0) return {};
  return {"", db::Teiltext{
                  Zeitraum_ermitteln(Kontext.gViewablePeriod, Zeitraum_Modus::Bedingung, Feld, QString())}};
}

void Zeilen_einlesen(Zellenspeicher &Zellen, db::Recordset &Satz, const std::vector<QString> &Felder,
                     const Listentexte &Texte) {
  const QString bestellnummer = QStringLiteral("OrderID");
  const int anzahl = Satz.RecordCount();
  fortschritt().ProgressAnzeigen(Texte.Titel, anzahl);
  Kontext.gLaeuft = true;
  Zellen.Leeren();
  Zellen.Reservieren(anzahl);
  std::vector<std::size_t> spalten;  // that the set has a field for
  for (std::size_t spalte = 0; spalte < Felder.size(); ++spalte)
    if (!Felder[spalte].isEmpty() && Satz.HasField(Felder[spalte])) spalten.push_back(spalte);
  for (; !Satz.IsEOF() && Kontext.gLaeuft && !Kontext.gAbbrechen; Satz.MoveNext()) {
    fortschritt().Text(Texte.Zeile.arg(Satz.Text(bestellnummer)));
    const int zeile = Zellen.Zeile_anfuegen();
    for (const std::size_t spalte : spalten) {
      if (const auto text = Satz.Textbytes(Felder[spalte]))
        Zellen.Text_schreiben(zeile, static_cast<int>(spalte), *text);
      else
        Zellen.Schreiben(zeile, static_cast<int>(spalte), Satz.Value(Felder[spalte]));
    }
    fortschritt().Wert(zeile + 1);
  }
  fortschritt().Verbergen();
  Kontext.gLaeuft = false;
}

}  // namespace marklink
