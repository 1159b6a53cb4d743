// marklink bestellungen: what the order desk does, without its window.
#include "Aufrufwerte.h"
#include "Ausgabe.h"
#include "Bestellausgabe.h"
#include "Bestellauswahl.h"
#include "Sitzung.h"
#include "Werteausgabe.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"
#include "orders/Auftragsstati.h"
#include "orders/Bestellabruf.h"
#include "orders/Bestellstatus.h"
#include "ui/Dialoge.h"
#include "ui/Zeitraum.h"

namespace marklink {
namespace {

/// Reads the client's statuses and checks the given ones. False, told on standard error, when one is unknown.
bool Stati_ankreuzen(Auftragsliste &Liste, const QStringList &Stati) {
  Auftragsstati_initialisieren(Liste.lvwAuftragsstatus);
  for (const QString &id : Stati) {
    bool gefunden = false;
    for (Listenzeile &zeile : Liste.lvwAuftragsstatus.Zeilen)
      if (zeile.Spalten.value(1) == id) gefunden = zeile.Markiert = true;
    if (gefunden) continue;
    QStringList bekannte;
    for (const Listenzeile &zeile : Liste.lvwAuftragsstatus.Zeilen)
      bekannte << QStringLiteral("%1 %2").arg(zeile.Spalten.value(1), zeile.Spalten.value(0));
    Fehler_melden(
        QStringLiteral("Den Status '%1' gibt es nicht; bekannt: %2.")
            .arg(id, bekannte.isEmpty() ? QStringLiteral("keiner") : bekannte.join(QLatin1String(", "))));
    return false;
  }
  return true;
}

int Unbekannte_Bestellung(const QString &Nummer) {
  Unbekannte_Bestellung_melden(Nummer);
  return Fehlgeschlagen;
}

/// Why order status arguments are no proper ones; empty when they are.
QString Statusangaben_pruefen(const QString &Status, const QString &Kommentar) {
  const bool ziffern =
      std::all_of(Status.cbegin(), Status.cend(), [](QChar z) { return z >= u'0' && z <= u'9'; });
  if (Status.isEmpty() || !ziffern)
    return QStringLiteral("Der Status ist eine Status-ID wie 3, nicht '%1'.").arg(Status);
  bool darstellbar = true;
  Nach_1252(Kommentar, &darstellbar);
  return darstellbar ? QString()
                     : QStringLiteral("Der Kommentar enthält Zeichen, die der Shop nicht annimmt.");
}

}  // namespace

int Befehl_Bestellungen_abrufen(const Aufruf &A) {
  const std::optional<QStringList> stati = Liste_aus_Option(A, "status");
  if (!stati) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  Auftragsliste liste;
  if (!Stati_ankreuzen(liste, *stati)) return Falscher_Aufruf;
  const Shopsperre sperre;
  if (!sperre.Erhalten()) return Fehlgeschlagen;
  return Bestellungen_abrufen(Bestellparameter(liste.lvwAuftragsstatus), liste) ? Erledigt : Fehlgeschlagen;
}

int Befehl_Bestellungen_liste(const Aufruf &A) {
  const std::optional<QStringList> stati = Liste_aus_Option(A, "status");
  const std::optional<int> zeitraum = Zahl_aus_Option(A, "zeitraum", -1, 0, Zeitraum_benutzerdefiniert);
  if (!stati || !zeitraum) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  Auftragsliste liste;
  if (!Stati_ankreuzen(liste, *stati)) return Falscher_Aufruf;
  if (*zeitraum >= 0) Kontext.gViewablePeriod = qint16(*zeitraum);
  liste.Auftragsliste_laden();
  if (A.Gegeben("json"))
    Json_ausgeben(QJsonDocument(Bestellungen_als_Json(liste)));
  else
    Ausgeben(Bestelltabelle(liste));
  return Erledigt;
}

int Befehl_Bestellungen_zeigen(const Aufruf &A) {
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  Auftragsliste liste;
  Auftragsstati_initialisieren(liste.lvwAuftragsstatus);
  const QString nummer = A.Argumente[0];
  Alle_Bestellungen_laden(liste);
  const int zeile = Bestellung_suchen(liste, nummer);
  if (zeile < 0) return Unbekannte_Bestellung(nummer);
  liste.AktuelleZeile_setzen(zeile);
  if (A.Gegeben("json")) {
    Json_ausgeben(QJsonDocument(Bestellanzeige_als_Json(liste)));
    return Erledigt;
  }
  const std::optional<Auftragsanzeige> anzeige = Auftrag_anzeigen(liste);
  if (!anzeige) return Unbekannte_Bestellung(nummer);
  Ausgeben(Bestellung_als_Text(liste, *anzeige));
  return Erledigt;
}

int Befehl_Bestellungen_status(const Aufruf &A) {
  const QString nummer = A.Argumente[0], status = A.Argumente[1], kommentar = A.Wert("kommentar");
  if (const QString grund = Statusangaben_pruefen(status, kommentar); !grund.isEmpty()) {
    Fehler_melden(grund);
    return Falscher_Aufruf;
  }
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  if (!Datensatz_existiert(QStringLiteral("WebshopOrdersXTC"), QStringLiteral("OrderID"), nummer))
    return Unbekannte_Bestellung(nummer);
  const Shopsperre sperre;
  if (!sperre.Erhalten()) return Fehlgeschlagen;
  const auto schalter = [](bool an) { return an ? QStringLiteral("on") : QStringLiteral("off"); };
  const bool mail = A.Gegeben("mail");
  const Statusantwort antwort =
      Bestellstatus_senden(nummer, status, schalter(mail), schalter(mail && !kommentar.isEmpty()), kommentar);
  const bool gespeichert =
      Bestellstatus_speichern(nummer, status);  // whatever the shop answered, as the order desk does
  if (!gespeichert)
    Fehler_melden(
        QStringLiteral("Der Status der Bestellung '%1' konnte in Varda nicht geändert werden.").arg(nummer));
  if (antwort.Meldung.isEmpty()) {
    Fehler_melden(
        gespeichert
            ? QStringLiteral("Der Shop hat nicht geantwortet; der Status der Bestellung '%1' wurde nur "
                             "in Varda geändert.")
                  .arg(nummer)
            : QStringLiteral("Der Shop hat nicht geantwortet."));
    return Fehlgeschlagen;
  }
  Ausgeben(Anzeigbar(antwort.Meldung));
  if (antwort.Abgelehnt && gespeichert)
    Fehler_melden(
        QStringLiteral("Der Shop hat abgelehnt; der Status der Bestellung '%1' wurde nur in Varda geändert.")
            .arg(nummer));
  if (antwort.Abgelehnt || !gespeichert) return Fehlgeschlagen;
  dialoge().Meldung(QStringLiteral("Hinweis"),
                    {QStringLiteral("Der Status der Bestellung wurde erfolgreich geändert.")},
                    Symbol::Information);
  return Erledigt;
}

int Befehl_Bestellungen_rechnung(const Aufruf &A) {
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  QString rechnungsnummer;
  if (!Rechnung_zur_Bestellung(rechnungsnummer, A.Argumente[0])) {
    Fehler_melden(QStringLiteral("Für diese Bestellung liegt noch keine Rechnung vor."));
    return Fehlgeschlagen;
  }
  Ausgeben(Anzeigbar(rechnungsnummer));
  return Erledigt;
}

int Befehl_Bestellungen_loeschen(const Aufruf &A) {
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  const QString titel = QStringLiteral("Bestellung in Varda löschen");
  const Antwort antwort = dialoge().Meldung(
      titel, {QStringLiteral("Möchten Sie die temporär gespeicherten Bestellungen wirklich löschen?")},
      Symbol::Frage, Knoepfe::JaNein, Antwort::Nein);
  if (antwort != Antwort::Ja) {
    Fehler_melden(
        QStringLiteral("Es wurde nichts gelöscht; '--antwort \"%1=Ja\"' bestätigt die Frage.").arg(titel));
    return Fehlgeschlagen;
  }
  if (!Bestellungen_loeschen()) {
    Fehler_melden(QStringLiteral("Die Bestellungen konnten nicht gelöscht werden."));
    return Fehlgeschlagen;
  }
  dialoge().Meldung(QStringLiteral("Hinweis"), {QStringLiteral("Die Bestellung wurden in Varda gelöscht.")},
                    Symbol::Information);
  return Erledigt;
}

}  // namespace marklink
