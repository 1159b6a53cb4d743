// Any moment may be the last. A program of its own makes fifty invoices as one batch and is killed somewhere
// on the way: the books are whole, what was finished is right, at most one document is unfinished, no number
// is given twice, and a second run makes what is left. MARKLINK_ALLE=1: two hundred kills instead of ten;
// MARKLINK_SAAT=n: another run of the dice.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <cmath>
#include <random>

#include "Stapelmandant.h"
#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "orders/Belegstapel.h"
#include "rules/Nummernkreise.h"
#include "rules/Zuteilungsliste.h"

namespace marklink {
namespace {

constexpr int BESTELLUNGEN = 50;
constexpr int ARTIKEL = 10;
constexpr int KASTEN_GEZEIGT = 3;  // exit codes of the killed program
constexpr int FERTIG = 0;

/// In the child: nothing may be asked or told.
class Kein_Kasten : public Dialoge {
  Antwort Meldung(const QString &Titel, const QStringList &Zeilen, Symbol, Knoepfe, Antwort) override {
    std::fprintf(stderr, "[%s] %s\n", qPrintable(Titel), qPrintable(Zeilen.join(u' ')));
    _exit(KASTEN_GEZEIGT);
  }
  QString Eingabe(const QString &Titel, const QString &Text, const QString &) override {
    Meldung(Titel, {Text}, Symbol::Ohne, Knoepfe::OK, Antwort::OK);
    return {};
  }
  QString Datei_oeffnen(const QString &, const QString &, const QString &) override { _exit(KASTEN_GEZEIGT); }
  QString Datei_speichern(const QString &, const QString &, const QString &) override {
    _exit(KASTEN_GEZEIGT);
  }
  std::optional<quint32> Farbe(quint32) override { _exit(KASTEN_GEZEIGT); }
  bool Schirm_zeigen(const QString &) override { _exit(KASTEN_GEZEIGT); }
};

/// Quantities by lot.
using Mengen = std::map<QString, double>;

/// Whether `Ist` holds, lot by lot, either nothing or the whole of `Ganzes`: never a part of it.
bool Ganz_oder_gar_nicht(const Mengen &Ist, const Mengen &Ganzes) {
  const auto gleich = [](const Mengen &a, const Mengen &b) {
    for (const auto &[los, menge] : a)
      if (std::fabs(menge - (b.contains(los) ? b.at(los) : 0.0)) > 1e-9) return false;
    return true;
  };
  return (gleich(Ist, Ganzes) && gleich(Ganzes, Ist)) || gleich(Ist, {});
}

/// Type 0 leaves the stock reserved, type 1 books it out at once.
class Abbruch_Test : public testing::TestWithParam<int> {
 protected:
  Abbruch_Test() : Mandant(GetParam(), 0) {
    Mandant.Einstellen("Program", "ReservationBooking", Bucht_aus() ? "1" : "0");
    for (int a = 1; a <= ARTIKEL; ++a)
      Mandant.Artikel(a, u"Ware"_qs,
                      {{QStringLiteral("L%1a").arg(a), 7.0}, {QStringLiteral("L%1b").arg(a), 60.0}});
    const auto artikel = [](int n) { return n % ARTIKEL + 1; };
    for (int b = 1; b <= BESTELLUNGEN; ++b)
      Mandant.Bestellung(b, u"PayPal"_qs, {{artikel(b), 2.0}, {artikel(b + 3), 1.0}, {artikel(b + 6), 3.0}});
    Mandant.Sichern();
    Frei_am_Anfang = Lagerspalte("Disposable");
    Einstellungen_am_Anfang = Einstellungen();
  }

  static bool Bucht_aus() { return GetParam() == 1; }
  /// Invoices all orders without one in a program of its own, which is killed after that time; -1: never.
  int Ausfuehren(int Mikrosekunden) {
    Mandant.Verlassen();  // a connection must not live on in two programs
    const pid_t kind = fork();
    if (kind == 0) Rest_abrechnen();
    if (Mikrosekunden >= 0) {
      usleep(static_cast<useconds_t>(Mikrosekunden));
      kill(kind, SIGKILL);
    }
    int ende = 0;
    waitpid(kind, &ende, 0);
    Mandant.Verlassen();
    return ende;
  }
  [[noreturn]] void Rest_abrechnen() {
    Kein_Kasten dialoge;
    Dialoge_setzen(&dialoge);
    Mandant.Starten();
    Auftragsliste liste;
    liste.Auftragsliste_laden();
    for (int zeile = 0; zeile < liste.Zeilenzahl(); ++zeile)
      liste.Markieren(zeile, !Datensatz_existiert(u"Invoice"_qs, u"OrderingNumber"_qs,
                                                  liste.Zelle(zeile, "OrderID").toString()));
    if (liste.Auswahl_zaehlen() > 0) Belege_erzeugen(Stapel_Rechnungen, liste);
    _exit(FERTIG);
  }
  /// The settings without what counts on.
  QStringList Einstellungen() const {
    static const QRegularExpression zaehler(QStringLiteral("=\\d+\\s*$"));
    if (GetParam() == 1) return Mandant.Spalte(u"SELECT Section, Key FROM Options"_qs);
    QFile datei(Mandant.Einstellungsdatei());
    if (!datei.open(QIODevice::ReadOnly)) return {};
    QStringList zeilen = QString::fromLatin1(datei.readAll()).split(u'\n');
    for (QString &zeile : zeilen) zeile.replace(zaehler, u"="_qs);
    return zeilen;
  }
  Mengen Lagerspalte(const char *Feld) const {
    return Mengen_lesen(QStringLiteral("SELECT StockingNumber, %1 FROM Warehouse").arg(QLatin1String(Feld)));
  }
  Mengen Mengen_lesen(const QString &Sql) const {
    Mengen mengen;
    for (const QString &zeile : Mandant.Spalte(Sql))
      mengen[zeile.section(u'|', 0, 0)] += zeile.section(u'|', 1).toDouble();
    return mengen;
  }
  /// What documents were allocated; those of `Bedingung`.
  Mengen Zugeteilt(const QString &Bedingung) const {
    Mengen mengen;
    for (const QString &liste : Mandant.Spalte(
             u"SELECT StorageNumber FROM Positions WHERE document = 'Rechnung' AND "_qs + Bedingung))
      for (const Los &los : Zuteilung_zerlegen(liste))
        mengen[Los_Text(los, Losfeld::Einlagerung)] += Los_Zahl(los, Losfeld::Menge);
    return mengen;
  }
  void Zaehler_pruefen();
  void Fertige_pruefen(const QString &Unfertige);
  void Lager_pruefen(const QString &Unfertige);
  void Pruefen(const QString &Unfertige) {
    EXPECT_EQ(Mandant.Ungereimtheit(), QString());
    EXPECT_EQ(Einstellungen(), Einstellungen_am_Anfang);
    Zaehler_pruefen();
    Fertige_pruefen(Unfertige);
    Lager_pruefen(Unfertige);
  }

  test::Stapelmandant Mandant;
  Mengen Frei_am_Anfang;
  QStringList Einstellungen_am_Anfang;
};
MARKLINK_BEIDE_TYPEN(Abbruch_Test);

/// No counter is behind a number that is in the books.
void Abbruch_Test::Zaehler_pruefen() {
  Mandant.Starten();
  for (const Nummernkreis &kreis : Nummernkreise()) {
    const QString zaehler = Option_lesen(u"NumberRange"_qs, kreis.Name);
    if (zaehler.isEmpty()) continue;
    const QString hoechste =
        Mandant.Roh(QStringLiteral("SELECT max(%1) FROM %2").arg(kreis.Feld, kreis.Tabelle)).right(4);
    EXPECT_TRUE(hoechste.toInt() < zaehler.toInt() || hoechste == u"0007")
        << kreis.Name.toStdString() << " stands at " << zaehler.toStdString() << ", used "
        << hoechste.toStdString();
  }
  db::Verbindungen_schliessen();
}

/// Every document but the unfinished one has its head, lines, payment, open item and reservations.
void Abbruch_Test::Fertige_pruefen(const QString &Unfertige) {
  const QString stand =
      u"SELECT n, (SELECT count(*) FROM Invoice WHERE InvoiceNumber = n AND TotalAmount > 70 AND Paid <> 0 "
      u"AND "
      "Dispatch %1 0), (SELECT count(*) FROM Positions WHERE DocumentNumber = n AND ReservationNumber <> "
      "''), "
      "(SELECT count(*) FROM PaymentIncome WHERE DocumentNumber = n AND Amount > 70), (SELECT count(*) FROM "
      "OpenItems WHERE DocumentNumber = n AND OutstandingAmount = 0) FROM (SELECT DISTINCT DocumentNumber AS "
      "n FROM "
      "Positions UNION SELECT InvoiceNumber FROM Invoice) WHERE n NOT IN ('RE0007', 'AB0007', '%2')"_qs.arg(
          Bucht_aus() ? u"<>"_qs : u"="_qs, Unfertige);
  for (const QString &zeile : Mandant.Spalte(stand))
    EXPECT_EQ(zeile.section(u'|', 1), u"1|3|1|1"_qs) << zeile.toStdString();
  const QString fertig = u"DocumentNumber <> '%1'"_qs.arg(Unfertige);
  EXPECT_EQ(Mengen_lesen(u"SELECT StockingNumber, Quantity FROM Reservations WHERE "_qs + fertig),
            Zugeteilt(fertig + u" AND DocumentNumber <> 'RE0007'"_qs));
}

/// Of what was allocated to the unfinished document, all lots took their share in each step, or none.
void Abbruch_Test::Lager_pruefen(const QString &Unfertige) {
  const Mengen fertige = Zugeteilt(u"DocumentNumber <> '%1'"_qs.arg(Unfertige));
  const Mengen unfertige = Zugeteilt(u"DocumentNumber = '%1'"_qs.arg(Unfertige));
  Mengen entnommen, reserviert = Lagerspalte("Unsociable");
  for (const auto &[los, frei] : Lagerspalte("Disposable")) {
    const double anteil = fertige.contains(los) ? fertige.at(los) : 0.0;
    entnommen[los] = Frei_am_Anfang.at(los) - frei - anteil;
    if (!Bucht_aus()) reserviert[los] -= anteil;
  }
  EXPECT_TRUE(Ganz_oder_gar_nicht(entnommen, unfertige)) << "taken from stock";
  EXPECT_TRUE(Ganz_oder_gar_nicht(reserviert, unfertige)) << "reserved";
}

TEST_P(Abbruch_Test, Nichts_halb_und_nichts_doppelt) {
  const bool eigene = qEnvironmentVariableIsSet("MARKLINK_SAAT");
  const unsigned saat = eigene ? qEnvironmentVariable("MARKLINK_SAAT").toUInt() : 20240615U;
  std::printf("seed %u\n", saat);
  std::mt19937 wuerfel(saat);
  QElapsedTimer uhr;
  uhr.start();
  ASSERT_EQ(Ausfuehren(-1), FERTIG);
  int dauer = int(uhr.nsecsElapsed() / 1000);
  Pruefen({});
  int getoetet = 0;
  const int versuche = test::Alle_Versuche() ? 200 : Mandant.Server() ? 5 : 10;
  for (int versuch = 1; versuch <= versuche && !HasFailure(); ++versuch) {
    const int dann = std::uniform_int_distribution<int>(0, dauer)(wuerfel);
    SCOPED_TRACE(testing::Message() << "kill " << versuch << " after " << dann << " of " << dauer << " us");
    Mandant.Zuruecksetzen();
    if (WIFSIGNALED(Ausfuehren(dann)))
      ++getoetet;
    else
      dauer = dauer * 3 / 4;  // the machine has become faster: aim at the run, not behind it
    // The last number that anything stands under: that document may be unfinished, no other.
    const QString letzte =
        Mandant.Roh(u"SELECT max(DocumentNumber) FROM Positions WHERE document = 'Rechnung'"_qs);
    Pruefen(letzte);
    ASSERT_EQ(Ausfuehren(-1), FERTIG);
    Pruefen(letzte);
    EXPECT_EQ(
        Mandant.Roh(u"SELECT count(*), count(DISTINCT OrderingNumber) FROM Invoice WHERE Webshop <> 0"_qs),
        u"%1|%1"_qs.arg(BESTELLUNGEN));
  }
  std::printf("%d of %d killed within a run of %d ms\n", getoetet, versuche, dauer / 1000);
  EXPECT_GT(getoetet, versuche / 4);
}

}  // namespace
}  // namespace marklink
