// Small text routines that several folders share.
#pragma once

#include <QString>
#include <QVariant>

namespace marklink {

/// 1-based position of the last occurrence of the first character of `Zeichen`; 0 when absent or empty.
int Letzte_Position(const QString &Text, const QString &Zeichen);
/// The value as text; null becomes the empty text, numbers get a decimal comma, dates "dd.mm.yyyy hh:mm:ss".
QString Null_als_Text(const QVariant &Wert);
/// In capitals, character by character: the text keeps its length. A letter without a capital in the system's
/// character set ("ß") stays.
QString Grossbuchstaben(const QString &Text);
/// Sum over the characters at 1-based position i of i + 255 + code (Windows-1252), as decimal text.
QString Text_Pruefsumme(const QString &Text);
/// Every character replaced by the one whose Windows-1252 code is 31 higher (modulo 256).
QString Text_verschieben(const QString &Text);

}  // namespace marklink
