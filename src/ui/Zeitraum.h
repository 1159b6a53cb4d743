// Named periods: the entries of the period combo, their dates, and the SQL condition for them.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace marklink {

constexpr int Zeitraum_benutzerdefiniert = 40;

/// Combo texts by period index: 0 to 39, and 40 on request.
QStringList Zeitraum_Liste_fuellen(bool Benutzerdefiniert);

enum class Zeitraum_Modus : qint16 { Bedingung = 0, Von = 1, Bis = 2 };

/// The SQL condition in the client's dialect, or one of the two bounds as dd.mm.yyyy. An index above 40 and
/// an unreadable custom text ("from|to") give empty bounds; the condition then fails in the query, on
/// purpose. Both bounds stand at 00:00:00: rows later on the last day fall outside, on purpose.
QString Zeitraum_ermitteln(int Zeitraum, Zeitraum_Modus Modus, const QString &Feld, const QString &Freitext);

QDate Wochenanfang();  ///< Monday of the clock's current week (not of gHeute, on purpose)
QDate Wochenende();
int Monatsletzter(QDate Tag);  ///< day number of the month's last day

}  // namespace marklink
