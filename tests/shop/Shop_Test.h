// Fixture: a recording shop, a host configuration, and a temporary folder of its own for the reply file.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "host/Ini.h"
#include "host/Kontext.h"
#include "shop/Aktionen.h"
#include "shop/Http_Abruf.h"
#include "support/Shop_Attrappe.h"

namespace marklink::test {

inline const QByteArray Alter_Inhalt = "<?xml version=\"1.0\"?><ALT/>";
inline const QByteArray Kurzes_XML = "<?xml version=\"1.0\"?><STATUS/>";

class Shop_Test : public ::testing::Test {
 protected:
  Shop_Test() : Tmp_vorher_(qgetenv("TMPDIR")) {
    qputenv("TMPDIR", Ordner.path().toLocal8Bit());
    Kontext = {};
    Kontext.gHostkonfiguration = Ordner.filePath(QStringLiteral("varda.ini"));
    Exportdatei_setzen(QStringLiteral("antwort.xml"));
    Shop.Einsetzen();
    gAktion.clear();
    gAktion_Url.clear();
  }
  ~Shop_Test() override {
    austauschgrenzen() = {};
    Kontext = {};
    if (Tmp_vorher_.isNull())
      qunsetenv("TMPDIR");
    else
      qputenv("TMPDIR", Tmp_vorher_);
  }

  void Exportdatei_setzen(const QString &Name) const {
    Ini_schreiben(Kontext.gHostkonfiguration, QStringLiteral("Marklink"), QStringLiteral("exportfile"), Name);
  }
  QString Antwortdatei() const { return Ordner.filePath(QStringLiteral("antwort.xml")); }
  static QByteArray Lesen(const QString &Pfad) {
    QFile datei(Pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("(keine Datei)");
  }
  static void Schreiben(const QString &Pfad, const QByteArray &Inhalt) {
    QFile datei(Pfad);
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(Inhalt);
  }
  /// Files in the temporary folder besides the configuration.
  QStringList Dateien() const {
    QStringList namen = QDir(Ordner.path()).entryList(QDir::Files | QDir::System, QDir::Name);
    namen.removeAll(QStringLiteral("varda.ini"));
    return namen;
  }
  static QString Bestellungen() { return Daten_abrufen(Abrufen::Bestellungen, {}); }

  QTemporaryDir Ordner;
  Shop_Attrappe Shop;

 private:
  QByteArray Tmp_vorher_;
};

}  // namespace marklink::test
