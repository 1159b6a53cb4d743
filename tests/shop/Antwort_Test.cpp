// Reading reply files: character sets, broken documents, text out of nodes.
#include "shop/Antwort.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/Testdateien.h"

namespace marklink {
namespace {

class Antwort_Test : public ::testing::Test {
 protected:
  QString Datei(const QByteArray &Inhalt) const {
    const QString pfad = Ordner.filePath(u"antwort.xml"_qs);
    test::Datei_schreiben(pfad, Inhalt);
    return pfad;
  }
  /// "A" of a document with this root; "(kein XML)" when it could not be loaded.
  std::string Text(const QByteArray &Inhalt) const {
    pugi::xml_document dokument;
    dokument.append_child("VORHER");
    const bool geladen = Antwort_laden(Datei(Inhalt), dokument);
    if (!geladen) {
      EXPECT_FALSE(dokument.first_child()) << "something was kept";
      return "(kein XML)";
    }
    return Knoten_Text(dokument, "R/A").toStdString();
  }
  static QByteArray Breit(const char16_t *Inhalt, bool Gross, bool Marke) {
    QByteArray bytes = Marke ? (Gross ? "\xFE\xFF" : "\xFF\xFE") : "";
    for (const char16_t *z = Inhalt; *z; ++z) {
      const char hoch = static_cast<char>(*z >> 8), tief = static_cast<char>(*z & 0xFF);
      bytes.append(Gross ? hoch : tief).append(Gross ? tief : hoch);
    }
    return bytes;
  }
  QTemporaryDir Ordner;
};

QByteArray Mit_Kodierung(const QByteArray &Kodierung, const QByteArray &Text) {
  return "<?xml version=\"1.0\" encoding=" + Kodierung + "?><R><A>" + Text + "</A></R>";
}

TEST_F(Antwort_Test, Zeichensatz_nach_Deklaration) {
  const struct {
    QByteArray Inhalt;
    const char *Text;
  } faelle[] = {
      {Mit_Kodierung("\"windows-1252\"", "M\xFCller \x80 5"), "Müller € 5"},
      {Mit_Kodierung("'ISO-8859-1'", "M\xFCller \x80"), "Müller €"},
      {Mit_Kodierung("\"ISO-8859-15\"", "M\xFCller \xA4"), "Müller €"},
      {Mit_Kodierung(" = \"UTF-8\"", "x"), "x"},
      {Mit_Kodierung("\"utf-8\"", "M\xC3\xBCller \xE2\x82\xAC"), "Müller €"},
      {Mit_Kodierung("\"utf-8\"", "M\xFCller"), "(kein XML)"},
      {Mit_Kodierung("\"klingonisch\"", "M\xFCller"), "(kein XML)"},
      {Mit_Kodierung("\"klingonisch\"", "Mueller"), "Mueller"},
      {"<?xml version=\"1.0\"?><R><A>M\xC3\xBCller</A></R>", "Müller"},
      {"<?xml version=\"1.0\"?><R><A>M\xFCller</A></R>", "Müller"},
      {"<R><A>encoding=\"utf-8\" M\xFCller</A></R>", "encoding=\"utf-8\" Müller"},
      {"\xEF\xBB\xBF<?xml version=\"1.0\"?><R><A>M\xC3\xBCller</A></R>", "Müller"},
      {Breit(u"<?xml version=\"1.0\" encoding=\"utf-16\"?><R><A>Müller €</A></R>", false, true), "Müller €"},
      {Breit(u"<?xml version=\"1.0\" encoding=\"utf-16\"?><R><A>Müller €</A></R>", true, false), "Müller €"},
  };
  for (const auto &fall : faelle) EXPECT_EQ(Text(fall.Inhalt), fall.Text) << fall.Inhalt.toStdString();
}

TEST_F(Antwort_Test, kein_XML_behaelt_nichts) {
  const QByteArray ganz = "<?xml version=\"1.0\"?><R><A>eins</A><B x=\"1\"><![CDATA[zwei]]></B></R>";
  EXPECT_EQ(Text(ganz), "eins");
  for (qsizetype laenge = 0; laenge < ganz.size(); ++laenge)
    EXPECT_EQ(Text(ganz.left(laenge)), "(kein XML)") << laenge;
  for (const char *inhalt : {"Fatal error: out of memory", "<html><body>503</html>", "<R><A>x</R></A>"})
    EXPECT_EQ(Text(inhalt), "(kein XML)") << inhalt;
  pugi::xml_document dokument;
  EXPECT_FALSE(Antwort_laden(u"/gibt/es/nicht.xml"_qs, dokument));
  EXPECT_FALSE(Antwort_laden(Ordner.path(), dokument));
}

TEST_F(Antwort_Test, zu_grosse_Datei_wird_nicht_gelesen) {
  const QString pfad = Datei("<R><A>x</A></R>");
  ASSERT_TRUE(QFile::resize(pfad, (256LL << 20) + 1));  // a hole, no blocks
  pugi::xml_document dokument;
  EXPECT_FALSE(Antwort_laden(pfad, dokument));
}

TEST_F(Antwort_Test, fremde_Entitaeten_werden_nicht_aufgeloest) {
  const QString geheim = Ordner.filePath(u"geheim"_qs);
  test::Datei_schreiben(geheim, "GEHEIM");
  const QByteArray text =
      "<!DOCTYPE R [<!ENTITY x SYSTEM \"file://" + geheim.toLocal8Bit() +
      "\"><!ENTITY y \"&z;&z;&z;\"><!ENTITY z \"lang\">]><R><A>a&x;&y;&amp;&#252;</A></R>";
  EXPECT_EQ(Text(text), "a&x;&y;&ü");
}

TEST_F(Antwort_Test, tiefe_Schachtelung) {
  constexpr qsizetype Tiefe = 200'000;
  EXPECT_EQ(Text("<R><A>" + QByteArray("<b>").repeated(Tiefe) + "x" + QByteArray("</b>").repeated(Tiefe) +
                 "y</A></R>"),
            "xy");
  EXPECT_EQ(Text(QByteArray("<R>").repeated(Tiefe)), "(kein XML)");
}

TEST_F(Antwort_Test, Knoten_Text) {
  pugi::xml_document d;
  ASSERT_TRUE(Antwort_laden(Datei("<O><H/><H><ID>7</ID><ID>8</ID></H><L>a<![CDATA[<b>]]><!-- x -->c</L>"
                                  "<P><Q>eins</Q> <Q>zwei</Q></P><LEER></LEER></O>"),
                            d));
  const pugi::xml_node o = d.child("O");
  const struct {
    const char *Pfad, *Text;
  } faelle[] = {{"H/ID", "7"}, {"L", "a<b>c"}, {"P", "einszwei"}, {"LEER", ""}, {"X", ""},
                {"H/X", ""},   {"h/id", ""},   {"P/Q/", ""},      {"/", ""}};
  for (const auto &fall : faelle) EXPECT_EQ(Knoten_Text(o, fall.Pfad).toStdString(), fall.Text) << fall.Pfad;
  EXPECT_EQ(Knoten_Text(o.child("H").next_sibling("H").child("ID"), "").toStdString(), "7");
  EXPECT_EQ(Knoten_Text(pugi::xml_node(), "A"), QString());
}

TEST_F(Antwort_Test, Statusantwort) {
  const QString pfad = Datei(
      "<?xml version=\"1.0\"?><STATUS><STATUS_DATA><MESSAGE>OK &amp; gut</MESSAGE></STATUS_DATA>"
      "<STATUS_DATA><MESSAGE>zweite</MESSAGE><ERROR>0</ERROR></STATUS_DATA></STATUS>");
  EXPECT_EQ(Statusantwort_lesen(pfad, "MESSAGE"), u"OK & gut"_qs);
  EXPECT_EQ(Statusantwort_lesen(pfad, "ERROR"), QString());  // only the first STATUS_DATA counts
  EXPECT_EQ(Statusantwort_lesen(Datei("<STATUS/>"), "MESSAGE"), QString());
  EXPECT_EQ(Statusantwort_lesen(Datei(""), "MESSAGE"), QString());
  EXPECT_EQ(Statusantwort_lesen({}, "MESSAGE"), QString());
}

}  // namespace
}  // namespace marklink
