// Shipping methods and the shipments for the carrier's software.
#include "Tabellen.h"

namespace marklink::db::schema {

namespace {

/// A shipment is a copy of the staged order by column name, and the fields of the polling interface. The
/// reason of an export is spelt POOL_EXPORTGRUNDDHL here, though it is written under another spelling, which
/// is passed over: intended.
std::vector<Spalte> Versandspalten() {
  std::vector<Spalte> spalten = Bestellspalten();
  const Spalte weitere[] = {Kurztext("document"),
                            Nummer("DocumentNumber"),
                            Ja_Nein("Conveyed"),
                            Text("POOL_REFNR"),
                            Text("POOL_V_ABS_REFNR"),
                            Text("POOL_V_ABS_BEMERKUNG"),
                            Text("POOL_V_MAND_REFNR"),
                            Text("POOL_V_VERFAHREN"),
                            Text("POOL_V_TEILNAHME"),
                            Text("POOL_V_KSTSTELLE_KUERZEL"),
                            Text("POOL_V_PRODUKT_CN"),
                            Text("POOL_V_EXTRASLST"),
                            Text("POOL_V_NN_WAEHRUNG"),
                            Text("POOL_WERT_WAEHRUNG"),
                            Text("POOL_EMPF_REFNR"),
                            Text("POOL_EMPF_NAME1"),
                            Text("POOL_EMPF_NAME2"),
                            Text("POOL_EMPF_NAME3"),
                            Text("POOL_EMPF_PLZ"),
                            Text("POOL_EMPF_ORT"),
                            Text("POOL_EMPF_ORTTEIL"),
                            Text("POOL_EMPF_STRASSE"),
                            Text("POOL_EMPF_HAUSNR"),
                            Text("POOL_EMPF_TEL"),
                            Text("POOL_EMPF_FAX"),
                            Text("POOL_EMPF_EMAIL"),
                            Text("POOL_EMPF_APARTNER"),
                            Text("POOL_EMPF_BEMERKUNG"),
                            Text("POOL_EMPF_USTID"),
                            Text("POOL_EMPF_LANDCODE"),
                            Text("POOL_EMPF_GEWICHT"),
                            Text("POOL_ANZAHL_SENDUNGEN"),
                            Text("POOL_V_ZOLL_WARENART"),
                            Text("POOL_V_ZOLL_WARENLISTE"),
                            Text("POOL_V_VORAUSVERF_NAT"),
                            Text("POOL_V_VORAUSVERF_NAT_UNZUST"),
                            Text("POOL_V_VORAUSVERF_INT"),
                            Text("POOL_EPACK_VORAUS"),
                            Text("POOL_EP_VORAUS"),
                            Text("POOL_V_VORAUSVERF_INT_TERMIN"),
                            Text("POOL_V_VORAUSVERF_INT_TRANSP"),
                            Text("POOL_ABWERK_ANZAHL"),
                            Text("POOL_ABWERK_NR"),
                            Text("POOL_ABWERK_DATE"),
                            Text("POOL_ABWERK_BBNNR"),
                            Text("POOL_SHIPMENT_ID"),
                            Text("POOL_VORDATE"),
                            Text("POOL_EXWORKS"),
                            Text("POOL_CONTENTS"),
                            Text("POOL_IDENTEXPRESS"),
                            Text("POOL_VERWENDUNGSZWECK"),
                            Text("POOL_EXTRADATA"),
                            Text("POOL_SENDUNGSINHALTDHL"),
                            Text("POOL_RECHNUNGSARTDHL"),
                            Text("POOL_RECHNUNGSNUMMERDHL"),
                            Text("POOL_RECHNUNGSDATUMDHL"),
                            Text("POOL_UNTERZEICHNERDHL"),
                            Text("POOL_ZOLLTARIFDHL"),
                            Text("POOL_RECHNUNGSBEMDHL"),
                            Text("POOL_EXPORTARTDHL"),
                            Text("POOL_EXPORTGRUNDDHL"),
                            Text("POOL_HANDELSBEDINGUNGENDHL"),
                            Text("POOL_RECHNUNGSPOSITIONENDHL")};
  spalten.insert(spalten.end(), std::begin(weitere), std::end(weitere));
  return spalten;
}

}  // namespace

std::vector<Tabelle> Versandtabellen() {
  return {
      {"ForwardingCharges",
       {Text("Description"), Kurztext("Token"), Gleitkomma("Costs"), Kurztext("VatCode"),
        Gleitkomma("Weight"), Ja_Nein("PriceScaleEnable"), Memo("PriceScale"), Ja_Nein("Active"),
        Ja_Nein("Standard")},
       {"Description"},
       {{"Token"}}},
      {"LogisticsEASYLOG", Versandspalten(), {"OrderID"}, {{"Conveyed"}}},
  };
}

}  // namespace marklink::db::schema
