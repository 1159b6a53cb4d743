// The order desk's commands.
#include "Auftragspult.h"

#include "Auftragsdruck.h"
#include "Auftragsstati.h"
#include "Belegstapel.h"
#include "Bestellabruf.h"
#include "Bestellstatus.h"
#include "Kundenuebernahme.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"
#include "host/Zahlen.h"
#include "shipping/Versandauftrag.h"
#include "ui/Dialoge.h"

namespace marklink {

namespace {

constexpr qint32 VERSENDER_EASYLOG = 0;
constexpr int SPALTE_WEBSHOPID = 1;  // of the status list

bool Fragen(const QString &Titel, const QStringList &Zeilen, Antwort Vorgabe) {
  return dialoge().Meldung(Titel, Zeilen, Symbol::Frage, Knoepfe::JaNein, Vorgabe) == Antwort::Ja;
}

void Hinweis(const QStringList &Zeilen) {
  dialoge().Meldung(QStringLiteral("Hinweis"), Zeilen, Symbol::Information);
}

/// An empty cell counts as 0.
bool Ist_null(const QVariant &Zelle) {
  const QString text = Zelle.toString().trimmed();
  return text.isEmpty() || Zahl_deutsch(text) == 0.0;
}

}  // namespace

void Auftragspult::Oeffnen() {
  Listen = Auswahllisten_laden();
  Auftragsstati_laden();
}

void Auftragspult::Auftragsstati_laden() {
  const QStringList markiert = Zeilen_markierte(Liste.lvwAuftragsstatus, SPALTE_WEBSHOPID);
  Auftragsstati_initialisieren(Liste.lvwAuftragsstatus);
  for (Listenzeile &zeile : Liste.lvwAuftragsstatus.Zeilen)
    zeile.Markiert = markiert.contains(zeile.Spalten.value(SPALTE_WEBSHOPID));
  Tabelle.Auftragsstati_einfaerben(gAuftragsstati_Liste);
}

void Auftragspult::Erste_Aktivierung() {
  if (Als_Ganzzahl(Option_lesen(QStringLiteral("Marklink"), QStringLiteral("autoretrieve"))) != 0)
    Bestellungen();
  else
    Liste.Auftragsliste_laden();
}

bool Auftragspult::Beenden() {
  Option_schreiben(QStringLiteral("Marklink"), QStringLiteral("ViewablePeriod"),
                   QString::number(Kontext.gViewablePeriod));
  if (Option_lesen(QStringLiteral("Program"), QStringLiteral("Finalize")) != u"1") return true;
  return Fragen(QStringLiteral("Beenden"),
                {QStringLiteral("Möchten Sie die Auftragsverwaltung für xt:Commerce beenden?")}, Antwort::Ja);
}

void Auftragspult::Freigeben() {
  if (Kontext.gDatabasetype == 1) Optionen_freigeben();
}

void Auftragspult::Bestellungen() { Bestellungen_abrufen(QString(), Liste); }

void Auftragspult::Bestellungen_abrufen_auftragsstatusliste() {
  Bestellungen_abrufen(Bestellparameter(Liste.lvwAuftragsstatus), Liste);
}

void Auftragspult::Bestellungen_Loeschen() {
  if (!Fragen(QStringLiteral("Bestellung in Varda löschen"),
              {QStringLiteral("Möchten Sie die temporär gespeicherten Bestellungen wirklich löschen?")},
              Antwort::Nein))
    return;
  Bestellungen_loeschen();
  Hinweis({QStringLiteral("Die Bestellung wurden in Varda gelöscht.")});
  Liste.Auftragsliste_laden();
}

void Auftragspult::Kunden() {
  if (Fragen(QStringLiteral("Kunden anlegen"),
             {QStringLiteral("Möchten Sie nun die Kunden der markierten Aufträge anlegen?"),
              QStringLiteral("Kunden, die bereits vorhanden sind, werden aktualisiert.")},
             Antwort::Ja))
    Kunden_anlegen(Liste);
}

void Auftragspult::Auftrag() { Belege_erzeugen(Stapel_Auftraege, Liste); }

void Auftragspult::Rechnung() { Belege_erzeugen(Stapel_Rechnungen, Liste); }

void Auftragspult::drucken_bestellliste() { Bestellliste_drucken(Liste); }

void Auftragspult::drucken_transaktionsliste() { Transaktionsliste_drucken(Liste); }

void Auftragspult::drucken_transaktionsliste_datei() { Transaktionsliste_exportieren(Liste); }

void Auftragspult::Einstellung() {
  dialoge().Schirm_zeigen(QStringLiteral("frmEinstellungen"));
  Shopprojekt_einlesen();
}

void Auftragspult::Versand() {
  if (Kontext.gVersender == VERSENDER_EASYLOG)
    dialoge().Schirm_zeigen(QStringLiteral("frmVersender_EASYLOG"));
}

void Auftragspult::versand_einstellungen() {
  if (Kontext.gVersender == VERSENDER_EASYLOG)
    dialoge().Schirm_zeigen(QStringLiteral("frmVersender_EASYLOG_Einstellungen"));
}

QString Auftragspult::Aktuelle_Bestellung() const {
  return Liste.Zelle(Liste.AktuelleZeile(), "OrderID").toString();
}

void Auftragspult::mnuKontext_Status_Dialog() {
  Bestellstatusdialog dialog;
  dialog.Bestellnummer = Aktuelle_Bestellung();
  if (dialog.Bestellnummer.isEmpty() || !Statusdialog_zeigen) return;
  dialog.Bestellstatus = Bestellstatus_folgend(Liste.Zelle(Liste.AktuelleZeile(), "Status").toString());
  Statusdialog_zeigen(dialog);
  if (dialog.Action != 0) return;
  Bestellstatus_speichern(Aktuelle_Bestellung(), dialog.Bestellstatus);
  // Whatever the shop and the table answered, on purpose.
  Hinweis({QStringLiteral("Der Status der Bestellung wurde erfolgreich geändert.")});
  Liste.Auftragsliste_laden();
}

void Auftragspult::mnuKontext_Status_setzen(const QString &Status) { Status_setzen(Liste, Status); }

void Auftragspult::mnuKontext_Versender() {
  const QString bestellung = Aktuelle_Bestellung();
  if (bestellung.isEmpty()) return;
  const int zeile = Liste.AktuelleZeile();
  if (!Ist_null(Liste.Zelle(zeile, "Logistic"))) {
    Hinweis({QStringLiteral("Die Bestellung wurde bereits an den Versand übergeben.")});
    return;
  }
  const QString referenz = dialoge().Eingabe(
      QStringLiteral("Referenznummer eingeben"),
      QStringLiteral("Geben Sie bitte eine eindeutige Referenznummer für den Versand ein."), QString());
  if (referenz.isEmpty()) {
    Hinweis({QStringLiteral("Sie haben leider keine Referenznummer vergeben."),
             QStringLiteral("Die Bestellung kann nicht an den Versand übergeben werden.")});
    return;
  }
  Versandauftrag auftrag{bestellung, referenz};
  auftrag.Zahlart = Liste.Zelle(zeile, "Payment").toString();
  auftrag.Meldung_zeigen = true;
  Versandauftrag_erzeugen(auftrag);
}

void Auftragspult::mnuKontext_Rechnungscheck() {
  const QString bestellung = Aktuelle_Bestellung();
  if (bestellung.isEmpty()) return;
  QString nummer;
  if (Rechnung_zur_Bestellung(nummer, bestellung))
    Hinweis({QStringLiteral("Für diese Bestellung wurde bereits eine Rechnung erstellt."),
             QStringLiteral("Rechnungsnummer: ") + nummer});
  else
    Hinweis({QStringLiteral("Für diese Bestellung liegt noch keine Rechnung vor.")});
}

void Auftragspult::Aktualisieren() {
  if (!Kontext.gLaeuft) Liste.Auftragsliste_laden();
}

void Auftragspult::Zeitraum_waehlen(int Zeitraum) {
  Kontext.gViewablePeriod = static_cast<qint16>(Zeitraum);
  Liste.Auftragsliste_laden();
}

}  // namespace marklink
