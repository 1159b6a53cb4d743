// marklink posten: the open item of an invoice with all its figures. Reads only.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Ausgabe.h"
#include "Befehlszeile.h"
#include "Sitzung.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"
#include "host/Zahlen.h"
#include "rules/Berechnung.h"
#include "rules/Zahlungsverkehr.h"

namespace marklink {
namespace {

struct Auskunft {
  QString Posten;  ///< null: not in the books yet, the figures are those it would get
  QString Rechnung;
  Postenwerte Werte;
  QString Filiale, Mitarbeiter;
  QDate Bezahlt_am;
  bool Ausfall = false;
  QString Ausfallnotiz;
  QStringList Zahlungen, Gutschriften;
};

QString Belegwort() { return QStringLiteral("Rechnung"); }

QDate Tag(const db::Recordset &rs, const char *Feld) {
  return rs.Value(QLatin1String(Feld)).toDateTime().date();
}

void Posten_uebernehmen(Auskunft &A, const db::Recordset &Posten) {
  const auto zahl = [&Posten](const char *feld) { return Posten.Number(QLatin1String(feld)); };
  const auto text = [&Posten](const char *feld) { return Posten.Text(QLatin1String(feld)); };
  Postenwerte &w = A.Werte;
  w.Betrag = zahl("Amount");
  w.Mahngebuehren = zahl("OverdueFines");
  w.Gutschriften = zahl("CreditAmount");
  w.Zahlungseingaenge = zahl("PaymentsReceived");
  w.Auszahlungen = zahl("OutgoingPayments");
  w.Offen = zahl("OutstandingAmount");
  // The item does not keep the cash discount: it is what the other figures leave.
  w.Skonto = Runden(w.Betrag + w.Mahngebuehren - w.Gutschriften - w.Zahlungseingaenge - w.Offen, 2);
  w.Bezahlt = Posten.Flag(QStringLiteral("Paid"));
  w.Datum = Tag(Posten, "Date");
  w.Faellig = Tag(Posten, "DuePayment");
  w.Kontaktnummer = text("ContactNumber");
  w.Kontakt = text("Contact");
  A.Posten = text("OpenItemNumber");
  A.Filiale = text("Store");
  A.Mitarbeiter = text("Employee");
  A.Bezahlt_am = Tag(Posten, "PaidDate");
  A.Ausfall = Posten.Flag(QStringLiteral("BadDebt"));
  A.Ausfallnotiz = text("BadDebtNotice");
}

/// Nothing when there is neither an open item nor such an invoice.
std::optional<Auskunft> Auskunft_einholen(const QString &Rechnung) {
  Auskunft a;
  a.Rechnung = Rechnung;
  const db::Recordset posten = Abfragen({"SELECT * FROM OpenItems WHERE Document = ", db::Wert{Belegwort()},
                                         " AND  DocumentNumber = ", db::Wert{Rechnung}});
  if (posten.RecordCount() > 0) {
    Posten_uebernehmen(a, posten);
  } else {
    const auto werte = Postenwerte_ermitteln(Postenart::Rechnung, Rechnung, Belegwort());
    if (!werte) return std::nullopt;
    a.Werte = *werte;
  }
  Zahlungen_Summe(Belegwort(), Rechnung, &a.Zahlungen);
  Gutschriften_Summe(Rechnung, &a.Gutschriften);
  return a;
}

QJsonValue Tag_als_Json(const QDate &Tag) {
  return Tag.isValid() ? QJsonValue(Tag.toString(Qt::ISODate)) : QJsonValue();
}

QJsonObject Als_Json(const Auskunft &A) {
  const Postenwerte &w = A.Werte;
  return {{QStringLiteral("posten"), A.Posten.isNull() ? QJsonValue() : QJsonValue(A.Posten)},
          {QStringLiteral("rechnung"), A.Rechnung},
          {QStringLiteral("datum"), Tag_als_Json(w.Datum)},
          {QStringLiteral("kundennummer"), w.Kontaktnummer},
          {QStringLiteral("kunde"), w.Kontakt},
          {QStringLiteral("filiale"), A.Filiale},
          {QStringLiteral("mitarbeiter"), A.Mitarbeiter},
          {QStringLiteral("betrag"), w.Betrag},
          {QStringLiteral("skonto"), w.Skonto},
          {QStringLiteral("mahngebuehren"), w.Mahngebuehren},
          {QStringLiteral("zahlungseingaenge"), w.Zahlungseingaenge},
          {QStringLiteral("gutschriften"), w.Gutschriften},
          {QStringLiteral("auszahlungen"), w.Auszahlungen},
          {QStringLiteral("offen"), w.Offen},
          {QStringLiteral("faellig"), Tag_als_Json(w.Faellig)},
          {QStringLiteral("bezahlt"), w.Bezahlt},
          {QStringLiteral("bezahlt_am"), Tag_als_Json(A.Bezahlt_am)},
          {QStringLiteral("ausfall"), A.Ausfall},
          {QStringLiteral("ausfallnotiz"), A.Ausfallnotiz},
          {QStringLiteral("zahlungsnummern"), QJsonArray::fromStringList(A.Zahlungen)},
          {QStringLiteral("gutschriftsbelege"), QJsonArray::fromStringList(A.Gutschriften)}};
}

QString Als_Text(const Auskunft &A) {
  const Postenwerte &w = A.Werte;
  const auto datum = [](const QDate &tag) {
    return tag.isValid() ? Datum_formatieren(Zeitpunkt(tag), QStringLiteral("short date")) : QString();
  };
  QStringList zeilen;
  const auto zeile = [&zeilen](const QString &titel, const QString &wert) {
    zeilen << (titel + u':').leftJustified(21) + Anzeigbar(wert);
  };
  const auto betrag = [&zeile](const QString &titel, double wert, const QStringList &belege = {}) {
    const QString text = Zahl_formatieren(wert, QStringLiteral("standard")).rightJustified(12);
    zeile(titel, belege.isEmpty() ? text : text + QStringLiteral("   ") + belege.join(QLatin1String(", ")));
  };
  zeile(QStringLiteral("Offener Posten"),
        A.Posten.isNull() ? QStringLiteral("noch nicht angelegt") : A.Posten);
  zeile(QStringLiteral("Rechnung"), QStringLiteral("%1 vom %2").arg(A.Rechnung, datum(w.Datum)));
  zeile(QStringLiteral("Kunde"), QStringLiteral("%1 %2").arg(w.Kontaktnummer, w.Kontakt));
  betrag(QStringLiteral("Betrag"), w.Betrag);
  betrag(QStringLiteral("- Skonto"), w.Skonto);
  betrag(QStringLiteral("+ Mahngebühren"), w.Mahngebuehren);
  betrag(QStringLiteral("- Zahlungseingänge"), w.Zahlungseingaenge, A.Zahlungen);
  betrag(QStringLiteral("- Gutschriften"), w.Gutschriften, A.Gutschriften);
  betrag(QStringLiteral("= Offen (%1)").arg(Kontext.gCurrency), w.Offen);
  betrag(QStringLiteral("Auszahlungen"), w.Auszahlungen);
  zeile(QStringLiteral("Fällig am"), datum(w.Faellig));
  zeile(QStringLiteral("Bezahlt"),
        w.Bezahlt ? QStringLiteral("ja ") + datum(A.Bezahlt_am) : QStringLiteral("nein"));
  if (A.Ausfall) zeile(QStringLiteral("Forderungsausfall"), QStringLiteral("ja ") + A.Ausfallnotiz);
  return zeilen.join(u'\n');
}

}  // namespace

int Befehl_Posten(const Aufruf &A) {
  if (!Mandant_oeffnen(A)) return Fehlgeschlagen;
  const QString nummer = A.Argumente[0];
  const std::optional<Auskunft> auskunft = Auskunft_einholen(nummer);
  if (!auskunft) {
    Fehler_melden(QStringLiteral("Die Rechnung '%1' ist nicht vorhanden.").arg(nummer));
    return Fehlgeschlagen;
  }
  if (A.Gegeben("json"))
    Ausgeben(QString::fromUtf8(QJsonDocument(Als_Json(*auskunft)).toJson()).trimmed());
  else
    Ausgeben(Als_Text(*auskunft));
  return Erledigt;
}

}  // namespace marklink
