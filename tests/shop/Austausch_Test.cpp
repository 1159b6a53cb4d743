// The exchange: what goes over the wire, what lands in the reply file, and what a bad server cannot do.
#include "shop/Austausch.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFileInfo>

#include "Shop_Test.h"
#include "shop/Serveradresse.h"

namespace marklink {
namespace {

using Austausch_Test = test::Shop_Test;
using test::Alter_Inhalt;
using test::Datei_lesen;
using test::Datei_schreiben;
using test::Kurzes_XML;
using test::Shop_Antwort;
using test::Unart;

TEST_F(Austausch_Test, Anfrage_Byte_fuer_Byte) {
  Shop.Antworten("get_customers", Shop_Antwort{Kurzes_XML});
  EXPECT_EQ(Daten_abrufen(Abrufen::Kunden, {}), Antwortdatei());
  ASSERT_EQ(Shop.Anfragen().size(), 1U);
  EXPECT_EQ(Shop.Anfragen()[0].toStdString(),
            "GET /shop/marklink.php?action=get_customers&user=u&password=0123456789abcdef0123456789abcdef "
            "HTTP/1.1\r\n"
            "Accept: image/gif, image/x-xbitmap, image/jpeg, image/pjpeg, application/x-shockwave-flash, "
            "application/vnd.ms-excel, application/msword, application/vnd.ms-powerpoint, */*\r\n"
            "Accept-Encoding: deflate\r\n"
            "User-Agent: Tennwerk Varda\r\n"
            "Host: 127.0.0.1\r\n"
            "Connection: Keep-Alive\r\n"
            "\r\n");
}

TEST_F(Austausch_Test, was_die_Antwortdatei_behaelt) {
  const struct {
    QByteArray Rumpf, Datei;
  } faelle[] = {
      {"<?xml version=\"1.0\"?><A/>", "<?xml version=\"1.0\"?><A/>\r\n"},
      {"<br />Warning: x\n<?xml version=\"1.0\"?><A/>\n", "<?xml version=\"1.0\"?><A/>\n\r\n"},
      {"\xEF\xBB\xBF<?xml version='1.0'?><A/>", "<?xml version='1.0'?><A/>\r\n"},
      {"x<?xml version=\"1.0\"?><A/><?xml version=\"1.0\"?><B/>",
       "<?xml version=\"1.0\"?><A/><?xml version=\"1.0\"?><B/>\r\n"},
      {QByteArray("<?xml version=\"1.0\"?><A>\xFC\x80\x81\0\r\n</A>", 32),
       QByteArray("<?xml version=\"1.0\"?><A>\xFC\x80\x81\0\r\n</A>", 32) + "\r\n"},
      {"", ""},
      {"Fatal error: <?xml encoding", ""},
  };
  Datei_schreiben(Antwortdatei(), Alter_Inhalt.repeated(20));
  for (const auto &fall : faelle) {  // each over the longer or shorter one before
    SCOPED_TRACE(fall.Rumpf.toStdString());
    Immer({fall.Rumpf});
    EXPECT_EQ(Bestellungen(), Antwortdatei());
    EXPECT_EQ(Datei_lesen(Antwortdatei()).toStdString(), fall.Datei.toStdString());
  }
  EXPECT_EQ(Dateien(), QStringList{u"antwort.xml"_qs});
}

TEST_F(Austausch_Test, Fehlschlag_laesst_die_alte_Antwort_stehen) {
  austauschgrenzen().Stille_ms = 250;
  austauschgrenzen().Hoechstgroesse = 1 << 20;
  const QByteArray umleitung = "Location: http://127.0.0.1:" + QByteArray::number(Shop.Port()) + "/anderswo";
  const struct {
    const char *Name;
    Shop_Antwort Antwort;
  } faelle[] = {
      {"401", {Kurzes_XML, 401, {"WWW-Authenticate: Basic realm=\"x\""}}},
      {"404", {Kurzes_XML, 404}},
      {"500", {Kurzes_XML, 500}},
      {"201", {Kurzes_XML, 201}},
      {"302", {Kurzes_XML, 302, {umleitung}}},
      {"closed", {Kurzes_XML, 200, {}, Unart::Schliessen}},
      {"cut", {Kurzes_XML, 200, {}, Unart::Abschneiden}},
      {"endless", {Kurzes_XML + QByteArray(50'000, 'x'), 200, {}, Unart::Endlos}},
      {"silent", {Kurzes_XML, 200, {}, Unart::Schweigen}},
      {"stuck", {Kurzes_XML, 200, {}, Unart::Steckenbleiben}},
      {"huge", {Kurzes_XML + QByteArray(2 << 20, 'x')}},
      {"bomb", {qCompress(Kurzes_XML + QByteArray(8 << 20, 'x')).mid(4), 200, {"Content-Encoding: deflate"}}},
      {"not packed", {Kurzes_XML, 200, {"Content-Encoding: deflate"}}},
      {"unknown packing", {Kurzes_XML, 200, {"Content-Encoding: rar"}}},
  };
  Datei_schreiben(Antwortdatei(), Alter_Inhalt);
  for (const auto &fall : faelle) {
    SCOPED_TRACE(fall.Name);
    Shop.Vergessen();
    Immer(fall.Antwort);
    EXPECT_EQ(Bestellungen(), QString());
    EXPECT_EQ(Datei_lesen(Antwortdatei()), Alter_Inhalt);
    for (const QByteArray &kopf : Shop.Anfragen()) EXPECT_FALSE(kopf.contains("/anderswo"));
  }
  Immer({Kurzes_XML});
  EXPECT_EQ(Bestellungen(), Antwortdatei()) << "the next exchange has to work again";
}

TEST_F(Austausch_Test, gepackte_Antwort) {
  const QByteArray zlib = qCompress(Kurzes_XML).mid(4);
  for (const QByteArray &gepackt : {zlib, zlib.mid(2).chopped(4)}) {  // with and without the zlib frame
    Immer({gepackt, 200, {"Content-Encoding: deflate"}});
    EXPECT_EQ(Bestellungen(), Antwortdatei());
    EXPECT_EQ(Datei_lesen(Antwortdatei()).toStdString(), (Kurzes_XML + "\r\n").toStdString());
  }
}

TEST_F(Austausch_Test, Server_nicht_erreichbar) {
  Datei_schreiben(Antwortdatei(), Alter_Inhalt);
  quint16 frei = 0;
  {
    const test::Shop_Attrappe kurz;
    frei = kurz.Port();
  }
  Kontext.gPort = QString::number(frei);
  EXPECT_EQ(Bestellungen(), QString());
  for (const char *host : {"", "gibt.es.nicht.invalid", "http://", "a b", "u:p@127.0.0.1"}) {
    Kontext.gHostname = QLatin1String(host);
    EXPECT_EQ(Bestellungen(), QString()) << host;
  }
  EXPECT_EQ(Datei_lesen(Antwortdatei()), Alter_Inhalt);
}

TEST_F(Austausch_Test, Anmeldung_nur_auf_Verlangen) {
  const auto bewacht = [](const char *aufforderung) {
    return [aufforderung](const QByteArray &kopf) {
      return kopf.contains("\r\nAuthorization:") ? Shop_Antwort{Kurzes_XML}
                                                 : Shop_Antwort{"nein", 401, {aufforderung}};
    };
  };
  const struct {
    const char *Aufforderung;
    const char16_t *Benutzer;
    const char *Kopfzeile;  // nullptr: only one request without it
  } faelle[] = {{"WWW-Authenticate: Basic realm=\"Shop\"", u"jörg", "Authorization: Basic avZyZzpwOnc=\r\n"},
                {"WWW-Authenticate: Basic realm=\"Shop\"", u"", nullptr},
                {"WWW-Authenticate: Digest realm=\"Shop\", nonce=\"1\"", u"jörg", nullptr}};
  Kontext.gHtaccessPassword = u"p:w"_qs;
  for (const auto &fall : faelle) {
    SCOPED_TRACE(fall.Aufforderung);
    Kontext.gHtaccessUsername = QString::fromUtf16(fall.Benutzer);
    Shop.Vergessen();
    Shop.Skript_setzen(bewacht(fall.Aufforderung));
    EXPECT_EQ(Bestellungen(), fall.Kopfzeile ? Antwortdatei() : QString());
    const auto anfragen = Shop.Anfragen();
    ASSERT_EQ(anfragen.size(), fall.Kopfzeile ? 2U : 1U);
    EXPECT_FALSE(anfragen[0].contains("Authorization"));
    if (fall.Kopfzeile) {
      EXPECT_TRUE(anfragen[1].endsWith(QByteArray(fall.Kopfzeile) + "\r\n")) << anfragen[1].toStdString();
      EXPECT_EQ(anfragen[1].left(anfragen[0].size() - 2), anfragen[0].chopped(2));
    }
    EXPECT_LE(Shop.Verbindungen(), 1);
  }
  Kontext.gHtaccessUsername = u"dir"_qs;
  Shop.Vergessen();
  Immer({Kurzes_XML});
  Bestellungen();
  EXPECT_FALSE(Shop.Anfragen()[0].contains("Authorization"));
}

TEST_F(Austausch_Test, eine_Einstellung_kann_keine_Anfrage_spalten) {
  Immer({Kurzes_XML});
  for (QString *wert : {&Kontext.gUsername, &Kontext.gUrl, &Kontext.gHostname, &Kontext.gPort})
    for (const char16_t *boese : {u"\r\nX: 1", u"\n\nGET / HTTP/1.1\r\n", u"a\rb", u"a\tb"}) {
      const QString vorher = *wert;
      *wert += QString::fromUtf16(boese);
      EXPECT_EQ(Bestellungen(), QString());
      *wert = vorher;
    }
  EXPECT_TRUE(Shop.Anfragen().empty());
}

TEST_F(Austausch_Test, was_in_keiner_Anfragezeile_stehen_darf_geht_verschluesselt_hinaus) {
  Immer({Kurzes_XML});
  Kontext.gUsername = u"Jörg #1"_qs;
  EXPECT_EQ(Daten_abrufen(Abrufen::Bestellungen, u"&order_status='1','3'"_qs), Antwortdatei());
  EXPECT_TRUE(Shop.Anfragen()[0].startsWith(
      "GET /shop/marklink.php?action=get_orders&user=J%F6rg%20%231&password=0123456789abcdef0123456789abcdef"
      "&order_status='1','3' HTTP/1.1\r\n"));
  EXPECT_TRUE(gAktion_Url.contains(u"&user=Jörg #1&"_qs));
}

TEST_F(Austausch_Test, Antwortdatei_gehoert_nur_dem_Eigner) {
  Immer({Kurzes_XML});
  const QString opfer = Ordner.filePath(u"opfer"_qs);
  const QByteArray von = QFile::encodeName(opfer), nach = QFile::encodeName(Antwortdatei());
  Datei_schreiben(opfer, Alter_Inhalt);
  QFile::setPermissions(opfer, QFile::ReadOwner | QFile::WriteOwner);
  for (const auto verweisen : {&::symlink, &::link}) {  // to a file that we could write to
    QFile::remove(Antwortdatei());
    ASSERT_EQ(verweisen(von.constData(), nach.constData()), 0);
    EXPECT_EQ(Bestellungen(), Antwortdatei());
    EXPECT_EQ(Datei_lesen(opfer), Alter_Inhalt);
  }
  struct stat lage {};
  ASSERT_EQ(::lstat(nach.constData(), &lage), 0);
  EXPECT_TRUE(S_ISREG(lage.st_mode));
  EXPECT_EQ(lage.st_mode & 0777, 0600U);

  ASSERT_EQ(::chmod(nach.constData(), 0666), 0);
  Bestellungen();
  EXPECT_EQ(QFileInfo(Antwortdatei()).permissions() & (QFile::ReadGroup | QFile::ReadOther),
            QFile::Permissions());

  QFile::remove(Antwortdatei());
  ASSERT_TRUE(QDir().mkdir(Antwortdatei()));
  EXPECT_EQ(Bestellungen(), QString());
  EXPECT_EQ(Dateien(), QStringList{u"opfer"_qs}) << "nothing may be left over";
}

TEST_F(Austausch_Test, Umgebung_leitet_nicht_um) {
  Immer({Kurzes_XML});
  for (const char *name : {"http_proxy", "all_proxy"}) qputenv(name, "http://127.0.0.1:1");
  EXPECT_EQ(Bestellungen(), Antwortdatei());
  for (const char *name : {"http_proxy", "all_proxy"}) qunsetenv(name);
}

class Anzeige_Skript : public Verbindungsanzeige {
 public:
  void Status(const QString &Statustext) override { Texte << Statustext; }
  void Verbunden(bool Ja) override { Lampe.push_back(Ja); }
  void Uebertragen(qint64 s, qint64 r) override {
    Gesendet = s;
    Empfangen = r;
  }
  bool Abbrechen() override { return ++Gefragt > Geduld; }

  QStringList Texte;
  std::vector<bool> Lampe;
  qint64 Gesendet = 0, Empfangen = 0;
  int Gefragt = 0, Geduld = 1'000'000;
};

TEST_F(Austausch_Test, Anzeige_und_Abbruch) {
  Verbindungsauftrag auftrag;
  auftrag.Host = u"127.0.0.1"_qs;
  auftrag.Port = QString::number(Shop.Port());
  auftrag.URL = u"/x?action=get_orders"_qs;
  auftrag.Header = u"GET /x HTTP/1.1\r\nHost: h\r\n\r\n"_qs;
  auftrag.xmlDatei = Antwortdatei();
  auftrag.Statustext = u"Moment"_qs;
  Shop.Antworten("get_orders", Shop_Antwort{Kurzes_XML});
  Anzeige_Skript anzeige;
  Winsock_initialisieren(auftrag, &anzeige);
  EXPECT_EQ(auftrag.Action, 0);
  EXPECT_EQ(anzeige.Texte, QStringList{u"Moment"_qs});
  EXPECT_EQ(anzeige.Lampe, std::vector<bool>{true});
  EXPECT_EQ(anzeige.Gesendet, Shop.Anfragen()[0].size());
  EXPECT_GT(anzeige.Empfangen, Kurzes_XML.size());

  Immer({{}, 200, {}, Unart::Schweigen});
  Anzeige_Skript ungeduldig;
  ungeduldig.Geduld = 3;
  QElapsedTimer zeit;
  zeit.start();
  Winsock_initialisieren(auftrag, &ungeduldig);
  EXPECT_EQ(auftrag.Action, 1);
  EXPECT_EQ(ungeduldig.Lampe, (std::vector<bool>{true, false}));
  EXPECT_LT(zeit.elapsed(), 2000);
}

TEST_F(Austausch_Test, Ablaufverfolgung_ohne_Anmeldung_und_Daten) {
  Shop.Antworten("get_orders", Shop_Antwort{"KARTE 4111", 500});
  Kontext.gHtaccessUsername = u"dir"_qs;
  Kontext.gHtaccessPassword = u"geheim"_qs;
  const std::string zeile = test::Spur([] { Daten_abrufen(Abrufen::Bestellungen, u"&comments=privat"_qs); });
  EXPECT_NE(zeile.find("get_orders: status 500\n"), std::string::npos) << zeile;
  for (const char *wort : {"user", "0123456789abcdef", "privat", "4111", "geheim"})
    EXPECT_EQ(zeile.find(wort), std::string::npos) << wort;
}

TEST(Serveradresse_Test, aus_der_Einstellung) {
  const struct {
    const char16_t *Host;
    const char *Port, *Name, *Url;
  } faelle[] = {
      {u"www.shop.de", "", "www.shop.de", "http://www.shop.de/"},
      {u"www.shop.de", "80", "www.shop.de", "http://www.shop.de:80/"},
      {u"https://www.shop.de/", "", "www.shop.de", "https://www.shop.de/"},
      {u"HTTPS://www.shop.de", " 8443 ", "www.shop.de", "https://www.shop.de:8443/"},
      {u" http://10.0.0.5:8080/ ", "", "10.0.0.5:8080", "http://10.0.0.5:8080/"},
      {u"shop.de:8080", "81", "shop.de:8080", "http://shop.de:81/"},
      {u"http://[::1]", "8080", "[::1]", "http://[::1]:8080/"},
      {u"müller.de", "", "xn--mller-kva.de", "http://xn--mller-kva.de/"},
      {u"shop.de/pfad", "", "shop.de/pfad", ""},
      {u"ftp://shop.de", "", "ftp://shop.de", ""},
      {u"u@shop.de", "", "u@shop.de", ""},
      {u"shop.de", "0", "shop.de", ""},
      {u"shop.de", "65536", "shop.de", ""},
      {u"shop.de", "+80", "shop.de", ""},
      {u"", "80", "", ""},
  };
  for (const auto &fall : faelle) {
    const Serveradresse adresse =
        Serveradresse_lesen(QString::fromUtf16(fall.Host), QLatin1String(fall.Port));
    EXPECT_EQ(adresse.Name.toStdString(), fall.Name);
    EXPECT_EQ(Basis_Url(adresse).toStdString(), fall.Url) << fall.Name;
  }
}

}  // namespace
}  // namespace marklink
