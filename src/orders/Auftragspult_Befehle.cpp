// Commands by their keys.
#include "Auftragspult.h"
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
    {"Drucken", &Auftragspult::drucken_bestellliste},
    {"drucken_transaktionsliste", &Auftragspult::drucken_transaktionsliste},
    {"drucken_transaktionsliste_datei", &Auftragspult::drucken_transaktionsliste_datei},
    {"Einstellung", &Auftragspult::Einstellung},
    {"Versand", &Auftragspult::Versand},
    {"versand_einstellungen", &Auftragspult::versand_einstellungen},
    {"mnuKontext_Status_Dialog", &Auftragspult::mnuKontext_Status_Dialog},
    {"mnuKontext_Alles_markieren", &Auftragspult::mnuKontext_Alles_markieren},
    {"mnuKontext_Markierung_aufheben", &Auftragspult::mnuKontext_Markierung_aufheben},
    {"mnuKontext_Versender", &Auftragspult::mnuKontext_Versender},
    {"mnuKontext_Rechnungscheck", &Auftragspult::mnuKontext_Rechnungscheck},
    {"mnuKontext_Drucken_Bestellliste", &Auftragspult::drucken_bestellliste},
    {"mnuKontext_Drucken_Transaktionsliste", &Auftragspult::drucken_transaktionsliste},
    {"mnuKontext_Drucken_Transaktionsliste_Datei", &Auftragspult::drucken_transaktionsliste_datei},
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

}  // namespace marklink
