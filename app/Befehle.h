// The commands of the launcher as data: words, arguments, options, help, and what runs them.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace marklink {

struct Aufruf;

struct Optionsbeschreibung {
  QString Name;  ///< without the two dashes
  QString Wert;  ///< what stands for the value in the help; empty: a switch
  QString Hilfe;
};

struct Argumentbeschreibung {
  QString Name;
  QStringList Auswahl{};  ///< words for the shell's completion; empty: anything
  bool Beliebig = false;  ///< none or any number of it; for the last argument only
};

struct Befehl {
  QString Gruppe;
  QString Unterbefehl;                          ///< empty: the group is the command
  std::vector<Argumentbeschreibung> Argumente;  ///< all of them are needed, but for any number of one
  std::vector<Optionsbeschreibung> Optionen;
  QString Hilfe;
  int (*Ausfuehren)(const Aufruf &);  ///< gives the exit status
};

struct Befehlsgruppe {
  QString Name;
  QString Hilfe;
};

enum Ausgang { Erledigt = 0, Fehlgeschlagen = 1, Falscher_Aufruf = 2 };

const std::vector<Befehlsgruppe> &Befehlsgruppen();
const std::vector<Befehl> &Befehle();
/// Options that stand anywhere on the line, whatever the command.
const std::vector<Optionsbeschreibung> &Allgemeine_Optionen();

/// nullptr when there is none. `Unterbefehl` is empty for a group that is itself the command.
const Befehl *Befehl_suchen(const QString &Gruppe, const QString &Unterbefehl);

// --- what runs them

int Befehl_Mandant_anlegen(const Aufruf &A);
int Befehl_Mandant_demo(const Aufruf &A);
int Befehl_Drucken_bestellliste(const Aufruf &A);
int Befehl_Drucken_transaktionsliste(const Aufruf &A);
int Befehl_Einstellung_lesen(const Aufruf &A);
int Befehl_Einstellung_schreiben(const Aufruf &A);
int Befehl_Bestellungen_abrufen(const Aufruf &A);
int Befehl_Bestellungen_liste(const Aufruf &A);
int Befehl_Bestellungen_zeigen(const Aufruf &A);
int Befehl_Bestellungen_status(const Aufruf &A);
int Befehl_Bestellungen_rechnung(const Aufruf &A);
int Befehl_Bestellungen_loeschen(const Aufruf &A);
int Befehl_Kunden_anlegen(const Aufruf &A);
int Befehl_Belege_auftrag(const Aufruf &A);
int Befehl_Belege_rechnung(const Aufruf &A);
int Befehl_Lager_zuteilen(const Aufruf &A);
int Befehl_Nummer(const Aufruf &A);
int Befehl_Posten(const Aufruf &A);
int Befehl_Preis(const Aufruf &A);
int Befehl_Schirm(const Aufruf &A);
int Befehl_Versand_liste(const Aufruf &A);
int Befehl_Versand_uebergeben(const Aufruf &A);
int Befehl_Versand_exportieren(const Aufruf &A);
int Befehl_Versand_loeschen(const Aufruf &A);
int Befehl_Versandkosten(const Aufruf &A);
int Befehl_Vervollstaendigung(const Aufruf &A);

}  // namespace marklink
