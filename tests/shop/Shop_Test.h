// Fixture: a recording shop, a host configuration, and a temporary folder of its own for the reply file.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "host/Ini.h"
#include "host/Kontext.h"
#include "shop/Aktionen.h"
#include "shop/Http_Abruf.h"
#include "support/Shop_Attrappe.h"
#include "support/Testdateien.h"

namespace marklink::test {

inline const QByteArray Alter_Inhalt = "<?xml version=\"1.0\"?><ALT/>";
inline const QByteArray Kurzes_XML = "<?xml version=\"1.0\"?><STATUS/>";

class Shop_Test : public ::testing::Test {
 protected:
  Shop_Test() : Tmp_vorher_(qgetenv("TMPDIR")) {
    qputenv("TMPDIR", Ordner.path().toLocal8Bit());
    Kontext = {};
    Kontext.gHostkonfiguration = Ordner.filePath(u"varda.ini"_qs);
    Exportdatei_setzen(u"antwort.xml"_qs);
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
    Ini_schreiben(Kontext.gHostkonfiguration, u"Marklink"_qs, u"exportfile"_qs, Name);
  }
  QString Antwortdatei() const { return Ordner.filePath(u"antwort.xml"_qs); }
  /// Files in the temporary folder besides the configuration.
  QStringList Dateien() const {
    QStringList namen = QDir(Ordner.path()).entryList(QDir::Files | QDir::System, QDir::Name);
    namen.removeAll(u"varda.ini"_qs);
    return namen;
  }
  /// The shop says nothing else from now on.
  void Immer(const Shop_Antwort &Antwort) {
    Shop.Skript_setzen([Antwort](const QByteArray &) { return Antwort; });
  }
  static QString Bestellungen() { return Daten_abrufen(Abrufen::Bestellungen, {}); }

  QTemporaryDir Ordner;
  Shop_Attrappe Shop;

 private:
  QByteArray Tmp_vorher_;
};

}  // namespace marklink::test
