// What contract and invoice share, step by step.
#include "Belegvorgang.h"

#include "Positionserzeugung.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Texte.h"
#include "host/Zahlen.h"
#include "rules/Berechnung.h"
#include "rules/Kunden.h"
#include "rules/Lager.h"
#include "rules/Rabattliste.h"
#include "rules/Versandkosten.h"
#include "shipping/Versandauftrag.h"
#include "ui/Dialoge.h"

namespace marklink {
Beleghindernis Belegvorgang::Lesen() {
  Bestellung_ =
      Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{Vorgabe_.Bestellnummer}});
  if (Bestellung_.RecordCount() < 1) return Beleghindernis::Bestellung_fehlt;
  if (Vorgabe_.Kundennummer.isEmpty()) return Beleghindernis::Kunde_fehlt;
  Kunde_ = Abfragen({"SELECT * FROM Contacts WHERE CustomerNumber = ", db::Wert{Vorgabe_.Kundennummer}});
  if (Kunde_.RecordCount() < 1) return Beleghindernis::Kunde_fehlt;
  return Beleghindernis::Keines;
}

bool Belegvorgang::Beginnen() {
  if (Vorgabe_.Bestellnummer.isEmpty()) return false;
  // Before the number: a document without an order or a customer could not be booked on anybody.
  Ergebnis_.Hindernis = Lesen();
  if (Ergebnis_.Hindernis != Beleghindernis::Keines) {
    Ablauf_melden(Art_.Wort + QStringLiteral("_erzeugen"),
                  QStringLiteral("no staged order %1 or no customer '%2'")
                      .arg(Vorgabe_.Bestellnummer, Vorgabe_.Kundennummer));
    Fehler_melden();
    return false;
  }
  const std::optional<QString> nummer = Belegnummer_vergeben(Art_);
  Ergebnis_.Belegnummer = nummer.value_or(QString());
  if (Ergebnis_.Belegnummer.isEmpty()) {
    Ergebnis_.Hindernis = Beleghindernis::Ohne_Nummer;
    if (!nummer) Fehler_melden();
    return false;
  }
  Besteuerung_feststellen();
  return true;
}

/// A customer whose country is not in the list of countries counts as a domestic one, on purpose.
void Belegvorgang::Besteuerung_feststellen() {
  const QVariant gelesen = Kunden_Feld(Vorgabe_.Kundennummer, Kundenfeld::TaxCalculation);
  const QString land = Null_als_Text(Kunde_.Value(QStringLiteral("Country")));
  if (gelesen.isNull() &&
      Datensatz_existiert(QStringLiteral("Countries"), QStringLiteral("Description"), land))
    Gescheitert_ = true;  // the country is known, so it is the customer that could not be read
  TaxCalculation_ = gelesen.toInt();
  Taxation_ = Besteuerung_ermitteln(TaxCalculation_);
}

void Belegvorgang::Positionen_anlegen() {
  // The customer's own discount is handed on and replaced by each line's own: it reaches no position.
  double rabatt = Vorgabe_.Rabatt != 0 ? Vorgabe_.Rabatt : Kunde_.Number(QStringLiteral("Discount"));
  Gescheitert_ |=
      !Positionen_erzeugen({Vorgabe_.Bestellnummer, Art_.Wort, Nummer(), Art_.Bucht_Lager(), Taxation_,
                            TaxCalculation_, Vorgabe_.Kundennummer, int(Kontext.gArticlepricing)},
                           rabatt);
  // Nor does it enter the discount list: only the order's rebate does.
  if (Vorgabe_.Rabatt > 0)
    Rabattliste_ =
        Rabattliste_erweitern(QString(), QStringLiteral("Rabatt %1%").arg(Zahl_als_Text(Vorgabe_.Rabatt)),
                              Rabattart::Prozent, Vorgabe_.Rabatt, false, QStringLiteral("1"));
}

QString Belegvorgang::Zahlungsart() const {
  return Vorgabe_.Zahlungsart.isEmpty() ? Kunde_.Text(QStringLiteral("MethodPayment")) : Vorgabe_.Zahlungsart;
}

QString Belegvorgang::Zahlungsbedingung() const {
  return Vorgabe_.Zahlungsbedingung.isEmpty() ? Kunde_.Text(QStringLiteral("PaymentPractice"))
                                              : Vorgabe_.Zahlungsbedingung;
}

void Belegvorgang::Summen_ermitteln() {
  Versandart_ =
      Vorgabe_.Versandart.isEmpty() ? Kunde_.Text(QStringLiteral("Forwarding")) : Vorgabe_.Versandart;
  Gewicht_summieren(Gewicht_Netto_, Gewicht_Brutto_, Art_.Wort, Nummer());
  Gescheitert_ |=
      !Beleg_summieren(Summe_, {Art_.Wort, Nummer(), Taxation_, Versandart_,
                                Null_als_Text(Kunde_.Value(QStringLiteral("Country"))), Vorgabe_.Lieferland,
                                Gewicht_Brutto_, Rabattliste_, TaxCalculation_});
  if (!Summe_.Versand_berechnet) Versandart_.clear();
  Ergebnis_.Endbetrag = Endbetrag_ermitteln(Summe_);
}

void Belegvorgang::Kopf_anlegen() {
  Summen_ermitteln();
  Kopf_ = Abfragen({"SELECT * FROM ", db::Name{Art_.Tabelle}});
  Kopf_.AddNew();
  Anfang_eintragen();
  Summen_eintragen();
  Ende_eintragen();
}

void Belegvorgang::Kopf_speichern() {
  Kopf_.Update();
  Gescheitert_ |= !Kopf_.UpdateBatch();
}

void Belegvorgang::Bestand_reservieren() {
  const bool bucht = Art_.Bucht_Lager();
  if (bucht) {
    const bool anlegen =
        Programmoption("ReservationUpdate") == QLatin1String("0") ||
        dialoge().Meldung(QStringLiteral("Reservierungen"),
                          {QStringLiteral("Möchten Sie nun Reservierungen für die Positionen erzeugen?")},
                          Symbol::Frage, Knoepfe::JaNein, Antwort::Ja) == Antwort::Ja;
    if (anlegen &&
        !Reservierungen_erzeugen(Art_.Wort, Nummer(), Kontext.gBenutzername, Reservierungen_anlegen, true))
      dialoge().Meldung(QStringLiteral("Fehler"),
                        {QStringLiteral("Die Reservierungen konnten nicht erzeugt werden.")}, Symbol::Stopp);
    Rueckstaende_erzeugen(Art_.Wort, Nummer(), Vorgabe_.Kundennummer);
  }
  if ((bucht || Art_.Buchen_ohne_Lager) && Programmoption("ReservationBooking") == QLatin1String("1"))
    Reservierungen_buchen(Art_.Wort, Nummer(), Kontext.gBenutzername);
}

void Belegvorgang::Versand_beauftragen() {
  if (Kontext.gVersender != 0) return;
  Versandauftrag_erzeugen({Vorgabe_.Bestellnummer, Nummer(), Art_.Wort, Nummer(),
                           QStringLiteral("Ihre Bestellung: %1 · Kundennr. %2")
                               .arg(Vorgabe_.Bestellnummer, Vorgabe_.Kundennummer),
                           Zahlungsart()});
}

void Belegvorgang::Beenden() {
  if (!Gescheitert_) return;
  Ergebnis_.Hindernis = Beleghindernis::Unvollstaendig;
  Fehler_melden();
}

void Belegvorgang::Fehler_melden() const {
  dialoge().Meldung(QStringLiteral("Fehler"), {Art_.Fehler}, Symbol::Stopp);
}

}  // namespace marklink
