// Payments: open items, incoming payments, cash discount, and what the books say of methods and terms.
//
// Documents are named by their word ("Rechnung") and their number. Reading a row that is missing gives 0,
// false or the empty text, never an error. Each call reads the books anew.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

namespace marklink {

// --- payment methods and terms (Zahlungsarten.cpp) --------------------------------------------------------

QString Zahlart_Bezeichnung(const QString &Token);   ///< Description by the shop's code
bool Zahlart_Lastschrift(const QString &Zahlart);    ///< collected by direct debit
bool Zahlart_Nachnahme(const QString &Zahlart);      ///< cash on delivery
bool Zahlart_Transferkonto(const QString &Zahlart);  ///< goes through a transfer account
bool Zahlart_Zahlung(const QString &Zahlart);        ///< booked as paid at once
double Zahlart_Gebuehr(const QString &Zahlart);      ///< fee
double Skonto_Prozent(const QString &Bedingung);     ///< cash discount of the terms, per cent

/// Cash account of the method, "0" without one; if the client does not keep accounts by method, the setting
/// DATEV/`Feld`.
QString Kassenkonto(const QString &Zahlart, const QString &Feld);

// --- sums of one document, unrounded (Belegzahlungen.cpp) -------------------------------------------------

/// Differences of payments that were credited, each without its sign.
double Ueberzahlung_Summe(const QString &Beleg, const QString &Nummer);
/// Incoming payments; appends their numbers to `Zahlungsnummern`, if given.
double Zahlungen_Summe(const QString &Beleg, const QString &Nummer, QStringList *Zahlungsnummern = nullptr);
/// Outgoing payments.
double Auszahlungen_Summe(const QString &Beleg, const QString &Nummer);
/// Credit notes that clear the document; appends "Gutschrift <number>" for each to `Gutschriften`, if given.
double Gutschriften_Summe(const QString &Nummer, QStringList *Gutschriften = nullptr);
/// Fine of the invoice's last reminder.
double Mahngebuehren(const QString &Rechnungsnummer);

// --- cash discount (Belegzahlungen.cpp) -------------------------------------------------------------------

/// Cash discount on the amount by the terms, two decimals; without the gross costs of the shipping method
/// when Program/DiscountCalculation is "0".
double Skonto_Betrag(double Betrag, const QString &Bedingung, const QString &Versandart);
/// Whether a payment on that day still earns the invoice's cash discount; the last day of the period does.
bool Skonto_Frist_laeuft(const QString &Rechnungsnummer, const QDate &Tag);
/// Whether cash discount was taken on the invoice; `Betrag` becomes how much the invoice says.
bool Rechnung_Skonto(const QString &Rechnungsnummer, double &Betrag);

// --- open items (Offene_Posten.cpp) -----------------------------------------------------------------------

/// How the document of an open item is read.
enum class Postenart {
  Rechnung = 0,
  Quittung = 1,
  Gutschrift = 2,
  Rechnungskorrektur = 3,
  Lieferantenrechnung = 4
};

/// The figures of an open item, each rounded to two digits.
struct Postenwerte {
  double Betrag = 0.0;
  double Skonto = 0.0;
  double Mahngebuehren = 0.0;
  double Gutschriften = 0.0;
  double Zahlungseingaenge = 0.0;
  double Auszahlungen = 0.0;
  double Offen = 0.0;
  bool Bezahlt = false;  ///< nothing is open any more; also when too much was paid
  QDate Datum;           ///< of the document
  QDate Faellig;         ///< no date with unknown terms
  QString Kontaktnummer;
  QString Kontakt;
};

/// What the open item of the document shows at this moment; writes nothing. `Neue_Zahlung` is a payment that
/// is not in the books yet, `Skonto` replaces what an invoice says of its cash discount; 0: none is given,
/// the invoice's own counts. Nothing when there is no such document.
std::optional<Postenwerte> Postenwerte_ermitteln(Postenart Art, const QString &Nummer, const QString &Beleg,
                                                 double Neue_Zahlung = 0.0, double Skonto = 0.0);

/// Writes those figures to the document's open item, which is added with the next number of "OpenItem" if
/// there is none, and marks item and document as paid or not. A credit note does the same for the document
/// that it clears. False when the document is gone, which leaves its item as it was, or the item could not
/// be saved.
bool Offenen_Posten_aktualisieren(Postenart Art, const QString &Nummer, const QString &Beleg,
                                  double Neue_Zahlung = 0.0, double Skonto = 0.0);

// --- incoming payments (Zahlungseingang.cpp) --------------------------------------------------------------

enum class Zahlungsmodus { Neu = 0, Aendern = 1 };

struct Zahlungsangaben {
  QString Beleg;
  QString Nummer;
  QDate Datum;
  QString Zahlart;
  QString Kunde;  ///< search name
  QString Kundennummer;
  double Betrag = 0.0;  ///< new: total of the document, whose open rest is paid; else the payment
  Zahlungsmodus Modus = Zahlungsmodus::Neu;
  QString Notiz = {};
};

struct Zahlungseingang {
  QString Nummer;
  double Betrag = 0.0;  ///< booked, less cash discount
  double Skonto = 0.0;  ///< cash discount taken
  bool Skonto_genommen = false;
};

/// Books a payment for a document, with its accounting record if the client wants one. What an invoice's
/// payments took as cash discount is written to the invoice as well, so its open item stays settled. A
/// changed payment that has its cash discount already is not reduced again, and keeps its accounting record.
/// Without a payment method a box says so. Nothing when no payment was booked.
std::optional<Zahlungseingang> Zahlungseingang_erzeugen(const Zahlungsangaben &Angaben);

}  // namespace marklink
