// Quantities and lots of a position.
#include "Positionsbestand.h"

#include <algorithm>

#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "rules/Artikelfelder.h"
#include "rules/Lager.h"
#include "rules/Zuteilungsliste.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

/// What the line can have: free stock and what is reserved or under way for it already. Stock that was
/// overbooked counts as none.
double Verfuegbar(const Bestandsanfrage &A) {
  // Reservations know the line by its place counted from 0, unlike its line number. Intended.
  const QString stelle = Zahl_formatieren(A.Index, QStringLiteral("000"));
  const double lager = Lager_Verfuegbar(A.Artikelnummer, Artikel_Lager(A.Artikelnummer));
  const double reserviert = Reserviert_fuer_Position(A.Beleg, A.Belegnummer, A.Artikelnummer, stelle);
  const double unterwegs = Transportauftrag_Menge(A.Beleg, A.Belegnummer, A.Artikelnummer, stelle, QString());
  return std::max(0.0, Menge_summe(Menge_summe(lager, reserviert), unterwegs));
}

Antwort Rueckstellung_fragen(const Bestandsanfrage &A, double Verfuegbare) {
  if (Programmoption("BackOrderAutoSave") != QLatin1String("0")) return Antwort::Ja;
  const Fortschritt_verdeckt pause;
  return dialoge().Meldung(
      QStringLiteral("Rückstellung bilden"),
      {QStringLiteral("Von Artikel '%1' ist nicht genügend Bestand (%2) vorhanden.")
           .arg(A.Bezeichnung, Zahl_formatieren(Verfuegbare, Kontext.gMassFormat)),
       QStringLiteral("Möchten Sie die verfügbare Menge nun abrechnen und zudem eine Rückstellung bilden?"),
       QString(),
       QStringLiteral("Falls Sie dies nicht möchten, wird nur die verfügbare Menge abgerechnet und keine "
                      "Rückstellung erzeugt.")},
      Symbol::Frage, Knoepfe::JaNeinAbbrechen, Antwort::Ja);
}

double Als_Masszahl(double Menge) { return Zahl_durch_Bild(Menge, Kontext.gMassFormat); }

void Fehlmenge_aufteilen(Positionsmenge &M, const Bestandsanfrage &A, double Verfuegbare) {
  const Antwort antwort = Rueckstellung_fragen(A, Verfuegbare);
  const bool auftrag = Kontext.gStorageBooking == 2, rechnung = Kontext.gStorageBooking == 0;
  if ((antwort != Antwort::Ja && antwort != Antwort::Nein) || (!auftrag && !rechnung)) return;
  const bool rueckstellen = antwort == Antwort::Ja;
  M.Geliefert = Als_Masszahl(rueckstellen && auftrag ? A.Menge : Verfuegbare);
  M.Rueckstand = rueckstellen ? Als_Masszahl(Menge_summe(A.Menge, -Verfuegbare)) : 0;
}

QString Zuteilen(const Positionsmenge &M, const Bestandsanfrage &A) {
  if (A.Beleg == QLatin1String("Auftrag") || A.Beleg == QLatin1String("Lieferschein"))
    return Bestand_zuteilen(A.Artikelnummer, Menge_summe(M.Geliefert, -M.Rueckstand), QString());
  if (A.Beleg == QLatin1String("Rechnung")) return Bestand_zuteilen(A.Artikelnummer, M.Geliefert, QString());
  return {};
}

}  // namespace

Positionsmenge Positionsmenge_ermitteln(const Bestandsanfrage &Anfrage) {
  Positionsmenge menge{Anfrage.Menge};
  if (!Anfrage.Lager_pruefen || Anfrage.Menge == 0 || !Artikelart_Lagerfuehrung(Anfrage.Artikelnummer))
    return menge;
  const double verfuegbar = Verfuegbar(Anfrage);
  if (Anfrage.Menge > verfuegbar) Fehlmenge_aufteilen(menge, Anfrage, verfuegbar);
  menge.Zuteilung = Zuteilen(menge, Anfrage);
  return menge;
}

}  // namespace marklink
