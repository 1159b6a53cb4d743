// An encrypted shop with a certificate that nobody vouches for gets no request, login included.
#include <QProcess>
#include <QStandardPaths>

#include "Shop_Test.h"

namespace marklink {
namespace {

using Verschluesselung_Test = test::Shop_Test;

TEST_F(Verschluesselung_Test, selbst_gemachtes_Zertifikat_wird_abgelehnt) {
  if (QStandardPaths::findExecutable(u"openssl"_qs).isEmpty()) GTEST_SKIP() << "no openssl";
  const QString schluessel = Ordner.filePath(u"k.pem"_qs), zertifikat = Ordner.filePath(u"z.pem"_qs);
  const auto worte = [](const QString &zeile) { return zeile.split(u' '); };
  QProcess anlegen;
  anlegen.start(u"openssl"_qs,
                worte(u"req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=127.0.0.1 "
                      "-keyout %1 -out %2"_qs.arg(schluessel, zertifikat)));
  ASSERT_TRUE(anlegen.waitForFinished());
  QProcess server;
  server.setProcessChannelMode(QProcess::MergedChannels);
  server.start(u"openssl"_qs,
               worte(u"s_server -accept 127.0.0.1:0 -key %1 -cert %2 -www"_qs.arg(schluessel, zertifikat)));
  QByteArray ausgabe;
  QByteArray port;
  while (port.isEmpty() && server.waitForReadyRead(5000)) {
    ausgabe += server.readAll();
    const qsizetype ort = ausgabe.indexOf("ACCEPT 127.0.0.1:");
    if (ort >= 0 && ausgabe.indexOf('\n', ort) > 0)
      port = ausgabe.mid(ort + 17, ausgabe.indexOf('\n', ort) - ort - 17).trimmed();
  }
  ASSERT_FALSE(port.isEmpty()) << ausgabe.toStdString();

  Kontext.gHostname = u"https://127.0.0.1"_qs;
  Kontext.gPort = QString::fromLatin1(port);
  test::Datei_schreiben(Antwortdatei(), test::Alter_Inhalt);
  const std::string grund = test::Spur([] { EXPECT_EQ(Bestellungen(), QString()); });
  EXPECT_NE(grund.find("certificate"), std::string::npos) << grund;
  EXPECT_EQ(test::Datei_lesen(Antwortdatei()), test::Alter_Inhalt);
  server.kill();
  server.waitForFinished();
}

}  // namespace
}  // namespace marklink
