// One band with its texts laid out: how high it is, where it may be cut, and its drawing.
#pragma once

#include <QTextLayout>
#include <functional>
#include <memory>

#include "Bericht.h"

class QPainter;

namespace marklink {

class Bandsatz {
 public:
  using Elementtext = std::function<QString(const Berichtselement &)>;

  /// `Streckung`: by what all that is horizontal is stretched. The band must outlive this. An element that
  /// grows pushes down what stands below it.
  Bandsatz(const Band &B, double Streckung, const Elementtext &Text);

  double Hoehe() const { return Hoehe_; }
  /// Where the band is cut when only `Platz` of it fits from `Von` on: behind `Von`, and through a line of
  /// text only when that one alone is higher.
  double Schnitt(double Von, double Platz) const;
  /// Draws what lies between `Von` and `Bis`, with the place of `Von` at the painter's origin.
  void Malen(QPainter &Maler, double Von, double Bis) const;
  /// The text of the clickable element at that place; empty when there is none.
  QString Verweis(QPointF Ort) const;

 private:
  struct Textzeile {
    QTextLine Zeile;
    QPointF Ort;
    double Unten;
  };
  struct Teil {
    const Berichtselement *Element;
    QRectF Ort;
    QString Text{};
    std::vector<std::unique_ptr<QTextLayout>> Stuecke{};
    std::vector<Textzeile> Zeilen{};  ///< from top to bottom
  };
  /// The first line that ends below that place.
  static std::vector<Textzeile>::const_iterator Zeile_unter(const Teil &T, double Ort);
  static void Text_setzen(Teil &T);
  static qsizetype Stueck_setzen(Teil &T, const QFont &Schrift, qsizetype Von, double &Unten);
  void Zeichnen(QPainter &Maler, const Teil &T) const;

  double Hoehe_ = 0;
  std::vector<Teil> Teile_;
};

}  // namespace marklink
