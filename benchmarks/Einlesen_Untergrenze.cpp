// Staging by hand: pugixml and prepared statements, nothing between them.
#include "Einlesen_Untergrenze.h"

#include <sqlite3.h>

#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>
#include <vector>

#include "db/Textvergleich_Utf8.h"

namespace marklink::messung {

namespace {

struct Spalte {
  const char *Name, *Knoten;
};
constexpr Spalte KOPF[] = {
    {"OrderID", "ORDER_ID"},
    {"CustomerID", "CUSTOMER_ID"},
    {"Customer", "CUSTOMER_NAME"},
    {"CustomerNumber", "CUSTOMER_CID"},
    {"Telephone", "CUSTOMER_TELEPHONE"},
    {"Email", "CUSTOMER_EMAIL"},
    {"VatID", "CUSTOMER_VAT_ID"},
    {"CustomerType", "CUSTOMER_GROUP_NAME"},
    {"Rebate", "CUSTOMER_DISCOUNT"},
    {"Status", "ORDER_STATUS"},
    {"Date", "ORDER_DATE"},
    {"OrderIP", "ORDER_IP"},
    {"Currency", "ORDER_CURRENCY"},
};
constexpr Spalte ANSCHRIFT[] = {
    {"Company", "COMPANY"},   {"Name", "NAME"},     {"Firstname", "FIRSTNAME"},
    {"Lastname", "LASTNAME"}, {"Street", "STREET"}, {"Postcode", "POSTCODE"},
    {"City", "CITY"},         {"Suburb", "SUBURB"}, {"Country", "COUNTRY"},
};
constexpr const char *MITTE[] = {"Amount", "Notes", "Invoice", "Payment", "Shipping", "ExtendedInfo"};
constexpr const char *LISTE[] = {
    "Invoice", "OrderID", "CustomerID", "Customer",       "CustomerNumber",  "Telephone",      "Email",
    "Date",    "Amount",  "Currency",   "Rebate",         "Shipping",        "Payment",        "ExtendedInfo",
    "Notes",   "Status",  "OrderIP",    "InvoiceAddress", "DeliveryAddress", "DeliveryCountry"};

std::vector<std::string> Spaltennamen() {
  std::vector<std::string> namen;
  for (const Spalte &s : KOPF) namen.emplace_back(s.Name);
  for (const char *name : MITTE) namen.emplace_back(name);
  for (const char *art : {"Invoice", "Delivery"}) {
    for (const Spalte &s : ANSCHRIFT) namen.push_back(std::string(art) + s.Name);
    namen.push_back(std::string(art) + "Address");
  }
  namen.emplace_back("Positions");
  return namen;
}

int Vergleich(void *, int LA, const void *A, int LB, const void *B) {
  return db::Utf8_vergleichen({static_cast<const char *>(A), LA}, {static_cast<const char *>(B), LB});
}

class Datenbank {
 public:
  explicit Datenbank(const std::string &Datei) {
    if (sqlite3_open(Datei.c_str(), &Db) != SQLITE_OK) return;
    sqlite3_create_collation(Db, "MARKLINK", SQLITE_UTF8, nullptr, Vergleich);
    Offen = Ausfuehren("PRAGMA journal_mode = WAL") && Ausfuehren("PRAGMA synchronous = NORMAL");
  }
  ~Datenbank() {
    for (sqlite3_stmt *s : Alle_) sqlite3_finalize(s);
    sqlite3_close(Db);
  }
  Datenbank(const Datenbank &) = delete;
  Datenbank &operator=(const Datenbank &) = delete;

  bool Ausfuehren(const std::string &Sql) const {
    return sqlite3_exec(Db, Sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
  }
  sqlite3_stmt *Vorbereiten(const std::string &Sql) {
    sqlite3_stmt *s = nullptr;
    sqlite3_prepare_v3(Db, Sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &s, nullptr);
    Alle_.push_back(s);
    return s;
  }
  sqlite3 *Db = nullptr;
  bool Offen = false;

 private:
  std::vector<sqlite3_stmt *> Alle_;
};

void Text_binden(sqlite3_stmt *S, int Stelle, const char *Text) {
  sqlite3_bind_text(S, Stelle, Text, -1, SQLITE_STATIC);
}
void Text_binden(sqlite3_stmt *S, int Stelle, const std::string &Text) {
  sqlite3_bind_text(S, Stelle, Text.data(), static_cast<int>(Text.size()), SQLITE_STATIC);
}

std::string Nachschlagen(sqlite3_stmt *S, const char *Wert) {
  Text_binden(S, 1, Wert);
  std::string text;
  if (sqlite3_step(S) == SQLITE_ROW && sqlite3_column_text(S, 0) != nullptr)
    text = reinterpret_cast<const char *>(sqlite3_column_text(S, 0));
  sqlite3_reset(S);
  return text;
}

void Ersetzen(std::string &Text, const char *Was, const char *Womit) {
  const std::size_t laenge = std::strlen(Was), neu = std::strlen(Womit);
  for (std::size_t ort = 0; (ort = Text.find(Was, ort)) != std::string::npos; ort += neu)
    Text.replace(ort, laenge, Womit);
}

std::string Gross(std::string Text) {
  for (char &z : Text)
    if (z >= 'a' && z <= 'z') z = static_cast<char>(z - 'a' + 'A');
  return Text;
}

void Zahl_anfuegen(std::string &Text, double Zahl) {
  char puffer[40];
  std::snprintf(puffer, sizeof puffer, "%.15g", Zahl);
  for (char &z : puffer) {
    if (z == '\0') break;
    if (z == '.') z = ',';
  }
  Text += puffer;
}

double Zahl(const pugi::xml_node &Knoten, const char *Name) {
  return std::strtod(Knoten.child_value(Name), nullptr);
}

std::string Positionen(const pugi::xml_node &Liste) {
  std::string text;
  for (const pugi::xml_node &p : Liste.children("PRODUCT")) {
    if (!text.empty()) text += "\xC3\x97";
    text.append(p.child_value("PRODUCTS_ID")) += '~';
    Zahl_anfuegen(text, Zahl(p, "PRODUCTS_QUANTITY"));
    (text += '~').append(p.child_value("PRODUCTS_MODEL")) += '~';
    text.append(p.child_value("PRODUCTS_NAME")) += '~';
    Zahl_anfuegen(text, Zahl(p, "PRODUCTS_DISCOUNT_MADE"));
    double preis = Zahl(p, "PRODUCTS_PRICE");
    std::string optionen;
    for (const pugi::xml_node &o : p.children("OPTION")) {
      preis += Zahl(o, "PRODUCTS_OPTIONS_PRICE");
      if (!optionen.empty()) optionen += ", ";
      optionen += o.child_value("PRODUCTS_OPTIONS_VALUES");
    }
    text += '~';
    Zahl_anfuegen(text, preis);
    (text += '~') += optionen;
  }
  return text;
}

std::string Hinweis(const pugi::xml_node &Zahlung) {
  const bool bank = std::strcmp(Zahlung.child_value("PAYMENT_METHOD"), "banktransfer") == 0;
  if (!bank) return {};
  return std::string("Kontonummer: ") + Zahlung.child_value("PAYMENT_BANKTRANS_NUMBER") +
         "\r\nKreditinstitut: " + Zahlung.child_value("PAYMENT_BANKTRANS_BNAME") +
         "\r\nBLZ: " + Zahlung.child_value("PAYMENT_BANKTRANS_BLZ") +
         "\r\nKontoinhaber: " + Zahlung.child_value("PAYMENT_BANKTRANS_OWNER");
}

class Einleser {
 public:
  explicit Einleser(Datenbank &D) : D_(D) {
    std::string namen, fragen, aenderungen;
    for (const std::string &name : Spaltennamen()) {
      ++Spalten_;
      namen += (namen.empty() ? "[" : ", [") + name + "]";
      fragen += fragen.empty() ? "?" : ", ?";
      aenderungen += (aenderungen.empty() ? "[" : ", [") + name + "] = ?";
    }
    Vorhanden_ = D.Vorbereiten("SELECT * FROM WebshopOrdersXTC WHERE OrderID = ?");
    Neu_ = D.Vorbereiten("INSERT INTO WebshopOrdersXTC (" + namen + ") VALUES (" + fragen + ")");
    Aendern_ = D.Vorbereiten("UPDATE WebshopOrdersXTC SET " + aenderungen + " WHERE OrderID = ?");
    Zahlungsart_ = D.Vorbereiten("SELECT Description FROM MethodPayments WHERE Token = ?");
    Versandart_ = D.Vorbereiten("SELECT Description FROM ForwardingCharges WHERE Token = ?");
    Land_ = D.Vorbereiten("SELECT Description FROM Countries WHERE Token = ?");
    Vorlage_ = D.Vorbereiten("SELECT AddressFormat FROM Countries WHERE Description = ?");
    Beginn_ = D.Vorbereiten("BEGIN IMMEDIATE");
    Ende_ = D.Vorbereiten("COMMIT");
  }

  bool Bestellung(const pugi::xml_node &O) {
    const pugi::xml_node kopf = O.child("ORDER_HEADER"), zahlung = O.child("PAYMENT");
    const char *nummer = kopf.child_value("ORDER_ID");
    Text_binden(Vorhanden_, 1, nummer);
    const bool vorhanden = sqlite3_step(Vorhanden_) == SQLITE_ROW;
    sqlite3_reset(Vorhanden_);
    sqlite3_stmt *s = vorhanden ? Aendern_ : Neu_;
    int n = 0;
    for (const Spalte &spalte : KOPF) Text_binden(s, ++n, kopf.child_value(spalte.Knoten));
    double summe = 0;
    for (const pugi::xml_node &t : O.child("ORDER_TOTAL").children("TOTAL"))
      if (std::strcmp(t.child_value("TOTAL_CLASS"), "ot_total") == 0) summe = Zahl(t, "TOTAL_VALUE");
    const std::string zahlungsart = Nachschlagen(Zahlungsart_, zahlung.child_value("PAYMENT_METHOD"));
    const std::string versandart =
        Nachschlagen(Versandart_, O.child("SHIPPING").child_value("SHIPPING_CLASS"));
    const std::string hinweis = Hinweis(zahlung);
    sqlite3_bind_double(s, ++n, summe);
    Text_binden(s, ++n, O.child_value("ORDER_COMMENTS"));
    sqlite3_bind_int(s, ++n, 0);
    Text_binden(s, ++n, zahlungsart);
    Text_binden(s, ++n, versandart);
    Text_binden(s, ++n, hinweis);
    std::string block[2];
    int stelle = 0;
    for (const char *art : {"BILLING_ADDRESS", "DELIVERY_ADDRESS"}) {
      const pugi::xml_node a = O.child(art);
      for (const Spalte &spalte : ANSCHRIFT) Text_binden(s, ++n, a.child_value(spalte.Knoten));
      block[stelle] = Block(a);
      Text_binden(s, ++n, block[stelle++]);
    }
    const std::string positionen = Positionen(O.child("ORDER_PRODUCTS"));
    Text_binden(s, ++n, positionen);
    if (vorhanden) Text_binden(s, ++n, nummer);
    const bool gut = Schritt(Beginn_) && Schritt(s);
    return Schritt(Ende_) && gut;
  }

 private:
  static bool Schritt(sqlite3_stmt *S) {
    const int rc = sqlite3_step(S);
    sqlite3_reset(S);
    return rc == SQLITE_DONE;
  }

  std::string Block(const pugi::xml_node &A) {
    const std::string land = Nachschlagen(Land_, A.child_value("COUNTRY"));
    std::string block = Nachschlagen(Vorlage_, land.c_str());
    if (block.empty()) block = VORLAGE;
    constexpr Spalte PLATZHALTER[] = {
        {"$Company", "COMPANY"}, {"$Affix", "SUBURB"},  {"$Salutation", ""},
        {"$Title", ""},          {"$Name", "LASTNAME"}, {"$Surname", "FIRSTNAME"},
        {"$Street", "STREET"},   {"$Zip", "POSTCODE"},  {"$Town", "CITY"}};
    Ersetzen(block, "$Cr", "\r\n");
    for (const Spalte &p : PLATZHALTER) Ersetzen(block, p.Name, A.child_value(p.Knoten));
    Ersetzen(block, "$Country", land == HEIMATLAND ? "" : Gross(land).c_str());
    return block;
  }

  Datenbank &D_;
  int Spalten_ = 0;
  sqlite3_stmt *Vorhanden_, *Neu_, *Aendern_, *Zahlungsart_, *Versandart_, *Land_, *Vorlage_, *Beginn_,
      *Ende_;
};

struct Zelle {
  double Zahl = 0;
  std::string Text;
};

int Liste_lesen(Datenbank &D) {
  sqlite3_stmt *s = D.Vorbereiten(
      "SELECT * FROM WebshopOrdersXTC WHERE [Date] BETWEEN ?1 AND ?2 ORDER BY OrderID COLLATE MARKLINK, "
      "Date");
  Text_binden(s, 1, JAHR_VON);
  Text_binden(s, 2, JAHR_BIS);
  std::vector<int> stellen;
  for (const char *name : LISTE)
    for (int i = 0; i < sqlite3_column_count(s); ++i)
      if (sqlite3_stricmp(sqlite3_column_name(s, i), name) == 0) stellen.push_back(i);
  std::vector<std::vector<Zelle>> zeilen;
  while (sqlite3_step(s) == SQLITE_ROW) {
    std::vector<Zelle> &zeile = zeilen.emplace_back(stellen.size());
    for (std::size_t i = 0; i < stellen.size(); ++i) {
      if (sqlite3_column_type(s, stellen[i]) != SQLITE_TEXT) {
        zeile[i].Zahl = sqlite3_column_double(s, stellen[i]);
      } else {
        zeile[i].Text.assign(reinterpret_cast<const char *>(sqlite3_column_text(s, stellen[i])),
                             static_cast<std::size_t>(sqlite3_column_bytes(s, stellen[i])));
      }
    }
  }
  sqlite3_reset(s);
  return static_cast<int>(zeilen.size());
}

}  // namespace

int Untergrenze_einlesen(const std::string &Antwortdatei, const std::string &Pfad) {
  Datenbank d(Pfad);
  if (!d.Offen) return -1;
  {
    pugi::xml_document dokument;
    if (!dokument.load_file(Antwortdatei.c_str())) return -1;
    Einleser einleser(d);
    for (const pugi::xml_node &o : dokument.child("ORDER").children("ORDER_INFO"))
      if (!einleser.Bestellung(o)) return -1;
  }
  return Liste_lesen(d);
}

bool Altbestand_anlegen(const std::string &Pfad, int Anzahl) {
  const Datenbank d(Pfad);
  bool gut = d.Offen && d.Ausfuehren("CREATE TEMP TABLE v AS SELECT * FROM WebshopOrdersXTC") &&
             d.Ausfuehren("UPDATE v SET [Date] = '2023' || substr([Date], 5)") && d.Ausfuehren("BEGIN") &&
             d.Ausfuehren("DELETE FROM WebshopOrdersXTC");
  sqlite3_stmt *zaehlen = nullptr;
  sqlite3_prepare_v2(d.Db, "SELECT count(*) FROM v", -1, &zaehlen, nullptr);
  const int vorlagen = sqlite3_step(zaehlen) == SQLITE_ROW ? sqlite3_column_int(zaehlen, 0) : 0;
  sqlite3_finalize(zaehlen);
  for (int runde = 0; gut && vorlagen > 0 && runde * vorlagen < Anzahl; ++runde) {
    gut = d.Ausfuehren("UPDATE v SET OrderID = '" + std::to_string(runde) + "A' || rowid") &&
          d.Ausfuehren("INSERT INTO WebshopOrdersXTC SELECT * FROM v");
  }
  return gut && d.Ausfuehren("COMMIT") && d.Ausfuehren("PRAGMA wal_checkpoint(TRUNCATE)");
}

int Abweichungen_zaehlen(const std::string &Eine, const std::string &Andere) {
  Datenbank d(Eine);
  if (!d.Offen || !d.Ausfuehren("ATTACH '" + Andere + "' AS andere")) return -1;
  sqlite3_stmt *s = d.Vorbereiten(
      "SELECT (SELECT count(*) FROM (SELECT * FROM main.WebshopOrdersXTC EXCEPT SELECT * FROM "
      "andere.WebshopOrdersXTC)) + (SELECT count(*) FROM (SELECT * FROM andere.WebshopOrdersXTC EXCEPT "
      "SELECT * "
      "FROM main.WebshopOrdersXTC))");
  return sqlite3_step(s) == SQLITE_ROW ? sqlite3_column_int(s, 0) : -1;
}

}  // namespace marklink::messung
