// One SQL statement (or a part of one), joined from literals and values.
//
// Values are never escaped: a text value that holds an apostrophe makes the whole statement invalid, and an
// invalid statement fails without reaching the engine. Literals and values stay apart, so an engine may
// prepare the literals once and bind the values; what is observed is the joined text.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace marklink::db {

/// A text value; stands between apostrophes in the joined text: 'abc'.
struct Wert {
  QString Text;
};

/// A number value; integers without a point, doubles in the shortest form that reads back, with a point.
struct Zahl {
  explicit Zahl(int Wert_) : Text(QString::number(Wert_)) {}
  explicit Zahl(qint64 Wert_) : Text(QString::number(Wert_)) {}
  explicit Zahl(double Wert_);
  QString Text;
};

/// A list of text values: 'a','b','c'. An empty list makes the statement invalid.
struct Werteliste {
  QStringList Texte;
};

/// A table or column name known only at run time: letters, digits, "_", one level of "." and optional
/// brackets. Anything else makes the statement invalid.
struct Name {
  QString Text;
};

/// Dialect text that this program made itself at run time (a period condition, a null test). Must consist of
/// whole tokens without ";" or comment signs, else the statement is invalid. Never for text from outside.
struct Teiltext {
  QString Text;
};

class Anweisung {
 public:
  /// What stands at one place of the statement.
  struct Stueck {
    enum class Art { Literal, Textwert, Zahlwert } Art;
    QString Text;  ///< without the apostrophes for a text value
  };

  Anweisung() = default;
  template <std::size_t N>
  Anweisung(const char (&Literal)[N]) {  // NOLINT(google-explicit-constructor): a bare statement reads best
    anfuegen(Literal);
  }
  /// Anweisung("SELECT Description FROM Forms WHERE Type = ", Wert{Typ}, " AND Standard = ", Zahl(n))
  template <typename Erstes, typename... Weitere>
  requires(sizeof...(Weitere) > 0) Anweisung(const Erstes &erstes, const Weitere &...weitere) {
    anfuegen(erstes);
    (anfuegen(weitere), ...);
  }

  Anweisung &operator+=(const Anweisung &Teil) {
    anfuegen(Teil);
    return *this;
  }

  bool Leer() const { return Stuecke_.empty(); }
  /// False when a value holds an apostrophe or a NUL, or a name or part is none.
  bool Gueltig() const { return Fehler_.isEmpty(); }
  const QString &Fehler() const { return Fehler_; }
  const std::vector<Stueck> &Stuecke() const { return Stuecke_; }
  /// The statement as the books' own engines would see it.
  QString Text() const;
  /// The literals with a mark for each value: equal for two statements that differ in their values only.
  QString Schluessel() const;

 private:
  void anfuegen(const char *Literal);
  void anfuegen(const Wert &W);
  void anfuegen(const Zahl &Z);
  void anfuegen(const Werteliste &Liste);
  void anfuegen(const Name &N);
  void anfuegen(const Teiltext &T);
  void anfuegen(const Anweisung &A);
  void anfuegen_Text(const QString &Literal);
  void ungueltig(const QString &Grund);

  std::vector<Stueck> Stuecke_;
  QString Fehler_;
};

}  // namespace marklink::db
