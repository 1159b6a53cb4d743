// The number of a new document.
#include "Belegvorgang.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "rules/Nummernkreise.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

enum class Stand { Frei, Vergeben, Unbekannt };

/// A number is also taken by positions that a broken run left behind without a head: they would enter the new
/// document's sums. Without a look at both nobody can say that it is free, and a second document under the
/// number of another would change that one.
Stand Stand_der_Nummer(const Belegart &Art, const QString &Nummer) {
  if (Nummer.contains(u'\'')) return Stand::Vergeben;  // no statement could find its document again
  const db::Recordset kopf =
      Abfragen({"SELECT ", db::Name{Art.Schluesselfeld}, " FROM ", db::Name{Art.Tabelle}, " WHERE ",
                db::Name{Art.Schluesselfeld}, " = ", db::Wert{Nummer}});
  const db::Recordset positionen =
      Abfragen({"SELECT DocumentNumber FROM Positions WHERE Document = ", db::Wert{Art.Wort},
                " AND DocumentNumber = ", db::Wert{Nummer}});
  if (!kopf.IsOpen() || !positionen.IsOpen()) return Stand::Unbekannt;
  return kopf.RecordCount() + positionen.RecordCount() == 0 ? Stand::Frei : Stand::Vergeben;
}

/// Goes on while the number is taken; `naechste` gives another one, or a null text for none.
template <typename Naechste>
std::optional<QString> Freie_Nummer(const Belegart &Art, Naechste naechste) {
  for (QString nummer = naechste(QString()); !nummer.isNull(); nummer = naechste(nummer)) {
    const Stand stand = Stand_der_Nummer(Art, nummer);
    if (stand == Stand::Frei) return nummer;
    Ablauf_melden(Art.Wort, QStringLiteral("number taken, or not to be looked up: ") + nummer);
    if (stand == Stand::Unbekannt) return std::nullopt;
  }
  return QString();
}

/// Asks until the number is free or nothing was entered.
std::optional<QString> Nummer_erfragen(const Belegart &Art) {
  return Freie_Nummer(Art, [&Art](const QString &Vergeben) {
    const QString vorschlag =
        Vergeben.isNull() ? Nummer_ziehen(Art.Tabelle, Art.Schluesselfeld, Art.Nummernkreis) : Vergeben;
    if (vorschlag.isNull()) return QString();
    const Fortschritt_verdeckt pause;
    const QString eingabe =
        dialoge().Eingabe(QStringLiteral("Belegnummer"), Art.Nummernfrage, vorschlag).trimmed();
    return eingabe.isEmpty() ? QString() : eingabe;
  });
}

}  // namespace

std::optional<QString> Belegnummer_vergeben(const Belegart &Art) {
  if (Option_lesen(QStringLiteral("Counting"), Art.Nummernkreis) != QLatin1String("1"))
    return Nummer_erfragen(Art);
  return Freie_Nummer(Art, [&Art](const QString &Vergeben) {
    const QString nummer = Nummer_nehmen(Art.Tabelle, Art.Schluesselfeld, Art.Nummernkreis);
    const bool steht = !Vergeben.isNull() && nummer == Vergeben;
    return nummer.isEmpty() || steht ? QString() : nummer;
  });
}

}  // namespace marklink
