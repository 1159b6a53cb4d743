// The value workbook of the shipper's software: an Excel file (.xls) whose sheets are read like tables.
//
// A sheet's first row that holds anything names its columns. Sheets, columns and values compare without
// regard to case. What cannot be read (file, sheet, column) and a value with an apostrophe give nothing, as a
// failed statement does; MARKLINK_TRACE=1 tells of each.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <utility>
#include <vector>

#include "Mappenleser.h"

namespace marklink {

struct Werteintrag {
  QString ID, Description;
};

class Wertemappe {
 public:
  /// Column and the text that it must hold; all of them must match.
  using Bedingungen = QList<std::pair<QString, QString>>;

  /// Opens the workbook for reading. One that cannot be read has no sheets.
  explicit Wertemappe(const QString &Pfad);

  /// `ID` and `Description` of the matching rows in sheet order; rows with neither are left out. A text stays
  /// as it is ("01"), a number is one with a decimal comma, a date is dd.mm.yyyy.
  std::vector<Werteintrag> Eintraege(const QString &Blatt, const Bedingungen &Wo = {}) const;
  /// The `ID` of the first matching row; empty when there is none. Needs no column `Description`.
  QString ID_suchen(const QString &Blatt, const Bedingungen &Wo) const;

 private:
  using Zeilen = std::vector<QStringList>;
  Zeilen lesen(const QStringList &Felder, const QString &Blatt, const Bedingungen &Wo, bool Nur_erste) const;

  std::shared_ptr<const Tabellenmappe> Mappe_;
};

// Each opens the workbook of the context for itself and gives an ID, empty when there is none. `Token` is
// that of the shipping method, "NATIONAL" or "INTERNATIONAL".
QString Verfahren_ermitteln(const QString &Token);
QString Teilnahme_ermitteln(const QString &Token);
QString Produkt_ermitteln(const QString &Token);            ///< the method's default product
QString Service_Nachnahme_ermitteln(const QString &Token);  ///< the method's cash on delivery

}  // namespace marklink
