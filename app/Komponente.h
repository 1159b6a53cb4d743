// What the launcher's host components have in common: operations by name, usable once they are initialised
// for the client that is open.
#pragma once

#include <QString>
#include <QVariantList>
#include <vector>

#include "db/Recordset.h"
#include "ui/Host_Komponenten.h"

namespace marklink {

class Komponente : public Host_Komponente {
 public:
  /// An invalid value, told in the trace, for an unknown operation, a wrong number of arguments, or a
  /// component that was not initialised.
  QVariant Aufrufen(const QString &Operation, QVariantList &Argumente) override;

 protected:
  struct Befehl {
    const char *Name;
    qsizetype Argumente;
    QVariant (*Ausfuehren)(const QVariantList &Argumente);
  };
  Komponente(const char *Name, std::vector<Befehl> Befehle) : Name_(Name), Befehle_(std::move(Befehle)) {}

 private:
  QVariant Initialisieren(const QVariantList &Argumente);
  QVariant Abweisen(const QString &Operation, const char *Grund) const;

  const char *Name_;
  std::vector<Befehl> Befehle_;
  bool Bereit_ = false;
};

/// Adds a row to a table whose auto-numbered key is `Schluessel`, with the employee and the time of creation.
/// `Spalten` go with the arguments one by one; a column with an empty name takes nothing. The row's number as
/// text; an invalid value when it could not be saved.
QVariant Buchungszeile_anlegen(const db::Anweisung &Tabelle, const char *Schluessel,
                               const std::vector<const char *> &Spalten, const QVariantList &Argumente);

}  // namespace marklink
