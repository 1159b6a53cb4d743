// An encrypted shop with a certificate that nobody vouches for gets no request, login included.
#include <QProcess>
#include <QStandardPaths>

#include "Shop_Test.h"

namespace marklink {
namespace {

using Verschluesselung_Test = test::Shop_Test;

TEST_F(Verschluesselung_Test, selbst_gemachtes_Zertifikat_wird_abgelehnt) {
  if (QStandardPaths::findExecutable(QStringLiteral("openssl")).isEmpty()) GTEST_SKIP() << "no openssl";
  const QString schluessel = Ordner.filePath(QStringLiteral("k.pem")),
                zertifikat = Ordner.filePath(QStringLiteral("z.pem"));
  QProcess anlegen;
  anlegen.start(QStringLiteral("openssl"),
                {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                 QStringLiteral("ec"), QStringLiteral("-pkeyopt"), QStringLiteral("ec_paramgen_curve:P-256"),
                 QStringLiteral("-nodes"), QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1"),
                 QStringLiteral("-keyout"), schluessel, QStringLiteral("-out"), zertifikat});
  ASSERT_TRUE(anlegen.waitForFinished());
  QProcess server;
  server.setProcessChannelMode(QProcess::MergedChannels);
  server.start(QStringLiteral("openssl"), {QStringLiteral("s_server"), QStringLiteral("-accept"),
                                           QStringLiteral("127.0.0.1:0"), QStringLiteral("-key"), schluessel,
                                           QStringLiteral("-cert"), zertifikat, QStringLiteral("-www")});
  QByteArray ausgabe;
  QByteArray port;
  while (port.isEmpty() && server.waitForReadyRead(5000)) {
    ausgabe += server.readAll();
    const qsizetype ort = ausgabe.indexOf("ACCEPT 127.0.0.1:");
    if (ort >= 0 && ausgabe.indexOf('\n', ort) > 0)
      port = ausgabe.mid(ort + 17, ausgabe.indexOf('\n', ort) - ort - 17).trimmed();
  }
  ASSERT_FALSE(port.isEmpty()) << ausgabe.toStdString();

  Kontext.gHostname = QStringLiteral("https://127.0.0.1");
  Kontext.gPort = QString::fromLatin1(port);
  Schreiben(Antwortdatei(), test::Alter_Inhalt);
  qputenv("MARKLINK_TRACE", "1");
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(Bestellungen(), QString());
  const std::string grund = ::testing::internal::GetCapturedStderr();
  qunsetenv("MARKLINK_TRACE");
  EXPECT_NE(grund.find("certificate"), std::string::npos) << grund;
  EXPECT_EQ(Lesen(Antwortdatei()), test::Alter_Inhalt);
  server.kill();
  server.waitForFinished();
}

}  // namespace
}  // namespace marklink
