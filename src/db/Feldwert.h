// Between program values and cells: what a column of each kind gives and takes.
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>
#include <optional>

#include "Ergebnis.h"
#include "Verbindung.h"

namespace marklink::db {

QVariant Feldwert_lesen(const Zelle &Z, Feldart Art);
/// Flags as -1 or 0, numbers with a point, dates as "YYYY-MM-DD hh:mm:ss"; null: empty.
QString Feldtext_lesen(const Zelle &Z, Feldart Art);
double Feldzahl_lesen(const Zelle &Z, Feldart Art);
bool Feldflagge_lesen(const Zelle &Z);

/// The cell for `Wert` in a column of that kind, its bytes in `Lager`. Nothing when the column cannot take
/// it: no number, a number beyond the column's range, no date.
std::optional<Zelle> Zelle_bilden(const QVariant &Wert, const Feld &Spalte, Dialekt D, Speicher &Lager);

/// "YYYY-MM-DD hh:mm:ss" from an ISO text (also without time, with "T") or "dd.mm.yyyy[ hh:mm[:ss]]"; empty
/// when the text is no date.
QString Datumstext_lesen(const QString &Text);

/// A plain number text with a point, blanks around it allowed.
std::optional<double> Zahltext_lesen(QStringView Text);

/// Shortest form that reads back, with a point.
QString Zahltext_bilden(double Zahl);

}  // namespace marklink::db
