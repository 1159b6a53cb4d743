// Contracts of the demo client with lots reserved for them, a back order, a transport order, and a delivery
// that has left. The reserved quantities are those that the lots of Lagerbeispiel() show.
#include "Demomandant_Buecher.h"

namespace marklink::demo {

namespace {

struct Reservierung {
  const char *Nummer, *Los, *Fach;
  double Menge;
  int Auftrag, Zeile;
};

/// The lot of the last one has vanished: whoever gives it back is told so.
const Reservierung Reservierungstafel[] = {{"RV-000001", "LH000001", "-W-01", 4, 1, 1},
                                           {"RV-000002", "LH000002", "-W-02", 1.5, 1, 1},
                                           {"RV-000003", "LH000002", "-W-02", 0.5, 2, 1},
                                           {"RV-000004", "LH999999", "-W-99", 1, 2, 2}};

class Lagerwerk {
 public:
  Lagerwerk(const Demodaten &D, const Mandantenvorgaben &V) : D_(D), V_(V) {}

  std::vector<Tabellenzeilen> alles() {
    Auftrag_anhaengen(1, QStringLiteral("K30001"), QStringLiteral("Großeinkauf Nordlicht GmbH"));
    Auftrag_anhaengen(2, QStringLiteral("K30002"), QStringLiteral("Turnverein Süderlügum e. V."));
    Position_anhaengen(QStringLiteral("Auftrag"), Auftragsnummer(1), 1, 8.5, 3);
    Position_anhaengen(QStringLiteral("Auftrag"), Auftragsnummer(2), 1, 0.5, 0);
    Position_anhaengen(QStringLiteral("Auftrag"), Auftragsnummer(2), 2, 1, 0);
    for (const Reservierung &R : Reservierungstafel) Reservierung_anhaengen(R);
    Rueckstand_anhaengen();
    Transport_und_Lieferung_anhaengen();
    std::vector<Tabellenzeilen> Alle;
    for (Tabellenzeilen *T :
         {&Auftraege_, &Positionen_, &Reservierungen_, &Rueckstaende_, &Transporte_, &Lieferungen_})
      Alle.push_back(std::move(*T));
    return Alle;
  }

 private:
  QDate Tag() const { return D_.Heute.addDays(-2); }
  QString Jahr() const { return QString::number(Tag().year()); }
  QString Auftragsnummer(int n) const {
    return QStringLiteral("AU-%1-%2").arg(Jahr()).arg(n, 5, 10, QLatin1Char('0'));
  }
  QString Name() const { return QStringLiteral("Wasserkanister 10 l"); }

  void Auftrag_anhaengen(int n, const QString &Kunde, const QString &Suchname) {
    Auftraege_.Zeilen.push_back({Auftragsnummer(n), QStringLiteral("Auftragsbestätigung"), Buchungstag(Tag()),
                                 Kunde, Suchname, QStringLiteral("Chef"), QStringLiteral("Zentrale"), 1, 0,
                                 true, 0, Buchungstag(Tag()), QStringLiteral("Chef")});
  }

  /// The lots of a line as its allocation list, or the numbers of their reservations.
  QString Zuteilung(const QString &Beleg, int Zeile, bool Nummern) const {
    QStringList Lose;
    for (const Reservierung &R : Reservierungstafel) {
      if (Auftragsnummer(R.Auftrag) != Beleg || R.Zeile != Zeile) continue;
      const QString Nummer = QLatin1String(R.Nummer), Los = QLatin1String(R.Los);
      Lose << (Nummern ? Nummer
                       : QStringList{Lagerbeispiel(), V_.Lager + QLatin1String(R.Fach),
                                     QString::number(R.Menge).replace(QLatin1Char('.'), QLatin1Char(',')),
                                     Los, Los.mid(4), QStringLiteral("7"), Nummer}
                             .join(QLatin1Char(';')));
    }
    return Lose.join(Nummern ? QLatin1Char(';') : QLatin1Char('|'));
  }

  void Position_anhaengen(const QString &Beleg, const QString &Nummer, int Zeile, double Menge,
                          double Rueckstand, const QString &Bezug = {}) {
    const bool Auftrag = Beleg == QLatin1String("Auftrag");
    Positionen_.Zeilen.push_back({Beleg,
                                  Nummer,
                                  QString::number(Zeile),
                                  Lagerbeispiel(),
                                  Name(),
                                  QStringLiteral("Stück"),
                                  Menge,
                                  Rueckstand,
                                  V_.Steuer_voll,
                                  12.0,
                                  2.28,
                                  14.28,
                                  12.0 * Menge,
                                  2.28 * Menge,
                                  14.28 * Menge,
                                  0.6,
                                  0.6,
                                  Buchungstag(Tag()),
                                  Auftrag ? QVariant(Zuteilung(Nummer, Zeile, false)) : QVariant(),
                                  Auftrag ? Zuteilung(Nummer, Zeile, true) : QString(),
                                  Bezug.isEmpty() ? QString() : QStringLiteral("Auftrag"),
                                  Bezug,
                                  Bezug.isEmpty() ? QString() : QStringLiteral("1")});
  }

  void Reservierung_anhaengen(const Reservierung &R) {
    Reservierungen_.Zeilen.push_back(
        {QLatin1String(R.Nummer), true, QLatin1String(R.Los), V_.Lager + QLatin1String(R.Fach),
         Lagerbeispiel(), Name(), Buchungstag(Tag()), QStringLiteral("Hauptlager"), QStringLiteral("L790"),
         QStringLiteral("Kunststoffwerk Ith"), R.Menge, QStringLiteral("Stück"), QStringLiteral("Chef"),
         QStringLiteral("Auftrag"), Auftragsnummer(R.Auftrag), QString::number(R.Zeile)});
  }

  void Rueckstand_anhaengen() {
    Rueckstaende_.Zeilen.push_back({QStringLiteral("{00000000-0000-4000-8000-000000000001}"),
                                    QStringLiteral("K30001"), QStringLiteral("Großeinkauf Nordlicht GmbH"),
                                    Buchungstag(Tag()), QStringLiteral("Auftrag"), Auftragsnummer(1),
                                    QStringLiteral("1"), Lagerbeispiel(), Name(), 3.0});
  }

  void Transport_und_Lieferung_anhaengen() {
    const QString Transport = QStringLiteral("TR-%1-00001").arg(Jahr());
    Transporte_.Zeilen.push_back({Transport, false, QVariant()});
    Position_anhaengen(QStringLiteral("Transportauftrag"), Transport, 1, 3, 0, Auftragsnummer(1));
    const QString Lieferung = QStringLiteral("LS-%1-00001").arg(Jahr());
    Lieferungen_.Zeilen.push_back({Lieferung, true, Buchungstag(Tag())});
    Position_anhaengen(QStringLiteral("Lieferschein"), Lieferung, 1, 2, 0);
    Position_anhaengen(QStringLiteral("Retoure"), QStringLiteral("RT-%1-00001").arg(Jahr()), 1, 1, 0);
  }

  const Demodaten &D_;
  const Mandantenvorgaben &V_;
  Tabellenzeilen Auftraege_{
      "Contract",
      Spalten("ContractNumber Form Date CustomerNumber Customer Employee Store Taxation "
              "TaxCalculation StorageBooking OrderStatus DateCreation WorksOnLastOf"),
      {}};
  Tabellenzeilen Positionen_{
      "Positions",
      Spalten(
          "document DocumentNumber LineItemNumber ArticleNumber ShortText Unit Quantity BackOrder VatCode "
          "UnitpriceNet UnitpriceVat UnitpriceGross AllroundpriceNet AllroundpriceVat AllroundpriceGross "
          "WeightNet WeightGross Date StorageNumber ReservationNumber ReferenceDocument "
          "ReferenceDocumentNumber ReferenceLineItemNumber"),
      {}};
  Tabellenzeilen Reservierungen_{
      "Reservations",
      Spalten(
          "ReservationNumber ReservationType StockingNumber StorageNumber ArticleNumber ShortText Date "
          "Storage SupplierNumber Supplier Quantity Unit Employee document DocumentNumber LineItemNumber"),
      {}};
  Tabellenzeilen Rueckstaende_{
      "BackOrder",
      Spalten(
          "uid CustomerNumber Customer Date document DocumentNumber LineItemNumber ArticleNumber ShortText "
          "Quantity"),
      {}};
  Tabellenzeilen Transporte_{"TransportOrder", Spalten("TransportNumber Dispatch DispatchDate"), {}};
  Tabellenzeilen Lieferungen_{"Delivery", Spalten("DeliveryNumber Dispatch DispatchDate"), {}};
};

}  // namespace

std::vector<Tabellenzeilen> Lagerbelege(const Demodaten &D, const Mandantenvorgaben &V) {
  return Lagerwerk(D, V).alles();
}

}  // namespace marklink::demo
