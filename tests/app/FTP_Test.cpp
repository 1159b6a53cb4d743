// The launcher's FTP client against a real server.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "Ftp.h"
#include "Launcher.h"
#include "Launcher_Komponenten.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"
#include "shop/Skriptuebertragung.h"
#include "support/Dialoge_Skript.h"
#include "support/Shop_Attrappe.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

class FTP_Server {
 public:
  explicit FTP_Server(bool Tls) {
    QDir(Ordner()).mkpath(u"gesperrt"_qs);
    Prozess_.setProcessChannelMode(QProcess::MergedChannels);
    // Debian's own interpreter: another one would not find Debian's packages.
    Prozess_.start(u"/usr/bin/python3"_qs, {QStringLiteral(MARKLINK_TESTORDNER "/ftp_server.py"), Ordner(),
                                            Tls ? u"tls"_qs : u"offen"_qs});
    while (!Prozess_.canReadLine() && Prozess_.waitForReadyRead(20'000)) continue;
    const QByteArray erste = Prozess_.readLine();
    Port_ = erste.trimmed().toUShort();
    if (Port_ == 0) ADD_FAILURE() << erste.toStdString() << Prozess_.readAll().toStdString();
  }
  ~FTP_Server() {
    Prozess_.kill();
    Prozess_.waitForFinished();
  }
  FTP_Server(const FTP_Server &) = delete;
  FTP_Server &operator=(const FTP_Server &) = delete;

  QString Ordner() const { return Wurzel_.filePath(u"server"_qs); }
  QByteArray Datei(const QByteArray &Pfad) const {
    return Datei_lesen(Ordner() + u'/' + QString::fromUtf8(Pfad));
  }
  QString Adresse() const { return u"127.0.0.1:%1"_qs.arg(Port_); }
  /// The commands since the last call, the login's password left out.
  QByteArray Befehle() {
    while (Prozess_.waitForReadyRead(50)) continue;
    return Prozess_.readAll();
  }

 private:
  QTemporaryDir Wurzel_;
  QProcess Prozess_;
  quint16 Port_ = 0;
};

class FTP_Test : public ::testing::TestWithParam<bool> {
 protected:
  FTP_Test() : Server(GetParam()) {
    Kontext.gFirmenname = u"Test"_qs;
    Komponente_->Aufrufen(u"Initialisierung"_qs, Start_);
    Datei_schreiben(Lokal, "<?php // neu");
  }
  ~FTP_Test() override {
    Kontext = {};
    ftpgrenzen() = {};
  }

  bool Aufrufen(const char *Operation, const QVariantList &Weitere, const QString &Passwort = u"geheim"_qs,
                const QString &Adresse = {}) {
    QVariantList argumente{Adresse.isEmpty() ? Server.Adresse() : Adresse, u"u"_qs, Passwort};
    argumente += Weitere;
    return Komponente_->Aufrufen(QLatin1String(Operation), argumente).toBool();
  }

  QTemporaryDir Eigener;
  const QString Lokal = Eigener.filePath(u"mark link#.php"_qs);
  FTP_Server Server;

 private:
  QVariantList Start_{u"Test"_qs, u"Chef"_qs};
  std::unique_ptr<Host_Komponente> Komponente_ = Varda_erzeugen();
};
INSTANTIATE_TEST_SUITE_P(Tls, FTP_Test, ::testing::Bool());

TEST_P(FTP_Test, laedt_hoch_legt_Ordner_an_und_ersetzt) {
  const struct {
    const char *Ordner, *Datei;
  } faelle[] = {
      {"/httpdocs/shop/marklink/", "httpdocs/shop/marklink/mark link#.php"},
      {"httpdocs/../bilder", "bilder/mark link#.php"},
      {"", "mark link#.php"},
      {"/", "mark link#.php"},
  };
  EXPECT_TRUE(Aufrufen("FTP_Verbindungstest", {}));
  for (const auto &fall : faelle) {
    const QString ordner = QString::fromUtf8(fall.Ordner);
    QFile::remove(Server.Ordner() + u'/' + QString::fromUtf8(fall.Datei));
    const QVariantList gesucht{ordner, u"mark link#.php"_qs};
    EXPECT_FALSE(Aufrufen("FTP_Datei_exists", gesucht)) << fall.Ordner;
    for (const QByteArray inhalt : {"<?php // eine lange erste Fassung", "<?php"}) {
      Datei_schreiben(Lokal, inhalt);
      EXPECT_TRUE(Aufrufen("FTP_Upload", {ordner, Lokal})) << fall.Ordner;
      EXPECT_EQ(Server.Datei(fall.Datei), inhalt) << fall.Ordner;
    }
    EXPECT_TRUE(Aufrufen("FTP_Datei_exists", gesucht)) << fall.Ordner;
    EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {ordner, u"mark"_qs})) << fall.Ordner;
  }
  EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {u"/httpdocs/"_qs, u"shop"_qs})) << "a folder is no file";
  const QByteArray befehle = Server.Befehle();
  EXPECT_TRUE(befehle.contains("EPSV")) << befehle.toStdString();
  EXPECT_FALSE(befehle.contains("PORT")) << "never active";
  EXPECT_EQ(befehle.contains("PROT P"), GetParam()) << "the files are encrypted as well as the login";
}

TEST_P(FTP_Test, Fehlschlaege_sind_still_und_verraten_kein_Passwort) {
  ftpgrenzen().Verbinden_ms = 300;
  const auto adresse = [](const Shop_Attrappe &shop) { return u"127.0.0.1:%1"_qs.arg(shop.Port()); };
  const Shop_Attrappe stumm;  // takes connections, and has no greeting
  const QString niemand = adresse(Shop_Attrappe()), richtig = u"geheim"_qs;
  const struct {
    const char *Fall;
    QString Adresse, Passwort, Ordner, Datei, Grund;
  } faelle[] = {
      {"wrong password", {}, u"verraten"_qs, {}, Lokal, u"Access denied"_qs},
      {"server gone", niemand, richtig, {}, Lokal, u"connect"_qs},
      {"server silent", adresse(stumm), richtig, {}, Lokal, u"time"_qs},
      {"folder closed", {}, richtig, u"/gesperrt/"_qs, Lokal, u"550"_qs},
      {"folder below a closed one", {}, richtig, u"/gesperrt/neu/"_qs, Lokal, u"denied"_qs},
      {"no local file", {}, richtig, {}, Lokal + u'x', u"local file"_qs},
      {"local folder", {}, richtig, {}, Eigener.path(), u"local file"_qs},
      {"no server", u" "_qs, richtig, {}, Lokal, u"server name"_qs},
      {"impossible server", u"a b"_qs, richtig, {}, Lokal, u"server name"_qs},
      {"second command in the password", {}, u"geheim\r\nDELE x"_qs, {}, Lokal, u"login"_qs},
      {"second command in the folder", {}, richtig, u"a\r\nDELE x/"_qs, Lokal, {}},
      {"check asked for",
       u"ftps://"_qs + Server.Adresse(),
       richtig,
       {},
       Lokal,
       GetParam() ? u"certificate"_qs : u"SSL"_qs},
  };
  for (const auto &fall : faelle) {
    const QString spur = QString::fromStdString(Spur([&] {
      EXPECT_FALSE(Aufrufen("FTP_Upload", {fall.Ordner, fall.Datei}, fall.Passwort, fall.Adresse))
          << fall.Fall;
    }));
    EXPECT_TRUE(spur.contains(fall.Grund)) << fall.Fall << ": " << spur.toStdString();
    EXPECT_FALSE(spur.contains(QLatin1String("geheim")) || spur.contains(QLatin1String("verraten")))
        << fall.Fall;
  }
  EXPECT_EQ(QDir(Server.Ordner()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{u"gesperrt"_qs});
  EXPECT_TRUE(QDir(Server.Ordner() + u"/gesperrt"_qs).isEmpty());
  EXPECT_FALSE(Aufrufen("FTP_Verbindungstest", {}, u"verraten"_qs));
  EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {u"/fehlt/"_qs, u"x"_qs}));
  EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {QString(), QString()}));
}

TEST_P(FTP_Test, ein_neuer_Mandant_bringt_sein_Script_auf_den_Server) {
  const Launcher l;
  ASSERT_EQ(l.Starten("mandant anlegen Test").Ausgang, 0);
  Programmordner_setzen(l.Ordner());
  Programm_initialisieren();
  Mandant_initialisieren();
  for (const auto &[schluessel, wert] :
       {std::pair{"ftphostname", Server.Adresse()}, std::pair{"ftpusername", u"u"_qs},
        std::pair{"ftppassword", u"geheim"_qs}, std::pair{"ftpfolder", u"/web/"_qs}})
    Option_schreiben(u"Marklink"_qs, QLatin1String(schluessel), wert);
  const QString begleiter = Ini_lesen(l.Datei("varda.ini"), u"Marklink"_qs, u"exportfile"_qs);
  Launcher_Komponenten komponenten;
  Host_Komponenten_setzen(&komponenten);
  Dialoge_Skript skript;
  skript.Erwarten(u"Fehler"_qs);
  FTP_Script_suchen();
  skript.Erwarten(u"Hinweis"_qs);
  FTP_Script_hochladen();
  skript.Erwarten(u"Hinweis"_qs);
  FTP_Script_suchen();
  Host_Komponenten_setzen(nullptr);
  Programmordner_setzen({});
  const QByteArray script = Server.Datei("web/marklink/marklink.php");
  EXPECT_TRUE(script.startsWith("<?php")) << "the script in one file";
  EXPECT_EQ(script, Datei_lesen(l.Datei("marklink.php")));
  EXPECT_TRUE(Server.Datei("web/marklink/" + begleiter.toUtf8()).startsWith("<?php"));
}

}  // namespace
}  // namespace marklink::test
