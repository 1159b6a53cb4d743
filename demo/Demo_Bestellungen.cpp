// The demo orders: several months of trade up to the reference date.
#include <algorithm>

#include "Demo_Teile.h"

namespace marklink::demo {

namespace {

constexpr int Anzahl = 240;
constexpr int Zeitraum_Tage = 170;
constexpr int Erste_Nummer = 1001;

/// Gross prices by weight: up to 5, 10, 20, 31.5 kg, and above. A new client's scale holds the same prices,
/// net.
Cent Paketpreis(const Land &Ziel, int Gewicht_g) {
  static const std::vector<QString> Nachbarn{QStringLiteral("AT"), QStringLiteral("BE"), QStringLiteral("DK"),
                                             QStringLiteral("FR"), QStringLiteral("LU"), QStringLiteral("NL"),
                                             QStringLiteral("PL"), QStringLiteral("CZ")};
  static const Cent Preise[][5] = {{490, 690, 1090, 1590, 4900},
                                   {990, 1490, 1990, 2490, 9900},
                                   {1490, 1990, 2990, 3990, 14900},
                                   {1790, 2490, 3990, 4990, 18000},
                                   {3490, 5490, 8990, 12490, 49900}};
  const QString Iso = QLatin1String(Ziel.Iso2);
  const bool Nachbar = std::find(Nachbarn.begin(), Nachbarn.end(), Iso) != Nachbarn.end();
  const int Zone = Iso == QLatin1String("DE")   ? 0
                   : Nachbar                    ? 1
                   : Ziel.EU                    ? 2
                   : Iso == QLatin1String("US") ? 4
                                                : 3;
  int Stufe = 0;
  for (const int Grenze : {5000, 10000, 20000, 31500}) Stufe += Gewicht_g > Grenze;
  return Preise[Zone][Stufe];
}

class Bestellwerk {
 public:
  Bestellwerk(Demodaten &D, Zufall &Z) : D_(D), Z_(Z) {
    for (const Artikel &A : D.Artikel_) (A.Nur_im_Shop ? Nur_Shop_ : Auswahl_).push_back(&A);
    for (std::size_t i = 0; i < D.Kunden.size(); ++i)
      (D.Kunden[i].Gruppe == Gast ? Gaeste_ : Feste_).push_back(i);
  }
  void erzeugen() {
    const std::vector<QDateTime> Zeiten = Zeiten_wuerfeln();
    for (int i = 0; i < Anzahl; ++i) D_.Bestellungen.push_back(eine(i, Zeiten[static_cast<std::size_t>(i)]));
  }

 private:
  std::vector<QDateTime> Zeiten_wuerfeln();
  Bestellung eine(int i, const QDateTime &Datum);
  const Kunde &Kunde_waehlen(int i, const QDateTime &Datum);
  void Positionen_anlegen(Bestellung &B, const Kunde &K, int i);
  Position Position_bilden(const Bestellung &B, const Kunde &K, const Artikel &A, int Menge);
  int Menge_wuerfeln(const Kunde &K, const Artikel &A);
  void Zahlung_waehlen(Bestellung &B, const Kunde &K);
  void Versand_waehlen(Bestellung &B, Summenangaben &S);
  void Verlauf_bilden(Bestellung &B);
  static bool Steuerfrei(const Kunde &K) {
    return K.Gruppe == Haendler_EU || !Land_mit_Id(K.Adresse.Land).EU;
  }

  Demodaten &D_;
  Zufall &Z_;
  std::vector<const Artikel *> Auswahl_, Nur_Shop_;
  std::vector<std::size_t> Gaeste_, Feste_;
  std::size_t Naechster_Gast_ = 0;
};

std::vector<QDateTime> Bestellwerk::Zeiten_wuerfeln() {
  std::vector<QDateTime> Zeiten;
  for (int i = 0; i < Anzahl; ++i) {
    const int Tag = i * Zeitraum_Tage / (Anzahl - 1);
    Zeiten.push_back(
        QDateTime(D_.Heute.addDays(Tag - Zeitraum_Tage),
                  QTime(Tag == Zeitraum_Tage ? 5 : Z_.zwischen(6, 23), Z_.unter(60), Z_.unter(60))));
  }
  std::sort(Zeiten.begin(), Zeiten.end());
  return Zeiten;
}

const Kunde &Bestellwerk::Kunde_waehlen(int i, const QDateTime &Datum) {
  // A guest's account is made with the order, and every guest orders once.
  if (i % 33 == 5 && Naechster_Gast_ < Gaeste_.size()) {
    Kunde &K = D_.Kunden[Gaeste_[Naechster_Gast_++]];
    K.Angelegt = Datum.addSecs(-240);
    return K;
  }
  return D_.Kunden[Z_.aus(Feste_)];
}

int Bestellwerk::Menge_wuerfeln(const Kunde &K, const Artikel &A) {
  const bool Wiederverkauf = !Gruppendaten(K.Gruppe).Brutto;
  const int Hoechstens = std::max(1, A.Bestand / (A.Optionen.empty() ? 4 : 12));
  const int Wunsch = Wiederverkauf ? Z_.zwischen(2, 24) : (Z_.trifft(70) ? 1 : Z_.zwischen(2, 4));
  return std::min(Wunsch, Hoechstens);
}

Position Bestellwerk::Position_bilden(const Bestellung &B, const Kunde &K, const Artikel &A, int Menge) {
  const Kundengruppe &Gruppe = Gruppendaten(K.Gruppe);
  Position P{};
  P.Artikel = A.Id;
  P.Nummer = A.Nummer;
  P.Name = B.Englisch ? A.Name_Englisch : A.Name;
  P.Menge = Menge;
  P.Steuersatz = Steuerfrei(K) ? 0 : A.Steuersatz;
  Feinpreis Grundpreis = A.Netto;
  if (A.Sonderpreis > 0) {
    Grundpreis = A.Sonderpreis;
  } else {
    if (Gruppe.Staffelpreise && A.Haendlerpreis > 0) {
      Grundpreis = A.Haendlerpreis;
      for (const Staffel &S : A.Staffeln)
        if (Menge >= S.Ab) Grundpreis = S.Netto;
    }
    P.Rabatt = std::min(Gruppe.Artikelrabatt, A.Rabatt_erlaubt);
  }
  P.Einzelpreis = Preis_anzeigen(Grundpreis, P.Steuersatz, B.Brutto, B.Kurs);
  for (const Artikeloption &O : A.Optionen) {
    const Auswahl &W = Z_.aus(O.Werte);
    const Optionswert &Wert = D_.Wert_mit_Id(W.Wert);
    P.Einzelpreis += Preis_anzeigen(W.Aufpreis, P.Steuersatz, B.Brutto, B.Kurs);
    P.Optionen.push_back({D_.Option_mit_Id(O.Option).Name, Wert.Name, W.Aufpreis});
  }
  P.Einzelpreis -= teilen_gerundet(P.Einzelpreis * P.Rabatt, 100);
  return P;
}

void Bestellwerk::Positionen_anlegen(Bestellung &B, const Kunde &K, int i) {
  std::vector<const Artikel *> Gewaehlt;
  const int Zeilen = Z_.zwischen(1, 5);
  while (static_cast<int>(Gewaehlt.size()) < Zeilen) {
    const Artikel *A = Z_.aus(Auswahl_);
    // Options are kept as texts in the order's language; the client knows the German ones only.
    if (B.Englisch && !A->Optionen.empty()) continue;
    if (std::find(Gewaehlt.begin(), Gewaehlt.end(), A) != Gewaehlt.end()) continue;
    Gewaehlt.push_back(A);
    B.Positionen.push_back(Position_bilden(B, K, *A, Menge_wuerfeln(K, *A)));
  }
  if (i % 40 == 17) B.Positionen.push_back(Position_bilden(B, K, *Z_.aus(Nur_Shop_), 1));
  if (i % 45 == 20) {  // more than there is
    const auto Knapp = std::find_if(Auswahl_.begin(), Auswahl_.end(), [&](const Artikel *A) {
      return A->Bestand < 12 && A->Optionen.empty() && A->Id > 100 + i / 3 &&
             std::find(Gewaehlt.begin(), Gewaehlt.end(), A) == Gewaehlt.end();
    });
    if (Knapp != Auswahl_.end())
      B.Positionen.push_back(Position_bilden(B, K, **Knapp, (*Knapp)->Bestand + 3));
  }
  if (i == 33 || i == 158) {
    Position P{};
    P.Artikel = 99;
    P.Nummer = QStringLiteral("ZE0990");
    P.Name = QStringLiteral("Auslaufmodell Firstzelt „Sturmvogel“");
    P.Menge = 1;
    P.Steuersatz = Steuerfrei(K) ? 0 : 19;
    P.Einzelpreis = Preis_anzeigen(Feinpreis{838235}, P.Steuersatz, B.Brutto, B.Kurs);
    B.Positionen.push_back(P);
  }
}

void Bestellwerk::Zahlung_waehlen(Bestellung &B, const Kunde &K) {
  static const std::vector<QString> Inland{
      QStringLiteral("banktransfer"), QStringLiteral("banktransfer"), QStringLiteral("moneyorder"),
      QStringLiteral("moneyorder"),   QStringLiteral("cod"),          QStringLiteral("cod"),
      QStringLiteral("invoice"),      QStringLiteral("cc"),           QStringLiteral("paypal")};
  static const std::vector<QString> Ausland{QStringLiteral("moneyorder"), QStringLiteral("cc"),
                                            QStringLiteral("paypal")};
  static const std::vector<QString> Firmen{QStringLiteral("invoice"), QStringLiteral("invoice"),
                                           QStringLiteral("moneyorder")};
  const bool Deutsch = K.Adresse.Land == 81;
  B.Zahlung = !B.Brutto ? Z_.aus(Firmen) : Z_.aus(Deutsch ? Inland : Ausland);
  if (B.Zahlung == QLatin1String("banktransfer")) {
    static const std::vector<Bankdaten> Banken{
        {{}, {}, QStringLiteral("99912300"), QStringLiteral("Musterbank Nordheide eG")},
        {{}, {}, QStringLiteral("99945600"), QStringLiteral("Beispielsparkasse Südstadt")},
        {{}, {}, QStringLiteral("99978900"), QStringLiteral("Probebank Köln-Düsseldorf")}};
    B.Bank = Z_.aus(Banken);
    B.Bank.Inhaber = K.Adresse.Name();
    B.Bank.Konto = QStringLiteral("000%1").arg(Z_.zwischen(1000000, 9999999));
  } else if (B.Zahlung == QLatin1String("cc")) {
    static const std::vector<Kartendaten> Karten{
        {QStringLiteral("VISA"),
         {},
         QStringLiteral("4111111111111111"),
         QStringLiteral("1299"),
         QStringLiteral("000")},
        {QStringLiteral("MasterCard"),
         {},
         QStringLiteral("5555XXXXXXXX4444"),
         QStringLiteral("0699"),
         QStringLiteral("999")},
        {QStringLiteral("VISA"), {}, QStringLiteral("0000000000000000"), QStringLiteral("0000"), {}}};
    B.Karte = Z_.aus(Karten);
    B.Karte.Inhaber = K.Adresse.Name().toUpper().replace(QStringLiteral("ß"), QStringLiteral("SS"));
  }
}

void Bestellwerk::Versand_waehlen(Bestellung &B, Summenangaben &S) {
  int Gewicht = 0;
  for (const Position &P : B.Positionen) {
    const Artikel *A = D_.Artikel_mit_Id(P.Artikel);
    Gewicht += (A ? A->Gewicht_g : 3000) * P.Menge;
  }
  const Land &Ziel = Land_mit_Id(B.Lieferung.Land);
  const bool Nachnahme = B.Zahlung == QLatin1String("cod");
  if (Ziel.Id == 81 && !Nachnahme && Z_.trifft(6)) {
    B.Versandklasse = QStringLiteral("selfpickup_selfpickup");
    B.Versandart = QStringLiteral("Selbstabholung");
    return;
  }
  if (Ziel.Id == 81 && Z_.trifft(25)) {
    B.Versandklasse = QStringLiteral("flat_flat");
    B.Versandart = QStringLiteral("Pauschale Versandkosten (Bestellung)");
    S.Versand = 690;
  } else {
    S.Versand = Paketpreis(Ziel, Gewicht);
    B.Versandklasse = QStringLiteral("dp_dp");
    B.Versandart = QStringLiteral("Deutsche Post (Versand nach %1 : %2.%3 kg)")
                       .arg(QLatin1String(Ziel.Iso2))
                       .arg(Gewicht / 1000)
                       .arg(Gewicht % 1000 / 100);
  }
  if (Nachnahme) S.Nachnahme = 400;
}

void Bestellwerk::Verlauf_bilden(Bestellung &B) {
  const qint64 Alter = B.Datum.date().daysTo(D_.Heute);
  B.Verlauf.push_back({1, B.Datum, true, B.Kommentar});
  QDateTime Wann = B.Datum;
  const auto Wechsel = [&](int Status, int Stunden, const QString &Kommentar) {
    Wann = Wann.addSecs(Stunden * 3600 + Z_.unter(3600));
    B.Verlauf.push_back({Status, Wann, Z_.trifft(60), Kommentar});
  };
  const bool Vorkasse = B.Zahlung == QLatin1String("moneyorder");
  if (Alter > 4 && Z_.trifft(7)) {
    Wechsel(5, 30, QStringLiteral("Auf Wunsch des Kunden storniert."));
  } else {
    // Some who were to pay in advance never did; their orders stay open.
    const bool Bezahlt = !Vorkasse || Z_.trifft(88);
    if (Bezahlt && Alter > 3 && Vorkasse) Wechsel(4, 36, {});
    if (Bezahlt && Alter > 5) Wechsel(2, 30, {});
    if (Bezahlt && (Alter > 15 || (Alter > 9 && Z_.trifft(50))))
      Wechsel(3, 48, QStringLiteral("Ihre Bestellung ist unterwegs. Schöne Grüße!"));
  }
  B.Status = B.Verlauf.back().Status;
}

QString Kommentar_wuerfeln(Zufall &Z) {
  static const std::vector<QString> Texte{
      QStringLiteral("Bitte klingeln bei „Süßmilch“, das Schild fehlt noch."),
      QStringLiteral("Gutschein über 10 € bitte verrechnen, falls möglich."),
      QStringLiteral("Lieferung \"hinter dem Haus\" & bitte nicht vor < 8 Uhr >."),
      QStringLiteral("Für Oma Käthe zum 80. Geburtstag:\nbitte ohne Preise verpacken.\nDanke!"),
      QStringLiteral("Rechnung bitte an die Buchhaltung, Bestell-Nr. 4711/ä."),
      QStringLiteral("Wenn's geht, bis Freitag liefern."),
      QStringLiteral("Größe notfalls tauschen? Rückruf erwünscht – tagsüber bin ich im Büro.")};
  return Z.trifft(35) ? Z.aus(Texte) : QString();
}

Bestellung Bestellwerk::eine(int i, const QDateTime &Datum) {
  const Kunde &K = Kunde_waehlen(i, Datum);
  Bestellung B{};
  B.Nummer = Erste_Nummer + i;
  B.Kunde = K.Id;
  B.Datum = Datum;
  B.Brutto = Gruppendaten(K.Gruppe).Brutto;
  B.Englisch = K.Adresse.Land == 222 || K.Adresse.Land == 223;
  const bool Franken = K.Adresse.Land == 204 && Z_.trifft(75);
  B.Waehrung = Franken ? QStringLiteral("CHF") : QStringLiteral("EUR");
  B.Kurs = Franken ? 9735 : 10000;
  B.Rechnung = K.Adresse;
  B.Lieferung = !K.Lieferadressen.empty() && Z_.trifft(60) ? Z_.aus(K.Lieferadressen) : K.Adresse;
  B.Kommentar = Kommentar_wuerfeln(Z_);
  B.Ip = QStringLiteral("203.0.113.%1").arg(Z_.zwischen(1, 254));
  Positionen_anlegen(B, K, i);
  Zahlung_waehlen(B, K);
  Summenangaben S{};
  S.Gruppe = K.Gruppe;
  S.Steuerfrei = Steuerfrei(K);
  Versand_waehlen(B, S);
  Cent Waren = 0;
  for (const Position &P : B.Positionen) Waren += P.Summe();
  if (B.Brutto && !Franken && Waren >= 4000 && Z_.trifft(10)) {
    S.Kupon = Waren >= 10000 ? 1000 : 500;
    S.Kuponcode = Waren >= 10000 ? QStringLiteral("SOMMER10") : QStringLiteral("FRÜHLING5");
  }
  if (B.Brutto && B.Zahlung == QLatin1String("moneyorder") && !B.Englisch && Waren < 20000 && i % 60 >= 40) {
    S.Guthaben = B.Guthaben_deckt = true;
    B.Zahlung = QStringLiteral("no_payment");
  }
  Summen_bilden(B, S);
  Verlauf_bilden(B);
  return B;
}

}  // namespace

void Bestellungen_erzeugen(Demodaten &D, Zufall &Z) { Bestellwerk(D, Z).erzeugen(); }

}  // namespace marklink::demo
