// The settings dialog without its window: what is read, what is saved in which order, what its commands do.
#include "shop/Shopeinstellungen.h"

#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "support/Dialoge_Skript.h"
#include "support/Komponenten_Attrappe.h"
#include "support/Testdateien.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

size_t Feld(const char *Schluessel) {
  for (size_t i = 0; i < Einstellungsfelder().size(); ++i)
    if (qstrcmp(Einstellungsfelder()[i].Schluessel, Schluessel) == 0) return i;
  ADD_FAILURE() << Schluessel;
  return 0;
}

QString Gespeichert(const char *Schluessel) {
  return Option_lesen(u"Marklink"_qs, QLatin1String(Schluessel));
}

class Shopeinstellungen_Test : public test::Mandant_Test {
 protected:
  Shopeinstellungen Einstellungen;
};
MARKLINK_BEIDE_TYPEN(Shopeinstellungen_Test);

TEST_P(Shopeinstellungen_Test, jeder_Wert_kommt_an_seinen_Platz_und_nur_zwei_gelten_sofort) {
  const Programmkontext vorher = Kontext;
  for (size_t i = 0; i < Einstellungsfelder().size(); ++i) {
    const Feldart art = Einstellungsfelder()[i].Art;
    Einstellungen.Wert_setzen(
        i, art == Feldart::Text || art == Feldart::Passwort ? u" Über %1 'x' "_qs.arg(i) : u"1"_qs);
  }
  Einstellungen.Einstellungen_speichern();
  Shopeinstellungen gelesen;
  gelesen.Einstellungen_lesen();
  for (size_t i = 0; i < Einstellungsfelder().size(); ++i)
    EXPECT_EQ(gelesen.Wert(i), Einstellungen.Wert(i)) << Einstellungsfelder()[i].Schluessel;
  EXPECT_EQ(Kontext.gSynchronisation, 1);
  EXPECT_EQ(Kontext.gArticlepricing, 1);
  EXPECT_EQ(Kontext.gHostname, vorher.gHostname);
  EXPECT_EQ(Kontext.gPassword, vorher.gPassword) << "requests carry the old hash until the next start";
}

TEST_P(Shopeinstellungen_Test, speichert_in_fester_Reihenfolge) {
  if (GetParam() != 0) return;  // a table keeps no order that could be read back
  Ini_schreiben(Kontext.gAfkDatei = Mandant.Ordner() + u"neu.afk"_qs, u"Marklink"_qs, u"project"_qs,
                u"vorher"_qs);
  Einstellungen.Einstellungen_speichern();
  QByteArray schluessel;
  for (const QByteArray &zeile : test::Datei_lesen(Kontext.gAfkDatei).split('\n'))
    if (zeile.contains('=')) schluessel += zeile.left(zeile.indexOf('=')) + ' ';
  EXPECT_EQ(
      schluessel,
      "project hostname port username password folder htaccessusername htaccesspassword synchronisation "
      "language disposeproductid autoretrieve attributematrix articlepricing UseArticlePictureNames "
      "UseShopCustomerNumber ftphostname ftpusername ftppassword ftpfolder ");
}

TEST_P(Shopeinstellungen_Test, Zahlen_und_Ordner) {
  const struct {
    const char *Gespeichert, *Gelesen;
  } zahlen[] = {{"", "0"}, {"1", "1"}, {"7", "7"}, {"-1", "-1"}, {"1,6", "2"}, {"ja", "0"}, {"70000", "0"}};
  for (const auto &zahl : zahlen) {
    Mandant.Einstellen("Marklink", "synchronisation", QLatin1String(zahl.Gespeichert));
    Einstellungen.Einstellungen_lesen();
    EXPECT_EQ(Einstellungen.Wert(Feld("synchronisation")), QLatin1String(zahl.Gelesen)) << zahl.Gespeichert;
  }
  for (const auto &[ordner, abgeschlossen] :
       {std::pair{"/shop", "/shop/"}, std::pair{"/shop/", "/shop/"}, std::pair{"", "/"}}) {
    Einstellungen.Wert_setzen(Feld("folder"), QLatin1String(ordner));
    Einstellungen.Einstellungen_speichern();
    EXPECT_EQ(Gespeichert("folder"), QLatin1String(ordner)) << "saving closes no folder";
    Einstellungen.Ordner_abschliessen();
    EXPECT_EQ(Einstellungen.Wert(Feld("folder")), QLatin1String(abgeschlossen));
  }
}

using Befehl = void (*)(Shopeinstellungen &);

TEST_P(Shopeinstellungen_Test, Befehle_speichern_erst_und_rufen_den_Host) {
  test::Dialoge_Skript skript;
  test::Komponenten_Attrappe host;
  for (const auto &[schluessel, wert] :
       {std::pair{"Script", "web/marklink.php"}, std::pair{"exportfile", "begleiter.php"},
        std::pair{"exportfolder", "marklink"}})
    Mandant.Host_einstellen("Marklink", schluessel, QLatin1String(wert));
  Mandant.Starten();
  const Befehl testen = [](Shopeinstellungen &E) { E.Verbindung_testen(); };
  const Befehl laden = [](Shopeinstellungen &E) { E.Script_hochladen(); };
  const Befehl suchen = [](Shopeinstellungen &E) { E.Script_suchen(); };
  const QString start = u"Initialisierung Test Chef"_qs, ordner = Mandant.Ordner();
  const QString test = u"FTP_Verbindungstest f u p"_qs;
  const QString script = u"FTP_Upload f u p /web/marklink/ %1web/marklink.php"_qs.arg(ordner);
  const QString da = u"FTP_Datei_exists f u p /web/marklink/ marklink.php"_qs;
  const QString begleiter = u"FTP_Upload f u p /web/marklink/ %1begleiter.php"_qs.arg(ordner);
  const QString gesucht = u"FTP_Datei_exists f u p /web/marklink/ web/marklink.php"_qs;
  const QStringList nicht_geladen{u"Das Script konnte nicht auf den Server geladen werden."_qs};
  const QStringList geladen{u"Das Script für Marklink wurde erfolgreich auf den Server geladen."_qs};
  const QStringList kein_test{u"Die Verbindung konnte nicht aufgebaut werden."_qs,
                              u"Bitte überprüfen Sie Ihre Eingaben."_qs};
  const struct {
    Befehl Tun;
    QVariantList Ergebnisse;  ///< of the operations after the start; missing ones are invalid
    QStringList Aufrufe, Zeilen;
    bool Gut;
  } faelle[] = {
      {testen, {true}, {start, test}, {u"Die Verbindung zum FTP-Server konnte hergestellt werden."_qs}, true},
      {testen, {false}, {start, test}, kein_test, false},
      {testen, {}, {start, test}, kein_test, false},
      {laden, {true, true, true}, {start, script, da, begleiter}, geladen, true},
      {laden, {true, true, false}, {start, script, da, begleiter}, geladen, true},
      {laden, {true, false}, {start, script, da}, nicht_geladen, false},
      {laden, {false}, {start, script}, nicht_geladen, false},
      {suchen, {true}, {start, gesucht}, {u"Das Script ist auf dem FTP-Server vorhanden."_qs}, true},
      {suchen,
       {false},
       {start, gesucht},
       {u"Das Script konnte nicht auf dem FTP-Server gefunden werden."_qs},
       false},
  };
  for (const auto &fall : faelle) {
    for (const char *schluessel : {"ftphostname", "ftpusername", "ftppassword", "ftpfolder"})
      Option_schreiben(u"Marklink"_qs, QLatin1String(schluessel), u"alt"_qs);
    Einstellungen.Einstellungen_lesen();
    for (const auto &[schluessel, wert] : {std::pair{"ftphostname", "f"}, std::pair{"ftpusername", "u"},
                                           std::pair{"ftppassword", "p"}, std::pair{"ftpfolder", "/web/"}})
      Einstellungen.Wert_setzen(Feld(schluessel), QLatin1String(wert));
    host.Vorbereiten(fall.Ergebnisse);
    skript.Erwarten(fall.Gut ? u"Hinweis"_qs : u"Fehler"_qs);
    fall.Tun(Einstellungen);
    EXPECT_EQ(host.Aufrufe, fall.Aufrufe) << fall.Zeilen.join(u' ').toStdString();
    EXPECT_EQ(skript.Gezeigt.back().Zeilen, fall.Zeilen);
    EXPECT_EQ(skript.Gezeigt.back().Bild, fall.Gut ? Symbol::Information : Symbol::Warnung);
    EXPECT_EQ(Einstellungen.Hochladen_moeglich(), fall.Tun == testen && fall.Gut);
  }
  Host_Komponenten_setzen(nullptr);
  skript.Erwarten(u"Fehler"_qs);
  Einstellungen.Script_hochladen();
  EXPECT_EQ(skript.Gezeigt.back().Zeilen, nicht_geladen) << "a host without the component";
}

}  // namespace
}  // namespace marklink
