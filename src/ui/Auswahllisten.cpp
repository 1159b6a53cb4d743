// Reading selection lists.
#include "Auswahllisten.h"

#include "host/Datenbank.h"
#include "host/Texte.h"

namespace marklink {

namespace {

db::Anweisung Namen(const QString &Felder) {
  db::Anweisung namen;
  for (const QString &feld : Felder.split(u',')) {
    if (!namen.Leer()) namen += ", ";
    namen += db::Anweisung(db::Name{feld.trimmed()}, "");
  }
  return namen;
}

}  // namespace

QStringList Auswahlliste_lesen(const QString &Tabelle, const QString &Felder, const QString &Anzeigefeld,
                               const db::Anweisung &Bedingung, bool Bearbeiten, bool Leer) {
  QStringList liste;
  if (Leer) liste << QString();
  if (Bearbeiten) liste << QStringLiteral("Liste bearbeiten...");
  db::Recordset satz =
      Abfragen({"SELECT DISTINCT ", Namen(Felder), " FROM ", db::Name{Tabelle}, " ", Bedingung});
  for (; !satz.IsEOF(); satz.MoveNext()) liste << Null_als_Text(satz.Value(Anzeigefeld));
  return liste;
}

QString Standardeintrag_lesen(const QString &Tabelle, const QString &Feld) {
  db::Recordset satz = Abfragen({"SELECT * FROM ", db::Name{Tabelle}});
  for (; !satz.IsEOF(); satz.MoveNext())
    if (satz.Flag(QStringLiteral("standard"))) return Null_als_Text(satz.Value(Feld));
  return {};
}

}  // namespace marklink
