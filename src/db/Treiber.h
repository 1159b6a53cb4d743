// The seam behind which an engine stands. Everything above it is the same for every engine.
//
// A session takes dialect text and gives cells; text is UTF-8 in cells, and a driver whose engine wants wide
// text converts at its edge. Nothing throws; a failure is told as false and explained by Fehler().
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

#include "Anweisung.h"
#include "Ergebnis.h"
#include "Verbindung.h"

namespace marklink::db {

enum class Schreibstand {
  Geschrieben,  ///< one row or more
  Keine_Zeile,  ///< the statement ran, but there is no such row
  Abgelehnt,    ///< the engine refused this row; the transaction goes on
  Abgebrochen   ///< the transaction is lost
};

/// One physical connection, used by one caller at a time.
class Sitzung {
 public:
  Sitzung() = default;
  Sitzung(const Sitzung &) = delete;
  Sitzung &operator=(const Sitzung &) = delete;
  virtual ~Sitzung() = default;

  /// False when a kept session must not be used again: its file was replaced, or it failed for good.
  virtual bool Brauchbar() = 0;
  /// The columns of a statement that gives rows, without running it; empty when it cannot be prepared.
  virtual std::shared_ptr<const Spaltensatz> Beschreiben(const Anweisung &Sql) = 0;
  /// Runs one statement and fetches all rows. `Ziel.Spalten` is empty after a statement without rows.
  virtual bool Lesen(const Anweisung &Sql, Ergebnis &Ziel) = 0;

  virtual bool Beginnen() = 0;      ///< a transaction that writes
  virtual bool Abschliessen() = 0;  ///< false: nothing of it was written, or see Abschluss_ungewiss()
  /// Whether a commit that failed just now may have been carried out all the same.
  virtual bool Abschluss_ungewiss() const { return false; }
  virtual void Verwerfen() = 0;
  /// Runs a writing statement with "?" for each of `Werte`, names in brackets. `Felder` are the columns that
  /// they are for; nullptr for a row number.
  virtual Schreibstand Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                                 const std::vector<const Feld *> &Felder) = 0;
  /// The number that the engine gave to the row inserted last.
  virtual qint64 Letzte_Nummer() = 0;
  /// The column that identifies a row of a table without a key, in brackets; empty when the engine has none,
  /// and a row is known by all that it holds ("TOP (1)" then keeps its twins out).
  virtual QByteArray Zeilennummer_Spalte() const = 0;
  /// A condition with one "?": the column still holds exactly the value read from it, null and the case of
  /// letters included.
  virtual QByteArray Unveraendert(const Feld &Spalte) const = 0;

  virtual QString Fehler() const = 0;
};

class Treiber {
 public:
  virtual ~Treiber() = default;
  virtual std::unique_ptr<Sitzung> Oeffnen(const Verbindungsdaten &Daten, QString &Fehler) = 0;
};

/// The driver for a provider name; nullptr when nobody serves it.
Treiber *Treiber_waehlen(const QString &Anbieter);

Treiber &SQLite_Treiber();
Treiber &ODBC_Treiber();

/// The file of an embedded database.
QString SQLite_Datei(const Verbindungsdaten &Daten);

}  // namespace marklink::db
