// Runs the stand-in for SQL Server (tests/tds) on a database file, and tells it how to behave.
#pragma once

#include <sys/types.h>
#include <QByteArray>
#include <QString>

namespace marklink::test {

class SqlServer_Attrappe {
 public:
  /// Starts it on a file, which is made when it is not there; login "sa"/"geheim". A server that does not
  /// start has port 0.
  explicit SqlServer_Attrappe(const QString &Datei);
  ~SqlServer_Attrappe();  ///< hangs up on every client
  SqlServer_Attrappe(const SqlServer_Attrappe &) = delete;
  SqlServer_Attrappe &operator=(const SqlServer_Attrappe &) = delete;

  int Port() const { return Port_; }
  /// For the library, catalogue "demo".
  QString Verbindungstext(const QString &Kennwort = QStringLiteral("geheim"), int Wartezeit = 5) const;
  /// The commands of tests/tds/main.cpp and the names of tests/tds/Stoerung.h.
  void Stellen(const QByteArray &Name, int Wert) { Fragen(Name + ' ' + QByteArray::number(Wert)); }
  int Zahl(const QByteArray &Name) { return Fragen(Name).toInt(); }
  /// The password of "sa" from now on.
  void Kennwort_setzen(const QString &Kennwort) { Fragen("kennwort " + Kennwort.toUtf8().toHex()); }
  void Alle_trennen() { Fragen("alle-trennen"); }

 private:
  QByteArray Fragen(const QByteArray &Zeile);
  QByteArray Zeile_lesen() const;

  pid_t Prozess_ = -1;
  int Hin_ = -1, Her_ = -1, Port_ = 0;
};

}  // namespace marklink::test
