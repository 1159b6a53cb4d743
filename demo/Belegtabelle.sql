-- What became of the orders: every document that was made from one, and how its total stands to the shop's own.
.mode column
.headers on
WITH belege AS (
  SELECT 'Rechnung' AS Wort, InvoiceNumber AS Nummer, OrderingNumber, CustomerNumber, NetAmount, VatAmount, TotalAmount
  FROM Invoice WHERE Webshop <> 0 AND OrderingNumber IN (SELECT OrderID FROM WebshopOrdersXTC)
  UNION ALL
  SELECT 'Auftrag', ContractNumber, OrderingNumber, CustomerNumber, NetAmount, VatAmount, TotalAmount
  FROM Contract WHERE Webshop <> 0 AND OrderingNumber IN (SELECT OrderID FROM WebshopOrdersXTC)
), zeilen AS (
  SELECT document, DocumentNumber, count(*) AS Anzahl, sum(BackOrder) AS Rueckstand
  FROM Positions GROUP BY document, DocumentNumber
)
SELECT o.OrderID AS Bestellung, b.CustomerNumber AS Kunde, b.Nummer AS Beleg, ifnull(z.Anzahl, 0) AS Pos,
       printf('%.2f', b.NetAmount) AS Netto, printf('%.2f', b.VatAmount) AS Steuer, printf('%.2f', b.TotalAmount) AS Gesamt,
       iif(p.OutstandingAmount IS NULL, '', printf('%.2f', p.PaymentsReceived)) AS Bezahlt,
       iif(p.OutstandingAmount IS NULL, '', printf('%.2f', p.OutstandingAmount)) AS Offen,
       printf('%g', ifnull(z.Rueckstand, 0)) AS Rückstand, printf('%.2f', o.Amount) AS Shop,
       CASE WHEN o.Currency <> 'EUR' THEN o.Currency
            WHEN abs(b.TotalAmount - o.Amount) < 0.005 THEN 'gleich'
            ELSE printf('%+.2f', b.TotalAmount - o.Amount) END AS Abweichung
FROM belege b
JOIN WebshopOrdersXTC o ON o.OrderID = b.OrderingNumber
LEFT JOIN zeilen z ON z.document = b.Wort AND z.DocumentNumber = b.Nummer
LEFT JOIN OpenItems p ON p.document = b.Wort AND p.DocumentNumber = b.Nummer
ORDER BY o.OrderID, b.Wort;

SELECT b.Wort AS Belegart, count(*) AS Anzahl, printf('%.2f', sum(b.TotalAmount)) AS Gesamt,
       sum(o.Currency = 'EUR' AND abs(b.TotalAmount - o.Amount) < 0.005) AS "wie im Shop",
       sum(o.Currency = 'EUR' AND abs(b.TotalAmount - o.Amount) >= 0.005) AS abweichend,
       sum(o.Currency <> 'EUR') AS "andere Währung"
FROM (SELECT 'Rechnung' AS Wort, OrderingNumber, TotalAmount FROM Invoice WHERE Webshop <> 0
      UNION ALL SELECT 'Auftrag', OrderingNumber, TotalAmount FROM Contract WHERE Webshop <> 0) b
JOIN WebshopOrdersXTC o ON o.OrderID = b.OrderingNumber
GROUP BY b.Wort;
