// Joining statements from literals and values, and refusing what a value must not hold.
#include "Anweisung.h"

#include <QLocale>
#include <cmath>

namespace marklink::db {

namespace {

/// Open quotes, brackets and date signs closed again, and nothing outside them that ends or hides a
/// statement.
bool Teiltext_zulaessig(const QString &Text) {
  QChar ende;
  for (qsizetype i = 0; i < Text.size(); ++i) {
    const QChar c = Text[i];
    if (c.isNull()) return false;
    if (!ende.isNull()) {
      if (c == ende) ende = QChar();
      continue;
    }
    const QChar naechstes = i + 1 < Text.size() ? Text[i + 1] : QChar();
    if (c == u'\'' || c == u'#') ende = c;
    if (c == u'[') ende = u']';
    if (c == u';' || c == u'"' || (c == u'-' && naechstes == u'-') || (c == u'/' && naechstes == u'*'))
      return false;
  }
  return ende.isNull();
}

bool Bezeichner_zulaessig(QStringView Teil) {
  if (Teil.size() > 2 && Teil.front() == u'[' && Teil.back() == u']') {
    Teil = Teil.mid(1, Teil.size() - 2);
  }
  if (Teil.isEmpty()) return false;
  for (const QChar c : Teil) {
    if (!c.isLetterOrNumber() && c != u'_') return false;
  }
  return true;
}

bool Name_zulaessig(const QString &Text) {
  const QStringView text(Text);
  const qsizetype punkt = text.indexOf(u'.');
  if (punkt < 0) return Bezeichner_zulaessig(text);
  return Bezeichner_zulaessig(text.left(punkt)) && Bezeichner_zulaessig(text.mid(punkt + 1));
}

constexpr char16_t Marke_Text = u'\x01';
constexpr char16_t Marke_Zahl = u'\x02';

}  // namespace

Zahl::Zahl(double Wert_) {
  const double betrag = std::fabs(Wert_);
  const bool gewoehnlich = betrag == 0.0 || (betrag >= 1e-6 && betrag < 1e15);
  Text = QString::number(Wert_, gewoehnlich ? 'f' : 'g', QLocale::FloatingPointShortest);
}

void Anweisung::ungueltig(const QString &Grund) {
  if (Fehler_.isEmpty()) Fehler_ = Grund;
}

void Anweisung::anfuegen_Text(const QString &Literal) {
  if (!Stuecke_.empty() && Stuecke_.back().Art == Stueck::Art::Literal) {
    Stuecke_.back().Text += Literal;
  } else {
    Stuecke_.push_back({Stueck::Art::Literal, Literal});
  }
}

void Anweisung::anfuegen(const char *Literal) { anfuegen_Text(QString::fromUtf8(Literal)); }

void Anweisung::anfuegen(const Wert &W) {
  if (W.Text.contains(u'\'')) ungueltig(QStringLiteral("a value holds an apostrophe"));
  if (W.Text.contains(QChar(u'\0'))) ungueltig(QStringLiteral("a value holds a NUL character"));
  Stuecke_.push_back({Stueck::Art::Textwert, W.Text});
}

void Anweisung::anfuegen(const Zahl &Z) {
  bool lesbar = false;
  const double wert = Z.Text.toDouble(&lesbar);
  if (!lesbar || !std::isfinite(wert)) ungueltig(QStringLiteral("a number value is no number"));
  Stuecke_.push_back({Stueck::Art::Zahlwert, Z.Text});
}

void Anweisung::anfuegen(const Werteliste &Liste) {
  if (Liste.Texte.isEmpty()) ungueltig(QStringLiteral("a list of values is empty"));
  for (qsizetype i = 0; i < Liste.Texte.size(); ++i) {
    if (i > 0) anfuegen(",");
    anfuegen(Wert{Liste.Texte[i]});
  }
}

void Anweisung::anfuegen(const Name &N) {
  if (!Name_zulaessig(N.Text)) ungueltig(QStringLiteral("a name is no table or column name"));
  anfuegen_Text(N.Text);
}

void Anweisung::anfuegen(const Teiltext &T) {
  if (!Teiltext_zulaessig(T.Text)) ungueltig(QStringLiteral("a part is not made of whole tokens"));
  anfuegen_Text(T.Text);
}

void Anweisung::anfuegen(const Anweisung &A) {
  if (!A.Gueltig()) ungueltig(A.Fehler_);
  for (const Stueck &s : A.Stuecke_) {
    if (s.Art == Stueck::Art::Literal) {
      anfuegen_Text(s.Text);
    } else {
      Stuecke_.push_back(s);
    }
  }
}

QString Anweisung::Text() const {
  QString text;
  for (const Stueck &s : Stuecke_) {
    if (s.Art == Stueck::Art::Textwert) {
      text += u'\'' + s.Text + u'\'';
    } else {
      text += s.Text;
    }
  }
  return text;
}

QString Anweisung::Schluessel() const {
  QString text;
  for (const Stueck &s : Stuecke_) {
    switch (s.Art) {
      case Stueck::Art::Literal:
        text += s.Text;
        break;
      case Stueck::Art::Textwert:
        text += QChar(Marke_Text);
        break;
      case Stueck::Art::Zahlwert:
        text += QChar(Marke_Zahl);
        break;
    }
  }
  return text;
}

}  // namespace marklink::db
