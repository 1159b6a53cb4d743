// The help texts, made from the table of commands.
#pragma once

#include <QString>
#include <QStringList>

namespace marklink {

/// "marklink bestellungen status NR STATUS [--mail] [--kommentar TEXT]"
QString Aufrufform(const QStringList &Thema);
/// The help of the whole program (no words), of a group or of one command.
QString Hilfetext(const QStringList &Thema);

}  // namespace marklink
