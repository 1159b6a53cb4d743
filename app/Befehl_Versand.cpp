// marklink versand: shipments for the shipper's software, without the window of their list.
#include <QJsonArray>
#include <QJsonObject>

#include "Aufrufwerte.h"
#include "Ausgabe.h"
#include "Bestellauswahl.h"
#include "Sitzung.h"
#include "Texttabelle.h"
#include "Werteausgabe.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "shipping/Versandauftrag.h"
#include "shipping/Versandexport.h"
#include "shipping/Versandliste.h"
#include "shipping/Versandpult.h"
#include "shipping/Versandspalten.h"
#include "ui/Zeitraum.h"

namespace marklink {
namespace {

QString Zelltext(const Versandliste &Liste, int Zeile, const char *Schluessel) {
  return Werttext(Liste.Zelle(Zeile, Versandspalte_finden(Schluessel)));
}

QString Versandtabelle(const Versandliste &Liste) {
  if (Liste.Zeilen() == 0) return QStringLiteral("Keine Versandaufträge.");
  Texttabelle tabelle({{QStringLiteral("Bestellnr.")},
                       {QStringLiteral("Beleg")},
                       {QStringLiteral("Referenznr.")},
                       {QStringLiteral("Empfänger")},
                       {QStringLiteral("PLZ")},
                       {QStringLiteral("Ort")},
                       {QStringLiteral("Land")},
                       {QStringLiteral("Gewicht"), true},
                       {QStringLiteral("Verfahren")},
                       {QStringLiteral("Services")}});
  for (int i = 0; i < Liste.Zeilen(); ++i) {
    QStringList zellen{
        Zelltext(Liste, i, "OrderID"),
        (Zelltext(Liste, i, "Document") + u' ' + Zelltext(Liste, i, "DocumentNumber")).trimmed()};
    for (const char *schluessel :
         {"POOL_REFNR", "POOL_EMPF_NAME1", "POOL_EMPF_PLZ", "POOL_EMPF_ORT", "POOL_EMPF_LANDCODE",
          "POOL_EMPF_GEWICHT", "POOL_V_VERFAHREN", "POOL_V_EXTRASLST"})
      zellen << Zelltext(Liste, i, schluessel);
    tabelle.Zeile(zellen);
  }
  return tabelle.Text() +
         QStringLiteral("\n\n%1 %2")
             .arg(Liste.Zeilen())
             .arg(Liste.Zeilen() == 1 ? QStringLiteral("Versandauftrag") : QStringLiteral("Versandaufträge"));
}

QJsonArray Versandauftraege_als_Json(const Versandliste &Liste) {
  QJsonArray alle;
  for (int zeile = 0; zeile < Liste.Zeilen(); ++zeile) {
    QJsonObject objekt;
    int spalte = 0;
    for (const Versandspalte &s : Versandspalten())
      objekt.insert(QLatin1String(s.Schluessel), Als_Json(Liste.Zelle(zeile, spalte++)));
    alle.append(objekt);
  }
  return alle;
}

}  // namespace

int Befehl_Versand_liste(const Aufruf &A) {
  const std::optional<int> zeitraum = Zahl_aus_Option(A, "zeitraum", -1, 0, Zeitraum_benutzerdefiniert);
  if (!zeitraum) return Falscher_Aufruf;
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  if (*zeitraum >= 0) Kontext.gViewablePeriod = qint16(*zeitraum);
  Versandliste liste;
  liste.Versandliste_laden();
  if (A.Gegeben("json"))
    Json_ausgeben(QJsonDocument(Versandauftraege_als_Json(liste)));
  else
    Ausgeben(Versandtabelle(liste));
  return Erledigt;
}

int Befehl_Versand_uebergeben(const Aufruf &A) {
  const QString nummer = A.Argumente[0];
  Versandauftrag auftrag{nummer, A.Gegeben("referenz") ? A.Wert("referenz") : nummer};
  if (auftrag.Referenznummer.isEmpty()) {
    Fehler_melden(QStringLiteral("Die Referenznummer darf nicht leer sein."));
    return Falscher_Aufruf;
  }
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  const db::Recordset bestellung =
      Abfragen({"SELECT Payment FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{nummer}});
  if (bestellung.RecordCount() < 1) {
    Unbekannte_Bestellung_melden(nummer);
    return Fehlgeschlagen;
  }
  auftrag.Zahlart = bestellung.Text(QStringLiteral("Payment"));
  auftrag.Meldung_zeigen = true;
  if (Versandauftrag_erzeugen(auftrag)) return Erledigt;
  Fehler_melden(
      QStringLiteral("Die Bestellung '%1' konnte nicht an den Versand übergeben werden.").arg(nummer));
  return Fehlgeschlagen;
}

int Befehl_Versand_exportieren(const Aufruf &A) {
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  const Versandexport export_ = Versandliste_exportieren();
  if (export_.Versandauftraege == 0) return export_.Gelesen ? Erledigt : Fehlgeschlagen;
  Ausgeben(QStringLiteral("%1 von %2 Versandaufträgen in '%3'")
               .arg(export_.Geschrieben)
               .arg(export_.Versandauftraege)
               .arg(Anzeigbar(export_.Datei)));
  if (export_.Geschrieben == export_.Versandauftraege) return Erledigt;
  Fehler_melden(
      export_.Markiert
          ? QStringLiteral("Die Exportdatei '%1' konnte nicht vollständig geschrieben werden.")
                .arg(export_.Datei)
          : QStringLiteral("Ein Versandauftrag konnte nicht als exportiert vermerkt werden; er und die "
                           "folgenden bleiben offen."));
  return Fehlgeschlagen;
}

int Befehl_Versand_loeschen(const Aufruf &A) {
  if (!Mandant_oeffnen(A) || !Datenbank_beschreibbar()) return Fehlgeschlagen;
  Versandpult().Loeschen();
  const db::Recordset rest = Abfragen("SELECT OrderID FROM LogisticsEASYLOG");
  if (rest.IsOpen() && rest.RecordCount() == 0) return Erledigt;
  Fehler_melden(
      QStringLiteral("Die Versandaufträge sind noch da; '--antwort \"Versandaufträge in Varda löschen=Ja\"' "
                     "bestätigt die Frage."));
  return Fehlgeschlagen;
}

}  // namespace marklink
