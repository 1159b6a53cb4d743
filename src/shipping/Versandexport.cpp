// Exporting the shipments for the shipper's software.
#include "Versandexport.h"

#include "Exportdatei.h"
#include "db/Ablaufverfolgung.h"
#include "host/Dateisperre.h"
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

constexpr int Wartezeit_ms = 10000;  // for another export of the same file

QString Einstellung(const char *Schluessel) {
  return Option_lesen(QStringLiteral("easylog"), QLatin1String(Schluessel));
}

void Hinweis(const QString &Text) {
  dialoge().Meldung(QStringLiteral("Hinweis"), {Text}, Symbol::Information);
}

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
/// taken out of the file, and comes again as a whole. One whose shipment or delimiter was changed since is
/// not known any more and stays, as does one that ends behind a line break within a field; a line goes out in
/// one piece, so that both take a crash of the machine.
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

bool Markieren(db::Recordset &Satz) {
  Satz.SetValue(QStringLiteral("Conveyed"), true);
  Satz.Update();
  if (Satz.UpdateBatch()) return true;
  Ablauf_melden(QStringLiteral("Versandliste_exportieren"),
                QStringLiteral("a shipment cannot be marked: it and those behind it stay open"));
  return false;
}

/// Ends at the first shipment that cannot be marked: its mark would go along with the next one's, without its
/// line.
bool Zeilen_schreiben(Exportdatei &Datei, db::Recordset &Satz, const QString &Trennzeichen,
                      int &Geschrieben) {
  const bool ohne_Datei = Datei.Zustand() == Exportdatei::Stand::Ohne_Datei;
  // The text of the progress window stays what it is: the export does not know the orders' numbers.
  for (int zahl = 1; !Satz.IsEOF(); Satz.MoveNext(), ++zahl) {
    const QByteArray zeile = Zeile_bilden(Satz, Trennzeichen);
    if (ohne_Datei) {
      if (!Markieren(Satz)) return false;
    } else if (Datei.Zeile_schreiben(zeile)) {
      if (!Markieren(Satz)) {
        Datei.Kuerzen(zeile.size());
        return false;
      }
      ++Geschrieben;
    }
    fortschritt().Wert(zahl);
  }
  return true;
}

void Datei_schreiben(db::Recordset &Satz, Versandexport &Ergebnis) {
  const QString trennzeichen = Einstellung("delimiter");
  const QByteArray kopf = Einstellung("columnheader") == u"1"
                              ? Mit_Zeilenende(Versandexport_Felder().join(trennzeichen))
                              : QByteArray();
  Exportdatei datei(Ergebnis.Datei, Einstellung("appendrecords") == u"1", kopf);
  if (datei.Zustand() == Exportdatei::Stand::Ohne_Kopf) return;
  Angefangene_Zeile_entfernen(datei, Satz, trennzeichen);
  Ergebnis.Markiert = Zeilen_schreiben(datei, Satz, trennzeichen, Ergebnis.Geschrieben);
}

/// Nothing is exported while somebody else does it: what he has read would go out twice. Where there can be
/// no lock, as in a folder without write access, the marks alone have to do.
bool Sperre_erhalten(Dateisperre &Sperre, const QString &Datei) {
  if (Datei.isEmpty() || Sperre.Sperren(Wartezeit_ms) != Dateisperre::Stand::Belegt) return true;
  Ablauf_melden(QStringLiteral("Versandliste_exportieren"), Datei + QStringLiteral(": another export is on"));
  return false;
}

Versandexport Gesperrt_exportieren() {
  const QString datei = Einstellung("file");
  Dateisperre sperre(datei + QStringLiteral(".lock"));
  if (!Sperre_erhalten(sperre, datei)) return {};
  // Behind the lock: what somebody else has just exported is marked by now.
  db::Recordset satz =
      Abfragen("SELECT " MARKLINK_EXPORTFELDER ", Conveyed FROM LogisticsEASYLOG WHERE Conveyed = 0");
  Versandexport ergebnis;
  ergebnis.Gelesen = satz.IsOpen();
  ergebnis.Versandauftraege = satz.RecordCount();
  if (ergebnis.Versandauftraege < 1) return ergebnis;
  ergebnis.Datei = datei;
  fortschritt().ProgressAnzeigen(QStringLiteral("Die Versandaufträge werden exportiert..."),
                                 ergebnis.Versandauftraege, false);
  Datei_schreiben(satz, ergebnis);
  fortschritt().Verbergen();
  return ergebnis;
}

}  // namespace

const QStringList &Versandexport_Felder() {
  static const QStringList felder = QStringLiteral(MARKLINK_EXPORTFELDER).split(QStringLiteral(", "));
  return felder;
}

Versandexport Versandliste_exportieren() {
  const Versandexport ergebnis = Gesperrt_exportieren();
  // Success whatever became of the rows, on purpose; the result tells.
  Hinweis(ergebnis.Versandauftraege < 1
              ? QStringLiteral("Es sind leider keine Daten für den Export nach Easylog vorhanden.")
              : QStringLiteral("Die Daten wurden erfolgreich exportiert."));
  return ergebnis;
}

}  // namespace marklink
