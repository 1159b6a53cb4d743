// Layout lines: what is written, what is read back, and what a damaged line leaves.
#include "ui/Tabellenlayout.h"

#include "host/Ini.h"
#include "host/Kontext.h"
#include "support/Testmandant.h"
#include "ui/Farbwert.h"
#include "ui/Tabellenformat.h"

namespace marklink {
namespace {

const char16_t Neu[] = u"1,1,1000,1,1;2,2,1000,1,1;3,3,1000,1,1|-|-";

TEST(Tabellenlayout_Test, Zeilen_gute_und_beschaedigte) {
  struct Fall {
    const char16_t *Gelesen, *Geschrieben;
    bool Liste1 = true, Liste2 = true;
  };
  const Fall faelle[] = {
      {u"", Neu},
      {u"1,3,500,0,0;2,1,70,1,1;3,2,1000,1,1|2,1|1,1;3,2",
       u"1,3,500,0,0;2,1,70,1,1;3,2,1000,1,1|2,1|1,1;3,2"},
      {u"1,1,5,1,1|2,1|1,1", u"1,1,5,1,1;2,2,1000,1,1;3,3,1000,1,1|-|1,1", false, true},
      {u"1,1,5,1,1|2,1|1,1", u"1,1,5,1,1;2,2,1000,1,1;3,3,1000,1,1|2,1|-", true, false},
      // One by one: too few fields, no number, a column that is gone, out of range; the others apply.
      {u"1,1;2,2,x,1,1;9,1,7,1,1;0,1,7,1,1;3,3,800,-1,2", u"1,1,1000,1,1;2,2,1000,1,1;3,3,800,1,2|-|-"},
      {u"1,99999,7,1,1;2,2,-5,1,1;3,3,99999999999,1,1", Neu},
      {u"3,3,2147483647,1,1|7,1;x;2|;;2,2", u"1,1,1000,1,1;2,2,1000,1,1;3,3,50000,1,1|-|2,2"},
      {u"|||;;,,,", Neu},
  };
  for (const Fall &f : faelle) {
    Tabellenlayout layout = Layout_neu(3);
    Layout_anwenden(layout, QString::fromUtf16(f.Gelesen), f.Liste1, f.Liste2);
    EXPECT_EQ(Layout_Zeile(layout, true, true), QString::fromUtf16(f.Geschrieben));
  }
}

class Layoutdatei_Test : public test::Mandant_Test {};
MARKLINK_BEIDE_TYPEN(Layoutdatei_Test);

TEST_P(Layoutdatei_Test, Schluessel_fuer_Schluessel) {
  const auto datei = [](const char16_t *Schluessel) {
    return Ini_lesen_lang(Kontext.gLayoutDatei, u"Layout"_qs, QString::fromUtf16(Schluessel));
  };
  Tabellenlayout layout = Layout_neu(3);
  layout.Spalten[1].Breite = 1;
  Layout_laden(layout, u"Tabelle_a"_qs, false, false);  // no such key
  EXPECT_EQ(Layout_Zeile(layout, true, true), QString::fromUtf16(Neu));
  layout.Liste1 = {{2, 1}};
  Layout_speichern(layout, u"  "_qs, true, true);
  EXPECT_EQ(datei(u"  "), QString());
  Layout_speichern(layout, u"Tabelle_a"_qs, false, false);
  EXPECT_EQ(datei(u"Tabelle_a"), QString::fromUtf16(Neu));
  Layout_speichern(layout, u"Tabelle_b"_qs, true, true);
  EXPECT_EQ(datei(u"Tabelle_b"), u"1,1,1000,1,1;2,2,1000,1,1;3,3,1000,1,1|3,1|-"_qs);

  // 1500 characters are read; the record in which they end is damaged and keeps its defaults.
  layout = Layout_neu(130);
  for (auto &spalte : layout.Spalten) spalte.Breite = 777;
  Layout_speichern(layout, u"Tabelle_c"_qs, true, true);
  Layout_laden(layout, u"Tabelle_c"_qs, true, true);
  EXPECT_EQ(layout.Spalten[0].Breite, 777);
  EXPECT_EQ(layout.Spalten[129].Breite, 1000);
}

TEST(Tabellenformat_Test, Werte_und_Reihenfolge) {
  Tabellenlayout layout = Layout_neu(3);
  layout.Spalten[0].Position = 2;
  layout.Spalten[2] = {0, 0, false, u"7"_qs};
  Tabellenformat format({u"A"_qs, u"B"_qs, u"C"_qs}, layout);
  EXPECT_EQ(format.Zeile(0).join(u'/'), u"C/3/1/2,00/7/Nein"_qs);
  EXPECT_EQ(format.Zeile(1).join(u'/'), u"B/2/2/2,00/Benutzer/Ja"_qs);
  const std::pair<const char16_t *, const char16_t *> breiten[] = {
      {u"3,5", u"3,50"},    {u" 1,234 ", u"1,23"}, {u"0", u"1,23"},
      {u"-4", u"1,23"},     {u"breit", u"1,23"},   {u"", u"1,23"},
      {u"0,0001", u"0,00"}, {u"1e300", u"0,00"},   {u"999999999999", u"100,00"}};
  for (const auto &[breite, gezeigt] : breiten) {
    format.Zeile_speichern(1, true, QString::fromUtf16(breite), 0);
    EXPECT_EQ(format.Spaltenbreite(1), QString::fromUtf16(gezeigt))
        << QString::fromUtf16(breite).toStdString();
  }
  EXPECT_EQ(format.Zeile_verschieben(2, -2), 0);
  EXPECT_EQ(format.Zeile_verschieben(0, -1), 0);
  EXPECT_EQ(Layout_Zeile(format.Layout(), false, false), u"1,1,1000,1,1;2,3,50000,1,0;3,2,0,0,7|-|-"_qs);
}

TEST(Farbwert_Test, blau_steht_vorn) {
  EXPECT_EQ(Farbe_aus_Wert(0x0000FF), 0xFF0000U);
  EXPECT_EQ(Wert_aus_Farbe(0x123456), 0x563412);
  EXPECT_EQ(Farbe_aus_Wert(-2147483643), std::nullopt);
  for (const char16_t *text : {u"", u"rot", u"-1", u"16777216", u"12,5"})
    EXPECT_EQ(Farbwert_lesen(QString::fromUtf16(text)), std::nullopt);
  EXPECT_TRUE(Farbe_hell(0xFFFF00));
  EXPECT_FALSE(Farbe_hell(0x0000FF));
}

}  // namespace
}  // namespace marklink
