// The books' points in time: what a clock on the wall showed, without a zone. Built in UTC, since a local
// time does not exist in the hour that spring skips, and an order that came in then must not lose its date.
#pragma once

#include <QDateTime>
#include <QVariant>

namespace marklink {

inline QDateTime Zeitpunkt(QDate Tag, QTime Zeit = QTime(0, 0)) { return QDateTime(Tag, Zeit, Qt::UTC); }

/// A day as a field's value; no day is null.
inline QVariant Tageswert(QDate Tag) { return Tag.isValid() ? QVariant(Zeitpunkt(Tag)) : QVariant(); }

}  // namespace marklink
