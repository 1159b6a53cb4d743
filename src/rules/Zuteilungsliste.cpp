// Reading and writing allocation lists.
#include "Zuteilungsliste.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>

#include "host/Zahlen.h"

namespace marklink {
namespace {

constexpr int Felder = int(Losfeld::Reservierung) + 1;

QVariant Feldsumme(const std::vector<Los> &Lose, Losfeld Feld) {
  double summe = 0;
  for (const Los &los : Lose) summe = Menge_summe(summe, Los_Zahl(los, Feld));
  return summe;
}

QVariant Mittlerer_Einkaufspreis(const std::vector<Los> &Lose) {
  double menge = 0, wert = 0;
  for (const Los &los : Lose) {
    menge += Los_Zahl(los, Losfeld::Menge);
    wert += Los_Zahl(los, Losfeld::Menge) * Los_Zahl(los, Losfeld::Einkaufspreis);
  }
  const double preis = wert / menge;
  return std::isfinite(preis) ? QVariant(preis) : QVariant();
}

}  // namespace

std::vector<Los> Zuteilung_zerlegen(const QString &Zuteilung) {
  std::vector<Los> lose;
  if (Zuteilung.isEmpty()) return lose;
  for (const QString &teil : Zuteilung.split(u'|')) lose.push_back(teil.split(u';'));
  return lose;
}

QString Zuteilung_verbinden(const std::vector<Los> &Lose) {
  QStringList teile;
  for (const Los &los : Lose) teile << los.join(u';');
  return teile.join(u'|');
}

QString Los_Text(const Los &L, Losfeld Feld) { return L.value(int(Feld)); }

double Los_Zahl(const Los &L, Losfeld Feld) { return Zahl_deutsch(Los_Text(L, Feld)).value_or(0.0); }

void Los_setzen(Los &L, Losfeld Feld, const QString &Text) {
  while (L.size() < Felder) L << QString();
  L[int(Feld)] = Text;
}

QString Loszahl_als_Text(double Zahl) {
  return QString::number(Zahl, 'f', QLocale::FloatingPointShortest).replace(u'.', u',');
}

double Menge_summe(double A, double B) {
  constexpr double Stellen = 1e6;
  const double summe = A + B;
  const double glatt = std::round(summe * Stellen) / Stellen;
  const double rauschen = 4 * std::numeric_limits<double>::epsilon() * std::max(std::fabs(A), std::fabs(B));
  return std::fabs(glatt - summe) <= rauschen ? glatt : summe;
}

QVariant Zuteilung_Wert(const QString &Zuteilung, int Feld) {
  const std::vector<Los> lose = Zuteilung_zerlegen(Zuteilung);
  switch (Losfeld(Feld)) {
    case Losfeld::Menge:
    case Losfeld::Reservierung:
      return Feldsumme(lose, Losfeld(Feld));
    case Losfeld::Einkaufspreis:
      return Mittlerer_Einkaufspreis(lose);
    default:
      break;
  }
  QStringList werte;
  for (const Los &los : lose) werte << los.value(Feld);
  return werte.join(u';');
}

}  // namespace marklink
