// A banded report as data: its bands, what stands in them, its fields, groups and row colours. What it looks
// like on paper is Seitensatz' work, what it looks like in a file Berichtsausgabe's.
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <array>
#include <vector>

namespace marklink {

/// Lengths on paper are twips, 1/1440 inch: a point has 20 of them.
constexpr double Twips_je_Punkt = 20.0, Twips_je_Zoll = 1440.0;
constexpr double mm(double Millimeter) { return Millimeter * Twips_je_Zoll / 25.4; }

/// In the order in which they appear.
enum class Bandart : quint8 {
  Berichtskopf,  ///< once, at the top of the first page
  Seitenkopf,
  Gruppenkopf,
  Detail,  ///< once for each row
  Gruppenfuss,
  Seitenfuss,
  Berichtsfuss  ///< once, behind the last group
};
constexpr std::size_t Bandzahl = 7;

/// A shape in a square of side 1.
struct Zeichenschritt {
  QPainterPath Pfad;
  QColor Farbe;
};

struct Berichtselement {
  enum class Art : quint8 { Text, Feld, Gruppensumme, Gesamtsumme, Seite, Seitenzahl, Linie, Rahmen, Bild };
  enum class Lage : quint8 { Links, Mitte, Rechts };

  Art Was = Art::Text;
  QString Name{};
  QRectF Ort{};      ///< millimetres within the band. A text wraps at its width and grows; one that stands to
                     ///< the right is a number: it shrinks before it wraps
  QString Inhalt{};  ///< the text, or the name of the field that is shown or added up
  QString Format{};  ///< number picture; empty: the text as it stands
  double Punkt = 9;  ///< size of the letters
  bool Fett = false;
  Lage Ausrichtung = Lage::Links;
  bool Verweis = false;  ///< its text can be clicked
  std::vector<Zeichenschritt> Zeichnung{};
};

struct Band {
  double Hoehe = 0;  ///< millimetres; grows with its texts
  std::vector<Berichtselement> Elemente{};
};

struct Berichtsfeld {
  enum class Art : quint8 { Text, Zahl, Datum };
  QString Name;
  QString Spaltentitel{};  ///< its column in the exports that are tables; empty: in none
  Art Was = Art::Text;     ///< as what such a table holds it
  double Anteil = 1;       ///< width of that column, in relation to the others
};

struct Bericht {
  QString Dokumenttitel;  ///< of the file or print job
  double Breite = 180;    ///< millimetres; on other paper everything is stretched to what is there
  std::vector<Berichtsfeld> Felder;
  QString Gruppierung;  ///< field by whose change a group ends; empty: no groups
  std::array<Band, Bandzahl> Baender;
  std::array<QRgb, 2> Zeilenfarben{0xFFFFFFFF, 0xFFFFFFFF};  ///< of even and odd rows

  Band &operator[](Bandart Art) { return Baender[std::size_t(Art)]; }
  const Band &operator[](Bandart Art) const { return Baender[std::size_t(Art)]; }
  /// Place of a field in Felder; -1 when there is none.
  int Feld_finden(const QString &Name) const;
  /// The element of that name, whichever band it stands in; nullptr when there is none.
  Berichtselement *Element_finden(const QString &Name);
};

/// Background of a row; rows are counted from 0 through the whole report.
inline QRgb Detail_Format(const Bericht &B, int Zaehler) { return B.Zeilenfarben[std::size_t(Zaehler & 1)]; }

/// Where the rows come from. Asked in any order, mostly forwards, each row several times.
class Berichtsdaten {
 public:
  virtual ~Berichtsdaten() = default;
  virtual int Zeilen() const = 0;
  /// Text of a field by its place in Bericht::Felder.
  virtual QString Feld(int Zeile, int Feld) const = 0;
};

}  // namespace marklink
