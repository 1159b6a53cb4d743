// A row source that only shows, and how cells are shown.
#include "Tabellenquelle.h"

#include <QDateTime>

#include "host/Datumsbilder.h"
#include "host/Texte.h"
#include "host/Zahlen.h"

namespace marklink {

bool Tabellenquelle::Zelle_setzen(int, int, const QVariant &) { return false; }
bool Tabellenquelle::Gesperrt() const { return false; }
std::optional<qint32> Tabellenquelle::Zeilenfarbe(int) const { return std::nullopt; }
bool Tabellenquelle::Zeile_anfuegen() { return false; }
void Tabellenquelle::Zeile_entfernen(int) {}
Zeilenurteil Tabellenquelle::Zeile_beenden(int, bool) { return Zeilenurteil::Annehmen; }

void Tabellenquelle::Zeile_wiederherstellen(int Zeile, const std::vector<QVariant> &Werte) {
  for (size_t i = 0; i < Werte.size(); ++i)
    if (Zelle(Zeile, int(i)) != Werte[i]) Zelle_setzen(Zeile, int(i), Werte[i]);
}

QString Zelle_formatieren(const QVariant &Wert, const QString &Format) {
  if (Format.isEmpty() || Wert.isNull()) return Null_als_Text(Wert);
  switch (Wert.typeId()) {
    case QMetaType::QDate:
    case QMetaType::QDateTime:
      return Datum_formatieren(Wert.toDateTime(), Format);
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
      return Zahl_formatieren(Wert.toDouble(), Format);
    case QMetaType::QString: {
      const auto zahl = Zahl_deutsch(Wert.toString());
      return zahl ? Zahl_formatieren(*zahl, Format) : Wert.toString();
    }
    default:
      return Null_als_Text(Wert);
  }
}

bool Zelle_wahr(const QVariant &Wert) {
  if (Wert.typeId() != QMetaType::QString) return Wert.toDouble() != 0;
  const QString text = Wert.toString().trimmed();
  return Als_Ganzzahl(text) != 0 || text.compare(QLatin1String("Wahr"), Qt::CaseInsensitive) == 0;
}

}  // namespace marklink
