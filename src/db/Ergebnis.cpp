// The columns of a result: finding one by its name, reading a declared type.
#include "Ergebnis.h"

#include "Textvergleich.h"

namespace marklink::db {

namespace {

quint32 Name_streuen(QStringView Name) {
  quint32 summe = 2166136261u;
  for (const QChar c : Name) {
    const char16_t u = c.unicode();
    // Other letters than ASCII ones share a slot; the comparison tells them apart.
    const char16_t klein = u >= 0x80 ? u'?' : (u >= u'A' && u <= u'Z' ? static_cast<char16_t>(u + 32) : u);
    summe = (summe ^ klein) * 16777619u;
  }
  return summe;
}

}  // namespace

void Spaltensatz::Namen_ordnen() {
  std::size_t groesse = 16;
  while (groesse < Felder.size() * 3) groesse *= 2;
  Tafel_.assign(groesse, -1);
  for (std::size_t i = 0; i < Felder_sichtbar(); ++i) {
    std::size_t platz = Name_streuen(Felder[i].Name) & (groesse - 1);
    while (Tafel_[platz] >= 0) platz = (platz + 1) & (groesse - 1);
    Tafel_[platz] = static_cast<int>(i);
  }
}

int Spaltensatz::finden(QStringView Name) const {
  if (Tafel_.empty()) return -1;
  const std::size_t maske = Tafel_.size() - 1;
  for (std::size_t platz = Name_streuen(Name) & maske; Tafel_[platz] >= 0; platz = (platz + 1) & maske) {
    if (Text_gleich(Felder[static_cast<std::size_t>(Tafel_[platz])].Name, Name)) return Tafel_[platz];
  }
  return -1;
}

qint64 Schluesselnummer(const Spaltensatz &Spalten, const Zelle *Zellen) {
  quint64 summe = 14695981039346656037u;
  const auto streuen = [&summe](const char *Bytes, std::size_t Anzahl) {
    for (std::size_t i = 0; i < Anzahl; ++i) summe = (summe ^ static_cast<quint8>(Bytes[i])) * 1099511628211u;
    summe = (summe ^ Anzahl) * 1099511628211u;
  };
  for (const int feld : Spalten.Tabellen[0].Schluessel) {
    const Zelle &z = Zellen[feld];
    if (z.hat_Bytes())
      streuen(z.Daten, z.Laenge);
    else
      streuen(reinterpret_cast<const char *>(&z.Ganz), sizeof z.Ganz);
  }
  return static_cast<qint64>(summe);
}

Feldart Feldart_aus_Deklaration(const QString &Deklaration, int &Bits) {
  const qsizetype klammer = Deklaration.indexOf(u'(');
  const QString typ = (klammer < 0 ? Deklaration : Deklaration.left(klammer)).trimmed().toUpper();
  const auto einer_von = [&typ](std::initializer_list<const char *> Namen) {
    for (const char *name : Namen) {
      if (typ == QLatin1String(name)) return true;
    }
    return false;
  };
  Bits = 32;
  if (typ.isEmpty()) return Feldart::Offen;
  if (einer_von({"BOOLEAN", "BOOL", "BIT", "YESNO", "LOGICAL"})) return Feldart::Ja_Nein;
  if (einer_von({"DATETIME", "DATE", "TIMESTAMP", "SMALLDATETIME", "DATETIME2"})) return Feldart::Datum;
  if (einer_von({"SMALLINT", "TINYINT", "SHORT", "BYTE"})) {
    Bits = 16;
    return Feldart::Ganzzahl;
  }
  if (einer_von({"BIGINT"})) {
    Bits = 64;
    return Feldart::Ganzzahl;
  }
  if (einer_von({"INTEGER", "INT", "LONG", "COUNTER", "MEDIUMINT"})) return Feldart::Ganzzahl;
  if (einer_von({"DOUBLE", "REAL", "FLOAT", "CURRENCY", "MONEY", "SMALLMONEY", "NUMERIC", "DECIMAL", "SINGLE",
                 "DOUBLE PRECISION"})) {
    return Feldart::Gleitkomma;
  }
  if (einer_von({"BLOB", "LONGBINARY", "VARBINARY", "BINARY", "IMAGE", "OLEOBJECT"})) return Feldart::Binaer;
  return Feldart::Text;
}

}  // namespace marklink::db
