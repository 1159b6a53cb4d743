// The client's settings store: an INI file (type 0) or the table Options, read from a cache (type 1).
#include "Datenbank.h"
#include "Ini.h"
#include "Kontext.h"
#include "db/Verbindung.h"

namespace marklink {
namespace {

// The whole table Options, disconnected; the server is asked again only after a write.
db::Recordset gOptions_Recordset;

/// Filters the cache down to one setting. False when the filter failed: the set then shows every setting, and
/// none of them may be taken for the one that was asked for.
bool Einstellung_suchen(const QString &Abschnitt, const QString &Schluessel) {
  gOptions_Recordset.ClearFilter();
  return gOptions_Recordset.Filter(
      db::Anweisung("Section = ", db::Wert{Abschnitt}, " AND Key = ", db::Wert{Schluessel}));
}

}  // namespace

void Optionen_laden() {
  gOptions_Recordset = db::Recordset();
  gOptions_Recordset.Open("SELECT * FROM Options", Kontext.gConnectionString);
  gOptions_Recordset.MoveLast();  // reads the table now: later reads never go to the server
}

void Optionen_freigeben() { db::Verbindungen_schliessen(Kontext.gConnectionString); }

QString Option_lesen(const QString &Abschnitt, const QString &Schluessel) {
  if (Kontext.gDatabasetype == 0) return Ini_lesen(Kontext.gAfkDatei, Abschnitt, Schluessel);
  if (!Einstellung_suchen(Abschnitt, Schluessel)) return {};
  gOptions_Recordset.MoveFirst();
  return gOptions_Recordset.Text(QStringLiteral("Value"));
}

QString Programmoption(const char *Schluessel) {
  return Option_lesen(QStringLiteral("Program"), QLatin1String(Schluessel));
}

bool Option_schreiben(const QString &Abschnitt, const QString &Schluessel, const QString &Wert) {
  if (Kontext.gDatabasetype == 0) return Ini_schreiben(Kontext.gAfkDatei, Abschnitt, Schluessel, Wert);
  if (!Einstellung_suchen(Abschnitt, Schluessel)) return false;
  if (gOptions_Recordset.RecordCount() == 0) gOptions_Recordset.AddNew();
  gOptions_Recordset.SetValue(QStringLiteral("Section"), Abschnitt);
  gOptions_Recordset.SetValue(QStringLiteral("Key"), Schluessel);
  gOptions_Recordset.SetValue(QStringLiteral("Value"), Wert);
  gOptions_Recordset.Update();
  const bool gespeichert = gOptions_Recordset.UpdateBatch();
  gOptions_Recordset.ClearFilter();
  if (gOptions_Recordset.Requery()) gOptions_Recordset.MoveLast();
  return gespeichert;
}

bool Option_weiterstellen(const QString &Abschnitt, const QString &Schluessel, const QString &Bisher,
                          const QString &Wert) {
  if (Kontext.gDatabasetype == 0)
    return Ini_weiterstellen(Kontext.gAfkDatei, Abschnitt, Schluessel, Bisher, Wert);
  // The batch writes only over what the cache holds, and reads it anew. Where neither can be done the value
  // stays pending in the cache: nobody else has changed it, as far as is known.
  return Option_lesen(Abschnitt, Schluessel) == Bisher &&
         (Option_schreiben(Abschnitt, Schluessel, Wert) ||
          (Einstellung_suchen(Abschnitt, Schluessel) && gOptions_Recordset.IsPending()));
}

}  // namespace marklink
