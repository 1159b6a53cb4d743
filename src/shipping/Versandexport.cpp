// Writing the file for the shipper's software.
#include "Versandexport.h"

#include <QFile>
#include <QFileInfo>

#include "db/Ablaufverfolgung.h"
#include "host/Dateien.h"
#include "host/Datenbank.h"
#include "host/Zahlen.h"
#include "host/Zeichensatz.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

// The columns of the export in the order of the file; behind them the mark, which is not written.
#define MARKLINK_EXPORTFELDER                                                                             \
  "POOL_REFNR, POOL_V_ABS_REFNR, POOL_V_ABS_BEMERKUNG, POOL_V_MAND_REFNR, POOL_V_VERFAHREN, "             \
  "POOL_V_TEILNAHME, POOL_V_KSTSTELLE_KUERZEL, POOL_V_PRODUKT_CN, POOL_V_EXTRASLST, POOL_V_NN_WAEHRUNG, " \
  "POOL_WERT_WAEHRUNG, POOL_EMPF_REFNR, POOL_EMPF_NAME1, POOL_EMPF_NAME2, POOL_EMPF_NAME3, "              \
  "POOL_EMPF_PLZ, POOL_EMPF_ORT, POOL_EMPF_ORTTEIL, POOL_EMPF_STRASSE, POOL_EMPF_HAUSNR, POOL_EMPF_TEL, " \
  "POOL_EMPF_FAX, POOL_EMPF_EMAIL, POOL_EMPF_APARTNER, POOL_EMPF_BEMERKUNG, POOL_EMPF_USTID, "            \
  "POOL_EMPF_LANDCODE, POOL_EMPF_GEWICHT, POOL_ANZAHL_SENDUNGEN, POOL_V_ZOLL_WARENART, "                  \
  "POOL_V_ZOLL_WARENLISTE, POOL_V_VORAUSVERF_NAT, POOL_V_VORAUSVERF_NAT_UNZUST, POOL_V_VORAUSVERF_INT, "  \
  "POOL_EPACK_VORAUS, POOL_EP_VORAUS, POOL_V_VORAUSVERF_INT_TERMIN, POOL_V_VORAUSVERF_INT_TRANSP, "       \
  "POOL_ABWERK_ANZAHL, POOL_ABWERK_NR, POOL_ABWERK_DATE, POOL_ABWERK_BBNNR, POOL_SHIPMENT_ID, "           \
  "POOL_VORDATE, POOL_EXWORKS, POOL_CONTENTS, POOL_IDENTEXPRESS, POOL_VERWENDUNGSZWECK, "                 \
  "POOL_EXTRADATA, POOL_SENDUNGSINHALTDHL, POOL_RECHNUNGSARTDHL, POOL_RECHNUNGSNUMMERDHL, "               \
  "POOL_RECHNUNGSDATUMDHL, POOL_UNTERZEICHNERDHL, POOL_ZOLLTARIFDHL, POOL_RECHNUNGSBEMDHL, "              \
  "POOL_EXPORTARTDHL, POOL_EXPORTGRUNDDHL, POOL_HANDELSBEDINGUNGENDHL, POOL_RECHNUNGSPOSITIONENDHL"

constexpr qint64 Laengste_Zeile = qint64{1024} * 1024;

QString Einstellung(const char *Schluessel) {
  return Option_lesen(QStringLiteral("easylog"), QLatin1String(Schluessel));
}

void Hinweis(const QString &Text) {
  dialoge().Meldung(QStringLiteral("Hinweis"), {Text}, Symbol::Information);
}

/// The export file. One that cannot be opened takes every line without writing it.
class Exportdatei {
 public:
  explicit Exportdatei(const QString &Pfad) : Datei_(Pfad) {
    const bool neu = !Datei_existiert(Pfad);
    Kopf_noetig_ = neu && Einstellung("columnheader") == u"1";
    const auto weise = Einstellung("appendrecords") == u"1" ? QIODevice::Append : QIODevice::Truncate;
    // Unbuffered: a line goes out as a whole. Only into a plain file: opening anything else may wait for
    // ever.
    Offen_ = !Pfad.isEmpty() && (neu || QFileInfo(Pfad).isFile()) &&
             Datei_.open(QIODevice::WriteOnly | QIODevice::Unbuffered | weise);
    if (!Offen_) Melden();
    Groesse_ = Datei_.size();
  }

  bool Offen() const { return Offen_; }
  bool Kopf_noetig() const { return Kopf_noetig_; }

  /// What stands behind the file's last whole line.
  QByteArray Angefangene_Zeile() const {
    QFile datei(Datei_.fileName());
    if (!Offen_ || !datei.open(QIODevice::ReadOnly)) return {};
    datei.seek(qMax(qint64(0), Groesse_ - Laengste_Zeile));
    const QByteArray ende = datei.readAll();
    const qsizetype zeilenende = ende.lastIndexOf("\r\n");
    return zeilenende < 0 ? ende : ende.mid(zeilenende + 2);
  }
  void Kuerzen(qsizetype Bytes) {
    if (Datei_.resize(Groesse_ - Bytes)) Groesse_ -= Bytes;
  }

  /// False, and the file as it was, when the line cannot be written whole.
  bool Zeile_schreiben(const QByteArray &Zeile) {
    if (Datei_.write(Zeile) == Zeile.size()) {
      Groesse_ += Zeile.size();
      return true;
    }
    Melden();
    Datei_.resize(Groesse_);
    return false;
  }

 private:
  void Melden() const {
    const bool versucht = Datei_.error() != QFileDevice::NoError;
    Ablauf_melden(
        QStringLiteral("Versandliste_exportieren"),
        QStringLiteral("'%1': %2")
            .arg(Datei_.fileName(), versucht ? Datei_.errorString() : QStringLiteral("not a file")));
  }

  QFile Datei_;
  bool Kopf_noetig_ = false, Offen_ = false;
  qint64 Groesse_ = 0;
};

/// A weight as the list holds it, with three decimals, becomes one with two; what is no number stays.
QString Gewicht_umschreiben(const QString &Text) {
  const std::optional<double> gewicht = Zahl_deutsch(Text);
  return gewicht ? Zahl_formatieren(*gewicht, QStringLiteral("standard")) : Text;
}

QByteArray Mit_Zeilenende(const QString &Zeile) { return Nach_1252(Zeile) + "\r\n"; }

QByteArray Zeile_bilden(const db::Recordset &Satz, const QString &Trennzeichen) {
  static const qsizetype gewicht = Versandexport_Felder().indexOf(QStringLiteral("POOL_EMPF_GEWICHT"));
  QString zeile;
  for (qsizetype i = 0; i < Versandexport_Felder().size(); ++i) {
    // Only behind something: leading empty fields are dropped with their delimiters, on purpose.
    if (!zeile.isEmpty()) zeile += Trennzeichen;
    const QString text = Satz.Text(Versandexport_Felder()[i]);
    zeile += i == gewicht ? Gewicht_umschreiben(text) : text;
  }
  return Mit_Zeilenende(zeile);
}

/// A process that is killed may leave the beginning of a line in the file. Its shipment is still open: it is
/// taken out of the file, and comes again as a whole.
void Angefangene_Zeile_entfernen(Exportdatei &Datei, db::Recordset &Satz, const QString &Trennzeichen) {
  const QByteArray rest = Datei.Angefangene_Zeile();
  if (rest.isEmpty()) return;
  for (; !Satz.IsEOF(); Satz.MoveNext()) {
    if (!Zeile_bilden(Satz, Trennzeichen).startsWith(rest)) continue;
    Datei.Kuerzen(rest.size());
    break;
  }
  Satz.MoveFirst();
}

void Markieren(db::Recordset &Satz) {
  Satz.SetValue(QStringLiteral("Conveyed"), true);
  Satz.Update();
  Satz.UpdateBatch();
}

void Zeilen_schreiben(db::Recordset &Satz, Versandexport &Ergebnis) {
  Exportdatei datei(Ergebnis.Datei);
  const QString trennzeichen = Einstellung("delimiter");
  if (datei.Offen() && datei.Kopf_noetig())
    datei.Zeile_schreiben(Mit_Zeilenende(Versandexport_Felder().join(trennzeichen)));
  Angefangene_Zeile_entfernen(datei, Satz, trennzeichen);
  // The text of the progress window stays what it is: the export does not know the orders' numbers.
  for (int zahl = 1; !Satz.IsEOF(); Satz.MoveNext(), ++zahl) {
    const bool geschrieben = datei.Offen() && datei.Zeile_schreiben(Zeile_bilden(Satz, trennzeichen));
    if (geschrieben) ++Ergebnis.Geschrieben;
    if (geschrieben || !datei.Offen()) Markieren(Satz);
    fortschritt().Wert(zahl);
  }
}

}  // namespace

const QStringList &Versandexport_Felder() {
  static const QStringList felder = QStringLiteral(MARKLINK_EXPORTFELDER).split(QStringLiteral(", "));
  return felder;
}

Versandexport Versandliste_exportieren() {
  db::Recordset satz =
      Abfragen("SELECT " MARKLINK_EXPORTFELDER ", Conveyed FROM LogisticsEASYLOG WHERE Conveyed = 0");
  Versandexport ergebnis;
  ergebnis.Gelesen = satz.IsOpen();
  ergebnis.Versandauftraege = satz.RecordCount();
  if (ergebnis.Versandauftraege < 1) {
    Hinweis(QStringLiteral("Es sind leider keine Daten für den Export nach Easylog vorhanden."));
    return ergebnis;
  }
  ergebnis.Datei = Einstellung("file");
  fortschritt().ProgressAnzeigen(QStringLiteral("Die Versandaufträge werden exportiert..."),
                                 ergebnis.Versandauftraege, false);
  Zeilen_schreiben(satz, ergebnis);
  fortschritt().Verbergen();
  Hinweis(QStringLiteral("Die Daten wurden erfolgreich exportiert."));
  return ergebnis;
}

}  // namespace marklink
