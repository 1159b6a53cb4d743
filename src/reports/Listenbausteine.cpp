// What the two printed lists have in common: heads, feet, sums.
#include "Listenbausteine.h"

namespace marklink {
namespace {

using Art = Berichtselement::Art;

constexpr double Breite = 180;

Berichtselement Fett(Berichtselement E, double Punkt = 9) {
  E.Fett = true;
  E.Punkt = Punkt;
  return E;
}

Berichtselement Summe(Art Was, const char *Name, double Rand, double Oben) {
  constexpr double platz = 30;
  Berichtselement summe = Fett(Textfeld(Name, {Rand - platz, Oben, platz, 4}, Lage::Rechts));
  summe.Was = Was;
  summe.Inhalt = QStringLiteral("Auftragswert");
  summe.Format = QStringLiteral("#,##0.00");
  return summe;
}

Berichtselement Form(Art Was, const char *Name, const QRectF &Ort) {
  Berichtselement form;
  form.Was = Was;
  form.Name = QLatin1String(Name);
  form.Ort = Ort;
  return form;
}

/// Two links of a chain on a blue field.
std::vector<Zeichenschritt> Zeichen_bilden() {
  const auto glied = [](double x, double y) {
    QPainterPath ring;
    ring.setFillRule(Qt::OddEvenFill);
    ring.addRoundedRect(QRectF(x, y, 0.44, 0.24), 0.12, 0.12);
    ring.addRoundedRect(QRectF(x + 0.065, y + 0.065, 0.31, 0.11), 0.055, 0.055);
    return ring;
  };
  QPainterPath feld;
  feld.addRoundedRect(QRectF(0, 0, 1, 1), 0.16, 0.16);
  return {{feld, QColor(0x1F, 0x4E, 0x79)},
          {glied(0.13, 0.30), Qt::white},
          {glied(0.43, 0.46), QColor(0xBD, 0xD7, 0xEE)}};
}

Band Berichtskopf() {
  Berichtselement bild = Form(Art::Bild, "Image1", {0, 0, 14, 14});
  bild.Zeichnung = Zeichen_bilden();
  Berichtselement zeitraum = Beschriftung("txtZeitraum", {18, 8.5, 150, 5}, u"");
  zeitraum.Punkt = 10;
  return {20, {bild, Fett(Beschriftung("txtTitel", {18, 0, 150, 8}, u""), 16), zeitraum}};
}

Band Seitenfuss() {
  Berichtselement seite = Beschriftung("txtPage", {66, 3, 20, 4}, u"", Lage::Rechts);
  seite.Was = Art::Seite;
  Berichtselement seitenzahl = Beschriftung("txtPageCount", {94, 3, 20, 4}, u"");
  seitenzahl.Was = Art::Seitenzahl;
  return {8, {seite, Beschriftung("lbVon", {86, 3, 8, 4}, u"von", Lage::Mitte), seitenzahl}};
}

}  // namespace

Berichtselement Beschriftung(const char *Name, const QRectF &Ort, const char16_t *Text, Lage Ausrichtung) {
  Berichtselement element;
  element.Name = QLatin1String(Name);
  element.Ort = Ort;
  element.Inhalt = QString::fromUtf16(Text);
  element.Ausrichtung = Ausrichtung;
  return element;
}

Berichtselement Textfeld(const char *Name, const QRectF &Ort, Lage Ausrichtung) {
  Berichtselement element = Beschriftung(Name, Ort, u"", Ausrichtung);
  element.Was = Art::Feld;
  element.Inhalt = element.Name.mid(3);
  return element;
}

Band Seitenkopf_bilden(std::vector<Berichtselement> Ueberschriften) {
  Band kopf{7, {Form(Art::Linie, "Line1", {0, 0.5, Breite, 0})}};
  for (Berichtselement &ueberschrift : Ueberschriften) kopf.Elemente.push_back(Fett(std::move(ueberschrift)));
  kopf.Elemente.push_back(Form(Art::Linie, "Line2", {0, 6, Breite, 0}));
  return kopf;
}

Bericht Liste_beginnen(const QString &Dokumenttitel, double Summenrand) {
  Bericht liste;
  liste.Dokumenttitel = Dokumenttitel;
  liste.Breite = Breite;
  liste.Zeilenfarben = {0xFFF2F2F2, 0xFFFFFFFF};
  liste[Bandart::Berichtskopf] = Berichtskopf();
  liste[Bandart::Gruppenkopf] = {9, {Fett(Textfeld("txtGruppierung", {1, 3, Breite - 2, 5}), 10)}};
  const double vorher = Summenrand - 65;
  liste[Bandart::Gruppenfuss] = {
      7,
      {Fett(Beschriftung("lbZwischensumme", {vorher, 1.5, 34, 4}, u"Zwischensummen:")),
       Summe(Art::Gruppensumme, "txtZwischensumme_Auftragswert", Summenrand, 1.5)}};
  liste[Bandart::Berichtsfuss] = {19,
                                  {Form(Art::Rahmen, "Shape1", {0, 4, Breite, 14}),
                                   Fett(Beschriftung("lbGesamtsumme", {vorher, 6, 34, 4}, u"Gesamtsummen:")),
                                   Summe(Art::Gesamtsumme, "txtGesamtsumme_Auftragswert", Summenrand, 6),
                                   Beschriftung("txtAuswertungsdatum", {2, 12, Breite - 4, 4}, u"")}};
  liste[Bandart::Seitenfuss] = Seitenfuss();
  return liste;
}

}  // namespace marklink
