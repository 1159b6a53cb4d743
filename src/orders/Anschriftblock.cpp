// Filling an address template.
#include "Anschriftblock.h"

#include "host/Kontext.h"
#include "host/Laender.h"
#include "host/Texte.h"
#include "shop/Antwort.h"

namespace marklink {

QString Anschriftblock_erzeugen(const pugi::xml_node &Anschrift) {
  const QString land = Land_aus_Token(Knoten_Text(Anschrift, "COUNTRY"));
  QString block = Adressformat_ermitteln(land, QStringLiteral("Description"));

  // One after the other, each over the whole text: the order is part of the result.
  struct Platzhalter {
    QLatin1String Name;
    const char *Knoten;
  };
  static constexpr Platzhalter FELDER[] = {
      {QLatin1String("$Company"), "COMPANY"},  {QLatin1String("$Affix"), "SUBURB"},
      {QLatin1String("$Salutation"), nullptr}, {QLatin1String("$Title"), nullptr},
      {QLatin1String("$Name"), "LASTNAME"},    {QLatin1String("$Surname"), "FIRSTNAME"},
      {QLatin1String("$Street"), "STREET"},    {QLatin1String("$Zip"), "POSTCODE"},
      {QLatin1String("$Town"), "CITY"},
  };
  block.replace(QLatin1String("$Cr"), QLatin1String("\r\n"));
  for (const Platzhalter &feld : FELDER) {
    if (!block.contains(feld.Name)) continue;
    block.replace(feld.Name, feld.Knoten ? Knoten_Text(Anschrift, feld.Knoten) : QString());
  }
  block.replace(QLatin1String("$Country"), Land_ist_Ausland(land) ? Grossbuchstaben(land) : QString());
  return block;
}

}  // namespace marklink
