// Order status feedback.
#include "Bestellstatus.h"

#include "Stapellauf.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "shop/Aktionen.h"
#include "shop/Antwort.h"
#include "shop/Url_kodieren.h"

namespace marklink {

Statusantwort Bestellstatus_senden(const QString &Bestellnummer, const QString &Status,
                                   const QString &Benachrichtigung, const QString &Kommentar_mitsenden,
                                   const QString &Kommentar) {
  const QString parameter = QStringLiteral("&order_id=") + Bestellnummer + QStringLiteral("&status=") +
                            Status + QStringLiteral("&notify=") + Benachrichtigung +
                            QStringLiteral("&notify_comments=") + Kommentar_mitsenden +
                            QStringLiteral("&comments=") + Url_kodieren(Kommentar);
  const QString datei = Daten_aendern(Aendern::Bestellstatus, parameter);
  if (datei.isEmpty()) return {};
  const Statusantwort antwort{Statusantwort_lesen(datei, "MESSAGE"),
                              Statusantwort_lesen(datei, "ERROR") == u"1"};
  if (antwort.Abgelehnt || antwort.Meldung.isEmpty())
    Ablauf_melden(QStringLiteral("Bestellstatus_senden"),
                  QStringLiteral("order '") + Bestellnummer + QStringLiteral("': ") +
                      (antwort.Abgelehnt ? antwort.Meldung : QStringLiteral("no status reply")));
  return antwort;
}

QString Bestellstatus_uebertragen(const QString &Bestellnummer, const QString &Status,
                                  const QString &Benachrichtigung, const QString &Kommentar_mitsenden,
                                  const QString &Kommentar) {
  return Bestellstatus_senden(Bestellnummer, Status, Benachrichtigung, Kommentar_mitsenden, Kommentar)
      .Meldung;
}

QString Bestellstatus_folgend(const QString &Status) { return Zahl_als_Text(Zahl_mit_Punkt(Status) + 1); }

bool Bestellstatus_speichern(const QString &Bestellnummer, const QString &Status) {
  const QString feld = QStringLiteral("Status");
  db::Recordset satz = Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{Bestellnummer}});
  if (satz.RecordCount() < 1) {
    Ablauf_melden(QStringLiteral("Bestellstatus_speichern"),
                  QStringLiteral("no staged order ") + Bestellnummer);
    return false;
  }
  satz.SetValue(feld, Status.isEmpty() ? Bestellstatus_folgend(satz.Text(feld)) : Status);
  satz.Update();
  return satz.UpdateBatch();
}

bool Rechnung_zur_Bestellung(QString &Rechnungsnummer, const QString &Bestellnummer) {
  const db::Recordset satz =
      Abfragen({"SELECT * FROM Invoice WHERE OrderingNumber = ", db::Wert{Bestellnummer},
                " AND Webshop = ", db::Zahl(int{Kontext.gSQL_True})});
  if (satz.RecordCount() < 1) return false;
  Rechnungsnummer = satz.Text(QStringLiteral("InvoiceNumber"));
  return true;
}

QString Positionen_der_Bestellung(const QString &Bestellnummer) {
  return Abfragen({"SELECT Positions FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{Bestellnummer}})
      .Text(QStringLiteral("Positions"));
}

void Status_setzen(Auftragsliste &Liste, const QString &Status) {
  Stapellauf lauf;
  lauf.Ohne_Auswahl = Ohne_Auswahl(QStringLiteral("für die Sie den Status ändern möchten."));
  lauf.Bild = Symbol::Information;
  lauf.Immer_laden = true;
  lauf.Arbeit = [&](int zeile) {
    const QString nummer = Liste.Zelle(zeile, "OrderID").toString(), aus = QStringLiteral("off");
    Bestellstatus_uebertragen(nummer, Status, aus, aus, QString());
    Bestellstatus_speichern(nummer, Status);  // whatever the shop answered, on purpose
  };
  Markierte_abarbeiten(Liste, lauf);
}

}  // namespace marklink
