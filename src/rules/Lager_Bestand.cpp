// Back orders of a document, and the stock totals of its articles.
#include <QSet>

#include "Kunden.h"
#include "Lager.h"
#include "Lager_Teile.h"
#include "Zuteilungsliste.h"
#include "db/Ablaufverfolgung.h"
#include "db/Zeitpunkt.h"
#include "generateGUID.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

/// The totals of one article into its row. `Gelesen` takes those that stood there.
void Bestand_summieren(db::Recordset &Artikel, const QString &Nummer, const QString &Lager,
                       QStringList &Gelesen) {
  const QString reserviert = QStringLiteral("Unsociable"), frei = QStringLiteral("Disposable");
  db::Anweisung sql("SELECT * FROM Warehouse WHERE ArticleNumber = ", db::Wert{Nummer});
  if (!Lager.isEmpty()) sql += db::Anweisung(" AND StorageNumber = ", db::Wert{Lager});
  db::Recordset lager = Abfragen(sql);
  // Without its lots the article keeps its totals.
  if (!lager.IsOpen()) return;
  double summe_reserviert = 0, summe_frei = 0;
  for (; !lager.IsEOF(); lager.MoveNext()) {
    summe_reserviert = Menge_summe(summe_reserviert, lager.Number(reserviert));
    summe_frei = Menge_summe(summe_frei, lager.Number(frei));
  }
  for (const QString &feld : {reserviert, frei}) Gelesen << QString::number(Artikel.Number(feld), 'g', 17);
  Artikel.SetValue(reserviert, summe_reserviert);
  Artikel.SetValue(frei, summe_frei);
  Artikel.Update();
}

/// The articles of these lines, each once and in the order of their numbers: so two workstations do not wait
/// for each other.
QStringList Artikel_ordnen(db::Recordset Positionen) {
  QStringList nummern;
  for (; !Positionen.IsEOF(); Positionen.MoveNext())
    nummern << Positionen.Text(QStringLiteral("ArticleNumber"));
  nummern.removeDuplicates();
  nummern.sort();
  return nummern;
}

}  // namespace

db::Recordset Positionen_lesen(const QString &Beleg, const QString &Belegnummer) {
  return Abfragen({"SELECT * FROM Positions WHERE Document = ", db::Wert{Beleg},
                   " AND DocumentNumber = ", db::Wert{Belegnummer}});
}

void Artikelbestand_aktualisieren(const QString &Beleg, const QString &Belegnummer, const QString &Lager) {
  // Again where somebody else changed a total between reading and writing.
  QStringList gelesen;
  for (Versuche versuche; versuche.Noch_einer(gelesen);) {
    gelesen.clear();
    db::Recordset artikel = Abfragen("SELECT * FROM Articles");
    for (const QString &nummer : Artikel_ordnen(Positionen_lesen(Beleg, Belegnummer))) {
      if (artikel.Filter({"ArticleNumber = ", db::Wert{nummer}}) && artikel.RecordCount() > 0)
        Bestand_summieren(artikel, nummer, Lager, gelesen);
      else
        Ablauf_melden(QStringLiteral("Artikelbestand_aktualisieren"), QStringLiteral("no article ") + nummer);
    }
    if (!artikel.HasPendingChanges() || artikel.UpdateBatch()) return;
  }
}

void Rueckstaende_erzeugen(const QString &Beleg, const QString &Belegnummer, const QString &Kundennummer) {
  db::Recordset p = Positionen_lesen(Beleg, Belegnummer);
  // Old rows are not given up for none; and with them still there the new ones would double them.
  if (!p.IsOpen() || !Ausfuehren({"DELETE FROM BackOrder WHERE Document = ", db::Wert{Beleg},
                                  " AND DocumentNumber = ", db::Wert{Belegnummer},
                                  " AND CustomerNumber = ", db::Wert{Kundennummer}}))
    return;
  db::Recordset rueckstaende = Abfragen("SELECT * FROM BackOrder");
  const auto setzen = [&rueckstaende](const char *feld, const QVariant &wert) {
    rueckstaende.SetValue(QLatin1String(feld), wert);
  };
  const QVariant kunde = Kunden_Feld(Kundennummer, Kundenfeld::Matchcode);
  for (; !p.IsEOF(); p.MoveNext()) {
    const double menge = p.Number(QStringLiteral("BackOrder"));
    if (menge == 0.0) continue;
    rueckstaende.AddNew();
    setzen("uid", generateGUID());
    setzen("CustomerNumber", Kundennummer);
    setzen("Customer", kunde);
    setzen("Date", Zeitpunkt(Kontext.gHeute));
    setzen("document", Beleg);
    setzen("DocumentNumber", Belegnummer);
    for (const char *feld : {"LineItemNumber", "ArticleNumber", "ShortText"})
      setzen(feld, p.Value(QLatin1String(feld)));
    setzen("Quantity", menge);
    rueckstaende.Update();
  }
  if (rueckstaende.HasPendingChanges()) rueckstaende.UpdateBatch();
}

}  // namespace marklink
