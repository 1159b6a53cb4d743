// Connection strings, the settings store and the small look-ups that everybody shares.
#pragma once

#include <QString>

#include "db/Recordset.h"

namespace marklink {

/// The reading shape on the client's database: a disconnected record set that stands on its first row.
db::Recordset Abfragen(const db::Anweisung &Sql);
/// A statement without rows on a connection of its own. False when it failed.
bool Ausfuehren(const db::Anweisung &Sql);

/// Sets Kontext.gConnectionString; on type 1 loads the settings store as well. Authentication other than 0 or
/// 1 leaves the string as it was on type 1.
void Connection_String_setzen(const QString &Datenbank, const QString &Server, int Authentifizierung,
                              qint16 Wartezeit, const QString &Benutzer, const QString &Passwort);
/// The same text for either database type; changes nothing.
QString Connection_String_bilden(const QString &Datenbank, const QString &Server, int Authentifizierung,
                                 qint16 Wartezeit, const QString &Benutzer, const QString &Passwort,
                                 int Datenbanktyp);

/// Reads the whole table Options into the cache (type 1).
void Optionen_laden();
/// Lets the settings store's connection go; the cache stays.
void Optionen_freigeben();
/// A setting can be read back to this many characters on type 0, whatever was written.
constexpr int Laengste_Einstellung = 255;
/// A setting of the client; empty when missing.
QString Option_lesen(const QString &Abschnitt, const QString &Schluessel);
/// A setting of the section "Program".
QString Programmoption(const char *Schluessel);
/// Writes through at once. False when it could not be stored.
bool Option_schreiben(const QString &Abschnitt, const QString &Schluessel, const QString &Wert);
/// The same where the setting still holds `Bisher`, the value read last; false when another workstation has
/// changed it since: of several that count on one counter each gets a value of its own. True as well where
/// the store can be neither written nor read, and keeps the value for the next write.
bool Option_weiterstellen(const QString &Abschnitt, const QString &Schluessel, const QString &Bisher,
                          const QString &Wert);

enum class Benutzerfeld { Store = 0, MailAccount = 1, Password = 2, StorageNumber = 3 };
/// A field of the employee; empty for an unknown employee or selector.
QString Benutzer_Daten(const QString &Name, int Feld);

/// "IsNull(F) = True" / "F IS NULL" and their opposites, in the client's dialect.
QString Bedingung_IstNull(const QString &Feld, bool Null);

/// Description of the standard form of a document type; empty when there is none.
QString Formular_Standard(const QString &Typ);

bool Datensatz_existiert(const QString &Tabelle, const QString &Feld, const QString &Wert);

/// Sets `Feld` to `Wert` in the row of each key of the list ("a;b;c"); keys without a row are passed over.
void Felder_aendern(const QString &Tabelle, const QString &Schluesselfeld, const QString &Schluesselliste,
                    const QString &Feld, const QVariant &Wert);

/// Saves a binary field of the first row to `Datei` (empty: a new temporary file) and gives the path.
/// `Bedingung` is the statement's tail (" WHERE id = 5"). The path comes back also when nothing could be
/// written.
QString Feld_in_Datei(const QString &Datenbank, const QString &Datei, const QString &Tabelle,
                      const QString &Feld, const db::Anweisung &Bedingung, const QString &Passwort);

}  // namespace marklink
