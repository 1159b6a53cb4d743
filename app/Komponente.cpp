// What the launcher's host components have in common.
#include "Komponente.h"

#include "db/Ablaufverfolgung.h"
#include "db/Zeitpunkt.h"
#include "host/Kontext.h"
#include "host/Uhr.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

/// A record set takes points in time, and number texts with a point; callers hand over days and German texts.
QVariant Spaltenwert(const QVariant &Wert, bool Zahl) {
  if (Wert.typeId() == QMetaType::QDate) return QVariant(Zeitpunkt(Wert.toDate()));
  if (Zahl && Wert.typeId() == QMetaType::QString) {
    const std::optional<double> zahl = Zahl_deutsch(Wert.toString());
    return zahl ? QVariant(*zahl) : QVariant();
  }
  return Wert;
}

}  // namespace

QVariant Komponente::Abweisen(const QString &Operation, const char *Grund) const {
  Ablauf_melden(QLatin1String(Name_), QStringLiteral("%1: %2").arg(Operation, QLatin1String(Grund)));
  return {};
}

QVariant Komponente::Initialisieren(const QVariantList &Argumente) {
  Bereit_ = Argumente[0].toString().compare(Kontext.gFirmenname, Qt::CaseInsensitive) == 0;
  return Bereit_;
}

QVariant Komponente::Aufrufen(const QString &Operation, QVariantList &Argumente) {
  const auto heisst = [&Operation](const char *Name) {
    return Operation.compare(QLatin1String(Name), Qt::CaseInsensitive) == 0;
  };
  if (heisst("Initialisierung"))
    return Argumente.size() == 2 ? Initialisieren(Argumente) : Abweisen(Operation, "wrong arguments");
  if (!Bereit_) return Abweisen(Operation, "not initialised");
  for (const Befehl &befehl : Befehle_) {
    if (!heisst(befehl.Name)) continue;
    if (Argumente.size() != befehl.Argumente) return Abweisen(Operation, "wrong number of arguments");
    return befehl.Ausfuehren(Argumente);
  }
  return Abweisen(Operation, "no such operation");
}

QVariant Buchungszeile_anlegen(const db::Anweisung &Tabelle, const char *Schluessel,
                               const std::vector<const char *> &Spalten, const QVariantList &Argumente) {
  db::Recordset rs;
  if (!rs.Open(Tabelle, Kontext.gConnectionString)) return {};
  rs.AddNew();
  for (size_t i = 0; i < Spalten.size() && qsizetype(i) < Argumente.size(); ++i) {
    const QString spalte = QLatin1String(Spalten[i]);
    rs.SetValue(spalte, Spaltenwert(Argumente[qsizetype(i)], spalte.endsWith(QLatin1String("Amount"))));
  }
  rs.SetValue(QStringLiteral("Employee"), Kontext.gBenutzername);
  const QDateTime jetzt = uhr().Jetzt();
  rs.SetValue(QStringLiteral("DateCreation"), Zeitpunkt(jetzt.date(), jetzt.time()));
  rs.Update();
  if (!rs.UpdateBatch()) return {};
  return QString::number(rs.Value(QLatin1String(Schluessel)).toLongLong());
}

}  // namespace marklink
