// Files and paths.
#pragma once

#include <QFileDevice>
#include <QString>
#include <optional>

namespace marklink {

/// Temporary folder with its trailing separator.
QString Temp_Ordner();
/// A new, empty temporary file with the prefix "4", readable by its owner only; empty when none can be made.
QString Temp_Dateiname();
/// True for a path that is not empty and names a file or folder, hidden ones included.
bool Datei_existiert(const QString &Pfad);
/// The text after the last separator ("\" or, for file-system paths, "/").
QString Dateiname_aus_Pfad(const QString &Pfad);

/// Puts the bytes in the place of a file's content, or makes the file: all of them, or the file stays as it
/// was (full disk included). `Rechte` are given to a file that is made or replaced. False: traced as
/// `Stelle`.
bool Datei_ersetzen(const QString &Pfad, const QByteArray &Bytes, const QString &Stelle,
                    std::optional<QFileDevice::Permissions> Rechte = std::nullopt);

}  // namespace marklink
