// marklink schirm: opens a screen by its name.
#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Schirmnamen.h"
#include "Sitzung.h"
#include "host/Kontext.h"
#include "marklink/common.h"
#include "ui/Dialoge.h"

namespace marklink {
namespace {

struct Schirmbefehl {
  const char *Name;
  bool (*Oeffnen)(const Aufruf &A);
  void (*Zeigen)(common &Objekt);
};

/// The settings are what makes a client complete, so they open without a shop project too.
constexpr Schirmbefehl Schirmbefehle[] = {
    {"auftragsverwaltung", &Mandant_oeffnen, [](common &O) { O.Show_Main(); }},
    {"einstellungen", &Einstellungen_oeffnen, [](common &O) { O.Show_Einstellungen(); }},
    {"versand", &Mandant_oeffnen,
     [](common &) { dialoge().Schirm_zeigen(QStringLiteral("frmVersender_EASYLOG")); }},
    {"versand_einstellungen", &Einstellungen_oeffnen,
     [](common &) { dialoge().Schirm_zeigen(QStringLiteral("frmVersender_EASYLOG_Einstellungen")); }},
};

const Schirmbefehl *Schirm_suchen(const QString &Name) {
  for (const Schirmbefehl &befehl : Schirmbefehle)
    if (Name.compare(QLatin1String(befehl.Name), Qt::CaseInsensitive) == 0) return &befehl;
  return nullptr;
}

}  // namespace

QStringList Schirmnamen() {
  QStringList namen;
  for (const Schirmbefehl &befehl : Schirmbefehle) namen << QLatin1String(befehl.Name);
  return namen;
}

bool Braucht_Fenster(const Aufruf &A) {
  return A.Was != nullptr && A.Was->Ausfuehren == &Befehl_Schirm && Schirm_suchen(A.Argumente[0]) != nullptr;
}

int Befehl_Schirm(const Aufruf &A) {
  const Schirmbefehl *befehl = Schirm_suchen(A.Argumente[0]);
  if (befehl == nullptr) {
    Fehler_melden(QStringLiteral("Den Schirm '%1' gibt es nicht; es gibt: %2.")
                      .arg(A.Argumente[0], Schirmnamen().join(QLatin1String(", "))));
    return Falscher_Aufruf;
  }
  // Made first: it brings the windows that opening a client may already show.
  const auto objekt = Objekt_erzeugen();
  if (!befehl->Oeffnen(A)) return Fehlgeschlagen;
  befehl->Zeigen(*objekt);
  return Erledigt;
}

}  // namespace marklink
