// Fetching one article from the shop, for an order that names an article which the client lacks.
#pragma once

#include <QString>

namespace marklink {

/// True when an article of that shop id was fetched and stored. Articles do not come down from the shop yet:
/// nothing is fetched.
bool Artikel_holen(const QString &WebshopID);

}  // namespace marklink
