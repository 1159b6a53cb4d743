// What tests of the merchandise rules share: rows written by pairs of column and value.
#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <utility>
#include <vector>

#include "host/Datenbank.h"
#include "support/Testmandant.h"

namespace marklink::test {

/// A value of a row; takes plain literals too.
struct Feldinhalt {
  Feldinhalt(const char *Text) : W(QString::fromUtf8(Text)) {}
  template <typename T>
  requires std::constructible_from<QVariant, T> Feldinhalt(const T &Wert) : W(Wert) {}
  QVariant W;
};

using Felder = std::vector<std::pair<const char *, Feldinhalt>>;

/// Adds rows to a table and sends them all at once when it goes out of scope.
class Fueller {
 public:
  explicit Fueller(const char *Tabelle)
      : Rs_(Abfragen({"SELECT * FROM ", db::Name{QString::fromUtf8(Tabelle)}})) {}
  ~Fueller() { EXPECT_TRUE(Rs_.UpdateBatch()); }
  Fueller(const Fueller &) = delete;
  Fueller &operator=(const Fueller &) = delete;

  void Zeile(const Felder &F) {
    Rs_.AddNew();
    for (const auto &[feld, wert] : F) Rs_.SetValue(QString::fromUtf8(feld), wert.W);
    Rs_.Update();
  }

 private:
  db::Recordset Rs_;
};

inline void Zeile(const char *Tabelle, const Felder &F) { Fueller(Tabelle).Zeile(F); }

}  // namespace marklink::test
