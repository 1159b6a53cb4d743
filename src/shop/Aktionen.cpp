// The action tables of the shop script and the request that every action shares.
#include "Aktionen.h"

#include <span>

#include "Austausch.h"
#include "Serveradresse.h"
#include "db/Ablaufverfolgung.h"
#include "host/Dateien.h"
#include "host/Ini.h"
#include "host/Kontext.h"

namespace marklink {

QString gAktion;
QString gAktion_Url;

namespace {

enum class Anfragetext {
  Ohne_Parameter,
  Mit_Parameter,
  Unveraendert  ///< only gAktion is set; the previous request goes out again, on purpose
};

struct Aktion {
  const char *Name;  ///< nullptr: no action at this selector
  Anfragetext Text;
};

using enum Anfragetext;

// The index is the selector.
constexpr Aktion Abrufaktionen[] = {
    {"get_version", Ohne_Parameter},
    {"get_categories", Ohne_Parameter},
    {"get_manufacturers", Unveraendert},
    {"get_customers", Mit_Parameter},
    {"get_products", Mit_Parameter},
    {"get_orders", Mit_Parameter},
    {"get_languages", Ohne_Parameter},
    {"get_customers_newsletter", Unveraendert},
    {"get_shop_configuration", Ohne_Parameter},
    {"get_shipping_status", Ohne_Parameter},
    {"get_customers_status", Ohne_Parameter},
    {"get_orders_status", Ohne_Parameter},
    {"get_products_specials", Ohne_Parameter},
    {"get_products_stockings", Mit_Parameter},
    {"get_products_vpe", Ohne_Parameter},
    {"get_products_categories", Mit_Parameter},
    {"get_products_list", Mit_Parameter},
};

constexpr Aktion Uebertragungsaktionen[] = {
    {"set_categories", Mit_Parameter},
    {nullptr, Unveraendert},
    {"set_products", Mit_Parameter},
    {"set_customers_status", Mit_Parameter},
    {"set_orders_status", Mit_Parameter},
    {"set_shipping_status", Mit_Parameter},
    {"set_products_options", Mit_Parameter},
    {"set_products_options_values", Mit_Parameter},
    {"set_products_attributes", Mit_Parameter},
    {"set_products_personal_offers", Mit_Parameter},
    {"set_languages", Mit_Parameter},
    {"set_products_images", Mit_Parameter},
    {"set_products_descriptions", Mit_Parameter},
    {"set_categories_descriptions", Mit_Parameter},
    {"set_products_specials", Mit_Parameter},
    {"set_products_stockvalues", Mit_Parameter},
    {"set_products_variants_stockvalues", Mit_Parameter},
    {"set_products_attributmatrix", Mit_Parameter},
    {"set_products_vpe", Mit_Parameter},
    {"set_products_categories", Mit_Parameter},
    {"set_products_defaultimage", Mit_Parameter},
    {"set_products_list", Mit_Parameter},
};

// get_products_exists stands here because it answers with the status reply.
constexpr Aktion Aenderungsaktionen[] = {
    {"del_categories", Mit_Parameter},
    {"del_categories_all", Ohne_Parameter},
    {"set_order_update", Mit_Parameter},
    {"del_customers_status", Mit_Parameter},
    {"del_customers_status_all", Ohne_Parameter},
    {"del_orders_status", Mit_Parameter},
    {"del_orders_status_all", Ohne_Parameter},
    {"del_shipping_status", Mit_Parameter},
    {"del_shipping_status_all", Ohne_Parameter},
    {"del_products", Mit_Parameter},
    {"get_products_exists", Mit_Parameter},
    {"del_languages", Mit_Parameter},
    {"del_languages_all", Ohne_Parameter},
    {"del_products_specials", Mit_Parameter},
    {"del_products_specials_all", Ohne_Parameter},
    {"update_tables", Ohne_Parameter},
    {"del_products_vpe", Mit_Parameter},
    {"del_products_vpe_all", Ohne_Parameter},
    {"del_products_categories", Mit_Parameter},
    {"del_products_categories_all", Ohne_Parameter},
};

/// Sets gAktion and gAktion_Url; a selector without an action leaves both.
void Aktion_waehlen(std::span<const Aktion> Tabelle, qint16 Auswahl, const QString &Parameter) {
  if (Auswahl < 0 || static_cast<size_t>(Auswahl) >= Tabelle.size()) return;
  const Aktion &aktion = Tabelle[static_cast<size_t>(Auswahl)];
  if (aktion.Name == nullptr) return;
  gAktion = QLatin1String(aktion.Name);
  if (aktion.Text == Unveraendert) return;
  // The login is not encoded; the script compares it as it stands.
  gAktion_Url = Kontext.gUrl + QStringLiteral("?action=") + gAktion + QStringLiteral("&user=") +
                Kontext.gUsername + QStringLiteral("&password=") + Kontext.gPassword;
  if (aktion.Text == Mit_Parameter) gAktion_Url += Parameter;
}

QString Anfragekopf() {
  return QStringLiteral("GET ") + gAktion_Url +
         QStringLiteral(
             " HTTP/1.1\r\n"
             "Accept: image/gif, image/x-xbitmap, image/jpeg, image/pjpeg, application/x-shockwave-flash, "
             "application/vnd.ms-excel, application/msword, application/vnd.ms-powerpoint, */*\r\n"
             "Accept-Encoding: deflate\r\n"
             "User-Agent: Tennwerk Varda\r\n"
             "Host: ") +
         Serveradresse_lesen(Kontext.gHostname).Name + QStringLiteral("\r\nConnection: Keep-Alive\r\n\r\n");
}

/// Path of the reply file; empty when the configuration names none. Only the last part of the name counts, so
/// the file never leaves the temporary folder.
QString Antwortpfad() {
  const QString name = Dateiname_aus_Pfad(
      Ini_lesen(Kontext.gHostkonfiguration, QStringLiteral("Marklink"), QStringLiteral("exportfile")));
  if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..")) return {};
  return Temp_Ordner() + name;
}

QString Anfrage_senden(const QString &Statustext) {
  Verbindungsauftrag auftrag;
  auftrag.Statustext = Statustext;
  auftrag.Host = Kontext.gHostname;
  auftrag.Port = Kontext.gPort;
  auftrag.URL = gAktion_Url;
  auftrag.Verzeichnisschutz_Benutzername = Kontext.gHtaccessUsername;
  auftrag.Verzeichnisschutz_Passwort = Kontext.gHtaccessPassword;
  auftrag.xmlDatei = Antwortpfad();
  if (auftrag.xmlDatei.isEmpty()) {
    // Nothing is sent: the shop would act on a request whose answer nobody could read.
    Ablauf_melden(QStringLiteral("Austausch"), QStringLiteral("Marklink/exportfile names no file"));
    return {};
  }
  auftrag.Header = Anfragekopf();
  Verbindung_zeigen(auftrag);
  return auftrag.Action == 0 && Datei_existiert(auftrag.xmlDatei) ? auftrag.xmlDatei : QString();
}

QString Text_abrufen() { return QStringLiteral("Einen Moment bitte. Die Daten werden abgerufen..."); }

}  // namespace

QString Daten_abrufen(qint16 Auswahl, const QString &Parameter) {
  Aktion_waehlen(Abrufaktionen, Auswahl, Parameter);
  return Anfrage_senden(Text_abrufen());
}

QString Daten_uebertragen(qint16 Auswahl, const QString &Parameter1, const QString &Parameter2) {
  Aktion_waehlen(Uebertragungsaktionen, Auswahl, Parameter1 + Parameter2);
  return Anfrage_senden(QStringLiteral("Einen Moment bitte. Die Daten werden übertragen..."));
}

QString Daten_aendern(qint16 Auswahl, const QString &Parameter) {
  Aktion_waehlen(Aenderungsaktionen, Auswahl, Parameter);
  return Anfrage_senden(Text_abrufen());
}

}  // namespace marklink
