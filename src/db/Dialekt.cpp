// Dialect text to the embedded engine's SQL.
//
// The engine's own NOCASE knows ASCII only. The columns carry it all the same, so that any other tool can use
// the file; what is missing is added to the statement here: a compared value with umlauts becomes the list of
// its case variants (which an index still serves), order and ranges get the collation MARKLINK that every
// connection of this program registers.
#include "Dialekt.h"

#include "Gestalt.h"
#include "Textvarianten.h"
#include "Zerleger.h"

namespace marklink::db {

namespace {

const QString Sortierung = QStringLiteral("COLLATE MARKLINK");

using Ketten = std::vector<Zeichenkette>;
using Art = enum Zeichenkette::Art;

/// What an open parenthesis (or the whole statement) still owes at its end.
struct Ebene {
  bool IsNull = false;
  bool Sortierliste = false;  ///< inside ORDER BY
  bool Grenze_folgt = false;
  Zeichenkette Grenze{};     ///< n of TOP n
  bool Zuweisungen = false;  ///< between SET and WHERE, where "=" compares nothing
  bool Bereich = false;      ///< behind BETWEEN, before its AND
  bool Liste = false;        ///< the values of an IN
};

class Uebersetzer {
 public:
  Uebersetzer(const Ketten &K, Dialekt D) : K_(K), D_(D) { Ebenen_.emplace_back(); }
  std::optional<Uebersetzung> Lauf();

 private:
  const Zeichenkette *bei(std::size_t i) const { return i < K_.size() ? &K_[i] : nullptr; }
  bool ist(std::size_t i, const char *Wort) const { return i < K_.size() && K_[i].ist(Wort); }
  bool ist_Text(std::size_t i) const { return i < K_.size() && K_[i].Art == Art::Text; }
  bool ist_Vergleich(std::size_t i) const {
    return i < K_.size() && K_[i].Art == Art::Zeichen && QStringLiteral("=<>!").contains(K_[i].Text[0]);
  }

  void schreiben(const QString &Text);
  void binden(enum Anweisung::Stueck::Art A, const QString &Text, int Herkunft);
  bool Schritt();
  bool Wort();
  bool Vergleich();
  bool Klammer_auf();
  bool Klammer_zu();
  bool Textwert();
  bool Textwert_links();
  bool Listenglied();
  bool Mitglied();
  bool Datum(const Zeichenkette &Z);
  bool Convert();
  void Ebene_abschliessen();
  void Sortierglied_abschliessen();
  std::size_t Klammerende(std::size_t Auf, bool &Komma) const;

  const Ketten &K_;
  Dialekt D_;
  Uebersetzung Aus_;
  std::vector<Ebene> Ebenen_;
  std::size_t i_ = 0;
  std::size_t From_ = 0;  ///< index of the FROM whose select list may take the row number
};

void Uebersetzer::schreiben(const QString &Text) {
  if (!Aus_.Sql.isEmpty()) Aus_.Sql += u' ';
  Aus_.Sql += Text;
}

void Uebersetzer::binden(enum Anweisung::Stueck::Art A, const QString &Text, int Herkunft) {
  Aus_.Werte.push_back({A, Text});
  Aus_.Herkunft.push_back(Herkunft);
  schreiben(u'?' + QString::number(Aus_.Werte.size()));
}

/// The index of the parenthesis that closes `Auf`, or the end; tells whether a comma stands on its level.
std::size_t Uebersetzer::Klammerende(std::size_t Auf, bool &Komma) const {
  int tiefe = 0;
  Komma = false;
  for (std::size_t i = Auf; i < K_.size(); ++i) {
    if (K_[i].ist("(")) ++tiefe;
    if (K_[i].ist(")") && --tiefe == 0) return i;
    if (tiefe == 1 && K_[i].ist(",")) Komma = true;
  }
  return K_.size();
}

bool Uebersetzer::Datum(const Zeichenkette &Z) {
  const QString text = Datum_normieren(Z.Text);
  if (text.isEmpty()) return false;
  if (Z.Stueck >= 0) Aus_.Wiederverwendbar = false;
  binden(Anweisung::Stueck::Art::Textwert, text, -1);
  return true;
}

bool Uebersetzer::Convert() {
  // CONVERT ( datetime , 'text' [, style] )
  bool komma = false;
  const std::size_t ende = Klammerende(i_ + 1, komma);
  if (!ist(i_ + 2, "datetime") || !ist(i_ + 3, ",") || !ist_Text(i_ + 4) || ende >= K_.size()) return false;
  const bool mit_Stil = ist(i_ + 5, ",") && bei(i_ + 6)->Art == Art::Zahl && ende == i_ + 7;
  if (!mit_Stil && ende != i_ + 5) return false;
  const std::size_t wert = i_ + 4;
  i_ = ende + 1;
  return Datum(K_[wert]);
}

void Uebersetzer::Sortierglied_abschliessen() {
  if (Ebenen_.back().Sortierliste) schreiben(Sortierung);
}

void Uebersetzer::Ebene_abschliessen() {
  Ebene &e = Ebenen_.back();
  const bool gerichtet = i_ > 0 && (K_[i_ - 1].ist("ASC") || K_[i_ - 1].ist("DESC"));
  if (!gerichtet) Sortierglied_abschliessen();
  if (e.Grenze_folgt) {
    schreiben(QStringLiteral("LIMIT"));
    binden(Anweisung::Stueck::Art::Zahlwert, e.Grenze.Text, e.Grenze.Stueck);
  }
}

bool Uebersetzer::Klammer_auf() {
  Ebenen_.emplace_back();
  schreiben(QStringLiteral("("));
  ++i_;
  return true;
}

bool Uebersetzer::Klammer_zu() {
  if (Ebenen_.size() == 1) return false;
  Ebene_abschliessen();
  schreiben(Ebenen_.back().IsNull ? QStringLiteral(") IS NULL ) )") : QStringLiteral(")"));
  Ebenen_.pop_back();
  ++i_;
  return true;
}

/// A value compared by "=" or "<>" behind the operator at i_.
bool Uebersetzer::Vergleich() {
  const bool gleich = K_[i_].ist("=");
  const bool ungleich = K_[i_].ist("<>") || K_[i_].ist("!=");
  const Zeichenkette &wert = K_[i_ + 1];
  if (!gleich && !ungleich) {  // a range
    schreiben(K_[i_].Text);
    ++i_;
    Textwert();
    schreiben(Sortierung);
    return true;
  }
  if (Ebenen_.back().Zuweisungen || Wert_schlicht(wert.Text)) {
    schreiben(K_[i_].Text);
    ++i_;
    return Textwert();
  }
  const QStringList varianten = Textvarianten(wert.Text);
  i_ += 2;
  if (varianten.isEmpty()) {
    schreiben(gleich ? QStringLiteral("=") : QStringLiteral("<>"));
    binden(Anweisung::Stueck::Art::Textwert, wert.Text, -1);
    schreiben(Sortierung);
    return true;
  }
  schreiben(gleich ? QStringLiteral("IN (") : QStringLiteral("NOT IN ("));
  for (qsizetype k = 0; k < varianten.size(); ++k) {
    if (k > 0) schreiben(QStringLiteral(","));
    binden(Anweisung::Stueck::Art::Textwert, varianten[k], -1);
  }
  schreiben(QStringLiteral(")"));
  return true;
}

bool Uebersetzer::Textwert() {
  binden(Anweisung::Stueck::Art::Textwert, K_[i_].Text, K_[i_].Stueck);
  ++i_;
  return true;
}

/// A text that is compared with what stands behind it: there the column's own collation would decide. No
/// list of variants as for the usual order, nobody writes this one where an index matters.
bool Uebersetzer::Textwert_links() {
  const bool gleichheit = ist(i_ + 1, "=") || ist(i_ + 1, "<>") || ist(i_ + 1, "!=");
  const bool sortiert =
      ist_Vergleich(i_ + 1) && !ist_Text(i_ + 2) && !(gleichheit && Wert_schlicht(K_[i_].Text));
  Textwert();
  if (sortiert) schreiben(Sortierung);
  return true;
}

/// A member of a list of values with its variants.
bool Uebersetzer::Listenglied() {
  const bool allein = (ist(i_ - 1, "(") || ist(i_ - 1, ",")) && (ist(i_ + 1, ",") || ist(i_ + 1, ")"));
  const QStringList varianten = Textvarianten(K_[i_].Text);
  if (!allein || varianten.size() == 1) return Textwert();
  for (qsizetype v = 0; v < varianten.size(); ++v) {
    if (v > 0) schreiben(QStringLiteral(","));
    binden(Anweisung::Stueck::Art::Textwert, varianten[v], -1);
  }
  ++i_;
  return true;
}

/// IN ( 'a' , 'b' ): the variants of each value; the collation when one has too many.
bool Uebersetzer::Mitglied() {
  bool komma = false;
  const std::size_t ende = Klammerende(i_ + 1, komma);
  const bool unterabfrage = ist(i_ + 2, "SELECT");
  bool sortiert = false;
  for (std::size_t k = i_ + 2; k < ende && !unterabfrage; ++k) {
    const bool schlicht = K_[k].Art != Art::Text || Wert_schlicht(K_[k].Text);
    sortiert = sortiert || (!schlicht && Textvarianten(K_[k].Text).isEmpty());
  }
  if (sortiert) {
    // Belongs to the left side, so before a NOT that is written already.
    const QString nicht = QStringLiteral(" NOT");
    const bool verneint = Aus_.Sql.endsWith(nicht, Qt::CaseInsensitive);
    if (verneint) Aus_.Sql.chop(nicht.size());
    schreiben(Sortierung);
    if (verneint) schreiben(QStringLiteral("NOT"));
  }
  schreiben(QStringLiteral("IN"));
  ++i_;
  Klammer_auf();
  Ebenen_.back().Liste = !sortiert && !unterabfrage;
  return true;
}

bool Uebersetzer::Wort() {
  const Zeichenkette &k = K_[i_];
  Ebene &e = Ebenen_.back();
  const bool jet = D_ == Dialekt::Jet;
  const bool qualifiziert = (i_ > 0 && K_[i_ - 1].ist(".")) || ist(i_ + 1, ".");
  if (qualifiziert) {
    schreiben(k.Text);
    ++i_;
    return true;
  }
  if (k.ist("IsNull") && ist(i_ + 1, "(")) {
    bool komma = false;
    Klammerende(i_ + 1, komma);
    if (komma) {
      schreiben(QStringLiteral("IFNULL"));
      ++i_;
      return Klammer_auf();
    }
    schreiben(QStringLiteral("( - ("));  // true is -1 in this dialect, here too
    i_ += 1;
    Klammer_auf();
    Ebenen_.back().IsNull = true;
    return true;
  }
  if (!jet && k.ist("CONVERT") && ist(i_ + 1, "(")) return Convert();
  if (k.ist("True") || k.ist("False")) {
    // The second dialect has no such words: a column of that name, which then does not exist.
    schreiben(jet ? (k.ist("True") ? QStringLiteral("-1") : QStringLiteral("0")) : u'[' + k.Text + u']');
    ++i_;
    return true;
  }
  if (k.ist("TOP") && i_ > 0 && (K_[i_ - 1].ist("SELECT") || K_[i_ - 1].ist("DISTINCT"))) {
    const Zeichenkette *zahl = bei(i_ + 1);
    if (!zahl || zahl->Art != Art::Zahl) return false;
    e.Grenze_folgt = true;
    e.Grenze = *zahl;
    i_ += 2;
    return true;
  }
  if (k.ist("DELETE") && jet && ist(i_ + 1, "*")) {
    schreiben(k.Text);
    i_ += 2;
    return true;
  }
  if (k.ist("IN") && ist(i_ + 1, "(")) return Mitglied();
  if (k.ist("ORDER") && ist(i_ + 1, "BY")) {
    e.Sortierliste = true;
    schreiben(QStringLiteral("ORDER BY"));
    i_ += 2;
    return true;
  }
  if (k.ist("ASC") || k.ist("DESC")) Sortierglied_abschliessen();
  if (k.ist("SET")) e.Zuweisungen = true;
  if (k.ist("WHERE")) e.Zuweisungen = false;
  if (k.ist("BETWEEN")) e.Bereich = true;
  const bool grenze = k.ist("BETWEEN") || (k.ist("AND") && e.Bereich);
  if (k.ist("AND")) e.Bereich = false;
  if (k.ist("FROM") && Ebenen_.size() == 1 && i_ == From_) Aus_.Listenende = Aus_.Sql.size();
  schreiben(k.Text);
  ++i_;
  if (grenze && ist_Text(i_)) {
    Textwert();
    schreiben(Sortierung);
  }
  return true;
}

bool Uebersetzer::Schritt() {
  const Zeichenkette &k = K_[i_];
  switch (k.Art) {
    case Art::Wort:
      return Wort();
    case Art::Klammerwort:
      schreiben(u'[' + k.Text + u']');
      ++i_;
      return true;
    case Art::Datum:
      ++i_;
      return D_ == Dialekt::Jet && Datum(k);
    case Art::Zahl:
      if (k.Stueck >= 0) {
        binden(Anweisung::Stueck::Art::Zahlwert, k.Text, k.Stueck);
      } else {
        schreiben(k.Text);
      }
      ++i_;
      return true;
    case Art::Text:
      return Ebenen_.back().Liste ? Listenglied() : Textwert_links();
    case Art::Zeichen:
      break;
  }
  if (k.ist("(")) return Klammer_auf();
  if (k.ist(")")) return Klammer_zu();
  if (ist_Vergleich(i_) && ist_Text(i_ + 1)) return Vergleich();
  if (k.ist(",")) {
    const bool gerichtet = i_ > 0 && (K_[i_ - 1].ist("ASC") || K_[i_ - 1].ist("DESC"));
    if (!gerichtet) Sortierglied_abschliessen();
  }
  const bool an_Text = ist_Text(i_ + 1) || (i_ > 0 && ist_Text(i_ - 1));
  const bool verketten = D_ == Dialekt::Jet ? k.ist("&") : (k.ist("+") && an_Text);
  schreiben(verketten ? QStringLiteral("||") : k.Text);
  ++i_;
  return true;
}

std::optional<Uebersetzung> Uebersetzer::Lauf() {
  if (K_.empty()) return std::nullopt;
  const Gestalt gestalt = Gestalt_lesen(K_);
  Aus_.Einzeltabelle = gestalt.Einzeltabelle;
  Aus_.Alle_Spalten = gestalt.Alle_Spalten;
  Aus_.Ganze_Tabelle = gestalt.Ganze_Tabelle;
  From_ = gestalt.From;
  while (i_ < K_.size()) {
    if (!Schritt()) return std::nullopt;
  }
  if (Ebenen_.size() != 1) return std::nullopt;
  Ebene_abschliessen();
  return std::move(Aus_);
}

}  // namespace

std::optional<Uebersetzung> Fuer_SQLite_uebersetzen(const Anweisung &Sql, Dialekt D) {
  const auto ketten = Zerlegen(Sql);
  if (!ketten) return std::nullopt;
  return Uebersetzer(*ketten, D).Lauf();
}

}  // namespace marklink::db
