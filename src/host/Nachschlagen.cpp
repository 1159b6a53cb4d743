// Looking up what a token or a name stands for.
#include "Nachschlagen.h"

#include "Datenbank.h"

namespace marklink {
namespace {

QHash<QString, QString> *Gedaechtnis = nullptr;  ///< of the outermost run

}  // namespace

Nachschlagelauf::Nachschlagelauf() {
  if (!Gedaechtnis) Gedaechtnis = &Gemerktes_;
}

Nachschlagelauf::~Nachschlagelauf() {
  if (Gedaechtnis == &Gemerktes_) Gedaechtnis = nullptr;
}

QString Nachschlagen(const db::Anweisung &Sql, const QString &Feld) {
  if (!Gedaechtnis) return Abfragen(Sql).Text(Feld);
  const QString frage = Sql.Text();
  const auto bekannt = Gedaechtnis->constFind(frage);
  if (bekannt != Gedaechtnis->constEnd()) return *bekannt;
  const db::Recordset rs = Abfragen(Sql);
  const QString text = rs.Text(Feld);
  if (rs.IsOpen()) Gedaechtnis->insert(frage, text);
  return text;
}

}  // namespace marklink
