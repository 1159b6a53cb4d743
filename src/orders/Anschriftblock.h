// The address block of an order, made from the country's template.
#pragma once

#include <QString>
#include <pugixml.hpp>

namespace marklink {

/// The block of a BILLING_ADDRESS or DELIVERY_ADDRESS node. The country stands in capitals, the home country
/// (Kontext.gCountry) and an unknown one not at all. Lines that stay empty remain, on purpose.
QString Anschriftblock_erzeugen(const pugi::xml_node &Anschrift);

}  // namespace marklink
