// The reply file: what of a body goes into it, and how it is written.
#pragma once

#include <QByteArray>
#include <QString>

namespace marklink {

/// The body from the first "<?xml version=" on and one line end; empty when the body has no such text.
QByteArray Antwort_zuschneiden(const QByteArray &Rumpf);

/// Replaces what is in the file, which afterwards only its owner can read. A file or link of a stranger that
/// stands there in a shared temporary folder is neither followed nor written to. False when it cannot be
/// written; a file that had to be replaced is then still there, our own is gone.
bool Antwort_speichern(const QString &Datei, const QByteArray &Inhalt);

}  // namespace marklink
