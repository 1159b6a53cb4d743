// Numbers as text and text as numbers, always German whatever the machine says.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace marklink {

/// Number with "." as the decimal point: leading blanks, a sign, digits, up to the first character that does
/// not belong; 0 when there is none. Not an error. Always finite.
double Zahl_mit_Punkt(QStringView Text);

/// Number in German form ("1.234,56", "-3", "2,5"); nothing when the text is no number as a whole.
std::optional<double> Zahl_deutsch(QStringView Text);

/// Number text with a decimal comma and no thousands separator, at most 15 significant digits: 7.5 -> "7,5".
QString Zahl_als_Text(double Zahl);

/// Number by a picture: "standard" (two decimals, thousands), "#,##0.00", "0000", "##,#####0.000", "0.###",
/// "0 %" is not known. Empty picture: Zahl_als_Text. Rounds half away from zero on the decimal value.
QString Zahl_formatieren(double Zahl, const QString &Bild);

/// The number that is left when it is shown by a picture and read back: cut to the picture's decimals.
double Zahl_durch_Bild(double Zahl, const QString &Bild);

/// 16-bit and 32-bit readings of a setting: empty, no number or out of range gives 0; fractions are rounded
/// half to even, as the settings have always been read.
qint16 Als_Kurzzahl(const QString &Text);
qint32 Als_Ganzzahl(const QString &Text);

}  // namespace marklink
