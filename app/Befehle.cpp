// The table of commands.
#include "Befehle.h"

#include "Schirmnamen.h"
#include "rules/Nummernkreise.h"

namespace marklink {
namespace {

const Optionsbeschreibung Typ{QStringLiteral("typ"), QStringLiteral("0|1"),
                              QStringLiteral("Datenbanktyp des Mandanten (Vorgabe: 0)")};
const Optionsbeschreibung Stati{QStringLiteral("status"), QStringLiteral("1,3"),
                                QStringLiteral("nur Bestellungen mit diesen Status-IDs")};
const Optionsbeschreibung Json{QStringLiteral("json"), {}, QStringLiteral("Ausgabe als JSON")};
const Optionsbeschreibung Zeitraum{
    QStringLiteral("zeitraum"), QStringLiteral("N"),
    QStringLiteral("Zeitraum 0 bis 40 (Vorgabe: der zuletzt gewählte; 0: alle)")};
const Optionsbeschreibung Alle{
    QStringLiteral("alle"), {}, QStringLiteral("statt Nummern: alle Bestellungen")};

/// The type, and where a client of type 1 lies.
std::vector<Optionsbeschreibung> Mandantenoptionen() {
  return {
      Typ,
      {QStringLiteral("server"), QStringLiteral("ADRESSE"),
       QStringLiteral("Typ 1: der SQL Server, auf dem der Katalog mit dem Namen des Mandanten liegt, etwa "
                      "server,1433 oder server\\instanz (Vorgabe: der Server der Hostkonfiguration, "
                      "ohne einen die eingebettete Datenbank)")},
      {QStringLiteral("anmeldung"), QStringLiteral("BENUTZER"),
       QStringLiteral("Anmeldung am Server; das Kennwort steht in MARKLINK_KENNWORT oder wird gefragt "
                      "(eine Zeile der Standardeingabe)")},
      {QStringLiteral("integriert"), {}, QStringLiteral("statt --anmeldung: mit Kerberos")},
      {QStringLiteral("wartezeit"), QStringLiteral("SEKUNDEN"),
       QStringLiteral("wie lange eine Anmeldung und eine Anweisung dauern dürfen (Vorgabe: 30)")}};
}

std::vector<Befehl> Mandantenbefehle() {
  const QString gruppe = QStringLiteral("mandant");
  std::vector<Optionsbeschreibung> demo = Mandantenoptionen();
  demo.push_back({QStringLiteral("port"), QStringLiteral("N"),
                  QStringLiteral("Port des Demoshops auf diesem Rechner (Vorgabe: 8080)")});
  return {
      {gruppe,
       QStringLiteral("anlegen"),
       {{QStringLiteral("NAME")}},
       Mandantenoptionen(),
       QStringLiteral("legt einen neuen Mandanten mit Datenbank, Stammdaten und Einstellungen an"),
       &Befehl_Mandant_anlegen},
      {gruppe,
       QStringLiteral("demo"),
       {},
       demo,
       QStringLiteral("legt den Demomandanten mit Artikeln, Beständen und Preisen an"),
       &Befehl_Mandant_demo},
  };
}

std::vector<Befehl> Einstellungsbefehle() {
  const QString gruppe = QStringLiteral("einstellung");
  const Argumentbeschreibung abschnitt{QStringLiteral("ABSCHNITT")};
  const Argumentbeschreibung schluessel{QStringLiteral("SCHLÜSSEL")};
  return {
      {gruppe,
       QStringLiteral("lesen"),
       {abschnitt, schluessel},
       {},
       QStringLiteral("zeigt eine Einstellung des Mandanten; eine leere Zeile, wenn sie fehlt"),
       &Befehl_Einstellung_lesen},
      {gruppe,
       QStringLiteral("schreiben"),
       {abschnitt, schluessel, {QStringLiteral("WERT")}},
       {},
       QStringLiteral("ändert eine Einstellung des Mandanten"),
       &Befehl_Einstellung_schreiben},
  };
}

std::vector<Befehl> Bestellbefehle() {
  const QString gruppe = QStringLiteral("bestellungen");
  return {
      {gruppe,
       QStringLiteral("abrufen"),
       {},
       {Stati},
       QStringLiteral("ruft die Bestellungen des Shops ab"),
       &Befehl_Bestellungen_abrufen},
      {gruppe,
       QStringLiteral("liste"),
       {},
       {Stati, Zeitraum, Json},
       QStringLiteral("zeigt die abgerufenen Bestellungen"),
       &Befehl_Bestellungen_liste},
      {gruppe,
       QStringLiteral("zeigen"),
       {{QStringLiteral("NR")}},
       {Json},
       QStringLiteral("zeigt eine Bestellung mit Positionen und Anschriften"),
       &Befehl_Bestellungen_zeigen},
      {gruppe,
       QStringLiteral("status"),
       {{QStringLiteral("NR")}, {QStringLiteral("STATUS")}},
       {{QStringLiteral("mail"), {}, QStringLiteral("der Shop benachrichtigt den Kunden per E-Mail")},
        {QStringLiteral("kommentar"), QStringLiteral("TEXT"),
         QStringLiteral("Kommentar zum Status; mit --mail steht er auch in der E-Mail")}},
       QStringLiteral("ändert den Status einer Bestellung im Shop und in Varda"),
       &Befehl_Bestellungen_status},
      {gruppe,
       QStringLiteral("rechnung"),
       {{QStringLiteral("NR")}},
       {},
       QStringLiteral("zeigt die Nummer der Rechnung, die zu einer Bestellung erstellt wurde"),
       &Befehl_Bestellungen_rechnung},
      {gruppe,
       QStringLiteral("loeschen"),
       {},
       {},
       QStringLiteral("löscht alle abgerufenen Bestellungen in Varda, nach Rückfrage"),
       &Befehl_Bestellungen_loeschen},
  };
}

Befehl Kundenbefehl() {
  return {QStringLiteral("kunden"),
          QStringLiteral("anlegen"),
          {{QStringLiteral("NR"), {}, true}},
          {Alle},
          QStringLiteral("holt die Kunden der genannten oder aller Bestellungen aus dem Shop und legt sie in "
                         "Varda an oder aktualisiert sie; ist ein Suchname vergeben, wird nach 'Suchname "
                         "vergeben' gefragt"),
          &Befehl_Kunden_anlegen};
}

std::vector<Befehl> Belegbefehle() {
  const QString gruppe = QStringLiteral("belege");
  const Argumentbeschreibung nummern{QStringLiteral("NR"), {}, true};
  const std::vector<Optionsbeschreibung> optionen{
      {QStringLiteral("alle"), {}, QStringLiteral("statt Nummern: alle Bestellungen, die noch keinen haben")},
      {QStringLiteral("erneut"), {}, QStringLiteral("mit --alle: auch Bestellungen, die schon einen haben")}};
  return {
      {gruppe,
       QStringLiteral("auftrag"),
       {nummern},
       optionen,
       QStringLiteral("erstellt Aufträge aus Bestellungen und aktualisiert deren Kunden; Rückfragen: "
                      "'Belegnummer', 'Artikel nicht vorhanden', 'Rückstellung bilden', 'Versandkosten', "
                      "'Reservierungen', 'Suchname vergeben'"),
       &Befehl_Belege_auftrag},
      {gruppe,
       QStringLiteral("rechnung"),
       {nummern},
       optionen,
       QStringLiteral(
           "erstellt Rechnungen aus Bestellungen und aktualisiert deren Kunden; Rückfragen wie bei "
           "'belege auftrag', und 'DATEV: Buchungssätze bereits vorhanden'"),
       &Befehl_Belege_rechnung},
  };
}

std::vector<Befehl> Versandbefehle() {
  const QString gruppe = QStringLiteral("versand");
  return {
      {gruppe,
       QStringLiteral("liste"),
       {},
       {Zeitraum, Json},
       QStringLiteral("zeigt die Versandaufträge, die noch nicht exportiert sind"),
       &Befehl_Versand_liste},
      {gruppe,
       QStringLiteral("uebergeben"),
       {{QStringLiteral("NR")}},
       {{QStringLiteral("referenz"), QStringLiteral("TEXT"),
         QStringLiteral("Referenznummer der Sendung (Vorgabe: die Bestellnummer)")}},
       QStringLiteral("übergibt eine Bestellung ohne Beleg an den Versand; ein Versandauftrag, den sie schon "
                      "hat, wird neu erstellt"),
       &Befehl_Versand_uebergeben},
      {gruppe,
       QStringLiteral("exportieren"),
       {},
       {},
       QStringLiteral("schreibt alle offenen Versandaufträge in die Exportdatei der Versandsoftware "
                      "(Einstellung 'file' im Abschnitt 'easylog')"),
       &Befehl_Versand_exportieren},
      {gruppe,
       QStringLiteral("loeschen"),
       {},
       {},
       QStringLiteral("löscht alle Versandaufträge in Varda, nach Rückfrage"),
       &Befehl_Versand_loeschen},
  };
}

std::vector<Befehl> Druckbefehle() {
  const QString gruppe = QStringLiteral("drucken");
  const std::vector<Argumentbeschreibung> argumente{{QStringLiteral("DATEI")},
                                                    {QStringLiteral("NR"), {}, true}};
  const QString arten = QStringLiteral(
      "; die Endung der Datei (.pdf, .xls, .rtf, .htm, .txt) bestimmt ihre Art, jede andere ergibt ein PDF");
  return {
      {gruppe,
       QStringLiteral("bestellliste"),
       argumente,
       {Alle},
       QStringLiteral(
           "schreibt die Bestellliste der genannten oder aller Bestellungen in eine Datei, nach Tagen "
           "gruppiert") +
           arten,
       &Befehl_Drucken_bestellliste},
      {gruppe,
       QStringLiteral("transaktionsliste"),
       argumente,
       {Alle},
       QStringLiteral(
           "schreibt die Transaktionsliste der genannten oder aller Bestellungen in eine Datei, nach "
           "Zahlungsarten gruppiert") +
           arten,
       &Befehl_Drucken_transaktionsliste},
  };
}

Befehl Lagerbefehl() {
  return {
      QStringLiteral("lager"),
      QStringLiteral("zuteilen"),
      {{QStringLiteral("ARTIKEL")}, {QStringLiteral("MENGE")}},
      {{QStringLiteral("lager"), QStringLiteral("NR"),
        QStringLiteral("Lagernummer oder ihr Anfang (sonst das Lager, aus dem der Artikel entnommen wird)")},
       Json},
      QStringLiteral("zeigt, aus welchen Einlagerungen die Menge käme und was fehlt; gebucht wird nichts"),
      &Befehl_Lager_zuteilen};
}

Befehl Nummernbefehl() {
  Argumentbeschreibung bereich{QStringLiteral("BEREICH")};
  for (const Nummernkreis &kreis : Nummernkreise()) bereich.Auswahl << kreis.Name;
  return {QStringLiteral("nummer"),
          {},
          {bereich},
          {},
          QStringLiteral("zeigt die Nummer, die der nächste Beleg des Nummernkreises bekommt, ohne sie zu "
                         "verbrauchen"),
          &Befehl_Nummer};
}

std::vector<Befehl> Zahlungs_und_Versandbefehle() {
  return {
      {QStringLiteral("posten"),
       {},
       {{QStringLiteral("RECHNUNG")}},
       {Json},
       QStringLiteral("zeigt den offenen Posten einer Rechnung mit allen Beträgen"),
       &Befehl_Posten},
      {QStringLiteral("versandkosten"),
       {},
       {{QStringLiteral("METHODE")}, {QStringLiteral("LAND")}, {QStringLiteral("GEWICHT")}},
       {Json},
       QStringLiteral(
           "zeigt, was eine Versandart in ein Land (Name oder Kürzel) für ein Gewicht in kg kostet; "
           "reicht die Preisstaffel nicht, wird nach 'Versandkosten' gefragt"),
       &Befehl_Versandkosten},
  };
}

std::vector<Befehl> Alle_Befehle() {
  std::vector<Befehl> alle = Mandantenbefehle();
  for (const auto &teil : {Einstellungsbefehle(), Bestellbefehle(), Zahlungs_und_Versandbefehle()})
    alle.insert(alle.end(), teil.begin(), teil.end());
  alle.push_back(Kundenbefehl());
  for (const Befehl &befehl : Belegbefehle()) alle.push_back(befehl);
  for (const Befehl &befehl : Versandbefehle()) alle.push_back(befehl);
  for (const Befehl &befehl : Druckbefehle()) alle.push_back(befehl);
  alle.push_back(Lagerbefehl());
  alle.push_back(Nummernbefehl());
  alle.push_back({QStringLiteral("preis"),
                  {},
                  {{QStringLiteral("ARTIKEL")}, {QStringLiteral("KUNDE")}, {QStringLiteral("MENGE")}},
                  {Json},
                  QStringLiteral("zeigt, was ein Artikel einen Kunden kostet und woher der Preis kommt"),
                  &Befehl_Preis});
  alle.push_back({QStringLiteral("schirm"),
                  {},
                  {{QStringLiteral("NAME"), Schirmnamen()}},
                  {},
                  QStringLiteral("öffnet einen Bildschirm: ") + Schirmnamen().join(QLatin1String(", ")),
                  &Befehl_Schirm});
  alle.push_back({QStringLiteral("vervollstaendigung"),
                  {},
                  {{QStringLiteral("SHELL"), {QStringLiteral("bash")}}},
                  {},
                  QStringLiteral("gibt ein Skript zur Vervollständigung der Befehle aus"),
                  &Befehl_Vervollstaendigung});
  return alle;
}

}  // namespace

const std::vector<Befehlsgruppe> &Befehlsgruppen() {
  static const std::vector<Befehlsgruppe> gruppen{
      {QStringLiteral("mandant"), QStringLiteral("Mandanten anlegen")},
      {QStringLiteral("einstellung"), QStringLiteral("Einstellungen des Mandanten lesen und ändern")},
      {QStringLiteral("bestellungen"), QStringLiteral("Bestellungen abrufen, zeigen und fortschreiben")},
      {QStringLiteral("kunden"), QStringLiteral("Kunden der Bestellungen anlegen")},
      {QStringLiteral("belege"), QStringLiteral("Aufträge und Rechnungen aus Bestellungen erstellen")},
      {QStringLiteral("versand"), QStringLiteral("Versandaufträge für die Versandsoftware")},
      {QStringLiteral("drucken"), QStringLiteral("Listen von Bestellungen in Dateien schreiben")},
      {QStringLiteral("lager"), QStringLiteral("Bestand prüfen")},
      {QStringLiteral("nummer"), QStringLiteral("die nächste Nummer eines Nummernkreises zeigen")},
      {QStringLiteral("posten"), QStringLiteral("den offenen Posten einer Rechnung zeigen")},
      {QStringLiteral("versandkosten"), QStringLiteral("die Kosten einer Versandart zeigen")},
      {QStringLiteral("preis"), QStringLiteral("den Preis eines Artikels für einen Kunden zeigen")},
      {QStringLiteral("schirm"), QStringLiteral("einen Bildschirm öffnen")},
      {QStringLiteral("vervollstaendigung"), QStringLiteral("Vervollständigung für die Shell")},
  };
  return gruppen;
}

const std::vector<Befehl> &Befehle() {
  static const std::vector<Befehl> befehle = Alle_Befehle();
  return befehle;
}

const std::vector<Optionsbeschreibung> &Allgemeine_Optionen() {
  static const std::vector<Optionsbeschreibung> optionen{
      {QStringLiteral("ordner"), QStringLiteral("DIR"),
       QStringLiteral("Programmordner (sonst MARKLINK_ORDNER, sonst im Datenordner des Benutzers)")},
      {QStringLiteral("mandant"), QStringLiteral("NAME"),
       QStringLiteral("Mandant (sonst MARKLINK_MANDANT, sonst der einzige der Mandantenliste)")},
      {QStringLiteral("benutzer"), QStringLiteral("NAME"),
       QStringLiteral("Mitarbeiter (sonst MARKLINK_BENUTZER, sonst Chef)")},
      {QStringLiteral("antwort"), QStringLiteral("TITEL=ANTWORT"),
       QStringLiteral("Antwort auf die nächste Frage mit diesem Titel: Ja, Nein, Abbrechen oder der Text; "
                      "mehrfach möglich")},
      {QStringLiteral("help"),
       {},
       QStringLiteral("diese Hilfe, auch -h und --hilfe; nach einem Befehl seine")},
      {QStringLiteral("version"), {}, QStringLiteral("Version ausgeben")},
  };
  return optionen;
}

const Befehl *Befehl_suchen(const QString &Gruppe, const QString &Unterbefehl) {
  for (const Befehl &b : Befehle())
    if (b.Gruppe == Gruppe && b.Unterbefehl == Unterbefehl) return &b;
  return nullptr;
}

}  // namespace marklink
