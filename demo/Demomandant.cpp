// Writes the demo client's rows through record sets, and names its settings.
#include "Demomandant.h"

#include "Demoshop.h"
#include "db/Ablaufverfolgung.h"
#include "db/Recordset.h"
#include "host/Datenbank.h"

namespace marklink::demo {

namespace {

/// The column that tells whether a row of a shop's list is there already; empty for the demo's own tables.
QString Listenschluessel(const char *Tabelle) {
  const QLatin1String Name(Tabelle);
  if (Name == QLatin1String("Units") || Name == QLatin1String("CustomerTypes"))
    return QStringLiteral("Description");
  if (Name == QLatin1String("WebshopOrderStatusXTC")) return QStringLiteral("WebshopID");
  return {};
}

bool Tabelle_schreiben(const Tabellenzeilen &T, const QString &Verbindung) {
  const QString Schluessel = Listenschluessel(T.Tabelle);
  const qsizetype Schluesselspalte = T.Spalten.indexOf(Schluessel);
  db::Recordset Satz;
  if (!Satz.Open(db::Anweisung("SELECT * FROM ", db::Name{QLatin1String(T.Tabelle)}), Verbindung))
    return false;
  for (const QVariantList &Zeile : T.Zeilen) {
    if (Schluesselspalte >= 0) {
      Satz.Filter(db::Anweisung(db::Name{Schluessel}, " = ", db::Wert{Zeile[Schluesselspalte].toString()}));
      const bool Vorhanden = Satz.RecordCount() > 0;
      Satz.ClearFilter();
      if (Vorhanden) continue;
    }
    Satz.AddNew();
    for (qsizetype i = 0; i < T.Spalten.size(); ++i) Satz.SetValue(T.Spalten[i], Zeile[i]);
    Satz.Update();
  }
  return !Satz.HasPendingChanges() || Satz.UpdateBatch();
}

}  // namespace

namespace {

void Artikelart_zuordnen(const db::Recordset &Satz, Mandantenvorgaben &V) {
  const QString Name = Satz.Text(QStringLiteral("Description"));
  if (Satz.Flag(QStringLiteral("Standard")) || V.Artikelart.isEmpty()) V.Artikelart = Name;
  if (Satz.Flag(QStringLiteral("Variant")) && V.Variantenart.isEmpty()) V.Variantenart = Name;
  if (!Satz.Flag(QStringLiteral("Stock")) && V.Dienstart.isEmpty()) V.Dienstart = Name;
  if (Name == QStringLiteral("Stückliste")) V.Stuecklistenart = Name;
}

}  // namespace

Mandantenvorgaben Vorgaben_lesen(const QString &Verbindung) {
  Mandantenvorgaben V;
  db::Recordset Satz;
  for (Satz.Open("SELECT * FROM ArticleTypes", Verbindung); !Satz.IsEOF(); Satz.MoveNext())
    Artikelart_zuordnen(Satz, V);
  for (QString *Art : {&V.Variantenart, &V.Stuecklistenart, &V.Dienstart})
    if (Art->isEmpty()) *Art = V.Artikelart;
  for (Satz.Open("SELECT * FROM Countries", Verbindung); !Satz.IsEOF(); Satz.MoveNext())
    V.Laender.insert(Satz.Text(QStringLiteral("Token")), Satz.Text(QStringLiteral("Description")));
  // The first key of a rate is the domestic one.
  for (Satz.Open("SELECT * FROM Taxes ORDER BY TaxKeyNumber", Verbindung); !Satz.IsEOF(); Satz.MoveNext()) {
    const double Prozent = Satz.Number(QStringLiteral("Percentage"));
    QString *Ziel = qFuzzyCompare(Prozent, 19.0)  ? &V.Steuer_voll
                    : qFuzzyCompare(Prozent, 7.0) ? &V.Steuer_ermaessigt
                                                  : nullptr;
    if (Ziel && Ziel->isEmpty()) *Ziel = Satz.Text(QStringLiteral("TaxKeyNumber"));
  }
  Satz.Open("SELECT * FROM Employees", Verbindung);
  if (const QString Lager = Satz.Text(QStringLiteral("StorageNumber")); !Lager.isEmpty()) V.Lager = Lager;
  if (const QString Zeichen = Option_lesen(QStringLiteral("Program"), QStringLiteral("VariantToken"));
      !Zeichen.isEmpty())
    V.Variantenzeichen = Zeichen;
  return V;
}

bool Demomandant_schreiben(const QString &Verbindung, const QDate &Heute) {
  for (const Tabellenzeilen &T : Demomandant_Zeilen(Demodaten_erzeugen(Heute), Vorgaben_lesen(Verbindung))) {
    if (Tabelle_schreiben(T, Verbindung)) continue;
    Ablauf_melden(QStringLiteral("Demomandant"),
                  QStringLiteral("Tabelle %1 nicht geschrieben").arg(QLatin1String(T.Tabelle)));
    return false;
  }
  return true;
}

std::vector<Demoeinstellung> Demomandant_Einstellungen(int Port) {
  const auto Zeile = [](const char *Schluessel, const QString &Wert) {
    return Demoeinstellung{QStringLiteral("Marklink"), QLatin1String(Schluessel), Wert};
  };
  const auto Kreis = [](const char *Name, const char *Stand) {
    return Demoeinstellung{QStringLiteral("NumberRange"), QLatin1String(Name), QLatin1String(Stand)};
  };
  const auto Versand = [](const char *Schluessel, const char *Wert) {
    return Demoeinstellung{QStringLiteral("easylog"), QLatin1String(Schluessel), QLatin1String(Wert)};
  };
  return {Zeile("project", QStringLiteral("Demo-Shop")), Zeile("hostname", QStringLiteral("127.0.0.1")),
          Zeile("port", QString::number(Port)), Zeile("folder", QStringLiteral("/")),
          Zeile("username", Shopzugang::Benutzer()), Zeile("password", Shopzugang::Passwort()),
          // German is number 2 in the shop; articles fetched later keep the shop's numbers.
          Zeile("language", QStringLiteral("2")), Zeile("disposeproductid", QStringLiteral("1")),
          Versand("ekp", "5012345678"), Versand("client", "01"), Versand("delimiter", "|"),
          Versand("columnheader", "1"), Versand("appendrecords", "1"),
          // The demo's documents have the numbers before these. Payments are one behind, as after a crash:
          // the next one has to step over a number that is taken.
          Kreis("Contract", "00003"), Kreis("Invoice", "00014"), Kreis("OpenItem", "000018"),
          Kreis("Payment", "000006"), Kreis("Reservation", "000005")};
}

}  // namespace marklink::demo
