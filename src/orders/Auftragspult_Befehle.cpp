// Commands by their keys, and the hand-over to the shipper.
#include "Auftragspult.h"
#include "host/Zahlen.h"
#include "shipping/Versandauftrag.h"
#include "ui/Dialoge.h"

namespace marklink {

namespace {

struct Pultbefehl {
  const char *Schluessel;
  void (Auftragspult::*Tun)();
};
constexpr Pultbefehl Befehle[] = {
    {"Bestellungen", &Auftragspult::Bestellungen},
    {"Bestellungen_abrufen_auftragsstatusliste", &Auftragspult::Bestellungen_abrufen_auftragsstatusliste},
    {"Bestellungen_Loeschen", &Auftragspult::Bestellungen_Loeschen},
    {"Kunden", &Auftragspult::Kunden},
    {"Auftrag", &Auftragspult::Auftrag},
    {"Rechnung", &Auftragspult::Rechnung},
    {"Einstellung", &Auftragspult::Einstellung},
    {"Versand", &Auftragspult::Versand},
    {"versand_einstellungen", &Auftragspult::versand_einstellungen},
    {"mnuKontext_Status_Dialog", &Auftragspult::mnuKontext_Status_Dialog},
    {"mnuKontext_Alles_markieren", &Auftragspult::mnuKontext_Alles_markieren},
    {"mnuKontext_Markierung_aufheben", &Auftragspult::mnuKontext_Markierung_aufheben},
    {"mnuKontext_Versender", &Auftragspult::mnuKontext_Versender},
    {"mnuKontext_Rechnungscheck", &Auftragspult::mnuKontext_Rechnungscheck},
    {"cmdAktualisieren", &Auftragspult::Aktualisieren},
};

/// The list editors, each a screen of its own.
constexpr struct {
  const char *Schluessel, *Schirm;
} Listen_nach_Schluessel[] = {
    {"einstellungen_auftragsstati", "frmListen_Auftragsstati"},
    {"einstellungen_kundengruppen", "frmListen_Kundengruppen"},
    {"einstellungen_lieferzeiten", "frmListen_Lieferzeiten"},
    {"einstellungen_sprachen", "frmListen_Sprachen"},
    {"einstellungen_verpackungseinheiten", "frmListen_Einheiten"},
    {"einstellungen_artikelvorlagen_details", "frmListen_Artikelvorlagen_Details"},
    {"einstellungen_artikelvorlagen_optionen", "frmListen_Artikelvorlagen_Optionen"},
};

/// An empty cell counts as 0.
bool Ist_null(const QVariant &Zelle) {
  const QString text = Zelle.toString().trimmed();
  return text.isEmpty() || Zahl_deutsch(text) == 0.0;
}

}  // namespace

bool Auftragspult::Befehl(const QString &Schluessel) {
  for (const Pultbefehl &befehl : Befehle) {
    if (Schluessel != QLatin1String(befehl.Schluessel)) continue;
    (this->*befehl.Tun)();
    return true;
  }
  for (const auto &liste : Listen_nach_Schluessel) {
    if (Schluessel != QLatin1String(liste.Schluessel)) continue;
    dialoge().Schirm_zeigen(QLatin1String(liste.Schirm));
    if (Schluessel == u"einstellungen_auftragsstati") Auftragsstati_laden();
    return true;
  }
  return false;
}

void Auftragspult::mnuKontext_Versender() {
  const QString bestellung = Aktuelle_Bestellung(), hinweis = QStringLiteral("Hinweis");
  if (bestellung.isEmpty()) return;
  const int zeile = Liste.AktuelleZeile();
  if (!Ist_null(Liste.Zelle(zeile, "Logistic"))) {
    dialoge().Meldung(hinweis, {QStringLiteral("Die Bestellung wurde bereits an den Versand übergeben.")},
                      Symbol::Information);
    return;
  }
  const QString referenz = dialoge().Eingabe(
      QStringLiteral("Referenznummer eingeben"),
      QStringLiteral("Geben Sie bitte eine eindeutige Referenznummer für den Versand ein."), QString());
  if (referenz.isEmpty()) {
    dialoge().Meldung(hinweis,
                      {QStringLiteral("Sie haben leider keine Referenznummer vergeben."),
                       QStringLiteral("Die Bestellung kann nicht an den Versand übergeben werden.")},
                      Symbol::Information);
    return;
  }
  Versandauftrag auftrag{bestellung, referenz};
  auftrag.Zahlart = Liste.Zelle(zeile, "Payment").toString();
  auftrag.Meldung_zeigen = true;
  Versandauftrag_erzeugen(auftrag);
}

}  // namespace marklink
