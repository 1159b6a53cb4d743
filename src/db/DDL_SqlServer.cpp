// From the description of a table to SQL Server's statements for it.
#include <QStringList>

#include "DDL.h"
#include "DDL_Teile.h"

namespace marklink::db {

namespace {

QString Typ(const Spalte &S) {
  switch (S.Typ) {
    case Spaltentyp::Text:
      return QStringLiteral("nvarchar(%1)").arg(S.Laenge);
    case Spaltentyp::Memo:
      return QStringLiteral("nvarchar(max)");
    case Spaltentyp::Kurzzahl:
      return QStringLiteral("smallint");
    case Spaltentyp::Ganzzahl:
      return QStringLiteral("int");
    case Spaltentyp::Gleitkomma:
      return QStringLiteral("float");
    case Spaltentyp::Datum:
      return QStringLiteral("datetime");
    case Spaltentyp::Ja_Nein:
      return QStringLiteral("bit NOT NULL DEFAULT 0");
    case Spaltentyp::Binaer:
      return QStringLiteral("varbinary(max)");
    case Spaltentyp::Autowert:
      return QStringLiteral("int IDENTITY(1,1) NOT NULL");
  }
  return {};
}

}  // namespace

std::vector<Tabelle> Servertabellen() {
  std::vector<Tabelle> alle = Schema();
  for (Tabelle &tabelle : alle) {
    if (!tabelle.Schluessel.empty()) continue;
    tabelle.Spalten.push_back({"RowNumber", Spaltentyp::Autowert});
    tabelle.Schluessel = {"RowNumber"};
  }
  return alle;
}

std::vector<QString> DDL_bilden_SqlServer(const Tabelle &T) {
  QStringList spalten;
  for (const Spalte &s : T.Spalten) {
    // These two say it with their type.
    const bool offen = s.Typ != Spaltentyp::Autowert && s.Typ != Spaltentyp::Ja_Nein;
    const QString leer = offen ? QLatin1String(im_Schluessel(T, s) ? " NOT NULL" : " NULL") : QLatin1String();
    spalten.append(geklammert(s.Name) + u' ' + Typ(s) + leer);
  }
  if (!T.Schluessel.empty()) {
    spalten.append(QStringLiteral("CONSTRAINT [PK_%1] PRIMARY KEY (%2)")
                       .arg(QString::fromUtf8(T.Name), Namensliste(T.Schluessel)));
  }
  return Tabelle_und_Indizes(T, spalten);
}

}  // namespace marklink::db
