// Order status: to the shop and into the staging table. The two can drift apart when the request fails, on
// purpose.
#pragma once

#include <QString>

#include "Auftragsliste.h"

namespace marklink {

/// What the shop answered to a status.
struct Statusantwort {
  QString Meldung;  ///< MESSAGE; empty when the exchange failed or no status came back
  bool Abgelehnt =
      false;  ///< the shop says that it changed nothing: a wrong login, an unknown order or status
};

/// Sends set_order_update. `Benachrichtigung` and `Kommentar_mitsenden` are "on" or "off".
Statusantwort Bestellstatus_senden(const QString &Bestellnummer, const QString &Status,
                                   const QString &Benachrichtigung, const QString &Kommentar_mitsenden,
                                   const QString &Kommentar);

/// The same for who asks no more than MESSAGE.
QString Bestellstatus_uebertragen(const QString &Bestellnummer, const QString &Status,
                                  const QString &Benachrichtigung, const QString &Kommentar_mitsenden,
                                  const QString &Kommentar);

/// The next status: the numeric value plus 1, as a number text ("2" gives "3", no number gives "1").
QString Bestellstatus_folgend(const QString &Status);

/// Writes the status of a staged order; an empty status means the next one (number plus 1). False when
/// nothing was written.
bool Bestellstatus_speichern(const QString &Bestellnummer, const QString &Status);

/// True when the order has an invoice, whose number goes into `Rechnungsnummer`.
bool Rechnung_zur_Bestellung(QString &Rechnungsnummer, const QString &Bestellnummer);

/// The positions text of a staged order; empty when unknown.
QString Positionen_der_Bestellung(const QString &Bestellnummer);

/// The run behind "Status setzen": every marked row goes to the shop (no mail, no comment) and into the
/// table, in list order, with progress; then the list is loaded again. Without a mark the stated box.
void Status_setzen(Auftragsliste &Liste, const QString &Status);

}  // namespace marklink
