// Where a picture is drawn on its target.
#pragma once

#include <QRect>

namespace marklink {

/// The area for a picture of that size on a target of that size, in pixels. With proportions: as large as
/// fits, centred, at least one pixel each way; without: the whole target. Empty when one of the two is.
QRect Bildflaeche(QSize Bild, QSize Ziel, bool Proportional);

}  // namespace marklink
