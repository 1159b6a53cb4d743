// The shipment list's columns.
#include "Versandspalten.h"

#include "Wertemappe.h"
#include "host/Kontext.h"

namespace marklink {

namespace {

/// Columns whose pick list is a sheet of its own.
constexpr struct {
  const char *Spalte;
  const char16_t *Blatt;
} Blaetter[] = {{"POOL_V_VERFAHREN", u"easylog_verfahren"},
                {"POOL_V_TEILNAHME", u"easylog_teilnahme"},
                {"POOL_V_PRODUKT_CN", u"easylog_produkte"}};

/// Columns whose pick list stands in easylog_values under their name.
constexpr const char *Wertespalten[] = {"POOL_V_ZOLL_WARENART",
                                        "POOL_V_VORAUSVERF_NAT",
                                        "POOL_V_VORAUSVERF_NAT_UNZUST",
                                        "POOL_V_VORAUSVERF_INT",
                                        "POOL_EPACK_VORAUS",
                                        "POOL_EP_VORAUS",
                                        "POOL_V_VORAUSVERF_INT_TERMIN",
                                        "POOL_V_VORAUSVERF_INT_TRANSP",
                                        "POOL_RECHNUNGSARTDHL",
                                        "POOL_EXPORTARTDHL"};

std::vector<QStringList> Eintraege_lesen(const Wertemappe &Mappe, const QString &Blatt,
                                         const Wertemappe::Bedingungen &Wo = {}) {
  std::vector<QStringList> liste;
  for (const Werteintrag &eintrag : Mappe.Eintraege(Blatt, Wo))
    liste.push_back({eintrag.ID, eintrag.Description});
  return liste;
}

}  // namespace

const std::vector<Versandspalte> &Versandspalten() {
  static const std::vector<Versandspalte> spalten = {
      {"Conveyed", u"Auswahl"},
      {"OrderID", u"Bestellnr."},
      {"CustomerID", u"Kunden-ID"},
      {"Customer", u"Kunde"},
      {"CustomerNumber", u"Kundennr."},
      {"Document", u"Belegart"},
      {"DocumentNumber", u"Belegnummer"},
      {"Date", u"Datum"},
      {"POOL_REFNR", u"Referenznummer (Polling)"},
      {"POOL_V_ABS_REFNR", u"Referenznummer (Absender)"},
      {"POOL_V_ABS_BEMERKUNG", u"Bemerkung zum Absender"},
      {"POOL_V_MAND_REFNR", u"Referenznummer (Mandant)"},
      {"POOL_V_VERFAHREN", u"Verfahren"},
      {"POOL_V_TEILNAHME", u"Teilnahme"},
      {"POOL_V_KSTSTELLE_KUERZEL", u"Kostenstelle in Easylog"},
      {"POOL_V_PRODUKT_CN", u"Produkt"},
      {"POOL_V_EXTRASLST", u"Services"},
      {"POOL_V_NN_WAEHRUNG", u"Währung (Nachnahme)"},
      {"POOL_WERT_WAEHRUNG", u"Währung (Transportversicherung)"},
      {"POOL_EMPF_REFNR", u"Referenznummer (Empfänger)"},
      {"POOL_EMPF_NAME1", u"Name 1 (Empfänger)"},
      {"POOL_EMPF_NAME2", u"Name 2 (Empfänger)"},
      {"POOL_EMPF_NAME3", u"Name 3 (Empfänger)"},
      {"POOL_EMPF_PLZ", u"PLZ (Empfänger)"},
      {"POOL_EMPF_ORT", u"Ort (Empfänger)"},
      {"POOL_EMPF_ORTTEIL", u"Ortsteil (Empfänger)"},
      {"POOL_EMPF_STRASSE", u"Straße (Empfänger)"},
      {"POOL_EMPF_HAUSNR", u"Hausnummer (Empfänger)"},
      {"POOL_EMPF_TEL", u"Telefonnr. (Empfänger)"},
      {"POOL_EMPF_FAX", u"FAX (Empfänger)"},
      {"POOL_EMPF_EMAIL", u"E-Mail (Empfänger)"},
      {"POOL_EMPF_APARTNER", u"Ansprechpartner (Empfänger)"},
      {"POOL_EMPF_BEMERKUNG", u"Bemerkung (Empfänger)"},
      {"POOL_EMPF_USTID", u"USt-ID (Empfänger)"},
      {"POOL_EMPF_LANDCODE", u"Land (Empfänger)"},
      {"POOL_EMPF_GEWICHT", u"Gewicht der Sendung"},
      {"POOL_ANZAHL_SENDUNGEN", u"Anzahl der Sendungen"},
      {"POOL_V_ZOLL_WARENART", u"Warenart"},
      {"POOL_V_ZOLL_WARENLISTE", u"Zollinhaltserklärung"},
      {"POOL_V_VORAUSVERF_NAT", u"Vorausverfügungen (NATIONAL)"},
      {"POOL_V_VORAUSVERF_NAT_UNZUST", u"Zusätzliche Informationen bei Unzustellbarkeit"},
      {"POOL_V_VORAUSVERF_INT", u"Vorausverfügungen (INTERNATIONAL)"},
      {"POOL_EPACK_VORAUS", u"Vorausverfügungen (DHL EUROPACK)"},
      {"POOL_EP_VORAUS", u"Vorausverfügungen (EUROPREMIUM)"},
      {"POOL_V_VORAUSVERF_INT_TERMIN", u"Zeit der Rücksendung"},
      {"POOL_V_VORAUSVERF_INT_TRANSP", u"Transportart der Rücksendung"},
      {"POOL_ABWERK_ANZAHL", u"Anzahl der Sendungen (Ab Werk)"},
      {"POOL_ABWERK_NR", u"Auftragsnummer (Ab Werk)"},
      {"POOL_ABWERK_DATE", u"Datum der Sendung (Ab Werk)"},
      {"POOL_ABWERK_BBNNR", u"bbn- Nummer (Ab Werk)"},
      {"POOL_SHIPMENT_ID", u"ID gemeinsamer Sendungen"},
      {"POOL_VORDATE", u"Versanddatum der Sendung"},
      {"POOL_EXWORKS", u"Zugangsnr. für Ex Works"},
      {"POOL_CONTENTS", u"Inhalt des Paketes (DHL EUROPACK)"},
      {"POOL_IDENTEXPRESS", u"Identitätsmerkmal (Empfänger)"},
      {"POOL_VERWENDUNGSZWECK", u"Verwendungszweck (Beleglose Nachnahme)"},
      {"POOL_EXTRADATA", u"Zusätzliche Informationen für den Aufschriftzettel (erweitertes Polling)"},
      {"POOL_SENDUNGSINHALTDHL", u"Inhalt der Sendung (INTERNATIONAL EXPRESS)"},
      {"POOL_RECHNUNGSARTDHL", u"Art der Rechnung"},
      {"POOL_RECHNUNGSNUMMERDHL", u"Rechnungsnr. der Handels- o. Proformarechnung"},
      {"POOL_RECHNUNGSDATUMDHL", u"Rechnungsdatum"},
      {"POOL_UNTERZEICHNERDHL", u"Titel des Unterzeichners"},
      {"POOL_ZOLLTARIFDHL", u"Zolltarifnummer"},
      {"POOL_RECHNUNGSBEMDHL", u"Bemerkung zur Rechnung"},
      {"POOL_EXPORTARTDHL", u"Exportart bei Verfahren INTERNATIONAL EXPRESS"},
      {"POOL_EXPORTGRUNDGHL", u"Exportgrund bei Verfahren INTERNATIONAL EXPRESS"},
      {"POOL_HANDELSBEDINGUNGENDHL", u"Handelsbedingungen"},
      {"POOL_RECHNUNGSPOSITIONENDHL",
       u"Einzelpositionen der Handels- o. Proformarechnung bei Verfahren INTERNATIONAL EXPRESS"},
  };
  return spalten;
}

int Versandspalte_finden(const char *Schluessel) {
  const std::vector<Versandspalte> &spalten = Versandspalten();
  for (size_t i = 0; i < spalten.size(); ++i)
    if (QLatin1String(spalten[i].Schluessel) == QLatin1String(Schluessel)) return int(i);
  return -1;
}

std::vector<Tabellenspalte> Versandtabelle_Spalten() {
  std::vector<Tabellenspalte> spalten;
  for (const Versandspalte &spalte : Versandspalten()) {
    spalten.push_back({QLatin1String(spalte.Schluessel), QString::fromUtf16(spalte.Titel)});
    spalten.back().Bearbeitbar = true;
  }
  const auto von = [&spalten](const char *Schluessel) -> Tabellenspalte & {
    return spalten[size_t(Versandspalte_finden(Schluessel))];
  };
  const auto auswahl = [&von](const char *Schluessel, std::vector<QStringList> Eintraege) {
    if (Eintraege.empty()) return;
    Tabellenspalte &spalte = von(Schluessel);
    spalte.Wie = Tabellenspalte::Art::Auswahlliste;
    for (const QStringList &eintrag : Eintraege)
      if (!eintrag[1].isEmpty() && !spalte.Anzeige.contains(eintrag[0]))
        spalte.Anzeige.insert(eintrag[0], eintrag[1]);
    spalte.Auswahl = std::move(Eintraege);
  };
  von("Conveyed").Wie = Tabellenspalte::Art::Haken;
  von("OrderID").Bearbeitbar = false;  // by it a row finds its way back
  const Wertemappe mappe(Kontext.gVersandkostendatei);
  for (const auto &[spalte, blatt] : Blaetter)
    auswahl(spalte, Eintraege_lesen(mappe, QString::fromUtf16(blatt)));
  for (const char *spalte : Wertespalten)
    auswahl(spalte, Eintraege_lesen(mappe, QStringLiteral("easylog_values"),
                                    {{QStringLiteral("Fieldname"), QLatin1String(spalte)}}));
  return spalten;
}

std::vector<QStringList> Produkte_des_Verfahrens(const QString &Verfahren) {
  return Eintraege_lesen(Wertemappe(Kontext.gVersandkostendatei), QStringLiteral("easylog_produkte"),
                         {{QStringLiteral("Method_id"), Verfahren}});
}

}  // namespace marklink
