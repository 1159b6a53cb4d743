// What the demo shop and the demo client have in common: one believable trading company with its articles,
// customers and orders. All names are invented; mail addresses, phone numbers, networks, bar codes, bank and
// card numbers come from ranges that are kept free for examples.
//
// The data are a function of the reference date alone: two calls with the same date give the same rows.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <vector>

namespace marklink::demo {

using Cent = qint64;       ///< hundredths of the currency named beside it
using Feinpreis = qint64;  ///< net prices as the shop keeps them: ten-thousandths of a euro

// --- articles

struct Kategorie {
  int Id;
  int Oberkategorie;  ///< 0: top level
  QString Name, Name_Englisch;
};

/// An option such as "Größe"; the values' ids are unique over all options.
struct Option {
  int Id;
  QString Name, Name_Englisch;
};
struct Optionswert {
  int Id;
  int Option;
  QString Name, Name_Englisch;
};

/// One value that can be chosen for an article.
struct Auswahl {
  int Wert;            ///< Optionswert::Id
  Feinpreis Aufpreis;  ///< net, may be negative
  int Gewicht_g;       ///< on top of the article's weight, may be negative
};
/// The choices of one option; exactly one value has to be taken.
struct Artikeloption {
  int Option;
  std::vector<Auswahl> Werte;
};

struct Staffel {
  int Ab;
  Feinpreis Netto;
};

struct Artikel {
  int Id;  ///< the shop's products_id
  QString Nummer, Ean, Name, Name_Englisch, Text;
  int Kategorie;
  Feinpreis Netto;
  int Steuersatz;  ///< 19 or 7
  int Gewicht_g;
  int Bestand;  ///< pieces in stock; of all variants together where there are any
  QString Einheit;
  QDateTime Angelegt, Geaendert;
  int Rabatt_erlaubt;             ///< highest discount in per cent
  Feinpreis Haendlerpreis;        ///< 0: dealers have no own price
  std::vector<Staffel> Staffeln;  ///< dealers' prices from a quantity on
  Feinpreis Sonderpreis;          ///< 0: no special offer
  std::vector<Artikeloption> Optionen;
  bool Nur_im_Shop;    ///< the client does not know this article, on purpose
  bool Im_Shop_neuer;  ///< the shop's text is newer than the client's
};

/// One combination of choices, last option fastest.
using Kombination = std::vector<const Auswahl *>;
std::vector<Kombination> Kombinationen(const Artikel &A);

// --- customers

enum Gruppe { Admin = 0, Gast = 1, Neuer_Kunde = 2, Haendler = 3, Haendler_EU = 4, Stammkunde = 5 };
constexpr int Gruppen = 6;

struct Kundengruppe {
  QString Name, Name_Englisch;
  bool Brutto;        ///< sees prices with tax
  bool Steuer_dazu;   ///< net group whose totals get the tax
  int Artikelrabatt;  ///< per cent
  int Gesamtrabatt;   ///< per cent
  bool Staffelpreise;
};
const Kundengruppe &Gruppendaten(int Gruppe);

struct Land {
  int Id;
  const char *Name;  ///< English, as the shop copies it into orders
  const char *Iso2, *Iso3;
  int Adressformat;
  bool EU;
};
const std::vector<Land> &Laender();
const Land &Land_mit_Id(int Id);

struct Bundesland {
  int Id, Land;
  const char *Kuerzel;
  const char *Name;
};
const std::vector<Bundesland> &Bundeslaender();

struct Anschrift {
  QString Geschlecht;  ///< "m", "f" or empty
  QString Firma, Vorname, Nachname, Strasse, Zusatz, Plz, Ort;
  int Bundesland = 0;  ///< 0: none
  int Land = 81;
  QString Name() const { return Vorname + QLatin1Char(' ') + Nachname; }
};

struct Kunde {
  int Id;
  QString Kundennummer;  ///< may be empty
  int Gruppe;
  Anschrift Adresse;
  std::vector<Anschrift> Lieferadressen;
  QString Email, Telefon, Fax, Ust_Id;
  QDate Geboren;  ///< may be invalid
  QDateTime Angelegt;
  bool Konto_geloescht;  ///< ordered as a guest; the shop knows the account no more
  bool Newsletter;
};

// --- orders

struct Positionsoption {
  QString Option, Wert;
  Feinpreis Aufpreis;
};
struct Position {
  int Artikel;  ///< Artikel::Id; 0: an article that the shop itself has deleted meanwhile
  QString Nummer, Name;
  int Menge;
  Cent Einzelpreis;  ///< in the order's currency, surcharges and discount included, with tax when Brutto
  int Rabatt;        ///< per cent already taken off
  int Steuersatz;
  std::vector<Positionsoption> Optionen;
  Cent Summe() const { return Einzelpreis * Menge; }
};
struct Summenzeile {
  QString Klasse, Titel, Text;
  Cent Wert;
  int Sortierung;
};
struct Bankdaten {
  QString Inhaber, Konto, Blz, Bank;
};
struct Kartendaten {
  QString Art, Inhaber, Nummer, Ablauf, Pruefziffer;
};
struct Statuswechsel {
  int Status;
  QDateTime Zeitpunkt;
  bool Benachrichtigt;
  QString Kommentar;
};

struct Bestellung {
  int Nummer;
  int Kunde;  ///< Kunde::Id
  QDateTime Datum;
  int Status;
  Anschrift Lieferung, Rechnung;
  bool Guthaben_deckt;  ///< paid by voucher alone: the shop wrote neither billing address nor language
  QString Zahlung, Versandart, Versandklasse;
  QString Waehrung;
  int Kurs;  ///< factor to the euro in ten-thousandths
  bool Brutto;
  bool Englisch;
  QString Kommentar, Ip;
  std::vector<Position> Positionen;
  std::vector<Summenzeile> Summen;
  Bankdaten Bank;
  Kartendaten Karte;
  std::vector<Statuswechsel> Verlauf;  ///< oldest first; the last one is Status
};

struct Bestellstatus {
  int Id;
  QString Name, Name_Englisch;
};
const std::vector<Bestellstatus> &Bestellstati();

// --- all together

struct Demodaten {
  QDate Heute;
  std::vector<Kategorie> Kategorien;
  std::vector<Option> Optionen;
  std::vector<Optionswert> Optionswerte;
  std::vector<Artikel> Artikel_;
  std::vector<Kunde> Kunden;
  std::vector<Bestellung> Bestellungen;  ///< ascending in number and date

  const Artikel *Artikel_mit_Id(int Id) const;
  const Kunde *Kunde_mit_Id(int Id) const;
  const Optionswert &Wert_mit_Id(int Id) const;
  const Option &Option_mit_Id(int Id) const;
};

inline QDate Demo_Stichtag() { return QDate(2024, 6, 30); }
Demodaten Demodaten_erzeugen(const QDate &Heute);

/// Half away from zero: Zaehler / Nenner (Nenner > 0).
qint64 teilen_gerundet(qint64 Zaehler, qint64 Nenner);
/// What one piece costs as shown to a buyer: net to the order's currency, tax on top when Brutto, whole
/// cents.
Cent Preis_anzeigen(Feinpreis Netto, int Steuersatz, bool Brutto, int Kurs);

}  // namespace marklink::demo
