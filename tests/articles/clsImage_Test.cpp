// Heads of picture files, and pictures scaled for a preview.
#include "articles/clsImage.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "articles/Bildflaeche.h"
#include "articles/clsBildfeld.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Testdateien.h"

namespace marklink {
namespace {

class clsImage_Test : public testing::Test {
 protected:
  QString Datei(const QByteArray &Bytes) {
    const QString pfad = Neuer_Pfad();
    test::Datei_schreiben(pfad, Bytes);
    return pfad;
  }
  QString Bild(const char *Format, QSize Groesse, const QColor &Farbe = Qt::red) {
    const QString pfad = Neuer_Pfad();
    QImage bild(Groesse, QImage::Format_RGB32);
    bild.fill(Farbe);
    EXPECT_TRUE(bild.save(pfad, Format));
    return pfad;
  }
  /// Names that say nothing of the content.
  QString Neuer_Pfad() { return u"%1/%2.jpg"_qs.arg(Ordner.path()).arg(++Nummer); }
  QTemporaryDir Ordner;
  int Nummer = 0;
};

TEST_F(clsImage_Test, Koepfe) {
  const auto h = [](const char *hex) { return QByteArray::fromHex(hex); };
  const struct {
    const char *Fall;
    QString Pfad;
    int Art, Breite, Hoehe, Tiefe;
  } faelle[] = {
      {"PNG", Bild("PNG", {300, 20}), clsImage::PNG, 300, 20, 24},
      {"BMP", Bild("BMP", {7, 258}), clsImage::BMP, 7, 258, 24},
      {"JPEG", Bild("JPG", {513, 4}), clsImage::JPEG, 513, 4, 24},
      {"GIF", Datei(h("474946383961 2C01 0A00 F7")), clsImage::GIF, 300, 10, 8},
      {"TIFF, byte order MM, a field of an unknown type",
       Datei(h("4D4D002A00000008 0003 0100 0003 00000001 012C0000 0101 0004 00000001 0000000A"
               "0102 0002 00000001 00080000")),
       clsImage::TIFF, 300, 10, 0},
      {"PCX", Datei(h("0A050108 0000 0000 2B01 0900") + QByteArray(53, 0) + h("03") + QByteArray(9, 0)),
       clsImage::PCX, 300, 10, 24},
      {"PNG of colour type 5", Datei(h("89504E470D0A1A0A0000000D494844520000000A0000000A0805")), 0, 0, 0, 0},
      {"JPEG that ends before its frame", Datei(h("FFD8FFE00010") + QByteArray(20, 0)), 0, 0, 0, 0},
      {"a lone TIFF mark", Datei("II*"), clsImage::TIFF, 0, 0, 0},
      {"text", Datei("kein Bild"), 0, 0, 0, 0},
      {"empty", Datei({}), 0, 0, 0, 0},
      {"no file", u"/gibt/es/nicht.png"_qs, 0, 0, 0, 0},
  };
  for (const auto &fall : faelle) {
    clsImage bild;
    bild.ReadImageInfo(fall.Pfad);
    EXPECT_EQ(bild.ImageType(), fall.Art) << fall.Fall;
    EXPECT_EQ(bild.Width(), fall.Breite) << fall.Fall;
    EXPECT_EQ(bild.Height(), fall.Hoehe) << fall.Fall;
    EXPECT_EQ(bild.Depth(), fall.Tiefe) << fall.Fall;
  }
}

TEST(Bildflaeche_Test, Passt_ein_und_zentriert) {
  const struct {
    QSize Bild, Ziel;
    bool Proportional;
    QRect Flaeche;
  } faelle[] = {
      {{40, 20}, {100, 100}, true, {0, 25, 100, 50}},
      {{20, 40}, {100, 100}, true, {25, 0, 50, 100}},
      {{20, 40}, {100, 100}, false, {0, 0, 100, 100}},
      {{10, 10}, {30, 20}, true, {5, 0, 20, 20}},
      {{10000, 1}, {50, 50}, true, {0, 24, 50, 1}},
      {{0, 5}, {50, 50}, true, {}},
      {{5, 5}, {0, 50}, false, {}},
  };
  for (const auto &f : faelle) EXPECT_EQ(Bildflaeche(f.Bild, f.Ziel, f.Proportional), f.Flaeche);
}

TEST_F(clsImage_Test, Skalieren_fuellt_den_Rest_mit_dem_Hintergrund) {
  const QImage bild = Bild_skalieren(Bild("PNG", {40, 20}), {100, 100}, Qt::white, true);
  ASSERT_EQ(bild.size(), QSize(100, 100));
  EXPECT_EQ(bild.pixelColor(50, 10), QColor(Qt::white));
  EXPECT_EQ(bild.pixelColor(50, 50), QColor(Qt::red));
  EXPECT_EQ(bild.pixelColor(50, 90), QColor(Qt::white));
  test::Dialoge_Skript dialoge;
  dialoge.Erwarten(u"GDI+ Module"_qs);
  const QString datei = Datei("kein Bild");
  EXPECT_TRUE(Bild_skalieren(datei, {100, 100}, Qt::white, true).isNull());
  EXPECT_EQ(dialoge.Gezeigt[0].Zeilen, QStringList{u"Error loading picture "_qs + datei});
}

TEST_F(clsImage_Test, Bildfeld_folgt_dem_Desktop) {
  clsBildfeld feld;
  feld.resize(100, 100);
  feld.Bild_setzen(Bild("PNG", {40, 20}));
  feld.show();
  for (const bool dunkel : {false, true, false}) {
    test::Palette_setzen(dunkel);
    QCoreApplication::processEvents();
    const QImage bild = feld.grab().toImage();
    EXPECT_EQ(feld.palette().color(QPalette::Base).lightness() < 128, dunkel);
    EXPECT_EQ(bild.pixelColor(50, 10), feld.palette().color(QPalette::Base)) << dunkel;
    EXPECT_EQ(bild.pixelColor(50, 50), QColor(Qt::red)) << dunkel;
  }
}

}  // namespace
}  // namespace marklink
