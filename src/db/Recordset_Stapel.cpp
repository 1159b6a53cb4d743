// The record set: sending all pending rows in one transaction.
#include <algorithm>

#include "Ablaufverfolgung.h"
#include "Recordset_Daten.h"

namespace marklink::db {

namespace {

QByteArray geklammert(const QString &Name) { return '[' + Name.toUtf8() + ']'; }

/// Makes and sends the statements of one batch.
class Stapel {
 public:
  Stapel(Leihe &L, const Spaltensatz &S, Stapeltexte &T) : L_(L), S_(S), Texte_(T) {}

  Schreibstand senden(const Zeile &Z) {
    Tabellen_geschrieben_ = 0;
    switch (Z.S) {
      case Zeile::Stand::Neu:
        return einfuegen(Z);
      case Zeile::Stand::Geaendert:
        return aendern(Z);
      case Zeile::Stand::Geloescht:
        return loeschen(Z);
      default:
        return Schreibstand::Geschrieben;
    }
  }
  /// What the engine numbered: a cell and its value, to be set when the batch is through.
  struct Nummer {
    Zelle *Ziel;
    qint64 Wert;
  };
  const std::vector<Nummer> &Nummern() const { return Nummern_; }
  /// Whether the transaction was begun: a row that is sent first does it, and one as it was sends nothing.
  bool Begonnen() const { return Begonnen_; }
  /// How many tables of a joined set took the last changed row before one did not.
  int Tabellen_geschrieben() const { return Tabellen_geschrieben_; }

 private:
  Schreibstand schreiben(const QByteArray &Sql, const char *Was, int Tabelle);
  Schreibstand einfuegen(const Zeile &Z);
  Schreibstand aendern(const Zeile &Z);
  Schreibstand Tabelle_aendern(const Zeile &Z, int Tabelle);
  Schreibstand loeschen(const Zeile &Z);
  QByteArray Einfuegetext(int Tabelle) const;
  QByteArray Aenderungstext(int Tabelle) const;
  QByteArray Loeschtext() const;
  bool Bedingung(int Tabelle, QByteArray &Sql) const;
  void Wert_anfuegen(const Zelle &Z, int Feld) {
    Werte_.push_back(Z);
    Wertfelder_.push_back(Feld < 0 ? nullptr : &Feld_von(Feld));
  }
  /// Whether a row of the table is known by nothing but all that it holds.
  bool nur_am_Inhalt(int Tabelle) const {
    return Tabelle_von(Tabelle).Schluessel.empty() && L_.Zeilennummer_Spalte().isEmpty();
  }
  void leeren();
  void Inhalt_pruefen(const Zeile &Z, int Tabelle);
  bool pruefbar(const Zeile &Z, std::size_t Feld) const {
    return !Z.Basis[Feld].Ungewiss && S_.Felder[Feld].Bestaendig;
  }
  void Bedingung_Werte(const Zeile &Z, int Tabelle);
  const Feld &Feld_von(int i) const { return S_.Felder[static_cast<std::size_t>(i)]; }
  const Basistabelle &Tabelle_von(int i) const { return S_.Tabellen[static_cast<std::size_t>(i)]; }

  Leihe &L_;
  const Spaltensatz &S_;
  Stapeltexte &Texte_;
  std::vector<Zelle> Werte_;
  std::vector<const Feld *> Wertfelder_;
  std::vector<int> Felder_;    ///< written by the statement
  std::vector<int> Geprueft_;  ///< whose former values it asks for
  std::vector<int> Gesucht_;   ///< of these the ones by which an index finds the row
  std::vector<Nummer> Nummern_;
  int Tabellen_geschrieben_ = 0;
  bool Begonnen_ = false;
};

Schreibstand Stapel::schreiben(const QByteArray &Sql, const char *Was, int Tabelle) {
  if (!Begonnen_ && !L_.Beginnen()) return Schreibstand::Abgebrochen;
  Begonnen_ = true;
  return L_.Schreiben(Sql, Werte_, Wertfelder_, Was, Tabelle_von(Tabelle).Name);
}

QByteArray Stapel::Einfuegetext(int Tabelle) const {
  QByteArray spalten, marken;
  for (const int i : Felder_) {
    spalten += (spalten.isEmpty() ? "" : ",") + Feld_von(i).Geklammert;
    marken += marken.isEmpty() ? "?" : ",?";
  }
  const QByteArray anfang = "INSERT INTO " + geklammert(Tabelle_von(Tabelle).Name);
  return Felder_.empty() ? anfang + " DEFAULT VALUES" : anfang + " (" + spalten + ") VALUES (" + marken + ")";
}

Schreibstand Stapel::einfuegen(const Zeile &Z) {
  leeren();
  int tabelle = S_.Tabellen.size() == 1 ? 0 : -1;
  for (std::size_t i = 0; i < S_.Felder.size(); ++i) {
    const Feld &feld = S_.Felder[i];
    if (!Z.Neu[i].Gesetzt || feld.Tabelle < 0) continue;
    if (tabelle >= 0 && feld.Tabelle != tabelle)
      return Schreibstand::Abgelehnt;  // no row of two tables at once
    tabelle = feld.Tabelle;
    Felder_.push_back(static_cast<int>(i));
    Wert_anfuegen(Z.Neu[i], static_cast<int>(i));
  }
  if (tabelle < 0) return Schreibstand::Abgelehnt;
  const QByteArray &sql = Texte_.Text('I', tabelle, Felder_, {}, {}, [&] { return Einfuegetext(tabelle); });
  const Schreibstand stand = schreiben(sql, "INSERT INTO ", tabelle);
  if (stand != Schreibstand::Geschrieben) return stand;
  const qint64 nummer = L_.Letzte_Nummer();
  for (std::size_t i = 0; i < S_.Felder.size(); ++i) {
    if (S_.Felder[i].Autowert && S_.Felder[i].Tabelle == tabelle) Nummern_.push_back({&Z.Neu[i], nummer});
  }
  if (S_.Zeilennummer >= 0 && !S_.Nummer_aus_Schluessel)
    Nummern_.push_back({&Z.Neu[S_.Zeilennummer], nummer});
  return stand;
}

/// WHERE for the row as it was read.
bool Stapel::Bedingung(int Tabelle, QByteArray &Sql) const {
  Sql += " WHERE ";
  const auto &schluessel = Tabelle_von(Tabelle).Schluessel;
  for (std::size_t k = 0; k < schluessel.size(); ++k) {
    Sql += (k > 0 ? " AND " : "") + Feld_von(schluessel[k]).Geklammert + " = ?";
  }
  for (const int feld : Gesucht_) Sql += Feld_von(feld).Geklammert + " = ? AND ";
  const bool inhalt = nur_am_Inhalt(Tabelle);
  if (schluessel.empty() && !inhalt) {
    if (S_.Zeilennummer < 0) return false;
    Sql += L_.Zeilennummer_Spalte() + " = ?";
  }
  for (std::size_t i = 0; i < Geprueft_.size(); ++i)
    Sql += (i > 0 || !inhalt ? " AND " : "") + L_.Unveraendert(Feld_von(Geprueft_[i]));
  return !inhalt || !Geprueft_.empty();
}

void Stapel::Bedingung_Werte(const Zeile &Z, int Tabelle) {
  const auto &schluessel = Tabelle_von(Tabelle).Schluessel;
  for (const int feld : schluessel) Wert_anfuegen(Z.Basis[feld], feld);
  for (const int feld : Gesucht_) Wert_anfuegen(Z.Basis[feld], feld);
  if (schluessel.empty() && !nur_am_Inhalt(Tabelle)) Wert_anfuegen(Z.Basis[S_.Zeilennummer], -1);
  for (const int feld : Geprueft_) Wert_anfuegen(Z.Basis[feld], feld);
}

/// All columns that the row is known to hold have to hold the same still. No index serves that comparison, so
/// what begins one is compared plainly as well.
void Stapel::Inhalt_pruefen(const Zeile &Z, int Tabelle) {
  Geprueft_.clear();
  for (std::size_t i = 0; i < S_.Felder.size(); ++i) {
    const Feld &feld = S_.Felder[i];
    if (feld.Tabelle != Tabelle || !pruefbar(Z, i)) continue;
    Geprueft_.push_back(static_cast<int>(i));
    const bool schlicht = feld.Art == Feldart::Text || feld.Art == Feldart::Ganzzahl;
    if (schlicht && Tabelle_von(Tabelle).Nachschlagbar[i] && !Z.Basis[i].ist_Null())
      Gesucht_.push_back(static_cast<int>(i));
  }
}

/// Ready for the next statement.
void Stapel::leeren() {
  Felder_.clear();
  Geprueft_.clear();
  Gesucht_.clear();
  Werte_.clear();
  Wertfelder_.clear();
}

/// What somebody changed since it was read is not overwritten: the changed columns must hold what they held.
/// Empty when nothing in the set identifies a row of the table.
QByteArray Stapel::Aenderungstext(int Tabelle) const {
  QByteArray sql = (nur_am_Inhalt(Tabelle) ? "UPDATE TOP (1) " : "UPDATE ") +
                   geklammert(Tabelle_von(Tabelle).Name) + " SET ";
  for (std::size_t i = 0; i < Felder_.size(); ++i) {
    sql += (i > 0 ? "," : "") + Feld_von(Felder_[i]).Geklammert + "=?";
  }
  return Bedingung(Tabelle, sql) ? sql : QByteArray();
}

Schreibstand Stapel::Tabelle_aendern(const Zeile &Z, int Tabelle) {
  leeren();
  for (std::size_t i = 0; i < S_.Felder.size(); ++i) {
    if (S_.Felder[i].Tabelle != Tabelle || !Z.Neu[i].Gesetzt) continue;
    if (!Z.Basis[i].Ungewiss && Z.Neu[i].gleich(Z.Basis[i])) continue;
    Felder_.push_back(static_cast<int>(i));
    if (pruefbar(Z, i)) Geprueft_.push_back(static_cast<int>(i));
    Wert_anfuegen(Z.Neu[i], static_cast<int>(i));
  }
  if (Felder_.empty()) return Schreibstand::Geschrieben;
  if (nur_am_Inhalt(Tabelle)) Inhalt_pruefen(Z, Tabelle);
  const QByteArray &sql =
      Texte_.Text('U', Tabelle, Felder_, Geprueft_, Gesucht_, [&] { return Aenderungstext(Tabelle); });
  if (sql.isEmpty()) {
    Ablauf_melden(QStringLiteral("batch"), QStringLiteral("the set does not hold the row's key"));
    return Schreibstand::Abgelehnt;
  }
  Bedingung_Werte(Z, Tabelle);
  return schreiben(sql, "UPDATE ", Tabelle);
}

Schreibstand Stapel::aendern(const Zeile &Z) {
  for (std::size_t t = 0; t < S_.Tabellen.size(); ++t) {
    const Schreibstand stand = Tabelle_aendern(Z, static_cast<int>(t));
    if (stand != Schreibstand::Geschrieben) return stand;
    ++Tabellen_geschrieben_;
  }
  return Schreibstand::Geschrieben;
}

QByteArray Stapel::Loeschtext() const {
  QByteArray sql =
      (nur_am_Inhalt(0) ? "DELETE TOP (1) FROM " : "DELETE FROM ") + geklammert(Tabelle_von(0).Name);
  return Bedingung(0, sql) ? sql : QByteArray();
}

Schreibstand Stapel::loeschen(const Zeile &Z) {
  // Of a joined set: from the first table.
  if (S_.Tabellen.empty()) return Schreibstand::Abgelehnt;
  leeren();
  if (nur_am_Inhalt(0)) Inhalt_pruefen(Z, 0);
  const QByteArray sql = Loeschtext();
  if (sql.isEmpty()) return Schreibstand::Abgelehnt;
  Bedingung_Werte(Z, 0);
  return schreiben(sql, "DELETE FROM ", 0);
}

}  // namespace

bool Recordset::Daten::Stapel_senden() {
  if (!Geoeffnet) return false;
  Arbeit_uebernehmen();
  Ungewiss = false;
  if (Offene.empty()) return true;
  std::vector<int> geschrieben, bleiben;
  std::vector<std::pair<int, int>> halbe;  // rows of a joined set that only some tables took
  {
    Leihe leihe(Verbindung);
    if (!leihe) return false;
    Stapel stapel(leihe, *Spalten, Texte);
    for (const int i : Offene) {
      const Schreibstand stand = stapel.senden(Zeilen[static_cast<std::size_t>(i)]);
      if (stand == Schreibstand::Abgebrochen) {
        if (stapel.Begonnen()) leihe.Verwerfen();
        return false;
      }
      (stand == Schreibstand::Geschrieben ? geschrieben : bleiben).push_back(i);
      const int tabellen = stapel.Tabellen_geschrieben();
      if (stand != Schreibstand::Geschrieben && tabellen > 0) halbe.emplace_back(i, tabellen);
    }
    if (stapel.Begonnen() && !leihe.Abschliessen()) {
      Ungewiss = leihe.Abschluss_ungewiss();
      leihe.Verwerfen();
      return false;
    }
    for (const auto &nummer : stapel.Nummern()) *nummer.Ziel = Zelle::aus_Ganz(nummer.Wert);
  }
  for (const int i : geschrieben) Geschriebenes_uebernehmen(Zeilen[static_cast<std::size_t>(i)]);
  for (const auto &[i, tabellen] : halbe) Teil_uebernehmen(Zeilen[static_cast<std::size_t>(i)], tabellen);
  Offene = std::move(bleiben);
  const bool alles = Offene.empty();
  if (alles && !Gelesen) Nur_aktuelle_behalten();
  return alles;
}

/// The row as sent is now the row as in the table.
void Recordset::Daten::Geschriebenes_uebernehmen(Zeile &Z) {
  Z.Offen = false;
  if (Z.S == Zeile::Stand::Geloescht) {
    Z.S = Zeile::Stand::Weg;
    return;
  }
  for (std::size_t k = 0; k < Spalten->Felder.size(); ++k) {
    const bool bekannt = Z.Neu[k].Gesetzt || Spalten->Felder[k].Autowert;
    if (Z.S == Zeile::Stand::Neu) Z.Neu[k].Ungewiss = !bekannt && Spalten->Felder[k].Vorgabe;
    if (bekannt) Z.Neu[k].Ungewiss = false;
    Z.Neu[k].Gesetzt = false;
  }
  if (Spalten->Nummer_aus_Schluessel)
    Z.Neu[Spalten->Zeilennummer] = Zelle::aus_Ganz(Schluesselnummer(*Spalten, Z.Neu));
  Z.Basis = Z.Neu;
  Z.Neu = nullptr;
  Z.S = Zeile::Stand::Sauber;
}

/// The same for the first `Tabellen` tables of a row that stays pending.
void Recordset::Daten::Teil_uebernehmen(Zeile &Z, int Tabellen) {
  Zelle *basis = Aenderungen.Zellen(Spalten->Zellen());
  std::copy_n(Z.Basis, Spalten->Zellen(), basis);
  for (std::size_t k = 0; k < Spalten->Felder.size(); ++k) {
    const int tabelle = Spalten->Felder[k].Tabelle;
    if (tabelle < 0 || tabelle >= Tabellen) continue;
    Z.Neu[k].Gesetzt = false;
    basis[k] = Z.Neu[k];
  }
  Z.Basis = basis;
}

/// After a batch an unread set needs no row but the current one.
void Recordset::Daten::Nur_aktuelle_behalten() {
  if (Sicht_gilt && (Sicht.size() > 1 || (Aktuell < 0 && !Sicht.empty()))) return;
  Vorher_Aktuell = -1;
  Indizes.clear();
  if (Aktuell < 0) {
    Unbenutztes_vergessen();
    return;
  }
  const Zelle *bisher = Zeilen[static_cast<std::size_t>(Aktuell)].Basis;
  Speicher frisch;
  std::swap(frisch, Zweitlager);
  frisch.leeren();
  Zelle *kopie = frisch.Zellen(Spalten->Zellen());
  for (std::size_t k = 0; k < Spalten->Zellen(); ++k) kopie[k] = frisch.Kopie(bisher[k]);
  std::swap(Zweitlager, Aenderungen);
  std::swap(Aenderungen, frisch);
  if (Lager.size() > 1) Lager.erase(Lager.begin(), std::prev(Lager.end()));
  if (!Lager.empty()) Lager.back().leeren();
  Zeile z;
  z.Basis = kopie;
  Zeilen.assign(1, z);
  Aktuell = 0;
  if (Sicht_gilt) {
    Sicht.assign(1, 0);
    Stelle = 0;
  }
}

}  // namespace marklink::db
