// A client with staged orders and their shipments, and the value workbook beside this file.
#pragma once

#include <QFile>

#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Testmandant.h"

namespace marklink::test {

class Versand_Test : public Mandant_Test {
 protected:
  Versand_Test() {
    Mandant.Host_einstellen("files", "forwardingfile", u"Versandliste.xls"_qs);
    EXPECT_TRUE(QFile::copy(QStringLiteral(MARKLINK_VERSANDTESTS "/Versandliste.xls"),
                            Mandant.Ordner() + u"Versandliste.xls"_qs));
    Mandant.Starten();
  }
  /// Order and shipment of one day, with participation "01" or "02" by turns.
  void Auftrag(int Nummer, QDate Tag = QDate(2024, 6, 10), bool Uebergeben = false) {
    const QString nummer = QString::number(Nummer);
    Mandant.Zeile(u"WebshopOrdersXTC"_qs,
                  {u"OrderID"_qs, nummer, u"InvoiceAddress"_qs, u"Rechnung "_qs + nummer,
                   u"DeliveryAddress"_qs, u"Lieferung "_qs + nummer});
    const bool ausland = Nummer % 2 == 0;
    const std::pair<const char16_t *, QVariant> felder[] = {
        {u"OrderID", nummer},
        {u"Customer", u"Käufer "_qs + nummer},
        {u"document", u"Rechnung"_qs},
        {u"Date", Tageswert(Tag)},
        {u"Conveyed", Uebergeben},
        {u"POOL_V_VERFAHREN", ausland ? u"53"_qs : u"01"_qs},
        {u"POOL_V_TEILNAHME", ausland ? u"02"_qs : u"01"_qs},
        {u"POOL_V_PRODUKT_CN", ausland ? u"5301"_qs : u"101"_qs},
        {u"POOL_EMPF_NAME1", u"Käufer "_qs + nummer},
        {u"POOL_EMPF_ORT", u"Dresden"_qs},
        {u"POOL_EMPF_GEWICHT", u"1,500"_qs},
        {u"POOL_V_ZOLL_WARENART", u"4"_qs},
        {u"Positions", u"bleibt stehen"_qs},
    };
    QVariantList zeile;
    for (const auto &[feld, wert] : felder) zeile << QString::fromUtf16(feld) << wert;
    Mandant.Zeile(u"LogisticsEASYLOG"_qs, zeile);
  }
  /// A field of a shipment as the table holds it.
  static QString Gespeichert(int Nummer, const char *Feld) {
    return Abfragen({"SELECT * FROM LogisticsEASYLOG WHERE OrderID = ", db::Wert{QString::number(Nummer)}})
        .Text(QLatin1String(Feld));
  }
  static int Anzahl() { return Abfragen("SELECT * FROM LogisticsEASYLOG").RecordCount(); }
};

}  // namespace marklink::test
