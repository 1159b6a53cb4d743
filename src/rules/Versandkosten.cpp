// Shipping: weights of a document, the free-shipping limit, costs of a shipping method.
#include "Versandkosten.h"

#include <QStringList>
#include <optional>

#include "Berechnung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Laender.h"
#include "host/Nachschlagen.h"
#include "host/Zahlen.h"
#include "ui/Dialoge.h"

namespace marklink {
namespace {

double Zahl_oder_Null(const QString &Text) { return Zahl_deutsch(Text).value_or(0.0); }

/// The three fields of the first zone that lists the country, else of the last zone.
QStringList Zone_waehlen(const QString &Staffel, const QString &Land) {
  QStringList felder;
  for (const QString &zone : Staffel.split(u'|')) {
    felder = zone.split(u'~');
    if (felder[0].split(u';').contains(Land)) break;
  }
  return felder;
}

/// The step "weight:costs" for the weight: the one of exactly this weight, else the smallest above it. Steps
/// are looked at from the last to the first, and one without a readable weight is no step.
std::optional<QString> Stufe_waehlen(const QString &Stufen, double Gewicht) {
  const QStringList alle = Stufen.split(u';');
  double grenze = 999.0;
  std::optional<QString> gewaehlt;
  for (qsizetype i = alle.size(); i-- > 0;) {
    const QString &stufe = alle[i];
    const std::optional<double> bis = Zahl_deutsch(stufe.section(u':', 0, 0));
    if (!bis) continue;
    if (*bis == Gewicht) return stufe;
    if (*bis > Gewicht && *bis < grenze) {
      gewaehlt = stufe;
      grenze = *bis;
    }
  }
  return gewaehlt;
}

double Versandkosten_erfragen() {
  return Zahl_oder_Null(dialoge().Eingabe(
      QStringLiteral("Versandkosten"),
      QStringLiteral("Leider ist in der Versandkosten-Preisstaffel kein ausreichendes Gewicht vorhanden. "
                     "Geben Sie daher bitte die Versandkosten (netto) manuell ein."),
      QStringLiteral("0,00")));
}

}  // namespace

void Gewicht_summieren(double &Netto, double &Brutto, const QString &Beleg, const QString &Nummer) {
  db::Recordset rs = Abfragen({"SELECT * FROM Positions WHERE Document = ", db::Wert{Beleg},
                               " AND DocumentNumber = ", db::Wert{Nummer}});
  for (; !rs.IsEOF(); rs.MoveNext()) {
    const double menge = rs.Number(QStringLiteral("Quantity"));
    Netto += rs.Number(QStringLiteral("WeightNet")) * menge;
    Brutto += rs.Number(QStringLiteral("WeightGross")) * menge;
  }
}

QString Versandart_aus_Token(const QString &Token) {
  return Nachschlagen({"SELECT Description FROM ForwardingCharges WHERE Token = ", db::Wert{Token}},
                      QStringLiteral("Description"));
}

void Versandfreigrenze_ermitteln(const QString &Land) {
  if (Programmoption("FreeShipping") != QLatin1String("1")) return;
  const qint16 art = Als_Kurzzahl(Programmoption("FreeShippingType"));
  if (art != 0 && art != 1) return;
  Kontext.gFreeShippingAmount = art == 1 && !Land.isEmpty()
                                    ? Land_Versandfreigrenze(Land)
                                    : Zahl_oder_Null(Programmoption("FreeShippingAmount"));
}

void Versandkosten_ermitteln(double &Kosten, QString &Steuerschluessel, const QString &Versandart,
                             const QString &Land, double Gewicht) {
  const db::Recordset rs = Abfragen(
      {"SELECT Costs, VatCode, PriceScaleEnable, PriceScale FROM ForwardingCharges WHERE Description = ",
       db::Wert{Versandart}});
  if (rs.RecordCount() < 1) return;
  if (rs.Flag(QStringLiteral("PriceScaleEnable"))) {
    Versandkosten_Staffel(Kosten, Steuerschluessel, rs.Text(QStringLiteral("PriceScale")), Land, Gewicht);
    return;
  }
  Kosten = rs.Number(QStringLiteral("Costs"));
  Steuerschluessel = rs.Text(QStringLiteral("VatCode"));
}

void Versandkosten_Staffel(double &Kosten, QString &Steuerschluessel, const QString &Staffel,
                           const QString &Land, double Gewicht) {
  const QStringList zone = Zone_waehlen(Staffel, Land);
  Steuerschluessel = zone.value(2);
  Kosten = 0.0;
  if (zone.value(1).isEmpty()) return;  // a zone cut short costs nothing, intended
  // Three times 1.1 kg are 3.3 kg: the noise of a sum never costs a step.
  const std::optional<QString> stufe = Stufe_waehlen(zone.value(1), Runden(Gewicht, 6));
  Kosten = stufe ? Zahl_oder_Null(stufe->section(u':', 1, 1)) : Versandkosten_erfragen();
}

void Versandkosten_lesen(double &Kosten, QString &Steuerschluessel, double &Gewicht,
                         const QString &Versandart) {
  const db::Recordset rs = Abfragen(
      {"SELECT Costs, VatCode, Weight FROM ForwardingCharges WHERE Description = ", db::Wert{Versandart}});
  if (rs.RecordCount() < 1) return;
  Kosten = rs.Number(QStringLiteral("Costs"));
  Steuerschluessel = rs.Text(QStringLiteral("VatCode"));
  Gewicht = rs.Number(QStringLiteral("Weight"));
}

}  // namespace marklink
