// The public class over everything: each body prepares a dialog or calls a routine, and turns the outcome
// into a Boolean or a text. Methods whose work the library does not do answer as failed ones.
#include "marklink/common.h"

#include "Fenster_einrichten.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"
#include "ui/Dialoge.h"

namespace marklink {
namespace {

QString Projekt() { return Option_lesen(QStringLiteral("Marklink"), QStringLiteral("project")); }

/// The windows are there as long as any object is: afterwards the host may unload the library. One that is
/// open when the last object goes stays until it is closed.
int Objekte = 0;
int Aufrufe = 0;  ///< calls under way that show something

void Fenster_freigeben() {
  if (Objekte == 0 && Aufrufe == 0) Fenster_abbauen();
}

/// A call that may show something. Behind it the object may be gone: the message loop ran.
class Aufruf {
 public:
  Aufruf() {
    ++Aufrufe;
    Fenster_einrichten();  // the application may be younger than the object
  }
  ~Aufruf() {
    --Aufrufe;
    Fenster_freigeben();
  }
  Aufruf(const Aufruf &) = delete;
  Aufruf &operator=(const Aufruf &) = delete;
};

void Schirm(const char *Name) {
  const Aufruf aufruf;
  dialoge().Schirm_zeigen(QLatin1String(Name));
}

void Fehlschlag_melden(const QString &Zeile) {
  const Aufruf aufruf;
  dialoge().Meldung(QStringLiteral("Fehler"),
                    {QStringLiteral("Beim Synchronisieren ist ein Fehler aufgetreten."), Zeile},
                    Symbol::Stopp);
}

/// Lets the user set up the shop project; false when there is still none afterwards.
bool Projekt_nachholen() {
  const QString hinweis = QStringLiteral("Hinweis");
  dialoge().Meldung(hinweis,
                    {QStringLiteral("Nehmen Sie zunächst bitte die Einstellungen für Marklink vor.")},
                    Symbol::Information);
  Schirm("frmEinstellungen");
  if (!Projekt().isEmpty()) return true;
  dialoge().Meldung(hinweis,
                    {QStringLiteral("Sie haben leider kein Projekt für Marklink definiert."),
                     QStringLiteral("Die Auftragsverwaltung kann nicht geöffnet werden.")},
                    Symbol::Warnung);
  return false;
}

class common_Objekt : public common {
 public:
  common_Objekt() {
    ++Objekte;
    Fenster_einrichten();
  }
  ~common_Objekt() override {
    --Objekte;
    Fenster_freigeben();
  }

  QString Message_Info() override { return QStringLiteral("Schnittstelle für Marklink ab Version 1.0.8"); }

  bool Initialisierung(const QString &Firmenname, const QString &Benutzername, const bool & /*Init*/,
                       const bool & /*ShowMessage*/) override {
    // What is open or under way would go on in another client's books.
    if (Aufrufe > 0 || Kontext.gLaeuft) {
      Ablauf_melden(QStringLiteral("Initialisierung"),
                    QStringLiteral("refused while a window or run is open"));
      return false;
    }
    const Aufruf aufruf;
    Programmkontext neu;
    neu.gFirmenname = Firmenname;
    neu.gBenutzername = Benutzername;
    Kontext = neu;
    Programm_initialisieren();
    Mandant_initialisieren();
    if (Projekt().isEmpty() && !Projekt_nachholen()) return false;
    if (Option_lesen(QStringLiteral("Marklink"), QStringLiteral("wizard")) == QLatin1String("1"))
      Schirm("frmWizard");
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
};

}  // namespace

common::common() = default;
common::~common() = default;

}  // namespace marklink

marklink::common *marklink_common_erzeugen() { return new marklink::common_Objekt; }

void marklink_common_freigeben(marklink::common *Objekt) { delete Objekt; }
