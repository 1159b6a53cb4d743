// A filter or search condition, made ready for the columns of one record set.
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "Anweisung.h"
#include "Ergebnis.h"

namespace marklink::db {

/// What a field is compared with, in the form that its column kind needs.
struct Vergleichswert {
  bool Null = false;
  bool unvereinbar = false;  ///< a text that is no number against a number column: never equal to anything
  bool als_Zahl = false;
  double Zahl = 0;
  QByteArray Text;        ///< UTF-8
  QString Roh;            ///< as written, for a statement
  bool Roh_Zahl = false;  ///< written as a number
};

class Filterausdruck {
 public:
  enum class Art { Und, Oder, Nicht, Gleich, Ungleich, Kleiner, Groesser, Hoechstens, Mindestens, Aehnlich };
  struct Knoten {
    Art A = Art::Und;
    int Links = -1, Rechts = -1;  ///< nodes, for Und, Oder, Nicht
    int Feld = -1;                ///< for the comparisons
    Vergleichswert Wert;
  };

  /// Nothing when the condition cannot be understood, is invalid, or names a field that is not there.
  static std::optional<Filterausdruck> Lesen(const Anweisung &Bedingung, const Spaltensatz &Spalten);

  bool passt(const Zelle *Zeile) const { return passt(Zeile, Wurzel_); }
  /// The "Field = value" parts that every match must satisfy; none compares with null.
  const std::vector<const Knoten *> &Gleichungen() const { return Gleichungen_; }
  /// One comparison and nothing else.
  bool Einzeln() const { return Knoten_.size() == 1; }

  Filterausdruck(Filterausdruck &&) = default;
  Filterausdruck &operator=(Filterausdruck &&) = default;
  Filterausdruck(const Filterausdruck &) = delete;
  Filterausdruck &operator=(const Filterausdruck &) = delete;
  ~Filterausdruck() = default;

 private:
  friend class Filterleser;
  Filterausdruck() = default;
  bool passt(const Zelle *Zeile, int Nummer) const;
  bool Vergleichen(const Zelle &Z, const Knoten &K) const;
  void Gleichungen_sammeln(int Nummer);

  std::vector<Knoten> Knoten_;
  int Wurzel_ = -1;
  std::vector<const Knoten *> Gleichungen_;
  std::vector<Feldart> Arten_;
};

/// Equal for a cell and a value that are equal to a filter.
quint32 Streuwert(const Zelle &Z, Feldart Art);
quint32 Streuwert(const Vergleichswert &W);

}  // namespace marklink::db
