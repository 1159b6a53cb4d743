// One document in the making: what contract and invoice share, step by step, in the order of the calls.
#pragma once

#include <optional>

#include "Belegart.h"
#include "Belegerzeugung.h"
#include "db/Recordset.h"
#include "rules/Belegsumme.h"

namespace marklink {

class Belegvorgang {
 public:
  Belegvorgang(const Belegart &Art, const Belegvorgabe &Vorgabe) : Art_(Art), Vorgabe_(Vorgabe) {}

  /// Reads order and customer, draws the number, settles how the document is taxed. False: nothing is to be
  /// made, and Ergebnis() tells why.
  bool Beginnen();
  void Positionen_anlegen();
  /// Sums the positions and fills a new head with all that both kinds have; nothing is saved yet.
  void Kopf_anlegen();
  void Kopf_speichern();
  /// Reservations, back orders, and booking them out, by the settings.
  void Bestand_reservieren();
  void Versand_beauftragen();
  /// Reports a failed step to the user.
  void Beenden();
  const Belegergebnis &Ergebnis() const { return Ergebnis_; }

  const QString &Nummer() const { return Ergebnis_.Belegnummer; }
  const QString &Wort() const { return Art_.Wort; }
  const QString &Kundennummer() const { return Vorgabe_.Kundennummer; }
  const db::Recordset &Kunde() const { return Kunde_; }
  /// The new head, for the fields that only one kind has.
  db::Recordset &Kopf() { return Kopf_; }
  double Endbetrag() const { return Ergebnis_.Endbetrag; }
  const QString &Versandart() const { return Versandart_; }  ///< as on the head: empty when shipping is free
  QString Zahlungsart() const;
  QString Zahlungsbedingung() const;

 private:
  /// What of the two is not in the books.
  Beleghindernis Lesen();
  void Besteuerung_feststellen();
  void Summen_ermitteln();
  void Anfang_eintragen();
  void Summen_eintragen();
  void Ende_eintragen();
  void Fehler_melden() const;

  const Belegart &Art_;
  const Belegvorgabe &Vorgabe_;
  Belegergebnis Ergebnis_;
  db::Recordset Bestellung_, Kunde_, Kopf_;
  int TaxCalculation_ = 0;
  int Taxation_ = 0;
  double Gewicht_Netto_ = 0, Gewicht_Brutto_ = 0;  // kg
  QString Rabattliste_;
  Belegsumme Summe_;
  QString Versandart_;
  bool Gescheitert_ = false;  // something of head and positions could not be read or saved
};

/// A number for a new document: the next of its range, or where the range is not counted automatically what
/// the user says, with that number as a proposal. A null text when there is to be no document; nothing when
/// the books do not tell whether the number is free.
std::optional<QString> Belegnummer_vergeben(const Belegart &Art);

}  // namespace marklink
