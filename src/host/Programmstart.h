// Start-up: the two steps that fill the program context.
#pragma once

#include <QString>

namespace marklink {

/// The folder that holds the host configuration, instead of the folder of the running library. Empty: the
/// library's own folder again. Takes effect at the next Programm_initialisieren().
void Programmordner_setzen(const QString &Ordner);

/// Reads the application-wide files. A missing file or key leaves its variable empty or 0.
void Programm_initialisieren();

/// Reads what belongs to the client Kontext.gFirmenname and opens its settings store.
void Mandant_initialisieren();

/// Shop access and script path from the settings; again after the settings dialog.
void Shopprojekt_einlesen();

/// MD5 over the text's bytes (Windows-1252), 32 lower-case hexadecimal digits.
QString CalculateMD5(const QString &Text);

}  // namespace marklink
