// What a statement gives: its columns and all its rows.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <memory>
#include <vector>

#include "Zelle.h"

namespace marklink::db {

enum class Feldart : quint8 { Text, Ganzzahl, Gleitkomma, Datum, Ja_Nein, Binaer, Offen };

struct Feld {
  QString Name;
  Feldart Art = Feldart::Offen;  ///< Offen: a computed column, its values say what they are
  int Bits = 32;                 ///< of a whole number: 16, 32 or 64
  bool Autowert = false;
  int Tabelle = -1;       ///< index into Spaltensatz::Tabellen, -1 for a computed column
  QString Ursprung;       ///< the column's name in that table
  QByteArray Geklammert;  ///< the same for a statement, [name]

  bool Vorgabe = true;  ///< the engine may put a value where a new row has none

  // Of a column on a server.
  int Laenge = 0;           ///< characters that a text may have; 0: as many as it likes
  int Ab_Jahr = 0;          ///< no date before it
  QByteArray Unveraendert;  ///< a condition with one "?": the column still holds the value that was read
  bool Genau = true;        ///< keeps what it is sent: nothing is rounded, cut or filled up
  bool Bestaendig = true;   ///< an old value tells something: only statements change the column
};

struct Basistabelle {
  QString Name;
  std::vector<int> Schluessel;      ///< the fields of the set that make up the whole primary key; else empty
  std::vector<bool> Nachschlagbar;  ///< by field: an index of the table begins with it
};

/// The columns of a result; shared by all record sets on the same statement.
struct Spaltensatz {
  std::vector<Feld> Felder;
  std::vector<Basistabelle> Tabellen;
  /// A hidden cell behind the fields that holds the engine's row number; -1 when there is none. Rows come in
  /// ascending order of it when `Ganze_Tabelle`.
  int Zeilennummer = -1;
  /// The number is none of the engine's but made of the row's key (Schluesselnummer()): it tells rows apart
  /// and says nothing about their order.
  bool Nummer_aus_Schluessel = false;
  QString Ganze_Tabelle;  ///< the table's name when the statement is a plain SELECT * FROM of it
  /// The fields behind these are the key, fetched besides, and nobody's business: no name finds them.
  int Sichtbare = -1;  ///< -1: all

  std::size_t Felder_sichtbar() const {
    return Sichtbare < 0 ? Felder.size() : static_cast<std::size_t>(Sichtbare);
  }
  std::size_t Zellen() const { return Felder.size() + (Zeilennummer >= 0 ? 1 : 0); }
  /// -1 when there is none. Without regard to case; the first of several.
  int finden(QStringView Name) const;
  void Namen_ordnen();  ///< to be called once when `Felder` is complete

 private:
  std::vector<int> Tafel_;
};

struct Ergebnis {
  std::shared_ptr<const Spaltensatz> Spalten;
  std::vector<const Zelle *> Zeilen;  ///< each Spalten->Zellen() cells in `Lager`
  Speicher Lager;
};

/// A number for the row of a set of one table that holds its key.
qint64 Schluesselnummer(const Spaltensatz &Spalten, const Zelle *Zellen);

/// What a declared column type ("VARCHAR(50)", "DATETIME", ...) holds.
Feldart Feldart_aus_Deklaration(const QString &Deklaration, int &Bits);

}  // namespace marklink::db
