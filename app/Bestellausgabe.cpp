// Orders as text and as JSON.
#include "Bestellausgabe.h"

#include "Ausgabe.h"
#include "Texttabelle.h"
#include "Werteausgabe.h"
#include "orders/Bestellstatus.h"
#include "orders/Positionstext.h"

namespace marklink {
namespace {

QString Zelltext(const Auftragsliste &Liste, int Zeile, const char *Schluessel) {
  return Werttext(Liste.Zelle(Zeile, Schluessel));
}

QString Statustext(const Auftragsliste &Liste, const QString &Id) {
  for (const Listenzeile &z : Liste.lvwAuftragsstatus.Zeilen)
    if (z.Spalten.value(1) == Id) return QStringLiteral("%1 (%2)").arg(Id, z.Spalten.value(0));
  return Id;
}

QString Block(const QString &Titel, const QString &Text) {
  if (Text.trimmed().isEmpty()) return {};
  QString block = QStringLiteral("\n\n%1:").arg(Titel);
  for (const QString &zeile : Anzeigbar_mehrzeilig(Text).split(u'\n'))
    if (!zeile.trimmed().isEmpty()) block += QStringLiteral("\n  ") + zeile;
  return block;
}

QString Positionstabelle(const std::vector<Positionszeile> &Positionen) {
  if (Positionen.empty()) return {};
  Texttabelle tabelle({{QStringLiteral("Artikelnr.")},
                       {QStringLiteral("Menge"), true},
                       {QStringLiteral("Bezeichnung")},
                       {QStringLiteral("Optionen")},
                       {QStringLiteral("Einzelpreis"), true},
                       {QStringLiteral("Rabatt"), true}});
  for (const Positionszeile &p : Positionen)
    tabelle.Zeile({p.Artikelnummer, p.Menge, p.Bezeichnung, p.Optionen, p.Einzelpreis, p.Rabatt});
  return QStringLiteral("\n\nPositionen:\n") + tabelle.Text(QStringLiteral("  "));
}

QJsonObject Position_als_Json(const Bestellposition &P) {
  return {{QStringLiteral("ProductsID"), P.ProductsID},
          {QStringLiteral("Menge"), P.Menge},
          {QStringLiteral("Artikelnummer"), P.Artikelnummer},
          {QStringLiteral("Bezeichnung"), P.Bezeichnung},
          {QStringLiteral("Rabatt"), P.Rabatt},
          {QStringLiteral("Einzelpreis"), P.Einzelpreis},
          {QStringLiteral("Optionen"), P.Optionen}};
}

}  // namespace

QString Bestelltabelle(const Auftragsliste &Liste) {
  Texttabelle tabelle({{QStringLiteral("Bestellnr.")},
                       {QStringLiteral("Datum")},
                       {QStringLiteral("Kunde")},
                       {QStringLiteral("Auftragswert"), true},
                       {QStringLiteral("Währung")},
                       {QStringLiteral("Zahlungsart")},
                       {QStringLiteral("Versandart")},
                       {QStringLiteral("Status")}});
  for (int i = 0; i < Liste.Zeilenzahl(); ++i) {
    QStringList zellen;
    for (const char *schluessel :
         {"OrderID", "Date", "Customer", "Amount", "Currency", "Payment", "Shipping"})
      zellen << Zelltext(Liste, i, schluessel);
    tabelle.Zeile(zellen << Statustext(Liste, Zelltext(Liste, i, "Status")));
  }
  const int anzahl = Liste.Zeilenzahl();
  if (anzahl == 0) return QStringLiteral("Keine Bestellungen.");
  return tabelle.Text() +
         QStringLiteral("\n\n%1 %2")
             .arg(anzahl)
             .arg(anzahl == 1 ? QStringLiteral("Bestellung") : QStringLiteral("Bestellungen"));
}

QJsonObject Bestellung_als_Json(const Auftragsliste &Liste, int Zeile) {
  QJsonObject objekt;
  for (const Auftragsspalte &s : Auftragsspalten())
    objekt.insert(QLatin1String(s.Schluessel), Als_Json(Liste.Zelle(Zeile, s.Schluessel)));
  return objekt;
}

QJsonArray Bestellungen_als_Json(const Auftragsliste &Liste) {
  QJsonArray alle;
  for (int i = 0; i < Liste.Zeilenzahl(); ++i) alle.append(Bestellung_als_Json(Liste, i));
  return alle;
}

QString Bestellung_als_Text(const Auftragsliste &Liste, const Auftragsanzeige &Anzeige) {
  const int zeile = Liste.AktuelleZeile();
  QString text =
      QStringLiteral("Bestellung %1 vom %2")
          .arg(Anzeigbar(Zelltext(Liste, zeile, "OrderID")), Anzeigbar(Zelltext(Liste, zeile, "Date")));
  const std::pair<const char *, const char16_t *> felder[] = {
      {"Status", u"Status"},         {"Customer", u"Kunde"},      {"CustomerNumber", u"Kundennr."},
      {"Email", u"E-Mail"},          {"Telephone", u"Telefon"},   {"Amount", u"Auftragswert"},
      {"Rebate", u"Rabatt (Kunde)"}, {"Payment", u"Zahlungsart"}, {"Shipping", u"Versandart"}};
  for (const auto &[schluessel, titel] : felder) {
    const QLatin1String name(schluessel);
    QString wert = Zelltext(Liste, zeile, schluessel);
    if (wert.isEmpty()) continue;
    if (name == QLatin1String("Status")) wert = Statustext(Liste, wert);
    if (name == QLatin1String("Amount")) wert += u' ' + Zelltext(Liste, zeile, "Currency");
    text += u'\n' + (QString::fromUtf16(titel) + u':').leftJustified(16) + Anzeigbar(wert);
  }
  return text + Positionstabelle(Anzeige.Positionen) +
         Block(QStringLiteral("Rechnungsanschrift"), Anzeige.Anschriften.InvoiceAddress) +
         Block(QStringLiteral("Lieferanschrift"), Anzeige.Anschriften.DeliveryAddress) +
         Block(QStringLiteral("Zahlungsinformationen"), Anzeige.Zahlungsinformationen) +
         Block(QStringLiteral("Bemerkungen"), Anzeige.Bemerkungen);
}

QJsonObject Bestellanzeige_als_Json(const Auftragsliste &Liste) {
  const int zeile = Liste.AktuelleZeile();
  QJsonObject objekt = Bestellung_als_Json(Liste, zeile);
  QJsonArray positionen;
  for (const Bestellposition &p :
       Positionstext_lesen(Positionen_der_Bestellung(Liste.Zelle(zeile, "OrderID").toString())))
    positionen.append(Position_als_Json(p));
  objekt.insert(QStringLiteral("Positions"), positionen);
  return objekt;
}

}  // namespace marklink
