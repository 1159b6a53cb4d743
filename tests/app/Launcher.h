// Runs the built launcher as a user would: a process with a program folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <QJsonDocument>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

class QProcess;

namespace marklink::test {

struct Ergebnis {
  int Ausgang = -1;  ///< exit status; -1 when the process crashed or hung
  QString Ausgabe;
  QString Fehler;
};

/// "mandant anlegen Test" as it would stand on a command line; "_" stands for a blank inside an argument.
QStringList Worte(const char *Zeile);

/// A line and what comes of it. A text is what the output begins with; one that ends in a line break is all
/// of it, an empty one that there is none.
struct Befehlsfall {
  const char *Zeile;
  int Ausgang;
  const char *Ausgabe = "", *Fehler = "";
};

class Launcher {
 public:
  Launcher();
  ~Launcher();

  /// The program folder; given by the environment. Not made yet.
  QString Ordner() const { return Wurzel_.path() + u"/Büro/varda"_qs; }
  QString Datei(const char *Name) const { return Ordner() + u'/' + QString::fromUtf8(Name); }
  /// A folder for whatever else a test needs.
  QString Wurzel() const { return Wurzel_.path(); }
  void Umgebung(const QString &Name, const QString &Wert);

  Ergebnis Starten(const QStringList &Argumente) const;
  Ergebnis Starten(const char *Zeile) const { return Starten(Worte(Zeile)); }
  /// The same without waiting.
  std::unique_ptr<QProcess> Anstossen(const QStringList &Argumente) const;
  static Ergebnis Abwarten(QProcess &Prozess);

  void Pruefen(const Befehlsfall &Erwartet) const;
  /// What the line prints as JSON; the exit status is 0.
  QJsonDocument Json(const QStringList &Argumente) const;
  QJsonDocument Json(const char *Zeile) const { return Json(Worte(Zeile)); }

  /// "einstellung schreiben"
  void Einstellen(const char *Abschnitt, const char *Schluessel, const QString &Wert) const;
  /// A new client "Test" that is set up for a shop on this machine.
  void Mandant_mit_Shop(int Typ, quint16 Port) const;
  /// Statements on the client's database file as another program runs them; the rows of a query, cells joined
  /// by "|", rows by line breaks.
  void Sql(const char *Text) const;
  QString Zeilen(const char *Sql, const char *Datenbank = "Test.mdb") const;

 private:
  QTemporaryDir Wurzel_;
  QStringList Umgebung_;
};

}  // namespace marklink::test
