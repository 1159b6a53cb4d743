// The discount list of a document.
#include "Rabattliste.h"

#include <QStringList>
#include <optional>

#include "Berechnung.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

struct Rabatt {
  QString Name;
  std::optional<double> Art, Wert;
  std::optional<bool> Gebunden;
  QString Steuerschluessel;
};

/// True is any number but 0; older lists hold the words. Nothing when the field holds neither.
std::optional<bool> Schalter_lesen(const QString &Text) {
  if (const auto zahl = Zahl_deutsch(Text)) return *zahl != 0;
  for (const char *wort : {"wahr", "true"})
    if (Text.compare(QLatin1String(wort), Qt::CaseInsensitive) == 0) return true;
  for (const char *wort : {"falsch", "false"})
    if (Text.compare(QLatin1String(wort), Qt::CaseInsensitive) == 0) return false;
  return {};
}

Rabatt Rabatt_lesen(const QString &Eintrag) {
  const QStringList felder = Eintrag.split(u';');
  return {felder.value(0), Zahl_deutsch(felder.value(1)), Zahl_deutsch(felder.value(2)),
          Schalter_lesen(felder.value(3)), felder.value(4)};
}

void Hinzurechnen(Rabattauswertung &Summe, double &Prozentsumme, const Rabatt &R,
                  const QString &Steuerschluessel) {
  if (!R.Art || !R.Wert) return;
  if (*R.Art == double(Rabattart::Prozent)) {
    Prozentsumme += *R.Wert;
  } else if (*R.Art == double(Rabattart::Betrag) && R.Gebunden) {
    if (!*R.Gebunden)
      Summe.Freibetrag += *R.Wert;
    else if (R.Steuerschluessel == Steuerschluessel)
      Summe.Gebunden += *R.Wert;
  }
}

}  // namespace

QString Rabattliste_erweitern(const QString &Liste, const QString &Name, Rabattart Art, double Wert,
                              bool Gebunden, const QString &Steuerschluessel) {
  const QString eintrag = QStringList{Name, QString::number(int(Art)), Zahl_als_Text(Wert),
                                      Gebunden ? QStringLiteral("-1") : QStringLiteral("0"), Steuerschluessel}
                              .join(u';');
  return Liste.isEmpty() ? eintrag : Liste + u'|' + eintrag;
}

Rabattauswertung Rabattliste_auswerten(const QString &Liste, double Grundbetrag,
                                       const QString &Steuerschluessel) {
  Rabattauswertung summe;
  if (Liste.isEmpty()) return summe;
  double prozentsumme = 0;
  for (const QString &eintrag : Liste.split(u'|')) {
    const Rabatt rabatt = Rabatt_lesen(eintrag);
    Hinzurechnen(summe, prozentsumme, rabatt, Steuerschluessel);
    summe.Text += rabatt.Name + QStringLiteral("\r\n");
  }
  summe.Prozentbetrag = Grundbetrag / 100 * prozentsumme;
  return summe;
}

}  // namespace marklink
