// Reserving a document's lots, giving them back, and booking them out of stock.
#include <QHash>
#include <QSet>

#include "Lager.h"
#include "Lager_Teile.h"
#include "Nummernkreise.h"
#include "Zuteilungsliste.h"
#include "db/Ablaufverfolgung.h"
#include "db/Zeitpunkt.h"
#include "generateGUID.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "ui/Dialoge.h"

namespace marklink {
namespace {

db::Recordset Reservierungen_lesen(const QString &Beleg, const QString &Belegnummer) {
  return Abfragen({"SELECT * FROM Reservations WHERE Document = ", db::Wert{Beleg},
                   " AND DocumentNumber = ", db::Wert{Belegnummer}});
}

db::Recordset Zugeteilte_Positionen_lesen(const QString &Beleg, const QString &Belegnummer) {
  return Abfragen({"SELECT * FROM Positions WHERE Document = ", db::Wert{Beleg},
                   " AND DocumentNumber = ", db::Wert{Belegnummer}, " AND ",
                   db::Teiltext{Bedingung_IstNull(QStringLiteral("StorageNumber"), false)}});
}

/// Stands on the lot. An empty number names no lot, though several rows may have none.
bool Los_suchen(db::Recordset &Lager, const QString &Einlagerung) {
  return !Einlagerung.isEmpty() && Lager.Filter({"StockingNumber = ", db::Wert{Einlagerung}}) &&
         Lager.RecordCount() > 0;
}

void Menge_aendern(db::Recordset &Lager, const QString &Feld, double Um) {
  Lager.SetValue(Feld, Menge_summe(Lager.Number(Feld), Um));
}

/// Moves a quantity from the freely available to the reserved stock of a lot; negative: back.
void Umbuchen(db::Recordset &Lager, double Menge) {
  Menge_aendern(Lager, QStringLiteral("Unsociable"), Menge);
  Menge_aendern(Lager, QStringLiteral("Disposable"), -Menge);
  Lager.Update();
}

/// A set that a failed read has closed holds nothing any more, so nothing of it is saved.
bool Speichern(db::Recordset &Satz) {
  return Satz.IsOpen() && (!Satz.HasPendingChanges() || Satz.UpdateBatch());
}

/// One run of reserving; nothing reaches the books before Abschliessen().
class Reservierungslauf {
 public:
  Reservierungslauf(const QString &Beleg, const QString &Belegnummer, const QString &Mitarbeiter, bool Art)
      : Mitarbeiter_(Mitarbeiter),
        Art_(Art),
        Gezaehlt_(Option_lesen(QStringLiteral("Counting"), QStringLiteral("Reservation")) == u"1"),
        Lager_(Abfragen("SELECT * FROM Warehouse")),
        Positionen_(Zugeteilte_Positionen_lesen(Beleg, Belegnummer)),
        Reservierungen_(Reservierungen_lesen(Beleg, Belegnummer)) {}

  /// False when a set could not be read or a lot was left out.
  bool Vormerken() {
    bool alles = true;
    for (; Lesbar() && !Positionen_.IsEOF(); Positionen_.MoveNext()) alles &= Position_reservieren();
    return alles && Lesbar();
  }

  /// Saves the run; nothing of it when one of its sets could not be read.
  bool Abschliessen() {
    if (!Lesbar()) return false;
    const bool lager = Speichern(Lager_), positionen = Speichern(Positionen_);
    return Speichern(Reservierungen_) && lager && positionen;
  }

 private:
  bool Lesbar() const { return Lager_.IsOpen() && Positionen_.IsOpen() && Reservierungen_.IsOpen(); }
  bool Position_reservieren();
  QString Los_reservieren(const Los &L);
  void Reservierung_anhaengen(const Los &L, const QString &Nummer, double Menge);
  QString Neue_Nummer();

  const QString Mitarbeiter_;
  const bool Art_, Gezaehlt_;
  db::Recordset Lager_, Positionen_, Reservierungen_;
  QSet<QString> Vergebene_;
};

bool Reservierungslauf::Position_reservieren() {
  const QString nummernfeld = QStringLiteral("ReservationNumber"),
                listenfeld = QStringLiteral("StorageNumber");
  std::vector<Los> lose = Zuteilung_zerlegen(Positionen_.Text(listenfeld));
  QStringList nummern = Positionen_.Text(nummernfeld).split(u';', Qt::SkipEmptyParts);
  const qsizetype vorher = nummern.size();
  bool alles = true;
  for (Los &los : lose) {
    const QString nummer = Los_reservieren(los);
    if (nummer.isEmpty()) {
      alles = false;
      continue;
    }
    Los_setzen(los, Losfeld::Reservierung, nummer);
    nummern << nummer;
  }
  if (nummern.size() == vorher) return alles;
  Positionen_.SetValue(nummernfeld, nummern.join(u';'));
  Positionen_.SetValue(listenfeld, Zuteilung_verbinden(lose));
  Positionen_.Update();
  return alles;
}

/// The number of the new reservation; empty, and nothing changed, when the lot cannot be reserved.
QString Reservierungslauf::Los_reservieren(const Los &L) {
  const double menge = Los_Zahl(L, Losfeld::Menge);
  const bool da = menge > 0 && Los_suchen(Lager_, Los_Text(L, Losfeld::Einlagerung));
  const QString nummer = da ? Neue_Nummer() : QString();
  if (nummer.isEmpty()) {
    Ablauf_melden(
        QStringLiteral("Reservierungen_erzeugen"),
        (da ? QStringLiteral("no number for lot: ") : QStringLiteral("no such lot: ")) + L.join(u';'));
    return {};
  }
  Umbuchen(Lager_, menge);
  Reservierung_anhaengen(L, nummer, menge);
  return nummer;
}

/// Reservations of this run are not stored yet, so a range that stands still would give their numbers again.
QString Reservierungslauf::Neue_Nummer() {
  if (!Gezaehlt_) return generateGUID();
  const QString bereich = QStringLiteral("Reservation");
  QString nummer =
      Nummer_ziehen(QStringLiteral("Reservations"), QStringLiteral("ReservationNumber"), bereich);
  if (nummer.isEmpty() || Vergebene_.contains(nummer)) return {};
  Nummernkreis_hochzaehlen(bereich);
  Vergebene_.insert(nummer);
  return nummer;
}

void Reservierungslauf::Reservierung_anhaengen(const Los &L, const QString &Nummer, double Menge) {
  const auto setzen = [this](const char *feld, const QVariant &wert) {
    Reservierungen_.SetValue(QLatin1String(feld), wert);
  };
  Reservierungen_.AddNew();
  setzen("ReservationNumber", Nummer);
  setzen("ReservationType", Art_);
  setzen("StockingNumber", Los_Text(L, Losfeld::Einlagerung));
  setzen("StorageNumber", Los_Text(L, Losfeld::Lager));
  setzen("ArticleNumber", Los_Text(L, Losfeld::Artikel));
  setzen("Quantity", Menge);
  setzen("ChargeNumber", Los_Text(L, Losfeld::Charge));
  for (const char *feld : {"ShortText", "Unit", "document", "DocumentNumber", "LineItemNumber"})
    setzen(feld, Positionen_.Value(QLatin1String(feld)));
  for (const char *feld : {"Storage", "DateOfExpiry", "SupplierNumber", "Supplier"})
    setzen(feld, Lager_.Value(QLatin1String(feld)));
  setzen("Date", Zeitpunkt(Kontext.gHeute));
  setzen("Employee", Mitarbeiter_);
  Reservierungen_.Update();
}

void Fehlendes_Los_melden() {
  dialoge().Meldung(
      QStringLiteral("Hinweis"),
      {QStringLiteral("Im Lager ist kein Eintrag mehr für diesen Artikel vorhanden."),
       QStringLiteral("Der Bestand kann nicht eingebucht werden!"),
       QStringLiteral("Verwenden Sie bitte den Wareneingang um die Ware wieder dem Lager hinzu zufügen.")},
      Symbol::Information);
}

bool Aufloesen(const QString &Beleg, const QString &Belegnummer) {
  const QString nummernfeld = QStringLiteral("ReservationNumber");
  db::Recordset lager = Abfragen("SELECT * FROM Warehouse");
  db::Recordset positionen = Positionen_lesen(Beleg, Belegnummer);
  db::Recordset reservierungen = Reservierungen_lesen(Beleg, Belegnummer);
  if (!lager.IsOpen() || !positionen.IsOpen() || !reservierungen.IsOpen()) return false;
  for (int i = reservierungen.RecordCount(); i > 0; --i) {
    const db::Wert zeile{reservierungen.Text(QStringLiteral("LineItemNumber"))};
    if (positionen.Filter({"LineItemNumber = ", zeile}) && positionen.RecordCount() > 0) {
      positionen.SetValue(nummernfeld, QString());
      positionen.Update();
    }
    const bool da = Los_suchen(lager, reservierungen.Text(QStringLiteral("StockingNumber")));
    if (!lager.IsOpen()) return false;  // not gone, only not to be read now
    if (da)
      Umbuchen(lager, -reservierungen.Number(QStringLiteral("Quantity")));
    else
      Fehlendes_Los_melden();
    reservierungen.Delete();  // the next one is current now
  }
  // Reservations whose quantity did not get back into stock stay, for another try.
  if (!Speichern(lager)) return false;
  const bool positionen_gut = Speichern(positionen);
  return Speichern(reservierungen) && positionen_gut;
}

/// The places of the document's lines by the numbers of their reservations.
QHash<QString, int> Positionen_nach_Reservierung(db::Recordset &Positionen) {
  QHash<QString, int> stellen;
  for (Positionen.MoveFirst(); !Positionen.IsEOF(); Positionen.MoveNext())
    for (const QString &nummer :
         Positionen.Text(QStringLiteral("ReservationNumber")).split(u';', Qt::SkipEmptyParts))
      stellen.insert(nummer, Positionen.AbsolutePosition());
  return stellen;
}

void Versand_eintragen(db::Recordset &Satz) {
  Satz.SetValue(QStringLiteral("Dispatch"), true);
  Satz.SetValue(QStringLiteral("DispatchDate"), Zeitpunkt(Kontext.gHeute));
  Satz.Update();
}

/// A reservation's quantity leaves the lot.
void Los_ausbuchen(db::Recordset &Lager, const db::Recordset &Reservierung) {
  const QString einlagerung = Reservierung.Text(QStringLiteral("StockingNumber"));
  if (!Los_suchen(Lager, einlagerung)) {
    Ablauf_melden(QStringLiteral("Reservierungen_buchen"), QStringLiteral("no such lot: ") + einlagerung);
    return;
  }
  Menge_aendern(Lager, QStringLiteral("Unsociable"), -Reservierung.Number(QStringLiteral("Quantity")));
  Lager.SetValue(QStringLiteral("Quantity"), Menge_summe(Lager.Number(QStringLiteral("Disposable")),
                                                         Lager.Number(QStringLiteral("Unsociable"))));
  Lager.Update();
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

bool Reservierungen_erzeugen(const QString &Beleg, const QString &Belegnummer, const QString &Mitarbeiter,
                             int Modus, bool Reservierungsart) {
  bool gut = false;
  if (Modus == Reservierungen_anlegen) {
    Reservierungslauf lauf(Beleg, Belegnummer, Mitarbeiter, Reservierungsart);
    const bool alles = lauf.Vormerken();
    gut = lauf.Abschliessen() && alles;
  } else if (Modus == Reservierungen_aufloesen) {
    gut = Aufloesen(Beleg, Belegnummer);
  } else {
    return false;
  }
  Artikelbestand_aktualisieren(Beleg, Belegnummer);
  return gut;
}

void Reservierungen_buchen(const QString &Beleg, const QString &Belegnummer,
                           const QString & /*Mitarbeiter*/) {
  db::Recordset reservierungen = Reservierungen_lesen(Beleg, Belegnummer);
  db::Recordset lager = Abfragen("SELECT * FROM Warehouse");
  db::Recordset positionen = Positionen_lesen(Beleg, Belegnummer);
  if (!reservierungen.IsOpen() || !lager.IsOpen() || !positionen.IsOpen()) return;
  const QHash<QString, int> stellen = Positionen_nach_Reservierung(positionen);
  for (; !reservierungen.IsEOF(); reservierungen.MoveNext()) {
    Los_ausbuchen(lager, reservierungen);
    const auto stelle = stellen.constFind(reservierungen.Text(QStringLiteral("ReservationNumber")));
    if (stelle == stellen.cend()) continue;
    positionen.AbsolutePosition_setzen(*stelle);
    Versand_eintragen(positionen);
  }
  // What did not leave the stock was not dispatched.
  if (!Speichern(lager)) return;
  Speichern(positionen);
  for (const Belegkopf &kopf : BELEGKOEPFE)
    if (Beleg == kopf.Beleg)
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
