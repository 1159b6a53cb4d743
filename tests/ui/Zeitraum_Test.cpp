// Periods: their texts, their bounds, and the condition in either dialect.
#include "ui/Zeitraum.h"

#include <gtest/gtest.h>

#include "db/Zeitpunkt.h"
#include "host/Kontext.h"
#include "host/Uhr.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Zeitraum_Test : public ::testing::Test {
 protected:
  Zeitraum_Test() {
    Uhr_setzen(&Uhr);
    Kontext = {};
    Kontext.gHeute = QDate(2024, 3, 13);
  }
  ~Zeitraum_Test() override {
    Uhr_setzen(nullptr);
    Kontext = {};
  }
  static std::string Spanne(int Zeitraum, const QString &Freitext = {}) {
    return (Zeitraum_ermitteln(Zeitraum, Zeitraum_Modus::Von, {}, Freitext) + QLatin1String(" - ") +
            Zeitraum_ermitteln(Zeitraum, Zeitraum_Modus::Bis, {}, Freitext))
        .toStdString();
  }
  static std::string Bedingung(int Zeitraum, const QString &Freitext = {}) {
    return Zeitraum_ermitteln(Zeitraum, Zeitraum_Modus::Bedingung, u"[Date]"_qs, Freitext).toStdString();
  }
  test::Feste_Uhr Uhr{QDateTime(QDate(2024, 3, 13), QTime(23, 59))};  // a Wednesday
};

TEST_F(Zeitraum_Test, jede_Zeile) {
  const struct {
    const char *Text, *Spanne;
  } zeilen[] = {
      {"keine Einschränkung", " - "},
      {"aktuelles Jahr", "01.01.2024 - 31.12.2024"},
      {"vorheriges Jahr", "01.01.2023 - 31.12.2023"},
      {"aktueller Monat", "01.03.2024 - 31.03.2024"},
      {"vorheriger Monat", "01.02.2024 - 29.02.2024"},
      {"aktuelle Woche", "11.03.2024 - 17.03.2024"},
      {"vorherige Woche", "04.03.2024 - 10.03.2024"},
      {"nächste Woche", "18.03.2024 - 24.03.2024"},
      {"Heute", "13.03.2024 - 13.03.2024"},
      {"Morgen", "14.03.2024 - 14.03.2024"},
      {"Gestern", "12.03.2024 - 12.03.2024"},
      {"Vorgestern", "11.03.2024 - 11.03.2024"},
      {"Vorvorgestern", "10.03.2024 - 10.03.2024"},
      {"1. Quartal", "01.01.2024 - 31.03.2024"},
      {"2. Quartal", "01.04.2024 - 30.06.2024"},
      {"3. Quartal", "01.07.2024 - 30.09.2024"},
      {"4. Quartal", "01.10.2024 - 31.12.2024"},
      {"Januar", "01.01.2024 - 31.01.2024"},
      {"Februar", "01.02.2024 - 29.02.2024"},
      {"März", "01.03.2024 - 31.03.2024"},
      {"April", "01.04.2024 - 30.04.2024"},
      {"Mai", "01.05.2024 - 31.05.2024"},
      {"Juni", "01.06.2024 - 30.06.2024"},
      {"Juli", "01.07.2024 - 31.07.2024"},
      {"August", "01.08.2024 - 31.08.2024"},
      {"September", "01.09.2024 - 30.09.2024"},
      {"Oktober", "01.10.2024 - 31.10.2024"},
      {"November", "01.11.2024 - 30.11.2024"},
      {"Dezember", "01.12.2024 - 31.12.2024"},
      {"letzte 7 Tage", "06.03.2024 - 13.03.2024"},
      {"letzte 10 Tage", "03.03.2024 - 13.03.2024"},
      {"letzte 30 Tage", "12.02.2024 - 13.03.2024"},
      {"letzte 60 Tage", "13.01.2024 - 13.03.2024"},
      {"letzte 90 Tage", "14.12.2023 - 13.03.2024"},
      {"letzte 180 Tage", "15.09.2023 - 13.03.2024"},
      {"2022", "01.01.2022 - 31.12.2022"},
      {"2021", "01.01.2021 - 31.12.2021"},
      {"2020", "01.01.2020 - 31.12.2020"},
      {"2019", "01.01.2019 - 31.12.2019"},
      {"2018", "01.01.2018 - 31.12.2018"},
      {"benutzerdefiniert", "05.02.2024 - 07.02.2024"},
  };
  const QStringList liste = Zeitraum_Liste_fuellen(true);
  ASSERT_EQ(liste.size(), std::ssize(zeilen));
  EXPECT_EQ(Zeitraum_Liste_fuellen(false), liste.mid(0, Zeitraum_benutzerdefiniert));
  for (int i = 0; i < liste.size(); ++i) {
    EXPECT_EQ(liste[i].toStdString(), zeilen[i].Text);
    EXPECT_EQ(Spanne(i, u"05.02.2024|07.02.2024"_qs), zeilen[i].Spanne) << i;
  }
  for (const int fremd : {41, 1000, -1}) EXPECT_EQ(Spanne(fremd, u"05.02.2024|07.02.2024"_qs), " - ");
}

TEST_F(Zeitraum_Test, Monats_und_Jahreswechsel) {
  const struct {
    QDate Heute;
    int Zeitraum;
    const char *Spanne;
  } faelle[] = {
      {QDate(2024, 1, 31), 4, "01.12.2023 - 31.12.2023"},
      {QDate(2023, 3, 31), 4, "01.02.2023 - 28.02.2023"},
      {QDate(2023, 6, 1), 18, "01.02.2023 - 28.02.2023"},
      {QDate(2000, 6, 1), 18, "01.02.2000 - 29.02.2000"},
      {QDate(2024, 12, 31), 9, "01.01.2025 - 01.01.2025"},
      {QDate(2024, 12, 15), 3, "01.12.2024 - 31.12.2024"},
      {QDate(2024, 3, 1), 10, "29.02.2024 - 29.02.2024"},
      {QDate(), 3, " - "},
  };
  for (const auto &fall : faelle) {
    Kontext.gHeute = fall.Heute;
    EXPECT_EQ(Spanne(fall.Zeitraum), fall.Spanne) << fall.Heute.toString(Qt::ISODate).toStdString();
  }
  EXPECT_EQ(Monatsletzter(QDate(2024, 2, 1)), 29);
}

TEST_F(Zeitraum_Test, Woche_geht_mit_der_Uhr_weiter) {
  Uhr.Zeit = Zeitpunkt(QDate(2024, 12, 30), QTime(0, 0));  // Monday; gHeute still stands in March
  EXPECT_EQ(Spanne(5), "30.12.2024 - 05.01.2025");
  Uhr.Zeit = Zeitpunkt(QDate(2025, 1, 5), QTime(23, 59));  // Sunday of the same week
  EXPECT_EQ(Spanne(5), "30.12.2024 - 05.01.2025");
  EXPECT_EQ(Spanne(6), "23.12.2024 - 29.12.2024");
  EXPECT_EQ(Spanne(8), "13.03.2024 - 13.03.2024");
}

TEST_F(Zeitraum_Test, Bedingung_in_beiden_Dialekten) {
  EXPECT_EQ(Bedingung(1), "[Date] BETWEEN #1/1/2024 00:00:00# AND #12/31/2024 00:00:00#");
  Kontext.gDatabasetype = 1;
  EXPECT_EQ(Bedingung(1),
            "[Date] BETWEEN CONVERT(datetime, '2024-01-01 00:00:00', 120) AND "
            "CONVERT(datetime, '2024-12-31 00:00:00', 120)");
}

TEST_F(Zeitraum_Test, Freitext_kommt_nie_in_die_Bedingung) {
  for (const char16_t *text : {u"", u"|", u"gestern|heute", u"01.01.2024", u"31.02.2024|01.03.2024",
                               u"01.01.2024#; DELETE FROM T|01.02.2024", u"' OR '1'='1|' OR '1'='1"}) {
    const QString freitext = QString::fromUtf16(text);
    const std::string jet = Bedingung(40, freitext);
    // With a bound missing BETWEEN has no operand, which no engine takes.
    EXPECT_TRUE(jet.find("BETWEEN  AND") != std::string::npos || jet.ends_with("AND ")) << jet;
    Kontext.gDatabasetype = 1;
    EXPECT_NE(Bedingung(40, freitext).find("CONVERT(datetime, , 120)"), std::string::npos);
    Kontext.gDatabasetype = 0;
    EXPECT_EQ(jet.find_first_of("';"), std::string::npos) << jet;
  }
  EXPECT_EQ(Bedingung(40, u"1.2.2024|03.02.2024"_qs),
            "[Date] BETWEEN #2/1/2024 00:00:00# AND #2/3/2024 00:00:00#");
}

class Zeitraum_in_der_Abfrage : public test::Mandant_Test {};

TEST_P(Zeitraum_in_der_Abfrage, letzter_Tag_nach_Mitternacht_faellt_heraus) {
  for (const char *tag :
       {"2024-01-01 00:00:00", "2024-12-31 00:00:00", "2024-12-31 00:00:01", "2023-12-31 23:59:59"})
    Mandant.Zeile(u"WebshopOrdersXTC"_qs,
                  {u"OrderID"_qs, QLatin1String(tag), u"Date"_qs, QLatin1String(tag)});
  const auto treffer = [](int zeitraum, const QString &freitext) {
    const QString bedingung = Zeitraum_ermitteln(zeitraum, Zeitraum_Modus::Bedingung, u"[Date]"_qs, freitext);
    db::Recordset rs;
    const bool gut = rs.Open(db::Anweisung("SELECT * FROM WebshopOrdersXTC WHERE ", db::Teiltext{bedingung}),
                             Kontext.gConnectionString);
    return gut ? rs.RecordCount() : -1;
  };
  EXPECT_EQ(treffer(1, {}), 2);
  EXPECT_EQ(treffer(40, u"31.12.2023|31.12.2024"_qs), 3);
  for (const char16_t *text : {u"", u"gestern|31.12.2024", u"01.01.2024|' OR '1'='1"})
    EXPECT_EQ(treffer(40, QString::fromUtf16(text)), -1);
}

MARKLINK_BEIDE_TYPEN(Zeitraum_in_der_Abfrage);

}  // namespace
}  // namespace marklink
