// Reading what the order desk shows for the current order.
#include "Auftragsansicht.h"

#include <QFile>
#include <QFileInfo>

#include "Bestellstatus.h"
#include "Positionstext.h"
#include "host/Dateien.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Texte.h"
#include "host/Zahlen.h"

namespace marklink {

namespace {

/// A number text by a picture; a text that is no number shows as it is.
QString Zahltext_formatieren(const QString &Text, const QString &Bild) {
  const std::optional<double> zahl = Zahl_deutsch(Text);
  return zahl ? Zahl_formatieren(*zahl, Bild) : Text;
}

QString Ersatzbild() { return Kontext.gProgrammpfad + QStringLiteral("noimage.jpg"); }

QString Artikelbild(const QString &Kennung) {
  // The id becomes part of a file name: nothing but digits.
  bool lesbar = false;
  const int id = Kennung.toInt(&lesbar);
  if (!lesbar || id < 0) return Ersatzbild();
  const QString datei = Temp_Ordner() + QString::number(id) + QStringLiteral(".jpg");
  QFile::remove(datei);  // an older picture of that number must not stand in for one that cannot be read
  // What cannot be removed from the shared folder is somebody else's: neither shown nor written through.
  const QFileInfo rest(datei);
  if (rest.exists() || rest.isSymLink()) return Ersatzbild();
  const QString ziel =
      Feld_in_Datei(Kontext.gDatenbank, datei, QStringLiteral("ArticlePictures"), QStringLiteral("Picture"),
                    {" WHERE id = ", db::Zahl(id)}, QStringLiteral("481902"));
  return Datei_existiert(ziel) ? ziel : Ersatzbild();
}

QString Bestandstext(const QVariant &Summe, const QString &Einheit) {
  return Zahltext_formatieren(Null_als_Text(Summe), Kontext.gMassFormat) + u' ' + Einheit;
}

db::Anweisung Artikelanweisung(const QString &ShopID, const QString &Variantentext) {
  db::Anweisung sql{
      "SELECT Articles.ArticleNumber, Articles.Graphic, Articles.DateUpdate, Articles.Barcode, "
      "Articles.ShortText, "
      "Articles.ArticleType, Articles.ArticleGroup, Articles.Unit, Articles.VatCode, Articles.NetPrice, "
      "Articles.VatAmount, Articles.GrossPrice, Articles.Storage, Articles.StockMin, Articles.StockMax, "
      "Articles.DateOfExpiryCheck, Articles.WeightNet, Articles.WeightGross, Articles.WarrantyNumber, "
      "Articles.Webshop, Articles.POSAble, Articles.Active, SUM(Warehouse.Disposable) AS Disposable, "
      "SUM(Warehouse.Unsociable) AS Unsociable FROM Articles LEFT JOIN Warehouse "
      "ON Articles.ArticleNumber = Warehouse.ArticleNumber WHERE ",
      db::Teiltext{Bedingung_IstNull(QStringLiteral("Articles.ArticleNumber"), false)},
      " AND Articles.WebshopID = ", db::Wert{ShopID}};
  if (!Variantentext.isEmpty()) sql += {" AND Articles.WebshopVariantText = ", db::Wert{Variantentext}};
  sql +=
      " GROUP BY Articles.ArticleNumber, Articles.Graphic, Articles.DateUpdate, Articles.Barcode, "
      "Articles.ShortText, "
      "Articles.ArticleType, Articles.ArticleGroup, Articles.Unit, Articles.VatCode, Articles.NetPrice, "
      "Articles.VatAmount, Articles.GrossPrice, Articles.Storage, Articles.StockMin, Articles.StockMax, "
      "Articles.DateOfExpiryCheck, Articles.WeightNet, Articles.WeightGross, Articles.WarrantyNumber, "
      "Articles.Webshop, Articles.POSAble, Articles.Active ORDER BY Articles.ArticleNumber";
  return sql;
}

}  // namespace

std::vector<Positionszeile> Auftrag_Positionen_anzeigen(const QString &Bestellnummer) {
  std::vector<Positionszeile> zeilen;
  for (const QStringList &felder : Positionstext_teilen(Positionen_der_Bestellung(Bestellnummer))) {
    zeilen.push_back({felder[0], felder[2], Zahltext_formatieren(felder[1], Kontext.gMassFormat), felder[3],
                      felder[6], Zahltext_formatieren(felder[5], QStringLiteral("standard")),
                      Zahltext_formatieren(felder[4], Kontext.gRebateFormat)});
  }
  return zeilen;
}

Artikelanzeige Artikel_anzeigen(const QString &ShopID, const QString &Variantentext) {
  Artikelanzeige artikel;
  artikel.Bild = Ersatzbild();
  const db::Recordset satz = Abfragen(Artikelanweisung(ShopID, Variantentext));
  if (satz.RecordCount() < 1) return artikel;
  artikel.Gefunden = true;
  artikel.ShortText = satz.Text(QStringLiteral("ShortText"));
  artikel.DateUpdate = Null_als_Text(satz.Value(QStringLiteral("DateUpdate")));
  const QString einheit = satz.Text(QStringLiteral("Unit"));
  artikel.Disposable = Bestandstext(satz.Value(QStringLiteral("Disposable")), einheit);
  artikel.Unsociable = Bestandstext(satz.Value(QStringLiteral("Unsociable")), einheit);
  const QString bild = satz.Text(QStringLiteral("Graphic"));
  if (!bild.isEmpty()) artikel.Bild = Artikelbild(bild);
  return artikel;
}

std::optional<Auftragsanzeige> Auftrag_anzeigen(const Auftragsliste &Liste) {
  if (Kontext.gLaeuft || Liste.Zeilenzahl() == 0) return {};
  const int zeile = Liste.AktuelleZeile();
  const QString nummer = Liste.Zelle(zeile, "OrderID").toString();
  if (nummer.isEmpty()) return {};

  Auftragsanzeige anzeige;
  anzeige.Positionen = Auftrag_Positionen_anzeigen(nummer);
  anzeige.Anschriften = Auftrag_Anschriften_anzeigen(nummer);
  anzeige.Zahlungsinformationen = Liste.Zelle(zeile, "ExtendedInfo").toString();
  anzeige.Bemerkungen = Liste.Zelle(zeile, "Notes").toString();
  if (anzeige.Positionen.empty()) {
    anzeige.Artikel.Bild = Ersatzbild();
  } else {
    anzeige.Artikel =
        Artikel_anzeigen(anzeige.Positionen.front().ProductsID, anzeige.Positionen.front().Optionen);
  }
  return anzeige;
}

}  // namespace marklink
