// The actions of the shop script. Each call sends one request and gives the path of the reply file, or the
// empty text on failure. The next request overwrites that file.
#pragma once

#include <QString>

namespace marklink {

extern QString gAktion;      ///< name of the last action
extern QString gAktion_Url;  ///< the last request text

/// Selectors with a caller. Others exist in the tables; one without an action sends the previous request
/// again, on purpose.
namespace Abrufen {
enum : qint16 {
  Version = 0,
  Kategorien = 1,
  Kunden = 3,
  Artikel = 4,
  Bestellungen = 5,
  Sprachen = 6,
  Lieferzeiten = 9,
  Kundengruppen = 10,
  Auftragsstati = 11,
  Sonderpreise = 12,
  Bestaende = 13,
  Einheiten = 14,
  Artikelliste = 16
};
}
namespace Aendern {
enum : qint16 { Bestellstatus = 2, Tabellen = 15 };
}

QString Daten_abrufen(qint16 Auswahl, const QString &Parameter);
QString Daten_uebertragen(qint16 Auswahl, const QString &Parameter1, const QString &Parameter2);
QString Daten_aendern(qint16 Auswahl, const QString &Parameter);

}  // namespace marklink
