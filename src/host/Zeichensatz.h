// The system's single-byte character set, Windows-1252, at every file and every wire.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace marklink {

/// Never fails: a character outside the set becomes the letter that is nearest ("Łódź" -> "Lódz", "a" with a
/// mark of its own -> "ä"), else "?". *Vollstaendig tells whether Von_1252() gives the text back as it was.
QByteArray Nach_1252(QStringView Text, bool *Vollstaendig = nullptr);

/// Never fails: the five unassigned bytes become the control characters of the same number.
QString Von_1252(QByteArrayView Bytes);

/// The same bytes as UTF-8, without a detour over UTF-16.
QByteArray Utf8_aus_1252(QByteArrayView Bytes);

}  // namespace marklink
