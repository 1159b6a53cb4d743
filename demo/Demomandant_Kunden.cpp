// The demo client's customers with their groups, price lists, and ways to pay and to ship that are used with
// them.
#include "Demomandant_Buecher.h"

namespace marklink::demo {

namespace {

QString Text(const char16_t *T) { return QString::fromUtf16(T); }

struct Hauskunde {
  const char *Nummer;
  const char16_t *Firma, *Vorname, *Name, *Strasse;
  const char *Plz;
  const char16_t *Ort;
  const char *Land;  ///< token; "?" is a country that the books do not know
  const char16_t *Gruppe;
  int Steuer;  ///< TaxCalculation
  const char *Ust_Id;
  const char16_t *Bedingung, *Zahlungsart;
  double Rabatt;
  bool Einzug, Bankverbindung, Gesperrt;
};

const Hauskunde Kundentafel[] = {
    {"K30001", u"Großeinkauf Nordlicht GmbH", u"Henrike", u"Petersen", u"Speicherstraße 8", "24939",
     u"Flensburg", "DE", u"Großhandel", 0, "DE299000087", u"10 Tage 3 % Skonto, 30 Tage netto", u"Rechnung",
     3, false, false, false},
    {"K30002", u"Turnverein Süderlügum e. V.", u"Ole", u"Brodersen", u"Am Sportplatz 1", "25923",
     u"Süderlügum", "DE", u"Vereine", 0, "", u"14 Tage netto", u"Rechnung", 0, false, false, false},
    {"K30003", u"", u"Käthe", u"Ohneweg", u"Mühlengang 4", "38100", u"Braunschweig", "DE", u"", 0, "",
     u"Zahlbar sofort ohne Abzug", u"Barzahlung", 0, false, false, false},
    {"K30004", u"", u"Seán", u"Mac Conghaile", u"Falls Road 99", "BT12 4PD", u"Belfast", "?", u"Neuer Kunde",
     4, "", u"nach Vereinbarung", u"Vorkasse", 0, false, false, false},
    {"K30005", u"Alpenhandel Säntis AG", u"Urs", u"Ämisegger", u"Bahnhofplatz 2", "9050", u"Appenzell", "CH",
     u"Händler", 3, "", u"30 Tage netto", u"Rechnung", 0, false, false, false},
    {"K30006", u"", u"Jürgen", u"Möhlmann", u"Deichweg 17", "26506", u"Norden", "DE", u"Stammkunde", 0, "",
     u"8 Tage 2 % Skonto, 14 Tage netto", u"Lastschrift", 0, true, true, false},
    {"K30007", u"", u"Gesche", u"Tönnies", u"Fleet 3", "21129", u"Hamburg", "DE", u"Stammkunde", 0, "",
     u"14 Tage netto", u"Lastschrift", 0, true, false, false},
    {"K30008", u"Pleitegeier Outdoor UG", u"Kuno", u"Brüggemann", u"Sackgasse 13", "44137", u"Dortmund", "DE",
     u"Händler", 0, "DE299000095", u"14 Tage netto", u"Vorkasse", 0, false, false, true},
    {"K30009", u"", u"Maarten", u"de Groot", u"Kerkstraat 5", "1017 GA", u"Amsterdam", "NL", u"Neuer Kunde",
     2, "", u"14 Tage netto", u"EU-Standardüberweisung", 0, false, false, false},
    {"K30010", u"Tirolsport Höller KG", u"Vroni", u"Höller", u"Dorfplatz 1", "6450", u"Sölden", "AT",
     u"Händler EU", 1, "ATU99000036", u"8 Tage 2 % Skonto, 14 Tage netto", u"Rechnung", 2.5, false, false,
     false},
};

class Kundenwerk {
 public:
  Kundenwerk(const Demodaten &D, const Mandantenvorgaben &V) : D_(D), V_(V) {}

  std::vector<Tabellenzeilen> alles() {
    // Those whom the shop calls by a number are in the books already; the others come with their first order.
    for (const Kunde &K : D_.Kunden)
      if (!K.Kundennummer.isEmpty()) Shopkunde_anhaengen(K);
    for (const Hauskunde &K : Kundentafel) Hauskunde_anhaengen(K);
    return {std::move(Kunden_)};
  }

 private:
  void Shopkunde_anhaengen(const Kunde &K);
  void Hauskunde_anhaengen(const Hauskunde &K);
  QString Land(const QString &Token) const {
    return Token == QLatin1String("?") ? QStringLiteral("Nordirland") : V_.Laender.value(Token);
  }
  QString Suchname(const QString &Firma, const QString &Name, const QString &Vorname, const QString &Ort) {
    QString Ergebnis = Firma.isEmpty() ? QStringLiteral("%1, %2").arg(Name, Vorname) : Firma;
    if (Suchnamen_.contains(Ergebnis)) Ergebnis += QStringLiteral(" - ") + Ort;
    Suchnamen_ << Ergebnis;
    return Ergebnis;
  }
  static QString Block(const QStringList &Zeilen) {
    QStringList Volle;
    for (const QString &Z : Zeilen)
      if (!Z.trimmed().isEmpty()) Volle << Z;
    return Volle.join(QStringLiteral("\r\n"));
  }

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
  QStringList Suchnamen_;
  int Konto_ = 20001;
  Tabellenzeilen Kunden_{
      "Contacts",
      Spalten(
          "CustomerNumber Matchcode Salutation Company Surname Name Street Zip Town Country InvoiceAddress "
          "DeliveryAddress Telephone Email Birthday CustomerType Discount TaxCalculation VatID Rating "
          "Mileage "
          "CreditLimit DebitorAccount Employee PaymentPractice MethodPayment Forwarding Impartation closed "
          "WebshopID AccountNumber Bankname BankCode AccountHolder CollectionAuthorisation DateCreation "
          "DateUpdate WorksOnLastOf"),
      {}};
};

void Kundenwerk::Shopkunde_anhaengen(const Kunde &K) {
  const Anschrift &A = K.Adresse;
  const demo::Land &L = Land_mit_Id(A.Land);
  const QString Land_Name = Land(QLatin1String(L.Iso2));
  const QString Anrede = A.Geschlecht == QLatin1String("m")   ? QStringLiteral("Herr")
                         : A.Geschlecht == QLatin1String("f") ? QStringLiteral("Frau")
                                                              : QString();
  const bool Inland = qstrcmp(L.Iso2, "DE") == 0;
  const int Steuer = Inland ? 0 : !L.EU ? 3 : K.Ust_Id.isEmpty() ? 2 : 1;
  const QString Adresse =
      Block({A.Firma, A.Name(), A.Strasse, A.Zusatz, A.Plz + QLatin1Char(' ') + A.Ort, Land_Name});
  Kunden_.Zeilen.push_back({K.Kundennummer,
                            Suchname(A.Firma, A.Nachname, A.Vorname, A.Ort),
                            Anrede,
                            A.Firma,
                            A.Vorname,
                            A.Nachname,
                            A.Strasse,
                            A.Plz,
                            A.Ort,
                            Land_Name,
                            Adresse,
                            Adresse,
                            K.Telefon,
                            K.Email,
                            K.Geboren.isValid() ? QVariant(Buchungstag(K.Geboren)) : QVariant(),
                            Gruppendaten(K.Gruppe).Name,
                            0.0,
                            Steuer,
                            K.Ust_Id,
                            QStringLiteral("B"),
                            0.0,
                            1000.0,
                            QString::number(Konto_++),
                            QStringLiteral("Chef"),
                            QString(),
                            QString(),
                            QString(),
                            QString(),
                            false,
                            QString::number(K.Id),
                            QString(),
                            QString(),
                            QString(),
                            QString(),
                            false,
                            K.Angelegt,
                            K.Angelegt,
                            QStringLiteral("Chef")});
}

void Kundenwerk::Hauskunde_anhaengen(const Hauskunde &K) {
  const QString Vorname = Text(K.Vorname), Name = Text(K.Name), Nummer = QLatin1String(K.Nummer);
  const QString Land_Name = Land(QLatin1String(K.Land));
  const QString Adresse = Block({Text(K.Firma), Vorname + QLatin1Char(' ') + Name, Text(K.Strasse),
                                 QLatin1String(K.Plz) + QLatin1Char(' ') + Text(K.Ort), Land_Name});
  const QVariantList Bank =
      K.Bankverbindung ? QVariantList{QStringLiteral("0001234567"), QStringLiteral("Musterbank Nordheide eG"),
                                      QStringLiteral("99912300"), Vorname + QLatin1Char(' ') + Name}
                       : QVariantList{QString(), QString(), QString(), QString()};
  Kunden_.Zeilen.push_back(QVariantList{Nummer,
                                        Suchname(Text(K.Firma), Name, Vorname, Text(K.Ort)),
                                        QString(),
                                        Text(K.Firma),
                                        Vorname,
                                        Name,
                                        Text(K.Strasse),
                                        QLatin1String(K.Plz),
                                        Text(K.Ort),
                                        Land_Name,
                                        Adresse,
                                        Adresse,
                                        QString(),
                                        Nummer.toLower() + QStringLiteral("@example.com"),
                                        QVariant(),
                                        Text(K.Gruppe),
                                        K.Rabatt,
                                        K.Steuer,
                                        QLatin1String(K.Ust_Id),
                                        K.Gesperrt ? QStringLiteral("D") : QStringLiteral("A"),
                                        120.0,
                                        K.Gesperrt ? 0.0 : 20000.0,
                                        QString::number(Konto_++),
                                        QStringLiteral("Chef"),
                                        Text(K.Bedingung),
                                        Text(K.Zahlungsart),
                                        QStringLiteral("Deutsche Post"),
                                        QStringLiteral("E-Mail"),
                                        K.Gesperrt,
                                        QString()} +
                           Bank +
                           QVariantList{K.Einzug, Buchungstag(D_.Heute.addDays(-700)),
                                        Buchungstag(D_.Heute.addDays(-200)), QStringLiteral("Chef")});
}

/// Groups of the host alone. Wholesalers get scales but no special prices, clubs neither.
Tabellenzeilen Hausgruppen() {
  return {"CustomerTypes",
          Spalten("Description BlockingPricing SpecialOfferPrice Taxable Active Standard"),
          {{QStringLiteral("Großhandel"), true, false, true, true, false},
           {QStringLiteral("Vereine"), false, false, true, true, false}}};
}

Tabellenzeilen Preislisten(const Mandantenvorgaben &V) {
  Tabellenzeilen T{"ContactPricelist",
                   Spalten("CustomerNumber ArticleNumber ShortText NetPrice VatAmount GrossPrice VatCode"),
                   {}};
  struct Eintrag {
    const char *Kunde, *Artikel;
    const char16_t *Name;
    Cent Netto;
  };
  // The list wins over group, scale and special price, here also where it is dearer.
  for (const Eintrag &E : {Eintrag{"K30001", "ST1020", u"Karabinerhaken (Rahmenvertrag)", 255},
                           Eintrag{"K30001", "ZE1050", u"Zeltunterlage (Rahmenvertrag)", 1650},
                           Eintrag{"K30006", "AK1070", u"Wäscheleine (Stammkundenpreis)", 1050},
                           Eintrag{"K30002", "WK1010", u"Wasserkanister mit Vereinswappen", 1250}}) {
    const Cent Brutto = Brutto_aus(E.Netto, 19);
    T.Zeilen.push_back({QLatin1String(E.Kunde), QLatin1String(E.Artikel), Text(E.Name), double(E.Netto) / 100,
                        double(Brutto - E.Netto) / 100, double(Brutto) / 100, V.Steuer_voll});
  }
  return T;
}

/// Scales whose edges a client meets sooner or later: weights that no step reaches, a step of 999 that only
/// this very weight finds, another tax key in the second zone, and one that somebody left unfinished.
Tabellenzeilen Versandarten(const Mandantenvorgaben &V) {
  const QString Zonen =
      QStringLiteral(
          "DE~50:29,00;100:45,50;999:180,00~%1|AT;CH~50:49,00;100:79,00~%2|FR;BE;NL;LU~100:95,00~%1")
          .arg(V.Steuer_voll, V.Steuer_ermaessigt);
  return {"ForwardingCharges",
          Spalten("Description Token Costs VatCode Weight PriceScaleEnable PriceScale Active Standard"),
          {{QStringLiteral("Stückgut nach Zonen"), QStringLiteral("stueckgut"), 29.0, V.Steuer_voll, 100.0,
            true, Zonen, true, false},
           {QStringLiteral("Fahrradkurier (in Vorbereitung)"), QStringLiteral("kurier"), 6.0, V.Steuer_voll,
            10.0, true, QStringLiteral("DE~10"), false, false}}};
}

}  // namespace

std::vector<Tabellenzeilen> Kunden_der_Buecher(const Demodaten &D, const Mandantenvorgaben &V) {
  std::vector<Tabellenzeilen> Alle = Kundenwerk(D, V).alles();
  Alle.push_back(Hausgruppen());
  Alle.push_back(Preislisten(V));
  Alle.push_back(Versandarten(V));
  return Alle;
}

}  // namespace marklink::demo
