// Fetching orders from the shop, and what is asked around it.
#include "Bestellabruf.h"

#include "host/Datenbank.h"
#include "rules/Zahlungsverkehr.h"
#include "shop/Aktionen.h"
#include "ui/Dialoge.h"

namespace marklink {

bool Bestellungen_abrufen(const QString &Parameter, Auftragsliste &Liste) {
  const QString datei = Daten_abrufen(Abrufen::Bestellungen, Parameter);
  if (datei.isEmpty()) {
    dialoge().Meldung(QStringLiteral("Fehler"),
                      {QStringLiteral("Beim Einlesen der Bestellungen ist ein Fehler aufgetreten."),
                       QStringLiteral("Die Bestellungen konnten nicht abgerufen werden.")},
                      Symbol::Stopp);
    return false;
  }
  const bool gelungen = Bestellungen_einlesen(datei, Liste);
  dialoge().Meldung(QStringLiteral("Hinweis"),
                    {QStringLiteral("Die Bestellungen wurden in Varda importiert.")}, Symbol::Information);
  return gelungen;
}

QString Bestellparameter(const Pruefliste &lvwAuftragsstatus) {
  if (Zeilen_zaehlen(lvwAuftragsstatus, true) == 0) return {};
  return QStringLiteral("&order_status=") +
         Zeilen_verketten(lvwAuftragsstatus, 1, QStringLiteral("'"), QStringLiteral(","));
}

bool Bestellungen_loeschen() { return Ausfuehren("DELETE FROM WebshopOrdersXTC"); }

QString Zahlungsart_aus_Token(const QString &Token) { return Zahlart_Bezeichnung(Token); }

}  // namespace marklink
