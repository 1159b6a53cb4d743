// marklink lager: why a line gets the lots it gets. Reads only.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Aufrufwerte.h"
#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Sitzung.h"
#include "Texttabelle.h"
#include "host/Datenbank.h"
#include "host/Zahlen.h"
#include "rules/Artikelfelder.h"
#include "rules/Lager.h"
#include "rules/Zuteilungsliste.h"

namespace marklink {
namespace {

struct Auskunft {
  QString Artikel, Lager;
  double Menge = 0, Zugeteilt = 0;
  int Strategie = 0;
  std::vector<Los> Lose;
  QVariant Einkaufspreis;

  double Fehlt() const { return qMax(0.0, Menge_summe(Menge, -Zugeteilt)); }
};

Auskunft Auskunft_einholen(const QString &Artikel, double Menge, const QString &Lager) {
  const QString zuteilung = Bestand_zuteilen(Artikel, Menge, Lager);
  return {Artikel,
          Lager.isEmpty() ? Artikel_Lager(Artikel) : Lager,
          Menge,
          Zuteilung_Wert(zuteilung, int(Losfeld::Menge)).toDouble(),
          Artikel_Feld_lesen(Artikel, Artikelfeld::UnloadingPolicy).toInt(),
          Zuteilung_zerlegen(zuteilung),
          Zuteilung_Wert(zuteilung, int(Losfeld::Einkaufspreis))};
}

QString Strategietext(int Strategie) {
  static const QStringList texte{QStringLiteral("älteste zuerst"), QStringLiteral("neueste zuerst"),
                                 QStringLiteral("teuerste zuerst"), QStringLiteral("günstigste zuerst"),
                                 QStringLiteral("kleinster Rest zuerst")};
  return texte.value(Strategie, QStringLiteral("unbekannte Entnahmestrategie %1").arg(Strategie));
}

QString Als_Text(const Auskunft &A) {
  const auto zahl = [](double wert) { return Zahl_formatieren(wert, QStringLiteral("#,##0.00####")); };
  QString text =
      QStringLiteral("Artikel %1, Lager %2, %3")
          .arg(Anzeigbar(A.Artikel), A.Lager.isEmpty() ? QStringLiteral("beliebig") : Anzeigbar(A.Lager),
               Strategietext(A.Strategie));
  if (!A.Lose.empty()) {
    Texttabelle tabelle({{QStringLiteral("Einlagerung")},
                         {QStringLiteral("Lager")},
                         {QStringLiteral("Charge")},
                         {QStringLiteral("Menge"), true},
                         {QStringLiteral("Einkaufspreis"), true}});
    for (const Los &los : A.Lose)
      tabelle.Zeile({Los_Text(los, Losfeld::Einlagerung), Los_Text(los, Losfeld::Lager),
                     Los_Text(los, Losfeld::Charge), zahl(Los_Zahl(los, Losfeld::Menge)),
                     zahl(Los_Zahl(los, Losfeld::Einkaufspreis))});
    text += QStringLiteral("\n\n") + tabelle.Text(QStringLiteral("  ")) + u'\n';
  }
  text += QStringLiteral("\nZugeteilt: %1 von %2, es fehlen: %3")
              .arg(zahl(A.Zugeteilt), zahl(A.Menge), zahl(A.Fehlt()));
  if (!A.Einkaufspreis.isNull())
    text += QStringLiteral("\nMittlerer Einkaufspreis: ") + zahl(A.Einkaufspreis.toDouble());
  return text;
}

QJsonObject Als_Json(const Auskunft &A) {
  QJsonArray lose;
  for (const Los &los : A.Lose)
    lose.append(QJsonObject{{QStringLiteral("einlagerung"), Los_Text(los, Losfeld::Einlagerung)},
                            {QStringLiteral("lager"), Los_Text(los, Losfeld::Lager)},
                            {QStringLiteral("charge"), Los_Text(los, Losfeld::Charge)},
                            {QStringLiteral("menge"), Los_Zahl(los, Losfeld::Menge)},
                            {QStringLiteral("einkaufspreis"), Los_Zahl(los, Losfeld::Einkaufspreis)}});
  return {{QStringLiteral("artikel"), A.Artikel},
          {QStringLiteral("lager"), A.Lager},
          {QStringLiteral("menge"), A.Menge},
          {QStringLiteral("strategie"), A.Strategie},
          {QStringLiteral("lose"), lose},
          {QStringLiteral("zugeteilt"), A.Zugeteilt},
          {QStringLiteral("fehlt"), A.Fehlt()},
          {QStringLiteral("einkaufspreis"), QJsonValue::fromVariant(A.Einkaufspreis)}};
}

}  // namespace

int Befehl_Lager_zuteilen(const Aufruf &A) {
  const QString artikel = A.Argumente[0];
  const std::optional<double> menge = Zahl_aus_Argument(A, 1);
  if (!menge) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  if (!Datensatz_existiert(QStringLiteral("Articles"), QStringLiteral("ArticleNumber"), artikel)) {
    Fehler_melden(QStringLiteral("Den Artikel '%1' gibt es nicht.").arg(artikel));
    return Fehlgeschlagen;
  }
  const Auskunft auskunft = Auskunft_einholen(artikel, *menge, A.Wert("lager"));
  if (A.Gegeben("json"))
    Ausgeben(QString::fromUtf8(QJsonDocument(Als_Json(auskunft)).toJson()).trimmed());
  else
    Ausgeben(Als_Text(auskunft));
  return Erledigt;
}

}  // namespace marklink
