// The dialog of one order's status, without its window.
#include "Bestellstatusdialog.h"

#include "Bestellstatus.h"
#include "host/Datenbank.h"

namespace marklink {

void Bestellstatusdialog::Laden() {
  lvwAuftragsstatus = {};
  db::Recordset satz = Abfragen("SELECT * FROM WebshopOrderStatusXTC ORDER BY WebshopID");
  for (; !satz.IsEOF(); satz.MoveNext())
    lvwAuftragsstatus.Zeilen.push_back(
        {false, {satz.Text(QStringLiteral("WebshopID")), satz.Text(QStringLiteral("Description"))}});
  Zeile_waehlen(lvwAuftragsstatus, 0, Bestellstatus);
}

QString Bestellstatusdialog::Titel() const {
  return QStringLiteral("Bestellstatus: Bestellnummer [") + Bestellnummer + u']';
}

void Bestellstatusdialog::Zeile_gewaehlt(int Zeile) {
  if (Zeile < 0 || Zeile >= static_cast<int>(lvwAuftragsstatus.Zeilen.size())) return;
  lvwAuftragsstatus.Gewaehlt = Zeile;
  Bestellstatus = lvwAuftragsstatus.Zeilen[static_cast<std::size_t>(Zeile)].Spalten.value(0);
}

void Bestellstatusdialog::OK(bool Email, bool Kommentar_mitsenden, const QString &Kommentar) {
  const auto schalter = [](bool An) { return An ? QStringLiteral("on") : QStringLiteral("off"); };
  Action = 0;
  Bestellstatus_uebertragen(Bestellnummer, Bestellstatus, schalter(Email), schalter(Kommentar_mitsenden),
                            Kommentar);
}

}  // namespace marklink
