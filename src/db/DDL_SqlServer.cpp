// From the description of the tables to those of a catalogue on SQL Server.
#include <QStringList>
#include <algorithm>

#include "Ablaufverfolgung.h"
#include "DDL.h"
#include "Treiber.h"

namespace marklink::db {

namespace {

QString geklammert(const char *Name) { return u'[' + QString::fromUtf8(Name) + u']'; }

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

QString Liste(const std::vector<const char *> &Namen) {
  QStringList liste;
  for (const char *name : Namen) liste.append(geklammert(name));
  return liste.join(u',');
}

}  // namespace

std::vector<QString> DDL_bilden_SqlServer(const Tabelle &T) {
  QStringList spalten;
  for (const Spalte &s : T.Spalten) {
    const bool im_Schluessel = std::any_of(T.Schluessel.begin(), T.Schluessel.end(),
                                           [&](const char *name) { return qstricmp(name, s.Name) == 0; });
    const bool ohne_Aussage = s.Typ != Spaltentyp::Autowert && s.Typ != Spaltentyp::Ja_Nein;
    const QString leer = !ohne_Aussage ? QString() : QLatin1String(im_Schluessel ? " NOT NULL" : " NULL");
    spalten.append(geklammert(s.Name) + u' ' + Typ(s) + leer);
  }
  const QString name = QString::fromUtf8(T.Name);
  if (!T.Schluessel.empty())
    spalten.append(QStringLiteral("CONSTRAINT [PK_%1] PRIMARY KEY (%2)").arg(name, Liste(T.Schluessel)));
  std::vector<QString> alle{QStringLiteral("CREATE TABLE [%1] (%2)").arg(name, spalten.join(u','))};
  int nummer = 0;
  for (const auto &index : T.Indizes) {
    alle.push_back(
        QStringLiteral("CREATE INDEX [%1_%2] ON [%1] (%3)").arg(name).arg(++nummer).arg(Liste(index)));
  }
  return alle;
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
