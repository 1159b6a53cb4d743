// Private to the reference data: its parts, and how their literals become rows.
#pragma once

#include <initializer_list>

#include "Stammdaten.h"

namespace marklink::app {

/// Literals of the tables below: UTF-8 text, flags and numbers.
class Angabe {
 public:
  Angabe(const char *Text) : Wert_(QString::fromUtf8(Text)) {}
  Angabe(const QString &Text) : Wert_(Text) {}
  Angabe(bool Wert) : Wert_(Wert) {}
  Angabe(int Wert) : Wert_(Wert) {}
  Angabe(double Wert) : Wert_(Wert) {}
  const QVariant &Wert() const { return Wert_; }

 private:
  QVariant Wert_;
};

using Zeile = std::initializer_list<Angabe>;

/// `Spalten` are names separated by blanks.
Stammtabelle Tabelle_bilden(const char *Tabelle, const char *Spalten, std::initializer_list<Zeile> Zeilen);

Stammtabelle Laenderliste();
void Zahlung_und_Versand_ergaenzen(std::vector<Stammtabelle> &Tabellen);
void Shoplisten_ergaenzen(std::vector<Stammtabelle> &Tabellen);

}  // namespace marklink::app
