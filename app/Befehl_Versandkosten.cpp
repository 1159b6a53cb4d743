// marklink versandkosten: what a shipping method costs for a country and a weight. Reads only.
#include <QJsonDocument>
#include <QJsonObject>

#include "Aufrufwerte.h"
#include "Ausgabe.h"
#include "Sitzung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "rules/Versandkosten.h"

namespace marklink {
namespace {

/// Scales name countries by their tokens, as documents do; here a country may be called by its name as well.
QString Versandzone(const QString &Land) {
  const QString token = Abfragen({"SELECT Token FROM Countries WHERE Description = ", db::Wert{Land}})
                            .Text(QStringLiteral("Token"));
  return token.isEmpty() ? Land : token;
}

}  // namespace

int Befehl_Versandkosten(const Aufruf &A) {
  const QString methode = A.Argumente[0], land = A.Argumente[1];
  const std::optional<double> gewicht = Zahl_aus_Argument(A, 2);
  if (!gewicht) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  if (!Datensatz_existiert(QStringLiteral("ForwardingCharges"), QStringLiteral("Description"), methode)) {
    Fehler_melden(QStringLiteral("Die Versandart '%1' ist nicht vorhanden.").arg(methode));
    return Fehlgeschlagen;
  }
  double kosten = 0.0;
  QString schluessel;
  Versandkosten_ermitteln(kosten, schluessel, methode, Versandzone(land), *gewicht);
  if (A.Gegeben("json")) {
    const QJsonObject json{{QStringLiteral("methode"), methode},
                           {QStringLiteral("land"), land},
                           {QStringLiteral("gewicht"), *gewicht},
                           {QStringLiteral("kosten"), kosten},
                           {QStringLiteral("steuerschluessel"), schluessel}};
    Ausgeben(QString::fromUtf8(QJsonDocument(json).toJson()).trimmed());
    return Erledigt;
  }
  Ausgeben(QStringLiteral("Versandart:      %1\nLand:            %2\nGewicht:         %3 kg\n"
                          "Kosten (netto):  %4 %5\nSteuerschlüssel: %6")
               .arg(Anzeigbar(methode), Anzeigbar(land), Zahl_als_Text(*gewicht),
                    Zahl_formatieren(kosten, QStringLiteral("standard")), Anzeigbar(Kontext.gCurrency),
                    Anzeigbar(schluessel)));
  return Erledigt;
}

}  // namespace marklink
