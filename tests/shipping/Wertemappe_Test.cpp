// The value workbook: what is found in it, and that one which is no workbook is an empty one.
#include "shipping/Wertemappe.h"

#include <sys/resource.h>

#include <QTemporaryDir>

#include "support/Testdateien.h"

namespace marklink {
namespace {

using test::Datei_lesen;
using test::Datei_schreiben;

const QString Verfahren = u"easylog_verfahren"_qs;
const QString Mappe = QStringLiteral(MARKLINK_VERSANDTESTS "/Mappe.xls");

QString Als_Text(const std::vector<Werteintrag> &Liste) {
  QStringList zeilen;
  for (const auto &[id, text] : Liste) zeilen.append(id + u'=' + text);
  return zeilen.join(u'|');
}

TEST(Wertemappe, Sheets_columns_and_values_are_found_as_the_books_compare) {
  const Wertemappe mappe(Mappe);
  const struct {
    const char *Blatt;
    Wertemappe::Bedingungen Wo;
    const char *Erwartet;
  } faelle[] = {
      {"easylog_verfahren", {}, "01=Paket Inland|53=Weltpaket|99=zweite Zeile"},
      {"easylog_verfahren", {{u"Token"_qs, u"National"_qs}}, "01=Paket Inland|99=zweite Zeile"},
      {"easylog_verfahren", {{u"token"_qs, u"NATIONAL"_qs}, {u"ID"_qs, u"99"_qs}}, "99=zweite Zeile"},
      {"easylog_verfahren", {{u"Token"_qs, u"NATIONAL' OR '1'='1"_qs}}, ""},
      {"easylog_verfahren", {{u"Nirgends"_qs, u"x"_qs}}, ""},
      {"easylog_teilnahme", {}, "1=Teilnahme eins|1,5=Teilnahme anderthalb|05.03.2024=Stichtag|=nur Text"},
      {"easylog_teilnahme", {{u"ID"_qs, u"1"_qs}}, "1=Teilnahme eins"},
      {"easylog_produkte", {{u"Method_id"_qs, u"01"_qs}}, "P1=Päckchen|P2=Paket"},
      {"easylog_produkte", {{u"Description"_qs, u"PÄCKCHEN"_qs}}, "P1=Päckchen"},
      {"easylog_services", {}, ""},
      {"easylog_values", {{u"Fieldname"_qs, u"POOL_V_ZOLL_WARENART"_qs}}, ""},
      {"leer", {}, ""},
      {"fehlt", {}, ""},
  };
  for (const auto &fall : faelle)
    EXPECT_EQ(QString::fromUtf8(fall.Erwartet), Als_Text(mappe.Eintraege(QLatin1String(fall.Blatt), fall.Wo)))
        << fall.Blatt;
}

TEST(Wertemappe, What_is_no_workbook_is_an_empty_one) {
  QTemporaryDir ordner;
  const QByteArray echt = Datei_lesen(Mappe);
  QByteArray genullt = echt;
  genullt.replace(0x200, 0x600, QByteArray(0x600, '\0'));
  const struct {
    const char *Name;
    QByteArray Bytes;
  } faelle[] = {{"leer", {}},
                {"text", "ID;Token;Description\r\n01;NATIONAL;Paket\r\n"},
                {"kopf", echt.left(512)},
                {"halb", echt.left(echt.size() / 2)},
                {"genullt", genullt}};
  for (const auto &fall : faelle) {
    const QString pfad = ordner.filePath(QLatin1String(fall.Name));
    Datei_schreiben(pfad, fall.Bytes);
    EXPECT_TRUE(Wertemappe(pfad).Eintraege(Verfahren).empty()) << fall.Name;
  }
  EXPECT_TRUE(Wertemappe({}).Eintraege(Verfahren).empty());
  EXPECT_TRUE(Wertemappe(ordner.path()).Eintraege(Verfahren).empty());
}

TEST(Wertemappe, A_damaged_workbook_does_no_harm) {
  QTemporaryDir ordner;
  const QString pfad = ordner.filePath(u"schaden.xls"_qs);
  const QByteArray echt = Datei_lesen(Mappe);
  quint32 zufall = 4711;
  for (int lauf = 0; lauf < (qEnvironmentVariableIsSet("MARKLINK_ALLE") ? 10000 : 60); ++lauf) {
    QByteArray bytes = echt;
    for (int i = 0; i < 8; ++i) {
      zufall = zufall * 1664525u + 1013904223u;
      bytes[qsizetype((zufall >> 8) % quint32(bytes.size()))] = char(zufall >> 3);
    }
    Datei_schreiben(pfad, bytes);
    const Wertemappe mappe(pfad);
    for (const char *blatt : {"easylog_verfahren", "easylog_teilnahme", "easylog_produkte"})
      mappe.Eintraege(QLatin1String(blatt));
  }
}

TEST(Wertemappe, A_passing_failure_does_not_last) {
  QTemporaryDir ordner;
  const QString pfad = ordner.filePath(u"werte.xls"_qs);
  Datei_schreiben(pfad, Datei_lesen(Mappe));
  rlimit vorher{};
  getrlimit(RLIMIT_NOFILE, &vorher);
  const rlimit eng{3, vorher.rlim_max};
  setrlimit(RLIMIT_NOFILE, &eng);
  EXPECT_TRUE(Wertemappe(pfad).Eintraege(Verfahren).empty());
  setrlimit(RLIMIT_NOFILE, &vorher);
  EXPECT_EQ(Wertemappe(pfad).Eintraege(Verfahren).size(), 3U);
}

}  // namespace
}  // namespace marklink
