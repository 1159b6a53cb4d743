// The seven lists as data.
#include "Listen.h"

#include "ui/Hilfe.h"

namespace marklink {
namespace {

using Art = Tabellenspalte::Art;

const QString Ganze_Zahl = QStringLiteral("0123456789-"), Kommazahl = QStringLiteral("0123456789-,");

Tabellenspalte Spalte_bilden(const char *Feld, const char *Titel, Art Wie, const QString &Zeichen = {}) {
  Tabellenspalte spalte{QLatin1String(Feld), QString::fromUtf8(Titel), Wie, true};
  spalte.Zeichen = Zeichen;
  return spalte;
}

Tabellenspalte Text(const char *Feld, const char *Titel) { return Spalte_bilden(Feld, Titel, Art::Text); }
Tabellenspalte Zahl(const char *Feld, const char *Titel, const QString &Zeichen) {
  return Spalte_bilden(Feld, Titel, Art::Zahl, Zeichen);
}
Tabellenspalte Haken(const char *Feld, const char *Titel) { return Spalte_bilden(Feld, Titel, Art::Haken); }

/// Description, the columns of its own, the shop's id if it has one, and the two flags of every list.
std::vector<Tabellenspalte> Spalten(std::vector<Tabellenspalte> Eigene, bool Mit_Webshop_ID) {
  std::vector<Tabellenspalte> alle{Text("Description", "Bezeichnung")};
  alle.insert(alle.end(), Eigene.begin(), Eigene.end());
  if (Mit_Webshop_ID) alle.push_back(Text("WebshopID", "Webshop-ID"));
  alle.push_back(Haken("Active", "Aktiv"));
  alle.push_back(Haken("Standard", "Standard"));
  return alle;
}

/// The colour is picked in a dialog that the description's button opens.
std::vector<Tabellenspalte> Spalten_Auftragsstati() {
  Tabellenspalte farbe = Zahl("Colour", "Farbe", {});
  farbe.Bearbeitbar = false;
  std::vector<Tabellenspalte> spalten = Spalten({farbe}, true);
  spalten[0].Zellenknopf = true;
  return spalten;
}

std::vector<Liste> Listen_bilden() {
  return {
      {QStringLiteral("frmListen_Lieferzeiten"), QStringLiteral("Webshop: Lieferzeiten"),
       QStringLiteral("WebshopDeliveryTimesXTC"), QStringLiteral("Webshop_Lieferzeiten_xtc"),
       Hilfethema::Liste_Lieferzeiten, true,
       Spalten({Zahl("DeliveryTimeDays", "Lieferzeit in Tagen", Ganze_Zahl),
                Zahl("StockQuantity", "Bestand ab", Kommazahl)},
               true)},
      {QStringLiteral("frmListen_Auftragsstati"), QStringLiteral("Auftragsstati"),
       QStringLiteral("WebshopOrderStatusXTC"), QStringLiteral("Webshop_Auftragsstati_xtc"),
       Hilfethema::Liste_Auftragsstati, true, Spalten_Auftragsstati()},
      {QStringLiteral("frmListen_Sprachen"), QStringLiteral("Webshop: Sprachen"),
       QStringLiteral("WebshopLanguagesXTC"), QStringLiteral("Webshop_Sprachen_xtc"),
       Hilfethema::Liste_Sprachen, false,
       Spalten({Text("Token", "Kürzel"), Text("Image", "Bild"), Text("Directory", "Verzeichnis"),
                Zahl("SortOrder", "Sortierung", Ganze_Zahl), Text("LanguageCharset", "Zeichensatz")},
               true)},
      {QStringLiteral("frmListen_Kundengruppen"), QStringLiteral("Webshop: Kundengruppen"),
       QStringLiteral("CustomerTypes"), QStringLiteral("Webshop_Kundengruppen_xtc"),
       Hilfethema::Liste_Kundengruppen, true,
       Spalten({Haken("BlockingPricing", "Staffel\u00ADpreise"),
                Haken("SpecialOfferPrice", "Sonder\u00ADpreise"), Haken("Taxable", "Steuer\u00ADpflichtig")},
               true)},
      {QStringLiteral("frmListen_Artikelvorlagen_Details"),
       QStringLiteral("Webshop: Artikelvorlagen: Details"),
       QStringLiteral("WebshopArticleTemplatesDetailsXTC"),
       QStringLiteral("Webshop_Artikelvorlagen_Details_xtc"), Hilfethema::Liste_Artikelvorlagen_Details,
       false, Spalten({}, false)},
      {QStringLiteral("frmListen_Artikelvorlagen_Optionen"),
       QStringLiteral("Webshop: Artikelvorlagen: Optionen"),
       QStringLiteral("WebshopArticleTemplatesOptionsXTC"),
       QStringLiteral("Webshop_Artikelvorlagen_Optionen_xtc"), Hilfethema::Liste_Artikelvorlagen_Optionen,
       false, Spalten({}, false)},
      // The statement names the customer groups' table, as it always has.
      {QStringLiteral("frmListen_Einheiten"), QStringLiteral("Webshop: Verpackungseinheiten"),
       QStringLiteral("Units"), QStringLiteral("Webshop_Verpackungseinheiten_xtc"),
       Hilfethema::Liste_Einheiten, true, Spalten({}, true), QStringLiteral("CustomerTypes")},
  };
}

}  // namespace

int Liste::Spalte(QLatin1String Feld) const {
  for (size_t i = 0; i < Spalten.size(); ++i)
    if (Spalten[i].Schluessel == Feld) return int(i);
  return -1;
}

QString Liste::Layout_Sql() const {
  QStringList felder;
  for (const Tabellenspalte &spalte : Spalten) felder << spalte.Schluessel;
  return QStringLiteral("SELECT ") + felder.join(QLatin1String(", ")) + QStringLiteral(" FROM ") +
         (Layouttabelle.isEmpty() ? Tabelle : Layouttabelle);
}

std::span<const Liste> Listen() {
  static const std::vector<Liste> listen = Listen_bilden();
  return listen;
}

QString Webshop_ID_Tipp() {
  // "Bezeihung" is the system's own spelling.
  return QStringLiteral(
      "Achten Sie bitte darauf, dass im Feld 'Webshop-ID' stets eine eindeutige, fortlaufende Nummer "
      "eingetragen ist. Über diese Nummer wird die \"Bezeihung\" zum Webshop hergestellt.");
}

}  // namespace marklink
