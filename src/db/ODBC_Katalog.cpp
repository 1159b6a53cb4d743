// Keys, columns and indexes through the catalogue functions.
#include "ODBC_Katalog.h"

#include <algorithm>

#include "ODBC_Typen.h"
#include "ODBC_Werte.h"

namespace marklink::db {

namespace {

bool gleich(const QString &A, const QString &B) { return A.compare(B, Qt::CaseInsensitive) == 0; }

QString Text_holen(SQLHSTMT Stmt, int Spalte) {
  Speicher lager;
  Zelle zelle;
  if (!Odbc_Zelle_holen(Stmt, Spalte - 1, Feldart::Text, lager, zelle)) return {};
  return zelle.ist_Null() ? QString() : QString::fromUtf8(zelle.Daten, static_cast<qsizetype>(zelle.Laenge));
}

/// Every row of what a catalogue function gave; false when it failed, perhaps in the middle.
template <typename Tat>
bool Jede_Zeile(SQLHSTMT Stmt, SQLRETURN Rc, Tat Tun) {
  while (SQL_SUCCEEDED(Rc) && SQL_SUCCEEDED(Rc = SQLFetch(Stmt))) Tun();
  return Rc == SQL_NO_DATA;
}

bool Spalten_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  QString schema;  // the statement's own table is that of one schema only: dbo, else the first
  const SQLRETURN rc = SQLColumnsW(Stmt, nullptr, 0, nullptr, 0, Odbc_Text(Name), SQL_NTS, nullptr, 0);
  return Jede_Zeile(Stmt, rc, [&] {
    const QString dieses = Text_holen(Stmt, 2);
    // "_" in the name stands for any character there.
    if (!gleich(Text_holen(Stmt, 3), Name)) return;
    if (!Ziel.Spalten.empty() && dieses != schema) {
      if (!gleich(dieses, QStringLiteral("dbo"))) return;
      Ziel.Spalten.clear();
    }
    schema = dieses;
    const Odbc_Spalte spalte{Text_holen(Stmt, 4),         Text_holen(Stmt, 5).toShort(),
                             Text_holen(Stmt, 6),         Text_holen(Stmt, 7).toInt(),
                             Text_holen(Stmt, 9).toInt(), Text_holen(Stmt, 13)};
    Ziel.Spalten.push_back(Feld_aus_Katalog(spalte));
    Ziel.Spalten.back().Tabelle = 0;
  });
}

bool Schluessel_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  std::vector<std::pair<int, QString>> teile;
  const SQLRETURN rc = SQLPrimaryKeysW(Stmt, nullptr, 0, nullptr, 0, Odbc_Text(Name), SQL_NTS);
  const bool gut = Jede_Zeile(Stmt, rc, [&] {
    const QString spalte = Text_holen(Stmt, 4);
    teile.emplace_back(Text_holen(Stmt, 5).toInt(), spalte);
  });
  std::sort(teile.begin(), teile.end());
  for (const auto &teil : teile) Ziel.Schluessel.append(teil.second);
  return gut;
}

bool Eindeutiges_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  const SQLRETURN rc = SQLSpecialColumnsW(Stmt, SQL_BEST_ROWID, nullptr, 0, nullptr, 0, Odbc_Text(Name),
                                          SQL_NTS, SQL_SCOPE_CURROW, SQL_NO_NULLS);
  return Jede_Zeile(Stmt, rc, [&] { Ziel.Schluessel.append(Text_holen(Stmt, 2)); });
}

bool Indizes_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  const SQLRETURN rc =
      SQLStatisticsW(Stmt, nullptr, 0, nullptr, 0, Odbc_Text(Name), SQL_NTS, SQL_INDEX_ALL, SQL_QUICK);
  const bool gut = Jede_Zeile(Stmt, rc, [&] {
    const int stelle = Text_holen(Stmt, 8).toInt();
    const QString spalte = Text_holen(Stmt, 9);
    if (stelle == 1 && !spalte.isEmpty()) Ziel.Indexanfaenge.append(spalte);
  });
  if (!Ziel.Schluessel.isEmpty()) Ziel.Indexanfaenge.append(Ziel.Schluessel.first());
  return gut;
}

}  // namespace

const Feld *Odbc_Tabelle::finden(const QString &Name) const {
  const auto da =
      std::find_if(Spalten.begin(), Spalten.end(), [&](const Feld &f) { return gleich(f.Name, Name); });
  return da == Spalten.end() ? nullptr : &*da;
}

std::shared_ptr<const Odbc_Tabelle> Odbc_Katalog::Tabelle(Odbc_Griffe &Griffe, const QString &Name,
                                                          Odbc_Meldung &Meldung) {
  const auto da = Tabellen_.constFind(Name.toLower());
  if (da != Tabellen_.constEnd()) return *da;
  auto neu = std::make_shared<Odbc_Tabelle>();
  bool ganz = true, weiter = true;
  const auto schritt = [&](auto Lesen) {
    if (!weiter || Lesen(Griffe.Anweisung(), Name, *neu)) return;
    ganz = false;
    const Odbc_Meldung meldung = Griffe.Meldung_von_Anweisung();
    weiter = !meldung.Verloren && !meldung.Zurueckgerollt && !Griffe.Tot();
    if (!weiter) Meldung = meldung;
  };
  schritt(Spalten_lesen);
  if (weiter && neu->Spalten.empty()) return neu;  // perhaps it comes
  schritt(Schluessel_lesen);
  if (neu->Schluessel.isEmpty()) schritt(Eindeutiges_lesen);
  // A key of which the table knows nothing is none.
  for (const QString &spalte : std::as_const(neu->Schluessel)) {
    if (!neu->finden(spalte)) {
      neu->Schluessel.clear();
      break;
    }
  }
  schritt(Indizes_lesen);
  if (!weiter) return nullptr;
  neu->Vollstaendig = ganz;
  if (ganz) Tabellen_.insert(Name.toLower(), neu);
  return neu;
}

void Odbc_Schluessel_zuordnen(Spaltensatz &Satz, std::size_t Nummer, const Odbc_Tabelle &Tabelle) {
  Basistabelle &basis = Satz.Tabellen[Nummer];
  basis.Nachschlagbar.assign(Satz.Felder.size(), false);
  std::vector<int> schluessel(static_cast<std::size_t>(Tabelle.Schluessel.size()), -1);
  for (std::size_t i = 0; i < Satz.Felder.size(); ++i) {
    Feld &feld = Satz.Felder[i];
    if (feld.Tabelle != static_cast<int>(Nummer)) continue;
    for (qsizetype k = 0; k < Tabelle.Schluessel.size(); ++k) {
      if (gleich(Tabelle.Schluessel[k], feld.Ursprung))
        schluessel[static_cast<std::size_t>(k)] = static_cast<int>(i);
    }
    basis.Nachschlagbar[i] = Tabelle.Indexanfaenge.contains(feld.Ursprung, Qt::CaseInsensitive);
  }
  if (std::find(schluessel.begin(), schluessel.end(), -1) == schluessel.end()) basis.Schluessel = schluessel;
}

std::shared_ptr<const Spaltensatz> Odbc_Tabelle_beschreiben(const Odbc_Tabelle &Tabelle,
                                                            const QString &Name) {
  if (Tabelle.Spalten.empty()) return nullptr;
  auto satz = std::make_shared<Spaltensatz>();
  satz->Felder = Tabelle.Spalten;
  const bool geklammert = Name.startsWith(u'[');
  satz->Tabellen.push_back({geklammert ? Name.mid(1).chopped(1) : Name, {}, {}});
  Odbc_Schluessel_zuordnen(*satz, 0, Tabelle);
  if (!satz->Tabellen[0].Schluessel.empty()) {
    satz->Zeilennummer = static_cast<int>(satz->Felder.size());
    satz->Nummer_aus_Schluessel = true;
  }
  satz->Ganze_Tabelle = Name;
  satz->Namen_ordnen();
  return satz;
}

}  // namespace marklink::db
