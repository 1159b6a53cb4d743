// The topics' pages.
#include "Hilfethemen.h"

#include "Hilfe.h"

namespace marklink {
namespace {

constexpr Hilfethemenseite Themen[] = {
    {Hilfethema::Auftragsverwaltung, "auftragsverwaltung.html"},
    {Hilfethema::Einstellungen, "einstellungen.html"},
    {Hilfethema::Bestellstatus, "bestellstatus.html"},
    {Hilfethema::Bild, "bild.html"},
    {Hilfethema::Tabelle_formatieren, "tabelle_formatieren.html"},
    {Hilfethema::Fortschritt, "fortschritt.html"},
    {Hilfethema::Verbindung, "fortschritt.html#verbindung"},
    {Hilfethema::Liste_Lieferzeiten, "listen.html#lieferzeiten"},
    {Hilfethema::Liste_Auftragsstati, "listen.html#auftragsstati"},
    {Hilfethema::Liste_Sprachen, "listen.html#sprachen"},
    {Hilfethema::Liste_Kundengruppen, "listen.html#kundengruppen"},
    {Hilfethema::Liste_Artikelvorlagen_Details, "listen.html#artikelvorlagen_details"},
    {Hilfethema::Liste_Artikelvorlagen_Optionen, "listen.html#artikelvorlagen_optionen"},
    {Hilfethema::Liste_Einheiten, "listen.html#verpackungseinheiten"},
    {Hilfethema::Versandliste, "versand.html"},
    {Hilfethema::Versandeinstellungen, "versand_einstellungen.html"},
    {Hilfethema::Druckvorschau, "druckvorschau.html"},
};

}  // namespace

std::span<const Hilfethemenseite> Hilfethemen() { return Themen; }

QString Hilfeseite(int Thema) {
  for (const Hilfethemenseite &eintrag : Themen)
    if (eintrag.Thema == Thema) return QLatin1String(eintrag.Seite);
  return QStringLiteral("index.html");
}

}  // namespace marklink
