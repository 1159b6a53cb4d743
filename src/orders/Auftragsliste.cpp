// Loading the staged orders and keeping their marks.
#include "Auftragsliste.h"

#include <algorithm>
#include <cstring>

#include "host/Datenbank.h"
#include "ui/Listenladung.h"

namespace marklink {

namespace {

constexpr int AUSWAHL = 0;        // the column of the selection mark
constexpr int STATUS_SPALTE = 1;  // of the status list: WebshopID

/// Column names of the table for the record set, in grid order; empty for a column that is not loaded.
const std::vector<QString> &Feldnamen() {
  static const std::vector<QString> namen = [] {
    std::vector<QString> liste;
    for (const Auftragsspalte &spalte : Auftragsspalten())
      liste.push_back(spalte.Geladen ? QString::fromLatin1(spalte.Schluessel) : QString());
    return liste;
  }();
  return namen;
}

}  // namespace

const std::vector<Auftragsspalte> &Auftragsspalten() {
  static const std::vector<Auftragsspalte> spalten = {
      {"Invoice", u"Auswahl", true},
      {"OrderID", u"Bestellnr.", true},
      {"CustomerID", u"Kunden-ID", true},
      {"Customer", u"Kunde", true},
      {"CustomerNumber", u"Kundennr.", true},
      {"Telephone", u"Telefon", true},
      {"Email", u"E-Mail", true},
      {"Date", u"Datum", true},
      {"Amount", u"Auftragswert", true},
      {"Currency", u"Währung", true},
      {"Rebate", u"Rabatt (Kunde)", true},
      {"Shipping", u"Versandart", true},
      {"Payment", u"Zahlungsart", true},
      {"PaymentPractice", u"Zahlungsbedingung", false},
      {"ExtendedInfo", u"Zahlungshinweis", true},
      {"Notes", u"Hinweis", true},
      {"Status", u"Status", true},
      {"OrderIP", u"IP-Adresse", true},
      {"Logistic", u"Versand", false},
      {"InvoiceAddress", u"Rechnungsanschrift", true},
      {"DeliveryAddress", u"Lieferanschrift", true},
      {"DeliveryCountry", u"Bestimmungsland", true},
  };
  return spalten;
}

int Auftragsspalte_finden(const char *Schluessel) {
  using Eintrag = std::pair<const char *, int>;
  static const std::vector<Eintrag> sortiert = [] {
    std::vector<Eintrag> liste;
    for (const Auftragsspalte &spalte : Auftragsspalten())
      liste.emplace_back(spalte.Schluessel, static_cast<int>(liste.size()));
    std::sort(liste.begin(), liste.end(),
              [](const Eintrag &a, const Eintrag &b) { return std::strcmp(a.first, b.first) < 0; });
    return liste;
  }();
  const auto ort =
      std::lower_bound(sortiert.begin(), sortiert.end(), Schluessel,
                       [](const Eintrag &a, const char *b) { return std::strcmp(a.first, b) < 0; });
  return ort != sortiert.end() && std::strcmp(ort->first, Schluessel) == 0 ? ort->second : -1;
}

Auftragsliste::Auftragsliste() : Zellen_(static_cast<int>(Auftragsspalten().size())) {}

db::Anweisung Auftragsliste::Ladeanweisung() const {
  db::Anweisung bedingung;
  const QStringList stati = Zeilen_markierte(lvwAuftragsstatus, STATUS_SPALTE);
  if (!stati.isEmpty()) bedingung = {" WHERE Status IN (", db::Werteliste{stati}, ")"};
  if (const db::Anweisung zeitraum = Zeitraumbedingung(QStringLiteral("[Date]")); !zeitraum.Leer()) {
    bedingung += bedingung.Leer() ? db::Anweisung(" WHERE ") : db::Anweisung(" AND ");
    bedingung += zeitraum;
  }
  return {"SELECT * FROM WebshopOrdersXTC", bedingung, " ORDER BY OrderID, Date"};
}

void Auftragsliste::Auftragsliste_laden() {
  db::Recordset satz = Abfragen(Ladeanweisung());
  Aktuell_ = -1;
  Zeilen_einlesen(Zellen_, satz, Feldnamen(),
                  {QStringLiteral("Die Bestellungen werden eingelesen..."),
                   QStringLiteral("Bestellung '%1' wird eingelesen...")});
  if (Zeilenzahl() > 0) Aktuell_ = 0;
  if (Geladen) Geladen();
}

QVariant Auftragsliste::Zelle(int Zeile, const char *Schluessel) const {
  return Zelle(Zeile, Auftragsspalte_finden(Schluessel));
}

QVariant Auftragsliste::Zelle(int Zeile, int Spalte) const {
  if (!Vorhanden(Zeile) || Spalte < 0 || Spalte >= static_cast<int>(Auftragsspalten().size())) return {};
  return Zellen_.Lesen(Zeile, Spalte);
}

void Auftragsliste::Zelle_setzen(int Zeile, const char *Schluessel, const QVariant &Wert) {
  Zelle_setzen(Zeile, Auftragsspalte_finden(Schluessel), Wert);
}

void Auftragsliste::Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) {
  if (Vorhanden(Zeile) && Spalte >= 0 && Spalte < static_cast<int>(Auftragsspalten().size()))
    Zellen_.Schreiben(Zeile, Spalte, Wert);
}

void Auftragsliste::AktuelleZeile_setzen(int Zeile) {
  if (Vorhanden(Zeile)) Aktuell_ = Zeile;
}

bool Auftragsliste::Markiert(int Zeile) const { return Vorhanden(Zeile) && Zellen_.Wahr(Zeile, AUSWAHL); }

void Auftragsliste::Markieren(int Zeile, bool Ja) {
  if (Vorhanden(Zeile)) Zellen_.Schreiben(Zeile, AUSWAHL, Ja);
}

void Auftragsliste::Alles_markieren() { Alle_markieren(true); }

void Auftragsliste::Markierung_aufheben() { Alle_markieren(false); }

void Auftragsliste::Alle_markieren(bool Ja) {
  for (int zeile = 0; zeile < Zeilenzahl(); ++zeile) Zellen_.Schreiben(zeile, AUSWAHL, Ja);
}

int Auftragsliste::Auswahl_zaehlen() const {
  int anzahl = 0;
  for (int zeile = 0; zeile < Zeilenzahl(); ++zeile) anzahl += Zellen_.Wahr(zeile, AUSWAHL) ? 1 : 0;
  return anzahl;
}

}  // namespace marklink
