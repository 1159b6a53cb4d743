// Countries of the books.
#include "Laender.h"

#include "Datenbank.h"
#include "Kontext.h"
#include "Nachschlagen.h"
#include "Texte.h"
#include "Zahlen.h"

namespace marklink {
namespace {

db::Recordset Land_lesen(const QString &Land, const char *Feld) {
  return Abfragen(db::Anweisung("SELECT ", db::Name{QLatin1String(Feld)},
                                " FROM Countries WHERE Description = ", db::Wert{Land}));
}

}  // namespace

QString Adressformat_ermitteln(const QString &Wert, const QString &Spalte) {
  const QString vorlage =
      Nachschlagen({"SELECT AddressFormat FROM Countries WHERE ", db::Name{Spalte}, " = ", db::Wert{Wert}},
                   QStringLiteral("AddressFormat"));
  return vorlage.isEmpty() ? Kontext.gAdressformat : vorlage;
}

QString Land_aus_Token(const QString &Token) {
  return Nachschlagen({"SELECT Description FROM Countries WHERE Token = ", db::Wert{Token}},
                      QStringLiteral("Description"));
}

bool Land_ist_EU(const QString &Land) { return Land_lesen(Land, "EU").Flag(QStringLiteral("EU")); }

bool Land_ist_Ausland(const QString &Land) { return !Land.trimmed().isEmpty() && Land != Kontext.gCountry; }

double Land_Versandfreigrenze(const QString &Land) {
  const db::Recordset rs = Land_lesen(Land, "FreeShippingAmount");
  if (rs.RecordCount() > 0) return rs.Number(QStringLiteral("FreeShippingAmount"));
  const QString einstellung = Programmoption("FreeShippingAmount");
  return Zahl_deutsch(einstellung).value_or(0.0);
}

QString Land_Waehrung(const QString &Land) {
  return Land_lesen(Land, "Currency").Text(QStringLiteral("Currency"));
}

}  // namespace marklink
