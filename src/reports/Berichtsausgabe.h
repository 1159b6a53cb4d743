// The exports: a report into a file of one of five formats.
#pragma once

#include "Exportart.h"
#include "Seitensatz.h"

class QIODevice;

namespace marklink {

/// Writes the whole report to `Dateiname`; an existing file is replaced when all of it is written, and stays
/// otherwise. False, told to the trace alone, when that failed.
bool Bericht_schreiben(const Seitensatz &Satz, Exportart Art, const QString &Dateiname);

// --- the formats; false when the device took not all of it

/// Text that can be searched and copied; needs an application with fonts (QGuiApplication), as the layout
/// does.
bool PDF_schreiben(const Seitensatz &Satz, QIODevice &Ziel);
/// A workbook of one sheet as XML (SpreadsheetML 2003), UTF-8: numbers and dates are such.
bool XLS_schreiben(const Seitensatz &Satz, QIODevice &Ziel);
/// One table on the pages' paper, landscape, its headings repeated on every page.
bool RTF_schreiben(const Seitensatz &Satz, QIODevice &Ziel);
/// Windows-1252, a line a band, fields separated by ";" (quoted where they hold one), pages by a line with
/// ",". Line breaks within a value become blanks.
bool TXT_schreiben(const Seitensatz &Satz, QIODevice &Ziel);
/// One table in UTF-8.
bool HTM_schreiben(const Seitensatz &Satz, QIODevice &Ziel);

/// A target as the HTM export is given it: the folder up to its last separator, the name without its
/// four-character ending, and that ending. "C:\Listen\Juni.htm": "C:\Listen\", "Juni" and ".htm".
struct Zielname {
  QString Ordner, Name, Endung;
};
Zielname Zielname_zerlegen(const QString &Dateiname);

}  // namespace marklink
