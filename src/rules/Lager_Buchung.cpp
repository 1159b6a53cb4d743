// Booking lots: the one way in which figures of a lot change, and booking a document's reservations out of
// stock.
#include <QHash>

#include "Lager.h"
#include "Lager_Teile.h"
#include "Zuteilungsliste.h"
#include "db/Ablaufverfolgung.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

struct Buchungsstand {
  QSet<QString> Offen;       ///< lots that were not saved
  QSet<QString> Fehlende{};  ///< lots that are gone
  QStringList Gelesen{};     ///< figures of the others before they were changed
  bool Bekannt = true;  ///< false: what became of them cannot be read, so another try could book them twice
};

/// Whether a batch left the lot as it was. Where a table has no key, a row that somebody else changed stands
/// beside the pending one.
bool Offen_geblieben(db::Recordset &Lager, const QString &Los) {
  if (!Los_suchen(Lager, Los)) return true;
  while (!Lager.IsEOF() && !Lager.IsPending()) Lager.MoveNext();
  return !Lager.IsEOF();
}

/// The figures of the current lot.
QString Losfiguren(const db::Recordset &Lager) {
  QStringList figuren;
  for (const char *feld : {"Quantity", "Disposable", "Unsociable"})
    figuren << QString::number(Lager.Number(QLatin1String(feld)), 'g', 17);
  return figuren.join(u'|');
}

/// When nobody knows whether a batch was written: it was where a lot holds what was sent.
bool Angekommen(const QString &Los, const QString &Gesendet, bool &Bekannt) {
  db::Recordset lager = Abfragen("SELECT * FROM Warehouse");
  const bool da = Los_suchen(lager, Los);
  Bekannt &= lager.IsOpen();
  return da && Losfiguren(lager) == Gesendet;
}

/// One batch for those lots, in the order of their numbers: so two workstations do not wait for each other.
Buchungsstand Einmal_buchen(const Losmengen &Mengen, const QSet<QString> &Lose, Losaenderung Aendern) {
  db::Recordset lager = Abfragen("SELECT * FROM Warehouse");
  Buchungsstand stand;
  QMap<QString, QString> gesendete;
  for (auto menge = Mengen.cbegin(); menge != Mengen.cend(); ++menge) {
    const QString &los = menge.key();
    if (!Lose.contains(los)) continue;
    if (!Los_suchen(lager, los)) {
      stand.Fehlende.insert(los);
      continue;
    }
    stand.Gelesen << Losfiguren(lager);
    Aendern(lager, *menge);
    lager.Update();
    gesendete.insert(los, Losfiguren(lager));
  }
  if (!lager.IsOpen()) return {Lose};
  if (Speichern(lager)) return stand;
  const bool ungewiss = lager.IsUncertain();
  for (auto los = gesendete.cbegin(); los != gesendete.cend(); ++los) {
    const bool offen =
        ungewiss ? !Angekommen(los.key(), *los, stand.Bekannt) : Offen_geblieben(lager, los.key());
    if (offen) stand.Offen.insert(los.key());
  }
  stand.Bekannt &= lager.IsOpen();
  return stand;
}

void Versand_eintragen(db::Recordset &Satz) {
  Satz.SetValue(QStringLiteral("Dispatch"), true);
  Satz.SetValue(QStringLiteral("DispatchDate"), Zeitpunkt(Kontext.gHeute));
  Satz.Update();
}

/// A reserved quantity leaves the lot.
void Ausbuchen(db::Recordset &Lager, double Menge) {
  const QString reserviert = QStringLiteral("Unsociable");
  Menge_aendern(Lager, reserviert, -Menge);
  Lager.SetValue(QStringLiteral("Quantity"),
                 Menge_summe(Lager.Number(QStringLiteral("Disposable")), Lager.Number(reserviert)));
}

/// A lot that is gone has nothing to be taken out of.
void Ausbuchung_vormerken(Losmengen &Mengen, db::Recordset &Lager, const db::Recordset &Reservierung) {
  const QString einlagerung = Reservierung.Text(QStringLiteral("StockingNumber"));
  if (Los_suchen(Lager, einlagerung))
    Mengen[einlagerung] =
        Menge_summe(Mengen.value(einlagerung), Reservierung.Number(QStringLiteral("Quantity")));
  else
    Ablauf_melden(QStringLiteral("Reservierungen_buchen"), QStringLiteral("no such lot: ") + einlagerung);
}

/// Marks the lines whose reservations all left the stock.
void Zeilen_als_versandt_eintragen(db::Recordset &Positionen, db::Recordset &Reservierungen,
                                   const QSet<QString> &Gescheitert) {
  QHash<QString, bool> versandt;  // by reservation
  for (Reservierungen.MoveFirst(); !Reservierungen.IsEOF(); Reservierungen.MoveNext())
    versandt.insert(Reservierungen.Text(QStringLiteral("ReservationNumber")),
                    !Gescheitert.contains(Reservierungen.Text(QStringLiteral("StockingNumber"))));
  for (Positionen.MoveFirst(); !Positionen.IsEOF(); Positionen.MoveNext()) {
    bool eine = false, alle = true;
    for (const QString &nummer : Positionen.Text(QStringLiteral("ReservationNumber")).split(u';')) {
      const auto reservierung = versandt.constFind(nummer);
      if (reservierung == versandt.cend()) continue;
      eine = true;
      alle &= *reservierung;
    }
    if (eine && alle) Versand_eintragen(Positionen);
  }
}

struct Belegkopf {
  const char16_t *Beleg;
  const char *Tabelle, *Schluesselfeld;
};

constexpr Belegkopf BELEGKOEPFE[] = {{u"Auftrag", "Contract", "ContractNumber"},
                                     {u"Lieferschein", "Delivery", "DeliveryNumber"},
                                     {u"Rechnung", "Invoice", "InvoiceNumber"},
                                     {u"Transportauftrag", "TransportOrder", "TransportNumber"},
                                     {u"Quittung", "Receipt", "ReceiptNumber"}};

}  // namespace

db::Recordset Reservierungen_lesen(const QString &Beleg, const QString &Belegnummer) {
  return Abfragen({"SELECT * FROM Reservations WHERE Document = ", db::Wert{Beleg},
                   " AND DocumentNumber = ", db::Wert{Belegnummer}});
}

bool Los_suchen(db::Recordset &Lager, const QString &Einlagerung) {
  return !Einlagerung.isEmpty() && Lager.Filter({"StockingNumber = ", db::Wert{Einlagerung}}) &&
         Lager.RecordCount() > 0;
}

void Menge_aendern(db::Recordset &Lager, const QString &Feld, double Um) {
  Lager.SetValue(Feld, Menge_summe(Lager.Number(Feld), Um));
}

bool Speichern(db::Recordset &Satz) {
  return Satz.IsOpen() && (!Satz.HasPendingChanges() || Satz.UpdateBatch());
}

QSet<QString> Lose_buchen(const Losmengen &Mengen, Losaenderung Aendern) {
  Buchungsstand stand{QSet<QString>(Mengen.keyBegin(), Mengen.keyEnd())};
  // Again for lots that somebody else changed between reading and writing.
  QSet<QString> fehlende;
  for (Versuche versuche; stand.Bekannt && !stand.Offen.isEmpty() && versuche.Noch_einer(stand.Gelesen);) {
    stand = Einmal_buchen(Mengen, stand.Offen, Aendern);
    fehlende += stand.Fehlende;
  }
  const QSet<QString> gescheitert = stand.Offen + fehlende;
  for (const QString &los : gescheitert)
    Ablauf_melden(QStringLiteral("stock"), QStringLiteral("lot not booked: ") + los);
  return gescheitert;
}

void Reservierungen_buchen(const QString &Beleg, const QString &Belegnummer,
                           const QString & /*Mitarbeiter*/) {
  db::Recordset reservierungen = Reservierungen_lesen(Beleg, Belegnummer);
  db::Recordset lager = Abfragen("SELECT * FROM Warehouse");
  db::Recordset positionen = Positionen_lesen(Beleg, Belegnummer);
  if (!reservierungen.IsOpen() || !positionen.IsOpen()) return;
  Losmengen mengen;
  for (; lager.IsOpen() && !reservierungen.IsEOF(); reservierungen.MoveNext())
    Ausbuchung_vormerken(mengen, lager, reservierungen);
  if (!lager.IsOpen()) return;
  const QSet<QString> gescheitert = Lose_buchen(mengen, Ausbuchen);
  Zeilen_als_versandt_eintragen(positionen, reservierungen, gescheitert);
  Speichern(positionen);
  // A document of which nothing could be taken out of stock was not dispatched at all.
  const bool kopf_versandt = gescheitert.isEmpty() || gescheitert.size() < mengen.size();
  for (const Belegkopf &kopf : BELEGKOEPFE)
    if (kopf_versandt && Beleg == kopf.Beleg)
      Kopf_Versand_setzen(QLatin1String(kopf.Tabelle), QLatin1String(kopf.Schluesselfeld), Belegnummer);
  Artikelbestand_aktualisieren(Beleg, Belegnummer);
}

void Kopf_Versand_setzen(const QString &Tabelle, const QString &Schluesselfeld, const QString &Belegnummer) {
  db::Recordset kopf = Abfragen({"SELECT * FROM ", db::Name{Tabelle}, " WHERE ", db::Name{Schluesselfeld},
                                 " = ", db::Wert{Belegnummer}});
  if (kopf.RecordCount() < 1) {
    Ablauf_melden(QStringLiteral("Kopf_Versand_setzen"),
                  QStringLiteral("no document ") + Tabelle + u' ' + Belegnummer);
    return;
  }
  Versand_eintragen(kopf);
  Speichern(kopf);
}

}  // namespace marklink
