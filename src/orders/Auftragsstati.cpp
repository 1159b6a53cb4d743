// Reading the order statuses.
#include "Auftragsstati.h"

#include "host/Datenbank.h"
#include "host/Texte.h"
#include "host/Zahlen.h"

namespace marklink {

QString gAuftragsstati_Liste;

QString Auftragsstati_initialisieren(Pruefliste &lvwAuftragsstatus) {
  lvwAuftragsstatus = {};
  QStringList saetze;
  db::Recordset satz = Abfragen("SELECT * FROM WebshopOrderStatusXTC ORDER BY WebshopID");
  for (; !satz.IsEOF(); satz.MoveNext()) {
    const QString id = Null_als_Text(satz.Value(QStringLiteral("WebshopID")));
    const QString text = Null_als_Text(satz.Value(QStringLiteral("Description")));
    const QString farbe = Null_als_Text(satz.Value(QStringLiteral("Colour")));
    lvwAuftragsstatus.Zeilen.push_back({false, {text, id, text}});
    saetze.append(id + u';' + text + u';' + farbe);
  }
  gAuftragsstati_Liste = saetze.join(u'|');
  return gAuftragsstati_Liste;
}

std::vector<Auftragsstatusfarbe> Auftragsstati_farben(const QString &Liste) {
  std::vector<Auftragsstatusfarbe> farben;
  if (Liste.isEmpty()) return farben;
  for (const QString &satz : Liste.split(u'|')) {
    const QStringList felder = satz.split(u';');
    farben.push_back({felder.value(0), Als_Ganzzahl(felder.value(2))});
  }
  return farben;
}

}  // namespace marklink
