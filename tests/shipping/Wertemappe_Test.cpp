// The value workbook: what is found in it, and that one which is no workbook is an empty one.
#include "shipping/Wertemappe.h"

#include <sys/resource.h>

#include <QFile>

#include "support/Testmandant.h"

namespace marklink {
namespace {

const QString Mappe = QStringLiteral(MARKLINK_VERSANDTESTS "/Mappe.xls");

QString Als_Text(const std::vector<Werteintrag> &Liste) {
  QStringList zeilen;
  for (const auto &[id, text] : Liste) zeilen.append(id + u'=' + text);
  return zeilen.join(u'|');
}

QByteArray Inhalt() {
  QFile datei(Mappe);
  EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
  return datei.readAll();
}

void Schreiben(const QString &Pfad, const QByteArray &Bytes) {
  QFile datei(Pfad);
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
  datei.write(Bytes);
}

TEST(Wertemappe, Sheets_columns_and_values_are_found_as_the_books_compare) {
  const Wertemappe mappe(Mappe);
  const struct {
    const char *Blatt;
    Wertemappe::Bedingungen Wo;
    const char *Erwartet;
  } faelle[] = {
      {"easylog_verfahren", {}, "01=Paket Inland|53=Weltpaket|99=zweite Zeile"},
      {"easylog_verfahren",
       {{QStringLiteral("Token"), QStringLiteral("National")}},
       "01=Paket Inland|99=zweite Zeile"},
      {"easylog_verfahren",
       {{QStringLiteral("token"), QStringLiteral("NATIONAL")}, {QStringLiteral("ID"), QStringLiteral("99")}},
       "99=zweite Zeile"},
      {"easylog_verfahren", {{QStringLiteral("Token"), QStringLiteral("NATIONAL' OR '1'='1")}}, ""},
      {"easylog_verfahren", {{QStringLiteral("Nirgends"), QStringLiteral("x")}}, ""},
      {"easylog_teilnahme", {}, "1=Teilnahme eins|1,5=Teilnahme anderthalb|05.03.2024=Stichtag|=nur Text"},
      {"easylog_teilnahme", {{QStringLiteral("ID"), QStringLiteral("1")}}, "1=Teilnahme eins"},
      {"easylog_produkte", {{QStringLiteral("Method_id"), QStringLiteral("01")}}, "P1=Päckchen|P2=Paket"},
      {"easylog_produkte", {{QStringLiteral("Description"), QStringLiteral("PÄCKCHEN")}}, "P1=Päckchen"},
      {"easylog_services", {}, ""},
      {"easylog_values", {{QStringLiteral("Fieldname"), QStringLiteral("POOL_V_ZOLL_WARENART")}}, ""},
      {"leer", {}, ""},
      {"fehlt", {}, ""},
  };
  for (const auto &fall : faelle)
    EXPECT_EQ(QString::fromUtf8(fall.Erwartet), Als_Text(mappe.Eintraege(QLatin1String(fall.Blatt), fall.Wo)))
        << fall.Blatt;
}

TEST(Wertemappe, What_is_no_workbook_is_an_empty_one) {
  QTemporaryDir ordner;
  const QByteArray echt = Inhalt();
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
    Schreiben(pfad, fall.Bytes);
    EXPECT_TRUE(Wertemappe(pfad).Eintraege(QStringLiteral("easylog_verfahren")).empty()) << fall.Name;
  }
  EXPECT_TRUE(Wertemappe({}).Eintraege(QStringLiteral("easylog_verfahren")).empty());
  EXPECT_TRUE(Wertemappe(ordner.path()).Eintraege(QStringLiteral("easylog_verfahren")).empty());
}

TEST(Wertemappe, A_damaged_workbook_does_no_harm) {
  QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("schaden.xls"));
  const QByteArray echt = Inhalt();
  quint32 zufall = 4711;
  for (int lauf = 0; lauf < (qEnvironmentVariableIsSet("MARKLINK_ALLE") ? 10000 : 60); ++lauf) {
    QByteArray bytes = echt;
    for (int i = 0; i < 8; ++i) {
      zufall = zufall * 1664525u + 1013904223u;
      bytes[qsizetype((zufall >> 8) % quint32(bytes.size()))] = char(zufall >> 3);
    }
    Schreiben(pfad, bytes);
    const Wertemappe mappe(pfad);
    for (const char *blatt : {"easylog_verfahren", "easylog_teilnahme", "easylog_produkte"})
      mappe.Eintraege(QLatin1String(blatt));
  }
}

TEST(Wertemappe, A_passing_failure_does_not_last) {
  QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("werte.xls"));
  Schreiben(pfad, Inhalt());
  rlimit vorher{};
  getrlimit(RLIMIT_NOFILE, &vorher);
  const rlimit eng{3, vorher.rlim_max};
  setrlimit(RLIMIT_NOFILE, &eng);
  EXPECT_TRUE(Wertemappe(pfad).Eintraege(QStringLiteral("easylog_verfahren")).empty());
  setrlimit(RLIMIT_NOFILE, &vorher);
  EXPECT_EQ(Wertemappe(pfad).Eintraege(QStringLiteral("easylog_verfahren")).size(), 3U);
}

TEST(Wertemappe, The_look_ups_read_the_workbook_of_the_context) {
  test::Testmandant mandant(0);
  EXPECT_EQ(QString(), Verfahren_ermitteln(QStringLiteral("NATIONAL")));
  ASSERT_TRUE(QFile::copy(Mappe, mandant.Ordner() + QStringLiteral("easylog.xls")));
  mandant.Host_einstellen("files", "forwardingfile", QStringLiteral("easylog.xls"));
  mandant.Starten();
  EXPECT_EQ(QStringLiteral("01"), Verfahren_ermitteln(QStringLiteral("NATIONAL")));
  EXPECT_EQ(QStringLiteral("1,5"), Teilnahme_ermitteln(QStringLiteral("INTERNATIONAL")));
  EXPECT_EQ(QStringLiteral("P2"), Produkt_ermitteln(QStringLiteral("NATIONAL")));
  EXPECT_EQ(QString(), Produkt_ermitteln(QStringLiteral("INTERNATIONAL")));
  EXPECT_EQ(QStringLiteral("132"), Service_Nachnahme_ermitteln(QStringLiteral("NATIONAL")));
  EXPECT_EQ(QString(), Service_Nachnahme_ermitteln(QStringLiteral("INTERNATIONAL")));
}

}  // namespace
}  // namespace marklink
