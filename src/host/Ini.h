// INI files of the host, its client list and the client's settings (Windows-1252; sections and keys without
// regard to case).
#pragma once

#include <QString>

namespace marklink {

/// At most 255 characters; empty when the file, section or key is missing.
QString Ini_lesen(const QString &Datei, const QString &Abschnitt, const QString &Schluessel);
/// The same with at most 1500 characters.
QString Ini_lesen_lang(const QString &Datei, const QString &Abschnitt, const QString &Schluessel);
/// Writes through at once; everything else in the file stays as it was, comments included. False when the
/// file cannot be written (it is then unchanged). Line breaks in a value would break the file: they become
/// blanks.
bool Ini_schreiben(const QString &Datei, const QString &Abschnitt, const QString &Schluessel,
                   const QString &Wert);
/// The same where the key still holds `Bisher`, as Ini_lesen() gives it; false when it does not.
bool Ini_weiterstellen(const QString &Datei, const QString &Abschnitt, const QString &Schluessel,
                       const QString &Bisher, const QString &Wert);

}  // namespace marklink
