// marklink preis: what an article costs a customer, and which source says so. Reads only.
#include <QJsonDocument>
#include <QJsonObject>

#include "Aufrufwerte.h"
#include "Ausgabe.h"
#include "Sitzung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "rules/Berechnung.h"
#include "rules/Preisfindung.h"

namespace marklink {
namespace {

QString Quellentext(Preisquelle Quelle) {
  switch (Quelle) {
    case Preisquelle::Kundenpreisliste:
      return QStringLiteral("Kundenpreisliste");
    case Preisquelle::Kundengruppe:
      return QStringLiteral("Kundengruppe");
    case Preisquelle::Gruppenstaffel:
      return QStringLiteral("Gruppenstaffel");
    case Preisquelle::Artikel:
      return QStringLiteral("Artikel");
    case Preisquelle::Staffel:
      return QStringLiteral("Staffel");
    case Preisquelle::Sonderpreis:
      return QStringLiteral("Sonderpreis");
    case Preisquelle::Keine:
      break;
  }
  return QStringLiteral("keine");
}

QJsonObject Preis_als_Json(const QString &Kunde, double Menge, const Preis &P, Preisquelle Quelle) {
  return {{QStringLiteral("artikel"), P.Artikelnummer},
          {QStringLiteral("kunde"), Kunde},
          {QStringLiteral("menge"), Menge},
          {QStringLiteral("netto"), P.Netto},
          {QStringLiteral("steuer"), P.Steuer},
          {QStringLiteral("brutto"), P.Brutto},
          {QStringLiteral("steuerschluessel"), P.Steuerschluessel},
          {QStringLiteral("quelle"), Quellentext(Quelle)}};
}

QString Preis_als_Text(const QString &Kunde, double Menge, const Preis &P, Preisquelle Quelle) {
  const auto betrag = [](double b) { return Zahl_formatieren(b, Kontext.gPriceFormat); };
  const std::pair<QString, QString> zeilen[] = {{QStringLiteral("Artikel"), P.Artikelnummer},
                                                {QStringLiteral("Kunde"), Kunde},
                                                {QStringLiteral("Menge"), Zahl_als_Text(Menge)},
                                                {QStringLiteral("Netto"), betrag(P.Netto)},
                                                {QStringLiteral("Steuer"), betrag(P.Steuer)},
                                                {QStringLiteral("Brutto"), betrag(P.Brutto)},
                                                {QStringLiteral("Steuerschlüssel"), P.Steuerschluessel},
                                                {QStringLiteral("Quelle"), Quellentext(Quelle)}};
  QStringList text;
  for (const auto &[titel, wert] : zeilen) text << (titel + u':').leftJustified(17) + Anzeigbar(wert);
  return text.join(u'\n');
}

}  // namespace

int Befehl_Preis(const Aufruf &A) {
  const QString artikel = A.Argumente[0], kunde = A.Argumente[1];
  const std::optional<double> menge = Zahl_aus_Argument(A, 2);
  if (!menge) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  Preis preis;
  preis.Artikelnummer = artikel;
  const Preisquelle quelle =
      Preis_ermitteln(preis, artikel, kunde, *menge, Stammdaten::Lesen, Kontext.gArticlePriceReadout);
  if (quelle == Preisquelle::Keine) {
    const bool da = Datensatz_existiert(QStringLiteral("Articles"), QStringLiteral("ArticleNumber"), artikel);
    Fehler_melden((da ? QStringLiteral("Der Preis des Artikels '%1' lässt sich nicht berechnen.")
                      : QStringLiteral("Der Artikel '%1' ist nicht vorhanden."))
                      .arg(artikel));
    return Fehlgeschlagen;
  }
  if (!Datensatz_existiert(QStringLiteral("Contacts"), QStringLiteral("CustomerNumber"), kunde))
    Fehler_melden(QStringLiteral("Der Kunde '%1' ist nicht vorhanden; es gilt der Preis ohne Kundengruppe.")
                      .arg(kunde));
  // As a position of a document shows them.
  for (double *betrag : {&preis.Netto, &preis.Steuer, &preis.Brutto})
    *betrag = Runden(*betrag, Kontext.gPreisNachkommastellen);
  if (A.Gegeben("json"))
    Ausgeben(
        QString::fromUtf8(QJsonDocument(Preis_als_Json(kunde, *menge, preis, quelle)).toJson()).trimmed());
  else
    Ausgeben(Preis_als_Text(kunde, *menge, preis, quelle));
  return Erledigt;
}

}  // namespace marklink
