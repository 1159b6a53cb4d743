// Reading connection strings and choosing the driver.
#include "Verbindung.h"

#include <QStringList>
#include <optional>
#include <vector>

#include "Treiber.h"

namespace marklink::db {

namespace {

using Werte = std::vector<std::pair<QString, QString>>;  // by key, small letters

/// A text as the system itself joins it: all keys in one order, so that a value may hold what parts them.
struct Form {
  QStringList Marken;  ///< what stands before each value
  qsizetype Freie;     ///< index of the value that may hold anything, the keys behind it included
};

const std::vector<Form> &Formen() {
  static const auto form = [](const char *Marken, qsizetype Freie) {
    return Form{QString::fromLatin1(Marken).split(u'|'), Freie};
  };
  static const std::vector<Form> alle = {
      form("Provider=|;Data Source=|;Jet OLEDB:Database Password=", 1),
      form("Provider=|;User ID=|;Password=|;Initial Catalog=|;Data Source=|;Persist Security Info="
           "|;Connect Timeout=",
           2),
      form("Provider=|;Data Source=|;Initial Catalog=|;Integrated Security=|;Connect Timeout=", 1)};
  return alle;
}

/// Up to the free value each key is the first of its name, behind it the last.
std::optional<Werte> In_Form_lesen(const QString &Text, const Form &F) {
  const qsizetype anzahl = F.Marken.size();
  QList<qsizetype> stellen(anzahl + 1, Text.size());
  for (qsizetype i = 0, ab = 0; i <= F.Freie; ++i) {
    stellen[i] = Text.indexOf(F.Marken[i], ab, Qt::CaseInsensitive);
    if (stellen[i] < 0 || (i == 0 && stellen[0] > 0)) return std::nullopt;
    ab = stellen[i] + F.Marken[i].size();
  }
  for (qsizetype i = anzahl - 1; i > F.Freie; --i) {
    stellen[i] = Text.left(stellen[i + 1]).lastIndexOf(F.Marken[i], -1, Qt::CaseInsensitive);
    if (stellen[i] < stellen[F.Freie] + F.Marken[F.Freie].size()) return std::nullopt;
  }
  Werte werte;
  for (qsizetype i = 0; i < anzahl; ++i) {
    const qsizetype anfang = stellen[i] + F.Marken[i].size();
    const QString wert = Text.mid(anfang, stellen[i + 1] - anfang);
    werte.emplace_back(F.Marken[i].chopped(1).remove(u';').toLower(), wert);
  }
  return werte;
}

Werte Werte_lesen(const QString &Text) {
  for (const Form &form : Formen()) {
    if (auto werte = In_Form_lesen(Text, form)) return *werte;
  }
  Werte werte;
  for (const QString &teil : Text.split(u';', Qt::SkipEmptyParts)) {
    const qsizetype gleich = teil.indexOf(u'=');
    if (gleich > 0) werte.emplace_back(teil.left(gleich).trimmed().toLower(), teil.mid(gleich + 1).trimmed());
  }
  return werte;
}

}  // namespace

Verbindungsdaten Verbindung_lesen(const QString &Verbindung) {
  Verbindungsdaten daten;
  for (const auto &[name, wert] : Werte_lesen(Verbindung)) {
    if (name == u"provider") daten.Anbieter = wert.trimmed();
    if (name == u"data source") daten.Quelle = wert.trimmed();
    if (name == u"user id") daten.Benutzer = wert;
    if (name == u"password" || name == u"jet oledb:database password") daten.Passwort = wert;
    if (name == u"connect timeout") daten.Wartezeit = wert.section(u';', 0, 0).toInt();
    if (name == u"initial catalog") {
      daten.Katalog = wert.trimmed();
      daten.Dialekt = Dialekt::SqlServer;
    }
  }
  return daten;
}

Treiber *Treiber_waehlen(const QString &Anbieter) {
  if (Anbieter.compare(QLatin1String("SQLite"), Qt::CaseInsensitive) == 0) return &SQLite_Treiber();
  for (const char *name : {"SQLOLEDB", "SQLNCLI", "MSOLEDBSQL", "MSDASQL", "ODBC", "FreeTDS"}) {
    if (Anbieter.startsWith(QLatin1String(name), Qt::CaseInsensitive)) return &ODBC_Treiber();
  }
  return nullptr;
}

}  // namespace marklink::db
