// Articles that only the demo client's host sells.
#include "Demomandant_Buecher.h"
#include "Demomandant_Varianten.h"

namespace marklink::demo {

namespace {

enum class Sorte { Ware, Hauptartikel, Variante, Stueckliste, Dienst };

struct Hausartikelzeile {
  const char *Nummer;
  const char16_t *Name;
  Sorte Art;
  Cent Netto;
  bool Aktion;    ///< may have special prices
  int Strategie;  ///< unloading policy
  int Gewicht_g;
};

const Hausartikelzeile Artikeltafel[] = {
    {"AK1010", u"Zelthering-Beutel, Aktion vorbei", Sorte::Ware, 500, true, 0, 80},
    {"AK1020", u"Zeltleine, Aktion gestern vorbei", Sorte::Ware, 600, true, 1, 60},
    {"AK1030", u"Feldbecher, letzter Aktionstag", Sorte::Ware, 700, true, 2, 150},
    {"AK1040", u"Klapplöffel, erster Aktionstag", Sorte::Ware, 800, true, 3, 40},
    {"AK1050", u"Sitzkissen, Aktion kommt noch", Sorte::Ware, 900, true, 4, 220},
    {"AK1060", u"Seifendose, ohne Aktionserlaubnis", Sorte::Ware, 1000, false, 0, 90},
    {"AK1070", u"Wäscheleine, drei Aktionen", Sorte::Ware, 1100, true, 0, 110},
    {"AK1080", u"Kopflampe, Aktion über der Staffel", Sorte::Ware, 2000, true, 0, 95},
    {"ST1010", u"Werbebecher, Staffel mit Ausreißer", Sorte::Ware, 400, false, 0, 140},
    {"ST1020", u"Karabinerhaken, Staffel ab 10", Sorte::Ware, 300, false, 0, 30},
    {"VT1010", u"Hängematte", Sorte::Hauptartikel, 5000, true, 0, 800},
    {"VT1010-00", u"Hängematte (Blau)", Sorte::Variante, 5000, false, 0, 800},
    {"VT1010-01", u"Hängematte (Grün)", Sorte::Variante, 5200, false, 0, 800},
    {"SL1010", u"Campingset für zwei", Sorte::Stueckliste, 1000, false, 0, 3200},
    {"SL1020", u"Kochset mit Aktionspreis", Sorte::Stueckliste, 500, true, 0, 1100},
    {"DL1010", u"Zeltreparatur je Stunde", Sorte::Dienst, 4500, false, 0, 0},
    {"RP1010", u"Restposten Ladenhüter", Sorte::Ware, 100, false, 7, 500},
    {"FS1010", u"Altware mit fremdem Steuerschlüssel", Sorte::Ware, 1000, false, 0, 250},
    {"WK1010", u"Wasserkanister 10 l", Sorte::Ware, 1200, false, 0, 600},
};

QString Text(const char16_t *T) { return QString::fromUtf16(T); }

QVariantList Betraege(Cent Netto) {
  const Cent Brutto = Brutto_aus(Netto, 19);
  return {double(Netto) / 100, double(Brutto - Netto) / 100, double(Brutto) / 100};
}

/// A row by column names; what is not named stays empty.
class Artikelrohling {
 public:
  explicit Artikelrohling(const QStringList &Spalten) : Spalten_(Spalten), Werte_(Spalten.size()) {}
  void setzen(const char *Spalte, const QVariant &Wert) {
    if (const qsizetype i = Spalten_.indexOf(QLatin1String(Spalte)); i >= 0) Werte_[i] = Wert;
  }
  const QVariantList &Werte() const { return Werte_; }

 private:
  const QStringList &Spalten_;
  QVariantList Werte_;
};

struct Los {
  const char *Nummer, *Artikel, *Lager;
  int Alter;  ///< days
  Cent Preis;
  double Frei, Reserviert;
};

/// Of WK1010 the contracts have reserved: one lot is used up, one in part.
const Los Lostafel[] = {
    {"LH000001", "WK1010", "01-W-01", 90, 700, 0, 4},   {"LH000002", "WK1010", "01-W-02", 60, 720, 6, 2},
    {"LH000003", "WK1010", "01-W-03", 30, 690, 2.5, 0}, {"LH000004", "WK1010", "AL-09", 10, 650, 40, 0},
    {"LH000005", "RP1010", "01-W-04", 900, 80, 12, 0},  {"LH000006", "ST1010", "01-W-05", 45, 210, 500, 0},
    {"LH000007", "ST1020", "01-W-06", 45, 150, 300, 0}, {"LH000008", "AK1070", "01-W-07", 20, 600, 25, 0},
    {"LH000009", "AK1080", "01-W-08", 20, 1100, 30, 0}, {"LH000010", "VT1010-00", "01-W-09", 15, 2900, 8, 0},
    {"LH000011", "FS1010", "01-W-10", 700, 400, 5, 0},
};

class Hauswerk {
 public:
  Hauswerk(const Demodaten &D, const Mandantenvorgaben &V) : D_(D), V_(V) {}

  std::vector<Tabellenzeilen> alles() {
    for (const Hausartikelzeile &Z : Artikeltafel) Artikel_anhaengen(Z);
    Lose_anhaengen();
    Stuecklisten_anhaengen();
    Staffeln_anhaengen();
    Gruppenpreise_anhaengen();
    Sonderpreise_anhaengen();
    std::vector<Tabellenzeilen> Alle;
    for (Tabellenzeilen *T :
         {&Artikel_, &Lager_, &Teile_, &Staffeln_, &Gruppenpreise_, &Gruppenstaffeln_, &Sonderpreise_})
      Alle.push_back(std::move(*T));
    return Alle;
  }

 private:
  void Artikel_anhaengen(const Hausartikelzeile &Z);
  void Lose_anhaengen();
  void Stuecklisten_anhaengen();
  void Staffeln_anhaengen();
  void Gruppenpreise_anhaengen();
  void Sonderpreise_anhaengen();
  QString Artikelart(Sorte Art) const;
  void Gruppenpreis(const char16_t *Gruppe, const QString &Artikel, Cent Netto,
                    std::initializer_list<std::pair<double, Cent>> Staffel);

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
  Tabellenzeilen Artikel_{"Articles", Artikelspalten(), {}};
  Tabellenzeilen Lager_{
      "Warehouse",
      Spalten("StockingNumber Storage StorageNumber ArticleNumber SupplierNumber Supplier Date "
              "PurchasePrice ChargeNumber Unit Quantity Unsociable Disposable Employee"),
      {}};
  Tabellenzeilen Teile_{"ArticlePartslist",
                        Spalten("ListID ArticleNumber SubArticle ShortText WeightNet Quantity UnitpriceNet "
                                "Surcharge AmountPriceNet MainArticleNumber Layout"),
                        {}};
  Tabellenzeilen Staffeln_{
      "ArticleBlockpricing", Spalten("ArticleNumber Quantity NetPrice VatAmount GrossPrice"), {}};
  Tabellenzeilen Gruppenpreise_{"ArticleCustomerTypePrices",
                                Spalten("ArticleNumber CustomerType VatCode NetPrice VatAmount GrossPrice"),
                                {}};
  Tabellenzeilen Gruppenstaffeln_{
      "ArticleCustomerTypePricesBlockpricing",
      Spalten("CustomerType ArticleNumber Quantity NetPrice VatAmount GrossPrice"),
      {}};
  Tabellenzeilen Sonderpreise_{"ArticleSpecialprices",
                               Spalten("ArticleNumber Description NetPrice VatAmount GrossPrice VatCode "
                                       "DateFrom DateTo Synchronise"),
                               {}};
};

QString Hauswerk::Artikelart(Sorte Art) const {
  switch (Art) {
    case Sorte::Variante:
      return V_.Variantenart;
    case Sorte::Stueckliste:
      return V_.Stuecklistenart;
    case Sorte::Dienst:
      return V_.Dienstart;
    default:
      return V_.Artikelart;
  }
}

void Hauswerk::Artikel_anhaengen(const Hausartikelzeile &Z) {
  const QString Nummer = QLatin1String(Z.Nummer);
  double Frei = 0, Reserviert = 0;
  for (const Los &L : Lostafel) {
    if (Nummer != QLatin1String(L.Artikel)) continue;
    Frei += L.Frei;
    Reserviert += L.Reserviert;
  }
  const QVariantList Preise = Betraege(Z.Netto);
  const bool Fremd = Nummer == QLatin1String("FS1010");
  Artikelrohling R(Artikel_.Spalten);
  R.setzen("ArticleNumber", Nummer);
  R.setzen("ArticleNumberVariant", Z.Art == Sorte::Variante ? Nummer.left(6) : Nummer);
  R.setzen("ShortText", Text(Z.Name));
  R.setzen("ArticleType", Artikelart(Z.Art));
  R.setzen("ArticleGroup", QStringLiteral("Draußen"));
  R.setzen("ArticleGroup_fullpath", QStringLiteral("Warengruppen\\Draußen"));
  R.setzen("Unit", QStringLiteral("Stück"));
  // No key of the books: documents leave such a line out of their sums.
  R.setzen("VatCode", Fremd ? QStringLiteral("99") : V_.Steuer_voll);
  R.setzen("NetPrice", Preise[0]);
  R.setzen("VatAmount", Preise[1]);
  R.setzen("GrossPrice", Preise[2]);
  R.setzen("PurchasePrice", double(Z.Netto * 6 / 10) / 100);
  R.setzen("SpecialOfferPrice", Z.Aktion);
  R.setzen("Storage", V_.Lager);
  R.setzen("Disposable", Frei);
  R.setzen("Unsociable", Reserviert);
  R.setzen("UnloadingPolicy", Z.Strategie);
  R.setzen("WeightNet", Z.Gewicht_g / 1000.0);
  R.setzen("WeightGross", Z.Gewicht_g / 1000.0);
  R.setzen("Variant", Z.Art == Sorte::Variante);
  R.setzen("Active", true);
  R.setzen("BuildBy", QStringLiteral("varda"));
  R.setzen("DateCreation", Buchungstag(D_.Heute.addDays(-500)));
  R.setzen("DateUpdate", Buchungstag(D_.Heute.addDays(-100)));
  R.setzen("WorksOnLastOf", QStringLiteral("Chef"));
  Artikel_.Zeilen.push_back(R.Werte());
}

void Hauswerk::Lose_anhaengen() {
  for (const Los &L : Lostafel) {
    // Storages are named from the client's own number on.
    QString Lager = QLatin1String(L.Lager);
    const bool Aussen = Lager.startsWith(QLatin1String("AL"));
    if (!Aussen) Lager = V_.Lager + Lager.mid(2);
    Lager_.Zeilen.push_back(
        {QLatin1String(L.Nummer), Aussen ? QStringLiteral("Außenlager") : QStringLiteral("Hauptlager"), Lager,
         QLatin1String(L.Artikel), QStringLiteral("L790"), QStringLiteral("Kunststoffwerk Ith"),
         Buchungstag(D_.Heute.addDays(-L.Alter)), double(L.Preis) / 100, QLatin1String(L.Nummer).mid(4),
         QStringLiteral("Stück"), L.Frei + L.Reserviert, L.Reserviert, L.Frei, QStringLiteral("Chef")});
  }
}

void Hauswerk::Stuecklisten_anhaengen() {
  struct Teil {
    const char *Liste, *Artikel;
    const char16_t *Name;
    double Menge;
    Cent Einzel, Aufschlag;
  };
  for (const Teil &T : {Teil{"SL1010", "ZE1050", u"Zeltunterlage", 1, 2097, 0},
                        Teil{"SL1010", "SM1050", u"Faltmatte", 2, 1676, 150},
                        Teil{"SL1010", "WK1010", u"Wasserkanister", 0.5, 1200, 0},
                        Teil{"SL1020", "KU1050", u"Besteckset", 2, 1336, 0},
                        Teil{"SL1020", "AK1030", u"Feldbecher", 2, 700, -100}}) {
    const double Summe = (T.Menge * double(T.Einzel) + double(T.Aufschlag)) / 100;
    Teile_.Zeilen.push_back({QLatin1String(T.Liste), QLatin1String(T.Artikel), QLatin1String(T.Artikel),
                             Text(T.Name), 0.0, T.Menge, double(T.Einzel) / 100, double(T.Aufschlag) / 100,
                             Summe, QLatin1String(T.Liste), false});
  }
}

void Hauswerk::Staffeln_anhaengen() {
  struct Stufe {
    const char *Artikel;
    double Ab;
    Cent Netto;
  };
  // Of two steps from 50 on the last one counts; the one from 100 on is dearer than the article itself and is
  // passed over, the one behind it is not.
  for (const Stufe &S : {Stufe{"ST1010", 2, 390}, Stufe{"ST1010", 10, 360}, Stufe{"ST1010", 50, 345},
                         Stufe{"ST1010", 50, 330}, Stufe{"ST1010", 100, 450}, Stufe{"ST1010", 200, 300},
                         Stufe{"ST1020", 10, 270}, Stufe{"ST1020", 100, 240}, Stufe{"AK1080", 5, 1500},
                         Stufe{"ZE1060", 25, 950}, Stufe{"LO1070", 50, 420}})
    Staffeln_.Zeilen.push_back(QVariantList{QLatin1String(S.Artikel), S.Ab} + Betraege(S.Netto));
}

void Hauswerk::Gruppenpreis(const char16_t *Gruppe, const QString &Artikel, Cent Netto,
                            std::initializer_list<std::pair<double, Cent>> Staffel) {
  Gruppenpreise_.Zeilen.push_back(QVariantList{Artikel, Text(Gruppe), V_.Steuer_voll} + Betraege(Netto));
  for (const auto &[Ab, Preis] : Staffel)
    Gruppenstaffeln_.Zeilen.push_back(QVariantList{Text(Gruppe), Artikel, Ab} + Betraege(Preis));
}

void Hauswerk::Gruppenpreise_anhaengen() {
  // Wholesalers: the scale begins at 10. Clubs: a scale is there, but the group gets no scale prices.
  Gruppenpreis(u"Großhandel", QStringLiteral("ST1010"), 320, {{10, 310}, {50, 280}, {50, 275}, {500, 240}});
  Gruppenpreis(u"Großhandel", QStringLiteral("WK1010"), 950, {});
  Gruppenpreis(u"Vereine", QStringLiteral("ST1010"), 350, {{10, 100}});
  Gruppenpreis(u"Vereine", QStringLiteral("VT1010-00"), 4500, {});
}

void Hauswerk::Sonderpreise_anhaengen() {
  struct Aktion {
    const char *Artikel;
    Cent Netto;
    int Von, Bis;  ///< days from today
  };
  for (const Aktion &S :
       {Aktion{"AK1010", 400, -400, -300}, Aktion{"AK1020", 500, -30, -1}, Aktion{"AK1030", 600, -14, 0},
        Aktion{"AK1040", 700, 0, 14}, Aktion{"AK1050", 800, 10, 40}, Aktion{"AK1060", 900, -5, 300},
        Aktion{"AK1070", 1000, -90, -60}, Aktion{"AK1070", 990, -3, 200}, Aktion{"AK1070", 980, -1, 300},
        Aktion{"AK1080", 1800, -20, 365}, Aktion{"VT1010-00", 4200, -20, 365},
        Aktion{"SL1020", 400, -20, 365}})
    Sonderpreise_.Zeilen.push_back(QVariantList{QLatin1String(S.Artikel), QStringLiteral("Aktion")} +
                                   Betraege(S.Netto) +
                                   QVariantList{V_.Steuer_voll, Buchungstag(D_.Heute.addDays(S.Von)),
                                                Buchungstag(D_.Heute.addDays(S.Bis)), false});
}

}  // namespace

std::vector<Tabellenzeilen> Hausartikel(const Demodaten &D, const Mandantenvorgaben &V) {
  return Hauswerk(D, V).alles();
}

}  // namespace marklink::demo
