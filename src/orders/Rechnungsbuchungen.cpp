// What an invoice books by the client's settings.
#include "Rechnungsbuchungen.h"

#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "rules/Kunden.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"
#include "ui/Host_Komponenten.h"

namespace marklink {
namespace {

bool Eingeschaltet(const char *Schluessel) { return Programmoption(Schluessel) == QLatin1String("1"); }

std::unique_ptr<Host_Komponente> Komponente_bereitstellen(const QString &Name) {
  auto komponente = Host_Komponente_erzeugen(Name);
  Host_Komponente_aufrufen(komponente.get(), QStringLiteral("Initialisierung"),
                           {Kontext.gFirmenname, Kontext.gBenutzername});
  return komponente;
}

void Fehlende_Bankverbindung_melden() {
  dialoge().Meldung(
      QStringLiteral("Hinweis"),
      {QStringLiteral("Es konnte leider kein Lastschrifteneinzug für diese Rechnung erzeugt werden, da zum "
                      "Kunden keine Bankverbindung hinterlegt wurde."),
       QStringLiteral("Speichern Sie zum Kunden bitte eine gültige Bankverbindung und erstellen die "
                      "DTA-Buchung manuell.")},
      Symbol::Warnung);
}

void Fehlende_Ermaechtigung_melden() {
  dialoge().Meldung(QStringLiteral("Hinweis"),
                    {QStringLiteral("Es liegt für diesen Kunden leider keine Einzugsermächtigung vor."),
                     QStringLiteral("Es wurde somit kein Lastschrifteneinzug für diese Rechnung erzeugt.")},
                    Symbol::Warnung);
}

void Einzug_speichern(Host_Komponente *Dta, const Belegvorgang &Rechnung) {
  Bankdaten bank;
  Kunden_Bankdaten(bank, Rechnung.Kundennummer());
  if (bank.BankCode.isEmpty() && bank.Bankname.isEmpty() && bank.AccountNumber.isEmpty() &&
      bank.AccountHolder.isEmpty()) {
    Fehlende_Bankverbindung_melden();
    return;
  }
  const QString heute = Datum_formatieren(Zeitpunkt(Kontext.gHeute), QStringLiteral("short date"));
  const QString buchung =
      Host_Komponente_aufrufen(
          Dta, QStringLiteral("Buchung_speichern"),
          {0, false, Kontext.gHeute, bank.AccountHolder, bank.AccountNumber, bank.Bankname, bank.BankCode,
           Rechnung.Endbetrag(), QStringLiteral("Rechnungsnr. ") + Rechnung.Nummer(),
           QStringLiteral("Rechnung vom ") + heute, Rechnung.Wort(), Rechnung.Nummer()})
          .toString();
  if (!buchung.isEmpty())
    Felder_aendern(QStringLiteral("Invoice"), QStringLiteral("InvoiceNumber"), Rechnung.Nummer(),
                   QStringLiteral("CashlessPaymentNumber"), buchung);
}

bool Neue_Saetze_fragen() {
  const Fortschritt_verdeckt pause;
  return dialoge().Meldung(
             QStringLiteral("DATEV: Buchungssätze bereits vorhanden"),
             {QStringLiteral("Zu dieser Rechnung wurden bereits DATEV-Buchungssätze erzeugt."),
              QStringLiteral("Möchten Sie diese nun löschen und neue Buchungssätze generieren?")},
             Symbol::Frage, Knoepfe::JaNein, Antwort::Nein) == Antwort::Ja;
}

}  // namespace

std::optional<Zahlungseingang> Zahlung_buchen(const Belegvorgang &Rechnung) {
  const QString zahlart = Rechnung.Zahlungsart();
  if (!Eingeschaltet("AutoPaymentBooking") || !Zahlart_Zahlung(zahlart)) return std::nullopt;
  return Zahlungseingang_erzeugen({Rechnung.Wort(), Rechnung.Nummer(), Kontext.gHeute, zahlart,
                                   Rechnung.Kunde().Text(QStringLiteral("Matchcode")),
                                   Rechnung.Kundennummer(), Rechnung.Endbetrag()});
}

void Offenen_Posten_anlegen(const Belegvorgang &Rechnung, const std::optional<Zahlungseingang> &Zahlung) {
  Offenen_Posten_aktualisieren(Postenart::Rechnung, Rechnung.Nummer(), Rechnung.Wort(), 0.0,
                               Zahlung ? Zahlung->Skonto : 0.0);
}

void Lastschrift_buchen(const Belegvorgang &Rechnung) {
  const auto dta = Komponente_bereitstellen(QStringLiteral("dta.common"));
  if (!Eingeschaltet("CashlessPaymentBooking") || !Zahlart_Lastschrift(Rechnung.Zahlungsart())) return;
  if (Kunden_Lastschrift(Rechnung.Kundennummer()))
    Einzug_speichern(dta.get(), Rechnung);
  else
    Fehlende_Ermaechtigung_melden();
}

void Buchungssaetze_erzeugen(const Belegvorgang &Rechnung) {
  const auto datev = Komponente_bereitstellen(QStringLiteral("datev.common"));
  if (!Eingeschaltet("AccountingRecordBooking")) return;
  if (Host_Komponente_aufrufen(
          datev.get(), QStringLiteral("Beleg_gebucht"),
          {QStringLiteral("Invoice"), QStringLiteral("InvoiceNumber"), Rechnung.Nummer()})
          .toBool()) {
    if (Option_lesen(QStringLiteral("DATEV"), QStringLiteral("AutoAccountingRecordBooking")) !=
            QLatin1String("1") &&
        !Neue_Saetze_fragen())
      return;
    Host_Komponente_aufrufen(datev.get(), QStringLiteral("Beleg_Buchungen_loeschen"),
                             {Rechnung.Wort(), Rechnung.Nummer()});
  }
  Host_Komponente_aufrufen(datev.get(), QStringLiteral("Beleg_Buchungen_erstellen"),
                           {Rechnung.Wort(), Rechnung.Nummer(), 1});
}

}  // namespace marklink
