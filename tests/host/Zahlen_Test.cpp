// Numbers, dates and texts in the system's form.
#include "host/Zahlen.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/Datumsbilder.h"
#include "host/Texte.h"
#include "host/Zeichensatz.h"

namespace marklink {
namespace {

TEST(Zahlen_Test, mit_Punkt) {
  const struct {
    const char16_t *Text;
    double Erwartet;
  } faelle[] = {{u"12.50", 12.5}, {u"+5.00", 5}, {u"-2.5", -2.5}, {u" 3 ", 3},    {u"1,5", 1},
                {u"1.2.3", 1.2},  {u"", 0},      {u"abc", 0},     {u"7abc", 7},   {u"1e5", 1},
                {u".5", 0.5},     {u"-", 0},     {u"5.", 5},      {u"0.0000", 0}, {u"--3", 0},
                {u"nan", 0},      {u"1 000", 1}, {u"٣", 0}};
  for (const auto &f : faelle)
    EXPECT_DOUBLE_EQ(Zahl_mit_Punkt(QStringView(f.Text)), f.Erwartet)
        << QString::fromUtf16(f.Text).toStdString();
  EXPECT_TRUE(std::isfinite(Zahl_mit_Punkt(QString(1000, u'9'))));
}

TEST(Zahlen_Test, deutsch) {
  const struct {
    const char16_t *Text;
    double Erwartet;
  } gut[] = {{u"1.234,56", 1234.56},  {u"-3", -3}, {u"2,5", 2.5}, {u",5", 0.5}, {u" 7 ", 7},
             {u"1.234.567", 1234567}, {u"5,", 5}};
  for (const auto &f : gut) {
    const auto zahl = Zahl_deutsch(QStringView(f.Text));
    ASSERT_TRUE(zahl) << QString::fromUtf16(f.Text).toStdString();
    EXPECT_DOUBLE_EQ(*zahl, f.Erwartet);
  }
  for (const char16_t *text :
       {u"", u"abc", u"1.5", u"12.34,5", u"1,2,3", u"1e5", u".123", u"-", u"1234.567", u"1..234"})
    EXPECT_FALSE(Zahl_deutsch(QStringView(text))) << QString::fromUtf16(text).toStdString();
}

TEST(Zahlen_Test, als_Text) {
  const struct {
    double Zahl;
    const char16_t *Erwartet;
  } faelle[] = {{7.5, u"7,5"},
                {0, u"0"},
                {-0.0, u"0"},
                {1234567.891, u"1234567,891"},
                {0.30000000000000004, u"0,3"},
                {1e-7, u"0,0000001"},
                {100, u"100"},
                {-2.675, u"-2,675"},
                {1e17, u"100000000000000000"},
                {std::nan(""), u"0"}};
  for (const auto &f : faelle) EXPECT_EQ(Zahl_als_Text(f.Zahl), QString::fromUtf16(f.Erwartet));
}

TEST(Zahlen_Test, nach_Bild) {
  const struct {
    double Zahl;
    const char16_t *Bild, *Erwartet;
  } faelle[] = {{1234567.891, u"standard", u"1.234.567,89"},
                {2.675, u"#,##0.00", u"2,68"},  // the decimal value decides, not the binary one
                {-2.675, u"#,##0.00", u"-2,68"},
                {-0.001, u"0.00", u"0,00"},
                {0.5, u"#,##0.##", u"0,5"},
                {3, u"#,##0.##", u"3"},
                {7, u"0000", u"0007"},
                {12345, u"0000", u"12345"},
                {1.5, u"##,#####0.000", u"1,500"},
                {1234.5, u"##,#####0.000", u"1.234,500"},
                {0.25, u"#.00", u",25"},
                {999.995, u"#,##0.00", u"1.000,00"},
                {5, u"0.00 €", u"5,00 €"},
                {7.5, u"", u"7,5"}};
  for (const auto &f : faelle)
    EXPECT_EQ(Zahl_formatieren(f.Zahl, QString::fromUtf16(f.Bild)), QString::fromUtf16(f.Erwartet))
        << QString::fromUtf16(f.Bild).toStdString();
}

TEST(Zahlen_Test, Einstellungen_als_ganze_Zahl) {
  EXPECT_EQ(Als_Kurzzahl(u"17"_qs), 17);
  EXPECT_EQ(Als_Kurzzahl(u"40000"_qs), 0);
  EXPECT_EQ(Als_Ganzzahl(u"40000"_qs), 40000);
  EXPECT_EQ(Als_Ganzzahl(u"99999999999"_qs), 0);
  EXPECT_EQ(Als_Ganzzahl(u"2,5"_qs), 2);
  EXPECT_EQ(Als_Ganzzahl(QString()), 0);
}

TEST(Datumsbilder_Test, nach_Bild_und_zurueck) {
  const QDateTime zeit(QDate(2024, 3, 5), QTime(14, 7, 9));
  const struct {
    const char16_t *Bild, *Erwartet;
  } faelle[] = {{u"yyyymmdd", u"20240305"},
                {u"dd.mm.yyyy hh:nn:ss", u"05.03.2024 14:07:09"},
                {u"YYYY-MM-DD hh:mm:ss", u"2024-03-05 14:07:09"},
                {u"\\#m\\/d\\/yyyy\\ hh:mm:ss#", u"#3/5/2024 14:07:09#"},
                {u"Long Date", u"Dienstag, 5. März 2024"},
                {u"dddd", u"Dienstag"},
                {u"short date", u"05.03.2024"},
                {u"yy", u"24"}};
  for (const auto &f : faelle)
    EXPECT_EQ(Datum_formatieren(zeit, QString::fromUtf16(f.Bild)), QString::fromUtf16(f.Erwartet));
  EXPECT_EQ(Datum_formatieren({}, u"dd.mm.yyyy"_qs), QString());
  EXPECT_EQ(Zeitpunkt_als_Text(zeit), u"05.03.2024 14:07:09"_qs);
  EXPECT_EQ(Datum_lesen(u"05.03.24"_qs).date(), QDate(2024, 3, 5));
  EXPECT_EQ(Datum_lesen(u"1.1.1930"_qs).date(), QDate(1930, 1, 1));
  EXPECT_EQ(Datum_lesen(u"2024-03-05 14:07:09"_qs), zeit);
  for (const char *text : {"", "31.02.2024", "0000-00-00 00:00:00", "5.3.2024 25:00", "morgen", "05.03.24x"})
    EXPECT_FALSE(Datum_lesen(QLatin1String(text)).isValid()) << text;
}

TEST(Texte_Test, kleine_Helfer) {
  EXPECT_EQ(Letzte_Position(u"#,##0.00"_qs, u"."_qs), 6);
  EXPECT_EQ(Letzte_Position(u"a.b.c"_qs, u".c"_qs),
            4);  // only the first character counts
  EXPECT_EQ(Letzte_Position(u"abc"_qs, u"x"_qs), 0);
  EXPECT_EQ(Null_als_Text(QVariant()), QString());
  EXPECT_EQ(Null_als_Text(2.5), u"2,5"_qs);
  EXPECT_EQ(Grossbuchstaben(u"Großé µƒÿ 1"_qs), u"GROßÉ µƒŸ 1"_qs);
  // 1 + 255 + 65, then 2 + 255 + 228
  EXPECT_EQ(Text_Pruefsumme(u"Aä"_qs), u"806"_qs);
  EXPECT_EQ(Text_verschieben(u"!A"_qs), u"@`"_qs);
}

TEST(Zeichensatz_Test, hin_und_zurueck) {
  QByteArray alle;
  for (int i = 0; i < 256; ++i) alle.append(char(i));
  bool vollstaendig = false;
  EXPECT_EQ(Nach_1252(Von_1252(alle), &vollstaendig), alle);
  EXPECT_TRUE(vollstaendig);
  EXPECT_EQ(QString::fromUtf8(Utf8_aus_1252(alle)), Von_1252(alle));
  const struct {
    QStringView Text;
    QByteArray Bytes;
  } fremde[] = {
      {u"a\U0001F600b", "a?b"},
      {u"\u0141\u00F3d\u017A \u010C\u0151 \u0111",
       "L\xF3"
       "dz Co d"},
      {u"Ja\u0308ger", "J\xE4ger"},         // an umlaut in two pieces
      {u"x\u0323\u0302y 5\u0308", "xy 5"},  // marks that no letter of the set has
      {u"\u0308a \u4E2D", "?a ?"},          // a mark on nothing
      {u"Nord\u2011S\u00FC"
       u"d",
       "Nord-S\xFC"
       "d"},
      {u"\u226E \u037E \uFF0F \u2260", "? ? ? ?"},  // nothing becomes "<", ";" or "/"
  };
  for (const auto &[text, bytes] : fremde) {
    EXPECT_EQ(Nach_1252(text, &vollstaendig), bytes);
    EXPECT_FALSE(vollstaendig) << bytes.constData();
  }
}

}  // namespace
}  // namespace marklink
