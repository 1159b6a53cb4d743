// Countries with currency, free-shipping limit and the way an address is written there.
#include <QLatin1String>

#include "Teile.h"

namespace marklink::app {

namespace {

enum class Anschrift {
  Plz_Ort,          ///< postcode before the town: most of Europe
  Ort_Plz,          ///< postcode behind the town, on one line: overseas
  Ort_Plz_darunter  ///< postcode on a line of its own: the British Isles
};

/// The country stands on a line of its own; at home it is left empty. The affix goes behind the street, since
/// a line that stays empty is not removed.
QString Vorlage(Anschrift Form) {
  const QString kopf = QStringLiteral("$Company$Cr$Surname $Name$Cr$Street $Affix$Cr");
  const QString land = QStringLiteral("$Cr$Country");
  switch (Form) {
    case Anschrift::Ort_Plz:
      return kopf + QStringLiteral("$Town $Zip") + land;
    case Anschrift::Ort_Plz_darunter:
      return kopf + QStringLiteral("$Town$Cr$Zip") + land;
    case Anschrift::Plz_Ort:
      break;
  }
  return kopf + QStringLiteral("$Zip $Town") + land;
}

struct Land {
  const char *Token, *Name;
  bool EU;
  const char *Waehrung;
  double Freigrenze;  ///< gross, in the client's currency
  Anschrift Form = Anschrift::Plz_Ort;
};

constexpr bool Ja = true, Nein = false;
constexpr double Inland = 100, In_EU = 200, Europa = 300, Uebersee = 500;

constexpr Land Liste[] = {
    {"DE", "Deutschland", Ja, "EUR", Inland},
    {"BE", "Belgien", Ja, "EUR", In_EU},
    {"BG", "Bulgarien", Ja, "EUR", In_EU},
    {"DK", "Dänemark", Ja, "DKK", In_EU},
    {"EE", "Estland", Ja, "EUR", In_EU},
    {"FI", "Finnland", Ja, "EUR", In_EU},
    {"FR", "Frankreich", Ja, "EUR", In_EU},
    {"GR", "Griechenland", Ja, "EUR", In_EU},
    {"IE", "Irland", Ja, "EUR", In_EU, Anschrift::Ort_Plz_darunter},
    {"IT", "Italien", Ja, "EUR", In_EU},
    {"HR", "Kroatien", Ja, "EUR", In_EU},
    {"LV", "Lettland", Ja, "EUR", In_EU},
    {"LT", "Litauen", Ja, "EUR", In_EU},
    {"LU", "Luxemburg", Ja, "EUR", In_EU},
    {"MT", "Malta", Ja, "EUR", In_EU, Anschrift::Ort_Plz},
    {"NL", "Niederlande", Ja, "EUR", In_EU},
    {"AT", "Österreich", Ja, "EUR", In_EU},
    {"PL", "Polen", Ja, "PLN", In_EU},
    {"PT", "Portugal", Ja, "EUR", In_EU},
    {"RO", "Rumänien", Ja, "RON", In_EU},
    {"SE", "Schweden", Ja, "SEK", In_EU},
    {"SK", "Slowakei", Ja, "EUR", In_EU},
    {"SI", "Slowenien", Ja, "EUR", In_EU},
    {"ES", "Spanien", Ja, "EUR", In_EU},
    {"CZ", "Tschechien", Ja, "CZK", In_EU},
    {"HU", "Ungarn", Ja, "HUF", In_EU},
    {"CY", "Zypern", Ja, "EUR", In_EU},
    {"CH", "Schweiz", Nein, "CHF", Europa},
    {"LI", "Liechtenstein", Nein, "CHF", Europa},
    {"GB", "Großbritannien", Nein, "GBP", Europa, Anschrift::Ort_Plz_darunter},
    {"NO", "Norwegen", Nein, "NOK", Europa},
    {"IS", "Island", Nein, "ISK", Europa},
    {"AL", "Albanien", Nein, "ALL", Europa},
    {"AD", "Andorra", Nein, "EUR", Europa},
    {"BY", "Belarus", Nein, "BYN", Europa},
    {"BA", "Bosnien und Herzegowina", Nein, "BAM", Europa},
    {"MD", "Moldau", Nein, "MDL", Europa},
    {"MC", "Monaco", Nein, "EUR", Europa},
    {"ME", "Montenegro", Nein, "EUR", Europa},
    {"MK", "Nordmazedonien", Nein, "MKD", Europa},
    {"RU", "Russland", Nein, "RUB", Europa},
    {"SM", "San Marino", Nein, "EUR", Europa},
    {"RS", "Serbien", Nein, "RSD", Europa},
    {"TR", "Türkei", Nein, "TRY", Europa},
    {"UA", "Ukraine", Nein, "UAH", Europa},
    {"VA", "Vatikanstadt", Nein, "EUR", Europa},
    {"US", "Vereinigte Staaten", Nein, "USD", Uebersee, Anschrift::Ort_Plz},
    {"CA", "Kanada", Nein, "CAD", Uebersee, Anschrift::Ort_Plz},
    {"MX", "Mexiko", Nein, "MXN", Uebersee},
    {"AR", "Argentinien", Nein, "ARS", Uebersee},
    {"BR", "Brasilien", Nein, "BRL", Uebersee, Anschrift::Ort_Plz},
    {"CL", "Chile", Nein, "CLP", Uebersee},
    {"CO", "Kolumbien", Nein, "COP", Uebersee, Anschrift::Ort_Plz},
    {"PE", "Peru", Nein, "PEN", Uebersee, Anschrift::Ort_Plz},
    {"UY", "Uruguay", Nein, "UYU", Uebersee},
    {"AU", "Australien", Nein, "AUD", Uebersee, Anschrift::Ort_Plz},
    {"NZ", "Neuseeland", Nein, "NZD", Uebersee, Anschrift::Ort_Plz},
    {"CN", "China", Nein, "CNY", Uebersee},
    {"HK", "Hongkong", Nein, "HKD", Uebersee, Anschrift::Ort_Plz},
    {"IN", "Indien", Nein, "INR", Uebersee, Anschrift::Ort_Plz},
    {"ID", "Indonesien", Nein, "IDR", Uebersee, Anschrift::Ort_Plz},
    {"JP", "Japan", Nein, "JPY", Uebersee, Anschrift::Ort_Plz},
    {"KZ", "Kasachstan", Nein, "KZT", Uebersee},
    {"KR", "Südkorea", Nein, "KRW", Uebersee, Anschrift::Ort_Plz},
    {"MY", "Malaysia", Nein, "MYR", Uebersee},
    {"PK", "Pakistan", Nein, "PKR", Uebersee, Anschrift::Ort_Plz},
    {"PH", "Philippinen", Nein, "PHP", Uebersee},
    {"SG", "Singapur", Nein, "SGD", Uebersee, Anschrift::Ort_Plz},
    {"TW", "Taiwan", Nein, "TWD", Uebersee, Anschrift::Ort_Plz},
    {"TH", "Thailand", Nein, "THB", Uebersee, Anschrift::Ort_Plz},
    {"VN", "Vietnam", Nein, "VND", Uebersee, Anschrift::Ort_Plz},
    {"AE", "Vereinigte Arabische Emirate", Nein, "AED", Uebersee},
    {"IL", "Israel", Nein, "ILS", Uebersee, Anschrift::Ort_Plz},
    {"KW", "Kuwait", Nein, "KWD", Uebersee},
    {"QA", "Katar", Nein, "QAR", Uebersee},
    {"SA", "Saudi-Arabien", Nein, "SAR", Uebersee, Anschrift::Ort_Plz},
    {"EG", "Ägypten", Nein, "EGP", Uebersee, Anschrift::Ort_Plz},
    {"KE", "Kenia", Nein, "KES", Uebersee},
    {"MA", "Marokko", Nein, "MAD", Uebersee},
    {"NG", "Nigeria", Nein, "NGN", Uebersee, Anschrift::Ort_Plz},
    {"ZA", "Südafrika", Nein, "ZAR", Uebersee, Anschrift::Ort_Plz},
    {"TN", "Tunesien", Nein, "TND", Uebersee},
};

}  // namespace

Stammtabelle Laenderliste() {
  Stammtabelle tabelle =
      Tabelle_bilden("Countries", "Token Description EU Currency FreeShippingAmount AddressFormat", {});
  for (const Land &land : Liste) {
    tabelle.Zeilen.push_back({QString::fromUtf8(land.Token), QString::fromUtf8(land.Name), land.EU,
                              QString::fromUtf8(land.Waehrung), land.Freigrenze, Vorlage(land.Form)});
  }
  return tabelle;
}

}  // namespace marklink::app
