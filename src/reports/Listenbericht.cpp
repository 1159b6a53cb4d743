// The rows of the printed lists.
#include "Listenbericht.h"

#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

using Feldart = Berichtsfeld::Art;

/// Date columns give dates, but a set may also hold what stands there as text.
QDateTime Tag(const db::Recordset &Satz) {
  const QVariant wert = Satz.Value(QStringLiteral("Date"));
  return wert.typeId() == QMetaType::QDateTime ? wert.toDateTime() : Datum_lesen(wert.toString());
}

void Text_setzen(Bericht &B, const char *Name, const QString &Text) {
  if (Berichtselement *element = B.Element_finden(QLatin1String(Name))) element->Inhalt = Text;
}

}  // namespace

void Listenbericht::ActiveReport_DataInitialize(Bericht &B, Art Was) {
  const bool ganz = Was == Art::Bestellliste;
  const auto titel = [ganz](const char16_t *text) { return ganz ? QString::fromUtf16(text) : QString(); };
  // The transaction list holds the same fields, those that it does not show empty.
  B.Felder = {
      {QStringLiteral("Gruppierung")},
      {QStringLiteral("Bestellnummer"), QStringLiteral("Bestellnr."), Feldart::Text, 18},
      {QStringLiteral("Versandart"), titel(u"Versandart"), Feldart::Text, 27},
      {QStringLiteral("Datum"), QStringLiteral("Datum"), Feldart::Datum, 20},
      {QStringLiteral("Kunde"), QStringLiteral("Kunde"), Feldart::Text, 36},
      {QStringLiteral("Email"), titel(u"E-Mail-Adresse"), Feldart::Text, 55},
      {QStringLiteral("Auftragswert"), QStringLiteral("Auftragswert"), Feldart::Zahl, 21},
      {QStringLiteral("Zahlungsart"), titel(u"Zahlungsart"), Feldart::Text, 25},
      {QStringLiteral("Zahlungsinformationen"), QStringLiteral("Zahlungsinformationen"), Feldart::Text, 38},
      {QStringLiteral("Hinweise"), titel(u"Hinweise des Kunden"), Feldart::Text, 36}};
  B.Gruppierung = QStringLiteral("Gruppierung");
}

Report Listenbericht::Report_Initialisieren(std::shared_ptr<Listenbericht> Daten) {
  Listenbericht &liste = *Daten;
  liste.Satz_ = Abfragen(liste.mSQL);
  liste.Anzahl_ = liste.Satz_.RecordCount();
  Bericht bericht =
      liste.Was_ == Art::Bestellliste ? Bestellliste_beschreiben() : Transaktionsliste_beschreiben();
  ActiveReport_DataInitialize(bericht, liste.Was_);
  Text_setzen(bericht, "txtTitel", liste.Titeltext);
  Text_setzen(bericht, "txtZeitraum", liste.Zeitraum_von + QStringLiteral(" - ") + liste.Zeitraum_bis);
  Text_setzen(bericht, "txtAuswertungsdatum",
              QStringLiteral("Stand: ") +
                  Datum_formatieren(Kontext.gHeute.startOfDay(Qt::UTC), QStringLiteral("Long Date")));
  Report report(std::move(bericht), Daten);
  report.hyperLink = &ActiveReport_hyperLink;
  report.ReportEnd = [daten = std::move(Daten)] { daten->ActiveReport_ReportEnd(); };
  return report;
}

bool Listenbericht::ActiveReport_FetchData(QStringList &Felder) const {
  if (Satz_.IsEOF()) return false;
  const auto text = [this](const char *spalte) { return Satz_.Text(QLatin1String(spalte)); };
  const bool ganz = Was_ == Art::Bestellliste;
  const QString tag = Datum_formatieren(Tag(Satz_), QStringLiteral("short date"));
  const QString gruppe =
      ganz ? Datum_formatieren(Tag(Satz_), QStringLiteral("dddd")) + QStringLiteral(" (") + tag + u')'
           : text("Payment");
  const QString betrag =
      Satz_.IsNull(QStringLiteral("Amount"))
          ? QString()
          : Zahl_formatieren(Satz_.Number(QStringLiteral("Amount")), QStringLiteral("standard"));
  const auto nur_ganz = [&](const char *spalte) { return ganz ? text(spalte) : QString(); };
  Felder = {gruppe,
            text("OrderID"),
            nur_ganz("Shipping"),
            tag,
            text("Customer"),
            nur_ganz("Email"),
            betrag,
            nur_ganz("Payment"),
            text("ExtendedInfo"),
            nur_ganz("Notes")};
  Satz_.MoveNext();
  return true;
}

void Listenbericht::ActiveReport_hyperLink(const QString &Text) { Kontext.gHyperlink = Text; }

void Listenbericht::ActiveReport_ReportEnd() {
  Satz_ = {};
  Anzahl_ = 0;
  Zuletzt_ = {};
}

QString Listenbericht::Feld(int Zeile, int Feld) const {
  Gelesen &gelesen = Zuletzt_[std::size_t(Zeile) % Zuletzt_.size()];
  if (gelesen.Zeile != Zeile) {
    gelesen = {Zeile, {}};
    Satz_.AbsolutePosition_setzen(Zeile + 1);
    ActiveReport_FetchData(gelesen.Felder);
  }
  return gelesen.Felder.value(Feld);
}

}  // namespace marklink
