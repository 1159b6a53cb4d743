// Number ranges.
#include "Nummernkreise.h"

#include <QStringList>
#include <algorithm>

#include "Zaehler.h"
#include "Ziehungsaufsicht.h"
#include "db/Ablaufverfolgung.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Datumsbilder.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

constexpr qsizetype Elemente = 5;  ///< content, separator, content, separator, content

QString Zaehler_lesen(const QString &Bereich) { return Option_lesen(QStringLiteral("NumberRange"), Bereich); }

QString Format_lesen(const QString &Bereich) {
  QString eigenes = Option_lesen(QStringLiteral("Formatting"), Bereich).trimmed();
  if (!eigenes.isEmpty()) return eigenes;
  return Programmoption("DocumentNumberFormat").trimmed();
}

/// The date of the day, which stays that of the start also after midnight.
QString Heute(const QString &Bild) {
  return Datum_formatieren(Zeitpunkt(Kontext.gHeute), Bild.isEmpty() ? QStringLiteral("yyyymmdd") : Bild);
}

QString Trennzeichen(const QString &Wort) {
  const bool bekannt = Wort == u"-" || Wort == u"#" || Wort == u"/";
  return bekannt ? Wort : QString();
}

QString Inhalt(const QString &Wort, const QString &Zaehler) {
  if (Wort == u"Nr.") return Zaehler;
  if (Wort == u"Datum") return Heute(Programmoption("DateFormatting"));
  return Wort == u"Jahr" ? Heute(QStringLiteral("yyyy")) : QString();
}

QString Nummer_bilden(const QString &Bereich, const QString &Zaehler) {
  const QStringList worte = Format_lesen(Bereich).split(u';');
  QString nummer(QLatin1String(""));
  for (qsizetype i = 0; i < std::min(worte.size(), Elemente); ++i) {
    // The token counts in the first place only, and gives nothing elsewhere; this is intended.
    if (i == 0 && worte[i] == u"Kürzel")
      nummer += Option_lesen(QStringLiteral("Token"), Bereich);
    else
      nummer += i % 2 == 0 ? Inhalt(worte[i], Zaehler) : Trennzeichen(worte[i]);
  }
  return nummer;
}

/// Nothing is written where the counter stays as it is. False when another workstation has moved it since
/// `Alt` was read.
bool Zaehler_weiterstellen(const QString &Bereich, const QString &Alt) {
  const QString neu = Zaehler_erhoehen(Alt);
  if (neu != Alt)
    return Option_weiterstellen(QStringLiteral("NumberRange"), Bereich, Alt, neu) ||
           Zaehler_lesen(Bereich) == Alt;
  if (Ablaufverfolgung_an())
    Ablauf_melden(QStringLiteral("number range"), Bereich + QStringLiteral(": counter cannot move: ") + Alt);
  return true;
}

struct Ziehung {
  QString Nummer;   ///< null: none
  QString Zaehler;  ///< that it was made of
};

Ziehung Ziehen(const QString &Tabelle, const QString &Feld, const QString &Bereich) {
  Ziehungsaufsicht aufsicht(Bereich);
  for (;;) {
    const QString zaehler = Zaehler_lesen(Bereich);
    const QString nummer = Nummer_bilden(Bereich, zaehler);
    if (!Nummer_vorhanden(Tabelle, Feld, nummer)) return {nummer, zaehler};
    if (!aufsicht.Weiter(nummer)) break;
    // Whatever the range's switch for counting says; this is intended.
    Zaehler_weiterstellen(Bereich, zaehler);
  }
  Ablauf_melden(QStringLiteral("number range"), Bereich + QStringLiteral(": ended without a number"));
  return {};
}

/// Whether counting is switched off for the range.
bool Zaehlt_nicht(const QString &Bereich) {
  return Option_lesen(QStringLiteral("Counting"), Bereich) == u"0";
}

Nummernkreis Kreis(const char *Name, const char *Tabelle, const char *Feld) {
  return {QLatin1String(Name), QLatin1String(Tabelle), QLatin1String(Feld)};
}

}  // namespace

const std::vector<Nummernkreis> &Nummernkreise() {
  static const std::vector<Nummernkreis> alle{
      Kreis("Contract", "Contract", "ContractNumber"),
      Kreis("Invoice", "Invoice", "InvoiceNumber"),
      Kreis("Customer", "Contacts", "CustomerNumber"),
      Kreis("Article", "Articles", "ArticleNumber"),
      Kreis("Layout", "ArticleLayout", "LayoutNumber"),
      Kreis("Reservation", "Reservations", "ReservationNumber"),
      Kreis("Stocking", "Warehouse", "StockingNumber"),
      Kreis("Payment", "PaymentIncome", "PaymentNumber"),
      Kreis("OpenItem", "OpenItems", "OpenItemNumber"),
  };
  return alle;
}

const Nummernkreis *Nummernkreis_suchen(const QString &Name) {
  for (const Nummernkreis &kreis : Nummernkreise())
    if (kreis.Name.compare(Name, Qt::CaseInsensitive) == 0) return &kreis;
  return nullptr;
}

QString Belegnummer_formatieren(const QString &Bereich) {
  return Nummer_bilden(Bereich, Zaehler_lesen(Bereich));
}

bool Nummer_vorhanden(const QString &Tabelle, const QString &Feld, const QString &Wert) {
  return Abfragen(db::Anweisung("Select * from ", db::Name{Tabelle}, " Where ", db::Name{Feld}, " = ",
                                db::Wert{Wert}, " Order by ", db::Name{Feld}))
             .RecordCount() > 0;
}

QString Nummer_ziehen(const QString &Tabelle, const QString &Feld, const QString &Bereich) {
  return Ziehen(Tabelle, Feld, Bereich).Nummer;
}

void Nummernkreis_hochzaehlen(const QString &Bereich) {
  if (!Zaehlt_nicht(Bereich)) Zaehler_weiterstellen(Bereich, Zaehler_lesen(Bereich));
}

QString Nummer_nehmen(const QString &Tabelle, const QString &Feld, const QString &Bereich,
                      Leere_Nummer Leere) {
  // A bound: each round somebody else has moved the counter.
  for (int versuche = 100;; --versuche) {
    const Ziehung z = Ziehen(Tabelle, Feld, Bereich);
    const bool unbrauchbar = Leere == Leere_Nummer::Zaehlt ? z.Nummer.isNull() : z.Nummer.isEmpty();
    if (unbrauchbar || Zaehlt_nicht(Bereich) || Zaehler_weiterstellen(Bereich, z.Zaehler) || versuche == 0)
      return z.Nummer;
  }
}

Nummernvorschau Nummer_vorausschauen(const QString &Tabelle, const QString &Feld, const QString &Bereich) {
  QString zaehler = Zaehler_lesen(Bereich);
  QString nummer = Nummer_bilden(Bereich, zaehler);
  // Ends, since a counter that still moves passes each row of the table once at most.
  while (Nummer_vorhanden(Tabelle, Feld, nummer)) {
    zaehler = Zaehler_erhoehen(zaehler);
    const QString naechste = Nummer_bilden(Bereich, zaehler);
    if (naechste == nummer || Kontext.gAbbrechen) return {nummer, false};
    nummer = naechste;
  }
  return {nummer, true};
}

}  // namespace marklink
