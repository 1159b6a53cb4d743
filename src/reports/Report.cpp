// Showing, printing and exporting a report.
#include "Report.h"

#include "Berichtsausgabe.h"
#include "drucken.h"
#include "host/Datenbank.h"

namespace marklink {
namespace {

Berichtsfenster &Installiert() {
  static Berichtsfenster fenster;
  return fenster;
}

}  // namespace

Report::Report(Bericht Was, std::shared_ptr<const Berichtsdaten> Daten)
    : Bericht_(std::move(Was)), Daten_(std::move(Daten)) {}

std::unique_ptr<Seitensatz> Report::Setzen(const Druckereinstellung &Papier) const {
  Seitenmasse masse;
  masse.Breite = Papier.Querformat ? Papier.Papierhoehe : Papier.Papierbreite;
  masse.Hoehe = Papier.Querformat ? Papier.Papierbreite : Papier.Papierhoehe;
  return std::make_unique<Seitensatz>(Bericht_, *Daten_, masse);
}

const Seitensatz &Report::Run() {
  Satz_ = Setzen(PageSettings);
  return *Satz_;
}

void Report::Unload() {
  Satz_.reset();
  if (ReportEnd) ReportEnd();
}

void Berichtsfenster_setzen(Berichtsfenster Fenster) { Installiert() = std::move(Fenster); }

const Berichtsfenster &berichtsfenster() { return Installiert(); }

void Report_ausgeben(Report &R, bool Mit_Druckerdialog, bool Nur_Vorschau, bool Einstellungen_anwenden) {
  if (!Drucker_vorhanden()) return;
  const Berichtsfenster &fenster = berichtsfenster();
  if (Mit_Druckerdialog && Programmoption("PrinterSetup") == u"1" && fenster.Druckerdialog &&
      !fenster.Druckerdialog())
    return;
  Vorschau_einrichten(R);
  if (Einstellungen_anwenden) Druckeinstellungen_setzen(R, true, true);
  const bool vorschau = Nur_Vorschau || Programmoption("Preview") == u"1";
  const auto &tun = vorschau ? fenster.Show : fenster.PrintReport;
  if (tun) tun(R);
  R.Unload();
}

bool Report_exportieren(Report &R, Exportart Art, const QString &Dateiname) {
  if (!Drucker_vorhanden()) return false;
  Vorschau_einrichten(R);
  Druckeinstellungen_setzen(R, true, true);
  const bool gut = Bericht_schreiben(R.Run(), Art, Dateiname);
  R.Unload();
  return gut;
}

}  // namespace marklink
