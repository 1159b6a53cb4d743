// Runs the built launcher as a user would: a process with a program folder of its own.
#pragma once

#include <gtest/gtest.h>
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

class Launcher {
 public:
  Launcher();
  ~Launcher();

  /// The program folder; given by the environment. Not made yet.
  QString Ordner() const { return Wurzel_.path() + QStringLiteral("/Büro/varda"); }
  QString Datei(const char *Name) const { return Ordner() + u'/' + QString::fromUtf8(Name); }
  /// A folder for whatever else a test needs.
  QString Wurzel() const { return Wurzel_.path(); }
  void Umgebung(const QString &Name, const QString &Wert);

  Ergebnis Starten(const QStringList &Argumente) const;
  Ergebnis Starten(const char *Zeile) const { return Starten(Worte(Zeile)); }
  /// The same without waiting.
  std::unique_ptr<QProcess> Anstossen(const QStringList &Argumente) const;
  static Ergebnis Abwarten(QProcess &Prozess);

  /// A new client that is set up for a shop on this machine.
  void Mandant_mit_Shop(int Typ, quint16 Port) const;

  /// All rows of a query on the client's database file, cells joined by "|"; by the engine itself.
  static QStringList Roh_lesen(const QString &Datei, const char *Sql);
  static void Schreiben(const QString &Datei, const QByteArray &Inhalt);
  static QByteArray Lesen(const QString &Datei);

 private:
  QTemporaryDir Wurzel_;
  QStringList Umgebung_;
};

}  // namespace marklink::test
