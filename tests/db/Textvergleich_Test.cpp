// Comparing text as the books do.
#include <gtest/gtest.h>

#include "db/Textvergleich.h"
#include "db/Textvergleich_Utf8.h"

namespace marklink::db {
namespace {

int Zeichen(int Folge) { return (Folge > 0) - (Folge < 0); }

struct Paar {
  const char *A, *B;
  int Folge;  ///< 0: equal
};

TEST(Textvergleich, ordnet_wie_ein_Woerterbuch_und_ohne_Gross_und_Klein) {
  const Paar tafel[] = {
      {"", "", 0},
      {"", "a", -1},
      {"abc", "ABC", 0},
      {"Müller", "MÜLLER", 0},
      {"ä", "Ä", 0},
      {"ä", "a", 1},
      {"Äpfel", "Apfelsine", -1},
      {"Zebra", "Äpfel", 1},
      {"Straße", "STRASSE", 1},
      {"Straße", "Strassf", -1},
      {"ß", "ẞ", -1},
      {"Œuvre", "œuvre", 0},
      {"résumé", "RÉSUMÉ", 0},
      {"é", "ê", -1},
      {"Ÿ", "ÿ", 0},
      {"a-b", "a", 1},
      {"10", "9", -1},
      {"K", "\u212A", -1},
      {"Øre", "oren", -1},
      {"ab", "abä", -1},
  };
  for (const Paar &p : tafel) {
    const QString a = QString::fromUtf8(p.A), b = QString::fromUtf8(p.B);
    const Utf8 ua{p.A, qsizetype(qstrlen(p.A))}, ub{p.B, qsizetype(qstrlen(p.B))};
    EXPECT_EQ(Zeichen(Text_vergleichen(a, b)), p.Folge) << p.A << " / " << p.B;
    EXPECT_EQ(Zeichen(Text_vergleichen(b, a)), -p.Folge) << p.A << " / " << p.B;
    EXPECT_EQ(Zeichen(Utf8_vergleichen(ua, ub)), p.Folge) << p.A << " / " << p.B;
    EXPECT_EQ(Text_gleich(a, b), p.Folge == 0) << p.A << " / " << p.B;
    EXPECT_EQ(Utf8_gleich(ua, ub), p.Folge == 0) << p.A << " / " << p.B;
    EXPECT_EQ(Text_falten(a) == Text_falten(b), p.Folge == 0) << p.A << " / " << p.B;
    if (p.Folge == 0) {
      EXPECT_EQ(Utf8_streuen(ua), Utf8_streuen(ub)) << p.A;
    }
  }
}

TEST(Textvergleich, Aehnlichkeit) {
  const struct {
    const char *Text, *Muster;
    bool Passt;
  } tafel[] = {
      {"", "%", true},       {"", "_", false},        {"01-A", "01%", true},      {"010", "01%", true},
      {"1", "01%", false},   {"Müller", "mÜ%", true}, {"Müller", "m_ller", true}, {"abc", "%b%", true},
      {"abc", "a%d", false}, {"aaab", "%a_b", true},  {"abc", "abc%%", true},     {"a%c", "a%c", true},
      {"ÄÖÜ", "%ö%", true},  {"abc", "", false}};
  for (const auto &z : tafel) {
    EXPECT_EQ(Text_aehnlich(QString::fromUtf8(z.Text), QString::fromUtf8(z.Muster)), z.Passt)
        << z.Text << " " << z.Muster;
    EXPECT_EQ(Utf8_aehnlich({z.Text, qsizetype(qstrlen(z.Text))}, {z.Muster, qsizetype(qstrlen(z.Muster))}),
              z.Passt)
        << z.Text << " " << z.Muster;
  }
  // A pattern of many stars must not take exponential time.
  EXPECT_FALSE(Text_aehnlich(QString(5000, u'a'), QStringLiteral("%a").repeated(20) + u'b'));
}

}  // namespace
}  // namespace marklink::db
