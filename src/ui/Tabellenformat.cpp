// The changes of the layout dialog.
#include "Tabellenformat.h"

#include <algorithm>
#include <utility>

#include "host/Zahlen.h"

namespace marklink {

namespace {

QString Zentimeter(int Breite) {
  return Zahl_formatieren(double(Breite) / Breite_je_cm, QStringLiteral("0.00"));
}

}  // namespace

Tabellenformat::Tabellenformat(QStringList Titel, Tabellenlayout Layout)
    : Titel_(std::move(Titel)), Layout_(std::move(Layout)), Folge_(Spaltenfolge(Layout_)) {
  Zeile_verschieben(0, 0);
}

QStringList Tabellenformat::Spaltentypen() { return {QStringLiteral("System"), QStringLiteral("Benutzer")}; }

QStringList Tabellenformat::Zeile(int Zeile) const {
  const int typ = Spaltentyp(Zeile);
  return {Titel_.value(Spalte(Zeile)),
          QString::number(Spalte(Zeile) + 1),
          QString::number(Zeile + 1),
          Spaltenbreite(Zeile),
          typ < 0 ? Von(Zeile).Typ : Spaltentypen()[typ],
          Aktiv(Zeile) ? QStringLiteral("Ja") : QStringLiteral("Nein")};
}

bool Tabellenformat::Aktiv(int Zeile) const { return Von(Zeile).Sichtbar; }

QString Tabellenformat::Spaltenbreite(int Zeile) const {
  const int breite = Von(Zeile).Breite;
  return breite > 0 ? Zentimeter(breite) : QStringLiteral("2,00");
}

int Tabellenformat::Spaltentyp(int Zeile) const {
  const int typ = Als_Ganzzahl(Von(Zeile).Typ);
  return typ >= 0 && typ < Spaltentypen().size() ? typ : -1;
}

void Tabellenformat::Zeile_speichern(int Zeile, bool Aktiv, const QString &Breite_cm, int Typ) {
  Tabellenlayout::Spalte &spalte = Von(Zeile);
  spalte.Sichtbar = Aktiv;
  if (Typ >= 0) spalte.Typ = QString::number(Typ);
  const double cm = Zahl_deutsch(Breite_cm.trimmed()).value_or(0);
  // A width that was not touched stays what it is to the last unit.
  if (cm <= 0 || Breite_cm.trimmed() == Zentimeter(spalte.Breite)) return;
  spalte.Breite =
      std::clamp(int(std::min(cm * Breite_je_cm, double(Breite_hoechstens)) + 0.5), 1, Breite_hoechstens);
}

int Tabellenformat::Zeile_verschieben(int Zeile, int Schritt) {
  const int ziel = std::clamp(Zeile + Schritt, 0, std::max(Zeilenzahl() - 1, 0));
  const auto anfang = Folge_.begin();
  if (ziel < Zeile) std::rotate(anfang + ziel, anfang + Zeile, anfang + Zeile + 1);
  if (ziel > Zeile) std::rotate(anfang + Zeile, anfang + Zeile + 1, anfang + ziel + 1);
  for (int i = 0; i < Zeilenzahl(); ++i) Von(i).Position = i;
  return ziel;
}

}  // namespace marklink
