// What the exports hold, read back by other programs.
#include "reports/Berichtsausgabe.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "Probebericht.h"
#include "reports/Berichtstabelle.h"
#include "support/Testdateien.h"

namespace marklink {
namespace {

using test::Datei_lesen;

QString Laufen(const QString &Programm, const QStringList &Worte) {
  QProcess prozess;
  prozess.start(Programm, Worte);
  EXPECT_TRUE(prozess.waitForFinished(120'000)) << Programm.toStdString();
  EXPECT_EQ(prozess.exitCode(), 0) << prozess.readAllStandardError().toStdString();
  return QString::fromUtf8(prozess.readAllStandardOutput());
}

class Berichtsausgabe_Test : public testing::Test {
 protected:
  Berichtsausgabe_Test() {
    Daten.Liste = {
        {u"Köln"_qs, u"Müller; Söhne"_qs, u"1.234,50"_qs, u"05.03.2024"_qs, u"erste\r\nzweite"_qs},
        {u"Köln"_qs, u"\"Ö\""_qs, u"-0,10"_qs, u""_qs, u"pfiffig & auffällig <b> {x} \\ 5 €"_qs},
        {u"Ulm"_qs, u","_qs, u"offen"_qs, u"31.12.1999"_qs,
         u"Zł\u0001"_qs + QChar(0x85) + QChar(0xD800) + QChar(0xFDD0) + u"oty \uFFFF"_qs + u"名\t=1+1"_qs}};
    for (int i = 0; i < 60; ++i)
      Daten.Liste.push_back({u"Xanten"_qs, u"N%1"_qs.arg(i), u"1,00"_qs, u"01.01.2024"_qs, {}});
  }
  QString Schreiben(Exportart Art, const char *Name) {
    QString pfad = Ordner.path() + u'/' + QLatin1String(Name);
    const Seitensatz satz(B, Daten, {});
    Seiten = satz.Seiten();
    EXPECT_TRUE(Bericht_schreiben(satz, Art, pfad));
    return pfad;
  }
  QTemporaryDir Ordner;
  Bericht B = test::Probebericht();
  test::Personen Daten;
  int Seiten = 0;
};

TEST_F(Berichtsausgabe_Test, PDF_mit_Text_der_sich_suchen_laesst) {
  const QString pfad = Schreiben(Export_PDF, "a.pdf");
  const QString text = Laufen(u"pdftotext"_qs, {u"-layout"_qs, pfad, u"-"_qs});
  for (const char16_t *stelle :
       {u"Müller; Söhne", u"pfiffig & auffällig <b> {x} \\ 5 €", u"1.234,50", u"1.294,40"})
    EXPECT_TRUE(text.contains(QString::fromUtf16(stelle))) << QString::fromUtf16(stelle).toStdString();
  EXPECT_EQ(text.count(u'\f'), Seiten);
  const QString angaben = Laufen(u"pdfinfo"_qs, {pfad});
  EXPECT_TRUE(angaben.contains(u"Personen & Orte"_qs));
  EXPECT_TRUE(angaben.contains(u"A4"_qs));
}

TEST_F(Berichtsausgabe_Test, TXT_bleibt_Zeile_fuer_Zeile_heil) {
  const QString text = QString::fromLatin1(Datei_lesen(Schreiben(Export_TXT, "a.txt")));
  const QStringList zeilen = text.split(u"\r\n"_qs);
  const QStringList anfang = {u"Personenliste"_qs,
                              u"Name;Betrag;Geburtstag;Bemerkung"_qs,
                              u"Köln"_qs,
                              u"\"Müller; Söhne\";1.234,50;05.03.2024;erste zweite"_qs,
                              u"\"\"\"Ö\"\"\";-0,10;;pfiffig & auffällig <b> {x} \\ 5 \u0080"_qs,
                              u"Summe:;1.234,40;;"_qs,
                              u"Ulm"_qs};
  EXPECT_EQ(zeilen.mid(0, anfang.size()), anfang);
  EXPECT_TRUE(zeilen[7].startsWith(u"\",\";offen;31.12.1999;Zl"_qs)) << zeilen[7].toStdString();
  EXPECT_EQ(zeilen.count(u","_qs), Seiten - 1) << "one page delimiter between two pages";
  EXPECT_EQ(zeilen.count(u"Name;Betrag;Geburtstag;Bemerkung"_qs), Seiten);
  EXPECT_TRUE(zeilen.contains(u"1 von %1"_qs.arg(Seiten)));
}

TEST_F(Berichtsausgabe_Test, Ein_Kopf_der_die_Seite_fuellt_verdoppelt_keine_Zeile) {
  B[Bandart::Gruppenkopf].Hoehe = 297 - 24 - 6 - 6;
  const QString text = QString::fromLatin1(Datei_lesen(Schreiben(Export_TXT, "a.txt")));
  EXPECT_EQ(text.count(u";1.234,50;"_qs), 1);
  EXPECT_EQ(text.count(u"N0;1,00;"_qs), 1);
}

TEST_F(Berichtsausgabe_Test, HTM_ist_wohlgeformt_und_ohne_fremdes_Markup) {
  const QString text = QString::fromUtf8(Datei_lesen(Schreiben(Export_HTM, "a.HTM")));
  EXPECT_TRUE(text.contains(u"<title>Personen &amp; Orte</title>"_qs));
  EXPECT_TRUE(text.contains(u"pfiffig &amp; auffällig &lt;b&gt; {x} \\ 5 €"_qs));
  EXPECT_TRUE(text.contains(u"Złoty 名"_qs)) << "what no document may hold is gone";
  for (const char16_t *marke : {u"table", u"tr", u"td", u"th", u"tbody", u"p", u"h1"})
    EXPECT_EQ(text.count(QRegularExpression(u"<%1[ >]"_qs.arg(QString::fromUtf16(marke)))),
              text.count(u"</%1>"_qs.arg(QString::fromUtf16(marke))))
        << QString::fromUtf16(marke).toStdString();
  EXPECT_EQ(text.count(u"<thead>"_qs), 1) << "one table, however many pages";
}

TEST_F(Berichtsausgabe_Test, RTF_haelt_jede_Zeile_ganz) {
  const QByteArray rtf = Datei_lesen(Schreiben(Export_RTF, "a.rtf"));
  EXPECT_TRUE(rtf.contains("\\{x\\} \\\\ 5 \\u8364?"));
  EXPECT_TRUE(rtf.contains("erste\\line zweite"));
  EXPECT_TRUE(rtf.contains("Z\\u322?oty ")) << "what no document may hold is gone";
  int tiefe = 0;
  for (int i = 0; i < rtf.size(); ++i) {
    ASSERT_LT(uchar(rtf[i]), 0x80);
    if (rtf[i] == '\\') {
      ++i;
      continue;
    }
    tiefe += rtf[i] == '{' ? 1 : rtf[i] == '}' ? -1 : 0;
    ASSERT_GE(tiefe, 0);
  }
  EXPECT_EQ(tiefe, 0);
  qsizetype von = 0;
  while ((von = rtf.indexOf("\\trowd", von)) >= 0) {
    const QByteArray reihe = rtf.mid(von, rtf.indexOf("\\row", von) - von);
    ASSERT_EQ(reihe.count("\\cellx"), reihe.count("\\cell\n")) << reihe.toStdString();
    von += 6;
  }
}

TEST_F(Berichtsausgabe_Test, XLS_mit_Zahlen_und_Tagen_die_solche_sind) {
  B[Bandart::Berichtskopf].Elemente[0].Inhalt = u"Personen/Orte: 'alle' <im Jahr> & danach"_qs;
  const QString lang = QString(40'000, u'x');
  Daten.Liste.push_back({u"Zwiesel"_qs, u"alt"_qs, u"1,00"_qs, u"28.02.1900"_qs, lang});
  const QString pfad = Schreiben(Export_XLS, "a.xls");
  const QByteArray xml = Datei_lesen(pfad);
  EXPECT_TRUE(xml.contains("<Worksheet ss:Name=\"Personen_Orte_ _alle_ &lt;im Jahr&gt;\">"));
  EXPECT_TRUE(xml.contains(">erste; &#10;zweite<")) << "apart also where the break is dropped";
  EXPECT_TRUE(xml.contains("ss:Type=\"String\">28.02.1900<")) << "before the days that spreadsheets know";
  EXPECT_TRUE(xml.contains('>' + QByteArray(32'767, 'x') + '<')) << "more than a cell may hold";
  EXPECT_TRUE(xml.contains(">1234.5</Data>"));
  EXPECT_TRUE(xml.contains("ss:Type=\"DateTime\">2024-03-05T00:00:00.000<"));
  EXPECT_TRUE(xml.contains("ss:Type=\"String\">offen<")) << "an amount that is none stays what it says";
  EXPECT_FALSE(xml.contains('\x1'));
  if (QStandardPaths::findExecutable(u"libreoffice"_qs).isEmpty())
    GTEST_SKIP() << "no libreoffice here to open the workbook with";
  Laufen(
      u"libreoffice"_qs,
      {u"-env:UserInstallation=file://"_qs + Ordner.path() + u"/lo"_qs, u"--headless"_qs, u"--convert-to"_qs,
       u"csv:Text - txt - csv (StarCalc):59,34,76,1"_qs, u"--outdir"_qs, Ordner.path(), pfad});
  const QString csv = QString::fromUtf8(Datei_lesen(Ordner.path() + u"/a.csv"_qs));
  EXPECT_TRUE(csv.contains(u"Müller; Söhne"_qs)) << csv.left(500).toStdString();
  EXPECT_TRUE(csv.contains(u"05.03.2024"_qs));
  EXPECT_TRUE(csv.contains(u"=1+1"_qs)) << "a text that looks like a formula stays a text";
}

TEST_F(Berichtsausgabe_Test, Ein_Ziel_das_sich_nicht_schreiben_laesst_bleibt_wie_es_war) {
  const Seitensatz satz(B, Daten, {});
  const QString ordner = Ordner.path() + u"/ordner"_qs;
  QDir().mkpath(ordner);
  for (const Exportart art : {Export_PDF, Export_XLS, Export_RTF, Export_TXT, Export_HTM}) {
    EXPECT_FALSE(Bericht_schreiben(satz, art, Ordner.path() + u"/nicht/da/x.pdf"_qs));
    EXPECT_FALSE(Bericht_schreiben(satz, art, ordner));
    EXPECT_FALSE(Bericht_schreiben(satz, art, QString()));
    EXPECT_FALSE(Bericht_schreiben(satz, art, u"/dev/full"_qs)) << art;
  }
}

TEST_F(Berichtsausgabe_Test, Eine_volle_Platte_laesst_die_alte_Datei_stehen) {
  const QString pfad = Schreiben(Export_TXT, "a.txt");
  const QByteArray vorher = Datei_lesen(pfad);
  Daten.Liste.pop_back();
  const Seitensatz satz(B, Daten, {});
  {
    const test::Volle_Platte voll(100);
    for (const Exportart art : {Export_PDF, Export_XLS, Export_RTF, Export_TXT, Export_HTM})
      EXPECT_FALSE(Bericht_schreiben(satz, art, pfad)) << art;
  }
  EXPECT_EQ(Datei_lesen(pfad), vorher);
  EXPECT_EQ(QDir(Ordner.path()).entryList(QDir::Files).size(), 1) << "nothing half written is left";
}

TEST_F(Berichtsausgabe_Test, In_eine_Pipe_wird_geschrieben_und_sie_bleibt_eine) {
  const QByteArray pfad = QFile::encodeName(Ordner.path() + u"/pipe"_qs);
  ASSERT_EQ(mkfifo(pfad.constData(), 0600), 0);
  const int leser = open(pfad.constData(), O_RDONLY | O_NONBLOCK);
  EXPECT_TRUE(Bericht_schreiben(Seitensatz(B, Daten, {}), Export_TXT, QFile::decodeName(pfad)));
  QByteArray bytes(100, ' ');
  EXPECT_EQ(read(leser, bytes.data(), size_t(bytes.size())), bytes.size());
  EXPECT_TRUE(bytes.startsWith("Personenliste\r\n"));
  close(leser);
  EXPECT_FALSE(QFileInfo(QFile::decodeName(pfad)).isFile());
}

TEST(Zielname_Test, Ordner_und_Name_getrennt) {
  const struct {
    const char16_t *Datei, *Teile;
  } faelle[] = {{u"C:\\Listen\\Juni.htm", u"C:\\Listen\\|Juni|.htm"},
                {u"/tmp/a.b/Juni.HTM", u"/tmp/a.b/|Juni|.HTM"},
                {u"htm", u"||htm"},
                {u"/x/htm", u"/x/||htm"}};
  for (const auto &fall : faelle) {
    const Zielname ziel = Zielname_zerlegen(QString::fromUtf16(fall.Datei));
    EXPECT_EQ(ziel.Ordner + u'|' + ziel.Name + u'|' + ziel.Endung, QString::fromUtf16(fall.Teile));
  }
}

}  // namespace
}  // namespace marklink
