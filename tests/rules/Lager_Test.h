// A client with one article in stock, and short ways to its rows.
#pragma once

#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "rules/Lager.h"
#include "rules/Zuteilungsliste.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink::test {

class Lager_Test : public Mandant_Test {
 protected:
  static QString Q(const char *Text) { return QString::fromUtf8(Text); }

  void Artikel(const char *Nummer, int Strategie = 0, const char *Lager = "01") {
    Mandant.Zeile(Q("Articles"),
                  {Q("ArticleNumber"), Q(Nummer), Q("UnloadingPolicy"), Strategie, Q("Storage"), Q(Lager)});
  }
  void Los_einlagern(const char *Nummer, double Frei, int Tag = 1, double Preis = 1.0,
                     const char *Lager = "01-A", const char *Artikelnummer = "A1", double Reserviert = 0) {
    Mandant.Zeile(Q("Warehouse"), {Q("StockingNumber"), Q(Nummer),
                                   Q("ArticleNumber"),  Q(Artikelnummer),
                                   Q("StorageNumber"),  Q(Lager),
                                   Q("Date"),           QDateTime(QDate(2024, 1, Tag), QTime(0, 0), Qt::UTC),
                                   Q("PurchasePrice"),  Preis,
                                   Q("Quantity"),       Frei + Reserviert,
                                   Q("Disposable"),     Frei,
                                   Q("Unsociable"),     Reserviert,
                                   Q("ChargeNumber"),   QStringLiteral("CH") + Q(Nummer),
                                   Q("Storage"),        Q("Hauptlager"),
                                   Q("Supplier"),       Q("Großhandel")});
  }
  void Position(const char *Beleg, const char *Nummer, const char *Zeile, const QVariant &Zuteilung,
                double Rueckstand = 0, const char *Artikelnummer = "A1") {
    Mandant.Zeile(Q("Positions"),
                  {Q("document"), Q(Beleg), Q("DocumentNumber"), Q(Nummer), Q("LineItemNumber"), Q(Zeile),
                   Q("ArticleNumber"), Q(Artikelnummer), Q("ShortText"), Q("Ware"), Q("Unit"), Q("Stück"),
                   Q("StorageNumber"), Zuteilung, Q("BackOrder"), Rueckstand});
  }
  /// The rows of a statement, fields joined by "|", rows by a blank.
  static QString Zeilen(const db::Anweisung &Sql) {
    QStringList zeilen;
    for (db::Recordset rs = Abfragen(Sql); !rs.IsEOF(); rs.MoveNext()) {
      QStringList felder;
      for (const QString &feld : rs.Fields()) felder << rs.Text(feld);
      zeilen << felder.join(u'|');
    }
    return zeilen.join(u' ');
  }
  static QString Bestand() {
    return Zeilen(
        "SELECT StockingNumber, Quantity, Disposable, Unsociable FROM Warehouse ORDER BY StockingNumber");
  }
};

}  // namespace marklink::test
