// Handing an order over for shipping.
#include "Versandauftrag.h"

#include "Versandfelder.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Texte.h"
#include "ui/Dialoge.h"

namespace marklink {
namespace {

bool Scheitern(const Versandauftrag &Auftrag, const char *Grund) {
  Ablauf_melden(QStringLiteral("Versandauftrag_erzeugen"),
                QStringLiteral("order %1: %2").arg(Auftrag.Bestellnummer, QLatin1String(Grund)));
  return false;
}

void Felder_uebertragen(db::Recordset &Versand, const db::Recordset &Bestellung) {
  for (const QString &feld : Bestellung.Fields())
    if (Versand.HasField(feld)) Versand.SetValue(feld, Bestellung.Value(feld));
}

void Felder_eintragen(db::Recordset &Versand, const Versandauftrag &Auftrag,
                      const db::Recordset &Bestellung) {
  for (const auto &[feld, wert] : Versandfelder_ermitteln(Auftrag, Bestellung))
    if (Versand.HasField(QLatin1String(feld))) Versand.SetValue(QLatin1String(feld), wert);
}

}  // namespace

Strassenteile Strasse_zerlegen(const QString &Text) {
  const auto ist_ziffer = [](QChar z) { return z >= u'0' && z <= u'9'; };
  const QString text = Grossbuchstaben(Text);
  qsizetype anfang = 0;
  while (anfang < text.size() && !ist_ziffer(text[anfang])) ++anfang;
  qsizetype ende = anfang;
  while (ende < text.size() && ist_ziffer(text[ende])) ++ende;
  return {text.left(anfang), text.mid(anfang, ende - anfang), text.mid(ende)};
}

bool Versandauftrag_erzeugen(const Versandauftrag &Auftrag) {
  const db::Wert nummer{Auftrag.Bestellnummer};
  db::Recordset bestellung =
      Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID = ", nummer, " ORDER BY OrderID, Date"});
  db::Recordset versand =
      Abfragen({"SELECT * FROM LogisticsEASYLOG WHERE OrderID = ", nummer, " ORDER BY OrderID"});
  // A shipment without an order's data would go to nobody, and would wipe the one that is there. Nothing is
  // shown then: a box that tells success would lie.
  if (!bestellung.IsOpen() || !versand.IsOpen()) return Scheitern(Auftrag, "cannot be read");
  if (bestellung.RecordCount() < 1) return Scheitern(Auftrag, "not in the books");

  if (versand.RecordCount() < 1) versand.AddNew();
  Felder_uebertragen(versand, bestellung);
  Felder_eintragen(versand, Auftrag, bestellung);
  bestellung.SetValue(QStringLiteral("Logistic"), Kontext.gSQL_True);
  bestellung.Update();
  versand.Update();
  // The shipment first: an order that is marked has one. One that cannot be written is traced.
  if (!versand.UpdateBatch()) return Scheitern(Auftrag, "the shipment cannot be written");
  bestellung.UpdateBatch();
  if (Auftrag.Meldung_zeigen)
    dialoge().Meldung(QStringLiteral("Hinweis"),
                      {QStringLiteral("Die Bestellung wurde an den Versand übermittelt.")},
                      Symbol::Information);
  return true;
}

}  // namespace marklink
