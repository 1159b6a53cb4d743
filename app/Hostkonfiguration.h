// The program folder and the host configuration in it, made complete before the first client comes.
#pragma once

#include <QString>

#include "Ruecknahme.h"

namespace marklink {

/// Why a folder cannot be a program folder whatever it holds (its path is kept in an INI file and in
/// connection strings); empty when it can.
QString Programmordner_pruefen(const QString &Ordner);

/// Makes the folder and the folders above it that are missing. False when that failed.
bool Programmordner_anlegen(const QString &Ordner, Ruecknahme &Zurueck);

/// Adds to varda.ini what is missing; values that are there stay. False when it cannot be written.
bool Hostkonfiguration_ergaenzen(const QString &Ordner, Ruecknahme &Zurueck);

/// Remembers a file as it is now, to be put back.
void Datei_merken(const QString &Datei, Ruecknahme &Zurueck);

}  // namespace marklink
