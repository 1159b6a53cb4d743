// The host components that the launcher brings: a plain "dta.common" and a plain "datev.common", which keep
// what they are given in tables of the client, and the FTP client of "varda.common". Any other name is passed
// over.
#pragma once

#include "ui/Host_Komponenten.h"

namespace marklink {

class Launcher_Komponenten : public Host_Komponenten {
 public:
  std::unique_ptr<Host_Komponente> Erzeugen(const QString &Name) override;
};

/// Direct-debit bookings, in DTABookings.
///   Initialisierung(client, employee) -> bool
///   Buchung_speichern(kind, executed, date, account holder, account number, bank, bank code, amount,
///                     purpose 1, purpose 2, document word, document number) -> number of the booking, as
///                     text
std::unique_ptr<Host_Komponente> Dta_erzeugen();

/// Accounting records, in AccountingRecords.
///   Initialisierung(client, employee) -> bool
///   Beleg_gebucht(table, key field, number) -> bool
///   Beleg_Buchungen_erstellen(document word, number, kind) -> bool; false for an unknown document
///   Beleg_Buchungen_loeschen(document word, number) -> bool
///   Buchung_speichern(document word, number, date, text, amount, tax, debit account, credit account,
///                     reference word, reference number, contact number, contact, store)
///                     -> number of the record, as text
std::unique_ptr<Host_Komponente> Datev_erzeugen();

/// Files to the shop's server (Ftp.h).
///   Initialisierung(client, employee) -> bool
///   FTP_Verbindungstest(server, user, password) -> bool
///   FTP_Upload(server, user, password, target folder, local file) -> bool
///   FTP_Datei_exists(server, user, password, target folder, file name) -> bool
std::unique_ptr<Host_Komponente> Varda_erzeugen();

}  // namespace marklink
