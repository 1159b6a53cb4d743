// The shipment list's commands.
#include "Versandpult.h"

#include "Versandexport.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "ui/Dialoge.h"

namespace marklink {

namespace {

constexpr struct {
  const char *Schluessel;
  void (*Tun)(Versandpult &Pult);
} Befehle[] = {
    {"Versandliste_laden", [](Versandpult &P) { P.Laden(); }},
    {"Versandliste_exportieren", [](Versandpult &P) { P.Exportieren(); }},
    {"Versandliste_loeschen", [](Versandpult &P) { P.Loeschen(); }},
    {"Einstellungen", [](Versandpult &P) { P.Einstellungen(); }},
    {"mnuKontext_Alles_markieren", [](Versandpult &P) { P.Liste.Alles_markieren(); }},
    {"mnuKontext_Markierung_aufheben", [](Versandpult &P) { P.Liste.Markierung_aufheben(); }},
};

bool Fragen(const QString &Titel, const QString &Frage, Antwort Vorgabe) {
  return dialoge().Meldung(Titel, {Frage}, Symbol::Frage, Knoepfe::JaNein, Vorgabe) == Antwort::Ja;
}

}  // namespace

bool Versandpult::Befehl(const QString &Schluessel) {
  for (const auto &befehl : Befehle) {
    if (Schluessel != QLatin1String(befehl.Schluessel)) continue;
    befehl.Tun(*this);
    return true;
  }
  return false;
}

void Versandpult::Exportieren() {
  Liste.Versandliste_speichern();
  Kontext.gLaeuft = true;
  Versandliste_exportieren();
  Kontext.gLaeuft = false;
  Laden();
}

void Versandpult::Loeschen() {
  if (!Fragen(QStringLiteral("Versandaufträge in Varda löschen"),
              QStringLiteral("Möchten Sie die temporär gespeicherten Versandaufträge wirklich löschen?"),
              Antwort::Nein))
    return;
  Ausfuehren("DELETE FROM LogisticsEASYLOG");
  Laden();
  // Whatever became of it, on purpose; the list shows what is left.
  dialoge().Meldung(QStringLiteral("Hinweis"),
                    {QStringLiteral("Die Versandaufträge wurden in Varda gelöscht.")}, Symbol::Information);
}

void Versandpult::Einstellungen() {
  dialoge().Schirm_zeigen(QStringLiteral("frmVersender_EASYLOG_Einstellungen"));
}

void Versandpult::Zeitraum_waehlen(int Zeitraum) { Kontext.gViewablePeriod = static_cast<qint16>(Zeitraum); }

bool Versandpult::Beenden() {
  // Other than the order desk, which asks where the option is 1: intended.
  if (Programmoption("Finalize") != u"1" &&
      !Fragen(QStringLiteral("Beenden"), QStringLiteral("Möchten Sie den Export für EASYLOG beenden?"),
              Antwort::Ja))
    return false;
  Liste.Versandliste_speichern();
  return true;
}

void Versandpult::Freigeben() {
  Option_schreiben(QStringLiteral("Marklink"), QStringLiteral("ViewablePeriod"),
                   QString::number(Kontext.gViewablePeriod));
  if (Kontext.gDatabasetype == 1) Optionen_freigeben();
}

}  // namespace marklink
