// Bank and card details of an order.
#include "Zahlungsangaben.h"

#include <QStringList>
#include <span>

#include "host/Kontext.h"

namespace marklink {
namespace {

struct Angabe {
  int Zeile;  ///< from 0
  const char16_t *Titel;
  const char *Feld;
  bool Ohne_Leerzeichen;  ///< else only trimmed
};

constexpr Angabe BANK[] = {{0, u"Kontonummer: ", "AccountNumber", true},
                           {1, u"Kreditinstitut: ", "Bankname", false},
                           {2, u"BLZ: ", "BankCode", true},
                           {3, u"Kontoinhaber: ", "AccountHolder", false}};
// The second line is the card's check number: it is not kept.
constexpr Angabe KARTE[] = {{0, u"Kartennummer: ", "CreditcardNumber", true},
                            {2, u"Gültig bis (MM/JJ): ", "CreditcardValidTo", false},
                            {3, u"Karteninhaber: ", "CreditCardHolder", false}};

/// What stands behind the label; empty without it.
QString Angabe_lesen(const QString &Zeile, const Angabe &A) {
  const QStringView titel(A.Titel);
  const qsizetype ort = Zeile.indexOf(titel);
  if (ort < 0) return {};
  const QString wert = Zeile.mid(ort + titel.size());
  return A.Ohne_Leerzeichen ? QString(wert).remove(u' ') : wert.trimmed();
}

void Angaben_schreiben(db::Recordset &Satz, const QStringList &Zeilen, std::span<const Angabe> Angaben) {
  for (const Angabe &a : Angaben)
    Satz.SetValue(QLatin1String(a.Feld), Angabe_lesen(Zeilen.value(a.Zeile), a));
}

}  // namespace

void Zahlungsangaben_uebernehmen(db::Recordset &Satz, const QString &Text) {
  const QStringList zeilen = Text.split(QStringLiteral("\r\n"));
  if (Text.contains(u"Kontonummer:")) {
    Angaben_schreiben(Satz, zeilen, BANK);
    Satz.SetValue(QStringLiteral("bic"), QString());
    Satz.SetValue(QStringLiteral("iban"), QString());
    Satz.SetValue(QStringLiteral("BankdataBlock"), Text);
    Satz.SetValue(QStringLiteral("BankdataLine"), zeilen.join(QStringLiteral("  ·  ")));
    Satz.SetValue(QStringLiteral("CollectionAuthorisation"), int{Kontext.gSQL_True});
  } else if (Text.contains(u"Kartennummer:")) {
    Angaben_schreiben(Satz, zeilen, KARTE);
    Satz.SetValue(QStringLiteral("CreditCard"), QStringLiteral("MasterCard / Visa"));
  }
}

}  // namespace marklink
