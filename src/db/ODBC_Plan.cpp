// From dialect text to the server's: values apart, the key fetched besides. And from the driver's columns,
// which name no table, to fields that know theirs.
#include "ODBC_Plan.h"

#include <algorithm>

#include "ODBC_Typen.h"

namespace marklink::db {

namespace {

constexpr qsizetype Vorrat_hoechstens = 512;
constexpr qsizetype Vorratstext_hoechstens = 10000;  ///< characters of a statement that is kept
constexpr std::size_t Werte_hoechstens = 1000;       ///< parameters; the server takes 2100

bool gleich(const QString &A, const QString &B) { return A.compare(B, Qt::CaseInsensitive) == 0; }

/// The text with a mark for each value. A number behind TOP stays in it, since the server takes no parameter
/// there; all values do where there are more than it takes. No text among them holds an apostrophe.
QString Text_bilden(const Anweisung &Sql, std::vector<int> &Werte) {
  using Art = enum Anweisung::Stueck::Art;
  QString text;
  const auto &stuecke = Sql.Stuecke();
  const bool zu_viele = stuecke.size() > 2 * Werte_hoechstens;
  for (std::size_t i = 0; i < stuecke.size(); ++i) {
    const auto &stueck = stuecke[i];
    const bool hinter_TOP = stueck.Art == Art::Zahlwert &&
                            QStringView(text).trimmed().endsWith(QLatin1String(" TOP"), Qt::CaseInsensitive);
    if (stueck.Art == Art::Literal || hinter_TOP || (zu_viele && stueck.Art == Art::Zahlwert)) {
      text += stueck.Text;
    } else if (zu_viele) {
      text += QStringLiteral("N'") + stueck.Text + u'\'';
    } else {
      text += u'?';
      Werte.push_back(static_cast<int>(i));
    }
  }
  return text;
}

/// Where the FROM of a statement with a plain select list stands, outside brackets and quotes; -1 for none.
qsizetype From_finden(const QString &Text) {
  QChar ende;
  for (qsizetype i = 0; i < Text.size(); ++i) {
    const QChar c = Text[i];
    if (!ende.isNull()) {
      if (c == ende) ende = QChar();
      continue;
    }
    if (c == u'\'') ende = c;
    if (c == u'[') ende = u']';
    const bool Anfang = i > 0 && !Text[i - 1].isLetterOrNumber() && Text[i - 1] != u'_';
    const bool Ende = i + 4 < Text.size() && !Text[i + 4].isLetterOrNumber() && Text[i + 4] != u'_';
    if (Anfang && Ende && gleich(Text.mid(i, 4), QStringLiteral("FROM"))) return i;
  }
  return -1;
}

/// The key columns that a SELECT on one table leaves out: without them its rows could not be changed.
void Schluessel_anfuegen(Odbc_Plan &P) {
  if (P.Form.Einzeltabelle.isEmpty() || P.Form.Alle_Spalten || P.Tabellen.size() != 1) return;
  for (const QString &spalte : P.Tabellen[0]->Schluessel) {
    const bool da = std::any_of(P.Form.Auswahl.begin(), P.Form.Auswahl.end(),
                                [&](const Gestalt::Glied &g) { return g.Stern || gleich(g.Spalte, spalte); });
    if (!da) P.Verborgene.append(spalte);
  }
  const qsizetype from = P.Verborgene.isEmpty() ? -1 : From_finden(P.Sql);
  if (from < 0) {
    P.Verborgene.clear();
    return;
  }
  QString liste;
  for (const QString &spalte : std::as_const(P.Verborgene)) liste += QStringLiteral(", [") + spalte + u']';
  P.Sql.insert(from, liste + u' ');
}

/// Table and column of each column of the result, as the statement's text tells; a table of -1 for none.
std::vector<std::pair<int, QString>> Urspruenge(const Odbc_Plan &P) {
  std::vector<std::pair<int, QString>> alle;
  const auto &tabellen = P.Form.Tabellen;
  for (const Gestalt::Glied &glied : P.Form.Auswahl) {
    int gefunden = -1;
    for (std::size_t t = 0; t < P.Tabellen.size(); ++t) {
      const bool gemeint = glied.Quelle.isEmpty() || gleich(glied.Quelle, tabellen[t].Zweitname);
      if (!gemeint) continue;
      if (glied.Stern) {
        for (const auto &spalte : P.Tabellen[t]->Spalten) alle.emplace_back(static_cast<int>(t), spalte.Name);
      } else if (gefunden < 0 && P.Tabellen[t]->finden(glied.Spalte)) {
        gefunden = static_cast<int>(t);
      }
    }
    if (!glied.Stern) alle.emplace_back(gefunden, glied.Spalte);
  }
  for (const QString &spalte : P.Verborgene) alle.emplace_back(0, spalte);
  return alle;
}

Feld Feld_lesen(SQLHSTMT Stmt, int Nummer, QString &Merkmal) {
  SQLWCHAR name[256] = {};
  SQLSMALLINT laenge = 0, typ = 0, stellen = 0, nullbar = 0;
  SQLULEN groesse = 0;
  SQLDescribeColW(Stmt, static_cast<SQLUSMALLINT>(Nummer + 1), name, 256, &laenge, &typ, &groesse, &stellen,
                  &nullbar);
  Feld feld;
  feld.Name = QString::fromUtf16(reinterpret_cast<const char16_t *>(name));
  feld.Art = Feldart_aus_Odbc(typ, feld.Bits);
  Merkmal += feld.Name + u':' + QString::number(typ) + u';';
  return feld;
}

void Tabellen_zuordnen(Spaltensatz &Satz, const Odbc_Plan &P,
                       const std::vector<std::pair<int, QString>> &Herkunft) {
  for (const Gestalt::Herkunft &tabelle : P.Form.Tabellen) Satz.Tabellen.push_back({tabelle.Name, {}, {}});
  for (std::size_t i = 0; i < Satz.Felder.size(); ++i) {
    Feld &feld = Satz.Felder[i];
    feld.Tabelle = Herkunft[i].first;
    if (feld.Tabelle < 0) continue;
    const Feld *spalte = P.Tabellen[static_cast<std::size_t>(feld.Tabelle)]->finden(Herkunft[i].second);
    const Feld gelesen = std::exchange(feld, *spalte);
    feld.Name = gelesen.Name;
    feld.Art = gelesen.Art;
    feld.Bits = gelesen.Bits;
    feld.Tabelle = gelesen.Tabelle;
  }
  for (std::size_t t = 0; t < Satz.Tabellen.size(); ++t) Odbc_Schluessel_zuordnen(Satz, t, *P.Tabellen[t]);
}

}  // namespace

std::shared_ptr<Odbc_Plan> Odbc_Plaene::Planen(Odbc_Griffe &Griffe, const Anweisung &Sql,
                                               Odbc_Meldung &Meldung) {
  auto neu = std::make_shared<Odbc_Plan>();
  neu->Sql = Text_bilden(Sql, neu->Werte);
  const QString schluessel = neu->Sql;
  if (const auto da = Plaene_.value(schluessel)) return da;
  Meldung.Text = QStringLiteral("not one statement of this dialect");
  const auto ketten = Zerlegen(Sql);
  if (!ketten || ketten->empty()) return nullptr;
  const bool Datum = std::any_of(ketten->begin(), ketten->end(),
                                 [](const Zeichenkette &k) { return k.Art == Zeichenkette::Art::Datum; });
  if (Datum) return nullptr;  // the other dialect's
  neu->Liest = ketten->front().ist("SELECT");
  neu->Form = Gestalt_lesen(*ketten);
  for (const Gestalt::Herkunft &tabelle : neu->Form.Tabellen) {
    neu->Tabellen.push_back(Katalog_->Tabelle(Griffe, tabelle.Name, Meldung));
    if (!neu->Tabellen.back()) return nullptr;
  }
  Schluessel_anfuegen(*neu);
  if (Plaene_.size() >= Vorrat_hoechstens) Plaene_.clear();
  const bool bekannt =
      std::all_of(neu->Tabellen.begin(), neu->Tabellen.end(), [](const auto &t) { return t->Vollstaendig; });
  if (bekannt && schluessel.size() <= Vorratstext_hoechstens) Plaene_.insert(schluessel, neu);
  return neu;
}

std::shared_ptr<const Spaltensatz> Odbc_Plaene::Beschreiben(SQLHSTMT Stmt, Odbc_Plan &P, bool &Passt) {
  SQLSMALLINT anzahl = 0;
  Passt = true;
  if (!SQL_SUCCEEDED(SQLNumResultCols(Stmt, &anzahl)) || anzahl <= 0) return nullptr;
  auto satz = std::make_shared<Spaltensatz>();
  QString merkmal;
  for (int i = 0; i < anzahl; ++i) satz->Felder.push_back(Feld_lesen(Stmt, i, merkmal));
  if (P.Spalten && merkmal == P.Merkmal) return P.Spalten;
  const auto herkunft = Urspruenge(P);
  const bool bekannt =
      !P.Tabellen.empty() && std::none_of(P.Tabellen.begin(), P.Tabellen.end(),
                                          [](const auto &tabelle) { return tabelle->Spalten.empty(); });
  Passt = !bekannt || herkunft.size() == satz->Felder.size();
  if (bekannt && Passt) {
    Tabellen_zuordnen(*satz, P, herkunft);
    if (!P.Verborgene.isEmpty()) satz->Sichtbare = static_cast<int>(anzahl - P.Verborgene.size());
    if (P.Form.Alle_Spalten && !satz->Tabellen[0].Schluessel.empty()) {
      satz->Zeilennummer = anzahl;
      satz->Nummer_aus_Schluessel = true;
    }
    if (P.Form.Ganze_Tabelle) satz->Ganze_Tabelle = P.Form.Einzeltabelle;
  }
  satz->Namen_ordnen();
  P.Spalten = satz;
  P.Merkmal = merkmal;
  return satz;
}

void Odbc_Plaene::vergessen() {
  Plaene_.clear();
  Katalog_->vergessen();
}

}  // namespace marklink::db
