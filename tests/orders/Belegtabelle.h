// Tables of orders and of the documents that come of them, as plain text: tests/orders/belege/*.txt. What the
// lines mean stands at the top of 00_grundbestand.txt.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <vector>

namespace marklink::test {

/// "wort Schlüssel Feld=Wert Feld=Wert" or "wort Schlüssel = Wert"; the latter has one field without a name.
struct Belegzeile {
  QString Ort;  ///< file and line
  QString Wort, Schluessel;
  QMap<QString, QString> Felder{};

  QString Wert() const { return Felder.value(QString()); }
};

struct Belegfall {
  QString Titel;
  QString Beleg{};                   ///< "Auftrag" or "Rechnung"; a case of both stands here twice
  std::vector<Belegzeile> Zeilen{};  ///< of the stock of the books first; rows of one key are one
  QStringList Fehler{};              ///< lines that cannot be read
};

/// The table that a word fills, or of which it tells what it must hold; no table for any other word.
struct Tabellenwort {
  QString Tabelle, Schluesselfeld;
  bool Erwartet = false;
  bool Vollstaendig = true;  ///< holds these rows and no others
};
Tabellenwort Tabelle_zum_Wort(const Belegzeile &Zeile);

std::vector<Belegfall> Belegtabellen_lesen(const QString &Ordner);

}  // namespace marklink::test
