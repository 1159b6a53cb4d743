// Files and paths.
#pragma once

#include <QString>

namespace marklink {

/// Temporary folder with its trailing separator.
QString Temp_Ordner();
/// A new, empty temporary file with the prefix "4", readable by its owner only; empty when none can be made.
QString Temp_Dateiname();
/// True for a path that is not empty and names a file or folder, hidden ones included.
bool Datei_existiert(const QString &Pfad);
/// The text after the last separator ("\" or, for file-system paths, "/").
QString Dateiname_aus_Pfad(const QString &Pfad);

}  // namespace marklink
