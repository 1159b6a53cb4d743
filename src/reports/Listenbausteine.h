// What the two printed lists have in common.
#pragma once

#include "Bericht.h"

namespace marklink {

using Lage = Berichtselement::Lage;

Berichtselement Beschriftung(const char *Name, const QRectF &Ort, const char16_t *Text,
                             Lage Ausrichtung = Lage::Links);
/// A field's text; `Name` is that of the element, "txt" and the field's own.
Berichtselement Textfeld(const char *Name, const QRectF &Ort, Lage Ausrichtung = Lage::Links);

/// All bands but page header and detail, the sums ending at `Summenrand` (millimetres).
Bericht Liste_beginnen(const QString &Dokumenttitel, double Summenrand);
/// The page header: headings between two lines.
Band Seitenkopf_bilden(std::vector<Berichtselement> Ueberschriften);

}  // namespace marklink
