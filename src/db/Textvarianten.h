// The case variants of a text beyond ASCII, for an engine whose columns know the case of ASCII letters only.
#pragma once

#include <QString>
#include <QStringList>

namespace marklink::db {

/// All variants, the text itself first; empty when there are more than 16.
QStringList Textvarianten(const QString &Text);

/// True when the value may take the place of another in a reusable translation: no letters with case beyond
/// ASCII.
bool Wert_schlicht(const QString &Text);

}  // namespace marklink::db
