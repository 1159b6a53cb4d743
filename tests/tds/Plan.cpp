// What a statement means for the engine behind the server.
#include "Plan.h"

#include "db/Dialekt.h"

namespace marklink::tds {

namespace {

const Marke Punkt{Marke::Art::Zeichen, QStringLiteral(".")};

bool bei(const Satz &S, std::size_t i, const char *Wort) { return i < S.size() && S[i].ist(Wort); }

bool ist_Besitzer(const Marke &M) {
  return M.ist_Name() && M.Inhalt.compare(QStringLiteral("dbo"), Qt::CaseInsensitive) == 0;
}

Satz ohne(const Satz &S, std::size_t Von, std::size_t Bis) {
  Satz rest(S.begin(), S.begin() + static_cast<std::ptrdiff_t>(Von));
  rest.insert(rest.end(), S.begin() + static_cast<std::ptrdiff_t>(Bis), S.end());
  return rest;
}

/// catalogue.dbo.T, catalogue..T and dbo.T are T.
Satz Besitzer_streichen(Satz S) {
  for (std::size_t i = 0; i + 1 < S.size();) {
    const bool mit_Katalog = S[i].ist_Name() && bei(S, i + 1, ".") && i + 3 < S.size() &&
                             (S[i + 2].ist(".") || (ist_Besitzer(S[i + 2]) && bei(S, i + 3, ".")));
    if (mit_Katalog) {
      S = ohne(S, i, S[i + 2].ist(".") ? i + 3 : i + 4);
    } else if (ist_Besitzer(S[i]) && bei(S, i + 1, ".")) {
      S = ohne(S, i, i + 2);
    } else {
      ++i;
    }
  }
  return S;
}

/// CONVERT(typ, x, ...) at `i` as a call of a function that Maschine brings; of a text it stays.
Satz Wandlung_umschreiben(Satz S, std::size_t i) {
  const auto teile = Liste_teilen(S, i + 2, Klammerende(S, i + 1));
  if (teile.size() < 2 || teile[0].empty() || teile[1].empty() || teile[1][0].A == Marke::Art::Text) return S;
  QString typ;
  for (const Marke &m : teile[0]) typ += m.Inhalt.toLower();
  Satz neu(S.begin(), S.begin() + static_cast<std::ptrdiff_t>(i));
  neu.push_back({Marke::Art::Wort, QStringLiteral("marklink_wandlung")});
  neu.push_back(S[i + 1]);
  neu.push_back({Marke::Art::Text, typ});
  neu.push_back({Marke::Art::Zeichen, QStringLiteral(",")});
  neu.insert(neu.end(), teile[1].begin(), teile[1].end());
  neu.insert(neu.end(), S.begin() + static_cast<std::ptrdiff_t>(Klammerende(S, i + 1)), S.end());
  return neu;
}

/// TOP (n) is TOP n; WITH (...) behind a table is a hint.
Satz Eigenheiten_ersetzen(Satz S) {
  for (std::size_t i = 0; i < S.size(); ++i) {
    if (S[i].ist("(") && bei(S, i + 1, "max") && bei(S, i + 2, ")")) {
      S = ohne(S, i, i + 3);
    } else if (S[i].ist("AS") && (bei(S, i + 1, "datetime") || bei(S, i + 1, "datetime2"))) {
      S[i + 1].Inhalt = QStringLiteral("text");
    } else if (S[i].ist("TOP") && bei(S, i + 1, "(") && bei(S, i + 3, ")")) {
      S = ohne(ohne(S, i + 3, i + 4), i + 1, i + 2);
    } else if (S[i].ist("WITH") && bei(S, i + 1, "(")) {
      S = ohne(S, i, Klammerende(S, i + 1) + 1);
    } else if (S[i].ist("CONVERT") && bei(S, i + 1, "(")) {
      S = Wandlung_umschreiben(S, i);
    } else if (S[i].ist("LEN") && bei(S, i + 1, "(")) {
      S[i].Inhalt = QStringLiteral("length");
    } else if (S[i].ist("SCOPE_IDENTITY") && bei(S, i + 1, "(")) {
      S = ohne(S, i + 1, Klammerende(S, i + 1) + 1);
      S[i] = {Marke::Art::Variable, QStringLiteral("@@IDENTITY")};
    }
  }
  return S;
}

/// UPDATE TOP n T ... WHERE c: the engine has no such thing, but rows have numbers.
Satz Top_umstellen(const Satz &S) {
  if (S.size() < 4 || !S[1].ist("TOP") || !(S[0].ist("UPDATE") || S[0].ist("DELETE"))) return S;
  Satz rest = ohne(S, 1, 3);
  const std::size_t name = rest[1].ist("FROM") ? 2 : 1;
  std::size_t wo = name;
  while (wo < rest.size() && !rest[wo].ist("WHERE")) ++wo;
  const auto unterabfrage = Zerteilen(QStringLiteral("WHERE rowid IN ( SELECT TOP %1 rowid FROM %2 ")
                                          .arg(S[2].Inhalt, Geklammert(rest[name].Inhalt)));
  Satz neu(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(wo));
  neu.insert(neu.end(), unterabfrage->front().begin(), unterabfrage->front().end());
  neu.insert(neu.end(), rest.begin() + static_cast<std::ptrdiff_t>(wo), rest.end());
  neu.push_back({Marke::Art::Zeichen, QStringLiteral(")")});
  return neu;
}

/// Joins the tokens again, each variable a number value: its place in `Bindungen`.
db::Anweisung Anweisung_bilden(const Satz &S, std::vector<Bindung> &Bindungen) {
  db::Anweisung anweisung;
  QString stueck;
  for (const Marke &m : S) {
    if (m.A == Marke::Art::Variable || m.A == Marke::Art::Binaer) {
      const QByteArray bytes = QByteArray::fromHex(m.Inhalt.toLatin1());
      Bindungen.push_back(m.A == Marke::Art::Variable
                              ? Bindung{m.Inhalt.toLower()}
                              : Bindung{{}, Wert::aus_Bytes(Wert::Art::Binaer, bytes)});
      anweisung += db::Anweisung(db::Teiltext{stueck}, db::Zahl(static_cast<int>(Bindungen.size()) - 1));
      stueck = QStringLiteral(" ");
      continue;
    }
    const QString text = u'\'' + QString(m.Inhalt).replace(u'\'', QStringLiteral("''")) + u'\'';
    stueck += m.A == Marke::Art::Text ? text : m.A == Marke::Art::Name ? Geklammert(m.Inhalt) : m.Inhalt;
    stueck += u' ';
  }
  anweisung += db::Anweisung(db::Teiltext{stueck}, db::Teiltext{});
  return anweisung;
}

/// What the engine would understand and the server does not: reserved words as bare names, words of another
/// dialect. Empty when there is none.
QString Fremdes_Wort(const Satz &S) {
  static const QStringList fremde =
      QStringLiteral(
          "KEY INDEX USER FILE PLAN RULE PUBLIC PERCENT OPTION VIEW OPEN READ CURRENT FUNCTION SCHEMA "
          "PRECISION NATIONAL STATISTICS SAVE LOAD EXTERNAL PRINT TRIGGER DATABASE LIMIT OFFSET IFNULL "
          "SUBSTR LENGTH GLOB REGEXP")
          .split(u' ');
  for (std::size_t i = 0; i < S.size(); ++i) {
    if (S[i].A == Marke::Art::Wort && fremde.contains(S[i].Inhalt.toUpper())) return S[i].Inhalt;
    const bool ein_Wert =
        S[i].ist("ISNULL") && bei(S, i + 1, "(") && Liste_teilen(S, i + 2, Klammerende(S, i + 1)).size() != 2;
    if (ein_Wert || S[i].ist("|")) return S[i].Inhalt;
  }
  return {};
}

/// SELECT [column] ... INTERSECT: what is compared there as it is.
void Verglichene_merken(const Satz &S, Plan &P) {
  std::size_t tabelle = bei(S, 0, "DELETE") ? 2 : 1;
  if (!bei(S, 0, "UPDATE") && !bei(S, 0, "DELETE")) return;
  if (bei(S, 1, "TOP")) tabelle += Klammerende(S, 2);
  P.Tabelle = Tabellenname(S, tabelle);
  for (std::size_t i = 0; i + 2 < S.size(); ++i) {
    const bool schlicht = S[i].ist("SELECT") && (S[i + 2].ist("INTERSECT") || S[i + 2].ist("COLLATE"));
    if (schlicht) P.Verglichene.append(S[i + 1].Inhalt);
  }
}

bool Daten_planen(const Satz &S, Plan &P) {
  Verglichene_merken(S, P);
  std::vector<Bindung> variablen;
  const Satz umgestellt = Top_umstellen(Eigenheiten_ersetzen(Besitzer_streichen(S)));
  const auto uebersetzt =
      db::Fuer_SQLite_uebersetzen(Anweisung_bilden(umgestellt, variablen), db::Dialekt::SqlServer);
  if (!uebersetzt) return false;
  P.Text = uebersetzt->Sql;
  for (std::size_t i = 0; i < uebersetzt->Werte.size(); ++i) {
    const auto &wert = uebersetzt->Werte[i];
    const bool platzhalter = wert.Art == db::Anweisung::Stueck::Art::Zahlwert && uebersetzt->Herkunft[i] >= 0;
    if (platzhalter) {
      P.Bindungen.push_back(variablen[static_cast<std::size_t>(wert.Text.toInt())]);
    } else if (wert.Art == db::Anweisung::Stueck::Art::Zahlwert) {
      P.Bindungen.push_back({{}, Wert::aus(wert.Text.toLongLong())});
    } else {
      P.Bindungen.push_back({{}, Wert::aus(wert.Text)});
    }
  }
  return true;
}

Plan Einstellung_planen(const Satz &S) {
  Plan p{Plan::Art::Nichts};
  p.An = S.back().ist("ON");
  if (bei(S, 1, "NOCOUNT")) p.A = Plan::Art::Zaehlen;
  if (bei(S, 1, "IMPLICIT_TRANSACTIONS")) p.A = Plan::Art::Implizit;
  return p;
}

}  // namespace

QString Geklammert(const QString &Name) { return u'[' + Name + u']'; }

QString Tabellenname(const Satz &S, std::size_t &i) {
  while (i + 2 < S.size() && S[i + 1].ist(".")) i += S[i + 2].ist(".") ? 3 : 2;
  return i < S.size() ? S[i++].Inhalt : QString();
}

Plan Planen(const Satz &S) {
  const Marke &erste = S.front();
  const auto Befehl_von = [&erste] {
    if (erste.ist("SELECT")) return Befehl::Select;
    if (erste.ist("INSERT")) return Befehl::Insert;
    if (erste.ist("UPDATE")) return Befehl::Update;
    return erste.ist("DELETE") ? Befehl::Delete : Befehl::Ohne;
  };
  Plan p;
  if (erste.ist("SET")) return Einstellung_planen(S);
  if (erste.ist("USE") && S.size() == 2) return {Plan::Art::Katalog, Befehl::Ohne, false, S[1].Inhalt};
  if (erste.ist("BEGIN")) return {Plan::Art::Beginnen};
  if (erste.ist("COMMIT")) return {Plan::Art::Abschliessen};
  if (erste.ist("ROLLBACK")) return {Plan::Art::Zurueckrollen};
  p.B = Befehl_von();
  if (erste.ist("CREATE") || erste.ist("ALTER") || erste.ist("DROP")) {
    p.A = Plan::Art::Bau;
    p.Text = Tabellenbau_uebersetzen(S);
    if (!p.Text.isEmpty()) return p;
  } else if (const QString wort = Fremdes_Wort(S); !wort.isEmpty()) {
    return {Plan::Art::Unverstaendlich, Befehl::Ohne, false, wort};
  } else if (p.B != Befehl::Ohne && Daten_planen(S, p)) {
    p.A = Plan::Art::Daten;
    return p;
  }
  return {Plan::Art::Unverstaendlich, Befehl::Ohne, false, erste.Inhalt};
}

}  // namespace marklink::tds
