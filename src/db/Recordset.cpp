// The record set's face: moving, filtering, reading fields; see Recordset_Daten.h for how it works.
#include "Recordset.h"

#include <algorithm>

#include "Ablaufverfolgung.h"
#include "Feldwert.h"
#include "Recordset_Daten.h"

namespace marklink::db {

Recordset::Recordset() : d(std::make_unique<Daten>()) {}
Recordset::Recordset(Recordset &&Andere) noexcept : d(std::make_unique<Daten>()) { std::swap(d, Andere.d); }
Recordset &Recordset::operator=(Recordset &&Andere) noexcept {
  std::swap(d, Andere.d);
  return *this;
}
Recordset::~Recordset() = default;

bool Recordset::Open(const Anweisung &Sql, const QString &Verbindung) {
  d->Sql = Sql;
  d->Verbindung = Verbindung;
  d->Filter.reset();
  d->Geoeffnet = d->oeffnen();
  if (!d->Geoeffnet) d->Spalten = Keine_Spalten();
  return d->Geoeffnet;
}

bool Recordset::IsOpen() const { return d->Geoeffnet; }

bool Recordset::Requery() {
  if (!d->Geoeffnet) return false;
  auto neu = std::make_unique<Daten>();
  neu->Sql = d->Sql;
  neu->Verbindung = d->Verbindung;
  neu->Geoeffnet = neu->oeffnen();
  if (!neu->Geoeffnet) return false;
  // What was read out is read at once: a late read that fails could not go back to the rows of before.
  if (d->Gelesen) neu->Sicht_fordern();
  neu->Bedingung = d->Bedingung;
  if (d->Filter) neu->Filter = Filterausdruck::Lesen(neu->Bedingung, *neu->Spalten);
  if (neu->Filter) neu->Filter_anwenden();
  if (!neu->Geoeffnet) {
    Ablauf_melden(QStringLiteral("requery"), QStringLiteral("failed, the set stays as it was"));
    return false;
  }
  d = std::move(neu);
  return true;
}

int Recordset::RecordCount() const {
  d->Sicht_fordern();
  return static_cast<int>(d->Sicht.size());
}

bool Recordset::IsBOF() const {
  if (d->Aktuell >= 0) return false;
  d->Sicht_fordern();
  return d->Sicht.empty() || d->Stelle < 0;
}

bool Recordset::IsEOF() const {
  if (d->Aktuell >= 0) return false;
  d->Sicht_fordern();
  return d->Sicht.empty() || d->Stelle >= static_cast<int>(d->Sicht.size());
}

void Recordset::MoveFirst() {
  d->Arbeit_uebernehmen();
  if (!d->Sicht_gilt) {
    d->Aktuell = -1;  // the first row, whichever it is
    return;
  }
  d->Stellen(0);
}

void Recordset::MoveLast() {
  d->Arbeit_uebernehmen();
  d->Sicht_fordern();
  d->Stellen(static_cast<int>(d->Sicht.size()) - 1);
}

void Recordset::MoveNext() {
  d->Arbeit_uebernehmen();
  d->Sicht_fordern();
  d->Stellen(d->Stelle + 1);
}

void Recordset::MovePrevious() {
  d->Arbeit_uebernehmen();
  d->Sicht_fordern();
  d->Stellen(d->Stelle - 1);
}

int Recordset::AbsolutePosition() const {
  d->Sicht_fordern();
  return d->Aktuell >= 0 ? d->Stelle + 1 : 0;
}

void Recordset::AbsolutePosition_setzen(int Position) {
  d->Arbeit_uebernehmen();
  d->Sicht_fordern();
  d->Stellen(Position - 1);
}

bool Recordset::Filter(const Anweisung &Bedingung) {
  d->Arbeit_uebernehmen();
  d->Bedingung = Bedingung;
  d->Filter = Filterausdruck::Lesen(Bedingung, *d->Spalten);
  const bool verstanden = d->Filter.has_value();
  if (!verstanden && d->Geoeffnet) {
    Ablauf_melden(QStringLiteral("filter"),
                  Bedingung.Gueltig() ? QStringLiteral("cannot be understood") : Bedingung.Fehler());
  }
  d->Filter_anwenden();
  return verstanden && d->Geoeffnet;
}

void Recordset::ClearFilter() {
  d->Arbeit_uebernehmen();
  d->Filter.reset();
  d->Filter_anwenden();
}

bool Recordset::Find(const Anweisung &Bedingung) {
  d->Arbeit_uebernehmen();
  const auto suche = Filterausdruck::Lesen(Bedingung, *d->Spalten);
  const bool verstanden = suche && suche->Einzeln();
  if (verstanden && d->Vorwaerts_nachschlagen(*suche)) return true;
  d->Sicht_fordern();
  if (!d->Geoeffnet) return false;
  if (!verstanden) Ablauf_melden(QStringLiteral("find"), QStringLiteral("cannot be understood"));
  d->Stellen(verstanden ? d->Suchen(*suche) : static_cast<int>(d->Sicht.size()));
  return d->Aktuell >= 0;
}

QStringList Recordset::Fields() const {
  QStringList namen;
  for (std::size_t i = 0; i < d->Spalten->Felder_sichtbar(); ++i) namen.append(d->Spalten->Felder[i].Name);
  return namen;
}

bool Recordset::HasField(const QString &Feld) const { return d->Spalten->finden(Feld) >= 0; }

Feldart Recordset::Type(const QString &Feld) const {
  const int nummer = d->Spalten->finden(Feld);
  return nummer >= 0 ? d->Spalten->Felder[static_cast<std::size_t>(nummer)].Art : Feldart::Offen;
}

namespace {
const Zelle Leere_Zelle;
}

/// The current row's cell and its column; a null cell when there is no such field or row.
const Zelle &Recordset::Daten::Zelle_von(const QString &Name, Feldart &Art) {
  const int nummer = Spalten->finden(Name);
  const Zeile *zeile = nummer >= 0 ? Aktuelle() : nullptr;
  if (!zeile) {
    if (nummer < 0 && Geoeffnet && Ablaufverfolgung_an())
      Ablauf_melden(QStringLiteral("read field"), QStringLiteral("no such field: ") + Name);
    return Leere_Zelle;
  }
  Art = Spalten->Felder[static_cast<std::size_t>(nummer)].Art;
  return zeile->Zellen()[nummer];
}

QVariant Recordset::Value(const QString &Feld) const {
  Feldart art = Feldart::Offen;
  const Zelle &z = d->Zelle_von(Feld, art);
  return Feldwert_lesen(z, art);
}

QString Recordset::Text(const QString &Feld) const {
  Feldart art = Feldart::Offen;
  const Zelle &z = d->Zelle_von(Feld, art);
  return Feldtext_lesen(z, art);
}

std::optional<QByteArrayView> Recordset::Textbytes(const QString &Feld) const {
  Feldart art = Feldart::Offen;
  const Zelle &z = d->Zelle_von(Feld, art);
  if (art != Feldart::Text || z.Inhalt != Zelle::Art::Text) return std::nullopt;
  return QByteArrayView(z.Daten, static_cast<qsizetype>(z.Laenge));
}

double Recordset::Number(const QString &Feld) const {
  Feldart art = Feldart::Offen;
  const Zelle &z = d->Zelle_von(Feld, art);
  return Feldzahl_lesen(z, art);
}

bool Recordset::Flag(const QString &Feld) const {
  Feldart art = Feldart::Offen;
  return Feldflagge_lesen(d->Zelle_von(Feld, art));
}

bool Recordset::IsNull(const QString &Feld) const {
  Feldart art = Feldart::Offen;
  return d->Zelle_von(Feld, art).ist_Null();
}

void Recordset::SetValue(const QString &Feld, const QVariant &Wert) { d->Setzen(Feld, Wert); }

void Recordset::AddNew() {
  if (d->Geoeffnet && !d->Spalten->Felder.empty()) d->Neue_Zeile();
}

void Recordset::Update() { d->Arbeit_uebernehmen(); }
void Recordset::CancelUpdate() { d->Arbeit_verwerfen(); }
void Recordset::Delete() { d->Loeschen(); }
bool Recordset::UpdateBatch() { return d->Stapel_senden(); }
bool Recordset::IsUncertain() const { return d->Ungewiss; }

bool Recordset::HasPendingChanges() const { return d->In_Arbeit || !d->Offene.empty(); }
bool Recordset::IsPending() const {
  const Zeile *zeile = d->Aktuelle();
  return zeile && (d->In_Arbeit || zeile->Offen);
}

bool Ausfuehren(const Anweisung &Sql, const QString &Verbindung) {
  Leihe leihe(Verbindung);
  Ergebnis ergebnis;
  return leihe.Lesen(Sql, ergebnis);
}

}  // namespace marklink::db
