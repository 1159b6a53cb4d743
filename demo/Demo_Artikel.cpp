// The demo articles: the assortment with numbers, bar codes, net prices, choices and dealers' prices.
#include "Demo_Sortiment.h"
#include "Demo_Teile.h"

namespace marklink::demo {

namespace {

struct Wertzeile {
  int Id;
  const char16_t *Name, *Englisch;
  int Aufpreis;  ///< gross cents
  int Gewicht_g;
};
struct Optionszeile {
  char Zeichen;  ///< as used in the assortment
  int Id;
  const char16_t *Name, *Englisch;
  std::vector<Wertzeile> Werte;
};

// Texts of values hold no ", ": the order desk joins them with it.
const std::vector<Optionszeile> &Optionstafel() {
  static const std::vector<Optionszeile> Tafel{
      {'G',
       1,
       u"Größe",
       u"Size",
       {{1, u"S", u"S", 0, -20},
        {2, u"M", u"M", 0, 0},
        {3, u"L", u"L", 0, 20},
        {4, u"XL", u"XL", 150, 40},
        {5, u"XXL", u"XXL", 300, 60}}},
      {'F',
       2,
       u"Farbe",
       u"Colour",
       {{10, u"Rot", u"Red", 0, 0},
        {11, u"Blau", u"Blue", 0, 0},
        {12, u"Grün", u"Green", 0, 0},
        {13, u"Schwarz", u"Black", 200, 0}}},
      {'S',
       3,
       u"Schuhgröße",
       u"Shoe size",
       {{20, u"38", u"38", 0, -60},
        {21, u"39", u"39", 0, -40},
        {22, u"40", u"40", 0, -20},
        {23, u"41", u"41", 0, 0},
        {24, u"42", u"42", 0, 20},
        {25, u"43", u"43", 0, 40},
        {26, u"44", u"44", 0, 60},
        {27, u"45", u"45", 500, 80}}},
      {'L',
       4,
       u"Länge",
       u"Length",
       {{30, u"Kurz (185 cm)", u"Short (185 cm)", -1000, -100},
        {31, u"Normal (200 cm)", u"Regular (200 cm)", 0, 0},
        {32, u"Überlang (220 cm)", u"Extra long (220 cm)", 1500, 150}}},
      {'M',
       5,
       u"Mahlgrad",
       u"Grind",
       {{40, u"Ganze Bohne", u"Whole bean", 0, 0},
        {41, u"Filter", u"Filter", 50, 0},
        {42, u"Espresso", u"Espresso", 50, 0}}},
      {'D',
       6,
       u"Ausführung",
       u"Version",
       {{50, u"mit Deckel", u"with lid", 0, 0}, {51, u"ohne Deckel", u"without lid", -600, -350}}},
  };
  return Tafel;
}

QString Text(const char16_t *T) { return QString::fromUtf16(T); }

Feinpreis Netto_aus_Brutto(int Cent_, int Satz) { return teilen_gerundet(Cent_ * qint64{10000}, 100 + Satz); }

/// 13 digits that begin with 2: the range kept free for a shop's own use.
QString Ean(int Id) {
  const QString Ziffern = QStringLiteral("20417%1").arg(Id * 37, 7, 10, QLatin1Char('0'));
  int Summe = 0;
  for (int i = 0; i < 12; ++i) Summe += Ziffern.at(i).digitValue() * (i % 2 == 0 ? 1 : 3);
  return Ziffern + QString::number((10 - Summe % 10) % 10);
}

QString Beschreibung(const Sortimentszeile &Z, const Kategoriezeile &K) {
  return QStringLiteral(
             "<p><strong>%1</strong> aus unserem Sortiment <em>%2</em>.</p>"
             "<p>Sorgfältig ausgewählt, geprüft und sofort lieferbar.</p>")
      .arg(Text(Z.Name), Text(K.Name).toHtmlEscaped());
}

std::vector<Artikeloption> Optionen_bilden(const Sortimentszeile &Z, int Satz) {
  std::vector<Artikeloption> Ergebnis;
  for (const char *Zeichen = Z.Optionen; *Zeichen != '\0'; ++Zeichen) {
    for (const Optionszeile &O : Optionstafel()) {
      if (O.Zeichen != *Zeichen) continue;
      Artikeloption A{O.Id, {}};
      for (const Wertzeile &W : O.Werte)
        A.Werte.push_back({W.Id, Netto_aus_Brutto(W.Aufpreis, Satz), W.Gewicht_g});
      Ergebnis.push_back(std::move(A));
    }
  }
  return Ergebnis;
}

void Preise_setzen(Artikel &A, int Laufend, Zufall &Z) {
  // Dealers' prices are whole cents; about half of the assortment has one, a third of those in steps.
  if (Laufend % 2 == 0) A.Haendlerpreis = A.Netto * (78 + Z.unter(8)) / 100 / 100 * 100;
  if (Laufend % 6 == 0) {
    A.Staffeln.push_back({10, A.Haendlerpreis * 95 / 100 / 100 * 100});
    A.Staffeln.push_back({50, A.Haendlerpreis * 90 / 100 / 100 * 100});
  }
  if (Laufend % 15 == 7) A.Sonderpreis = teilen_gerundet(A.Netto * 8, 10);
  A.Rabatt_erlaubt = A.Steuersatz == 7 ? 0 : 9;
}

const Kategoriezeile &Kategorie_zu(int Id) {
  for (const Kategoriezeile &K : Kategorietafel())
    if (K.Id == Id) return K;
  return Kategorietafel().front();
}

Artikel Artikel_bilden(const Sortimentszeile &Zeile, int Laufend, int In_Kategorie, const QDate &Heute,
                       Zufall &Z) {
  const Kategoriezeile &K = Kategorie_zu(Zeile.Kategorie);
  Artikel A{};
  A.Id = 100 + Laufend;
  A.Nummer = QLatin1String(K.Kuerzel) + QString::number(1000 + 10 * In_Kategorie);
  A.Ean = Ean(A.Id);
  A.Name = Text(Zeile.Name);
  A.Name_Englisch = Text(Zeile.Englisch);
  A.Text = Beschreibung(Zeile, K);
  A.Kategorie = Zeile.Kategorie;
  A.Steuersatz = K.Steuersatz;
  A.Netto = Netto_aus_Brutto(Zeile.Brutto, A.Steuersatz);
  A.Gewicht_g = Zeile.Gewicht_g;
  A.Bestand = Zeile.Bestand;
  A.Einheit = Text(Zeile.Einheit);
  A.Angelegt = QDateTime(Heute.addDays(-900 + Z.unter(400)), QTime(9, Z.unter(60), Z.unter(60)));
  A.Geaendert = A.Angelegt.addDays(Z.zwischen(30, 250));
  A.Optionen = Optionen_bilden(Zeile, A.Steuersatz);
  Preise_setzen(A, Laufend, Z);
  // Four late arrivals are known to the shop alone, three texts were reworked there last week.
  A.Nur_im_Shop = Laufend == 34 || Laufend == 62 || Laufend == 93 || Laufend == 110;
  A.Im_Shop_neuer = Laufend == 12 || Laufend == 50 || Laufend == 100;
  if (A.Im_Shop_neuer) A.Geaendert = QDateTime(Heute.addDays(-6), QTime(16, 5));
  return A;
}

}  // namespace

std::vector<Kombination> Kombinationen(const Artikel &A) {
  std::vector<Kombination> Ergebnis;
  if (A.Optionen.empty()) return Ergebnis;
  Ergebnis.emplace_back();
  for (const Artikeloption &O : A.Optionen) {
    std::vector<Kombination> Weiter;
    for (const Kombination &Bisher : Ergebnis) {
      for (const Auswahl &W : O.Werte) {
        Weiter.push_back(Bisher);
        Weiter.back().push_back(&W);
      }
    }
    Ergebnis = std::move(Weiter);
  }
  return Ergebnis;
}

void Artikel_erzeugen(Demodaten &D, Zufall &Z) {
  for (const Kategoriezeile &K : Kategorietafel())
    D.Kategorien.push_back({K.Id, K.Oberkategorie, Text(K.Name), Text(K.Englisch)});
  for (const Optionszeile &O : Optionstafel()) {
    D.Optionen.push_back({O.Id, Text(O.Name), Text(O.Englisch)});
    for (const Wertzeile &W : O.Werte) D.Optionswerte.push_back({W.Id, O.Id, Text(W.Name), Text(W.Englisch)});
  }
  int Laufend = 0, In_Kategorie = 0, Letzte = 0;
  for (const Sortimentszeile &Zeile : Sortiment()) {
    In_Kategorie = Zeile.Kategorie == Letzte ? In_Kategorie + 1 : 1;
    Letzte = Zeile.Kategorie;
    D.Artikel_.push_back(Artikel_bilden(Zeile, ++Laufend, In_Kategorie, D.Heute, Z));
  }
}

}  // namespace marklink::demo
