// Available stock, and the lots that serve a quantity.
#include <cmath>

#include "Artikelfelder.h"
#include "Lager.h"
#include "Zuteilungsliste.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

double Feldsumme(db::Recordset Satz, const QString &Feld) {
  double summe = 0;
  for (; !Satz.IsEOF(); Satz.MoveNext()) summe = Menge_summe(summe, Satz.Number(Feld));
  return summe;
}

/// Nothing for a policy that does not exist.
std::optional<db::Anweisung> Reihenfolge(int Strategie) {
  switch (Strategie) {
    case 0:
      return "[Date] ASC";
    case 1:
      return "[Date] DESC";
    case 2:
      return "PurchasePrice DESC";
    case 3:
      return "PurchasePrice ASC";
    case 4:
      return "Disposable ASC";
    default:
      return {};
  }
}

/// A text of the stock row as a field of the list: its separators would shift the fields behind it.
QString Listentext(const db::Recordset &Lagerzeile, const char *Feld) {
  return Lagerzeile.Text(QLatin1String(Feld)).replace(u';', u' ').replace(u'|', u' ');
}

Los Los_bilden(const QString &Artikel, const db::Recordset &Lagerzeile, double Menge) {
  return {Artikel,
          Listentext(Lagerzeile, "StorageNumber"),
          Loszahl_als_Text(Menge),
          Listentext(Lagerzeile, "StockingNumber"),
          Listentext(Lagerzeile, "ChargeNumber"),
          Loszahl_als_Text(Lagerzeile.Number(QStringLiteral("PurchasePrice"))),
          QString()};
}

}  // namespace

QString Artikel_Lager(const QString &Artikel) {
  if (Programmoption("StorageAllocation") == u"1" && !Kontext.gBenutzer_Lagernummer.isEmpty())
    return Kontext.gBenutzer_Lagernummer;
  return Artikel_Feld_lesen(Artikel, Artikelfeld::Storage).toString();
}

double Lager_Verfuegbar(const QString &Artikel, const QString &Lager) {
  return Feldsumme(Abfragen({"SELECT Disposable FROM Warehouse WHERE ArticleNumber = ", db::Wert{Artikel},
                             " AND StorageNumber LIKE ", db::Wert{Lager + u'%'}}),
                   QStringLiteral("Disposable"));
}

double Reserviert_fuer_Position(const QString &Beleg, const QString &Belegnummer, const QString &Artikel,
                                const QString &Position) {
  return Feldsumme(Abfragen({"SELECT Quantity FROM Reservations WHERE Document = ", db::Wert{Beleg},
                             " AND DocumentNumber = ", db::Wert{Belegnummer}, " AND ArticleNumber = ",
                             db::Wert{Artikel}, " AND LineItemNumber = ", db::Wert{Position}}),
                   QStringLiteral("Quantity"));
}

double Transportauftrag_Menge(const QString &Beleg, const QString &Belegnummer, const QString &Artikel,
                              const QString &Position, const QString &Transportnummer) {
  return Abfragen({"SELECT Quantity FROM Positions WHERE Document = 'Transportauftrag' AND DocumentNumber = ",
                   db::Wert{Transportnummer}, " AND ReferenceDocument = ", db::Wert{Beleg},
                   " AND ReferenceDocumentNumber = ", db::Wert{Belegnummer},
                   " AND ReferenceLineItemNumber = ", db::Wert{Position},
                   " AND ArticleNumber = ", db::Wert{Artikel}})
      .Number(QStringLiteral("Quantity"));
}

QString Bestand_zuteilen(const QString &Artikel, double Menge, const QString &Lager) {
  QString zuteilung;
  Lager_Aufteilung(zuteilung, Artikel, Lager.isEmpty() ? Artikel_Lager(Artikel) : Lager, Menge,
                   Artikel_Feld_lesen(Artikel, Artikelfeld::UnloadingPolicy).toInt());
  return zuteilung;
}

void Lager_Aufteilung(QString &Zuteilung, const QString &Artikel, const QString &Lager, double Menge,
                      int Strategie) {
  const auto reihenfolge = Reihenfolge(Strategie);
  if (!reihenfolge)
    Ablauf_melden(QStringLiteral("Lager_Aufteilung"),
                  QStringLiteral("article '%1': no unloading policy %2").arg(Artikel).arg(Strategie));
  if (!reihenfolge || !std::isfinite(Menge) || Menge <= 0) return;
  db::Recordset lager =
      Abfragen({"SELECT * FROM Warehouse WHERE ArticleNumber = ", db::Wert{Artikel},
                " AND StorageNumber LIKE ", db::Wert{Lager + u'%'}, " ORDER BY ", *reihenfolge});
  double rest = Menge;
  for (; !lager.IsEOF() && rest > 0; lager.MoveNext()) {
    const double entnahme = std::min(lager.Number(QStringLiteral("Disposable")), rest);
    if (entnahme <= 0) continue;
    if (!Zuteilung.isEmpty()) Zuteilung += u'|';
    Zuteilung += Los_bilden(Artikel, lager, entnahme).join(u';');
    rest = Menge_summe(rest, -entnahme);
  }
}

}  // namespace marklink
