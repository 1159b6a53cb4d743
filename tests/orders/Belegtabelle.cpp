// Reading the tables of documents.
#include "Belegtabelle.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace marklink::test {
namespace {

const QMap<QString, Tabellenwort> Tabellenwoerter{
    {u"steuer"_qs, {u"Taxes"_qs, u"TaxKeyNumber"_qs}},
    {u"land"_qs, {u"Countries"_qs, u"Description"_qs}},
    {u"artikelart"_qs, {u"ArticleTypes"_qs, u"Description"_qs}},
    {u"kundengruppe"_qs, {u"CustomerTypes"_qs, u"Description"_qs}},
    {u"versandart"_qs, {u"ForwardingCharges"_qs, u"Description"_qs}},
    {u"zahlungsart"_qs, {u"MethodPayments"_qs, u"Description"_qs}},
    {u"bedingung"_qs, {u"PaymentPractices"_qs, u"Description"_qs}},
    {u"formular"_qs, {u"Forms"_qs, u"Description"_qs}},
    {u"kunde"_qs, {u"Contacts"_qs, u"CustomerNumber"_qs}},
    {u"artikel"_qs, {u"Articles"_qs, u"ArticleNumber"_qs}},
    {u"los"_qs, {u"Warehouse"_qs, u"StockingNumber"_qs}},
    {u"bestellung"_qs, {u"WebshopOrdersXTC"_qs, u"OrderID"_qs}},
    {u"kopf"_qs, {u"Contract|Invoice"_qs, u""_qs, true}},
    {u"position"_qs, {u"Positions"_qs, u"LineItemNumber"_qs, true}},
    {u"posten"_qs, {u"OpenItems"_qs, u"OpenItemNumber"_qs, true}},
    {u"zahlung"_qs, {u"PaymentIncome"_qs, u"PaymentNumber"_qs, true}},
    {u"reservierung"_qs, {u"Reservations"_qs, u"ReservationNumber"_qs, true}},
    {u"rueckstand"_qs, {u"BackOrder"_qs, u"LineItemNumber"_qs, true}},
    {u"versand"_qs, {u"LogisticsEASYLOG"_qs, u"OrderID"_qs, true, false}},
    {u"bestand"_qs, {u"Warehouse"_qs, u"StockingNumber"_qs, true, false}},
    {u"artikelbestand"_qs, {u"Articles"_qs, u"ArticleNumber"_qs, true, false}}};
const QStringList Ohne_Schluessel{u"vorgabe"_qs, u"zaehler"_qs, u"kopf"_qs};
const QStringList Gleichungen{u"antwort"_qs, u"eingabe"_qs, u"wortlaut"_qs, u"aufruf"_qs};
/// Each line is a row of its own.
const QStringList Einzelne{u"tabelle"_qs, u"bestellt"_qs};

/// False when the line means nothing.
bool Zeile_lesen(Belegzeile &Zeile, const QString &Text) {
  Zeile.Wort = Text.section(u' ', 0, 0);
  const QString rest = Text.section(u' ', 1);
  if (Gleichungen.contains(Zeile.Wort)) {
    Zeile.Schluessel = rest.section(u" = "_qs, 0, 0);
    Zeile.Felder[QString()] = rest.section(u" = "_qs, 1);
    return rest.contains(u" = "_qs);
  }
  static const QStringList weitere{u"einstellung"_qs, u"komponente"_qs};
  if (!Tabellenwoerter.contains(Zeile.Wort) && !(Ohne_Schluessel + Einzelne + weitere).contains(Zeile.Wort))
    return false;
  static const QRegularExpression feld(u"(?:^|\\s)(\\w+)=(?=\\S)"_qs);
  qsizetype ende = -1;
  QString name;
  for (auto it = feld.globalMatch(rest); it.hasNext();) {
    const auto treffer = it.next();
    const QString davor =
        rest.mid(std::max<qsizetype>(ende, 0), treffer.capturedStart() - std::max<qsizetype>(ende, 0));
    (ende < 0 ? Zeile.Schluessel : Zeile.Felder[name]) = davor;
    name = treffer.captured(1);
    ende = treffer.capturedEnd();
  }
  (ende < 0 ? Zeile.Schluessel : Zeile.Felder[name]) = rest.mid(std::max<qsizetype>(ende, 0));
  return !Zeile.Schluessel.contains(u'=') &&
         Zeile.Schluessel.isEmpty() == Ohne_Schluessel.contains(Zeile.Wort);
}

/// Into the row of that key, where there is one.
void Aufnehmen(Belegfall &Fall, const Belegzeile &Zeile) {
  const auto gleich = std::find_if(Fall.Zeilen.begin(), Fall.Zeilen.end(), [&](const Belegzeile &z) {
    return z.Wort == Zeile.Wort && z.Schluessel == Zeile.Schluessel;
  });
  if (gleich == Fall.Zeilen.end() || (Gleichungen + Einzelne).contains(Zeile.Wort))
    Fall.Zeilen.push_back(Zeile);
  else
    gleich->Felder.insert(Zeile.Felder);
}

}  // namespace

Tabellenwort Tabelle_zum_Wort(const Belegzeile &Zeile) {
  if (Zeile.Wort == u"tabelle") return {Zeile.Schluessel, {}};
  return Tabellenwoerter.value(Zeile.Wort);
}

std::vector<Belegfall> Belegtabellen_lesen(const QString &Ordner) {
  std::vector<Belegfall> bloecke;
  Belegfall erster, grund;
  for (const QString &name : QDir(Ordner).entryList({u"*.txt"_qs}, QDir::Files, QDir::Name)) {
    QFile datei(Ordner + u'/' + name);
    if (!datei.open(QIODevice::ReadOnly)) continue;
    const QStringList zeilen = QString::fromUtf8(datei.readAll()).split(u'\n') << u"== Grundbestand"_qs;
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
      QString text = zeilen[i].simplified();
      if (text.isEmpty() || text.startsWith(u'#') || text.startsWith(u'>')) continue;
      Belegzeile zeile{u"%1:%2"_qs.arg(name).arg(i + 1), {}, {}};
      while (i + 1 < zeilen.size() && zeilen[i + 1].startsWith(u"    "))
        text += u' ' + zeilen[++i].simplified();
      if (text.startsWith(u"== ")) {
        if (!bloecke.empty() && bloecke.back().Titel.startsWith(u"Grundbestand")) {
          grund = bloecke.back();
          bloecke.pop_back();
          if (erster.Zeilen.empty()) erster = grund;
        }
        bloecke.push_back(text.startsWith(u"== Grundbestand") ? erster : grund);
        bloecke.back().Titel = text.mid(3);
      } else if (bloecke.empty()) {
        erster.Fehler << zeile.Ort + u": vor dem ersten Block"_qs;
      } else if (text.startsWith(u"beleg ")) {
        bloecke.back().Beleg = text.section(u' ', 1);
      } else if (Zeile_lesen(zeile, text)) {
        Aufnehmen(bloecke.back(), zeile);
      } else {
        bloecke.back().Fehler << zeile.Ort + u": "_qs + text;
      }
    }
  }
  std::vector<Belegfall> faelle;
  for (const Belegfall &block : bloecke) {
    if (block.Titel.startsWith(u"Grundbestand")) continue;
    for (const QString &beleg : block.Beleg.split(u", "_qs)) {
      faelle.push_back(block);
      faelle.back().Beleg = beleg;
      if (beleg != u"Auftrag" && beleg != u"Rechnung") faelle.back().Fehler << u"kein Beleg: "_qs + beleg;
    }
  }
  return faelle;
}

}  // namespace marklink::test
