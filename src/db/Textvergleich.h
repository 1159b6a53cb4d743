// How the books compare text: without regard to case, umlauts included.
#pragma once

#include <QString>
#include <QStringView>

namespace marklink::db {

/// Folded form: two texts are equal to the books exactly when their folded forms are.
QString Text_falten(QStringView Text);

bool Text_gleich(QStringView A, QStringView B);

/// Dictionary order (ä with a, ß with ss; accents only break ties): negative, 0 (exactly when Text_gleich) or
/// positive.
int Text_vergleichen(QStringView A, QStringView B);

/// SQL LIKE with "%" (any run) and "_" (one character), compared as above.
bool Text_aehnlich(QStringView Text, QStringView Muster);

}  // namespace marklink::db
