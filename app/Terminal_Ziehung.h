// The drawing of a number where no operator watches: a standstill is told and ends.
#pragma once

#include "rules/Ziehungsaufsicht.h"

namespace marklink {

/// That a number is taken and its range leads to no other, in words.
QString Stillstandstext(const QString &Bereich, const QString &Nummer);

/// A Stillstandsfrage: goes on for some rounds, then tells it on standard error and ends the drawing.
bool Stillstand_im_Terminal(const Stillstand &S);

}  // namespace marklink
