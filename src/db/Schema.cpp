// Puts the areas of the schema together and finds a table by its name.
#include "Schema.h"

#include <QHash>
#include <algorithm>
#include <iterator>

#include "schema/Tabellen.h"

namespace marklink::db {

namespace {

std::vector<Tabelle> Schema_zusammenstellen() {
  std::vector<Tabelle> tabellen;
  for (auto bereich : {schema::Artikeltabellen, schema::Belegtabellen, schema::Bestelltabellen,
                       schema::Kontakttabellen, schema::Lagertabellen, schema::Stammdatentabellen,
                       schema::Versandtabellen, schema::Webshoptabellen, schema::Zahlungstabellen}) {
    std::vector<Tabelle> teil = bereich();
    std::move(teil.begin(), teil.end(), std::back_inserter(tabellen));
  }
  std::sort(tabellen.begin(), tabellen.end(),
            [](const Tabelle &a, const Tabelle &b) { return qstricmp(a.Name, b.Name) < 0; });
  return tabellen;
}

QHash<QString, const Tabelle *> Verzeichnis_anlegen() {
  QHash<QString, const Tabelle *> verzeichnis;
  for (const Tabelle &tabelle : Schema())
    verzeichnis.insert(QString::fromLatin1(tabelle.Name).toLower(), &tabelle);
  return verzeichnis;
}

}  // namespace

const std::vector<Tabelle> &Schema() {
  static const std::vector<Tabelle> tabellen = Schema_zusammenstellen();
  return tabellen;
}

const Tabelle *Schema_Tabelle(const QString &Name) {
  static const QHash<QString, const Tabelle *> verzeichnis = Verzeichnis_anlegen();
  return verzeichnis.value(Name.toLower(), nullptr);
}

}  // namespace marklink::db
