// A client with stock and staged orders, its shop, and a way back to the state before a run: for the tests
// that break a batch of documents off, or let parts of it fail.
#pragma once

#include <map>

#include "support/Datenbank_Test.h"
#include "support/Shop_Attrappe.h"
#include "support/Testmandant.h"
#include "ui/Dialoge.h"

namespace marklink::test {

/// Every trial of such a test where that is wanted, only some of them in the everyday suite.
inline bool Alle_Versuche() { return qEnvironmentVariable("MARKLINK_ALLE") == u"1"; }

class Stapelmandant {
 public:
  /// `Buchung`: Program/StorageBooking, 0 invoices, 2 contracts book stock. All ranges count automatically
  /// and give numbers with a token: RE, AB, RES, OP, ZE, KD; the first invoice and contract number is taken.
  Stapelmandant(int Typ, int Buchung);

  void Artikel(int Shopnummer, const QString &Artikelart, const std::map<QString, double> &Lose);
  /// An order of a customer of its own, whom the shop knows and the books do not. Lines: product, quantity.
  void Bestellung(int Nummer, const QString &Zahlungsart, const std::vector<std::pair<int, double>> &Zeilen);
  /// Sets the client up for its shop, which offers these orders (Bestellantwort.h), for programs of their
  /// own.
  void Shop_einrichten(const QStringList &Bestellungen);
  void Einstellen(const char *Abschnitt, const char *Schluessel, const char *Wert);

  /// Lets the books go; waits until a server has ended what killed programs had begun.
  void Verlassen() const;
  /// Keeps the books and settings as they are now.
  void Sichern();
  /// Puts back what was kept, and starts the program anew.
  void Zuruecksetzen();
  /// Starts the program on the books as they are.
  void Starten();

  QString Roh(const QString &Sql) const;
  QStringList Spalte(const QString &Sql) const { return Roh(Sql).split(u'\n', Qt::SkipEmptyParts); }
  QString Einstellungsdatei() const;
  QString Ordner() const { return Mandant_.Ordner(); }
  SqlServer_Attrappe *Server() const { return Mandant_.Server(); }
  /// Rows of an order's document in all tables that it concerns, and its customer; drawn numbers are left out
  /// of it, so that documents of several runs can be compared.
  QString Belegbild(const QString &Kopftabelle, int Nummer) const;
  /// The first fault that no run may leave behind, however it ended; empty when there is none.
  QString Ungereimtheit() const;

 private:
  /// Hundreds of runs need no disk that keeps what they write: where there is one, a folder in memory.
  struct Fluechtiger_Ort {
    Fluechtiger_Ort();
    ~Fluechtiger_Ort();
    Fluechtiger_Ort(const Fluechtiger_Ort &) = delete;
    Fluechtiger_Ort &operator=(const Fluechtiger_Ort &) = delete;
    QByteArray Vorher;
  };

  QString Sicherung(const QString &Datei) const { return Datei + QStringLiteral(".sicher"); }

  Fluechtiger_Ort Ort_;
  Testmandant Mandant_;
  Shop_Attrappe Shop_;
};

}  // namespace marklink::test
