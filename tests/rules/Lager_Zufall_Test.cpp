// Stock under random cases, judged in whole thousandths by a plain model.
#include <map>
#include <random>

#include "Lager_Test.h"

namespace marklink::test {
namespace {

using Tausendstel = qint64;

Tausendstel Tausendstel_aus(double Wert) {
  const auto t = Tausendstel(std::llround(Wert * 1000));
  EXPECT_EQ(Wert, double(t) / 1000) << "noise in a stored or listed quantity";
  return t;
}

struct Modell_Los {
  int Nummer, Tag, Preis;
  Tausendstel Frei, Reserviert = 0;
};

class Lager_Zufall_Test : public Lager_Test {
 protected:
  std::mt19937 Wuerfel{20240615};
  int Zwischen(int Von, int Bis) { return std::uniform_int_distribution<int>(Von, Bis)(Wuerfel); }

  static QString Losname(int Nummer) { return QStringLiteral("L%1").arg(Nummer); }

  /// Articles with lots, all in one batch; a quarter of the lots is empty, some have a negative rest.
  std::vector<std::vector<Modell_Los>> Lager_fuellen(int Artikelzahl) {
    std::vector<std::vector<Modell_Los>> alle;
    db::Recordset artikel = Abfragen("SELECT * FROM Articles"), lager = Abfragen("SELECT * FROM Warehouse");
    int nummer = 0;
    for (int a = 0; a < Artikelzahl; ++a) {
      artikel.AddNew();
      artikel.SetValue(Q("ArticleNumber"), QString::number(a));
      artikel.SetValue(Q("UnloadingPolicy"), a % 5);
      artikel.SetValue(Q("Storage"), Q("01"));
      Tausendstel summe = 0;
      alle.emplace_back();
      for (int i = Zwischen(0, 7); i > 0; --i) {
        const int sorte = Zwischen(0, 7);
        const Modell_Los los{++nummer, Zwischen(0, 400), Zwischen(1, 99999),
                             sorte < 2    ? 0
                             : sorte == 2 ? -Zwischen(1, 5000)
                                          : Zwischen(1, 20000)};
        summe += los.Frei;
        lager.AddNew();
        lager.SetValue(Q("StockingNumber"), Losname(nummer));
        lager.SetValue(Q("ArticleNumber"), QString::number(a));
        lager.SetValue(Q("StorageNumber"), Q("01-A"));
        lager.SetValue(Q("Date"), QDateTime(QDate(2023, 1, 1).addDays(los.Tag), QTime(0, 0), Qt::UTC));
        lager.SetValue(Q("PurchasePrice"), los.Preis / 100.0);
        lager.SetValue(Q("Disposable"), double(los.Frei) / 1000);
        lager.SetValue(Q("Unsociable"), 0.0);
        lager.SetValue(Q("Quantity"), double(los.Frei) / 1000);
        lager.Update();
        alle.back().push_back(los);
      }
      artikel.SetValue(Q("Disposable"), double(summe) / 1000);
      artikel.SetValue(Q("Unsociable"), 0.0);
      artikel.Update();
    }
    EXPECT_TRUE(artikel.UpdateBatch() && lager.UpdateBatch());
    return alle;
  }

  static qint64 Rang(const Modell_Los &L, int Strategie) {
    switch (Strategie) {
      case 0:
        return L.Tag;
      case 1:
        return -L.Tag;
      case 2:
        return -L.Preis;
      case 3:
        return L.Preis;
      default:
        return L.Frei;
    }
  }
  void Pruefen(const QString &Liste, const std::vector<Modell_Los> &Lose, int Strategie, Tausendstel Menge);
  static QString Alles() {
    return Bestand() + u'/' + Zeilen("SELECT ArticleNumber, Disposable, Unsociable FROM Articles");
  }
};
MARKLINK_BEIDE_TYPEN(Lager_Zufall_Test);

void Lager_Zufall_Test::Pruefen(const QString &Liste, const std::vector<Modell_Los> &Lose, int Strategie,
                                Tausendstel Menge) {
  Tausendstel verfuegbar = 0, zugeteilt = 0;
  std::map<QString, const Modell_Los *> nach_Name;
  for (const Modell_Los &los : Lose) {
    verfuegbar += std::max<Tausendstel>(los.Frei, 0);
    nach_Name[Losname(los.Nummer)] = &los;
  }
  const std::vector<Los> liste = Zuteilung_zerlegen(Liste);
  qint64 letzter = std::numeric_limits<qint64>::min();
  for (std::size_t i = 0; i < liste.size(); ++i) {
    ASSERT_EQ(liste[i].size(), 7);
    const auto da = nach_Name.find(liste[i][3]);
    ASSERT_NE(da, nach_Name.end()) << "a lot of another article, or one twice";
    const Modell_Los los = *da->second;
    nach_Name.erase(da);
    const Tausendstel entnahme = Tausendstel_aus(Los_Zahl(liste[i], Losfeld::Menge));
    EXPECT_GT(entnahme, 0);
    EXPECT_LE(entnahme, los.Frei);
    EXPECT_TRUE(entnahme == los.Frei || i + 1 == liste.size()) << "only the last lot is broken";
    EXPECT_LE(letzter, Rang(los, Strategie));
    EXPECT_EQ(Los_Zahl(liste[i], Losfeld::Einkaufspreis), los.Preis / 100.0);
    letzter = Rang(los, Strategie);
    zugeteilt += entnahme;
  }
  // What was left alone would have come later.
  for (const auto &[name, los] : nach_Name)
    EXPECT_TRUE(liste.empty() || los->Frei <= 0 || Rang(*los, Strategie) >= letzter) << name.toStdString();
  EXPECT_EQ(zugeteilt, std::clamp<Tausendstel>(Menge, 0, verfuegbar));
  EXPECT_EQ(Zuteilung_Wert(Liste, 2).toDouble(), double(zugeteilt) / 1000);
}

TEST_P(Lager_Zufall_Test, Zuteilung) {
  const auto lager = Lager_fuellen(200);
  for (int fall = 0; fall < 10000 && !HasFailure(); ++fall) {
    const int a = Zwischen(0, 199), strategie = Zwischen(0, 4);
    const Tausendstel menge = Zwischen(0, 9) == 0 ? Zwischen(-5000, 0) : Zwischen(1, 60000);
    SCOPED_TRACE(fall);
    const auto &lose = lager[std::size_t(a)];
    QString liste;
    if (strategie == a % 5) {
      liste = Bestand_zuteilen(QString::number(a), double(menge) / 1000, QString());
    } else {
      Lager_Aufteilung(liste, QString::number(a), Q("01"), double(menge) / 1000, strategie);
    }
    Pruefen(liste, lose, strategie, menge);
  }
}

TEST_P(Lager_Zufall_Test, Reservieren_und_Aufloesen_hebt_sich_auf_Buchen_geht_auf) {
  auto lager = Lager_fuellen(400);
  int positionen = 0;
  for (int beleg = 0; positionen < 10000 && !HasFailure(); ++beleg) {
    const QString nummer = QString::number(beleg);
    db::Recordset p = Abfragen("SELECT * FROM Positions");
    for (int i = 0; i < 400; ++i, ++positionen) {
      p.AddNew();
      p.SetValue(Q("document"), Q("Auftrag"));
      p.SetValue(Q("DocumentNumber"), nummer);
      p.SetValue(Q("LineItemNumber"), QString::number(i));
      p.SetValue(Q("ArticleNumber"), QString::number(i));
      p.SetValue(Q("StorageNumber"),
                 Bestand_zuteilen(QString::number(i), Zwischen(1, 4000) / 1000.0, QString()));
      p.Update();
    }
    ASSERT_TRUE(p.UpdateBatch());
    const QString vorher = Alles();
    ASSERT_TRUE(Reservierungen_erzeugen(Q("Auftrag"), nummer, Q("Chef"), Reservierungen_anlegen, true));
    EXPECT_TRUE(beleg > 15 || Alles() != vorher);
    if (beleg % 2 == 0) {
      ASSERT_TRUE(Reservierungen_erzeugen(Q("Auftrag"), nummer, Q("Chef"), Reservierungen_aufloesen, true));
      EXPECT_EQ(Alles(), vorher);
    } else {
      Reservierungen_buchen(Q("Auftrag"), nummer, Q("Chef"));
      std::map<QString, Tausendstel> summen;
      for (db::Recordset w = Abfragen("SELECT * FROM Warehouse"); !w.IsEOF(); w.MoveNext()) {
        EXPECT_EQ(w.Number(Q("Quantity")), w.Number(Q("Disposable")) + w.Number(Q("Unsociable")));
        EXPECT_EQ(w.Number(Q("Unsociable")), 0);
        summen[w.Text(Q("ArticleNumber"))] += Tausendstel_aus(w.Number(Q("Disposable")));
      }
      for (db::Recordset a = Abfragen("SELECT * FROM Articles"); !a.IsEOF(); a.MoveNext())
        EXPECT_EQ(Tausendstel_aus(a.Number(Q("Disposable"))), summen[a.Text(Q("ArticleNumber"))]);
    }
  }
}

}  // namespace
}  // namespace marklink::test
