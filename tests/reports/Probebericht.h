// A small report that has nothing to do with orders: persons by town, with an amount each.
#pragma once

#include <gtest/gtest.h>

#include "reports/Report.h"
#include "support/Datenbank_Test.h"

namespace marklink::test {

class Personen final : public Berichtsdaten {
 public:
  /// Fields: town, name, amount, birthday, remark.
  std::vector<QStringList> Liste;
  int Zeilen() const override { return int(Liste.size()); }
  QString Feld(int Zeile, int Feld) const override { return Liste[std::size_t(Zeile)].value(Feld); }
};

inline Berichtselement Element(Berichtselement::Art Was, const QRectF &Ort, const QString &Inhalt,
                               Berichtselement::Lage Lage = Berichtselement::Lage::Links) {
  Berichtselement element;
  element.Was = Was;
  element.Name = Inhalt;
  element.Ort = Ort;
  element.Inhalt = Inhalt;
  element.Ausrichtung = Lage;
  element.Format = Was == Berichtselement::Art::Gruppensumme || Was == Berichtselement::Art::Gesamtsumme
                       ? QStringLiteral("#,##0.00")
                       : QString();
  return element;
}

inline Bericht Probebericht() {
  using Art = Berichtselement::Art;
  using Feldart = Berichtsfeld::Art;
  constexpr auto rechts = Berichtselement::Lage::Rechts;
  Bericht b;
  b.Dokumenttitel = QStringLiteral("Personen & Orte");
  b.Felder = {{QStringLiteral("Ort")},
              {QStringLiteral("Name"), QStringLiteral("Name")},
              {QStringLiteral("Betrag"), QStringLiteral("Betrag"), Feldart::Zahl},
              {QStringLiteral("Tag"), QStringLiteral("Geburtstag"), Feldart::Datum},
              {QStringLiteral("Text"), QStringLiteral("Bemerkung")}};
  b.Gruppierung = QStringLiteral("Ort");
  b.Zeilenfarben = {0xFFF2F2F2, 0xFFFFFFFF};
  b[Bandart::Berichtskopf] = {10, {Element(Art::Text, {0, 0, 100, 8}, QStringLiteral("Personenliste"))}};
  b[Bandart::Seitenkopf] = {6, {Element(Art::Text, {0, 1, 40, 4}, QStringLiteral("Name"))}};
  b[Bandart::Gruppenkopf] = {8, {Element(Art::Feld, {0, 2, 100, 5}, QStringLiteral("Ort"))}};
  Berichtselement name = Element(Art::Feld, {0, 1, 60, 4}, QStringLiteral("Name"));
  name.Verweis = true;
  b[Bandart::Detail] = {10,
                        {name, Element(Art::Feld, {60, 1, 30, 4}, QStringLiteral("Betrag"), rechts),
                         Element(Art::Feld, {100, 1, 30, 4}, QStringLiteral("Tag")),
                         Element(Art::Feld, {0, 5, 180, 4}, QStringLiteral("Text"))}};
  b[Bandart::Gruppenfuss] = {7,
                             {Element(Art::Text, {0, 1, 40, 4}, QStringLiteral("Summe:")),
                              Element(Art::Gruppensumme, {60, 1, 30, 4}, QStringLiteral("Betrag"), rechts)}};
  b[Bandart::Seitenfuss] = {
      6,
      {Element(Art::Seite, {0, 1, 20, 4}, {}), Element(Art::Text, {20, 1, 20, 4}, QStringLiteral("von")),
       Element(Art::Seitenzahl, {40, 1, 20, 4}, {})}};
  b[Bandart::Berichtsfuss] = {12,
                              {Element(Art::Text, {0, 2, 40, 4}, QStringLiteral("Alles:")),
                               Element(Art::Gesamtsumme, {60, 2, 30, 4}, QStringLiteral("Betrag"), rechts)}};
  return b;
}

}  // namespace marklink::test
