// The settings of a new client and of the host.
#include "Stammdaten.h"

namespace marklink::app {

namespace {

struct Wertepaar {
  const char *Schluessel, *Wert;
};

/// Formats, prices, stock and printing; owned by the host.
constexpr Wertepaar Program[] = {
    {"Country", "Deutschland"},
    {"Currency", "EUR"},
    {"PriceFormat", "#,##0.00"},
    {"DigitsFormat", "#,##0.00"},
    {"MassFormat", "#,##0.00"},
    {"RebateFormat", "0.00"},
    {"PositionFormat", "0"},
    {"DateFormatting", "yyyymmdd"},
    {"DocumentNumberFormat", "Kürzel;-;Jahr;-;Nr."},
    {"VariantToken", "-"},
    {"Taxation", "1"},             // documents at home are gross
    {"ArticlePriceReadout", "0"},  // 2 adds the parts of a parts list to the price
    {"StorageBooking", "0"},       // 0 the invoice books stock, 2 the contract
    {"StorageAllocation", "0"},    // 1 takes stock from the employee's storage
    {"BackOrderAutoSave", "1"},    // 0 asks at every shortage
    {"ReservationUpdate", "0"},    // reserve without asking
    {"ReservationBooking", "0"},
    {"ConsignmentDays", "3"},
    {"DiscountCalculation", "0"},  // no cash discount on shipping
    {"RoundingSFr", "0"},
    {"AutoPaymentBooking", "1"},
    {"CashlessPaymentBooking", "0"},
    {"AccountingRecordBooking", "0"},
    {"FreeShipping", "0"},
    {"FreeShippingType", "1"},
    {"FreeShippingAmount", "100"},
    {"RefundForwarding", "0"},
    {"RefundForwardingAmount", "40"},
    {"ForwardingChargesDisplay", "0"},
    {"Finalize", "0"},  // ask before the order desk closes
    {"GridFontSize", "8"},
    {"RowColorEven", "16777215"},
    {"RowColorOdd", "15921906"},
    {"Tooltips", "1"},
    {"Preview", "1"},
    {"PrinterSetup", "0"},
    {"ColorPrint", "1"},
};

/// The shop project: empty until someone sets it up. The folder of the shop keeps both its slashes.
constexpr Wertepaar Shopprojekt[] = {
    {"project", ""},
    {"hostname", ""},
    {"port", "80"},
    {"folder", "/"},
    {"username", ""},
    {"password", ""},
    {"htaccessusername", ""},
    {"htaccesspassword", ""},
    {"ftphostname", ""},
    {"ftpusername", ""},
    {"ftppassword", ""},
    {"ftpfolder", "/"},
    {"synchronisation", "0"},
    {"language", "2"},  // German in a freshly installed shop
    {"disposeproductid", "0"},
    {"autoretrieve", "0"},
    {"attributematrix", "0"},
    {"articlepricing", "0"},
    {"UseArticlePictureNames", "0"},
    {"UseShopCustomerNumber", "0"},
    {"wizard", "0"},
    {"ViewablePeriod", "0"},
    {"LastRetrieve", ""},
    {"ImageFilter", "1"},
};

constexpr Wertepaar Datev[] = {
    {"DebitorAccount", "10001"},
    {"AccountPaymentIncome", "1200"},
    {"UseMethodPaymentsAccounts", "1"},
    {"AutoAccountingRecordBooking", "0"},
};

constexpr Wertepaar Versandexport[] = {
    {"ekp", ""}, {"client", ""}, {"appendrecords", "0"}, {"delimiter", "|"}, {"columnheader", "1"},
};

struct Nummernkreis {
  const char *Name, *Kuerzel, *Zaehler;
  const char *Format;  ///< empty: the format of all documents
};

const char *const Nur_Nummer = "Nr.;Leer;Leer;Leer;Leer";
const char *const Kuerzel_Nummer = "Kürzel;-;Nr.;Leer;Leer";

const Nummernkreis Nummernkreise[] = {
    {"Contract", "AU", "00001", ""},
    {"Invoice", "RE", "00001", ""},
    {"Customer", "KD", "10001", Nur_Nummer},
    {"Article", "AR", "100001", Nur_Nummer},
    {"Layout", "LA", "0001", Kuerzel_Nummer},
    {"Reservation", "RV", "000001", Kuerzel_Nummer},
    {"Stocking", "LG", "000001", Kuerzel_Nummer},
    {"Payment", "ZE", "000001", Kuerzel_Nummer},
    {"OpenItem", "OP", "000001", Kuerzel_Nummer},
};

constexpr Wertepaar Dateien[] = {
    {"langfile", "varda.lng"},
    {"helpfile", "varda.chm"},
    {"uiffile", "mandanten.ini"},
    {"forwardingfile", "easylog.xls"},
};

constexpr Wertepaar Hostprogramm[] = {
    {"databasetype", "0"},
    {"AddressFormat", "$Company$Cr$Surname $Name$Cr$Street $Affix$Cr$Zip $Town$Cr$Country"},
};

/// The picture folders go from the largest size to the smallest, since each is scaled from the one before;
/// 0 by 0 is the size as stored.
constexpr Wertepaar Shopscript[] = {
    {"exportfolder", "marklink"},
    {"script", "marklink.php"},
    {"imagefolder", "images/product_images"},
    {"imagefolderlist",
     "original_images;0;0|popup_images;300;240|info_images;200;160|thumbnail_images;120;80"},
};

constexpr Wertepaar Anbieter[] = {{"access", "SQLite"}, {"sql", "SQLite"}};
constexpr Wertepaar Verbindung[] = {{"Authentification", "0"}, {"LoginTimeout", "30"}};

template <std::size_t N>
void ergaenzen(std::vector<Einstellung> &Liste, const char *Abschnitt, const Wertepaar (&Werte)[N]) {
  for (const Wertepaar &paar : Werte) {
    Liste.push_back(
        {QString::fromUtf8(Abschnitt), QString::fromUtf8(paar.Schluessel), QString::fromUtf8(paar.Wert)});
  }
}

}  // namespace

std::vector<Einstellung> Mandant_Einstellungen(const QString &Ordner) {
  std::vector<Einstellung> liste;
  ergaenzen(liste, "Program", Program);
  ergaenzen(liste, "Marklink", Shopprojekt);
  ergaenzen(liste, "DATEV", Datev);
  ergaenzen(liste, "easylog", Versandexport);
  for (const Nummernkreis &kreis : Nummernkreise) {
    const Wertepaar werte[] = {{"Counting", "1"},
                               {"NumberRange", kreis.Zaehler},
                               {"Formatting", kreis.Format},
                               {"Token", kreis.Kuerzel}};
    for (const Wertepaar &paar : werte) {
      liste.push_back(
          {QString::fromUtf8(paar.Schluessel), QString::fromUtf8(kreis.Name), QString::fromUtf8(paar.Wert)});
    }
  }
  // The stock take-over looks for its switch with section and key the other way round.
  liste.push_back({QStringLiteral("Stocking"), QStringLiteral("Counting"), QStringLiteral("1")});
  liste.push_back({QStringLiteral("Program"), QStringLiteral("DocumentPath"), Ordner});
  liste.push_back(
      {QStringLiteral("easylog"), QStringLiteral("file"), Ordner + QStringLiteral("easylog_export.csv")});
  return liste;
}

std::vector<Einstellung> Host_Einstellungen() {
  std::vector<Einstellung> liste;
  ergaenzen(liste, "program", Hostprogramm);
  ergaenzen(liste, "files", Dateien);
  ergaenzen(liste, "Provider", Anbieter);
  ergaenzen(liste, "Connection", Verbindung);
  ergaenzen(liste, "Marklink", Shopscript);
  return liste;
}

}  // namespace marklink::app
