// Columns and colours of the order grid.
#include "Auftragstabelle.h"

#include "Auftragsstati.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"

namespace marklink {

namespace {

std::vector<QStringList> Einspaltig(const QStringList &Liste) {
  std::vector<QStringList> zeilen;
  for (const QString &eintrag : Liste) zeilen.push_back({eintrag});
  return zeilen;
}

/// Costs and weight stand beside the method.
std::vector<QStringList> Versandarten(const std::vector<Versandauswahl> &Liste) {
  std::vector<QStringList> zeilen;
  for (const Versandauswahl &eintrag : Liste)
    zeilen.push_back({eintrag.Description, Zahl_formatieren(eintrag.Costs, QStringLiteral("standard")),
                      Zahl_formatieren(eintrag.Weight, QStringLiteral("standard"))});
  return zeilen;
}

}  // namespace

std::vector<Tabellenspalte> Auftragstabelle_Spalten(const Auswahllisten &Listen) {
  using Art = Tabellenspalte::Art;
  std::vector<Tabellenspalte> spalten;
  spalten.reserve(Auftragsspalten().size());
  for (const Auftragsspalte &spalte : Auftragsspalten())
    spalten.push_back({QLatin1String(spalte.Schluessel), QString::fromUtf16(spalte.Titel)});
  const auto von = [&spalten](const char *Schluessel) -> Tabellenspalte & {
    return spalten[static_cast<std::size_t>(Auftragsspalte_finden(Schluessel))];
  };
  const auto auswahl = [&von](const char *Schluessel, std::vector<QStringList> Eintraege) {
    Tabellenspalte &spalte = von(Schluessel);
    spalte.Wie = Art::Auswahlliste;
    spalte.Bearbeitbar = true;
    spalte.Auswahl = std::move(Eintraege);
  };
  von("Invoice").Wie = Art::Haken;
  von("Invoice").Bearbeitbar = true;
  von("Amount").Wie = Art::Zahl;
  von("Amount").Format = QStringLiteral("standard");
  von("Rebate").Wie = Art::Zahl;
  von("Rebate").Bearbeitbar = true;
  von("Rebate").Zeichen = QStringLiteral("0123456789,-");
  auswahl("Shipping", Versandarten(Listen.jgVersandart));
  auswahl("Payment", Einspaltig(Listen.jgZahlungsart));
  auswahl("PaymentPractice", Einspaltig(Listen.jgZahlungsbedingungen));
  return spalten;
}

void Auftragstabelle::Auftragsstati_einfaerben(const QString &Statusliste) {
  Farben_.clear();
  for (const Auftragsstatusfarbe &status : Auftragsstati_farben(Statusliste))
    if (!Farben_.contains(status.WebshopID)) Farben_.insert(status.WebshopID, status.Colour);
}

bool Auftragstabelle::Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) {
  Liste_.Zelle_setzen(Zeile, Spalte, Wert);
  return true;
}

bool Auftragstabelle::Gesperrt() const { return Kontext.gLaeuft; }

std::optional<qint32> Auftragstabelle::Zeilenfarbe(int Zeile) const {
  static const int spalte = Auftragsspalte_finden("Status");
  return Statusfarbe(Liste_.Zelle(Zeile, spalte).toString());
}

std::optional<qint32> Auftragstabelle::Statusfarbe(const QString &WebshopID) const {
  const auto farbe = Farben_.constFind(WebshopID);
  return farbe == Farben_.constEnd() ? std::nullopt : std::optional<qint32>(*farbe);
}

}  // namespace marklink
