// The export file to the byte, what becomes of the shipments, and that no moment of a killed export loses
// one.
#include "shipping/Versandexport.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QSet>
#include <optional>
#include <random>

#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "shipping/Exportdatei.h"
#include "support/Dialoge_Skript.h"
#include "support/Testdateien.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

using test::Volle_Platte;

const QString Letztes = u"POOL_RECHNUNGSPOSITIONENDHL"_qs;
const char *const Spalten =
    "POOL_REFNR;POOL_V_ABS_REFNR;POOL_V_ABS_BEMERKUNG;POOL_V_MAND_REFNR;POOL_V_VERFAHREN;POOL_V_TEILNAHME;"
    "POOL_V_KSTSTELLE_KUERZEL;POOL_V_PRODUKT_CN;POOL_V_EXTRASLST;POOL_V_NN_WAEHRUNG;POOL_WERT_WAEHRUNG;"
    "POOL_EMPF_REFNR;POOL_EMPF_NAME1;POOL_EMPF_NAME2;POOL_EMPF_NAME3;POOL_EMPF_PLZ;POOL_EMPF_ORT;"
    "POOL_EMPF_ORTTEIL;POOL_EMPF_STRASSE;POOL_EMPF_HAUSNR;POOL_EMPF_TEL;POOL_EMPF_FAX;POOL_EMPF_EMAIL;"
    "POOL_EMPF_APARTNER;POOL_EMPF_BEMERKUNG;POOL_EMPF_USTID;POOL_EMPF_LANDCODE;POOL_EMPF_GEWICHT;"
    "POOL_ANZAHL_SENDUNGEN;POOL_V_ZOLL_WARENART;POOL_V_ZOLL_WARENLISTE;POOL_V_VORAUSVERF_NAT;"
    "POOL_V_VORAUSVERF_NAT_UNZUST;POOL_V_VORAUSVERF_INT;POOL_EPACK_VORAUS;POOL_EP_VORAUS;"
    "POOL_V_VORAUSVERF_INT_TERMIN;POOL_V_VORAUSVERF_INT_TRANSP;POOL_ABWERK_ANZAHL;POOL_ABWERK_NR;"
    "POOL_ABWERK_DATE;POOL_ABWERK_BBNNR;POOL_SHIPMENT_ID;POOL_VORDATE;POOL_EXWORKS;POOL_CONTENTS;"
    "POOL_IDENTEXPRESS;POOL_VERWENDUNGSZWECK;POOL_EXTRADATA;POOL_SENDUNGSINHALTDHL;POOL_RECHNUNGSARTDHL;"
    "POOL_RECHNUNGSNUMMERDHL;POOL_RECHNUNGSDATUMDHL;POOL_UNTERZEICHNERDHL;POOL_ZOLLTARIFDHL;"
    "POOL_RECHNUNGSBEMDHL;POOL_EXPORTARTDHL;POOL_EXPORTGRUNDDHL;POOL_HANDELSBEDINGUNGENDHL;"
    "POOL_RECHNUNGSPOSITIONENDHL";

class Versandexport_Test : public test::Mandant_Test {
 protected:
  Versandexport_Test() : Pfad(Mandant.Ordner() + u"easylog.csv"_qs) { Einstellen(";", "0", "0"); }

  void Einstellen(const char *Trennzeichen, const char *Kopf, const char *Anhaengen) {
    const QString abschnitt = u"easylog"_qs;
    Option_schreiben(abschnitt, u"file"_qs, Pfad);
    Option_schreiben(abschnitt, u"delimiter"_qs, QString::fromUtf8(Trennzeichen));
    Option_schreiben(abschnitt, u"columnheader"_qs, QString::fromLatin1(Kopf));
    Option_schreiben(abschnitt, u"appendrecords"_qs, QString::fromLatin1(Anhaengen));
  }
  void Versand(const char *Bestellung, QVariantList Felder) {
    Mandant.Zeile(u"LogisticsEASYLOG"_qs,
                  QVariantList{u"OrderID"_qs, QString::fromLatin1(Bestellung)} + Felder);
  }
  QByteArray Datei() const { return test::Datei_lesen(Pfad); }
  Versandexport Exportieren(const char *Meldung = "Die Daten wurden erfolgreich exportiert.") {
    test::Dialoge_Skript dialoge;
    dialoge.Erwarten(u"Hinweis"_qs);
    const Versandexport ergebnis = Versandliste_exportieren();
    EXPECT_EQ(dialoge.Gezeigt.at(0).Zeilen, QStringList(QString::fromUtf8(Meldung)));
    return ergebnis;
  }
  /// The file after the export of one shipment with these fields alone.
  QByteArray Ausgabe(const QVariantList &Felder) {
    Ausfuehren("DELETE FROM LogisticsEASYLOG");
    Versand("1", Felder);
    Exportieren();
    return Datei();
  }
  /// Shipments "0000", "0001" and so on with lines of 306 bytes when the delimiter is empty.
  static void Versandauftraege_anlegen(int Anzahl) {
    db::Recordset rs = Abfragen("SELECT * FROM LogisticsEASYLOG");
    for (int i = 0; i < Anzahl; ++i) {
      rs.AddNew();
      rs.SetValue(u"OrderID"_qs, u"%1"_qs.arg(i, 4, 10, QChar(u'0')));
      rs.SetValue(u"POOL_REFNR"_qs, u"%1"_qs.arg(i, 4, 10, QChar(u'0')));
      rs.SetValue(u"POOL_HANDELSBEDINGUNGENDHL"_qs, QString(100, u'x'));
      rs.SetValue(u"POOL_RECHNUNGSPOSITIONENDHL"_qs, QString(200, u'x'));
      rs.Update();
    }
    ASSERT_TRUE(rs.UpdateBatch());
  }
  /// How many different ones of them stand in the file.
  qsizetype Bestellungen() const {
    QSet<QByteArray> nummern;
    for (const QByteArray &zeile : Datei().split('\n')) nummern.insert(zeile.left(4));
    return nummern.size() - 1;  // the empty rest behind the last line
  }
  [[noreturn]] static void Im_Kind_exportieren() {
    // No dialogs are installed: nobody sees its message.
    Versandliste_exportieren();
    _exit(0);
  }
  /// The orders of the shipments that are still to be exported.
  static QString Offene() {
    QStringList nummern;
    for (db::Recordset rs =
             Abfragen("SELECT OrderID FROM LogisticsEASYLOG WHERE Conveyed = 0 ORDER BY OrderID");
         !rs.IsEOF(); rs.MoveNext())
      nummern.append(rs.Text(u"OrderID"_qs));
    return nummern.join(u' ');
  }

  QString Pfad;
};
MARKLINK_BEIDE_TYPEN(Versandexport_Test);

TEST_P(Versandexport_Test, Every_field_stands_in_its_place) {
  const QList<QByteArray> namen = QByteArray(Spalten).split(';');
  QVariantList felder;
  QByteArray erwartet;
  for (int i = 0; i < namen.size(); ++i) {
    const bool gewicht = namen[i] == "POOL_EMPF_GEWICHT";
    felder << QString::fromLatin1(namen[i]) << (gewicht ? u"28,000"_qs : QString::number(i + 1));
    erwartet += (i > 0 ? "|" : "") + QByteArray::number(i + 1) + (gewicht ? ",00" : "");
  }
  Versand("1", felder);
  Einstellen("|", "1", "0");
  const Versandexport ergebnis = Exportieren();
  EXPECT_EQ(Datei(), QByteArray(Spalten).replace(';', '|') + "\r\n" + erwartet + "\r\n");
  EXPECT_EQ(ergebnis.Geschrieben, 1);
  EXPECT_EQ(Offene(), QString());
  EXPECT_EQ(Exportieren("Es sind leider keine Daten für den Export nach Easylog vorhanden.").Geschrieben, 0);
}

TEST_P(Versandexport_Test, Header_and_appending) {
  const QByteArray alt = "alt\r\n", zeile = "R1;E\r\n", kopf = QByteArray(Spalten) + "\r\n";
  const struct {
    bool Vorhanden;
    const char *Kopf, *Anhaengen;
    QByteArray Erwartet;
  } faelle[] = {
      {false, "0", "0", zeile}, {false, "1", "0", kopf + zeile}, {false, "1", "1", kopf + zeile},
      {true, "1", "0", zeile},  {true, "1", "1", alt + zeile},   {true, "0", "1", alt + zeile},
  };
  for (const auto &fall : faelle) {
    QFile::remove(Pfad);
    if (fall.Vorhanden) test::Datei_schreiben(Pfad, alt);
    Einstellen(";", fall.Kopf, fall.Anhaengen);
    // What is empty behind the two fields still has its delimiters.
    EXPECT_EQ(Ausgabe({u"POOL_REFNR"_qs, u"R1"_qs, u"POOL_V_ABS_REFNR"_qs, u"E"_qs}),
              QByteArray(fall.Erwartet).replace("R1;E", "R1;E" + QByteArray(58, ';')))
        << fall.Vorhanden << fall.Kopf << fall.Anhaengen;
  }
}

TEST_P(Versandexport_Test, A_line_as_it_is_written) {
  const QByteArray rest(32, ';');
  const struct {
    const char *Trennzeichen;
    QVariantList Felder;
    QByteArray Erwartet;
  } faelle[] = {
      // leading empty fields leave no delimiters behind
      {";", {u"POOL_V_VERFAHREN"_qs, u"01"_qs}, "01" + QByteArray(55, ';') + "\r\n"},
      {";", {}, "\r\n"},
      {"<->", {u"POOL_EXPORTARTDHL"_qs, u"a"_qs, u"POOL_EXPORTGRUNDDHL"_qs, u"b"_qs}, "a<->b<-><->\r\n"},
      {"", {u"POOL_REFNR"_qs, u"a"_qs, Letztes, u"b"_qs}, "ab\r\n"},
      // no quotes around anything
      {";", {u"POOL_HANDELSBEDINGUNGENDHL"_qs, u"x;y\r\n\"z\""_qs, Letztes, u"'"_qs}, "x;y\r\n\"z\";'\r\n"},
      {";",
       {Letztes, u"Größe 5 € 漢"_qs},
       "Gr\xF6\xDF"
       "e 5 \x80 ?\r\n"},
      {";", {u"POOL_EMPF_GEWICHT"_qs, u"1,500"_qs}, "1,50" + rest + "\r\n"},
      {";", {u"POOL_EMPF_GEWICHT"_qs, u"1.234,565"_qs}, "1.234,57" + rest + "\r\n"},
      {";", {u"POOL_EMPF_GEWICHT"_qs, u"schwer"_qs}, "schwer" + rest + "\r\n"},
  };
  for (const auto &fall : faelle) {
    Einstellen(fall.Trennzeichen, "0", "0");
    EXPECT_EQ(Ausgabe(fall.Felder), fall.Erwartet);
  }
}

TEST_P(Versandexport_Test, A_path_that_cannot_be_opened_marks_all_and_tells_success) {
  const QString pfade[] = {QString(), Mandant.Ordner(), Mandant.Ordner() + u"fehlt/easylog.csv"_qs};
  for (const QString &pfad : pfade) {
    Pfad = pfad;
    Ausfuehren("DELETE FROM LogisticsEASYLOG");
    Versand("1", {});
    Versand("2", {});
    Einstellen(";", "1", "0");
    const Versandexport ergebnis = Exportieren();
    EXPECT_EQ(ergebnis.Versandauftraege, 2);
    EXPECT_EQ(ergebnis.Geschrieben, 0);
    EXPECT_EQ(Offene(), QString());
  }
}

TEST_P(Versandexport_Test, What_finds_no_room_is_left_open_and_leaves_no_half_line) {
  constexpr qsizetype ANFANG = 64 * 1024 * 1024;  // beyond anything that the database writes
  test::Datei_schreiben(Pfad, {});
  ASSERT_TRUE(QFile::resize(Pfad, ANFANG));
  for (const char *nummer : {"1", "2", "3"}) Versand(nummer, {Letztes, u"12345678"_qs});
  Einstellen(";", "0", "1");
  std::optional<Volle_Platte> voll(ANFANG + 15);
  const Versandexport ergebnis = Exportieren();
  voll.reset();
  EXPECT_EQ(ergebnis.Geschrieben, 1);
  EXPECT_EQ(Datei().mid(ANFANG), QByteArray("12345678\r\n"));
  EXPECT_EQ(Offene(), u"2 3"_qs);
  Exportieren();
  EXPECT_EQ(Datei().mid(ANFANG), QByteArray("12345678\r\n12345678\r\n12345678\r\n"));
}

TEST_P(Versandexport_Test, A_line_that_was_cut_short_is_taken_out_when_appending) {
  const struct {
    const char *Vorher, *Erwartet;
  } faelle[] = {
      {"alt\r\nR2x12", "alt\r\nR1\r\nR2x123\r\n"},
      {"R1\r", "R1\r\nR2x123\r\n"},
      {"fremd", "fremdR1\r\nR2x123\r\n"},  // not ours: stays as it is
  };
  for (const auto &fall : faelle) {
    test::Datei_schreiben(Pfad, fall.Vorher);
    Ausfuehren("DELETE FROM LogisticsEASYLOG");
    Versand("1", {Letztes, u"R1"_qs});
    Versand("2", {Letztes, u"R2x123"_qs});
    Einstellen(";", "1", "1");
    Exportieren();
    EXPECT_EQ(Datei(), fall.Erwartet);
  }
}

TEST_P(Versandexport_Test, A_line_whose_shipment_cannot_be_marked_is_taken_back) {
  int zurueck = 0;
  for (int n = 1; n < 40; ++n) {
    QFile::remove(Pfad);
    Ausfuehren("DELETE FROM LogisticsEASYLOG");
    for (const char *nummer : {"1", "2", "3"}) Versand(nummer, {Letztes, QString::fromLatin1(nummer)});
    Einstellen(";", "0", "1");
    test::Dialoge_Skript dialoge;
    dialoge.Erwarten(u"Hinweis"_qs);
    db::Fehler_einspeisen(n);
    const Versandexport ergebnis = Versandliste_exportieren();
    db::Fehler_einspeisen(0);
    SCOPED_TRACE(n);
    const char *const rest[] = {"1 2 3", "2 3", "3", ""};
    EXPECT_EQ(QFile::exists(Pfad) ? Datei() : "",
              QByteArray("1\r\n2\r\n3\r\n").left(3 * ergebnis.Geschrieben));
    EXPECT_EQ(Offene(), QString::fromLatin1(rest[ergebnis.Geschrieben]));
    if (!ergebnis.Markiert) ++zurueck;
  }
  EXPECT_GE(zurueck, 3);
}

TEST_P(Versandexport_Test, A_header_comes_as_a_whole_or_not_at_all) {
  const QByteArray kopf = QByteArray(Spalten) + "\r\n", zeile = "R1\r\n";
  for (const char *anhaengen : {"0", "1"}) {
    Einstellen(";", "1", anhaengen);
    test::Datei_schreiben(Pfad, kopf.left(100));
    EXPECT_EQ(Ausgabe({Letztes, u"R1"_qs}), kopf + zeile) << anhaengen;
  }
  QFile::remove(Pfad);
  {
    const Volle_Platte voll(100);
    EXPECT_EQ(Exportdatei(Pfad, true, kopf).Zustand(), Exportdatei::Stand::Ohne_Kopf);
  }
  EXPECT_FALSE(QFile::exists(Pfad));  // or the next export would take it for one that has its header
}

TEST_P(Versandexport_Test, Two_exports_at_once_write_each_shipment_once) {
  constexpr int ANZAHL = 400;
  Versandauftraege_anlegen(ANZAHL);
  for (const char *anhaengen : {"0", "1"}) {
    QFile::remove(Pfad);
    ASSERT_TRUE(Ausfuehren("UPDATE LogisticsEASYLOG SET Conveyed = 0"));
    Einstellen("", "0", anhaengen);
    db::Verbindungen_schliessen();
    std::vector<pid_t> kinder;
    for (int i = 0; i < 3; ++i) {
      kinder.push_back(fork());
      if (kinder.back() == 0) Im_Kind_exportieren();
    }
    for (const pid_t kind : kinder) waitpid(kind, nullptr, 0);
    EXPECT_EQ(Bestellungen(), ANZAHL) << anhaengen;
    EXPECT_EQ(Datei().size(), 306 * ANZAHL) << anhaengen;
    EXPECT_EQ(Offene(), QString());
    EXPECT_FALSE(QFile::exists(Pfad + u".lock"_qs));
  }
}

TEST_P(Versandexport_Test, A_killed_export_loses_no_shipment) {
  constexpr int ANZAHL = 400;
  Versandauftraege_anlegen(ANZAHL);
  Einstellen("", "0", "1");

  const auto ausfuehren = [this](int Mikrosekunden) {
    db::Verbindungen_schliessen();  // a connection must not live on in two programs
    const pid_t kind = fork();
    if (kind == 0) Im_Kind_exportieren();
    if (Mikrosekunden >= 0) {
      usleep(useconds_t(Mikrosekunden));
      kill(kind, SIGKILL);
    }
    int ende = 0;
    waitpid(kind, &ende, 0);
    return WIFSIGNALED(ende);
  };
  std::mt19937 wuerfel(4711);
  int getoetet = 0, dauer = 20000;
  for (int versuch = 0; versuch < (qEnvironmentVariableIsSet("MARKLINK_ALLE") ? 200 : 8); ++versuch) {
    QFile::remove(Pfad);
    ASSERT_TRUE(Ausfuehren("UPDATE LogisticsEASYLOG SET Conveyed = 0"));
    if (ausfuehren(std::uniform_int_distribution<int>(1000, dauer)(wuerfel)))
      ++getoetet;
    else
      dauer = dauer * 3 / 4;
    const QStringList offen = Offene().split(u' ', Qt::SkipEmptyParts);
    const QByteArray bytes = QFile::exists(Pfad) ? Datei() : QByteArray();
    const int zeilen = int(bytes.size() / 306), markiert = ANZAHL - int(offen.size());
    EXPECT_TRUE(zeilen == markiert || zeilen == markiert + 1)
        << zeilen << " lines, " << markiert << " marked";
    ausfuehren(-1);
    EXPECT_EQ(Bestellungen(), ANZAHL);
    EXPECT_EQ(Datei().size(), 306 * (ANZAHL + zeilen - markiert)) << "half a line";
    EXPECT_EQ(Offene(), QString());
  }
  EXPECT_GT(getoetet, 1);
}

}  // namespace
}  // namespace marklink
