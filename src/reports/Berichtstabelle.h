// A report as the lines of one table, for the exports that are tables: the pages' bands in their order, each
// text in the column of its field.
#pragma once

#include "Seitensatz.h"

namespace marklink {

struct Tabellenzelle {
  int Spalte = 0, Breite = 1;  ///< first column and how many
  QString Text{};
  Berichtsfeld::Art Was = Berichtsfeld::Art::Text;
  bool Rechts = false;
  bool Verweis = false;
};

struct Tabellenzeile {
  enum class Art { Titel, Untertitel, Kopf, Gruppe, Detail, Zwischensumme, Gesamtsumme, Fuss } Was;
  std::vector<Tabellenzelle> Zellen;
  int Zaehler = 0;  ///< of a Detail, from 0
};

/// The fields that have a column, by their places in Bericht::Felder.
std::vector<int> Tabellenspalten(const Bericht &B);

/// What stands on one page. The headings come with every page, a cut band where it begins.
std::vector<Tabellenzeile> Tabellenzeilen(const Seitensatz &Satz, int Seite);

/// All pages as one table, without page feet and with one set of headings.
void Tabelle_durchgehen(const Seitensatz &Satz, const std::function<void(const Tabellenzeile &)> &Tun);

/// A number or date text in the machine's form: "1234.56", "2024-03-05T00:00:00.000"; empty when it is none,
/// or a day before 01.03.1900.
QString Maschinenform(const Tabellenzelle &Zelle);

/// Without what no document may hold: control characters but tabs and line breaks, half surrogates, code
/// points that are no characters.
QString Text_saeubern(const QString &Text);

/// The same with markup escaped.
QString Xml_Text(const QString &Text);

}  // namespace marklink
