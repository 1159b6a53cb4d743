// The launcher's FTP client against a real server.
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

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

namespace marklink::test {
namespace {

class FTP_Server {
 public:
  explicit FTP_Server(bool Tls) {
    QDir(Ordner()).mkpath(QStringLiteral("gesperrt"));
    const QString zertifikat = Wurzel_.filePath(QStringLiteral("z.pem"));
    if (Tls) Zertifikat_anlegen(zertifikat);
    Prozess_.setProcessChannelMode(QProcess::MergedChannels);
    // Debian's own interpreter: another one would not find Debian's packages.
    Prozess_.start(QStringLiteral("/usr/bin/python3"),
                   QStringList{QStringLiteral(MARKLINK_TESTORDNER "/ftp_server.py"), Ordner()} +
                       (Tls ? QStringList{zertifikat} : QStringList{}));
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

  QString Ordner() const { return Wurzel_.filePath(QStringLiteral("server")); }
  QByteArray Datei(const char *Pfad) const {
    return Launcher::Lesen(Ordner() + u'/' + QString::fromUtf8(Pfad));
  }
  QString Adresse() const { return QStringLiteral("127.0.0.1:%1").arg(Port_); }
  /// The commands since the last call, the login's password left out.
  QByteArray Befehle() {
    while (Prozess_.waitForReadyRead(50)) continue;
    return Prozess_.readAll();
  }

 private:
  /// Key and a certificate that nobody vouches for, in one file.
  static void Zertifikat_anlegen(const QString &Datei) {
    const QString oeffentlich = Datei + QStringLiteral(".crt");
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  Worte("req -x509 -newkey rsa:2048 -nodes -subj /CN=127.0.0.1 -keyout") +
                      QStringList{Datei, QStringLiteral("-out"), oeffentlich});
    ASSERT_TRUE(openssl.waitForFinished());
    Launcher::Schreiben(Datei, Launcher::Lesen(Datei) + Launcher::Lesen(oeffentlich));
  }

  QTemporaryDir Wurzel_;
  QProcess Prozess_;
  quint16 Port_ = 0;
};

/// A port where connections are taken and nobody answers.
class Stummer_Server {
 public:
  Stummer_Server() {
    sockaddr_in ort{};
    ort.sin_family = AF_INET;
    ort.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t laenge = sizeof ort;
    EXPECT_TRUE(::bind(Sockel_, reinterpret_cast<sockaddr *>(&ort), laenge) == 0 &&
                ::listen(Sockel_, 5) == 0 &&
                ::getsockname(Sockel_, reinterpret_cast<sockaddr *>(&ort), &laenge) == 0);
    Adresse = QStringLiteral("127.0.0.1:%1").arg(ntohs(ort.sin_port));
  }
  ~Stummer_Server() { ::close(Sockel_); }
  Stummer_Server(const Stummer_Server &) = delete;
  Stummer_Server &operator=(const Stummer_Server &) = delete;
  QString Adresse;

 private:
  int Sockel_ = ::socket(AF_INET, SOCK_STREAM, 0);
};

class FTP_Test : public ::testing::TestWithParam<bool> {
 protected:
  FTP_Test() : Server(GetParam()) {
    Kontext.gFirmenname = QStringLiteral("Test");
    Komponente_->Aufrufen(QStringLiteral("Initialisierung"), Start_);
    Launcher::Schreiben(Lokal, "<?php // neu");
  }
  ~FTP_Test() override {
    Kontext = {};
    ftpgrenzen() = {};
  }

  bool Aufrufen(const char *Operation, const QVariantList &Weitere,
                const QString &Passwort = QStringLiteral("geheim"), const QString &Adresse = {}) {
    QVariantList argumente{Adresse.isEmpty() ? Server.Adresse() : Adresse, QStringLiteral("u"), Passwort};
    argumente += Weitere;
    return Komponente_->Aufrufen(QLatin1String(Operation), argumente).toBool();
  }

  QTemporaryDir Eigener;
  const QString Lokal = Eigener.filePath(QStringLiteral("mark link#.php"));
  FTP_Server Server;

 private:
  QVariantList Start_{QStringLiteral("Test"), QStringLiteral("Chef")};
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
    const QVariantList gesucht{ordner, QStringLiteral("mark link#.php")};
    EXPECT_FALSE(Aufrufen("FTP_Datei_exists", gesucht)) << fall.Ordner;
    for (const QByteArray inhalt : {"<?php // eine lange erste Fassung", "<?php"}) {
      Launcher::Schreiben(Lokal, inhalt);
      EXPECT_TRUE(Aufrufen("FTP_Upload", {ordner, Lokal})) << fall.Ordner;
      EXPECT_EQ(Server.Datei(fall.Datei), inhalt) << fall.Ordner;
    }
    EXPECT_TRUE(Aufrufen("FTP_Datei_exists", gesucht)) << fall.Ordner;
    EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {ordner, QStringLiteral("mark")})) << fall.Ordner;
  }
  EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {QStringLiteral("/httpdocs/"), QStringLiteral("shop")}))
      << "a folder is no file";
  const QByteArray befehle = Server.Befehle();
  EXPECT_TRUE(befehle.contains("EPSV")) << befehle.toStdString();
  EXPECT_FALSE(befehle.contains("PORT")) << "never active";
  EXPECT_EQ(befehle.contains("PROT P"), GetParam()) << "the files are encrypted as well as the login";
}

TEST_P(FTP_Test, Fehlschlaege_sind_still_und_verraten_kein_Passwort) {
  ftpgrenzen().Verbinden_ms = 300;
  const Stummer_Server stumm;
  const QString ohne_server = Stummer_Server().Adresse, richtig = QStringLiteral("geheim");
  const struct {
    const char *Fall;
    QString Adresse, Passwort, Ordner, Datei, Grund;
  } faelle[] = {
      {"wrong password", {}, QStringLiteral("verraten"), {}, Lokal, QStringLiteral("Access denied")},
      {"server gone", ohne_server, richtig, {}, Lokal, QStringLiteral("connect")},
      {"server silent", stumm.Adresse, richtig, {}, Lokal, QStringLiteral("time")},
      {"folder closed", {}, richtig, QStringLiteral("/gesperrt/"), Lokal, QStringLiteral("550")},
      {"folder below a closed one",
       {},
       richtig,
       QStringLiteral("/gesperrt/neu/"),
       Lokal,
       QStringLiteral("denied")},
      {"no local file", {}, richtig, {}, Lokal + u'x', QStringLiteral("local file")},
      {"local folder", {}, richtig, {}, Eigener.path(), QStringLiteral("local file")},
      {"no server", QStringLiteral(" "), richtig, {}, Lokal, QStringLiteral("server name")},
      {"impossible server", QStringLiteral("a b"), richtig, {}, Lokal, QStringLiteral("server name")},
      {"second command in the password",
       {},
       QStringLiteral("geheim\r\nDELE x"),
       {},
       Lokal,
       QStringLiteral("login")},
      {"second command in the folder", {}, richtig, QStringLiteral("a\r\nDELE x/"), Lokal, {}},
      {"check asked for",
       QStringLiteral("ftps://") + Server.Adresse(),
       richtig,
       {},
       Lokal,
       GetParam() ? QStringLiteral("certificate") : QStringLiteral("SSL")},
  };
  for (const auto &fall : faelle) {
    qputenv("MARKLINK_TRACE", "1");
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(Aufrufen("FTP_Upload", {fall.Ordner, fall.Datei}, fall.Passwort, fall.Adresse)) << fall.Fall;
    const QString spur = QString::fromStdString(::testing::internal::GetCapturedStderr());
    qunsetenv("MARKLINK_TRACE");
    EXPECT_TRUE(spur.contains(fall.Grund)) << fall.Fall << ": " << spur.toStdString();
    EXPECT_FALSE(spur.contains(QLatin1String("geheim")) || spur.contains(QLatin1String("verraten")))
        << fall.Fall;
  }
  EXPECT_EQ(QDir(Server.Ordner()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("gesperrt")});
  EXPECT_TRUE(QDir(Server.Ordner() + QStringLiteral("/gesperrt")).isEmpty());
  EXPECT_FALSE(Aufrufen("FTP_Verbindungstest", {}, QStringLiteral("verraten")));
  EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {QStringLiteral("/fehlt/"), QStringLiteral("x")}));
  EXPECT_FALSE(Aufrufen("FTP_Datei_exists", {QString(), QString()}));
}

TEST_P(FTP_Test, ein_neuer_Mandant_bringt_sein_Script_auf_den_Server) {
  const Launcher l;
  ASSERT_EQ(l.Starten("mandant anlegen Test").Ausgang, 0);
  Programmordner_setzen(l.Ordner());
  Programm_initialisieren();
  Mandant_initialisieren();
  for (const auto &[schluessel, wert] :
       {std::pair{"ftphostname", Server.Adresse()}, std::pair{"ftpusername", QStringLiteral("u")},
        std::pair{"ftppassword", QStringLiteral("geheim")}, std::pair{"ftpfolder", QStringLiteral("/web/")}})
    Option_schreiben(QStringLiteral("Marklink"), QLatin1String(schluessel), wert);
  const QString begleiter =
      Ini_lesen(l.Datei("varda.ini"), QStringLiteral("Marklink"), QStringLiteral("exportfile"));
  Launcher_Komponenten komponenten;
  Host_Komponenten_setzen(&komponenten);
  Dialoge_Skript skript;
  skript.Erwarten(QStringLiteral("Fehler"));
  FTP_Script_suchen();
  skript.Erwarten(QStringLiteral("Hinweis"));
  FTP_Script_hochladen();
  skript.Erwarten(QStringLiteral("Hinweis"));
  FTP_Script_suchen();
  Host_Komponenten_setzen(nullptr);
  Programmordner_setzen({});
  const QByteArray script = Server.Datei("web/marklink/marklink.php");
  EXPECT_TRUE(script.startsWith("<?php")) << "the script in one file";
  EXPECT_EQ(script, Launcher::Lesen(l.Datei("marklink.php")));
  EXPECT_TRUE(Server.Datei(("web/marklink/" + begleiter.toUtf8()).constData()).startsWith("<?php"));
}

}  // namespace
}  // namespace marklink::test
