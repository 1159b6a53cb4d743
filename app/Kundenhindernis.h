// Why an order has no customer in the books, in words.
#pragma once

#include "orders/Kundenuebernahme.h"

namespace marklink {

/// Empty for a customer that was saved.
QString Kundenhindernis(const Kundenuebernahme &Kunde);

}  // namespace marklink
