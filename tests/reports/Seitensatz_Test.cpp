// Where pages break, what stands on them, and what they add up.
#include "reports/Seitensatz.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <map>

#include "Probebericht.h"

namespace marklink {
namespace {

using test::Personen;
using Stueck = Seitensatz::Stueck;

/// The pages in short: "B S G0 D0 D1- F P E": bands by letter with their row, "-" for a part of one.
QStringList Bild(const Seitensatz &Satz) {
  QStringList seiten;
  for (int i = 0; i < Satz.Seiten(); ++i) {
    QStringList baender;
    double ganze_hoehe = 0;
    Satz.Durchgehen(i, [&](const Stueck &s) {
      const QString zeile =
          s.Art == Bandart::Detail || s.Art == Bandart::Gruppenkopf ? QString::number(s.Zeile) : QString();
      baender << u"BSGDFPE"_qs.mid(int(s.Art), 1) + zeile + (s.Von > 0 ? u"-"_qs : QString());
      EXPECT_GE(s.Oben, ganze_hoehe - 1) << "bands overlap on page " << i;
      EXPECT_GT(s.Bis, s.Von);
      ganze_hoehe = s.Oben + s.Bis - s.Von;
    });
    EXPECT_LE(ganze_hoehe, mm(Satz.Masse().Hoehe - Satz.Masse().Rand_unten) + 1) << "page " << i;
    seiten << baender.join(u' ');
  }
  return seiten;
}

QStringList Texte(const Seitensatz &Satz, Bandart Art, const QString &Element) {
  QStringList texte;
  for (int i = 0; i < Satz.Seiten(); ++i)
    Satz.Durchgehen(i, [&](const Stueck &s) {
      for (const Berichtselement &e : Satz.Was()[s.Art].Elemente)
        if (s.Art == Art && s.Von <= 0 && e.Inhalt == Element) texte << Satz.Text(e, s);
    });
  return texte;
}

/// Paper on which `Zeilen` rows of the sample report fit under a group's head.
Seitenmasse Papier(int Zeilen) {
  Seitenmasse masse;
  masse.Hoehe = 24 + 6 + 6 + 8 + 10 * Zeilen + 1;
  return masse;
}

class Seitensatz_Test : public testing::Test {
 protected:
  void Person(const char *Ort, const char *Betrag = "1,00", const QString &Text = {}) {
    Daten.Liste.push_back({QString::fromUtf8(Ort), u"N%1"_qs.arg(Daten.Liste.size()),
                           QString::fromUtf8(Betrag), u"05.03.2024"_qs, Text});
  }
  Bericht B = test::Probebericht();
  Personen Daten;
};

TEST_F(Seitensatz_Test, Bricht_so_dass_Zusammengehoeriges_beisammen_bleibt) {
  struct Fall {
    const char *Orte;  ///< a letter a row
    int Platz;         ///< rows on a page
    QStringList Seiten;
  };
  const Fall faelle[] = {
      {"", 5, {u"B S E P"_qs}},
      {"A", 5, {u"B S G0 D0 F E P"_qs}},
      {"AAB", 8, {u"B S G0 D0 D1 F G2 D2 F E P"_qs}},
      // The second group's head would stand alone at the foot of the page.
      {"AAAB", 6, {u"B S G0 D0 D1 D2 F P"_qs, u"S G3 D3 F E P"_qs}},
      // A group's sums do not stand without its last row.
      {"AAAB", 4, {u"B S G0 D0 D1 P"_qs, u"S D2 F P"_qs, u"S G3 D3 F E P"_qs}},
      // The last row goes along with the sums for which there is no room.
      {"AAAAAA", 5, {u"B S G0 D0 D1 D2 D3 P"_qs, u"S D4 D5 F E P"_qs}},
      {"AAAAAAAA", 4, {u"B S G0 D0 D1 D2 P"_qs, u"S D3 D4 D5 D6 P"_qs, u"S D7 F E P"_qs}},
  };
  for (const Fall &fall : faelle) {
    Daten.Liste.clear();
    for (const char *ort = fall.Orte; *ort != 0; ++ort) Person(QByteArray(ort, 1).constData());
    EXPECT_EQ(Bild(Seitensatz(B, Daten, Papier(fall.Platz))), fall.Seiten) << fall.Orte;
  }
}

TEST_F(Seitensatz_Test, Summen_folgen_den_Texten) {
  // As binary numbers these would not add up to the cent; what is no number counts nothing.
  for (int i = 0; i < 1000; ++i) Person("Aachen", "0,10");
  for (const char *betrag : {"1.234.567,89", "", "frei", "-0,89", "2,67"}) Person("Bonn", betrag);
  const Seitensatz satz(B, Daten, {});
  EXPECT_EQ(Texte(satz, Bandart::Gruppenfuss, u"Betrag"_qs), (QStringList{u"100,00"_qs, u"1.234.569,67"_qs}));
  EXPECT_EQ(Texte(satz, Bandart::Berichtsfuss, u"Betrag"_qs), QStringList{u"1.234.669,67"_qs});
  EXPECT_EQ(Texte(satz, Bandart::Gruppenkopf, u"Ort"_qs), (QStringList{u"Aachen"_qs, u"Bonn"_qs}));
}

TEST_F(Seitensatz_Test, Eine_Seite_kennt_Nummer_und_Zahl_und_wird_ohne_die_anderen_gemalt) {
  for (int i = 0; i < 400; ++i) Person("Köln");
  const Seitensatz satz(B, Daten, {});
  ASSERT_GT(satz.Seiten(), 10);
  QStringList fuesse;
  satz.Durchgehen(7, [&](const Stueck &s) {
    if (s.Art != Bandart::Seitenfuss) return;
    for (const Berichtselement &e : B[s.Art].Elemente) fuesse << satz.Text(e, s);
  });
  EXPECT_EQ(fuesse.join(u' '), u"8 von %1"_qs.arg(satz.Seiten()));
  const auto malen = [&](int seite) {
    QImage bild(210, 297, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    maler.scale(210 / mm(210), 210 / mm(210));
    satz.Malen(maler, seite);
    return bild;
  };
  const QImage siebte = malen(7);
  malen(2);
  EXPECT_EQ(malen(7), siebte) << "a page is the same whatever was drawn before";
  EXPECT_NE(malen(8), siebte);
  // Rows are grey and white by turns, through pages and groups.
  const auto farbe = [](const QImage &bild, int zeile) {
    return bild.pixelColor(190, 12 + 6 + 10 * zeile + 3).name();
  };
  EXPECT_NE(farbe(siebte, 2), farbe(siebte, 3));
  EXPECT_EQ(farbe(siebte, 2), farbe(siebte, 4));
}

TEST_F(Seitensatz_Test, Ein_Text_der_auf_keine_Seite_passt_wird_zwischen_Zeilen_geteilt) {
  QStringList zeilen;
  for (int i = 0; i < 300; ++i) zeilen << u"Zeile %1"_qs.arg(i);
  Person("Ulm", "1,00", zeilen.join(u"\r\n"_qs));
  Person("Ulm");
  const Seitensatz satz(B, Daten, {});
  const QStringList bild = Bild(satz);
  ASSERT_GE(bild.size(), 4);
  EXPECT_EQ(bild[0], u"B S G0 D0 P"_qs);
  EXPECT_EQ(bild[1], u"S D0- P"_qs);
  EXPECT_TRUE(bild.last().endsWith(u"D1 F E P"_qs)) << bild.last().toStdString();
  double naechstes = 0;
  for (int i = 0; i < satz.Seiten(); ++i)
    satz.Durchgehen(i, [&](const Stueck &s) {
      if (s.Art != Bandart::Detail || s.Zeile != 0) return;
      EXPECT_EQ(s.Von, naechstes) << "nothing is lost between pages";
      naechstes = s.Bis;
    });
  EXPECT_EQ(Texte(satz, Bandart::Gruppenfuss, u"Betrag"_qs), QStringList{u"2,00"_qs})
      << "a cut row counts once";
}

TEST_F(Seitensatz_Test, Endet_auch_bei_unsinnigem_Papier_und_riesigen_Texten) {
  Person("X", "1,00", QString(200'000, u'x'));
  Person("Y", "1,00", QString(3'000, u'\n'));
  Person("Z", "1,00", QString(u"\u0000\u0007\t\uFFFF"_qs) + QChar(0xD800));
  for (const QSizeF &groesse : {QSizeF(210, 297), QSizeF(30, 20), QSizeF(0, 0), QSizeF(5000, 30)}) {
    Seitenmasse masse;
    masse.Breite = groesse.width();
    masse.Hoehe = groesse.height();
    QElapsedTimer uhr;
    uhr.start();
    const Seitensatz satz(B, Daten, masse);
    EXPECT_GT(satz.Seiten(), 1);
    EXPECT_EQ(Texte(satz, Bandart::Berichtsfuss, u"Betrag"_qs), QStringList{u"3,00"_qs});
    EXPECT_LT(uhr.elapsed(), 60'000);
  }
}

TEST_F(Seitensatz_Test, Ein_Verweis_wird_am_Ort_seines_Textes_gefunden) {
  Person("Köln");
  Person("Köln");
  const Seitensatz satz(B, Daten, {});
  std::map<QString, int> treffer;
  for (double y = 0; y < 297; y += 1) ++treffer[satz.Verweis(0, {mm(20), mm(y)})];
  EXPECT_GT(treffer[u"N0"_qs], 1);
  EXPECT_GT(treffer[u"N1"_qs], 1);
  EXPECT_EQ(treffer.size(), 3U);
  EXPECT_EQ(satz.Verweis(9, {mm(20), mm(40)}), QString());
}

}  // namespace
}  // namespace marklink
