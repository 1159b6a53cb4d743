// The public class over everything: each body prepares a dialog or calls a routine, and turns the outcome
// into a Boolean or a text. Methods whose work the library does not do answer as failed ones.
#include "marklink/common.h"

#include "Fenster_einrichten.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"
#include "ui/Dialoge.h"

namespace marklink {
namespace {

QString Projekt() { return Option_lesen(QStringLiteral("Marklink"), QStringLiteral("project")); }

void Schirm(const char *Name) { dialoge().Schirm_zeigen(QLatin1String(Name)); }

void Fehlschlag_melden(const QString &Zeile) {
  dialoge().Meldung(QStringLiteral("Fehler"),
                    {QStringLiteral("Beim Synchronisieren ist ein Fehler aufgetreten."), Zeile},
                    Symbol::Stopp);
}

/// The windows are there as long as any object is: afterwards the host may unload the library.
int Objekte = 0;

class common_Objekt : public common {
 public:
  common_Objekt() {
    ++Objekte;
    Fenster_einrichten();
  }
  ~common_Objekt() override {
    if (--Objekte == 0) Fenster_abbauen();
  }

  QString Message_Info() override { return QStringLiteral("Schnittstelle für Marklink ab Version 1.0.8"); }

  bool Initialisierung(const QString &Firmenname, const QString &Benutzername, const bool & /*Init*/,
                       const bool & /*ShowMessage*/) override {
    Programmkontext neu;
    neu.gFirmenname = Firmenname;
    neu.gBenutzername = Benutzername;
    Kontext = neu;
    Programm_initialisieren();
    Mandant_initialisieren();
    if (Projekt().isEmpty() && !Projekt_nachholen()) return false;
    if (Option_lesen(QStringLiteral("Marklink"), QStringLiteral("wizard")) == QLatin1String("1"))
      Show_Wizard();
    return true;
  }

  void Show_Einstellungen() override { Schirm("frmEinstellungen"); }
  void Show_Wizard() override { Schirm("frmWizard"); }
  void Show_Main() override { Schirm("frmMain"); }
  void Show_Artikelsynchronisierung() override { Schirm("frmArtikel_Synchronisierung"); }

  bool Show_Artikelverwaltung(const QString &, const QString &) override { return false; }
  bool Show_Artikelverwaltung_Varianten(const QString &) override { return false; }
  bool Artikel_existiert_varda(const QString &) override { return false; }
  bool Artikel_existiert_xtc(const QString &, const QString &, const bool &) override { return false; }
  bool Artikel_loeschen_xtc(const QString &, const QString &, const bool &) override { return false; }
  void Artikel_erzeugen_xtc(const QString &) override {}
  QString Show_Kategorie(const QString &, const QString &, const QString &) override { return {}; }
  QString Show_Sonderpreis(const QString &, const QString &) override { return {}; }
  bool Show_Bestandswerte(const QString &, QString &, const bool &) override { return false; }
  void Artikel_synchronisieren_xtc() override {}
  void Sonderpreise_synchronisieren_xtc() override {}
  void Artikel_Lagerbestandsaktualisierung_xtc() override {}

  void Artikel_synchronisieren_varda() override {
    Fehlschlag_melden(QStringLiteral("Die Artikel konnten nicht erzeugt bzw. aktualisiert werden."));
  }
  void Kunden_synchronisieren_varda() override {
    Fehlschlag_melden(QStringLiteral("Die Kunden konnten nicht erzeugt bzw. aktualisiert werden."));
  }
  void Sonderpreise_synchronisieren_varda() override {
    Fehlschlag_melden(QStringLiteral("Die Sonderpreise konnten nicht erzeugt bzw. aktualisiert werden."));
  }

 private:
  /// Lets the user set up the shop project; false when there is still none afterwards.
  bool Projekt_nachholen() {
    const QString hinweis = QStringLiteral("Hinweis");
    dialoge().Meldung(hinweis,
                      {QStringLiteral("Nehmen Sie zunächst bitte die Einstellungen für Marklink vor.")},
                      Symbol::Information);
    Show_Einstellungen();
    if (!Projekt().isEmpty()) return true;
    dialoge().Meldung(hinweis,
                      {QStringLiteral("Sie haben leider kein Projekt für Marklink definiert."),
                       QStringLiteral("Die Auftragsverwaltung kann nicht geöffnet werden.")},
                      Symbol::Warnung);
    return false;
  }
};

}  // namespace

common::common() = default;
common::~common() = default;

}  // namespace marklink

marklink::common *marklink_common_erzeugen() { return new marklink::common_Objekt; }

void marklink_common_freigeben(marklink::common *Objekt) { delete Objekt; }
