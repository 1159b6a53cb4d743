// Puts the demo data together and holds the arithmetic that its parts share.
#include "Demodaten.h"

#include <algorithm>

#include "Demo_Teile.h"

namespace marklink::demo {

const Artikel *Demodaten::Artikel_mit_Id(int Id) const {
  const auto Fund =
      std::find_if(Artikel_.begin(), Artikel_.end(), [Id](const Artikel &A) { return A.Id == Id; });
  return Fund == Artikel_.end() ? nullptr : &*Fund;
}

const Kunde *Demodaten::Kunde_mit_Id(int Id) const {
  const auto Fund = std::find_if(Kunden.begin(), Kunden.end(), [Id](const Kunde &K) { return K.Id == Id; });
  return Fund == Kunden.end() ? nullptr : &*Fund;
}

const Optionswert &Demodaten::Wert_mit_Id(int Id) const {
  return *std::find_if(Optionswerte.begin(), Optionswerte.end(),
                       [Id](const Optionswert &W) { return W.Id == Id; });
}

const Option &Demodaten::Option_mit_Id(int Id) const {
  return *std::find_if(Optionen.begin(), Optionen.end(), [Id](const Option &O) { return O.Id == Id; });
}

qint64 teilen_gerundet(qint64 Zaehler, qint64 Nenner) {
  const qint64 Betrag = ((Zaehler < 0 ? -Zaehler : Zaehler) * 2 + Nenner) / (2 * Nenner);
  return Zaehler < 0 ? -Betrag : Betrag;
}

Cent Preis_anzeigen(Feinpreis Netto, int Steuersatz, bool Brutto, int Kurs) {
  return teilen_gerundet(Netto * Kurs * (Brutto ? 100 + Steuersatz : 100), qint64{10000} * 100 * 100);
}

Demodaten Demodaten_erzeugen(const QDate &Heute) {
  Demodaten D;
  D.Heute = Heute;
  // One stream for each part, so that a change in one leaves the others as they are.
  Zufall Fuer_Artikel(20240630), Fuer_Kunden(4711), Fuer_Bestellungen(815);
  Artikel_erzeugen(D, Fuer_Artikel);
  Kunden_erzeugen(D, Fuer_Kunden);
  Bestellungen_erzeugen(D, Fuer_Bestellungen);
  return D;
}

}  // namespace marklink::demo
