// Reserving a document's lots, and giving them back.
#include <QMap>
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

db::Recordset Zugeteilte_Positionen_lesen(const QString &Beleg, const QString &Belegnummer) {
  return Abfragen({"SELECT * FROM Positions WHERE Document = ", db::Wert{Beleg},
                   " AND DocumentNumber = ", db::Wert{Belegnummer}, " AND ",
                   db::Teiltext{Bedingung_IstNull(QStringLiteral("StorageNumber"), false)}});
}

/// Moves a quantity from the freely available to the reserved stock of a lot; negative: back.
void Umbuchen(db::Recordset &Lager, double Menge) {
  Menge_aendern(Lager, QStringLiteral("Unsociable"), Menge);
  Menge_aendern(Lager, QStringLiteral("Disposable"), -Menge);
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
  bool Vormerken();
  /// Books the lots and saves the reservations of those that were booked; nothing when a set could not be
  /// read. False when anything is missing.
  bool Abschliessen();

 private:
  /// The lots of a line, and for each the number of its reservation; empty: left out.
  struct Zeile {
    int Stelle;
    std::vector<Los> Lose;
    QStringList Nummern;
  };

  bool Lesbar() const { return Lager_.IsOpen() && Positionen_.IsOpen() && Reservierungen_.IsOpen(); }
  QString Los_vormerken(const Los &L);
  void Zeile_reservieren(Zeile &Z, const QSet<QString> &Gescheitert);
  void Reservierung_anhaengen(const Los &L, const QString &Nummer);
  QString Neue_Nummer();

  const QString Mitarbeiter_;
  const bool Art_, Gezaehlt_;
  db::Recordset Lager_, Positionen_, Reservierungen_;
  std::vector<Zeile> Zeilen_;
  Losmengen Mengen_;
  QSet<QString> Vergebene_;
};

bool Reservierungslauf::Vormerken() {
  bool alles = true;
  for (; Lesbar() && !Positionen_.IsEOF(); Positionen_.MoveNext()) {
    Zeile zeile{Positionen_.AbsolutePosition(),
                Zuteilung_zerlegen(Positionen_.Text(QStringLiteral("StorageNumber"))),
                {}};
    for (const Los &los : zeile.Lose) zeile.Nummern << Los_vormerken(los);
    alles &= !zeile.Nummern.contains(QString());
    Zeilen_.push_back(std::move(zeile));
  }
  return alles && Lesbar();
}

/// The number of the new reservation; empty when the lot cannot be reserved.
QString Reservierungslauf::Los_vormerken(const Los &L) {
  const double menge = Los_Zahl(L, Losfeld::Menge);
  const QString einlagerung = Los_Text(L, Losfeld::Einlagerung);
  const bool da = menge > 0 && Los_suchen(Lager_, einlagerung);
  QString nummer = da ? Neue_Nummer() : QString();
  if (nummer.isEmpty())
    Ablauf_melden(
        QStringLiteral("Reservierungen_erzeugen"),
        (da ? QStringLiteral("no number for lot: ") : QStringLiteral("no such lot: ")) + L.join(u';'));
  else
    Mengen_[einlagerung] = Menge_summe(Mengen_.value(einlagerung), menge);
  return nummer;
}

/// Reservations of this run are not stored yet, so a range that stands still would give their numbers again.
QString Reservierungslauf::Neue_Nummer() {
  if (!Gezaehlt_) return generateGUID();
  QString nummer = Nummer_nehmen(QStringLiteral("Reservations"), QStringLiteral("ReservationNumber"),
                                 QStringLiteral("Reservation"));
  if (nummer.isEmpty() || Vergebene_.contains(nummer)) return {};
  Vergebene_.insert(nummer);
  return nummer;
}

bool Reservierungslauf::Abschliessen() {
  if (!Lesbar()) return false;
  const QSet<QString> gescheitert = Lose_buchen(Mengen_, Umbuchen);
  for (Zeile &zeile : Zeilen_) Zeile_reservieren(zeile, gescheitert);
  const bool positionen = Speichern(Positionen_);
  return Speichern(Reservierungen_) && positionen && gescheitert.isEmpty();
}

void Reservierungslauf::Zeile_reservieren(Zeile &Z, const QSet<QString> &Gescheitert) {
  const QString nummernfeld = QStringLiteral("ReservationNumber");
  Positionen_.AbsolutePosition_setzen(Z.Stelle);
  QStringList nummern = Positionen_.Text(nummernfeld).split(u';', Qt::SkipEmptyParts);
  const qsizetype vorher = nummern.size();
  for (std::size_t i = 0; i < Z.Lose.size(); ++i) {
    const QString &nummer = Z.Nummern[qsizetype(i)];
    if (nummer.isEmpty() || Gescheitert.contains(Los_Text(Z.Lose[i], Losfeld::Einlagerung))) continue;
    Reservierung_anhaengen(Z.Lose[i], nummer);
    Los_setzen(Z.Lose[i], Losfeld::Reservierung, nummer);
    nummern << nummer;
  }
  if (nummern.size() == vorher) return;
  Positionen_.SetValue(nummernfeld, nummern.join(u';'));
  Positionen_.SetValue(QStringLiteral("StorageNumber"), Zuteilung_verbinden(Z.Lose));
  Positionen_.Update();
}

void Reservierungslauf::Reservierung_anhaengen(const Los &L, const QString &Nummer) {
  const auto setzen = [this](const char *feld, const QVariant &wert) {
    Reservierungen_.SetValue(QLatin1String(feld), wert);
  };
  Los_suchen(Lager_, Los_Text(L, Losfeld::Einlagerung));
  Reservierungen_.AddNew();
  setzen("ReservationNumber", Nummer);
  setzen("ReservationType", Art_);
  setzen("StockingNumber", Los_Text(L, Losfeld::Einlagerung));
  setzen("StorageNumber", Los_Text(L, Losfeld::Lager));
  setzen("ArticleNumber", Los_Text(L, Losfeld::Artikel));
  setzen("Quantity", Los_Zahl(L, Losfeld::Menge));
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

/// What is to be given back, by lot; tells the user of each reservation whose lot is gone. False when the
/// stock cannot be read.
bool Rueckgaben_sammeln(Losmengen &Mengen, db::Recordset &Reservierungen) {
  db::Recordset lager = Abfragen("SELECT * FROM Warehouse");
  for (; lager.IsOpen() && !Reservierungen.IsEOF(); Reservierungen.MoveNext()) {
    const QString einlagerung = Reservierungen.Text(QStringLiteral("StockingNumber"));
    const bool da = Los_suchen(lager, einlagerung);
    if (!lager.IsOpen()) break;  // not gone, only not to be read now
    if (da)
      Mengen[einlagerung] =
          Menge_summe(Mengen.value(einlagerung), -Reservierungen.Number(QStringLiteral("Quantity")));
    else
      Fehlendes_Los_melden();
  }
  return lager.IsOpen();
}

bool Aufloesen(const QString &Beleg, const QString &Belegnummer) {
  db::Recordset positionen = Positionen_lesen(Beleg, Belegnummer);
  db::Recordset reservierungen = Reservierungen_lesen(Beleg, Belegnummer);
  Losmengen mengen;
  if (!positionen.IsOpen() || !reservierungen.IsOpen() || !Rueckgaben_sammeln(mengen, reservierungen))
    return false;
  // Reservations whose quantity did not get back into stock stay, for another try.
  const QSet<QString> gescheitert = Lose_buchen(mengen, Umbuchen);
  QMap<QString, QStringList> bleibende;  // by line
  for (reservierungen.MoveFirst(); !reservierungen.IsEOF();) {
    QStringList &nummern = bleibende[reservierungen.Text(QStringLiteral("LineItemNumber"))];
    if (gescheitert.contains(reservierungen.Text(QStringLiteral("StockingNumber")))) {
      nummern << reservierungen.Text(QStringLiteral("ReservationNumber"));
      reservierungen.MoveNext();
    } else {
      reservierungen.Delete();  // the next one is current now
    }
  }
  for (auto zeile = bleibende.cbegin(); zeile != bleibende.cend(); ++zeile) {
    if (!positionen.Filter({"LineItemNumber = ", db::Wert{zeile.key()}}) || positionen.RecordCount() < 1)
      continue;
    positionen.SetValue(QStringLiteral("ReservationNumber"), zeile->join(u';'));
    positionen.Update();
  }
  const bool positionen_gut = Speichern(positionen);
  return Speichern(reservierungen) && positionen_gut && gescheitert.isEmpty();
}

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

}  // namespace marklink
