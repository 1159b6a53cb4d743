// From the description of the tables to those of a catalogue on SQL Server.
#include <QStringList>

#include "Ablaufverfolgung.h"
#include "DDL.h"
#include "DDL_Teile.h"
#include "Treiber.h"

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

bool Tabellen_anlegen_SqlServer(const std::vector<Tabelle> &Tabellen, const Verbindungsdaten &Daten) {
  QString fehler;
  const auto sitzung = ODBC_Treiber().Oeffnen(Daten, fehler);
  const auto melden = [](const QString &Grund) {
    Ablauf_melden(QStringLiteral("create"), Grund);
    return false;
  };
  if (!sitzung) return melden(fehler);
  if (!sitzung->Beginnen()) return melden(sitzung->Fehler());
  for (const Tabelle &tabelle : Tabellen) {
    for (const QString &sql : DDL_bilden_SqlServer(tabelle)) {
      Ergebnis keines;
      if (sitzung->Lesen(Anweisung(Teiltext{sql}, ""), keines)) continue;
      melden(sitzung->Fehler() + QStringLiteral(": ") + sql);
      sitzung->Verwerfen();
      return false;
    }
  }
  return sitzung->Abschliessen() || melden(sitzung->Fehler());
}

}  // namespace marklink::db
