// The statements of type 1 that a test program sends, for the check in tests/tsql: with
// MARKLINK_MITSCHRIFT=FILE in the environment they are written to that file, whoever sends them. Linking it
// in is all that a program has to do.
#pragma once

#include <QString>

namespace marklink::test {

/// Adds a line "SOURCE<tab>TEXT", once in each process; line ends in the text become blanks. The first
/// process begins the file anew, those that it starts go on with it. Without the variable nothing happens.
void In_Mitschrift(const char *Quelle, const QString &Text);

}  // namespace marklink::test
