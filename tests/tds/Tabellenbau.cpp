// CREATE TABLE, ALTER TABLE ADD, CREATE INDEX and DROP in the engine's words.
#include <QStringList>

#include "Plan.h"

namespace marklink::tds {

namespace {

bool bei(const Satz &S, std::size_t i, const char *Wort) { return i < S.size() && S[i].ist(Wort); }

QString Namensliste(const Satz &S, std::size_t Auf) {
  QStringList namen;
  for (const Satz &teil : Liste_teilen(S, Auf + 1, Klammerende(S, Auf))) {
    if (!teil.empty()) namen.append(Geklammert(teil[0].Inhalt));
  }
  return namen.join(u',');
}

/// What a column of that type refuses, by the number of the server's error.
QString Pruefung(const QString &Spalte, const Typ &T) {
  const auto pruefung = [](int Nummer, const QString &Bedingung) {
    return QStringLiteral(" CONSTRAINT [%1] CHECK (%2)").arg(Nummer).arg(Bedingung);
  };
  const QString laenge = pruefung(8152, QStringLiteral("length(%1) <= %2").arg(Spalte).arg(T.Laenge));
  const QString zahl = pruefung(8114, QStringLiteral("typeof(%1) IN ('integer','real','null')").arg(Spalte));
  const auto bis = [&](qint64 Grenze) {
    return zahl +
           pruefung(8115, QStringLiteral("%1 BETWEEN %2 AND %3").arg(Spalte).arg(-Grenze - 1).arg(Grenze));
  };
  if (T.F == Form::Text || T.F == Form::Binaer) return T.Laenge ? laenge : QString();
  if (T.F == Form::Datum)
    return pruefung(241, QStringLiteral("%1 IS NULL OR date(%1) IS NOT NULL").arg(Spalte));
  if (T.F == Form::Ganz16) return bis(32767);
  return T.F == Form::Ganz32 ? bis(2147483647) : zahl;
}

/// name type[(n)] [IDENTITY[(1,1)]] [NOT NULL] [PRIMARY KEY] [DEFAULT x]; what else may stand there is passed
/// over.
QString Spalte_uebersetzen(const Satz &S, QString &Nummernspalte) {
  if (S.size() < 2) return {};
  const QString name = Geklammert(S[0].Inhalt);
  QString typ = S[1].Inhalt.toLower();
  const bool mit_Laenge = bei(S, 2, "(");
  if (mit_Laenge) {
    for (std::size_t i = 2; i <= Klammerende(S, 2) && i < S.size(); ++i) typ += S[i].Inhalt.toLower();
  }
  const Typ t = Typ_aus_Deklaration(typ);
  QString aus = name + QStringLiteral(" \"") + typ + u'"';
  for (std::size_t i = mit_Laenge ? Klammerende(S, 2) + 1 : 2; i < S.size(); ++i) {
    if (S[i].ist("IDENTITY")) {
      Nummernspalte = name;
      return name + QStringLiteral(" INTEGER PRIMARY KEY AUTOINCREMENT");
    }
    if (S[i].ist("PRIMARY")) aus += QStringLiteral(" NOT NULL PRIMARY KEY");
    if (S[i].ist("UNIQUE")) aus += QStringLiteral(" UNIQUE");
    if (S[i].ist("NOT")) aus += QStringLiteral(" NOT NULL");
    if (!S[i].ist("DEFAULT") || i + 1 >= S.size()) continue;
    aus += QStringLiteral(" DEFAULT ");
    for (const std::size_t ende = S[i + 1].ist("(") ? Klammerende(S, i + 1) : i + 1;
         i < ende && i + 1 < S.size();) {
      const Marke &m = S[++i];
      aus += m.A == Marke::Art::Text ? u'\'' + QString(m.Inhalt).replace(u'\'', QStringLiteral("''")) + u'\''
                                     : m.Inhalt;
    }
  }
  if (t.F == Form::Text) aus += QStringLiteral(" COLLATE NOCASE");
  return aus + Pruefung(name, t);
}

/// [CONSTRAINT x] PRIMARY KEY|UNIQUE [CLUSTERED] (a, b)
QString Schluessel_uebersetzen(const Satz &S, const QString &Nummernspalte) {
  std::size_t i = S[0].ist("CONSTRAINT") ? 2 : 0;
  const bool haupt = bei(S, i, "PRIMARY");
  while (i < S.size() && !S[i].ist("(")) ++i;
  const QString spalten = Namensliste(S, i);
  if (haupt && spalten == Nummernspalte) return {};  // stands in the column already
  return (haupt ? QStringLiteral("PRIMARY KEY (") : QStringLiteral("UNIQUE (")) + spalten + u')';
}

QString Tabelle_anlegen(const Satz &S) {
  std::size_t i = 2;
  const QString name = Geklammert(Tabellenname(S, i));
  if (!bei(S, i, "(")) return {};
  QStringList teile;
  QString nummernspalte;
  for (const Satz &teil : Liste_teilen(S, i + 1, Klammerende(S, i))) {
    if (teil.empty()) continue;
    const bool schluessel = teil[0].ist("CONSTRAINT") || teil[0].ist("PRIMARY") || teil[0].ist("UNIQUE");
    const QString text =
        schluessel ? Schluessel_uebersetzen(teil, nummernspalte) : Spalte_uebersetzen(teil, nummernspalte);
    if (!text.isEmpty()) teile.append(text);
  }
  return QStringLiteral("CREATE TABLE ") + name + QStringLiteral(" (") + teile.join(u',') + u')';
}

/// CREATE [UNIQUE] [CLUSTERED] INDEX x ON T (a, b)
QString Index_anlegen(const Satz &S) {
  std::size_t i = 1;
  while (i < S.size() && !S[i].ist("INDEX")) ++i;
  std::size_t tabelle = i + 3;
  const QString name = Tabellenname(S, tabelle);
  if (!bei(S, i + 2, "ON") || !bei(S, tabelle, "(")) return {};
  return (S[1].ist("UNIQUE") ? QStringLiteral("CREATE UNIQUE INDEX ") : QStringLiteral("CREATE INDEX ")) +
         Geklammert(S[i + 1].Inhalt) + QStringLiteral(" ON ") + Geklammert(name) + QStringLiteral(" (") +
         Namensliste(S, tabelle) + u')';
}

}  // namespace

QString Tabellenbau_uebersetzen(const Satz &S) {
  std::size_t i = 2;
  if (S.size() < 3) return {};
  if (S[0].ist("CREATE")) return S[1].ist("TABLE") ? Tabelle_anlegen(S) : Index_anlegen(S);
  if (!S[1].ist("TABLE") && !S[1].ist("INDEX")) return {};
  if (S[0].ist("DROP")) {
    return QStringLiteral("DROP ") + S[1].Inhalt + u' ' + Geklammert(Tabellenname(S, i));
  }
  const QString name = Geklammert(Tabellenname(S, i));
  if (!bei(S, i, "ADD")) return {};
  QString nummernspalte;
  return QStringLiteral("ALTER TABLE ") + name + QStringLiteral(" ADD COLUMN ") +
         Spalte_uebersetzen(Satz(S.begin() + static_cast<std::ptrdiff_t>(i) + 1, S.end()), nummernspalte);
}

}  // namespace marklink::tds
