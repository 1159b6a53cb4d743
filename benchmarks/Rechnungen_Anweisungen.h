// Every statement that an invoice by hand needs.
#pragma once

#include "Rechnungen_Handarbeit.h"

namespace marklink::messung {

inline const std::string POSITIONSFELDER =
    "document, DocumentNumber, LineItemNumber, SequentialNumber, ArticleNumber, ShortText, LongText, "
    "ArticleType, "
    "ArticleGroup, Unit, Quantity, BackOrder, QuantityDelivered, VatCode, Rebate, UnitpriceNet, "
    "UnitpriceVat, "
    "UnitpriceGross, UnitpriceNetDiscounted, UnitpriceGrossDiscounted, AllroundpriceNet, AllroundpriceVat, "
    "AllroundpriceGross, PurchasePrice, Calculate, WeightNet, WeightGross, Employee, Barcode, Date, "
    "SerialNumber, "
    "DeliveryNumber, OrderingNumber, TransportNumber, AccountingNumber, StorageNumber, ProcessingStatus";

inline const std::string KOPFFELDER =
    "InvoiceNumber, Form, Date, CustomerNumber, Customer, OrderingDate, OrderingNumber, DeliveryDate, "
    "Orderer, Webshop, "
    "Address, DeliveryAddress, Employee, ContactPerson, Store, TextModuleHeader, TextModuleFooter, "
    "Impartation, "
    "PaymentPractice, MethodPayment, WeightNet, WeightGross, SubTotal, NetAmount, VatAmount, GrossAmount, "
    "DiscountAmount, SalesReturn, SalesReturnString, Forwarding, ForwardingCharges, FreeForwarding, "
    "TotalAmount, "
    "Taxation, TaxCalculation, Printed, EmailAddress, Email, StorageBooking, DateCreation, DateUpdate, "
    "WorksOnLastOf, "
    "CashAmount, DuePayment, Paid, InvoiceType";

/// What a shipment takes over from its order.
inline const std::string BESTELLFELDER =
    "OrderID, CustomerID, Customer, CustomerNumber, Telephone, Email, VatID, CustomerType, Rebate, Status, "
    "OrderIP, Currency, Amount, Notes, Invoice, Payment, PaymentPractice, Shipping, ExtendedInfo, "
    "InvoiceCompany, InvoiceName, InvoiceFirstname, InvoiceLastname, InvoiceStreet, InvoicePostcode, "
    "InvoiceCity, InvoiceSuburb, InvoiceCountry, InvoiceAddress, DeliveryCompany, DeliveryName, "
    "DeliveryFirstname, DeliveryLastname, DeliveryStreet, DeliveryPostcode, DeliveryCity, DeliverySuburb, "
    "DeliveryCountry, DeliveryAddress, Positions, Logistic";

/// The shipper's fields that stay empty.
inline const std::string LEERFELDER =
    "POOL_V_ABS_REFNR, POOL_V_ABS_BEMERKUNG, POOL_V_MAND_REFNR, POOL_V_VERFAHREN, POOL_V_TEILNAHME, "
    "POOL_V_PRODUKT_CN, POOL_V_KSTSTELLE_KUERZEL, POOL_V_EXTRASLST, POOL_EMPF_REFNR, POOL_EMPF_NAME1, "
    "POOL_EMPF_NAME2, POOL_EMPF_NAME3, POOL_EMPF_PLZ, POOL_EMPF_ORT, POOL_EMPF_ORTTEIL, "
    "POOL_EMPF_STRASSE, POOL_EMPF_TEL, POOL_EMPF_FAX, POOL_EMPF_APARTNER, POOL_EMPF_BEMERKUNG, "
    "POOL_EMPF_USTID, POOL_V_ZOLL_WARENLISTE, POOL_V_VORAUSVERF_NAT_UNZUST, POOL_V_VORAUSVERF_INT_TRANSP, "
    "POOL_ABWERK_ANZAHL, POOL_ABWERK_NR, POOL_ABWERK_DATE, POOL_ABWERK_BBNNR, POOL_SHIPMENT_ID, "
    "POOL_VORDATE, POOL_EXWORKS, POOL_CONTENTS, POOL_IDENTEXPRESS, POOL_EXTRADATA, POOL_SENDUNGSINHALTDHL, "
    "POOL_RECHNUNGSARTDHL, POOL_RECHNUNGSNUMMERDHL, POOL_RECHNUNGSDATUMDHL, POOL_UNTERZEICHNERDHL, "
    "POOL_ZOLLTARIFDHL, POOL_RECHNUNGSBEMDHL, POOL_EXPORTARTDHL, POOL_HANDELSBEDINGUNGENDHL, "
    "POOL_RECHNUNGSPOSITIONENDHL";

inline std::string Versand_einfuegen() {
  std::string leere = "''";
  for (const char z : LEERFELDER)
    if (z == ',') leere += ", ''";
  return "INSERT INTO LogisticsEASYLOG (" + BESTELLFELDER +
         ", document, DocumentNumber, Date, Conveyed, POOL_REFNR, POOL_V_NN_WAEHRUNG, POOL_WERT_WAEHRUNG, "
         "POOL_EMPF_HAUSNR, POOL_EMPF_EMAIL, POOL_EMPF_LANDCODE, POOL_EMPF_GEWICHT, POOL_ANZAHL_SENDUNGEN, "
         "POOL_V_ZOLL_WARENART, POOL_V_VORAUSVERF_NAT, POOL_V_VORAUSVERF_INT, POOL_EPACK_VORAUS, "
         "POOL_EP_VORAUS, POOL_V_VORAUSVERF_INT_TERMIN, POOL_VERWENDUNGSZWECK, " +
         LEERFELDER + ") SELECT " + BESTELLFELDER +
         ", 'Rechnung', ?1, ?2, 0, ?1, ?3, ?3, ' ', Email, DeliveryCountry, ?4, '1', '4', '0', '0', '0', "
         "'0', "
         "'0', ?5, " +
         leere + " FROM WebshopOrdersXTC WHERE OrderID = ?6";
}

inline std::string Einfuegen(const std::string &Tabelle, const std::string &Felder) {
  std::string marken = "?";
  for (const char z : Felder)
    if (z == ',') marken += ",?";
  return "INSERT INTO " + Tabelle + " (" + Felder + ") VALUES (" + marken + ")";
}

struct Anweisungen {
  explicit Anweisungen(sqlite3 *Db) : Db_(Db) {}

  sqlite3 *Db_;
  Satz Beginn_{Db_, "BEGIN IMMEDIATE"}, Schluss_{Db_, "COMMIT"};
  Satz Zaehler_lesen_{Db_, "SELECT Value FROM Options WHERE Section = 'NumberRange' AND Key = ?"};
  Satz Zaehler_schreiben_{Db_, "UPDATE Options SET Value = ? WHERE Section = 'NumberRange' AND Key = ?"};
  Satz Nummer_da_{Db_, "SELECT 1 FROM Invoice WHERE InvoiceNumber = ?"};
  Satz Posten_da_{Db_, "SELECT 1 FROM OpenItems WHERE OpenItemNumber = ?"};
  Satz Reservierung_da_{Db_, "SELECT 1 FROM Reservations WHERE ReservationNumber = ?"};
  Satz Bestellung_lesen_{Db_,
                         "SELECT OrderID, Date, Email, Positions FROM WebshopOrdersXTC WHERE OrderID = ?"};
  Satz Kunde_lesen_{
      Db_,
      "SELECT c.Matchcode, c.InvoiceAddress, c.DeliveryAddress, c.Impartation, c.TaxCalculation, "
      "c.CustomerType, l.Token FROM Contacts c, Countries l WHERE c.CustomerNumber = ? AND "
      "l.Description = c.Country"};
  Satz Form_lesen_{Db_, "SELECT Description FROM Forms WHERE Type = 'Rechnung' AND Standard <> 0"};
  Satz Bedingung_lesen_{Db_, "SELECT PaymentPeriod, Discount FROM PaymentPractices WHERE Description = ?"};
  Satz Zahlart_lesen_{Db_, "SELECT Payment, DebitAdvice FROM MethodPayments WHERE Description = ?"};
  Satz Versand_lesen_{Db_, "SELECT Costs, VatCode FROM ForwardingCharges WHERE Description = ?"};
  Satz Steuer_lesen_{Db_, "SELECT TaxKeyNumber, Percentage FROM Taxes WHERE TaxKeyNumber = ?"};
  Satz Artikel_lesen_{
      Db_,
      "SELECT a.ArticleNumber, a.ShortText, a.LongText, a.ArticleType, a.ArticleGroup_fullpath, "
      "a.Unit, a.VatCode, a.NetPrice, a.VatAmount, a.GrossPrice, a.Storage, a.UnloadingPolicy, "
      "a.WeightNet, a.WeightGross, a.Barcode, t.Stock FROM Articles a, ArticleTypes t WHERE "
      "a.WebshopID = ? AND a.Character = 0 AND t.Description = a.ArticleType"};
  Satz Kundenpreis_{Db_,
                    "SELECT GrossPrice FROM ContactPricelist WHERE ArticleNumber = ? AND CustomerNumber = ?"};
  Satz Gruppenpreis_{
      Db_, "SELECT GrossPrice FROM ArticleCustomerTypePrices WHERE ArticleNumber = ? AND CustomerType = ?"};
  Satz Staffelpreis_{Db_,
                     "SELECT GrossPrice FROM ArticleBlockpricing WHERE ArticleNumber = ? ORDER BY Quantity"};
  Satz Gruppe_lesen_{Db_, "SELECT SpecialOfferPrice FROM CustomerTypes WHERE Description = ?"};
  Satz Reserviertes_{
      Db_, "SELECT sum(Quantity) FROM Reservations WHERE document = 'Rechnung' AND DocumentNumber = ?"};
  Satz Transport_{
      Db_,
      "SELECT Quantity FROM Positions WHERE document = 'Transportauftrag' AND DocumentNumber = '' AND "
      "ReferenceDocumentNumber = ?"};
  Satz Lose_lesen_{
      Db_,
      "SELECT StockingNumber, StorageNumber, ChargeNumber, Storage, Supplier, SupplierNumber, Disposable, "
      "PurchasePrice FROM Warehouse WHERE ArticleNumber = ? AND StorageNumber LIKE ? ORDER BY Date"};
  Satz Position_einfuegen_{Db_, Einfuegen("Positions", POSITIONSFELDER)};
  Satz Kopf_einfuegen_{Db_, Einfuegen("Invoice", KOPFFELDER)};
  Satz Bezahltes_{Db_,
                  "SELECT sum(Amount) FROM PaymentIncome WHERE document = 'Rechnung' AND DocumentNumber = ?"};
  Satz Ausgezahltes_{
      Db_, "SELECT sum(Amount) FROM PaymentOutcome WHERE document = 'Rechnung' AND DocumentNumber = ?"};
  Satz Gutgeschriebenes_{Db_, "SELECT sum(TotalAmount) FROM Credit WHERE ClearedDocumentNumber = ?"};
  Satz Gemahntes_{Db_, "SELECT OverdueFines FROM Dunning WHERE InvoiceNumber = ? ORDER BY Date"};
  Satz Offenes_{Db_, "SELECT 1 FROM OpenItems WHERE document = 'Rechnung' AND DocumentNumber = ?"};
  Satz Posten_einfuegen_{
      Db_,
      Einfuegen(
          "OpenItems",
          "OpenItemNumber, document, DocumentNumber, Date, ContactNumber, Contact, Store, Employee, Amount, "
          "OverdueFines, CreditAmount, PaymentsReceived, OutgoingPayments, OutstandingAmount, DuePayment, "
          "BadDebt, BadDebtNotice, Paid")};
  Satz Lager_reservieren_{Db_,
                          "UPDATE Warehouse SET Unsociable = Unsociable + ?1, Disposable = Disposable - ?1 "
                          "WHERE StockingNumber = ?2"};
  Satz Lager_ausbuchen_{
      Db_,
      "UPDATE Warehouse SET Unsociable = Unsociable - ?1, Quantity = Disposable + Unsociable - ?1 "
      "WHERE StockingNumber = ?2"};
  Satz Reservierung_einfuegen_{
      Db_, Einfuegen(
               "Reservations",
               "ReservationNumber, ReservationType, StockingNumber, StorageNumber, ArticleNumber, ShortText, "
               "Date, Storage, SupplierNumber, Supplier, Quantity, Unit, Employee, ChargeNumber, document, "
               "DocumentNumber, LineItemNumber")};
  Satz Position_reservieren_{Db_,
                             "UPDATE Positions SET StorageNumber = ?, ReservationNumber = ? WHERE document = "
                             "'Rechnung' AND DocumentNumber = ? AND LineItemNumber = ?"};
  Satz Position_versenden_{
      Db_,
      "UPDATE Positions SET Dispatch = ?, DispatchDate = ? WHERE document = 'Rechnung' AND "
      "DocumentNumber = ?"};
  Satz Kopf_versenden_{Db_, "UPDATE Invoice SET Dispatch = ?, DispatchDate = ? WHERE InvoiceNumber = ?"};
  Satz Bestand_{Db_, "SELECT sum(Unsociable), sum(Disposable) FROM Warehouse WHERE ArticleNumber = ?"};
  Satz Artikel_schreiben_{Db_, "UPDATE Articles SET Unsociable = ?, Disposable = ? WHERE ArticleNumber = ?"};
  Satz Rueckstand_loeschen_{Db_,
                            "DELETE FROM BackOrder WHERE document = 'Rechnung' AND DocumentNumber = ? AND "
                            "CustomerNumber = ?"};
  Satz Land_lesen_{Db_, "SELECT Description FROM Countries WHERE Token = ?"};
  Satz Waehrung_lesen_{Db_, "SELECT Currency FROM Countries WHERE Description = ?"};
  Satz Nachnahme_{Db_, "SELECT CashOnDelivery FROM MethodPayments WHERE Description = ?"};
  Satz Gewicht_{
      Db_,
      "SELECT sum(WeightGross * Quantity) FROM Positions WHERE document = 'Rechnung' AND DocumentNumber = ?"};
  Satz Versand_da_{Db_, "SELECT 1 FROM LogisticsEASYLOG WHERE OrderID = ?"};
  Satz Versand_einfuegen_{Db_, Versand_einfuegen()};
  Satz Uebergeben_{Db_, "UPDATE WebshopOrdersXTC SET Logistic = ? WHERE OrderID = ?"};
};

}  // namespace marklink::messung
