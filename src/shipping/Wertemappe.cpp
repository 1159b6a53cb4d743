// Reading the value workbook.
#include "Wertemappe.h"

#include <algorithm>

#include "db/Ablaufverfolgung.h"
#include "db/Anweisung.h"
#include "db/Textvergleich.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

/// Place of a column in the row that names the columns; -1 when it is missing.
qsizetype Spalte_suchen(const QStringList &Kopf, const QString &Name) {
  const auto stelle =
      std::ranges::find_if(Kopf, [&](const QString &text) { return db::Text_gleich(text, Name); });
  return stelle == Kopf.end() ? -1 : stelle - Kopf.begin();
}

/// What is asked, as the statement that it stands for: for the trace, and because a value with an apostrophe
/// makes that statement fail.
db::Anweisung Anweisung_bilden(const QStringList &Felder, const QString &Blatt,
                               const Wertemappe::Bedingungen &Wo) {
  db::Anweisung sql("SELECT ", db::Name{Felder.front()});
  for (qsizetype i = 1; i < Felder.size(); ++i) sql += {", ", db::Name{Felder[i]}};
  sql += {" FROM [", db::Name{Blatt}, "$]"};
  for (qsizetype i = 0; i < Wo.size(); ++i) {
    sql += i == 0 ? db::Anweisung(" WHERE ") : db::Anweisung(" AND ");
    sql += {db::Name{Wo[i].first}, " = ", db::Wert{Wo[i].second}};
  }
  return sql;
}

}  // namespace

Wertemappe::Wertemappe(const QString &Pfad) : Mappe_(Mappe_lesen(Pfad)) {
  if (!Mappe_->Hindernis.isEmpty())
    Ablauf_melden(QStringLiteral("Wertemappe"), QStringLiteral("%1: %2").arg(Pfad, Mappe_->Hindernis));
}

Wertemappe::Zeilen Wertemappe::lesen(const QStringList &Felder, const QString &Blatt, const Bedingungen &Wo,
                                     bool Nur_erste) const {
  if (!Mappe_->Hindernis.isEmpty()) return {};
  const db::Anweisung sql = Anweisung_bilden(Felder, Blatt, Wo);
  const auto scheitern = [&sql](const QString &grund) {
    Ablauf_melden(QStringLiteral("Wertemappe"), QStringLiteral("%1: %2").arg(sql.Text(), grund));
    return Zeilen();
  };
  if (!sql.Gueltig()) return scheitern(sql.Fehler());
  const auto blatt = std::ranges::find_if(
      Mappe_->Blaetter, [&](const Tabellenblatt &b) { return db::Text_gleich(b.Name, Blatt); });
  if (blatt == Mappe_->Blaetter.end()) return scheitern(QStringLiteral("no such sheet"));
  const auto kopf = std::ranges::find_if(blatt->Zeilen, [](const QStringList &z) { return !z.isEmpty(); });
  if (kopf == blatt->Zeilen.end()) return scheitern(QStringLiteral("the sheet is empty"));

  QStringList namen = Felder;
  for (const auto &bedingung : Wo) namen.append(bedingung.first);
  std::vector<qsizetype> spalten;
  for (const QString &name : namen) {
    spalten.push_back(Spalte_suchen(*kopf, name));
    if (spalten.back() < 0) return scheitern(QStringLiteral("no column ") + name);
  }

  Zeilen ergebnis;
  for (auto zeile = kopf + 1; zeile != blatt->Zeilen.end() && !(Nur_erste && !ergebnis.empty()); ++zeile) {
    QStringList werte;
    for (const qsizetype spalte : spalten) werte.append(zeile->value(spalte));
    bool passt = true;
    for (qsizetype i = 0; passt && i < Wo.size(); ++i)
      passt = db::Text_gleich(werte[Felder.size() + i], Wo[i].second);
    if (passt) ergebnis.push_back(werte.first(Felder.size()));
  }
  return ergebnis;
}

std::vector<Werteintrag> Wertemappe::Eintraege(const QString &Blatt, const Bedingungen &Wo) const {
  std::vector<Werteintrag> liste;
  for (const QStringList &zeile :
       lesen({QStringLiteral("ID"), QStringLiteral("Description")}, Blatt, Wo, false))
    if (!zeile[0].isEmpty() || !zeile[1].isEmpty()) liste.push_back({zeile[0], zeile[1]});
  return liste;
}

QString Wertemappe::ID_suchen(const QString &Blatt, const Bedingungen &Wo) const {
  const Zeilen zeilen = lesen({QStringLiteral("ID")}, Blatt, Wo, true);
  return zeilen.empty() ? QString() : zeilen.front().front();
}

QString Verfahren_ermitteln(const QString &Token) {
  return Wertemappe(Kontext.gVersandkostendatei)
      .ID_suchen(QStringLiteral("easylog_verfahren"), {{QStringLiteral("Token"), Token}});
}

QString Teilnahme_ermitteln(const QString &Token) {
  return Wertemappe(Kontext.gVersandkostendatei)
      .ID_suchen(QStringLiteral("easylog_teilnahme"), {{QStringLiteral("Token"), Token}});
}

QString Produkt_ermitteln(const QString &Token) {
  return Wertemappe(Kontext.gVersandkostendatei)
      .ID_suchen(
          QStringLiteral("easylog_produkte"),
          {{QStringLiteral("Method"), Token}, {QStringLiteral("Standard"), QStringLiteral("default")}});
}

QString Service_Nachnahme_ermitteln(const QString &Token) {
  return Wertemappe(Kontext.gVersandkostendatei)
      .ID_suchen(QStringLiteral("easylog_services"),
                 {{QStringLiteral("Method"), Token}, {QStringLiteral("Token"), QStringLiteral("cod")}});
}

}  // namespace marklink
