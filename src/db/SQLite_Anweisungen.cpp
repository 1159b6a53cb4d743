// Preparing statements, keeping them, and describing their results.
#include "SQLite_Anweisungen.h"

#include <algorithm>

#include "Textvarianten.h"

namespace marklink::db {

namespace {

constexpr qsizetype Vorrat_hoechstens = 256;
constexpr std::size_t Werte_hoechstens = 64;          ///< a statement with more, a long IN list, is not kept
constexpr qsizetype Formende_Werte_hoechstens = 128;  ///< characters; texts are written, hardly looked up

QString Text_von(const char *Utf8) { return Utf8 ? QString::fromUtf8(Utf8) : QString(); }

void Wert_binden(sqlite3_stmt *Stmt, int Stelle, const Anweisung::Stueck &S) {
  if (S.Art == Anweisung::Stueck::Art::Zahlwert) {
    bool ganz = false;
    const qint64 zahl = S.Text.toLongLong(&ganz);
    if (ganz) {
      sqlite3_bind_int64(Stmt, Stelle, zahl);
    } else {
      sqlite3_bind_double(Stmt, Stelle, S.Text.toDouble());
    }
    return;
  }
  const QByteArray bytes = S.Text.toUtf8();
  sqlite3_bind_text64(Stmt, Stelle, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                      SQLITE_TRANSIENT, SQLITE_UTF8);
}

/// What statements have in common that one translation serves: the literals, and the values that shape it
/// (see Dialekt.cpp). Empty when those are too long to be kept.
QString Vorratsschluessel(const Anweisung &Sql) {
  QString schluessel = Sql.Schluessel();
  qsizetype laenge = 0;
  int nummer = 0;
  for (const Anweisung::Stueck &s : Sql.Stuecke()) {
    ++nummer;
    if (s.Art != Anweisung::Stueck::Art::Textwert || Wert_schlicht(s.Text)) continue;
    laenge += s.Text.size();
    if (laenge > Formende_Werte_hoechstens) return {};
    schluessel += QStringLiteral("\n%1:%2:").arg(nummer).arg(s.Text.size()) + s.Text;
  }
  return schluessel;
}

template <typename Vorrat>
void Platz_schaffen(Vorrat &V) {
  if (V.size() < Vorrat_hoechstens) return;
  // The older half goes, so that this happens rarely.
  std::vector<quint64> zeiten;
  for (const auto &eintrag : V) zeiten.push_back(eintrag->Zuletzt);
  std::nth_element(zeiten.begin(), zeiten.begin() + Vorrat_hoechstens / 2, zeiten.end());
  const quint64 grenze = zeiten[static_cast<std::size_t>(Vorrat_hoechstens / 2)];
  for (auto i = V.begin(); i != V.end();) i = i.value()->Zuletzt < grenze ? V.erase(i) : std::next(i);
}

}  // namespace

void SQLite_binden(const Vorbereitet &V, const Anweisung &Sql) {
  for (std::size_t i = 0; i < V.Herkunft.size(); ++i) {
    const int stueck = V.Herkunft[i];
    Wert_binden(V.Stmt, static_cast<int>(i) + 1,
                stueck < 0 ? V.Feste[i] : Sql.Stuecke()[static_cast<std::size_t>(stueck)]);
  }
}

std::shared_ptr<Vorbereitet> SQLite_Anweisungen::vorbereiten(const QString &Sql) {
  const QByteArray bytes = Sql.toUtf8();
  auto v = std::make_shared<Vorbereitet>();
  const char *rest = nullptr;
  const int rc = sqlite3_prepare_v3(Db_, bytes.constData(), static_cast<int>(bytes.size()) + 1,
                                    SQLITE_PREPARE_PERSISTENT, &v->Stmt, &rest);
  if (rc != SQLITE_OK || !v->Stmt || (rest && *rest)) {
    Fehler_ = rc != SQLITE_OK ? Text_von(sqlite3_errmsg(Db_)) : QStringLiteral("not one statement");
    return nullptr;
  }
  return v;
}

std::shared_ptr<Vorbereitet> SQLite_Anweisungen::uebersetzt_vorbereiten(const Uebersetzung &U) {
  auto v = vorbereiten(U.Sql);
  if (!v) return nullptr;
  v->Herkunft = U.Herkunft;
  v->Feste = U.Werte;
  auto satz = beschreiben(v->Stmt);
  if (!satz) return v;
  // A view shows another table's columns and numbers no rows.
  const QString blank =
      U.Einzeltabelle.startsWith(u'[') ? U.Einzeltabelle.mid(1).chopped(1) : U.Einzeltabelle;
  const bool eine =
      satz->Tabellen.size() == 1 && satz->Tabellen[0].Name.compare(blank, Qt::CaseInsensitive) == 0;
  if (eine && (U.Alle_Spalten || satz->Tabellen[0].Schluessel.empty())) {
    QString mit_Nummer = U.Sql;
    mit_Nummer.insert(U.Listenende, QStringLiteral(" , rowid"));
    if (auto neu = vorbereiten(mit_Nummer)) {
      std::swap(v->Stmt, neu->Stmt);
      satz->Zeilennummer = static_cast<int>(satz->Felder.size());
    }
  }
  // Rows known to an unread set are laid over those of the table by their numbers.
  if (eine && U.Ganze_Tabelle && satz->Zeilennummer >= 0) satz->Ganze_Tabelle = U.Einzeltabelle;
  v->Spalten = satz;
  return v;
}

std::shared_ptr<Vorbereitet> SQLite_Anweisungen::Dialekttext(const Anweisung &Sql) {
  const QString schluessel = Vorratsschluessel(Sql);
  if (!schluessel.isEmpty()) {
    if (auto fertig = Nach_Text_.value(schluessel)) {
      fertig->Zuletzt = ++Uhr_;
      return fertig;
    }
  }
  const auto uebersetzung = Fuer_SQLite_uebersetzen(Sql, D_);
  if (!uebersetzung) {
    Fehler_ = QStringLiteral("not one statement of this dialect");
    return nullptr;
  }
  auto v = uebersetzt_vorbereiten(*uebersetzung);
  if (v && !schluessel.isEmpty() && uebersetzung->Wiederverwendbar &&
      v->Herkunft.size() <= Werte_hoechstens) {
    Platz_schaffen(Nach_Text_);
    v->Zuletzt = ++Uhr_;
    Nach_Text_.insert(schluessel, v);
  }
  return v;
}

std::shared_ptr<Vorbereitet> SQLite_Anweisungen::Eigener_Text(const QByteArray &Sql) {
  if (auto fertig = Eigene_.value(Sql)) {
    fertig->Zuletzt = ++Uhr_;
    return fertig;
  }
  auto v = vorbereiten(QString::fromUtf8(Sql));
  if (!v) return nullptr;
  Platz_schaffen(Eigene_);
  v->Zuletzt = ++Uhr_;
  Eigene_.insert(Sql, v);
  return v;
}

void SQLite_Anweisungen::leeren() {
  Nach_Text_.clear();
  Eigene_.clear();
  Tabellen_.clear();
}

void SQLite_Anweisungen::Schema_pruefen() {
  const auto v = Eigener_Text("PRAGMA schema_version");
  if (!v) return;
  const qint64 stand = sqlite3_step(v->Stmt) == SQLITE_ROW ? sqlite3_column_int64(v->Stmt, 0) : -1;
  sqlite3_reset(v->Stmt);
  if (stand == Schemastand_) return;
  Schemastand_ = stand;
  // Preparing goes by the schema as it was loaded; only running a statement loads it anew.
  if (const auto laden = Eigener_Text("SELECT 1 FROM sqlite_master LIMIT 1")) {
    sqlite3_step(laden->Stmt);
    sqlite3_reset(laden->Stmt);
  }
  Nach_Text_.clear();
  Tabellen_.clear();
}

void SQLite_Anweisungen::Spalten_pruefen(Vorbereitet &V) {
  if (!V.Spalten || sqlite3_stmt_status(V.Stmt, SQLITE_STMTSTATUS_REPREPARE, 1) == 0) return;
  Tabellen_.clear();
  auto satz = beschreiben(V.Stmt);
  if (satz && V.Spalten->Zeilennummer >= 0 && !satz->Felder.empty()) {
    satz->Felder.pop_back();
    satz->Zeilennummer = static_cast<int>(satz->Felder.size());
    satz->Ganze_Tabelle = V.Spalten->Ganze_Tabelle;
    satz->Namen_ordnen();
    Tabellen_zuordnen(V.Stmt, *satz);
  }
  V.Spalten = satz;
}

std::shared_ptr<Spaltensatz> SQLite_Anweisungen::beschreiben(sqlite3_stmt *Stmt) {
  const int anzahl = sqlite3_column_count(Stmt);
  if (anzahl == 0) return nullptr;
  auto satz = std::make_shared<Spaltensatz>();
  for (int i = 0; i < anzahl; ++i) {
    Feld feld;
    feld.Name = Text_von(sqlite3_column_name(Stmt, i));
    feld.Ursprung = Text_von(sqlite3_column_origin_name(Stmt, i));
    feld.Geklammert = '[' + feld.Ursprung.toUtf8() + ']';
    // A declared type without a table belongs to a computed column that only looks like one.
    if (!feld.Ursprung.isEmpty()) {
      feld.Art = Feldart_aus_Deklaration(Text_von(sqlite3_column_decltype(Stmt, i)), feld.Bits);
    }
    satz->Felder.push_back(std::move(feld));
  }
  Tabellen_zuordnen(Stmt, *satz);
  satz->Namen_ordnen();
  return satz;
}

void SQLite_Anweisungen::Tabellen_zuordnen(sqlite3_stmt *Stmt, Spaltensatz &Satz) {
  Satz.Tabellen.clear();
  for (std::size_t i = 0; i < Satz.Felder.size(); ++i) {
    Feld &feld = Satz.Felder[i];
    if (feld.Ursprung.isEmpty()) continue;
    const QString name = Text_von(sqlite3_column_table_name(Stmt, static_cast<int>(i)));
    const auto da = std::find_if(Satz.Tabellen.begin(), Satz.Tabellen.end(),
                                 [&](const Basistabelle &t) { return t.Name == name; });
    feld.Tabelle = static_cast<int>(da - Satz.Tabellen.begin());
    if (da == Satz.Tabellen.end()) Satz.Tabellen.push_back({name, {}, {}});
  }
  const auto gleich = [](const QString &a, const QString &b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
  };
  for (std::size_t t = 0; t < Satz.Tabellen.size(); ++t) {
    Basistabelle &tabelle = Satz.Tabellen[t];
    const Tabelleninfo &info = Tabelle(tabelle.Name);
    tabelle.Nachschlagbar.assign(Satz.Felder.size(), false);
    std::vector<int> schluessel(static_cast<std::size_t>(info.Schluessel.size()), -1);
    for (std::size_t i = 0; i < Satz.Felder.size(); ++i) {
      Feld &feld = Satz.Felder[i];
      if (feld.Tabelle != static_cast<int>(t)) continue;
      for (qsizetype k = 0; k < info.Schluessel.size(); ++k) {
        if (gleich(info.Schluessel[k], feld.Ursprung))
          schluessel[static_cast<std::size_t>(k)] = static_cast<int>(i);
      }
      feld.Autowert = info.Autowert && gleich(info.Schluessel.value(0), feld.Ursprung);
      tabelle.Nachschlagbar[i] = info.Indexanfaenge.contains(feld.Ursprung, Qt::CaseInsensitive);
    }
    const bool vollstaendig = std::find(schluessel.begin(), schluessel.end(), -1) == schluessel.end();
    if (vollstaendig) tabelle.Schluessel = schluessel;
  }
}

QStringList SQLite_Anweisungen::Namen_lesen(const char *Sql, const QString &Tabelle) {
  QStringList namen;
  const auto v = Eigener_Text(Sql);
  if (!v) return namen;
  Wert_binden(v->Stmt, 1, {Anweisung::Stueck::Art::Textwert, Tabelle});
  while (sqlite3_step(v->Stmt) == SQLITE_ROW) {
    namen.append(Text_von(reinterpret_cast<const char *>(sqlite3_column_text(v->Stmt, 0))));
  }
  sqlite3_reset(v->Stmt);
  return namen;
}

const SQLite_Anweisungen::Tabelleninfo &SQLite_Anweisungen::Tabelle(const QString &Name) {
  const auto da = Tabellen_.find(Name);
  if (da != Tabellen_.end()) return *da;
  Tabelleninfo info;
  info.Schluessel = Namen_lesen("SELECT name FROM pragma_table_info(?1) WHERE pk > 0 ORDER BY pk", Name);
  info.Indexanfaenge = Namen_lesen(
      "SELECT i.name FROM pragma_index_list(?1) AS l, pragma_index_info(l.name) AS i "
      "WHERE i.seqno = 0 AND i.name IS NOT NULL AND l.partial = 0",
      Name);
  if (!info.Schluessel.isEmpty()) info.Indexanfaenge.append(info.Schluessel.first());
  if (info.Schluessel.size() == 1) {
    int autowert = 0;
    const char *typ = nullptr, *sortierung = nullptr;
    int nicht_leer = 0, schluessel = 0;
    const int rc = sqlite3_table_column_metadata(Db_, nullptr, Name.toUtf8().constData(),
                                                 info.Schluessel.first().toUtf8().constData(), &typ,
                                                 &sortierung, &nicht_leer, &schluessel, &autowert);
    info.Autowert = rc == SQLITE_OK && autowert != 0;
  }
  return *Tabellen_.insert(Name, info);
}

}  // namespace marklink::db
