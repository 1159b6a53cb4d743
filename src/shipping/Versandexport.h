// The file that the shipper's software polls: a line for each shipment that was not exported yet.
#pragma once

#include <QString>
#include <QStringList>

namespace marklink {

/// The fields of a line in their order, which are columns of LogisticsEASYLOG.
const QStringList &Versandexport_Felder();

struct Versandexport {
  QString Datei;             ///< as set; empty when there was nothing to export
  bool Gelesen = false;      ///< false: what is to be exported cannot be read, or another export of the same
                             ///< file goes on and on, which shows as nothing
  int Versandauftraege = 0;  ///< that were to be exported
  int Geschrieben = 0;       ///< lines that are in the file
  bool Markiert = true;      ///< false: a shipment could not be marked, and the export ended there
};

/// Writes every shipment with `Conveyed` 0 to the file of the settings `easylog`, and marks it. Tells the
/// user that there is nothing to export, or that it was exported. One export of a file waits for another, so
/// that each shipment goes out once. A line is in the file before its shipment is marked, each shipment by
/// itself: after a crash at most one is in the file unmarked, and none is marked without its line. A line
/// that cannot be written leaves its shipment open; a mark that cannot be stored takes the line back and ends
/// the export, with success told, on purpose. Only when the file cannot even be opened all are marked, and
/// success is told, on purpose too; `Geschrieben` is 0 then. A line: fields joined by the delimiter as it is
/// set, without quotes; Windows-1252; carriage return and line feed. Empty fields at its beginning have no
/// delimiters, which shifts the line: on purpose too.
Versandexport Versandliste_exportieren();

}  // namespace marklink
