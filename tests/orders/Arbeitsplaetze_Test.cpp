// Several workstations at once: programs of their own, on machines of their own (each has its own program
// folder) or on one, against one server or one embedded file. Nothing is lost, nothing stands there twice or
// in half, and every program tells how it ended.
#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

#include "Bestellantwort.h"
#include "Stapelmandant.h"
#include "db/Verbindung.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

using test::Bestellung;

constexpr int BESTELLUNGEN = 24;
constexpr int PLAETZE = 4;
constexpr int Geduld_ms = 60000;

struct Ende {
  int Ausgang = -1;  ///< -1: crashed or hung
  QString Text;
};

class Arbeitsplaetze_Test : public testing::TestWithParam<int> {
 protected:
  Arbeitsplaetze_Test() : Mandant(GetParam(), 0) {
    Mandant.Einstellen("Program", "ReservationBooking", "1");
    Mandant.Einstellen("easylog", "file", "versand.txt");
    Mandant.Einstellen("easylog", "appendrecords", "1");
    // All orders take from the same two lots.
    for (int a = 1; a <= 2; ++a) Mandant.Artikel(a, u"Ware"_qs, {{QStringLiteral("L%1").arg(a), 1000.0}});
    Anbieten(u"1"_qs);
  }
  void Anbieten(const QString &Status) {
    QStringList alle;
    for (int b = 1; b <= BESTELLUNGEN; ++b) {
      const QString n = QString::number(b);
      alle << Bestellung(n, {{u"CUSTOMER_ID"_qs, n},
                             {u"CUSTOMER_EMAIL"_qs, u"k%1@example.de"_qs.arg(n)},
                             {u"ORDER_STATUS"_qs, Status},
                             {u"PRODUCTS"_qs, test::Produkt(u"1"_qs, u"2"_qs, u"10.00"_qs) +
                                                  test::Produkt(u"2"_qs, u"3"_qs, u"10.00"_qs)}});
    }
    Mandant.Shop_einrichten(alle);
  }
  /// The folder of a machine that has the client as well.
  QString Rechner(int Nummer) const {
    const QString ordner = Mandant.Ordner() + QStringLiteral("rechner%1").arg(Nummer);
    if (!QDir().mkpath(ordner)) return {};
    for (const char *datei : {"/varda.ini", "/mandanten.ini"})
      QFile::copy(Mandant.Ordner() + QLatin1String(datei), ordner + QLatin1String(datei));
    return ordner;
  }
  /// Starts all at once, the n-th on machine `Rechner_von[n]`, and waits for them.
  std::vector<Ende> Gleichzeitig(const std::vector<int> &Rechner_von,
                                 const std::function<QStringList(int Platz)> &Befehl) {
    Mandant.Verlassen();
    std::vector<std::unique_ptr<QProcess>> alle;
    for (std::size_t p = 0; p < Rechner_von.size(); ++p) {
      const QString ordner = Rechner(Rechner_von[p]);
      QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
      umgebung.insert(u"MARKLINK_ORDNER"_qs, ordner);
      umgebung.insert(u"MARKLINK_HEUTE"_qs, u"2024-06-15"_qs);
      umgebung.insert(u"MARKLINK_TRACE"_qs, u"1"_qs);
      umgebung.insert(u"TMPDIR"_qs, ordner);
      alle.push_back(std::make_unique<QProcess>());
      alle.back()->setProcessEnvironment(umgebung);
      alle.back()->setProcessChannelMode(QProcess::MergedChannels);
      alle.back()->setWorkingDirectory(Versandordner.isEmpty() ? ordner : Versandordner);
      alle.back()->start(QStringLiteral(MARKLINK_PROGRAMM), Befehl(int(p)));
    }
    std::vector<Ende> enden;
    for (const auto &prozess : alle) {
      const bool fertig = prozess->waitForFinished(Geduld_ms);
      if (!fertig) prozess->kill();
      enden.push_back({fertig && prozess->exitStatus() == QProcess::NormalExit ? prozess->exitCode() : -1,
                       QString::fromUtf8(prozess->readAll())});
    }
    Mandant.Verlassen();
    return enden;
  }
  /// The same, and all have to end well.
  void Alle_gut(const std::vector<int> &Rechner_von, const std::function<QStringList(int Platz)> &Befehl) {
    for (const Ende &ende : Gleichzeitig(Rechner_von, Befehl))
      EXPECT_EQ(ende.Ausgang, 0) << ende.Text.toStdString();
  }
  void Abrufen(const std::vector<int> &Rechner_von) {
    Alle_gut(Rechner_von, [](int) { return QStringList{u"bestellungen"_qs, u"abrufen"_qs}; });
  }
  /// Every order has an invoice, every invoice all that belongs to it, and the stock adds up.
  int Rechnungen_pruefen() const {
    EXPECT_EQ(Mandant.Roh(u"SELECT count(DISTINCT OrderingNumber) FROM Invoice WHERE Webshop <> 0"_qs),
              QString::number(BESTELLUNGEN));
    EXPECT_EQ(
        Mandant.Roh(
            u"SELECT * FROM (SELECT InvoiceNumber AS n, TotalAmount AS t, Dispatch <> 0 AS d, (SELECT "
            "count(*) FROM Positions WHERE DocumentNumber = InvoiceNumber) AS p, (SELECT count(*) FROM "
            "Reservations WHERE DocumentNumber = InvoiceNumber) AS r, (SELECT sum(Amount) FROM OpenItems "
            "WHERE DocumentNumber = InvoiceNumber) AS o FROM Invoice WHERE Webshop <> 0) WHERE (t, d, p, "
            "r, o) <> (58.61, 1, 2, 2, 58.61)"_qs),
        QString());
    const int rechnungen = Mandant.Roh(u"SELECT count(*) FROM Invoice WHERE Webshop <> 0"_qs).toInt();
    for (int a = 1; a <= 2; ++a) {
      EXPECT_EQ(Mandant.Roh(u"SELECT CAST(w.Disposable AS INT), CAST(w.Unsociable AS INT), CAST(a.Disposable "
                            "AS INT), CAST(a.Unsociable AS INT) FROM Warehouse w JOIN Articles a ON "
                            "a.ArticleNumber = w.ArticleNumber WHERE w.StockingNumber = 'L%1'"_qs.arg(a)),
                u"%1|0|%1|0"_qs.arg(1000 - (a + 1) * rechnungen));
    }
    return rechnungen;
  }
  /// Besides, no order has two.
  void Jede_einmal() const {
    EXPECT_EQ(Rechnungen_pruefen(), BESTELLUNGEN);
    EXPECT_EQ(Mandant.Ungereimtheit(), QString());
  }
  static int Versandzeilen(const QString &Ordner) {
    QFile datei(Ordner + u"/versand.txt"_qs);
    return datei.open(QIODevice::ReadOnly) ? int(datei.readAll().count('\n')) : 0;
  }
  int Offene_Auftraege() const {
    return Mandant.Roh(u"SELECT count(*) FROM LogisticsEASYLOG WHERE Conveyed = 0"_qs).toInt();
  }

  test::Stapelmandant Mandant;
  QString Versandordner;  ///< where all run; empty: each in the folder of its machine
};
MARKLINK_BEIDE_TYPEN(Arbeitsplaetze_Test);

TEST_P(Arbeitsplaetze_Test, Jeder_an_seinem_Rechner) {
  const std::vector<int> rechner{1, 2, 3, 4};
  const QString bild =
      u"SELECT count(*), count(DISTINCT OrderID), min(Status), max(Status), "
      u"sum(length(Positions) > 10) FROM WebshopOrdersXTC"_qs;
  for (const char *status : {"1", "3"}) {
    Anbieten(QLatin1String(status));
    Abrufen(rechner);
    EXPECT_EQ(Mandant.Roh(bild), u"%1|%1|%2|%2|%1"_qs.arg(BESTELLUNGEN).arg(QLatin1String(status)));
  }
  Alle_gut(rechner, [](int platz) {
    QStringList worte{u"belege"_qs, u"rechnung"_qs};
    for (int b = platz + 1; b <= BESTELLUNGEN; b += PLAETZE) worte << QString::number(b);
    return worte;
  });
  Jede_einmal();
  // Two poll one folder. A third has a folder of its own, where no lock holds the others back: what they have
  // marked it leaves out, and says that it did not get through.
  const QStringList exportieren{u"versand"_qs, u"exportieren"_qs};
  Versandordner = Rechner(1);
  Alle_gut({1, 2, 3}, [&](int) { return exportieren; });
  EXPECT_EQ(Versandzeilen(Versandordner), BESTELLUNGEN);
  ASSERT_TRUE(db::Ausfuehren("UPDATE LogisticsEASYLOG SET Conveyed = 0", Kontext.gConnectionString));
  Versandordner.clear();
  int zeilen = 0;
  for (const Ende &ende : Gleichzeitig({2, 3, 4}, [&](int) { return exportieren; }))
    EXPECT_TRUE(ende.Ausgang == 0 || ende.Ausgang == 1) << ende.Text.toStdString();
  for (const int r : {2, 3, 4}) zeilen += Versandzeilen(Rechner(r));
  EXPECT_EQ(zeilen, BESTELLUNGEN - Offene_Auftraege());
}

// One program folder is one workstation, however many runs it has: they wait for each other.
TEST_P(Arbeitsplaetze_Test, Mehrere_Laeufe_an_einem_Rechner) {
  Abrufen({1});
  Alle_gut({1, 1, 1}, [](int) { return QStringList{u"belege"_qs, u"rechnung"_qs, u"--alle"_qs}; });
  Jede_einmal();
}

// Nobody promises that two machines do not both take an order; but what they make is whole.
TEST_P(Arbeitsplaetze_Test, Zwei_Rechner_ueber_alle_Bestellungen) {
  Abrufen({1});
  Alle_gut({1, 2}, [](int) { return QStringList{u"belege"_qs, u"rechnung"_qs, u"--alle"_qs}; });
  EXPECT_LE(Rechnungen_pruefen(), 2 * BESTELLUNGEN);
  EXPECT_EQ(Mandant.Roh(u"SELECT count(*), count(DISTINCT OrderID) FROM LogisticsEASYLOG"_qs),
            u"%1|%1"_qs.arg(BESTELLUNGEN));
}

}  // namespace
}  // namespace marklink
