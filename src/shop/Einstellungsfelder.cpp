// The fields of the settings dialog.
#include "Shopeinstellungen.h"

namespace marklink {
namespace {

using enum Einstellungsseite;
using enum Feldart;

const char *const Shopzugang = "Shop";
const char *const Verzeichnisschutz = "Verzeichnisschutz";

constexpr const char *Artikelnummer_Beschriftung =
    "Die Artikelnummer (Produkt-ID) des Shops verwenden und in Varda übernehmen";
constexpr const char *Matrix_Beschriftung =
    "Attribut-Matrix zur Bestandsverwaltung von Varianten (Attributen) wird verwendet";
constexpr const char *Kundennummern_Beschriftung =
    "Die durch den Webshop vergebene Kundennummer in Varda verwenden";

const Einstellungsfeld Felder[] = {
    {"txtProjektbezeichnung", Allgemein, "", "Projektbezeichnung",
     "Ein Name Ihrer Wahl. Solange er fehlt, gilt der Webshop als nicht eingerichtet.", "project", Text},
    {"txtHostname", Allgemein, "", "Hostname / Server",
     "Die Adresse des Shops ohne Ordner, zum Beispiel www.mein-shop.de. Mit https:// davor wird "
     "verschlüsselt "
     "übertragen.",
     "hostname", Text},
    {"txtPort", Allgemein, "", "Port",
     "Bleibt meistens leer. Eintragen, wenn der Shop nicht über den üblichen Port erreichbar ist.", "port",
     Text},
    {"txtShop_Benutzername", Zugangsdaten, Shopzugang, "Benutzername",
     "Anmeldung eines Administrators des Shops, meist seine E-Mail-Adresse.", "username", Text},
    {"txtShop_Passwort", Zugangsdaten, Shopzugang, "Passwort",
     "Ein geändertes Passwort gilt in der Auftragsverwaltung sofort, sonst sobald der Mandant neu geöffnet "
     "wird.",
     "password", Passwort},
    {"txtShop_Ordner", Allgemein, "", "Shop-Ordner",
     "Der Ordner des Shops auf dem Server, mit Schrägstrich am Anfang und am Ende: /shop/ oder nur /.",
     "folder", Text},
    {"txtVerzeichnisschutz_Benutzername", Zugangsdaten, Verzeichnisschutz, "Benutzername",
     "Nur ausfüllen, wenn der Ordner des Scripts auf dem Server durch ein Passwort geschützt ist.",
     "htaccessusername", Text},
    {"txtVerzeichnisschutz_Passwort", Zugangsdaten, Verzeichnisschutz, "Passwort", "", "htaccesspassword",
     Passwort},
    {"cboSynchronisierung", Allgemein, "", "Synchronisierung",
     "Wo Artikel und Listen gepflegt werden: im Shop oder in Varda.", "synchronisation", Auswahl},
    {"txtSprache", Einstellungen, "", "Sprach-ID",
     "Die Nummer der Sprache, deren Texte verwendet werden. In den meisten Shops ist Deutsch die 2.",
     "language", Text},
    {"chkArtikelnummer", Einstellungen, "", Artikelnummer_Beschriftung,
     "Nur verwenden, wenn jedes Produkt eine eigene Produkt-ID hat, auch jede Variante.", "disposeproductid",
     Schalter},
    {"chkBestellungsabruf", Einstellungen, "", "Bestellungen beim Starten der Auftragsverwaltung abrufen", "",
     "autoretrieve", Schalter},
    {"chkAttribut_Matrix", Einstellungen, "", Matrix_Beschriftung, "", "attributematrix", Schalter},
    {"chkPreisfindung", Einstellungen, "", "Artikelpreis aus der Bestellung übernehmen",
     "Der Preis der Bestellung kommt in den Beleg, gleich welcher Preis in Varda gilt. Den Artikel muss es "
     "in "
     "Varda trotzdem geben.",
     "articlepricing", Schalter},
    {"chkBildnamen", Einstellungen, "", "Bildnamen der Artikelbilder verwenden, anstatt der Produkt-ID",
     "Ausgeschaltet heißt ein Bild im Shop nach seinem Produkt, zum Beispiel 4711_0.jpg.",
     "UseArticlePictureNames", Schalter},
    {"chkKundennummern", Einstellungen, "", Kundennummern_Beschriftung,
     "Ausgeschaltet bekommt ein neuer Kunde die nächste Nummer aus Varda.", "UseShopCustomerNumber",
     Schalter},
    {"txtFTP_Hostname", FTP_Zugang, "", "FTP-Server",
     "Zum Beispiel ftp.mein-shop.de; ein anderer Port folgt nach einem Doppelpunkt. Verschlüsselt wird, wenn "
     "der Server es anbietet.",
     "ftphostname", Text},
    {"txtFTP_Benutzername", FTP_Zugang, "", "Benutzername", "", "ftpusername", Text},
    {"txtFTP_Passwort", FTP_Zugang, "", "Passwort", "", "ftppassword", Passwort},
    {"txtFTP_Ordner", FTP_Zugang, "", "Ordner",
     "Der Ordner des Shops auf dem FTP-Server, mit Schrägstrich am Ende, zum Beispiel /httpdocs/shop/.",
     "ftpfolder", Text},
};

}  // namespace

std::span<const Einstellungsfeld> Einstellungsfelder() { return Felder; }

QString Seitenname(Einstellungsseite Seite) {
  switch (Seite) {
    case Allgemein:
      return QStringLiteral("Allgemein");
    case Zugangsdaten:
      return QStringLiteral("Zugangsdaten");
    case Einstellungen:
      return QStringLiteral("Einstellungen");
    case FTP_Zugang:
      break;
  }
  return QStringLiteral("FTP-Zugang");
}

QStringList Synchronisierungsrichtungen() {
  return {QStringLiteral("...vom Shop nach Varda übertragen"),
          QStringLiteral("...von Varda in den Shop übertragen")};
}

}  // namespace marklink
