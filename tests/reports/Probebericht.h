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
                       ? u"#,##0.00"_qs
                       : QString();
  return element;
}

inline Bericht Probebericht() {
  using Art = Berichtselement::Art;
  using Feldart = Berichtsfeld::Art;
  constexpr auto rechts = Berichtselement::Lage::Rechts;
  Bericht b;
  b.Dokumenttitel = u"Personen & Orte"_qs;
  b.Felder = {{u"Ort"_qs},
              {u"Name"_qs, u"Name"_qs},
              {u"Betrag"_qs, u"Betrag"_qs, Feldart::Zahl},
              {u"Tag"_qs, u"Geburtstag"_qs, Feldart::Datum},
              {u"Text"_qs, u"Bemerkung"_qs}};
  b.Gruppierung = u"Ort"_qs;
  b.Zeilenfarben = {0xFFF2F2F2, 0xFFFFFFFF};
  b[Bandart::Berichtskopf] = {10, {Element(Art::Text, {0, 0, 100, 8}, u"Personenliste"_qs)}};
  b[Bandart::Seitenkopf] = {6, {Element(Art::Text, {0, 1, 40, 4}, u"Name"_qs)}};
  b[Bandart::Gruppenkopf] = {8, {Element(Art::Feld, {0, 2, 100, 5}, u"Ort"_qs)}};
  Berichtselement name = Element(Art::Feld, {0, 1, 60, 4}, u"Name"_qs);
  name.Verweis = true;
  b[Bandart::Detail] = {
      10,
      {name, Element(Art::Feld, {60, 1, 30, 4}, u"Betrag"_qs, rechts),
       Element(Art::Feld, {100, 1, 30, 4}, u"Tag"_qs), Element(Art::Feld, {0, 5, 180, 4}, u"Text"_qs)}};
  b[Bandart::Gruppenfuss] = {7,
                             {Element(Art::Text, {0, 1, 40, 4}, u"Summe:"_qs),
                              Element(Art::Gruppensumme, {60, 1, 30, 4}, u"Betrag"_qs, rechts)}};
  b[Bandart::Seitenfuss] = {
      6,
      {Element(Art::Seite, {0, 1, 20, 4}, {}), Element(Art::Text, {20, 1, 20, 4}, u"von"_qs),
       Element(Art::Seitenzahl, {40, 1, 20, 4}, {})}};
  b[Bandart::Berichtsfuss] = {12,
                              {Element(Art::Text, {0, 2, 40, 4}, u"Alles:"_qs),
                               Element(Art::Gesamtsumme, {60, 2, 30, 4}, u"Betrag"_qs, rechts)}};
  return b;
}

}  // namespace marklink::test
