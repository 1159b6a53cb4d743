// Reading a condition and applying it to rows.
#include "Filterausdruck.h"

#include <cstring>

#include "Feldwert.h"
#include "Zerleger.h"

namespace marklink::db {

namespace {

constexpr int Tiefe_hoechstens = 200;

using Ketten = std::vector<Zeichenkette>;
using Kettenart = enum Zeichenkette::Art;

quint32 Zahl_streuen(double Zahl) {
  const double glatt = Zahl == 0.0 ? 0.0 : Zahl;  // -0 equals 0
  quint64 bits = 0;
  std::memcpy(&bits, &glatt, sizeof bits);
  bits *= 0x9E3779B97F4A7C15u;
  return static_cast<quint32>(bits >> 32);
}

bool zaehlt(Feldart Art) {
  return Art == Feldart::Ganzzahl || Art == Feldart::Gleitkomma || Art == Feldart::Ja_Nein;
}

/// A cell of a computed column is taken for what it holds.
bool als_Zahl(const Zelle &Z, Feldart Art) {
  return zaehlt(Art) ||
         (Art == Feldart::Offen && (Z.Inhalt == Zelle::Art::Ganz || Z.Inhalt == Zelle::Art::Gleit));
}

double Zahl_von(const Zelle &Z, Feldart Art) {
  return Art == Feldart::Ja_Nein ? (Feldflagge_lesen(Z) ? 1.0 : 0.0) : Feldzahl_lesen(Z, Art);
}

QByteArray Text_von(const Zelle &Z, Feldart Art) {
  if (Art == Feldart::Datum) {
    const QString datum = Datumstext_lesen(Feldtext_lesen(Z, Art));
    if (!datum.isEmpty()) return datum.toUtf8();
  }
  if (Z.hat_Bytes()) return QByteArray::fromRawData(Z.Daten, static_cast<qsizetype>(Z.Laenge));
  return Feldtext_lesen(Z, Art).toUtf8();
}

Utf8 Sicht(const QByteArray &Text) { return {Text.constData(), Text.size()}; }

Vergleichswert Wert_bilden(const Zeichenkette &K, bool Minus, Feldart Art) {
  Vergleichswert w;
  w.Roh = Minus ? u'-' + K.Text : K.Text;
  w.Roh_Zahl = K.Art == Kettenart::Zahl;
  if (K.Art == Kettenart::Wort) {  // NULL, True, False
    w.Null = K.ist("NULL");
    w.als_Zahl = true;
    w.Zahl = K.ist("True") ? 1.0 : 0.0;
    if (Art == Feldart::Text) w.Text = w.Zahl != 0.0 ? "-1" : "0";
    return w;
  }
  const QString datum = K.Art == Kettenart::Datum ? Datum_normieren(K.Text) : QString();
  if (zaehlt(Art) || (Art == Feldart::Offen && w.Roh_Zahl)) {
    const auto zahl = Zahltext_lesen(w.Roh);
    w.unvereinbar = !zahl;
    w.als_Zahl = true;
    w.Zahl = zahl.value_or(0.0);
    if (Art == Feldart::Ja_Nein && w.Zahl != 0.0) w.Zahl = 1.0;
  } else if (Art == Feldart::Datum) {
    const QString text = datum.isEmpty() ? Datumstext_lesen(w.Roh) : datum;
    w.unvereinbar = text.isEmpty();
    w.Text = text.toUtf8();
  } else {
    w.Text = (datum.isEmpty() ? w.Roh : datum).toUtf8();
  }
  return w;
}

}  // namespace

/// Recursive descent: or, and, not, comparison.
class Filterleser {
 public:
  Filterleser(const Ketten &K, const Spaltensatz &S, Filterausdruck &Ziel) : K_(K), S_(S), Ziel_(Ziel) {}
  bool Lauf() {
    Ziel_.Wurzel_ = Oder(0);
    return Ziel_.Wurzel_ >= 0 && i_ == K_.size();
  }

 private:
  using Art = Filterausdruck::Art;
  bool ist(const char *Wort) const { return i_ < K_.size() && K_[i_].ist(Wort); }
  int anlegen(Filterausdruck::Knoten K) {
    Ziel_.Knoten_.push_back(std::move(K));
    return static_cast<int>(Ziel_.Knoten_.size()) - 1;
  }
  int verbinden(Art A, int Links, int Rechts) {
    Filterausdruck::Knoten k;
    k.A = A;
    k.Links = Links;
    k.Rechts = Rechts;
    return anlegen(std::move(k));
  }
  int Oder(int Tiefe);
  int Und(int Tiefe);
  int Glied(int Tiefe);
  int Vergleich();
  bool Operator(Art &A, bool &Verneint);
  int Feldnummer();

  const Ketten &K_;
  const Spaltensatz &S_;
  Filterausdruck &Ziel_;
  std::size_t i_ = 0;
};

int Filterleser::Oder(int Tiefe) {
  int links = Und(Tiefe);
  while (links >= 0 && ist("OR")) {
    ++i_;
    const int rechts = Und(Tiefe);
    links = rechts < 0 ? -1 : verbinden(Art::Oder, links, rechts);
  }
  return links;
}

int Filterleser::Und(int Tiefe) {
  int links = Glied(Tiefe);
  while (links >= 0 && ist("AND")) {
    ++i_;
    const int rechts = Glied(Tiefe);
    links = rechts < 0 ? -1 : verbinden(Art::Und, links, rechts);
  }
  return links;
}

int Filterleser::Glied(int Tiefe) {
  if (Tiefe > Tiefe_hoechstens) return -1;
  if (ist("NOT")) {
    ++i_;
    const int innen = Glied(Tiefe + 1);
    return innen < 0 ? -1 : verbinden(Art::Nicht, innen, -1);
  }
  if (!ist("(")) return Vergleich();
  ++i_;
  const int innen = Oder(Tiefe + 1);
  if (innen < 0 || !ist(")")) return -1;
  ++i_;
  return innen;
}

int Filterleser::Feldnummer() {
  if (i_ >= K_.size()) return -1;
  const Zeichenkette *name = &K_[i_];
  // Table.Field: the set knows its fields by their own names.
  if (i_ + 2 < K_.size() && K_[i_ + 1].ist(".")) {
    i_ += 2;
    name = &K_[i_];
  }
  if (name->Art != Kettenart::Wort && name->Art != Kettenart::Klammerwort) return -1;
  ++i_;
  return S_.finden(name->Text);
}

bool Filterleser::Operator(Art &A, bool &Verneint) {
  static const struct {
    const char *Zeichen;
    Art A;
  } Tafel[] = {{"=", Art::Gleich},      {"<>", Art::Ungleich},   {"!=", Art::Ungleich},
               {"<", Art::Kleiner},     {">", Art::Groesser},    {"<=", Art::Hoechstens},
               {">=", Art::Mindestens}, {"LIKE", Art::Aehnlich}, {"IS", Art::Gleich}};
  for (const auto &zeile : Tafel) {
    if (!ist(zeile.Zeichen)) continue;
    const bool is = ist("IS");
    ++i_;
    A = zeile.A;
    if (is && ist("NOT")) {
      ++i_;
      A = Art::Ungleich;
    }
    return !is || ist("NULL");
  }
  if (!ist("NOT")) return false;
  ++i_;
  Verneint = true;
  A = Art::Aehnlich;
  const bool aehnlich = ist("LIKE");
  ++i_;
  return aehnlich;
}

int Filterleser::Vergleich() {
  Filterausdruck::Knoten k;
  k.Feld = Feldnummer();
  bool verneint = false;
  if (k.Feld < 0 || !Operator(k.A, verneint)) return -1;
  const bool minus = ist("-");
  if (minus) ++i_;
  if (i_ >= K_.size()) return -1;
  const Zeichenkette &wert = K_[i_++];
  const bool wort = wert.ist("NULL") || wert.ist("True") || wert.ist("False");
  const bool brauchbar =
      wort || wert.Art == Kettenart::Text || wert.Art == Kettenart::Zahl || wert.Art == Kettenart::Datum;
  if (!brauchbar || (minus && wert.Art != Kettenart::Zahl)) return -1;
  k.Wert = Wert_bilden(wert, minus, S_.Felder[static_cast<std::size_t>(k.Feld)].Art);
  const int nummer = anlegen(std::move(k));
  return verneint ? verbinden(Art::Nicht, nummer, -1) : nummer;
}

std::optional<Filterausdruck> Filterausdruck::Lesen(const Anweisung &Bedingung, const Spaltensatz &Spalten) {
  const auto ketten = Zerlegen(Bedingung);
  if (!ketten) return std::nullopt;
  Filterausdruck ausdruck;
  if (!Filterleser(*ketten, Spalten, ausdruck).Lauf()) return std::nullopt;
  for (const Feld &feld : Spalten.Felder) ausdruck.Arten_.push_back(feld.Art);
  ausdruck.Gleichungen_sammeln(ausdruck.Wurzel_);
  return ausdruck;
}

void Filterausdruck::Gleichungen_sammeln(int Nummer) {
  const Knoten &k = Knoten_[static_cast<std::size_t>(Nummer)];
  if (k.A == Art::Und) {
    Gleichungen_sammeln(k.Links);
    Gleichungen_sammeln(k.Rechts);
  }
  if (k.A == Art::Gleich && !k.Wert.Null) Gleichungen_.push_back(&k);
}

bool Filterausdruck::passt(const Zelle *Zeile, int Nummer) const {
  const Knoten &k = Knoten_[static_cast<std::size_t>(Nummer)];
  switch (k.A) {
    case Art::Und:
      return passt(Zeile, k.Links) && passt(Zeile, k.Rechts);
    case Art::Oder:
      return passt(Zeile, k.Links) || passt(Zeile, k.Rechts);
    case Art::Nicht:
      return !passt(Zeile, k.Links);
    default:
      return Vergleichen(Zeile[k.Feld], k);
  }
}

bool Filterausdruck::Vergleichen(const Zelle &Z, const Knoten &K) const {
  const Vergleichswert &w = K.Wert;
  if (w.Null) return (K.A == Art::Gleich) == Z.ist_Null() && (K.A == Art::Gleich || K.A == Art::Ungleich);
  const Feldart art = Arten_[static_cast<std::size_t>(K.Feld)];
  // A flag is never null; any other null matches nothing but a test for it.
  if (Z.ist_Null() && art != Feldart::Ja_Nein) return false;
  if (w.unvereinbar) return K.A == Art::Ungleich;
  const bool rechnen = w.als_Zahl && als_Zahl(Z, art);
  if (K.A == Art::Aehnlich) {
    const QByteArray text = Text_von(Z, art), muster = w.Roh.toUtf8();
    return Utf8_aehnlich(Sicht(text), Sicht(muster));
  }
  if (K.A == Art::Gleich || K.A == Art::Ungleich) {
    const bool gleich =
        rechnen ? Zahl_von(Z, art) == w.Zahl : Utf8_gleich(Sicht(Text_von(Z, art)), Sicht(w.Text));
    return gleich == (K.A == Art::Gleich);
  }
  int folge = 0;
  if (rechnen) {
    const double zahl = Zahl_von(Z, art);
    folge = zahl < w.Zahl ? -1 : (zahl > w.Zahl ? 1 : 0);
  } else {
    folge = Utf8_vergleichen(Sicht(Text_von(Z, art)), Sicht(w.Text));
  }
  switch (K.A) {
    case Art::Kleiner:
      return folge < 0;
    case Art::Groesser:
      return folge > 0;
    case Art::Hoechstens:
      return folge <= 0;
    default:
      return folge >= 0;
  }
}

quint32 Streuwert(const Zelle &Z, Feldart Art) {
  if (als_Zahl(Z, Art)) return Zahl_streuen(Zahl_von(Z, Art));
  return Utf8_streuen(Sicht(Text_von(Z, Art)));
}

quint32 Streuwert(const Vergleichswert &W) {
  return W.als_Zahl ? Zahl_streuen(W.Zahl) : Utf8_streuen(Sicht(W.Text));
}

}  // namespace marklink::db
