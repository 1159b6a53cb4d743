// Breaking a report into pages.
#include "Seitensatz.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "host/Zahlen.h"

namespace marklink {
namespace {

using Art = Berichtselement::Art;

/// A text too high for any page begins where at least this much of it fits, and a page has at least that
/// much room, however small the paper.
constexpr double Mindestplatz = mm(25);

}  // namespace

Seitensatz::Seitensatz(const Bericht &B, const Berichtsdaten &Daten, const Seitenmasse &Masse)
    : Bericht_(B),
      Daten_(Daten),
      Masse_(Masse),
      Streckung_(std::max(0.1, (Masse.Breite - Masse.Rand_links - Masse.Rand_rechts) / B.Breite)),
      Gruppenfeld_(B.Gruppierung.isEmpty() ? -1 : B.Feld_finden(B.Gruppierung)) {
  Summenfelder_suchen();
  Stelle stelle;
  stelle.Gruppe.resize(Summenfelder_.size());
  stelle.Gesamt.resize(Summenfelder_.size());
  for (std::size_t art = 0; art < Bandzahl; ++art)
    Feste_Hoehen_[art] = Stueck_setzen({Bandart(art), -1, 0, 0, 0, 0, stelle.Gruppe, stelle.Gesamt}).Hoehe();
  while (!stelle.Ende) {
    Anfaenge_.push_back(stelle);
    Seite_setzen(stelle, int(Anfaenge_.size()) - 1, {});
  }
}

void Seitensatz::Summenfelder_suchen() {
  for (const Band &band : Bericht_.Baender)
    for (const Berichtselement &element : band.Elemente) {
      if (element.Was != Art::Gruppensumme && element.Was != Art::Gesamtsumme) continue;
      const int feld = Bericht_.Feld_finden(element.Inhalt);
      if (std::find(Summenfelder_.begin(), Summenfelder_.end(), feld) == Summenfelder_.end())
        Summenfelder_.push_back(feld);
    }
}

// --- texts

QString Seitensatz::Summentext(const Berichtselement &E, const std::vector<double> &Summen) const {
  const auto ort = std::find(Summenfelder_.begin(), Summenfelder_.end(), Bericht_.Feld_finden(E.Inhalt));
  const auto stelle = std::size_t(ort - Summenfelder_.begin());
  return Zahl_formatieren(stelle < Summen.size() ? Summen[stelle] / 100.0 : 0.0, E.Format);
}

QString Seitensatz::Text(const Berichtselement &E, const Stueck &S) const {
  switch (E.Was) {
    case Art::Feld: {
      const int feld = Bericht_.Feld_finden(E.Inhalt);
      const QString text = S.Zeile < 0 || feld < 0 ? QString() : Daten_.Feld(S.Zeile, feld);
      const auto zahl = E.Format.isEmpty() ? std::nullopt : Zahl_deutsch(text);
      return zahl ? Zahl_formatieren(*zahl, E.Format) : text;
    }
    case Art::Gruppensumme:
      return Summentext(E, S.Gruppensummen);
    case Art::Gesamtsumme:
      return Summentext(E, S.Gesamtsummen);
    case Art::Seite:
      return QString::number(S.Seite + 1);
    case Art::Seitenzahl:
      return QString::number(Seiten());
    default:
      return E.Inhalt;
  }
}

Bandsatz Seitensatz::Stueck_setzen(const Stueck &S) const {
  return {Bericht_[S.Art], Streckung_, [&](const Berichtselement &element) { return Text(element, S); }};
}

/// Of a band that grows with its row.
const Bandsatz &Seitensatz::Satz(Bandart Art, int Zeile) const {
  Gesetzt &gesetzt = Art == Bandart::Detail ? Detail_ : Kopf_;
  if (gesetzt.Zeile != Zeile || !gesetzt.Satz) {
    static const std::vector<double> keine;
    gesetzt.Satz.emplace(Stueck_setzen({Art, Zeile, 0, 0, 0, 0, keine, keine}));
    gesetzt.Zeile = Zeile;
  }
  return *gesetzt.Satz;
}

// --- breaking

bool Seitensatz::Gruppe_endet(int Zeile) const {
  if (Zeile + 1 >= Daten_.Zeilen()) return true;
  return Gruppenfeld_ >= 0 && Daten_.Feld(Zeile, Gruppenfeld_) != Daten_.Feld(Zeile + 1, Gruppenfeld_);
}

/// Sums follow the texts: whole cents, so that they come out to the cent whatever the order of the rows.
void Seitensatz::Zeile_summieren(Stelle &S) const {
  for (std::size_t i = 0; i < Summenfelder_.size(); ++i) {
    if (Summenfelder_[i] < 0) continue;
    const double cent = std::round(Zahl_deutsch(Daten_.Feld(S.Zeile, Summenfelder_[i])).value_or(0.0) * 100);
    S.Gruppe[i] += cent;
    S.Gesamt[i] += cent;
  }
}

void Seitensatz::Weiter(Stelle &S) const {
  S.Versatz = 0;
  switch (S.Naechstes) {
    case Bandart::Berichtskopf:
      S.Naechstes = Daten_.Zeilen() > 0 ? Bandart::Gruppenkopf : Bandart::Berichtsfuss;
      break;
    case Bandart::Gruppenkopf:
      S.Naechstes = Bandart::Detail;
      break;
    case Bandart::Detail:
      Zeile_summieren(S);
      if (Gruppe_endet(S.Zeile))
        S.Naechstes = Bandart::Gruppenfuss;
      else
        ++S.Zeile;
      break;
    case Bandart::Gruppenfuss:
      std::fill(S.Gruppe.begin(), S.Gruppe.end(), 0.0);
      ++S.Zeile;
      S.Naechstes = S.Zeile < Daten_.Zeilen() ? Bandart::Gruppenkopf : Bandart::Berichtsfuss;
      break;
    default:
      S.Ende = true;
  }
}

double Seitensatz::Hoehe(const Stelle &S) const {
  const bool waechst = S.Naechstes == Bandart::Gruppenkopf || S.Naechstes == Bandart::Detail;
  return waechst ? Satz(S.Naechstes, S.Zeile).Hoehe() : Feste_Hoehe(S.Naechstes);
}

double Seitensatz::Koerper() const {
  const double frei = mm(Masse_.Hoehe - Masse_.Rand_oben - Masse_.Rand_unten);
  return std::max(Mindestplatz, frei - Feste_Hoehe(Bandart::Seitenkopf) - Feste_Hoehe(Bandart::Seitenfuss));
}

/// How much must fit for the next band to be set here: a group's head stands over its first row, and the last
/// row stays with the sums below it.
double Seitensatz::Zusammen(const Stelle &S) const {
  const double hoehe = Hoehe(S) - S.Versatz;
  double mit = hoehe;
  if (S.Naechstes == Bandart::Gruppenkopf) {
    Stelle erste = S;
    erste.Naechstes = Bandart::Detail;
    const double zeile = Zusammen(erste);
    mit += zeile <= Koerper() - hoehe ? zeile : Mindestplatz;
  }
  if (S.Naechstes == Bandart::Detail && Gruppe_endet(S.Zeile)) mit += Feste_Hoehe(Bandart::Gruppenfuss);
  const bool letzte = S.Naechstes != Bandart::Gruppenkopf && S.Zeile + 1 >= Daten_.Zeilen();
  if (letzte && S.Naechstes != Bandart::Berichtsfuss) mit += Feste_Hoehe(Bandart::Berichtsfuss);
  return mit <= Koerper() ? mit : hoehe;
}

void Seitensatz::Seite_setzen(Stelle &S, int Seite, const std::function<void(const Stueck &)> &Tun) const {
  const double ende = mm(Masse_.Hoehe - Masse_.Rand_unten);
  double oben = mm(Masse_.Rand_oben);
  const auto setzen = [&](Bandart art, int zeile, double von, double bis) {
    if (Tun) Tun({art, zeile, Seite, oben, von, bis, S.Gruppe, S.Gesamt});
    oben += bis - von;
  };
  bool leer = S.Naechstes != Bandart::Berichtskopf, nach_kopf = false;
  if (!leer) {
    setzen(Bandart::Berichtskopf, -1, 0, Hoehe(S));
    Weiter(S);
  }
  setzen(Bandart::Seitenkopf, -1, 0, Feste_Hoehe(Bandart::Seitenkopf));
  const double unten = std::max(oben + Mindestplatz, ende - Feste_Hoehe(Bandart::Seitenfuss));
  for (; !S.Ende; leer = false) {
    const double hoehe = Hoehe(S), rest = hoehe - S.Versatz, platz = unten - oben;
    const bool mit_zeile = S.Naechstes != Bandart::Berichtsfuss;
    if (rest > platz && (leer || nach_kopf || (rest > Koerper() && platz >= Mindestplatz))) {
      // Nowhere does it fit as a whole (with its head), so it is cut here.
      const double schnitt = hoehe > 0 && mit_zeile && S.Naechstes != Bandart::Gruppenfuss
                                 ? Satz(S.Naechstes, S.Zeile).Schnitt(S.Versatz, platz)
                                 : hoehe;
      if (schnitt <= S.Versatz) break;  // below a head that leaves no room: whole on the next page
      setzen(S.Naechstes, mit_zeile ? S.Zeile : -1, S.Versatz, schnitt);
      S.Versatz = schnitt;
      if (S.Versatz >= hoehe) Weiter(S);
      break;
    }
    if (!leer && !nach_kopf && Zusammen(S) > platz) break;
    nach_kopf = S.Naechstes == Bandart::Gruppenkopf;
    setzen(S.Naechstes, mit_zeile ? S.Zeile : -1, S.Versatz, hoehe);
    Weiter(S);
  }
  oben = std::max(oben, ende - Feste_Hoehe(Bandart::Seitenfuss));
  setzen(Bandart::Seitenfuss, -1, 0, Feste_Hoehe(Bandart::Seitenfuss));
}

// --- one page

void Seitensatz::Durchgehen(int Seite, const std::function<void(const Stueck &)> &Tun) const {
  if (Seite < 0 || Seite >= Seiten()) return;
  Stelle stelle = Anfaenge_[std::size_t(Seite)];
  Seite_setzen(stelle, Seite, Tun);
}

void Seitensatz::Malen(QPainter &Maler, int Seite) const {
  const double links = mm(Masse_.Rand_links);
  const double breite = mm(Bericht_.Breite) * Streckung_;
  Durchgehen(Seite, [&](const Stueck &s) {
    Maler.save();
    Maler.translate(links, s.Oben);
    if (s.Art == Bandart::Detail) {
      const QColor farbe = QColor::fromRgb(Detail_Format(Bericht_, s.Zeile));
      if (farbe != Qt::white) Maler.fillRect(QRectF(0, 0, breite, s.Bis - s.Von), farbe);
      Satz(s.Art, s.Zeile).Malen(Maler, s.Von, s.Bis);
    } else {
      Stueck_setzen(s).Malen(Maler, s.Von, s.Bis);
    }
    Maler.restore();
  });
}

QString Seitensatz::Verweis(int Seite, QPointF Ort) const {
  QString text;
  Durchgehen(Seite, [&](const Stueck &s) {
    const double hoehe = Ort.y() - s.Oben;
    if (hoehe < 0 || hoehe >= s.Bis - s.Von) return;
    const QPointF im_band(Ort.x() - mm(Masse_.Rand_links), hoehe + s.Von);
    text =
        s.Art == Bandart::Detail ? Satz(s.Art, s.Zeile).Verweis(im_band) : Stueck_setzen(s).Verweis(im_band);
  });
  return text;
}

}  // namespace marklink
