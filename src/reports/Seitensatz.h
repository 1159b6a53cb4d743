// A report page by page. One pass measures it and keeps of each page only where it begins: the row, the part
// of a cut band, and the sums up to there. Any page is then drawn from its own beginning, and none is kept.
#pragma once

#include <optional>

#include "Bandsatz.h"

namespace marklink {

/// Paper with its margins, in millimetres; as it is held, so wider than high for landscape.
struct Seitenmasse {
  double Breite = 210, Hoehe = 297;
  double Rand_links = 15, Rand_rechts = 15, Rand_oben = 12, Rand_unten = 12;
};

class Seitensatz {
 public:
  /// Both must outlive this, and stay as they are.
  Seitensatz(const Bericht &B, const Berichtsdaten &Daten, const Seitenmasse &Masse);
  Seitensatz(const Seitensatz &) = delete;
  Seitensatz &operator=(const Seitensatz &) = delete;

  const Bericht &Was() const { return Bericht_; }
  const Seitenmasse &Masse() const { return Masse_; }
  /// At least one.
  int Seiten() const { return int(Anfaenge_.size()); }
  /// Draws a page (0-based); the painter's origin is the corner of the paper, its unit the twip.
  void Malen(QPainter &Maler, int Seite) const;
  /// The text of the clickable element at that place of a page; empty when there is none.
  QString Verweis(int Seite, QPointF Ort) const;

  /// One band, or a part of a cut one, on a page.
  struct Stueck {
    Bandart Art;
    int Zeile;  ///< the row; -1 without one
    int Seite;
    double Oben;      ///< place on the paper
    double Von, Bis;  ///< what is seen of the band; Von is 0 where it begins
    const std::vector<double> &Gruppensummen, &Gesamtsummen;
  };
  /// Walks over the bands of a page from top to bottom.
  void Durchgehen(int Seite, const std::function<void(const Stueck &)> &Tun) const;
  /// What an element of that band shows there.
  QString Text(const Berichtselement &E, const Stueck &S) const;

 private:
  /// Where the text of the report goes on.
  struct Stelle {
    Bandart Naechstes = Bandart::Berichtskopf;
    bool Ende = false;
    int Zeile = 0;
    double Versatz = 0;                  ///< what of the next band stands on earlier pages
    std::vector<double> Gruppe, Gesamt;  ///< by the places in Summenfelder_
  };
  struct Gesetzt {
    int Zeile = -1;
    std::optional<Bandsatz> Satz;
  };

  void Summenfelder_suchen();
  void Seite_setzen(Stelle &S, int Seite, const std::function<void(const Stueck &)> &Tun) const;
  void Weiter(Stelle &S) const;
  void Zeile_summieren(Stelle &S) const;
  bool Gruppe_endet(int Zeile) const;
  const Bandsatz &Satz(Bandart Art, int Zeile) const;
  double Hoehe(const Stelle &S) const;
  double Zusammen(const Stelle &S) const;
  double Feste_Hoehe(Bandart Art) const { return Feste_Hoehen_[std::size_t(Art)]; }
  double Koerper() const;
  QString Summentext(const Berichtselement &E, const std::vector<double> &Summen) const;
  Bandsatz Stueck_setzen(const Stueck &S) const;

  const Bericht &Bericht_;
  const Berichtsdaten &Daten_;
  Seitenmasse Masse_;
  double Streckung_;
  int Gruppenfeld_;
  std::vector<int> Summenfelder_;
  std::array<double, Bandzahl> Feste_Hoehen_{};  ///< of the bands that do not grow with a row
  std::vector<Stelle> Anfaenge_;
  mutable Gesetzt Kopf_, Detail_;  ///< the last ones, since they are asked for several times
};

}  // namespace marklink
