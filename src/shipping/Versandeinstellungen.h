// The six settings of the export for the shipper's software.
#pragma once

#include <QString>

namespace marklink {

struct Versandeinstellungen {
  QString EKPNummer;     ///< the shipper's customer number
  QString Mandant;       ///< reference of the client
  QString Exportdatei;   ///< path of the export file; nobody tests it
  qint16 Fortschreiben;  ///< 1: the file is added to
  QString Trennzeichen;  ///< between two fields, as it was typed: "124" are three characters
  qint16 Spaltentitel;   ///< 1: a new file begins with a line of titles
};

/// A number that cannot be read is 0.
Versandeinstellungen Versandeinstellungen_lesen();
/// What cannot be stored is passed over.
void Versandeinstellungen_schreiben(const Versandeinstellungen &Neu);
/// Lets the user pick the export file, beginning with that path; the same path when that is cancelled.
QString Exportdatei_waehlen(const QString &Bisher);

}  // namespace marklink
