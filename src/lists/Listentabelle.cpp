// Reading and writing the table behind a list's editor.
#include "Listenpflege.h"
#include "db/Ablaufverfolgung.h"
#include "db/Ergebnis.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Texte.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

QVariant Zahl_umwandeln(const QVariant &Wert) {
  if (Wert.typeId() != QMetaType::QString) return Wert;
  const auto zahl = Zahl_deutsch(Wert.toString().trimmed());
  return zahl ? QVariant(*zahl) : QVariant();
}

/// The cell as the column takes it; null when it cannot be converted, then the field is not assigned. A whole
/// number is rounded and limited by the width of its column. That is 16 bits but for the colours, which do
/// not pass through 16 bits as the other numbers do: intended, since no colour would fit into them.
QVariant Zelle_umwandeln(const QVariant &Wert, db::Feldart Art) {
  if (Wert.isNull()) return {};
  switch (Art) {
    case db::Feldart::Ganzzahl:
    case db::Feldart::Gleitkomma:
      return Zahl_umwandeln(Wert);
    case db::Feldart::Ja_Nein:
      return Zelle_wahr(Wert);
    case db::Feldart::Text:
      return Null_als_Text(Wert);
    default:
      return Wert;  // the column reads dates itself
  }
}

}  // namespace

void Listenpflege::Liste_laden() {
  Inhalt_.clear();
  db::Recordset satz = Abfragen({"SELECT * FROM ", db::Name{Liste_.Tabelle}});
  for (; !satz.IsEOF(); satz.MoveNext()) {
    std::vector<QVariant> &zeile = Inhalt_.emplace_back();
    for (const Tabellenspalte &spalte : Liste_.Spalten) zeile.push_back(satz.Value(spalte.Schluessel));
  }
  Gelesen_ = satz.IsOpen();
  const bool gefaerbt = Liste_.Spalte(QLatin1String("Colour")) >= 0;
  Farben_ = gefaerbt ? Auftragsstati_farben(gAuftragsstati_Liste) : std::vector<Auftragsstatusfarbe>{};
  Standards_vorher_.clear();
  Geaendert_ = false;
}

void Listenpflege::Liste_speichern() {
  if (!Gelesen_) {
    Ablauf_melden(QStringLiteral("Liste"), Liste_.Tabelle + QStringLiteral(": not read, so not replaced"));
    return;
  }
  const db::Name tabelle{Liste_.Tabelle};
  Ausfuehren({"DELETE FROM ", tabelle});
  db::Recordset satz;
  satz.Open({"SELECT * FROM ", tabelle}, Kontext.gConnectionString);
  for (const std::vector<QVariant> &zeile : Inhalt_) {
    satz.AddNew();
    for (size_t i = 0; i < zeile.size(); ++i) {
      const QString &feld = Liste_.Spalten[i].Schluessel;
      const QVariant wert = Zelle_umwandeln(zeile[i], satz.Type(feld));
      if (!wert.isNull()) satz.SetValue(feld, wert);
    }
    satz.Update();
  }
  satz.UpdateBatch();
  Geaendert_ = false;
  if (Liste_.Spalte(QLatin1String("Colour")) >= 0) Auftragsstatusliste_aufbauen();
}

}  // namespace marklink
