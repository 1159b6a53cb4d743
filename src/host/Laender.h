// Countries: address templates, EU, free shipping, currency.
#pragma once

#include <QString>

namespace marklink {

/// Template of the country whose `Spalte` ("Description", "Token") holds `Wert`; Kontext.gAdressformat when
/// there is none.
QString Adressformat_ermitteln(const QString &Wert, const QString &Spalte);
QString Land_aus_Token(const QString &Token);  ///< Description; empty when unknown
bool Land_ist_EU(const QString &Land);         ///< false when unknown
/// Whether it is named and is not the home country (Kontext.gCountry).
bool Land_ist_Ausland(const QString &Land);
/// Free-shipping amount; of an unknown country the setting Program/FreeShippingAmount.
double Land_Versandfreigrenze(const QString &Land);
QString Land_Waehrung(const QString &Land);

}  // namespace marklink
