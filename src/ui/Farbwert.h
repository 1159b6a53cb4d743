// Colour values as the books and settings keep them: 0x00BBGGRR.
#pragma once

#include <QString>
#include <optional>

namespace marklink {

/// 0xRRGGBB; nothing for a value outside 0 .. 0xFFFFFF (the system colours of the host's desktop among them).
std::optional<quint32> Farbe_aus_Wert(qint32 Wert);
/// The other way round, for what a colour dialog gives.
qint32 Wert_aus_Farbe(quint32 RRGGBB);
/// A stored number text; nothing when it is empty, no whole number or out of range.
std::optional<qint32> Farbwert_lesen(const QString &Text);
/// Whether black is easier to read on that colour than white.
bool Farbe_hell(quint32 RRGGBB);

}  // namespace marklink
