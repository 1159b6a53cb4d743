// Number ranges: formats, counters, drawing through taken numbers, and drawings that stand still.
#include "rules/Nummernkreise.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>

#include "db/Schema.h"
#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "rules/Zaehler.h"
#include "rules/Ziehungsaufsicht.h"
#include "rules/generateGUID.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink::test {
namespace {

const QString Rechnung = QStringLiteral("Invoice");
const QString Nummernfeld = QStringLiteral("InvoiceNumber");

class Nummernkreise_Test : public Mandant_Test {
 protected:
  Nummernkreise_Test() { Kontext.gHeute = QDate(2009, 3, 14); }
  static void Einstellen(const char *Abschnitt, const char *Schluessel, const char *Wert) {
    ASSERT_TRUE(
        Option_schreiben(QLatin1String(Abschnitt), QLatin1String(Schluessel), QString::fromUtf8(Wert)));
  }
  static void Bereich(const char *Format, const char *Zaehler) {
    Einstellen("Formatting", "Invoice", Format);
    Einstellen("NumberRange", "Invoice", Zaehler);
  }
  static std::string Zaehler() { return Option_lesen(QStringLiteral("NumberRange"), Rechnung).toStdString(); }
  void Rechnungen(const QStringList &Nummern) {
    for (const QString &n : Nummern) Mandant.Zeile(Rechnung, {Nummernfeld, n});
  }
  static QString Ziehen() { return Nummer_ziehen(Rechnung, Nummernfeld, Rechnung); }
};
MARKLINK_BEIDE_TYPEN(Nummernkreise_Test);

TEST_P(Nummernkreise_Test, Formate) {
  Einstellen("NumberRange", "Invoice", "000123");
  Einstellen("Token", "Invoice", "RE");
  const struct {
    const char *Eigenes, *Allgemeines, *Datumsbild, *Nummer;
  } faelle[] = {
      {"Kürzel;-;Jahr;/;Nr.", "Nr.;Leer;Leer;Leer;Leer", "", "RE-2009/000123"},
      {"", "Nr.;#;Datum;-;Jahr", "", "000123#20090314-2009"},
      {"   ", " Datum;-;Nr.;Leer;Leer ", "dd.mm.yyyy", "14.03.2009-000123"},
      {"Jahr;Leer;Leer;Leer;Nr.", "", "", "2009000123"},
      {"Nr.;/;Kürzel;/;Kürzel", "", "", "000123//"},  // the token counts in the first place only
      {"Kürzel;Nr.", "", "", "RE"},                   // "Nr." is no separator
      {"Kürzel;-", "", "", "RE-"},                    // missing elements add nothing
      {"Kürzel;-;Jahr;-;Nr.;-;Nr.", "", "", "RE-2009-000123"},
      {"kürzel;-;JAHR;_;Nr.", "", "", "-000123"},      // case counts; unknown words add nothing
      {"Kürzel; - ; Nr.;-;Nr.", "", "", "RE-000123"},  // so do blanks
      {";;;;", "Nr.", "", ""},
      {"", "", "", ""},
  };
  for (const auto &fall : faelle) {
    Einstellen("Formatting", "Invoice", fall.Eigenes);
    Einstellen("Program", "DocumentNumberFormat", fall.Allgemeines);
    Einstellen("Program", "DateFormatting", fall.Datumsbild);
    const QString nummer = Belegnummer_formatieren(Rechnung);
    EXPECT_EQ(nummer, QString::fromUtf8(fall.Nummer)) << fall.Eigenes << " / " << fall.Allgemeines;
    EXPECT_FALSE(nummer.isNull()) << "an empty number is a number";
    EXPECT_EQ(Zaehler(), "000123");
  }
}

TEST(Zaehler_Test, einer_weiter) {
  const struct {
    const char *Alt, *Neu;
  } faelle[] = {{"000199", "000200"},
                {"0099", "0100"},
                {"999", "1000"},
                {"0", "1"},
                {"9990", "9991"},
                {"-1", "0"},
                {"2,5", "3,5"},
                {"999999999999999", "1E+15"},
                {"1234567890123456", "1,23456789012346E+15"},
                {"", ""},
                {"1E+15", "1E+15"},
                {"12a", "12a"},
                {"A001", "A001"},
                {"0-4", "0-4"},
                {"１２", "１２"}};  // what is no number stays
  for (const auto &fall : faelle)
    EXPECT_EQ(Zaehler_erhoehen(QString::fromUtf8(fall.Alt)), QString::fromUtf8(fall.Neu)) << fall.Alt;
  const QString lang(1000, u'9');
  EXPECT_EQ(Zaehler_erhoehen(lang), lang);
}

TEST_P(Nummernkreise_Test, ziehen_und_hochzaehlen) {
  Bereich("Nr.", "0098");
  Einstellen("Counting", "Invoice", "1");
  for (int i = 0; i < 2; ++i) EXPECT_EQ(Ziehen(), QStringLiteral("0098")) << "a free number uses nothing up";
  EXPECT_EQ(Zaehler(), "0098");
  Nummernkreis_hochzaehlen(Rechnung);
  EXPECT_EQ(Zaehler(), "0099");

  // Taken numbers move the counter, also where counting is switched off; a look ahead never does.
  Rechnungen({QStringLiteral("0099"), QStringLiteral("0100"), QStringLiteral("0102")});
  Einstellen("Counting", "Invoice", "0");
  const Nummernvorschau vorschau = Nummer_vorausschauen(Rechnung, Nummernfeld, Rechnung);
  EXPECT_TRUE(vorschau.Frei);
  EXPECT_EQ(vorschau.Nummer, QStringLiteral("0101"));
  EXPECT_EQ(Zaehler(), "0099");
  EXPECT_EQ(Ziehen(), QStringLiteral("0101"));
  EXPECT_EQ(Zaehler(), "0101");
  Nummernkreis_hochzaehlen(Rechnung);
  EXPECT_EQ(Zaehler(), "0101");
  for (const char *schalter : {"2", "", "00"}) {
    Einstellen("Counting", "Invoice", schalter);
    Nummernkreis_hochzaehlen(Rechnung);
  }
  EXPECT_EQ(Zaehler(), "0104");
}

TEST_P(Nummernkreise_Test, wer_an_einem_zweiten_Arbeitsplatz_schneller_ist_behaelt_die_Nummer) {
  Bereich("Nr.", "0098");
  Einstellen("Counting", "Invoice", "1");
  int schneller = 2;
  db::Beobachter_setzen([&](const QString &text) {
    if (!text.startsWith(QStringLiteral("Select * from Invoice")) || schneller-- <= 0) return;
    const QString zaehler = QStringLiteral("01%1").arg(20 - schneller);
    const bool gut = GetParam() == 0
                         ? Ini_schreiben(Kontext.gAfkDatei, QStringLiteral("NumberRange"), Rechnung, zaehler)
                         : Ausfuehren({"UPDATE Options SET Value = ", db::Wert{zaehler},
                                       " WHERE Section = 'NumberRange' AND [Key] = 'Invoice'"});
    EXPECT_TRUE(gut);
  });
  EXPECT_EQ(Nummer_nehmen(Rechnung, Nummernfeld, Rechnung), QStringLiteral("0120"));
  db::Beobachter_setzen({});
  EXPECT_EQ(Zaehler(), "0121");
}

// A counter that can be neither written nor read was not moved by another workstation.
TEST_P(Nummernkreise_Test, der_Server_geht_zwischen_Ziehen_und_Zaehlen_weg) {
  if (!Mandant.Server()) GTEST_SKIP() << "only a server goes away";
  Bereich("Nr.", "0098");
  Einstellen("Counting", "Invoice", "1");
  db::Beobachter_setzen([&](const QString &text) {
    if (text != u"BEGIN") return;
    Mandant.Server()->Stellen("ablehnen", 1);
    Mandant.Server()->Alle_trennen();
  });
  EXPECT_EQ(Nummer_nehmen(Rechnung, Nummernfeld, Rechnung), QStringLiteral("0098"));
  db::Beobachter_setzen({});
  Mandant.Server()->Stellen("ablehnen", 0);
  EXPECT_EQ(Nummer_nehmen(Rechnung, Nummernfeld, Rechnung), QStringLiteral("0099"));
  EXPECT_EQ(Zaehler(), "0100");
}

TEST_P(Nummernkreise_Test, was_als_vorhanden_gilt) {
  Rechnungen({QStringLiteral("RÜ-1"), QString::fromUtf8("x")});
  const std::pair<const char *, bool> faelle[] = {
      {"RÜ-1", true}, {"rü-1", true}, {"RÜ-", false}, {"", false}, {"' OR '1'='1", false}};
  for (const auto &[wert, vorhanden] : faelle)
    EXPECT_EQ(Nummer_vorhanden(Rechnung, Nummernfeld, QString::fromUtf8(wert)), vorhanden) << wert;
  EXPECT_FALSE(Nummer_vorhanden(Rechnung, QStringLiteral("Gibtesnicht"), QStringLiteral("x")));
  db::Fehler_einspeisen(1);
  EXPECT_FALSE(Nummer_vorhanden(Rechnung, Nummernfeld, QStringLiteral("x"))) << "an unreadable table";
}

/// Ranges whose number is taken and that lead to no other.
const struct {
  const char *Format, *Zaehler, *Nummer, *Zaehler_danach;
} Stehende[] = {
    {"Jahr;-;Nr.", "", "2009-", ""},
    {"Jahr;-;Nr.", "abc", "2009-abc", "abc"},
    {"Jahr;-;Nr.", "1E+15", "2009-1E+15", "1E+15"},
    {"", "5", "", "8"},
    {"Jahr", "007", "2009", "010"},  // the counter moves, but the number does not show it
};

TEST_P(Nummernkreise_Test, ein_Host_ohne_Bediener_beendet_den_Stillstand) {
  for (const auto &fall : Stehende) {
    Bereich(fall.Format, fall.Zaehler);
    const QString nummer = QString::fromUtf8(fall.Nummer);
    if (!Nummer_vorhanden(Rechnung, Nummernfeld, nummer)) {
      EXPECT_EQ(Ziehen(), nummer) << "free as it is";
      Rechnungen({nummer});
    }
    const Nummernvorschau vorschau = Nummer_vorausschauen(Rechnung, Nummernfeld, Rechnung);
    EXPECT_FALSE(vorschau.Frei) << fall.Zaehler;
    EXPECT_EQ(vorschau.Nummer, nummer);
    EXPECT_EQ(Zaehler(), fall.Zaehler) << "a look ahead changes nothing";
    std::vector<int> runden;
    Stillstandsfrage_setzen([&](const Stillstand &s) {
      EXPECT_EQ(s.Bereich, Rechnung);
      EXPECT_EQ(s.Nummer, nummer);
      runden.push_back(s.Runden);
      return s.Runden < 3;
    });
    EXPECT_TRUE(Ziehen().isNull()) << fall.Zaehler;
    Stillstandsfrage_setzen({});
    EXPECT_EQ(runden, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(Zaehler(), fall.Zaehler_danach);
  }
}

TEST_P(Nummernkreise_Test, ein_Stillstand_endet_sobald_die_Nummer_frei_wird) {
  Bereich("Nr.", "abc");
  Rechnungen({QStringLiteral("abc")});
  Stillstandsfrage_setzen(
      [](const Stillstand &s) { return s.Runden < 2 || Ausfuehren("DELETE FROM Invoice"); });
  EXPECT_EQ(Ziehen(), QStringLiteral("abc"));
  Stillstandsfrage_setzen({});
}

TEST_P(Nummernkreise_Test, der_Bediener_bricht_ab) {
  Rechnungen({QStringLiteral("abc"), QStringLiteral("1"), QStringLiteral("2")});
  Fortschritt_Skript fortschritt;
  Bereich("Nr.", "1");
  Kontext.gAbbrechen =
      true;  // pressed before: the caller's run ends after this record, which gets its number
  EXPECT_EQ(Ziehen(), QStringLiteral("3"));
  EXPECT_TRUE(Kontext.gAbbrechen);
  EXPECT_TRUE(fortschritt.Angezeigt.empty());

  Bereich("Nr.", "abc");
  EXPECT_TRUE(Ziehen().isNull()) << "nobody has to press twice";
  EXPECT_TRUE(fortschritt.Angezeigt.empty());

  Kontext.gAbbrechen = false;
  fortschritt.Abbrechen_bei = 2;
  EXPECT_TRUE(Ziehen().isNull());
  ASSERT_EQ(fortschritt.Angezeigt.size(), 1U);
  EXPECT_TRUE(fortschritt.Angezeigt[0].Abbrechen_sichtbar);
  EXPECT_FALSE(fortschritt.Sichtbar);
  EXPECT_TRUE(Kontext.gAbbrechen) << "the caller's run ends as well";
  EXPECT_EQ(Zaehler(), "abc");
}

TEST_P(Nummernkreise_Test, waehrend_des_Ziehens_laeuft_das_Programm_weiter) {
  int argc = 1;
  char name[] = "test";
  char *argv[] = {name, nullptr};
  const QCoreApplication programm(argc, argv);
  Bereich("Nr.", "1");
  QStringList vergebene;
  for (int n = 1; n <= 30; ++n) vergebene << QString::number(n);
  Rechnungen(vergebene);
  // A press that comes through the message loop does not cost the record at hand its number; it counts after
  // it.
  QTimer::singleShot(0, [] { Kontext.gAbbrechen = true; });
  EXPECT_EQ(Ziehen(), QStringLiteral("31"));
  EXPECT_TRUE(Kontext.gAbbrechen);
}

TEST(Nummernkreistabelle_Test, jedes_Nummernfeld_steht_in_einem_Index) {
  EXPECT_EQ(Nummernkreise().size(), 9U);
  for (const Nummernkreis &kreis : Nummernkreise()) {
    const db::Tabelle *tabelle = db::Schema_Tabelle(kreis.Tabelle);
    ASSERT_NE(tabelle, nullptr) << kreis.Tabelle.toStdString();
    auto indizes = tabelle->Indizes;
    indizes.push_back(tabelle->Schluessel);
    EXPECT_TRUE(std::any_of(indizes.begin(), indizes.end(), [&](const auto &i) {
      return !i.empty() && kreis.Feld == QLatin1String(i[0]);
    })) << kreis.Feld.toStdString();
  }
}

TEST(generateGUID_Test, Form_und_Einmaligkeit) {
  const QRegularExpression form(QStringLiteral("^\\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\}$"));
  QSet<QString> alle;
  for (int i = 0; i < 1000; ++i) alle.insert(generateGUID());
  EXPECT_EQ(alle.size(), 1000);
  EXPECT_TRUE(form.match(*alle.begin()).hasMatch()) << alle.begin()->toStdString();
}

}  // namespace
}  // namespace marklink::test
