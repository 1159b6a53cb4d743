// What the dialog frmBestellstatus knows: the order, the proposed and the chosen status, and what OK does.
#pragma once

#include <QString>

#include "ui/Pruefliste.h"

namespace marklink {

struct Bestellstatusdialog {
  QString Bestellnummer;         ///< set by the caller
  QString Bestellstatus;         ///< in: the proposed status id; out: the chosen one
  qint32 Action = 1;             ///< 0 confirmed, 1 cancelled
  Pruefliste lvwAuftragsstatus;  ///< columns WebshopID, Description

  /// Reads the statuses and selects the proposed one; none when it is not among them.
  void Laden();
  QString Titel() const;  ///< the caption
  /// A row was clicked: its WebshopID becomes the status.
  void Zeile_gewaehlt(int Zeile);
  /// Sends the status to the shop, whatever it answers: its message is not looked at, on purpose.
  void OK(bool Email, bool Kommentar_mitsenden, const QString &Kommentar);
};

}  // namespace marklink
