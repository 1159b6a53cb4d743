// The tokens of a statement.
#include "Zerleger.h"

#include <QDateTime>

#include "Feldwert.h"

namespace marklink::db {

namespace {

class Zerleger {
 public:
  explicit Zerleger(std::vector<Zeichenkette> &Aus) : Aus_(Aus) {}

  bool Literal(const QString &Text);
  bool Wert(const Anweisung::Stueck &S, int Nummer) {
    using Quelle = enum Anweisung::Stueck::Art;
    const auto art = S.Art == Quelle::Textwert ? Zeichenkette::Art::Text : Zeichenkette::Art::Zahl;
    return ablegen(art, S.Text, Nummer);
  }

 private:
  bool ablegen(enum Zeichenkette::Art Art, const QString &Text, int Stueck = -1) {
    if (Beendet_) return false;
    Aus_.push_back({Art, Text, Stueck});
    return true;
  }
  bool Eingefasst(const QString &Text, qsizetype &i, QChar Ende, enum Zeichenkette::Art Art);
  bool Apostrophtext(const QString &Text, qsizetype &i);
  bool Ziffern(const QString &Text, qsizetype &i);
  bool Operator(const QString &Text, qsizetype &i);

  std::vector<Zeichenkette> &Aus_;
  bool Beendet_ = false;
};

bool Zerleger::Eingefasst(const QString &Text, qsizetype &i, QChar Ende, enum Zeichenkette::Art Art) {
  const qsizetype ende = Text.indexOf(Ende, i + 1);
  if (ende < 0 || ende == i + 1) return false;
  const QString inhalt = Text.mid(i + 1, ende - i - 1);
  if (inhalt.contains(u'[') || inhalt.contains(QChar(u'\0'))) return false;
  i = ende + 1;
  return ablegen(Art, inhalt);
}

bool Zerleger::Apostrophtext(const QString &Text, qsizetype &i) {
  QString inhalt;
  for (++i; i < Text.size(); ++i) {
    if (Text[i] != u'\'') {
      inhalt += Text[i];
    } else if (i + 1 < Text.size() && Text[i + 1] == u'\'') {
      inhalt += Text[++i];
    } else {
      ++i;
      return !inhalt.contains(QChar(u'\0')) && ablegen(Zeichenkette::Art::Text, inhalt);
    }
  }
  return false;
}

bool Zerleger::Ziffern(const QString &Text, qsizetype &i) {
  const qsizetype anfang = i;
  while (i < Text.size() && (Text[i].isLetterOrNumber() || Text[i] == u'.' || Text[i] == u'_')) {
    const bool exponent = (Text[i] == u'e' || Text[i] == u'E') && i + 1 < Text.size() &&
                          (Text[i + 1] == u'-' || Text[i + 1] == u'+');
    i += exponent ? 2 : 1;
  }
  const QString zahl = Text.mid(anfang, i - anfang);
  bool lesbar = false;
  (void)zahl.toDouble(&lesbar);
  return lesbar && ablegen(Zeichenkette::Art::Zahl, zahl);
}

bool Zerleger::Operator(const QString &Text, qsizetype &i) {
  const QChar c = Text[i];
  const QChar naechstes = i + 1 < Text.size() ? Text[i + 1] : QChar();
  if ((c == u'-' && naechstes == u'-') || (c == u'/' && naechstes == u'*')) return false;
  const bool paar = (c == u'<' && (naechstes == u'=' || naechstes == u'>')) ||
                    (c == u'>' && naechstes == u'=') || (c == u'!' && naechstes == u'=');
  if (!paar && !QStringLiteral("=<>(),.*+-/&%|").contains(c)) return false;
  const qsizetype laenge = paar ? 2 : 1;
  i += laenge;
  return ablegen(Zeichenkette::Art::Zeichen, Text.mid(i - laenge, laenge));
}

bool Zerleger::Literal(const QString &Text) {
  const auto im_Wort = [](QChar c) { return c.isLetterOrNumber() || c == u'_'; };
  qsizetype i = 0;
  while (i < Text.size()) {
    const QChar c = Text[i];
    if (c.isSpace()) {
      ++i;
    } else if (c == u'\'') {
      if (!Apostrophtext(Text, i)) return false;
    } else if (c == u'[') {
      if (!Eingefasst(Text, i, u']', Zeichenkette::Art::Klammerwort)) return false;
    } else if (c == u'#') {
      if (!Eingefasst(Text, i, u'#', Zeichenkette::Art::Datum)) return false;
    } else if (c == u';') {
      Beendet_ = true;
      ++i;
    } else if (c.isDigit()) {
      if (!Ziffern(Text, i)) return false;
    } else if (im_Wort(c)) {
      const qsizetype anfang = i;
      while (i < Text.size() && im_Wort(Text[i])) ++i;
      if (!ablegen(Zeichenkette::Art::Wort, Text.mid(anfang, i - anfang))) return false;
    } else if (!Operator(Text, i)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool Zeichenkette::ist(const char *Wort_oder_Zeichen) const {
  return (Art == Art::Wort || Art == Art::Zeichen) &&
         Text.compare(QLatin1String(Wort_oder_Zeichen), Qt::CaseInsensitive) == 0;
}

std::optional<std::vector<Zeichenkette>> Zerlegen(const Anweisung &Sql) {
  if (!Sql.Gueltig()) return std::nullopt;
  std::vector<Zeichenkette> ketten;
  Zerleger zerleger(ketten);
  const auto &stuecke = Sql.Stuecke();
  for (std::size_t i = 0; i < stuecke.size(); ++i) {
    const bool gelesen = stuecke[i].Art == Anweisung::Stueck::Art::Literal
                             ? zerleger.Literal(stuecke[i].Text)
                             : zerleger.Wert(stuecke[i], static_cast<int>(i));
    if (!gelesen) return std::nullopt;
  }
  return ketten;
}

QString Datum_normieren(const QString &Text) {
  const qsizetype blank = Text.trimmed().indexOf(u' ');
  const QString tag = blank < 0 ? Text.trimmed() : Text.trimmed().left(blank);
  const QStringList teile = tag.split(u'/');
  if (teile.size() != 3) return Datumstext_lesen(Text);
  // American order, as between "#" signs.
  const QDate datum(teile[2].toInt(), teile[0].toInt(), teile[1].toInt());
  if (!datum.isValid()) return {};
  const QString zeit = blank < 0 ? QString() : Text.trimmed().mid(blank);
  return Datumstext_lesen(datum.toString(Qt::ISODate) + zeit);
}

}  // namespace marklink::db
