// What staging a large reply costs: beside the least that it can cost, and into a table that is full already.
// Usage: Einlesen_Messung [--schnell]. Each run is a process of its own, so that its peak memory is its own.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "Einlesen_Untergrenze.h"
#include "db/Recordset.h"
#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "orders/Bestellabruf.h"

namespace marklink::messung {
namespace {

constexpr int LAENDER = 30;
constexpr int ARTEN = 12;

// --- the reply

QString Anschrift(const char *Knoten, int n) {
  return QStringLiteral(
             "<%1><COMPANY>Müller &amp; Söhne %2</COMPANY><NAME>Jürgen "
             "Großmann</NAME><FIRSTNAME>Jürgen</FIRSTNAME>"
             "<LASTNAME>Großmann</LASTNAME><STREET>Lange Straße %2</STREET><POSTCODE>01067</POSTCODE>"
             "<CITY>Dresden</CITY><SUBURB>Hinterhaus</SUBURB><COUNTRY>L%3</COUNTRY></%1>")
      .arg(QLatin1String(Knoten))
      .arg(n)
      .arg(n % LAENDER);
}

QString Produkt(int n) {
  return QStringLiteral(
             "<PRODUCT><PRODUCTS_ID>%1</PRODUCTS_ID><PRODUCTS_QUANTITY>%2</PRODUCTS_QUANTITY>"
             "<PRODUCTS_MODEL>ART-%1</PRODUCTS_MODEL><PRODUCTS_NAME>Wanderschuh für Größen ab 36, Modell %1"
             "</PRODUCTS_NAME><PRODUCTS_DISCOUNT_MADE>0.00</PRODUCTS_DISCOUNT_MADE><PRODUCTS_PRICE>%3.9500"
             "</PRODUCTS_PRICE><OPTION><PRODUCTS_OPTIONS_PRICE>+5.00</PRODUCTS_OPTIONS_PRICE>"
             "<PRODUCTS_OPTIONS_VALUES>Größe 42</PRODUCTS_OPTIONS_VALUES></OPTION><OPTION>"
             "<PRODUCTS_OPTIONS_PRICE>2.50</PRODUCTS_OPTIONS_PRICE><PRODUCTS_OPTIONS_VALUES>Dunkelrot"
             "</PRODUCTS_OPTIONS_VALUES></OPTION></PRODUCT>")
      .arg(n % 5000)
      .arg(n % 7 + 1)
      .arg(n % 300);
}

QString Bestellung(int n) {
  QString text =
      QStringLiteral(
          "<ORDER_INFO><ORDER_HEADER><ORDER_ID>%1</ORDER_ID><CUSTOMER_ID>%2</CUSTOMER_ID><CUSTOMER_CID>K%2"
          "</CUSTOMER_CID><CUSTOMER_GROUP_NAME>Händler</CUSTOMER_GROUP_NAME><CUSTOMER_NAME>Jürgen Großmann"
          "</CUSTOMER_NAME><CUSTOMER_TELEPHONE>0351 %2</CUSTOMER_TELEPHONE><CUSTOMER_EMAIL>kunde%2"
          "@example.de</CUSTOMER_EMAIL><CUSTOMER_VAT_ID>DE%1</CUSTOMER_VAT_ID><CUSTOMER_DISCOUNT>0.00"
          "</CUSTOMER_DISCOUNT><ORDER_STATUS>%3</ORDER_STATUS><ORDER_DATE>2024-%4-11 14:22:11</ORDER_DATE>"
          "<ORDER_IP>192.0.2.7</ORDER_IP><ORDER_CURRENCY>EUR</ORDER_CURRENCY></ORDER_HEADER>")
          .arg(100000 + n)
          .arg(n % 4000)
          .arg(n % 4 + 1)
          .arg(n % 12 + 1, 2, 10, QLatin1Char('0'));
  text += Anschrift("BILLING_ADDRESS", n) + Anschrift("DELIVERY_ADDRESS", n + 1);
  text +=
      QStringLiteral(
          "<PAYMENT><PAYMENT_METHOD>%1</PAYMENT_METHOD><PAYMENT_BANKTRANS_NUMBER>0012345</"
          "PAYMENT_BANKTRANS_NUMBER>"
          "<PAYMENT_BANKTRANS_BNAME>Sparkasse</PAYMENT_BANKTRANS_BNAME><PAYMENT_BANKTRANS_BLZ>85050300"
          "</PAYMENT_BANKTRANS_BLZ><PAYMENT_BANKTRANS_OWNER>J. Großmann</PAYMENT_BANKTRANS_OWNER></PAYMENT>"
          "<SHIPPING><SHIPPING_CLASS>t%2</SHIPPING_CLASS></SHIPPING><ORDER_PRODUCTS>")
          .arg(n % 3 == 0 ? QStringLiteral("banktransfer") : QStringLiteral("t%1").arg(n % ARTEN))
          .arg(n % ARTEN);
  for (int zeile = 0; zeile < 3; ++zeile) text += Produkt(n * 3 + zeile);
  return text +
         QStringLiteral(
             "</ORDER_PRODUCTS><ORDER_TOTAL><TOTAL><TOTAL_TITLE>Zwischensumme</"
             "TOTAL_TITLE><TOTAL_VALUE>100.0000"
             "</TOTAL_VALUE><TOTAL_CLASS>ot_subtotal</TOTAL_CLASS></TOTAL><TOTAL><TOTAL_TITLE>Summe</"
             "TOTAL_TITLE>"
             "<TOTAL_VALUE>%1.9000</TOTAL_VALUE><TOTAL_CLASS>ot_total</TOTAL_CLASS></TOTAL></ORDER_TOTAL>"
             "<ORDER_COMMENTS>Bitte nach 16 Uhr liefern.</ORDER_COMMENTS></ORDER_INFO>")
             .arg(n % 900);
}

bool Antwort_schreiben(const QString &Pfad, int Anzahl) {
  QFile datei(Pfad);
  if (!datei.open(QIODevice::WriteOnly)) return false;
  datei.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><ORDER>");
  for (int n = 0; n < Anzahl; ++n) datei.write(Bestellung(n).toUtf8());
  return datei.write("</ORDER>") > 0;
}

// --- the client

void Mandant_einstellen(const QString &Datenbank) {
  Kontext.gFirmenname = QStringLiteral("Messung");
  Kontext.gHeute = QDate(2024, 6, 15);
  Kontext.gViewablePeriod = 1;  // the current year: 2024
  Kontext.gAdressformat = QString::fromUtf8(VORLAGE);
  Kontext.gCountry = QString::fromUtf8(HEIMATLAND);
  Kontext.gAfkDatei = Datenbank + QStringLiteral(".afk");
  Kontext.gConnectionString = QStringLiteral("Provider=SQLite;Data Source=") + Datenbank +
                              QStringLiteral(";Jet OLEDB:Database Password=481902");
}

bool Stammdaten_anlegen(const char *Tabelle, int Anzahl, const char *Kennung, const char *Text) {
  db::Recordset rs = Abfragen({"SELECT * FROM ", db::Name{QLatin1String(Tabelle)}});
  for (int n = 0; n < Anzahl; ++n) {
    rs.AddNew();
    rs.SetValue(QStringLiteral("Token"), QLatin1String(Kennung) + QString::number(n));
    rs.SetValue(QStringLiteral("Description"), QLatin1String(Text) + QString::number(n));
    rs.Update();
  }
  return rs.UpdateBatch();
}

bool Datenbank_vorbereiten(const QString &Pfad) {
  Mandant_einstellen(Pfad);
  const bool gut = db::Datenbank_anlegen(Kontext.gConnectionString) &&
                   Stammdaten_anlegen("Countries", LAENDER, "L", "Land ") &&
                   Stammdaten_anlegen("MethodPayments", ARTEN, "t", "Zahlungsart ") &&
                   Stammdaten_anlegen("ForwardingCharges", ARTEN, "t", "Versandart ");
  db::Verbindungen_schliessen();
  return gut;
}

// --- one run in a process of its own

struct Messwert {
  int Zeilen = -1;
  double Sekunden = 0, Rechenzeit = 0, Spitze_MB = 0;
};

int Teil_ausfuehren(const char *Art, const char *Antwort, const char *Datenbank) {
  const auto beginn = std::chrono::steady_clock::now();
  int zeilen = -1;
  if (std::strcmp(Art, "produkt") == 0) {
    Mandant_einstellen(QString::fromUtf8(Datenbank));
    Auftragsliste liste;
    Bestellungen_einlesen(QString::fromUtf8(Antwort), liste);
    zeilen = liste.Zeilenzahl();
  } else if (std::strcmp(Art, "vorbereiten") == 0) {
    const int anzahl = std::atoi(Antwort);
    const QString ordner = QString::fromUtf8(Datenbank);
    zeilen = Antwort_schreiben(ordner + QStringLiteral("/antwort.xml"), anzahl) &&
                     Datenbank_vorbereiten(ordner + QStringLiteral("/leer.mdb"))
                 ? anzahl
                 : -1;
  } else {
    zeilen = Untergrenze_einlesen(Antwort, Datenbank);
  }
  const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - beginn;
  rusage verbrauch{};
  getrusage(RUSAGE_SELF, &verbrauch);
  const auto sekunden = [](const timeval &t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
  std::printf("%d %f %f %f\n", zeilen, dauer.count(),
              sekunden(verbrauch.ru_utime) + sekunden(verbrauch.ru_stime),
              double(verbrauch.ru_maxrss) / 1024);
  return 0;
}

Messwert Teil_messen(const char *Art, const QByteArray &Antwort, const QByteArray &Datenbank) {
  Messwert wert;
  int rohr[2];
  if (pipe2(rohr, O_CLOEXEC) != 0) return wert;
  const pid_t kind = fork();
  if (kind == 0) {
    dup2(rohr[1], STDOUT_FILENO);
    execl("/proc/self/exe", "Einlesen_Messung", "--teil", Art, Antwort.constData(), Datenbank.constData(),
          nullptr);
    _exit(127);
  }
  close(rohr[1]);
  FILE *ausgabe = fdopen(rohr[0], "r");
  if (std::fscanf(ausgabe, "%d %lf %lf %lf", &wert.Zeilen, &wert.Sekunden, &wert.Rechenzeit,
                  &wert.Spitze_MB) != 4)
    wert.Zeilen = -1;
  std::fclose(ausgabe);
  waitpid(kind, nullptr, 0);
  return wert;
}

// --- the measurement

struct Reihe {
  const char *Titel;
  const char *Art;
  QString Vorlage;  ///< the database that each run gets a copy of
  Messwert Bestes{-1, 1e9, 1e9, 1e9};
  bool Gut = true;
};

class Messung {
 public:
  Messung(const QString &Ordner, int Anzahl) : Ordner_(Ordner), Anzahl_(Anzahl) {}

  bool Vorbereiten() {
    if (Teil_messen("vorbereiten", QByteArray::number(Anzahl_), Ordner_.toUtf8()).Zeilen != Anzahl_)
      return false;
    if (!Kopieren(QStringLiteral("leer"), QStringLiteral("voll"))) return false;
    return Teil_messen("untergrenze", Pfad("antwort.xml"), Pfad("voll.mdb")).Zeilen == Anzahl_ &&
           Altbestand_anlegen(Pfad("voll.mdb").toStdString(), Anzahl_ * 10);
  }

  void Runde(Reihe &R) {
    const QString name = QLatin1String(R.Art);
    if (!Kopieren(R.Vorlage, name)) return;
    const Messwert w =
        Teil_messen(R.Art, Pfad("antwort.xml"), (Ordner_ + u'/' + name + QStringLiteral(".mdb")).toUtf8());
    R.Gut = R.Gut && w.Zeilen == Anzahl_;
    R.Bestes.Sekunden = std::min(R.Bestes.Sekunden, w.Sekunden);
    R.Bestes.Rechenzeit = std::min(R.Bestes.Rechenzeit, w.Rechenzeit);
    R.Bestes.Spitze_MB = std::min(R.Bestes.Spitze_MB, w.Spitze_MB);
  }

  int Abweichungen() const {
    return Abweichungen_zaehlen(Pfad("produkt.mdb").toStdString(), Pfad("untergrenze.mdb").toStdString());
  }

 private:
  QByteArray Pfad(const char *Name) const { return (Ordner_ + u'/' + QLatin1String(Name)).toUtf8(); }
  bool Kopieren(const QString &Von, const QString &Nach) const {
    const QString ziel = Ordner_ + u'/' + Nach + QStringLiteral(".mdb");
    for (const char *anhang : {"", "-wal", "-shm"}) QFile::remove(ziel + QLatin1String(anhang));
    if (!QFile::copy(Ordner_ + u'/' + Von + QStringLiteral(".mdb"), ziel)) return false;
    // Else the run would wait for the disk that still takes the copy.
    QFile kopie(ziel);
    return kopie.open(QIODevice::ReadWrite) && fsync(kopie.handle()) == 0;
  }

  QString Ordner_;
  int Anzahl_;
};

void Verhaeltnis_zeigen(const char *Was, double A, double B, double Ziel) {
  std::printf("  %-46s %6.2f  (Ziel höchstens %.1f)%s\n", Was, A / B, Ziel,
              A / B <= Ziel ? "" : "  VERFEHLT");
}

int Alles_messen(int Anzahl, int Runden) {
  const QTemporaryDir ordner;
  Messung messung(ordner.path(), Anzahl);
  if (!ordner.isValid() || !messung.Vorbereiten()) {
    std::fprintf(stderr, "Die Messung konnte nicht vorbereitet werden.\n");
    return 1;
  }
  Reihe voll{"in eine Tabelle mit zehnmal so vielen", "produkt", QStringLiteral("voll")};
  Reihe grenze{"Untergrenze (von Hand)", "untergrenze", QStringLiteral("leer")};
  Reihe leer{"in eine leere Tabelle", "produkt", QStringLiteral("leer")};
  for (int runde = 0; runde < Runden; ++runde)
    for (Reihe *reihe : {&voll, &grenze, &leer}) messung.Runde(*reihe);

  std::printf(
      "Einlesen von %d Bestellungen zu je drei Positionen, Bestes aus %d; die Liste zeigt danach den "
      "Zeitraum\n"
      "\"aktuelles Jahr\", in allen Läufen dieselben Zeilen.\n",
      Anzahl, Runden);
  for (const Reihe *reihe : {&grenze, &leer, &voll})
    std::printf("  %-40s %8.3f s  (Rechenzeit %.3f s)  %7.1f MB\n", reihe->Titel, reihe->Bestes.Sekunden,
                reihe->Bestes.Rechenzeit, reihe->Bestes.Spitze_MB);
  Verhaeltnis_zeigen("Zeit zur Untergrenze", leer.Bestes.Sekunden, grenze.Bestes.Sekunden, 2.0);
  Verhaeltnis_zeigen("Rechenzeit zur Untergrenze", leer.Bestes.Rechenzeit, grenze.Bestes.Rechenzeit, 2.0);
  Verhaeltnis_zeigen("Zeit voll zu leer", voll.Bestes.Sekunden, leer.Bestes.Sekunden, 1.2);
  Verhaeltnis_zeigen("Rechenzeit voll zu leer", voll.Bestes.Rechenzeit, leer.Bestes.Rechenzeit, 1.2);
  Verhaeltnis_zeigen("Speicherspitze voll zu leer", voll.Bestes.Spitze_MB, leer.Bestes.Spitze_MB, 1.2);
  const int abweichungen = messung.Abweichungen();
  const bool gut = voll.Gut && grenze.Gut && leer.Gut && abweichungen == 0;
  if (!gut) std::printf("FEHLER: nicht alle Bestellungen kamen gleich an (%d Abweichungen).\n", abweichungen);
  return gut ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  using namespace marklink::messung;
  if (argc == 5 && std::strcmp(argv[1], "--teil") == 0) return Teil_ausfuehren(argv[2], argv[3], argv[4]);
  const bool schnell = argc > 1 && std::strcmp(argv[1], "--schnell") == 0;
  return schnell ? Alles_messen(1000, 3) : Alles_messen(10000, 5);
}
