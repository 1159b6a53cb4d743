// Taking shop customers over into the books.
#include "Kundenuebernahme.h"

#include "Stapellauf.h"
#include "Zahlungsangaben.h"
#include "db/Ablaufverfolgung.h"
#include "host/Uhr.h"
#include "rules/Kundenanlage.h"
#include "shop/Aktionen.h"
#include "shop/Antwort.h"

namespace marklink {
namespace {

using Ausgang = Kundenuebernahme::Ausgang;

/// A trace names the customer by the shop's id, never by address or bank.
Kundenuebernahme Scheitern(Ausgang Stand, const QString &Kunden_ID, const QString &Grund) {
  Ablauf_melden(QStringLiteral("Kunde_uebernehmen"),
                QStringLiteral("shop customer '") + Kunden_ID + QStringLiteral("': ") + Grund);
  Kundenuebernahme ergebnis;
  ergebnis.Stand = Stand;
  return ergebnis;
}

Kundenuebernahme Ohne_Antwort(const QString &Kunden_ID) {
  dialoge().Meldung(QStringLiteral("Fehler"),
                    {QStringLiteral("Beim Einlesen des Kunden ist ein Fehler aufgetreten."),
                     QStringLiteral("Der Kunde konnte nicht abgerufen und gespeichert werden.")},
                    Symbol::Stopp);
  return Scheitern(Ausgang::Ohne_Antwort, Kunden_ID, QStringLiteral("no reply"));
}

Kundenuebernahme Ohne_Kunden(const QString &Kunden_ID, const QString &Shopmeldung) {
  Kundenuebernahme ergebnis = Scheitern(Ausgang::Nicht_im_Shop, Kunden_ID,
                                        QStringLiteral("the reply holds no customer: ") + Shopmeldung);
  ergebnis.Shopmeldung = Shopmeldung;
  return ergebnis;
}

}  // namespace

Kundenuebernahme Kunde_uebernehmen(const QString &Email, const QString &Kunden_ID,
                                   const QString &Rechnungsanschrift, const QString &Lieferanschrift,
                                   const QString &Zahlungshinweis) {
  const QString datei = Daten_abrufen(Abrufen::Kunden, QStringLiteral("&customers_id=") + Kunden_ID);
  if (datei.isEmpty()) return Ohne_Antwort(Kunden_ID);
  pugi::xml_document dokument;
  Antwort_laden(datei, dokument);
  const pugi::xml_node kunde = dokument.child("CUSTOMERS").child("CUSTOMERS_DATA");
  if (!kunde) return Ohne_Kunden(Kunden_ID, Knoten_Text(dokument, "STATUS/STATUS_DATA/MESSAGE"));

  db::Recordset satz = Kunden_mit_Email(Email);
  // Without the look-up a known customer would be taken for a new one.
  if (!satz.IsOpen())
    return Scheitern(Ausgang::Nicht_gesucht, Kunden_ID, QStringLiteral("its e-mail cannot be looked up"));
  const bool bekannt = satz.RecordCount() > 0;
  if (!Kunde_beginnen(satz, kunde, uhr().Jetzt()))
    return Scheitern(Ausgang::Ohne_Nummer, Kunden_ID, QStringLiteral("no customer number"));
  Kunde_ausfuellen(satz, kunde, {Rechnungsanschrift, Lieferanschrift, {}, {}, {}, {}});
  Zahlungsangaben_uebernehmen(satz, Zahlungshinweis);
  satz.Update();
  if (!satz.UpdateBatch()) {
    Kundenuebernahme ergebnis =
        Scheitern(Ausgang::Nicht_gespeichert, Kunden_ID, QStringLiteral("the row cannot be saved"));
    // One that is in the books as it was can have a document all the same.
    if (bekannt) ergebnis.Kundennummer = satz.Text(QStringLiteral("CustomerNumber"));
    return ergebnis;
  }
  return {Ausgang::Gespeichert,
          satz.Text(QStringLiteral("CustomerNumber")),
          satz.Text(QStringLiteral("Matchcode")),
          {}};
}

QString Kunde_aus_Bestellung_anlegen(const QString &Email, const QString &Kunden_ID,
                                     const QString &Rechnungsanschrift, const QString &Lieferanschrift,
                                     const QString &Zahlungshinweis) {
  return Kunde_uebernehmen(Email, Kunden_ID, Rechnungsanschrift, Lieferanschrift, Zahlungshinweis)
      .Kundennummer;
}

void Kunden_anlegen(Auftragsliste &Liste,
                    const std::function<void(int Zeile, const Kundenuebernahme &)> &Ergebnis) {
  const auto text = [&](int zeile, const char *spalte) { return Liste.Zelle(zeile, spalte).toString(); };
  Stapellauf lauf;
  lauf.Ohne_Auswahl = {
      QStringLiteral("Es wurden keine Aufträge (Kunden) ausgewählt. "),
      QStringLiteral("Markieren Sie bitte alle Aufträge, für die Sie Kunden anlegen möchten.")};
  lauf.Ansage = [&](int zeile) {
    return QStringLiteral("Der Kunde '") + text(zeile, "Customer") +
           QStringLiteral("' wird angelegt bzw. aktualisiert...");
  };
  lauf.Arbeit = [&](int zeile) {
    const Kundenuebernahme kunde =
        Kunde_uebernehmen(text(zeile, "Email"), text(zeile, "CustomerID"), text(zeile, "InvoiceAddress"),
                          text(zeile, "DeliveryAddress"), text(zeile, "ExtendedInfo"));
    if (Ergebnis) Ergebnis(zeile, kunde);
  };
  Markierte_abarbeiten(Liste, lauf);
}

}  // namespace marklink
