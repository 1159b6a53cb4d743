// The order status list.
#include "Auftragsstatusliste.h"

#include <QStringList>

#include "Farbwert.h"
#include "host/Datenbank.h"
#include "host/Texte.h"

namespace marklink {

QString gAuftragsstati_Liste;

std::vector<Auftragsstatus> Auftragsstatusliste_aufbauen() {
  std::vector<Auftragsstatus> stati;
  QStringList saetze;
  db::Recordset satz = Abfragen("SELECT * FROM WebshopOrderStatusXTC ORDER BY WebshopID");
  for (; !satz.IsEOF(); satz.MoveNext()) {
    const auto text = [&satz](const QString &Feld) { return Null_als_Text(satz.Value(Feld)); };
    stati.push_back({text(QStringLiteral("WebshopID")), text(QStringLiteral("Description")),
                     text(QStringLiteral("Colour"))});
    saetze.append(stati.back().WebshopID + u';' + stati.back().Description + u';' + stati.back().Colour);
  }
  gAuftragsstati_Liste = saetze.join(u'|');
  return stati;
}

std::vector<Auftragsstatusfarbe> Auftragsstati_farben(const QString &Liste) {
  std::vector<Auftragsstatusfarbe> farben;
  for (const QString &satz : Liste.split(u'|')) {
    const QStringList felder = satz.split(u';');
    if (const auto farbe = Farbwert_lesen(felder.value(2))) farben.push_back({felder.value(0), *farbe});
  }
  return farben;
}

}  // namespace marklink
