// The fields of the polling interface, from the order, the books, the settings and the value workbook.
#include "Versandfelder.h"

#include "Wertemappe.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Laender.h"
#include "host/Zahlen.h"
#include "rules/Versandkosten.h"
#include "rules/Zahlungsverkehr.h"

namespace marklink {
namespace {

QString Einstellung(const char *Schluessel) {
  return Option_lesen(QStringLiteral("easylog"), QLatin1String(Schluessel));
}

/// Cash on delivery as the service wants it: its code and what the parcel carrier is to collect.
QString Nachnahme_Service(const QString &Verfahren, double Betrag, const QString &Zahlart) {
  return Service_Nachnahme_ermitteln(Verfahren) + u'=' +
         Zahl_formatieren(Betrag + Zahlart_Gebuehr(Zahlart), QStringLiteral("standard"));
}

QString Bruttogewicht(const Versandauftrag &Auftrag) {
  double netto = 0, brutto = 0;
  Gewicht_summieren(netto, brutto, Auftrag.Beleg, Auftrag.Belegnummer);
  return Zahl_formatieren(brutto, Kontext.gGewichtsformat);
}

}  // namespace

std::vector<std::pair<const char *, QVariant>> Versandfelder_ermitteln(const Versandauftrag &Auftrag,
                                                                       const db::Recordset &Bestellung) {
  const auto feld = [&Bestellung](const char *name) { return Bestellung.Text(QLatin1String(name)); };
  const QString land = Land_aus_Token(feld("DeliveryCountry"));
  const QString verfahren =
      Land_ist_Ausland(land) ? QStringLiteral("INTERNATIONAL") : QStringLiteral("NATIONAL");
  const bool nachnahme = !Auftrag.Zahlart.isEmpty() && Zahlart_Nachnahme(Auftrag.Zahlart);
  const QString services =
      nachnahme ? Nachnahme_Service(verfahren, Bestellung.Number(QStringLiteral("Amount")), Auftrag.Zahlart)
                : QString();
  const QString waehrung = Land_Waehrung(land);
  const QString firma = feld("DeliveryCompany");
  const Strassenteile strasse = Strasse_zerlegen(feld("DeliveryStreet"));
  const QString leer = QStringLiteral("");

  return {
      {"document", Auftrag.Beleg},
      {"DocumentNumber", Auftrag.Belegnummer},
      {"Date", Zeitpunkt(Kontext.gHeute)},
      {"Conveyed", false},
      {"POOL_REFNR", Auftrag.Referenznummer},
      {"POOL_V_ABS_REFNR", Einstellung("ekp")},
      {"POOL_V_ABS_BEMERKUNG", leer},
      {"POOL_V_MAND_REFNR", Einstellung("client")},
      {"POOL_V_VERFAHREN", Verfahren_ermitteln(verfahren)},
      {"POOL_V_TEILNAHME", Teilnahme_ermitteln(verfahren)},
      {"POOL_V_PRODUKT_CN", Produkt_ermitteln(verfahren)},
      {"POOL_V_KSTSTELLE_KUERZEL", leer},
      {"POOL_V_EXTRASLST", services},
      {"POOL_V_NN_WAEHRUNG", waehrung},
      {"POOL_WERT_WAEHRUNG", waehrung},
      {"POOL_EMPF_REFNR", leer},
      {"POOL_EMPF_NAME1", firma.isEmpty() ? feld("DeliveryName") : firma},
      {"POOL_EMPF_NAME2", firma.isEmpty() ? leer : feld("DeliveryName")},
      {"POOL_EMPF_NAME3", leer},
      {"POOL_EMPF_PLZ", feld("DeliveryPostcode")},
      {"POOL_EMPF_ORT", feld("DeliveryCity")},
      {"POOL_EMPF_ORTTEIL", feld("DeliverySuburb")},
      {"POOL_EMPF_STRASSE", strasse.Strasse},
      // The blank stands there without a suffix too, on purpose.
      {"POOL_EMPF_HAUSNR", strasse.Hausnummer + u' ' + strasse.Zusatz},
      {"POOL_EMPF_TEL", feld("Telephone")},
      {"POOL_EMPF_FAX", leer},
      {"POOL_EMPF_EMAIL", feld("Email")},
      {"POOL_EMPF_APARTNER", leer},
      {"POOL_EMPF_BEMERKUNG", leer},
      {"POOL_EMPF_USTID", feld("VatID")},
      {"POOL_EMPF_LANDCODE", feld("DeliveryCountry")},
      {"POOL_EMPF_GEWICHT", Bruttogewicht(Auftrag)},
      {"POOL_ANZAHL_SENDUNGEN", QStringLiteral("1")},
      {"POOL_V_ZOLL_WARENART", QStringLiteral("4")},
      {"POOL_V_ZOLL_WARENLISTE", leer},
      {"POOL_V_VORAUSVERF_NAT", QStringLiteral("0")},
      {"POOL_V_VORAUSVERF_NAT_UNZUST", leer},
      {"POOL_V_VORAUSVERF_INT", QStringLiteral("0")},
      {"POOL_EPACK_VORAUS", QStringLiteral("0")},
      {"POOL_EP_VORAUS", QStringLiteral("0")},
      {"POOL_V_VORAUSVERF_INT_TERMIN", QStringLiteral("0")},
      {"POOL_V_VORAUSVERF_INT_TRANSP", leer},
      {"POOL_ABWERK_ANZAHL", leer},
      {"POOL_ABWERK_NR", leer},
      {"POOL_ABWERK_DATE", leer},
      {"POOL_ABWERK_BBNNR", leer},
      {"POOL_SHIPMENT_ID", leer},
      {"POOL_VORDATE", leer},
      {"POOL_EXWORKS", leer},
      {"POOL_CONTENTS", leer},
      {"POOL_IDENTEXPRESS", leer},
      {"POOL_VERWENDUNGSZWECK", Auftrag.Verwendungszweck},
      {"POOL_EXTRADATA", leer},
      {"POOL_SENDUNGSINHALTDHL", leer},
      {"POOL_RECHNUNGSARTDHL", leer},
      {"POOL_RECHNUNGSNUMMERDHL", leer},
      {"POOL_RECHNUNGSDATUMDHL", leer},
      {"POOL_UNTERZEICHNERDHL", leer},
      {"POOL_ZOLLTARIFDHL", leer},
      {"POOL_RECHNUNGSBEMDHL", leer},
      {"POOL_EXPORTARTDHL", leer},
      // Exported under another spelling, on purpose; a table without this one is left alone.
      {"POOL_EXPORTGRUNDGHL", leer},
      {"POOL_HANDELSBEDINGUNGENDHL", leer},
      {"POOL_RECHNUNGSPOSITIONENDHL", leer},
  };
}

}  // namespace marklink
