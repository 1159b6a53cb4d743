// Loading the shipments, changing and storing them.
#include "Versandliste.h"

#include "Versandspalten.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "host/Texte.h"
#include "ui/Listenladung.h"

namespace marklink {

namespace {

constexpr int AUSWAHL = 0;  // the column of the mark
constexpr int BESTELLNUMMER = 1;
constexpr std::size_t Viele_Aenderungen = 200;

int Spaltenzahl() { return int(Versandspalten().size()); }

const std::vector<QString> &Feldnamen() {
  static const std::vector<QString> namen = [] {
    std::vector<QString> liste;
    for (const Versandspalte &spalte : Versandspalten()) liste.emplace_back(QLatin1String(spalte.Schluessel));
    return liste;
  }();
  return namen;
}

bool Ist_gleich(const QVariant &A, const QVariant &B) { return Null_als_Text(A) == Null_als_Text(B); }

}  // namespace

Versandliste::Versandliste() : Zellen_(Spaltenzahl()) {}

db::Anweisung Versandliste::Ladeanweisung() {
  db::Anweisung bedingung = Zeitraumbedingung(QStringLiteral("[Date]"));
  if (bedingung.Leer())
    bedingung = " WHERE Conveyed = 0";
  else
    bedingung = {" WHERE ", bedingung, " AND Conveyed = 0"};
  return {"SELECT * FROM LogisticsEASYLOG", bedingung, " ORDER BY OrderID,Date"};
}

void Versandliste::Versandliste_laden() {
  db::Recordset satz = Abfragen(Ladeanweisung());
  Vorher_.clear();
  Zeilen_einlesen(Zellen_, satz, Feldnamen(),
                  {QStringLiteral("Die Versandaufträge werden eingelesen..."),
                   QStringLiteral("Versandauftrag '%1' wird eingelesen...")});
  if (Geladen) Geladen();
}

bool Versandliste::Versandliste_speichern() {
  if (!Geaendert()) return true;
  db::Recordset satz = Abfragen("SELECT * FROM LogisticsEASYLOG");
  bool alles = satz.IsOpen();
  // Each look-up in a set that is not read goes through the rows that are changed already.
  if (Vorher_.size() > Viele_Aenderungen) satz.RecordCount();
  int letzte = -1;
  for (const auto &[stelle, vorher] : Vorher_) {
    if (stelle.first == letzte) continue;
    letzte = stelle.first;
    const QString nummer = Zellen_.Lesen(letzte, BESTELLNUMMER).toString();
    // A set that could not be filtered shows its first row: somebody else's.
    if (!satz.Filter({"OrderID = ", db::Wert{nummer}}))
      alles = false;
    else if (satz.RecordCount() > 0)
      Zeile_schreiben(satz, letzte);
    else
      Ablauf_melden(QStringLiteral("Versandliste_speichern"), QStringLiteral("no longer there: ") + nummer);
  }
  alles = satz.UpdateBatch() && alles;
  if (alles) Vorher_.clear();
  return alles;
}

/// A field that somebody else has changed since it was loaded keeps his value, above all the mark of an
/// export: or the shipment would go out twice.
void Versandliste::Zeile_schreiben(db::Recordset &Satz, int Zeile) {
  for (auto ort = Vorher_.lower_bound({Zeile, 0}); ort != Vorher_.end() && ort->first.first == Zeile; ++ort) {
    const QString &feld = Feldnamen()[size_t(ort->first.second)];
    if (Ist_gleich(Satz.Value(feld), ort->second))
      Satz.SetValue(feld, Zellen_.Lesen(Zeile, ort->first.second));
    else
      Ablauf_melden(QStringLiteral("Versandliste_speichern"),
                    QStringLiteral("changed by somebody else meanwhile: ") + feld);
  }
  Satz.Update();
}

bool Versandliste::Vorhanden(int Zeile, int Spalte) const {
  return Zeile >= 0 && Zeile < Zeilen() && Spalte >= 0 && Spalte < Spaltenzahl();
}

QVariant Versandliste::Zelle(int Zeile, int Spalte) const {
  return Vorhanden(Zeile, Spalte) ? Zellen_.Lesen(Zeile, Spalte) : QVariant();
}

bool Versandliste::Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) {
  static const int datum = Versandspalte_finden("Date");
  if (!Vorhanden(Zeile, Spalte) || Spalte == BESTELLNUMMER) return false;
  QVariant neu = Wert;
  if (Spalte == datum && Wert.typeId() == QMetaType::QString) {
    const QString text = Wert.toString().trimmed();
    const QDateTime zeit = Datum_lesen(text);
    if (!zeit.isValid() && !text.isEmpty()) return false;
    neu = zeit.isValid() ? QVariant(zeit) : QVariant();
  }
  if (Spalte == AUSWAHL) neu = Zelle_wahr(Wert);
  const QVariant bisher = Zellen_.Lesen(Zeile, Spalte);
  if (Ist_gleich(bisher, neu)) return true;
  Vorher_.try_emplace({Zeile, Spalte}, bisher);
  Zellen_.Schreiben(Zeile, Spalte, neu);
  return true;
}

bool Versandliste::Gesperrt() const { return Kontext.gLaeuft; }

void Versandliste::Alle_markieren(bool Ja) {
  for (int zeile = 0; zeile < Zeilen(); ++zeile) Zelle_setzen(zeile, AUSWAHL, Ja);
}

int Versandliste::Auswahl_zaehlen() const {
  int anzahl = 0;
  for (int zeile = 0; zeile < Zeilen(); ++zeile) anzahl += Zellen_.Wahr(zeile, AUSWAHL) ? 1 : 0;
  return anzahl;
}

Auftragsanschriften Versandliste::Anschriften(int Zeile) const {
  if (!Vorhanden(Zeile, BESTELLNUMMER)) return {};
  return Auftrag_Anschriften_anzeigen(Zellen_.Lesen(Zeile, BESTELLNUMMER).toString());
}

void Versandliste::Teilnahmefarben_setzen(std::optional<qint32> Eins, std::optional<qint32> Zwei) {
  Farbe_Eins_ = Eins;
  Farbe_Zwei_ = Zwei;
}

std::optional<qint32> Versandliste::Zeilenfarbe(int Zeile) const {
  static const int spalte = Versandspalte_finden("POOL_V_TEILNAHME");
  const QString teilnahme = Zelle(Zeile, spalte).toString();
  if (teilnahme == u"01") return Farbe_Eins_;
  return teilnahme == u"02" ? Farbe_Zwei_ : std::nullopt;
}

}  // namespace marklink
