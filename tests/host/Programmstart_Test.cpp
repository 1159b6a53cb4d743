// Start-up and the look-ups on a client of either type.
#include "host/Programmstart.h"

#include <gtest/gtest.h>

#include <QFile>
#include <ctime>

#include "db/Verbindung.h"
#include "host/Dateien.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "host/Laender.h"
#include "support/Testdateien.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Programmstart_Test : public test::Mandant_Test {};
MARKLINK_BEIDE_TYPEN(Programmstart_Test);

TEST_P(Programmstart_Test, fuellt_den_Kontext) {
  Mandant.Host_einstellen("program", "databasetype", u"1"_qs);
  Mandant.Einstellen("Marklink", "hostname", u"shop.example"_qs);
  Mandant.Einstellen("Marklink", "folder", u"/shop/"_qs);
  Mandant.Einstellen("Marklink", "password", u"geheim"_qs);
  Mandant.Einstellen("Marklink", "ViewablePeriod", u"3"_qs);
  // The client's own type wins over the host's fallback, for the number that stands for true as well.
  EXPECT_EQ(Kontext.gDatabasetype, Mandant.Typ());
  EXPECT_EQ(Kontext.gSQL_True, Mandant.Typ() == 0 ? -1 : 1);
  EXPECT_EQ(Kontext.gHeute, QDate(2024, 6, 15));
  EXPECT_EQ(Kontext.gProgrammpfad, Mandant.Ordner());
  EXPECT_EQ(Kontext.gHostname, u"shop.example"_qs);
  EXPECT_EQ(Kontext.gUrl, u"/shop/marklink/marklink.php"_qs);
  EXPECT_EQ(Kontext.gPassword, u"e8636ea013e682faf61f56ce1cb1ab5c"_qs);
  EXPECT_EQ(Kontext.gViewablePeriod, 3);
  EXPECT_EQ(Kontext.gPreisNachkommastellen, 2);
  EXPECT_EQ(Kontext.gBenutzer_Filiale, u"Zentrale"_qs);
  EXPECT_EQ(Kontext.gBenutzer_Lagernummer, u"1"_qs);
  EXPECT_EQ(Kontext.gCountry, u"Deutschland"_qs);
  Mandant.Einstellen("Program", "PriceFormat", u"0"_qs);
  EXPECT_EQ(Kontext.gPreisNachkommastellen, 1);
  EXPECT_EQ(CalculateMD5(QString()), u"d41d8cd98f00b204e9800998ecf8427e"_qs);
}

TEST_P(Programmstart_Test, fremde_Einrichtungsart_laesst_nur_die_Layoutdatei_leer) {
  Ini_schreiben(Kontext.gMandantenliste, u"Test"_qs, u"installing"_qs, u"3"_qs);
  Mandant.Starten();
  EXPECT_EQ(Kontext.gLayoutDatei.isEmpty(), Mandant.Typ() == 1);
  EXPECT_EQ(Kontext.gCountry, u"Deutschland"_qs);
}

TEST_P(Programmstart_Test, fehlende_Dateien_geben_leere_Werte) {
  Mandant.Host_einstellen("files", "uiffile", u"fehlt.ini"_qs);
  Mandant.Starten();
  EXPECT_EQ(Kontext.gCountry, QString());
  EXPECT_EQ(Kontext.gDatabasetype, 0);
  EXPECT_EQ(Benutzer_Daten(u"Chef"_qs, 0), QString());
  EXPECT_FALSE(Option_schreiben(QString(), u"x"_qs, u"y"_qs));
}

TEST_P(Programmstart_Test, Einstellungen_stehen_im_eigenen_Speicher) {
  const QString abschnitt = u"Marklink"_qs;
  const auto lesen = [&](const char *schluessel) {
    return Option_lesen(abschnitt, QLatin1String(schluessel));
  };
  Option_schreiben(abschnitt, u"language"_qs, u"2"_qs);
  Option_schreiben(abschnitt, u"LANGUAGE"_qs, u"5"_qs);
  EXPECT_EQ(lesen("language"), u"5"_qs);
  EXPECT_EQ(lesen("fehlt"), QString());
  EXPECT_EQ(lesen("x' OR 'a' = 'a"), QString());
  const auto zeilen = Abfragen("SELECT * FROM Options WHERE [Key] = 'language'").RecordCount();
  EXPECT_EQ(zeilen, Mandant.Typ() == 0 ? 0 : 1);
  EXPECT_EQ(QFile::exists(Mandant.Ordner() + u"Test.afk"_qs), Mandant.Typ() == 0);
  Mandant.Starten();
  EXPECT_EQ(lesen("language"), u"5"_qs);
  int anweisungen = 0;
  db::Beobachter_setzen([&](const QString &) { ++anweisungen; });
  EXPECT_EQ(lesen("language"), u"5"_qs);
  EXPECT_EQ(lesen("fehlt"), QString());
  EXPECT_EQ(anweisungen, 0) << "settings are read without asking the database";
  db::Beobachter_setzen({});
  Optionen_freigeben();
  EXPECT_EQ(lesen("language"), u"5"_qs);
  EXPECT_TRUE(Option_schreiben(abschnitt, u"language"_qs, u"6"_qs));
}

TEST_P(Programmstart_Test, Nachschlagen) {
  Mandant.Zeile(u"Countries"_qs, {u"Token"_qs, u"AT"_qs, u"Description"_qs, u"Österreich"_qs, u"EU"_qs, true,
                                  u"FreeShippingAmount"_qs, 80.5, u"Currency"_qs, u"EUR"_qs,
                                  u"AddressFormat"_qs, u"$Name in $Town"_qs});
  Mandant.Zeile(u"Countries"_qs, {u"Token"_qs, u"CH"_qs, u"Description"_qs, u"Schweiz"_qs, u"EU"_qs, false});
  Mandant.Zeile(u"Forms"_qs,
                {u"Description"_qs, u"Rechnung lang"_qs, u"Type"_qs, u"Rechnung"_qs, u"Standard"_qs, true});
  Mandant.Einstellen("Program", "FreeShippingAmount", u"1.000,50"_qs);
  const QString oesterreich = u"ÖSTERREICH"_qs, schweiz = u"Schweiz"_qs;
  EXPECT_EQ(Land_aus_Token(u"at"_qs), u"Österreich"_qs);
  EXPECT_EQ(Land_aus_Token(u"XX"_qs), QString());
  EXPECT_TRUE(Land_ist_EU(oesterreich));
  EXPECT_FALSE(Land_ist_EU(schweiz));
  EXPECT_FALSE(Land_ist_EU(u"O'Land"_qs));
  EXPECT_DOUBLE_EQ(Land_Versandfreigrenze(oesterreich), 80.5);
  EXPECT_DOUBLE_EQ(Land_Versandfreigrenze(u"Atlantis"_qs), 1000.5);
  EXPECT_EQ(Land_Waehrung(oesterreich), u"EUR"_qs);
  EXPECT_EQ(Adressformat_ermitteln(oesterreich, u"Description"_qs), u"$Name in $Town"_qs);
  EXPECT_EQ(Adressformat_ermitteln(schweiz, u"Description"_qs), Kontext.gAdressformat);
  EXPECT_EQ(Formular_Standard(u"Rechnung"_qs), u"Rechnung lang"_qs);
  EXPECT_EQ(Formular_Standard(u"Lieferschein"_qs), QString());
  EXPECT_TRUE(Datensatz_existiert(u"Countries"_qs, u"Token"_qs, u"CH"_qs));
  EXPECT_FALSE(Datensatz_existiert(u"Countries"_qs, u"Token"_qs, u"XX"_qs));
  EXPECT_EQ(Benutzer_Daten(u"niemand"_qs, 3), QString());
  EXPECT_EQ(Benutzer_Daten(u"Chef"_qs, 4), QString());
}

TEST_P(Programmstart_Test, IstNull_in_der_Mundart) {
  const QString feld = u"Articles.ArticleNumber"_qs;
  const bool jet = Mandant.Typ() == 0;
  EXPECT_EQ(Bedingung_IstNull(feld, false),
            jet ? u"IsNull(Articles.ArticleNumber) = False"_qs : u"Articles.ArticleNumber IS NOT NULL"_qs);
  EXPECT_EQ(Bedingung_IstNull(feld, true),
            jet ? u"IsNull(Articles.ArticleNumber) = True"_qs : u"Articles.ArticleNumber IS NULL"_qs);
}

TEST_P(Programmstart_Test, aendert_ein_Feld_in_mehreren_Zeilen) {
  for (const char *token : {"C", "A", "B"})
    Mandant.Zeile(u"Countries"_qs,
                  {u"Token"_qs, QLatin1String(token), u"Description"_qs, QLatin1String(token)});
  Felder_aendern(u"Countries"_qs, u"Description"_qs, u"B;fehlt;O'x;c"_qs, u"Currency"_qs, u"XYZ"_qs);
  EXPECT_EQ(Abfragen("SELECT * FROM Countries WHERE Currency = 'XYZ'").RecordCount(), 2);
  EXPECT_EQ(Abfragen("SELECT * FROM Countries WHERE Description = 'A' AND Currency = 'XYZ'").RecordCount(),
            0);
}

TEST_P(Programmstart_Test, holt_ein_Bild_aus_der_Datenbank) {
  const QByteArray bild("\x89PNG\0\x01\xFF", 7);
  Mandant.Zeile(u"ArticlePictures"_qs, {u"Picture"_qs, bild});
  const auto holen = [&](const QString &ziel, const db::Anweisung &bedingung) {
    return Feld_in_Datei(Kontext.gDatenbank, ziel, u"ArticlePictures"_qs, u"Picture"_qs, bedingung,
                         u"481902"_qs);
  };
  const QString ziel = Mandant.Ordner() + u"1.jpg"_qs;
  EXPECT_EQ(holen(ziel, " WHERE id = 1"), ziel);
  EXPECT_EQ(test::Datei_lesen(ziel), bild);
  // A missing row leaves an existing file alone.
  EXPECT_EQ(holen(ziel, " WHERE id = 99"), ziel);
  EXPECT_EQ(test::Datei_lesen(ziel), bild);
  const QString neu = holen(QString(), {});
  EXPECT_TRUE(neu.startsWith(Temp_Ordner()) && Dateiname_aus_Pfad(neu).startsWith(u'4')) << neu.toStdString();
  EXPECT_EQ(test::Datei_lesen(neu), bild);
  QFile::remove(neu);
}

TEST_P(Programmstart_Test, eine_Zeit_in_der_uebersprungenen_Stunde_bleibt) {
  qputenv("TZ", "Europe/Berlin");
  tzset();
  Mandant.Zeile(u"WebshopOrdersXTC"_qs, {u"OrderID"_qs, u"1"_qs, u"Date"_qs, u"2024-03-31 02:30:00"_qs});
  const QDateTime zeit = Abfragen("SELECT * FROM WebshopOrdersXTC").Value(u"Date"_qs).toDateTime();
  EXPECT_EQ(Datum_formatieren(zeit, u"dd.mm.yyyy hh:nn:ss"_qs), u"31.03.2024 02:30:00"_qs);
  EXPECT_EQ(Datum_formatieren(Datum_lesen(u"31.03.2024 02:30"_qs), u"hh:nn"_qs), u"02:30"_qs);
  qunsetenv("TZ");
  tzset();
}

TEST(Verbindungstext_Test, Form_je_Datenbanktyp) {
  const auto bilden = [](int anmeldung, int typ) {
    return Connection_String_bilden(u"DB"_qs, u"SRV"_qs, anmeldung, 15, u"u"_qs, u"p"_qs, typ);
  };
  EXPECT_EQ(bilden(0, 0), u"Provider=;Data Source=DB;Jet OLEDB:Database Password=p"_qs);
  EXPECT_EQ(bilden(0, 1),
            u"Provider=;User ID=u;Password=p;Initial Catalog=DB;Data Source=SRV;Persist "
            "Security Info=False;Connect Timeout=15"_qs);
  EXPECT_EQ(bilden(1, 1),
            u"Provider=;Data Source=SRV;Initial Catalog=DB;Integrated "
            "Security=SSPI;Connect Timeout=15"_qs);
  EXPECT_EQ(bilden(7, 1), QString());
}

}  // namespace
}  // namespace marklink
