// Column types and values: how a declared type looks on the wire, and a value of any type there and back.
//
// What SQLite has no type for is kept as the embedded engine's clients keep it: dates as text
// "YYYY-MM-DD hh:mm:ss" (".mmm" only where there are any), flags as 1 and 0. decimal and money are read and
// written as double.
#pragma once

#include <QByteArray>
#include <QString>

#include "Pakete.h"

namespace marklink::tds {

enum class Form { Bit, Ganz16, Ganz32, Ganz64, Gleit, Datum, Text, Binaer };

struct Typ {
  Form F = Form::Text;
  int Laenge = 0;  ///< characters or bytes; 0: (max)
};

struct Wert {
  enum class Art { Null, Ganz, Gleit, Text, Binaer } Inhalt = Art::Null;
  qint64 Ganz = 0;
  double Gleit = 0;
  QByteArray Bytes{};  ///< UTF-8 or bytes

  static Wert aus(qint64 Zahl) { return {Art::Ganz, Zahl}; }
  static Wert aus(double Zahl) { return {Art::Gleit, 0, Zahl}; }
  static Wert aus(const QString &Text) { return {Art::Text, 0, 0, Text.toUtf8()}; }
  static Wert aus_Bytes(Art A, QByteArray Bytes) { return {A, 0, 0, std::move(Bytes)}; }
  QString Text() const;
  bool ist_Null() const { return Inhalt == Art::Null; }
};

/// "nvarchar(100)", "bit", "datetime", and the names that the embedded engine's tables use for the same.
Typ Typ_aus_Deklaration(const QString &Deklaration);

/// The type and value of a parameter as the client sends it. Gut() of the reader tells whether it was one.
Wert Parameterwert_lesen(Leser &L);

void Typ_schreiben(Schreiber &S, const Typ &T);
void Wert_schreiben(Schreiber &S, const Typ &T, const Wert &W);

/// The sort order of the whole server: Latin1_General, without regard to case, code page 1252.
QByteArray Sortierung_der_Texte();

}  // namespace marklink::tds
