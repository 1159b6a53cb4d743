// Dates by picture, always German whatever the machine says.
#pragma once

#include <QDateTime>
#include <QString>

namespace marklink {

/// Pictures: "yyyymmdd", "yyyy-mm-dd hh:nn:ss", "dd.mm.yyyy", "dd.mm.yyyy hh:nn:ss", "m/d/yyyy",
/// "short date" (dd.mm.yyyy), "Long Date" (Dienstag, 5. März 2024), "dddd", "mmmm". Case does not matter;
/// "mm" behind "hh" means minutes. Other characters stand for themselves. No date: empty.
QString Datum_formatieren(const QDateTime &Zeit, const QString &Bild);

/// "dd.mm.yyyy" with optional " hh:mm[:ss]", two-digit years in 1930..2029, and ISO text. Invalid: no date.
QDateTime Datum_lesen(const QString &Text);

/// Date and time as the system writes them: "05.03.2024 14:22:11"; midnight without a time.
QString Zeitpunkt_als_Text(const QDateTime &Zeit);

}  // namespace marklink
