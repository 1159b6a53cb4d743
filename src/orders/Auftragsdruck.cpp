// The printed lists of marked orders.
#include "Auftragsdruck.h"

#include "Stapellauf.h"
#include "host/Kontext.h"
#include "ui/Dialoge.h"
#include "ui/Listenladung.h"
#include "ui/Zeitraum.h"

namespace marklink {
namespace {

using Art = Listenbericht::Art;

const QString Datumsfeld = QStringLiteral("[Date]");

void Vorschau_zeigen(Art Was, const Auftragsliste &Liste) {
  if (auto report = Liste_erstellen(Was, Liste)) Report_ausgeben(*report, false, true, true);
}

}  // namespace

QStringList Auswahl_lesen(const Auftragsliste &Liste, bool Meldung_zeigen) {
  QStringList nummern;
  for (int zeile = 0; zeile < Liste.Zeilenzahl(); ++zeile)
    if (Liste.Markiert(zeile)) nummern << Liste.Zelle(zeile, "OrderID").toString();
  if (nummern.isEmpty() && Meldung_zeigen)
    dialoge().Meldung(QStringLiteral("Hinweis"), Ohne_Auswahl_Belege(), Symbol::Information);
  return nummern;
}

db::Anweisung Listenanweisung(Art Was, const QStringList &Bestellnummern) {
  db::Anweisung sql("SELECT * FROM WebshopOrdersXTC WHERE ");
  const db::Anweisung zeitraum = Zeitraumbedingung(Datumsfeld);
  if (!zeitraum.Leer()) sql += {zeitraum, " AND "};
  sql += {"OrderID IN (", db::Werteliste{Bestellnummern}, ")"};
  sql +=
      Was == Art::Bestellliste ? db::Anweisung(" ORDER BY Date ASC") : db::Anweisung(" ORDER BY Payment ASC");
  return sql;
}

std::optional<Report> Liste_erstellen(Art Was, const Auftragsliste &Liste) {
  const QStringList nummern = Auswahl_lesen(Liste, false);
  if (nummern.isEmpty()) {
    // The transaction list speaks of the order list too, on purpose.
    dialoge().Meldung(QStringLiteral("Hinweis"),
                      Ohne_Auswahl(QStringLiteral("die Sie in die Bestellliste übernehmen möchten.")),
                      Symbol::Information);
    return std::nullopt;
  }
  const auto grenze = [](Zeitraum_Modus modus) {
    return Zeitraum_ermitteln(Kontext.gViewablePeriod, modus, Datumsfeld, QString());
  };
  auto daten = std::make_shared<Listenbericht>(Was);
  daten->Titeltext =
      Was == Art::Bestellliste ? QStringLiteral("Bestellliste") : QStringLiteral("Transaktionsliste");
  daten->mSQL = Listenanweisung(Was, nummern);
  daten->Zeitraum_von = grenze(Zeitraum_Modus::Von);
  daten->Zeitraum_bis = grenze(Zeitraum_Modus::Bis);
  return Listenbericht::Report_Initialisieren(std::move(daten));
}

void Bestellliste_drucken(const Auftragsliste &Liste) { Vorschau_zeigen(Art::Bestellliste, Liste); }

void Transaktionsliste_drucken(const Auftragsliste &Liste) { Vorschau_zeigen(Art::Transaktionsliste, Liste); }

void Transaktionsliste_exportieren(const Auftragsliste &Liste) {
  auto report = Liste_erstellen(Art::Transaktionsliste, Liste);
  if (!report) return;
  const QString datei = dialoge().Datei_speichern(
      QStringLiteral("Speichern unter"),
      QStringLiteral("Microsoft Excel |*.xls|Adobe Acrobat Reader (*.pdf)|*.pdf|RTF-Format |*.rtf|HTM |*.htm|"
                     "Text |*.txt"),
      Kontext.gDocumentPath);
  if (!datei.isEmpty()) Report_exportieren(*report, Exportart_ermitteln(datei), datei);
}

}  // namespace marklink
