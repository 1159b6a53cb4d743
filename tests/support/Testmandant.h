// A client in a temporary folder, of either database type, with a fixed clock: started up and ready to use.
#pragma once

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "db/Recordset.h"
#include "host/Uhr.h"
#include "support/SqlServer_Attrappe.h"

namespace marklink::test {

class Feste_Uhr : public Uhr {
 public:
  explicit Feste_Uhr(const QDateTime &Anfang) : Zeit(Anfang) {}
  QDateTime Jetzt() const override { return Zeit; }
  QDateTime Zeit;
};

class Testmandant {
 public:
  /// While it lives, temporary files of the program go into its folder.
  /// Type 0 or 1; today is 15.06.2024, 10:30. Employee "Chef" (store "Zentrale", storage number "1");
  /// settings Program/Country "Deutschland", formats, Marklink/project "Test".
  explicit Testmandant(int Typ);
  ~Testmandant();
  Testmandant(const Testmandant &) = delete;
  Testmandant &operator=(const Testmandant &) = delete;

  int Typ() const { return Typ_; }
  QString Ordner() const;  ///< with its trailing separator
  QString Datenbankdatei() const;
  /// What the books of a client of type 1 are on with MARKLINK_LEITUNG=1; otherwise nullptr.
  SqlServer_Attrappe *Server() const { return Server_.get(); }
  /// Damages the books; those on a server go with it.
  void Buecher_zerstoeren();
  /// Writes a setting of the client and runs the start-up again.
  void Einstellen(const char *Abschnitt, const char *Schluessel, const QString &Wert);
  /// Writes a key of the host configuration; takes effect with the next Starten().
  void Host_einstellen(const char *Abschnitt, const char *Schluessel, const QString &Wert);
  void Starten();
  /// Adds a row: field, value, field, value ...
  void Zeile(const QString &Tabelle, const QVariantList &Felder_und_Werte);

  Feste_Uhr uhr;

 private:
  int Typ_;
  QTemporaryDir Ordner_;
  QByteArray Tmp_vorher_;
  std::unique_ptr<SqlServer_Attrappe> Server_;
};

/// Every test of such a fixture runs for both database types.
class Mandant_Test : public ::testing::TestWithParam<int> {
 protected:
  Mandant_Test() : Mandant(GetParam()) {}
  Testmandant Mandant;
};

/// The test name's ending: the database type.
inline std::string Typname(const ::testing::TestParamInfo<int> &Info) {
  return Info.param == 0 ? "Jet" : "SqlServer";
}

#define MARKLINK_BEIDE_TYPEN(Fixture) \
  INSTANTIATE_TEST_SUITE_P(Typ, Fixture, ::testing::Values(0, 1), ::marklink::test::Typname)

}  // namespace marklink::test
