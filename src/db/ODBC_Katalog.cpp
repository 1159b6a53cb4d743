// Keys, columns and indexes through the catalogue functions.
#include "ODBC_Katalog.h"

#include <algorithm>

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

void Spalten_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  const SQLRETURN rc = SQLColumnsW(Stmt, nullptr, 0, nullptr, 0, Odbc_Text(Name), SQL_NTS, nullptr, 0);
  while (SQL_SUCCEEDED(rc) && SQL_SUCCEEDED(SQLFetch(Stmt))) {
    // "_" in the name stands for any character there.
    if (!gleich(Text_holen(Stmt, 3), Name)) continue;
    Odbc_Tabelle::Spalte spalte;
    spalte.Name = Text_holen(Stmt, 4);
    const QString typ = Text_holen(Stmt, 5);
    spalte.Autowert = Text_holen(Stmt, 6).contains(QLatin1String("identity"), Qt::CaseInsensitive);
    spalte.Art = Feldart_aus_Odbc(typ.toShort(), spalte.Bits);
    Ziel.Spalten.push_back(spalte);
  }
}

void Schluessel_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  std::vector<std::pair<int, QString>> teile;
  const SQLRETURN rc = SQLPrimaryKeysW(Stmt, nullptr, 0, nullptr, 0, Odbc_Text(Name), SQL_NTS);
  while (SQL_SUCCEEDED(rc) && SQL_SUCCEEDED(SQLFetch(Stmt))) {
    const QString spalte = Text_holen(Stmt, 4);
    teile.emplace_back(Text_holen(Stmt, 5).toInt(), spalte);
  }
  std::sort(teile.begin(), teile.end());
  for (const auto &teil : teile) Ziel.Schluessel.append(teil.second);
}

void Eindeutiges_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  const SQLRETURN rc = SQLSpecialColumnsW(Stmt, SQL_BEST_ROWID, nullptr, 0, nullptr, 0, Odbc_Text(Name),
                                          SQL_NTS, SQL_SCOPE_CURROW, SQL_NO_NULLS);
  while (SQL_SUCCEEDED(rc) && SQL_SUCCEEDED(SQLFetch(Stmt))) Ziel.Schluessel.append(Text_holen(Stmt, 2));
}

void Indizes_lesen(SQLHSTMT Stmt, const QString &Name, Odbc_Tabelle &Ziel) {
  const SQLRETURN rc =
      SQLStatisticsW(Stmt, nullptr, 0, nullptr, 0, Odbc_Text(Name), SQL_NTS, SQL_INDEX_ALL, SQL_QUICK);
  while (SQL_SUCCEEDED(rc) && SQL_SUCCEEDED(SQLFetch(Stmt))) {
    const int stelle = Text_holen(Stmt, 8).toInt();
    const QString spalte = Text_holen(Stmt, 9);
    if (stelle == 1 && !spalte.isEmpty()) Ziel.Indexanfaenge.append(spalte);
  }
  if (!Ziel.Schluessel.isEmpty()) Ziel.Indexanfaenge.append(Ziel.Schluessel.first());
}

}  // namespace

const Odbc_Tabelle::Spalte *Odbc_Tabelle::finden(const QString &Name) const {
  const auto da =
      std::find_if(Spalten.begin(), Spalten.end(), [&](const Spalte &s) { return gleich(s.Name, Name); });
  return da == Spalten.end() ? nullptr : &*da;
}

std::shared_ptr<const Odbc_Tabelle> Odbc_Katalog::Tabelle(Odbc_Griffe &Griffe, const QString &Name) {
  const auto da = Tabellen_.constFind(Name.toLower());
  if (da != Tabellen_.constEnd()) return *da;
  auto neu = std::make_shared<Odbc_Tabelle>();
  Spalten_lesen(Griffe.Anweisung(), Name, *neu);
  if (neu->Spalten.empty()) return neu;  // perhaps it comes
  Schluessel_lesen(Griffe.Anweisung(), Name, *neu);
  if (neu->Schluessel.isEmpty()) Eindeutiges_lesen(Griffe.Anweisung(), Name, *neu);
  // A key of which the table knows nothing is none.
  for (const QString &spalte : std::as_const(neu->Schluessel)) {
    if (!neu->finden(spalte)) {
      neu->Schluessel.clear();
      break;
    }
  }
  Indizes_lesen(Griffe.Anweisung(), Name, *neu);
  if (!Griffe.Tot()) Tabellen_.insert(Name.toLower(), neu);
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
  for (const auto &spalte : Tabelle.Spalten) {
    Feld feld;
    feld.Name = feld.Ursprung = spalte.Name;
    feld.Geklammert = '[' + spalte.Name.toUtf8() + ']';
    feld.Art = spalte.Art;
    feld.Bits = spalte.Bits;
    feld.Autowert = spalte.Autowert;
    feld.Tabelle = 0;
    satz->Felder.push_back(feld);
  }
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
