// The client list: an INI file with one section for each client.
#pragma once

#include <QString>
#include <QStringList>

namespace marklink {

/// The names of all sections in the file's order, each once; empty when the file is missing.
QStringList Mandanten_lesen(const QString &Datei);

/// The name as the list writes it, found without regard to case; empty when it is not in the list.
QString Mandant_suchen(const QStringList &Mandanten, const QString &Name);

/// Why a text cannot be the name of a client (it is a section, a file name and a catalog); empty when it can.
QString Mandantenname_pruefen(const QString &Name);

}  // namespace marklink
