// Reading the command line: options, command words and arguments, without doing anything yet.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "Befehle.h"

namespace marklink {

/// A command with what was given to it, general options included.
struct Aufruf {
  const Befehl *Was = nullptr;
  QStringList Argumente;
  QHash<QString, QStringList> Optionen;  ///< values by option name, in the order given; a switch holds ""

  bool Gegeben(const char *Option) const { return Optionen.contains(QLatin1String(Option)); }
  QStringList Werte(const char *Option) const { return Optionen.value(QLatin1String(Option)); }
  /// The last value given; empty without one.
  QString Wert(const char *Option) const;
};

struct Befehlszeile {
  enum class Art { Ausfuehren, Hilfe, Version, Fehler } Was = Art::Fehler;
  Aufruf Aufruf_;
  QStringList Thema;  ///< for the help: command words as far as they are known
  QString Fehler;     ///< why the line is wrong
};

/// `Argumente` without the program's own name. Options may stand anywhere; "--" ends them; "-5" is an
/// argument. Help is given also where the rest of the line is wrong.
Befehlszeile Befehlszeile_lesen(const QStringList &Argumente);

}  // namespace marklink
