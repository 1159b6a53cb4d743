// The launcher from its arguments to its exit status.
#include "Start.h"

#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Hilfe.h"
#include "Launcher_Komponenten.h"
#include "Schirmnamen.h"
#include "Terminal_Dialoge.h"
#include "Terminal_Drucker.h"
#include "Terminal_Fortschritt.h"
#include "Terminal_Ziehung.h"
#include "Unterbrechung.h"
#include "db/Verbindung.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

/// What every command has, installed as long as this lives.
class Anschluesse {
 public:
  Anschluesse() {
    Host_Komponenten_setzen(&Komponenten_);
    Stillstandsfrage_setzen(&Stillstand_im_Terminal);
  }
  ~Anschluesse() {
    Host_Komponenten_setzen(nullptr);
    Stillstandsfrage_setzen({});
    db::Verbindungen_schliessen();
  }
  Anschluesse(const Anschluesse &) = delete;
  Anschluesse &operator=(const Anschluesse &) = delete;

 private:
  Launcher_Komponenten Komponenten_;
};

/// The terminal in place of the library's windows.
class Terminal {
 public:
  explicit Terminal(const Aufruf &A) : Dialoge_(A.Werte("antwort")) {
    Dialoge_setzen(&Dialoge_);
    Fortschritt_setzen(&Fortschritt_);
    Drucker_setzen(&Drucker_);
    Verbindungsfenster_setzen(&Austausch_im_Terminal);
    Unterbrechung_einrichten();
  }
  ~Terminal() {
    Dialoge_setzen(nullptr);
    Fortschritt_setzen(nullptr);
    Drucker_setzen(nullptr);
    Verbindungsfenster_setzen(nullptr);
  }
  Terminal(const Terminal &) = delete;
  Terminal &operator=(const Terminal &) = delete;

  bool Fehler_gezeigt() const { return Dialoge_.Fehler_gezeigt(); }

 private:
  Terminal_Dialoge Dialoge_;
  Terminal_Fortschritt Fortschritt_;
  Terminal_Drucker Drucker_;
};

int Befehl_ausfuehren(const Aufruf &A) {
  const Anschluesse anschluesse;
  if (Braucht_Fenster(A)) return A.Was->Ausfuehren(A);
  const Terminal terminal(A);
  const int ausgang = A.Was->Ausfuehren(A);
  if (ausgang == Falscher_Aufruf) return ausgang;
  if (Unterbrochen()) {
    Fehler_melden(QStringLiteral("Abgebrochen; was bis dahin getan war, bleibt."));
    return Fehlgeschlagen;
  }
  return ausgang != Erledigt || terminal.Fehler_gezeigt() ? Fehlgeschlagen : Erledigt;
}

int Falschen_Aufruf_melden(const Befehlszeile &Zeile) {
  Fehler_melden(Zeile.Fehler);
  Melden(QStringLiteral("Aufruf: ") + Aufrufform(Zeile.Thema));
  const QString thema = Zeile.Thema.isEmpty() ? QString() : Zeile.Thema.join(u' ') + u' ';
  Melden(QStringLiteral("Hilfe:  marklink %1--help").arg(thema));
  return Falscher_Aufruf;
}

int Ausfuehren(const Befehlszeile &Zeile) {
  switch (Zeile.Was) {
    case Befehlszeile::Art::Hilfe:
      Ausgeben(Hilfetext(Zeile.Thema).trimmed());
      return Erledigt;
    case Befehlszeile::Art::Version:
      Ausgeben(QStringLiteral("marklink ") + QStringLiteral(MARKLINK_VERSION));
      return Erledigt;
    case Befehlszeile::Art::Ausfuehren:
      return Befehl_ausfuehren(Zeile.Aufruf_);
    case Befehlszeile::Art::Fehler:
      break;
  }
  return Falschen_Aufruf_melden(Zeile);
}

}  // namespace

int Launcher_starten(const Befehlszeile &Zeile) {
  const int ausgang = Ausfuehren(Zeile);
  if (Ausgabe_abschliessen()) return ausgang;
  Fehler_melden(QStringLiteral("Die Ausgabe konnte nicht geschrieben werden."));
  return ausgang == Erledigt ? int(Fehlgeschlagen) : ausgang;
}

}  // namespace marklink
