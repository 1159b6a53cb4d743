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
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Programmstart_Test : public test::Mandant_Test {};
MARKLINK_BEIDE_TYPEN(Programmstart_Test);

TEST_P(Programmstart_Test, fuellt_den_Kontext) {
  Mandant.Host_einstellen("program", "databasetype", QStringLiteral("1"));
  Mandant.Einstellen("Marklink", "hostname", QStringLiteral("shop.example"));
  Mandant.Einstellen("Marklink", "folder", QStringLiteral("/shop/"));
  Mandant.Einstellen("Marklink", "password", QStringLiteral("geheim"));
  Mandant.Einstellen("Marklink", "ViewablePeriod", QStringLiteral("3"));
  // The client's own type wins over the host's fallback, for the number that stands for true as well.
  EXPECT_EQ(Kontext.gDatabasetype, Mandant.Typ());
  EXPECT_EQ(Kontext.gSQL_True, Mandant.Typ() == 0 ? -1 : 1);
  EXPECT_EQ(Kontext.gHeute, QDate(2024, 6, 15));
  EXPECT_EQ(Kontext.gProgrammpfad, Mandant.Ordner());
  EXPECT_EQ(Kontext.gHostname, QStringLiteral("shop.example"));
  EXPECT_EQ(Kontext.gUrl, QStringLiteral("/shop/marklink/marklink.php"));
  EXPECT_EQ(Kontext.gPassword, QStringLiteral("e8636ea013e682faf61f56ce1cb1ab5c"));
  EXPECT_EQ(Kontext.gViewablePeriod, 3);
  EXPECT_EQ(Kontext.gPreisNachkommastellen, 2);
  EXPECT_EQ(Kontext.gBenutzer_Filiale, QStringLiteral("Zentrale"));
  EXPECT_EQ(Kontext.gBenutzer_Lagernummer, QStringLiteral("1"));
  EXPECT_EQ(Kontext.gCountry, QStringLiteral("Deutschland"));
  Mandant.Einstellen("Program", "PriceFormat", QStringLiteral("0"));
  EXPECT_EQ(Kontext.gPreisNachkommastellen, 1);
  EXPECT_EQ(CalculateMD5(QString()), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
}

TEST_P(Programmstart_Test, fremde_Einrichtungsart_laesst_nur_die_Layoutdatei_leer) {
  Ini_schreiben(Kontext.gMandantenliste, QStringLiteral("Test"), QStringLiteral("installing"),
                QStringLiteral("3"));
  Mandant.Starten();
  EXPECT_EQ(Kontext.gLayoutDatei.isEmpty(), Mandant.Typ() == 1);
  EXPECT_EQ(Kontext.gCountry, QStringLiteral("Deutschland"));
}

TEST_P(Programmstart_Test, fehlende_Dateien_geben_leere_Werte) {
  Mandant.Host_einstellen("files", "uiffile", QStringLiteral("fehlt.ini"));
  Mandant.Starten();
  EXPECT_EQ(Kontext.gCountry, QString());
  EXPECT_EQ(Kontext.gDatabasetype, 0);
  EXPECT_EQ(Benutzer_Daten(QStringLiteral("Chef"), 0), QString());
  EXPECT_FALSE(Option_schreiben(QString(), QStringLiteral("x"), QStringLiteral("y")));
}

TEST_P(Programmstart_Test, Einstellungen_stehen_im_eigenen_Speicher) {
  const QString abschnitt = QStringLiteral("Marklink");
  const auto lesen = [&](const char *schluessel) {
    return Option_lesen(abschnitt, QLatin1String(schluessel));
  };
  Option_schreiben(abschnitt, QStringLiteral("language"), QStringLiteral("2"));
  Option_schreiben(abschnitt, QStringLiteral("LANGUAGE"), QStringLiteral("5"));
  EXPECT_EQ(lesen("language"), QStringLiteral("5"));
  EXPECT_EQ(lesen("fehlt"), QString());
  EXPECT_EQ(lesen("x' OR 'a' = 'a"), QString());
  const auto zeilen = Abfragen("SELECT * FROM Options WHERE [Key] = 'language'").RecordCount();
  EXPECT_EQ(zeilen, Mandant.Typ() == 0 ? 0 : 1);
  EXPECT_EQ(QFile::exists(Mandant.Ordner() + QStringLiteral("Test.afk")), Mandant.Typ() == 0);
  Mandant.Starten();
  EXPECT_EQ(lesen("language"), QStringLiteral("5"));
  int anweisungen = 0;
  db::Beobachter_setzen([&](const QString &) { ++anweisungen; });
  EXPECT_EQ(lesen("language"), QStringLiteral("5"));
  EXPECT_EQ(lesen("fehlt"), QString());
  EXPECT_EQ(anweisungen, 0) << "settings are read without asking the database";
  db::Beobachter_setzen({});
  Optionen_freigeben();
  EXPECT_EQ(lesen("language"), QStringLiteral("5"));
  EXPECT_TRUE(Option_schreiben(abschnitt, QStringLiteral("language"), QStringLiteral("6")));
}

TEST_P(Programmstart_Test, Nachschlagen) {
  Mandant.Zeile(QStringLiteral("Countries"),
                {QStringLiteral("Token"), QStringLiteral("AT"), QStringLiteral("Description"),
                 QStringLiteral("Österreich"), QStringLiteral("EU"), true,
                 QStringLiteral("FreeShippingAmount"), 80.5, QStringLiteral("Currency"),
                 QStringLiteral("EUR"), QStringLiteral("AddressFormat"), QStringLiteral("$Name in $Town")});
  Mandant.Zeile(QStringLiteral("Countries"),
                {QStringLiteral("Token"), QStringLiteral("CH"), QStringLiteral("Description"),
                 QStringLiteral("Schweiz"), QStringLiteral("EU"), false});
  Mandant.Zeile(QStringLiteral("Forms"),
                {QStringLiteral("Description"), QStringLiteral("Rechnung lang"), QStringLiteral("Type"),
                 QStringLiteral("Rechnung"), QStringLiteral("Standard"), true});
  Mandant.Einstellen("Program", "FreeShippingAmount", QStringLiteral("1.000,50"));
  const QString oesterreich = QStringLiteral("ÖSTERREICH"), schweiz = QStringLiteral("Schweiz");
  EXPECT_EQ(Land_aus_Token(QStringLiteral("at")), QStringLiteral("Österreich"));
  EXPECT_EQ(Land_aus_Token(QStringLiteral("XX")), QString());
  EXPECT_TRUE(Land_ist_EU(oesterreich));
  EXPECT_FALSE(Land_ist_EU(schweiz));
  EXPECT_FALSE(Land_ist_EU(QStringLiteral("O'Land")));
  EXPECT_DOUBLE_EQ(Land_Versandfreigrenze(oesterreich), 80.5);
  EXPECT_DOUBLE_EQ(Land_Versandfreigrenze(QStringLiteral("Atlantis")), 1000.5);
  EXPECT_EQ(Land_Waehrung(oesterreich), QStringLiteral("EUR"));
  EXPECT_EQ(Adressformat_ermitteln(oesterreich, QStringLiteral("Description")),
            QStringLiteral("$Name in $Town"));
  EXPECT_EQ(Adressformat_ermitteln(schweiz, QStringLiteral("Description")), Kontext.gAdressformat);
  EXPECT_EQ(Formular_Standard(QStringLiteral("Rechnung")), QStringLiteral("Rechnung lang"));
  EXPECT_EQ(Formular_Standard(QStringLiteral("Lieferschein")), QString());
  EXPECT_TRUE(
      Datensatz_existiert(QStringLiteral("Countries"), QStringLiteral("Token"), QStringLiteral("CH")));
  EXPECT_FALSE(
      Datensatz_existiert(QStringLiteral("Countries"), QStringLiteral("Token"), QStringLiteral("XX")));
  EXPECT_EQ(Benutzer_Daten(QStringLiteral("niemand"), 3), QString());
  EXPECT_EQ(Benutzer_Daten(QStringLiteral("Chef"), 4), QString());
}

TEST_P(Programmstart_Test, IstNull_in_der_Mundart) {
  const QString feld = QStringLiteral("Articles.ArticleNumber");
  const bool jet = Mandant.Typ() == 0;
  EXPECT_EQ(Bedingung_IstNull(feld, false), jet ? QStringLiteral("IsNull(Articles.ArticleNumber) = False")
                                                : QStringLiteral("Articles.ArticleNumber IS NOT NULL"));
  EXPECT_EQ(Bedingung_IstNull(feld, true), jet ? QStringLiteral("IsNull(Articles.ArticleNumber) = True")
                                               : QStringLiteral("Articles.ArticleNumber IS NULL"));
}

TEST_P(Programmstart_Test, aendert_ein_Feld_in_mehreren_Zeilen) {
  for (const char *token : {"C", "A", "B"})
    Mandant.Zeile(QStringLiteral("Countries"), {QStringLiteral("Token"), QLatin1String(token),
                                                QStringLiteral("Description"), QLatin1String(token)});
  Felder_aendern(QStringLiteral("Countries"), QStringLiteral("Description"), QStringLiteral("B;fehlt;O'x;c"),
                 QStringLiteral("Currency"), QStringLiteral("XYZ"));
  EXPECT_EQ(Abfragen("SELECT * FROM Countries WHERE Currency = 'XYZ'").RecordCount(), 2);
  EXPECT_EQ(Abfragen("SELECT * FROM Countries WHERE Description = 'A' AND Currency = 'XYZ'").RecordCount(),
            0);
}

TEST_P(Programmstart_Test, holt_ein_Bild_aus_der_Datenbank) {
  const QByteArray bild("\x89PNG\0\x01\xFF", 7);
  Mandant.Zeile(QStringLiteral("ArticlePictures"), {QStringLiteral("Picture"), bild});
  const auto holen = [&](const QString &ziel, const db::Anweisung &bedingung) {
    return Feld_in_Datei(Kontext.gDatenbank, ziel, QStringLiteral("ArticlePictures"),
                         QStringLiteral("Picture"), bedingung, QStringLiteral("481902"));
  };
  const auto inhalt = [](const QString &pfad) {
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("?");
  };
  const QString ziel = Mandant.Ordner() + QStringLiteral("1.jpg");
  EXPECT_EQ(holen(ziel, " WHERE id = 1"), ziel);
  EXPECT_EQ(inhalt(ziel), bild);
  // A missing row leaves an existing file alone.
  EXPECT_EQ(holen(ziel, " WHERE id = 99"), ziel);
  EXPECT_EQ(inhalt(ziel), bild);
  const QString neu = holen(QString(), {});
  EXPECT_TRUE(neu.startsWith(Temp_Ordner()) && Dateiname_aus_Pfad(neu).startsWith(u'4')) << neu.toStdString();
  EXPECT_EQ(inhalt(neu), bild);
  QFile::remove(neu);
}

TEST_P(Programmstart_Test, eine_Zeit_in_der_uebersprungenen_Stunde_bleibt) {
  qputenv("TZ", "Europe/Berlin");
  tzset();
  Mandant.Zeile(QStringLiteral("WebshopOrdersXTC"),
                {QStringLiteral("OrderID"), QStringLiteral("1"), QStringLiteral("Date"),
                 QStringLiteral("2024-03-31 02:30:00")});
  const QDateTime zeit =
      Abfragen("SELECT * FROM WebshopOrdersXTC").Value(QStringLiteral("Date")).toDateTime();
  EXPECT_EQ(Datum_formatieren(zeit, QStringLiteral("dd.mm.yyyy hh:nn:ss")),
            QStringLiteral("31.03.2024 02:30:00"));
  EXPECT_EQ(Datum_formatieren(Datum_lesen(QStringLiteral("31.03.2024 02:30")), QStringLiteral("hh:nn")),
            QStringLiteral("02:30"));
  qunsetenv("TZ");
  tzset();
}

TEST(Verbindungstext_Test, Form_je_Datenbanktyp) {
  const auto bilden = [](int anmeldung, int typ) {
    return Connection_String_bilden(QStringLiteral("DB"), QStringLiteral("SRV"), anmeldung, 15,
                                    QStringLiteral("u"), QStringLiteral("p"), typ);
  };
  EXPECT_EQ(bilden(0, 0), QStringLiteral("Provider=;Data Source=DB;Jet OLEDB:Database Password=p"));
  EXPECT_EQ(bilden(0, 1),
            QStringLiteral("Provider=;User ID=u;Password=p;Initial Catalog=DB;Data Source=SRV;Persist "
                           "Security Info=False;Connect Timeout=15"));
  EXPECT_EQ(bilden(1, 1), QStringLiteral("Provider=;Data Source=SRV;Initial Catalog=DB;Integrated "
                                         "Security=SSPI;Connect Timeout=15"));
  EXPECT_EQ(bilden(7, 1), QString());
}

}  // namespace
}  // namespace marklink
