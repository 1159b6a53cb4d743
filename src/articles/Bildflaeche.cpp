// Where a picture is drawn on its target.
#include "Bildflaeche.h"

#include <algorithm>
#include <cmath>

namespace marklink {

QRect Bildflaeche(QSize Bild, QSize Ziel, bool Proportional) {
  if (Bild.isEmpty() || Ziel.isEmpty()) return {};
  if (!Proportional) return {QPoint(0, 0), Ziel};
  const double verhaeltnis = double(Bild.width()) / Bild.height();
  QSize gross = Ziel;
  if (double(Ziel.width()) / Ziel.height() > verhaeltnis)
    gross.setWidth(std::max(1, int(std::lround(Ziel.height() * verhaeltnis))));
  else
    gross.setHeight(std::max(1, int(std::lround(Ziel.width() / verhaeltnis))));
  return {QPoint((Ziel.width() - gross.width()) / 2, (Ziel.height() - gross.height()) / 2), gross};
}

}  // namespace marklink
