// The database behind one connection: statements, transactions and errors, the latter in the server's own
// numbers and words.
#pragma once

#include <sqlite3.h>

#include <QHash>

#include "Plan.h"

namespace marklink::tds {

using Variablen = QHash<QString, Wert>;  ///< by name, small letters, with "@"
using Zeilen = std::vector<std::vector<Wert>>;

class Maschine {
 public:
  Maschine() = default;
  Maschine(const Maschine &) = delete;
  Maschine &operator=(const Maschine &) = delete;

  bool Oeffnen(const QByteArray &Datei);
  /// Runs a plan of data or building; its rows go to `A`. `Anzahl`: rows read or written.
  Meldung Ausfuehren(const Plan &P, const Variablen &V, Antwort &A, qint64 &Anzahl);
  /// Whether the statement makes sense; with `Spalten_auch`, which it gives.
  Meldung Beschreiben(const Plan &P, bool Spalten_auch, std::vector<Spalte> &Ziel);

  // Transactions nest as the server's do: only the outermost commit writes, every rollback ends them all. The
  // engine's own begins with the first statement that writes, so that one that only reads hinders nobody.
  void Beginnen() { ++Tiefe_; }
  Meldung Abschliessen();
  Meldung Zurueckrollen();
  int Tiefe() const { return Tiefe_; }
  void Implizit(bool An) { Implizit_ = An; }

  /// For the catalogue: a query in the engine's own SQL.
  Zeilen Fragen(const char *Sql, const std::vector<Wert> &Werte);
  QString Katalog;

 private:
  sqlite3_stmt *vorbereiten(const QString &Sql);
  void binden(sqlite3_stmt *Stmt, const Plan &P, const Variablen &V) const;
  std::vector<Spalte> Spalten_von(sqlite3_stmt *Stmt, std::vector<bool> &Berechnet) const;
  int lesen(sqlite3_stmt *Stmt, Antwort *A, qint64 &Anzahl, std::vector<Spalte> &Ziel);
  Meldung Fehler() const;
  Wert Globale(const QString &Name) const;

  sqlite3 *Db_ = nullptr;
  QHash<QString, sqlite3_stmt *> Vorrat_;
  int Tiefe_ = 0;
  bool Implizit_ = false;
  qint64 Letzte_Anzahl_ = 0;
};

/// Makes an empty database where there is none and puts the indexes of an old one into the server's order.
bool Datei_vorbereiten(const QByteArray &Datei);

/// The server's wording for one of its errors; `Was`: the object or word that it is about.
Meldung Fehler_bilden(int Nummer, const QString &Was = {});

}  // namespace marklink::tds
