// The list editors' rules and what they leave in the tables.
#include "lists/Listenpflege.h"

#include "host/Datenbank.h"
#include "support/Datenbank_Test.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Listenpflege_Test : public test::Mandant_Test {
 protected:
  Listenpflege_Test() {
    for (const Liste &liste : Listen()) Ausfuehren({"DELETE FROM ", db::Name{liste.Tabelle}});
  }
  ~Listenpflege_Test() override {
    db::Fehler_einspeisen(0);
    db::Beobachter_setzen({});
  }
  /// The table, rows parted by blanks, fields by "/".
  static QString Inhalt(const Liste &L) {
    QStringList zeilen;
    for (auto satz = Abfragen({"SELECT * FROM ", db::Name{L.Tabelle}}); !satz.IsEOF(); satz.MoveNext()) {
      QStringList felder;
      for (const QString &feld : satz.Fields()) felder << satz.Text(feld);
      zeilen << felder.join(u'/');
    }
    return zeilen.join(u' ');
  }
  void Einheit(const QString &Name, const QString &ID, bool Standard) {
    Mandant.Zeile(u"Units"_qs, {u"Description"_qs, Name, u"WebshopID"_qs, ID, u"Standard"_qs, Standard});
  }
  static void Setzen(Listenpflege &Pflege, int Zeile, const char *Feld, const QVariant &Wert) {
    ASSERT_TRUE(Pflege.Zelle_setzen(Zeile, Pflege.Was().Spalte(QLatin1String(Feld)), Wert));
  }
  test::Dialoge_Skript Dialoge;
};
MARKLINK_BEIDE_TYPEN(Listenpflege_Test);

TEST_P(Listenpflege_Test, unveraenderte_Liste_wird_ganz_neu_geschrieben) {
  ASSERT_EQ(Listen().size(), 7U);
  for (const Liste &liste : Listen()) {
    db::Recordset satz = Abfragen({"SELECT * FROM ", db::Name{liste.Tabelle}});
    for (const int nummer : {2, 1}) {  // one id twice; no order but the table's
      QVariantList felder;
      for (const QString &feld : satz.Fields())
        felder << feld << (feld == QLatin1String("WebshopID") ? QVariant(u"7"_qs) : QVariant(nummer));
      Mandant.Zeile(liste.Tabelle, felder);
    }
    const QString vorher = Inhalt(liste);
    Listenpflege pflege(liste);
    pflege.Liste_laden();
    EXPECT_FALSE(pflege.Geaendert());
    QStringList gesehen;
    db::Beobachter_setzen([&gesehen](const QString &Text) { gesehen << Text; });
    pflege.Liste_speichern();
    db::Beobachter_setzen({});
    EXPECT_EQ(gesehen.value(0), u"DELETE FROM "_qs + liste.Tabelle);
    EXPECT_EQ(gesehen.count(u"INSERT INTO "_qs + liste.Tabelle), 2) << liste.Schirm.toStdString();
    EXPECT_EQ(Inhalt(liste), vorher) << "every column survives";
    pflege.Zeilen_loeschen({0, 1});
    EXPECT_EQ(Inhalt(liste), vorher);
    pflege.Liste_speichern();
    EXPECT_EQ(Inhalt(liste), QString());
  }
  EXPECT_EQ(Listen().back().Layout_Sql(),
            u"SELECT Description, WebshopID, Active, Standard FROM CustomerTypes"_qs);
}

TEST_P(Listenpflege_Test, Texte_werden_nach_dem_Feldtyp_umgewandelt) {
  const struct {
    QString Tage, Menge, Erwartet;
  } faelle[] = {{u"7"_qs, u"2,5"_qs, u"7/2.5"_qs},
                {u"2,5"_qs, u"1.234,5"_qs, u"2/1234.5"_qs},
                {u"-3"_qs, u"0"_qs, u"-3/0"_qs},
                {u"32768"_qs, u"1e3"_qs, u"/"_qs},
                {u""_qs, u"viel"_qs, u"/"_qs}};
  const Liste &zeiten = Listen()[0];
  for (const auto &fall : faelle) {
    Ausfuehren({"DELETE FROM ", db::Name{zeiten.Tabelle}});
    Listenpflege pflege(zeiten);
    pflege.Liste_laden();
    ASSERT_TRUE(pflege.Zeile_anfuegen());
    Setzen(pflege, 0, "Description", u"3 O'Tage"_qs);
    Setzen(pflege, 0, "DeliveryTimeDays", fall.Tage);
    Setzen(pflege, 0, "StockQuantity", fall.Menge);
    pflege.Liste_speichern();
    EXPECT_EQ(Inhalt(zeiten), u"3 O'Tage/%1/1/0/0"_qs.arg(fall.Erwartet)) << fall.Tage.toStdString();
  }
}

TEST_P(Listenpflege_Test, nach_einer_Zelle) {
  Einheit(u"Stück"_qs, u"1"_qs, true);
  Einheit(u"Paar"_qs, u"2"_qs, false);
  Listenpflege pflege(Listen().back());
  pflege.Liste_laden();
  const auto ganz = [&pflege] {
    pflege.Liste_speichern();
    return Inhalt(pflege.Was());
  };
  // A mark that is given up goes back to the row that had it, from a new row as from an old one.
  Setzen(pflege, 1, "Standard", true);
  EXPECT_EQ(pflege.Zelle(0, 3), u"0"_qs);
  pflege.Zeile_wiederherstellen(1, {u"Paar"_qs, u"2"_qs, false, false});
  ASSERT_TRUE(pflege.Zeile_anfuegen());
  Setzen(pflege, 2, "Standard", true);
  EXPECT_EQ(pflege.Zeile_beenden(2, true), Zeilenurteil::Verwerfen) << "and without a word";
  pflege.Zeile_entfernen(2);
  EXPECT_EQ(ganz(), u"Stück/1/0/-1 Paar/2/0/0"_qs);

  Setzen(pflege, 1, "Standard", true);
  Setzen(pflege, 1, "WebshopID", QString());  // takes the row's number
  EXPECT_EQ(pflege.Zeile_beenden(1, false), Zeilenurteil::Annehmen);
  Setzen(pflege, 0, "WebshopID", u"2"_qs);  // nobody minds the same id
  EXPECT_EQ(pflege.Zeile_beenden(0, false), Zeilenurteil::Annehmen);
  EXPECT_EQ(ganz(), u"Stück/2/0/0 Paar/2/0/-1"_qs);

  Dialoge.Erwarten(u"Hinweis"_qs);
  Setzen(pflege, 0, "Description", QString());
  EXPECT_EQ(pflege.Zeile_beenden(0, false), Zeilenurteil::Ablehnen);
}

TEST_P(Listenpflege_Test, eine_Tabelle_die_nicht_zu_lesen_war_bleibt_stehen) {
  Einheit(u"A"_qs, u"1"_qs, false);
  int gescheitert = 0;
  for (int n = 1; n <= 12; ++n) {
    Listenpflege pflege(Listen().back());
    db::Fehler_einspeisen(n);
    pflege.Liste_laden();
    db::Fehler_einspeisen(0);
    if (pflege.Zeilen() == 0) {
      ++gescheitert;
      EXPECT_FALSE(pflege.Zeile_anfuegen()) << "what is typed would be lost";
    }
    pflege.Liste_speichern();
    EXPECT_EQ(Inhalt(pflege.Was()), u"A/1/0/0"_qs) << n;
  }
  EXPECT_GT(gescheitert, 0) << "no failing call kept the table from being read";
}

TEST_P(Listenpflege_Test, Fehler_beim_Schreiben) {
  QStringList ausgaenge;
  for (int n = 1; n <= 12; ++n) {
    Ausfuehren("DELETE FROM Units");
    Einheit(u"A"_qs, u"1"_qs, false);
    Einheit(u"B"_qs, u"2"_qs, false);
    Listenpflege pflege(Listen().back());
    pflege.Liste_laden();
    db::Fehler_einspeisen(n);
    pflege.Liste_speichern();
    db::Fehler_einspeisen(0);
    EXPECT_FALSE(pflege.Geaendert());
    ausgaenge << Inhalt(pflege.Was());
  }
  EXPECT_TRUE(ausgaenge.contains(QString())) << "deleted, and nothing written";
  EXPECT_TRUE(ausgaenge.contains(u"B/2/0/0"_qs)) << "one row refused: the others are written";
  EXPECT_TRUE(ausgaenge.contains(u"A/1/0/0 B/2/0/0 A/1/0/0 B/2/0/0"_qs))
      << "not deleted, written all the same";
}

}  // namespace
}  // namespace marklink
