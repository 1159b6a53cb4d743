// A batch of T-SQL cut into its statements, and these into tokens.
#include "Zerteilung.h"

namespace marklink::tds {

namespace {

bool im_Wort(QChar c) { return c.isLetterOrNumber() || c == u'_' || c == u'@' || c == u'#' || c == u'$'; }

/// The inside of a quoted token, doubled ends made single; false when it has no end.
bool Eingefasst(const QString &T, qsizetype &i, QChar Ende, QString &Inhalt) {
  for (++i; i < T.size(); ++i) {
    if (T[i] == Ende) {
      if (i + 1 >= T.size() || T[i + 1] != Ende) {
        ++i;
        return true;
      }
      ++i;
    }
    Inhalt += T[i];
  }
  return false;
}

qsizetype Luecke_ueberspringen(const QString &T, qsizetype i) {
  while (i < T.size()) {
    if (T[i].isSpace()) {
      ++i;
    } else if (T.mid(i, 2) == u"--") {
      i = T.indexOf(u'\n', i) < 0 ? T.size() : T.indexOf(u'\n', i);
    } else if (T.mid(i, 2) == u"/*") {
      i = T.indexOf(QStringLiteral("*/"), i) < 0 ? T.size() : T.indexOf(QStringLiteral("*/"), i) + 2;
    } else {
      break;
    }
  }
  return i;
}

bool Marke_lesen(const QString &T, qsizetype &i, Satz &Aus) {
  const QChar c = T[i];
  QString inhalt;
  if ((c == u'N' || c == u'n') && i + 1 < T.size() && T[i + 1] == u'\'') ++i;
  if (T[i] == u'\'') {
    if (!Eingefasst(T, i, u'\'', inhalt)) return false;
    Aus.push_back({Marke::Art::Text, inhalt});
  } else if (c == u'[' || c == u'"') {
    if (!Eingefasst(T, i, c == u'[' ? u']' : u'"', inhalt)) return false;
    Aus.push_back({Marke::Art::Name, inhalt});
  } else if (c.isDigit() || (c == u'.' && i + 1 < T.size() && T[i + 1].isDigit())) {
    const bool binaer = T.mid(i, 2).compare(u"0x", Qt::CaseInsensitive) == 0;
    const auto gehoert_dazu = [&] {
      const bool exponent =
          !binaer && (T[i] == u'-' || T[i] == u'+') && inhalt.endsWith(u'e', Qt::CaseInsensitive);
      return T[i].isLetterOrNumber() || T[i] == u'.' || exponent;
    };
    while (i < T.size() && gehoert_dazu()) inhalt += T[i++];
    Aus.push_back({binaer ? Marke::Art::Binaer : Marke::Art::Zahl, binaer ? inhalt.mid(2) : inhalt});
  } else if (im_Wort(c)) {
    while (i < T.size() && im_Wort(T[i])) inhalt += T[i++];
    Aus.push_back({c == u'@' ? Marke::Art::Variable : Marke::Art::Wort, inhalt});
  } else {
    const bool paar =
        i + 1 < T.size() && QStringLiteral("<>!=").contains(c) && QStringLiteral("=>").contains(T[i + 1]);
    Aus.push_back({Marke::Art::Zeichen, T.mid(i, paar ? 2 : 1)});
    i += paar ? 2 : 1;
  }
  return true;
}

bool enthaelt(const Satz &S, std::initializer_list<const char *> Worte) {
  for (const Marke &m : S) {
    for (const char *wort : Worte) {
      if (m.ist(wort)) return true;
    }
  }
  return false;
}

/// Whether a word outside parentheses begins a statement although no ";" stands before it.
bool Beginnt(const Marke &M, const Marke *Danach, const Satz &Bisher) {
  const Marke &erste = Bisher.front();
  const Marke &letzte = Bisher.back();
  if (M.ist("SELECT")) {
    const bool angehaengt =
        letzte.ist("UNION") || letzte.ist("ALL") || letzte.ist("EXCEPT") || letzte.ist("INTERSECT");
    return !angehaengt && !(erste.ist("INSERT") && !enthaelt(Bisher, {"VALUES", "SELECT"}));
  }
  if (M.ist("SET")) return !(erste.ist("UPDATE") && !enthaelt(Bisher, {"SET"}));
  if (M.ist("BEGIN")) return Danach && (Danach->ist("TRAN") || Danach->ist("TRANSACTION"));
  for (const char *wort :
       {"INSERT", "UPDATE", "DELETE", "COMMIT", "ROLLBACK", "USE", "CREATE", "DROP", "ALTER"}) {
    if (M.ist(wort)) return true;
  }
  return false;
}

}  // namespace

bool Marke::ist(const char *Wort_oder_Zeichen) const {
  return (A == Art::Wort || A == Art::Zeichen || A == Art::Variable) &&
         Inhalt.compare(QLatin1String(Wort_oder_Zeichen), Qt::CaseInsensitive) == 0;
}

std::optional<std::vector<Satz>> Zerteilen(const QString &Stapel) {
  Satz marken;
  for (qsizetype i = Luecke_ueberspringen(Stapel, 0); i < Stapel.size();
       i = Luecke_ueberspringen(Stapel, i)) {
    if (!Marke_lesen(Stapel, i, marken)) return std::nullopt;
  }
  std::vector<Satz> saetze(1);
  int tiefe = 0;
  for (std::size_t i = 0; i < marken.size(); ++i) {
    const Marke &m = marken[i];
    const Marke *danach = i + 1 < marken.size() ? &marken[i + 1] : nullptr;
    if (m.ist("(")) ++tiefe;
    if (m.ist(")")) --tiefe;
    const bool neu =
        tiefe == 0 && !saetze.back().empty() && (m.ist(";") || Beginnt(m, danach, saetze.back()));
    if (neu) saetze.emplace_back();
    if (!m.ist(";")) saetze.back().push_back(m);
  }
  if (saetze.back().empty()) saetze.pop_back();
  return saetze;
}

std::size_t Klammerende(const Satz &S, std::size_t Auf) {
  int tiefe = 0;
  for (std::size_t i = Auf; i < S.size(); ++i) {
    if (S[i].ist("(")) ++tiefe;
    if (S[i].ist(")") && --tiefe == 0) return i;
  }
  return S.size();
}

std::vector<Satz> Liste_teilen(const Satz &Marken, std::size_t Von, std::size_t Bis) {
  std::vector<Satz> teile(1);
  int tiefe = 0;
  for (std::size_t i = Von; i < Bis; ++i) {
    if (Marken[i].ist("(")) ++tiefe;
    if (Marken[i].ist(")")) --tiefe;
    if (tiefe == 0 && Marken[i].ist(",")) {
      teile.emplace_back();
    } else {
      teile.back().push_back(Marken[i]);
    }
  }
  return teile;
}

}  // namespace marklink::tds
