// What a statement means for the engine behind the server.
//
// Statements on data go through the project's own translator of the second dialect, so a statement means here
// what it means in a client of type 1 on the embedded engine. Only what the translator does not know of is
// changed before: owners ("dbo."), variables, TOP of an UPDATE or DELETE, hints.
#pragma once

#include <QStringList>

#include "Antwort.h"
#include "Zerteilung.h"

namespace marklink::tds {

/// A value to bind: a variable of that name (with "@") or a constant.
struct Bindung {
  QString Variable{};
  Wert Konstante{};
};

struct Plan {
  enum class Art {
    Nichts,    ///< accepted, without effect here
    Zaehlen,   ///< SET NOCOUNT; `An`
    Implizit,  ///< SET IMPLICIT_TRANSACTIONS; `An`
    Katalog,   ///< USE; `Text`
    Beginnen,
    Abschliessen,
    Zurueckrollen,
    Bau,  ///< CREATE, ALTER, DROP
    Daten,
    Unverstaendlich  ///< `Text`: the word beside which it stops making sense
  } A = Art::Unverstaendlich;
  Befehl B = Befehl::Ohne;
  bool An = false;
  QString Text{};  ///< SQL for the engine
  std::vector<Bindung> Bindungen{};
  QString Tabelle{};          ///< that an UPDATE or DELETE writes to
  QStringList Verglichene{};  ///< its columns that INTERSECT compares
};

Plan Planen(const Satz &S);

/// CREATE TABLE and ALTER TABLE in the engine's words: types keep their names, so that they can be told
/// again, and what the server would refuse a CHECK refuses that bears the server's error number as its name.
/// Empty when the statement is none of these.
QString Tabellenbau_uebersetzen(const Satz &S);

QString Geklammert(const QString &Name);

/// The name at `i`, owners before it skipped; `i` is behind it afterwards.
QString Tabellenname(const Satz &S, std::size_t &i);

}  // namespace marklink::tds
