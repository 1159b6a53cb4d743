// The payment details of an order as text. They hold bank and card data: never for a trace.
#pragma once

#include <QString>
#include <pugixml.hpp>

namespace marklink {

/// Four lines for "banktransfer" and "cc", empty for any other payment method. Lines end in CR LF but the
/// last.
QString Zahlungshinweis_erzeugen(const pugi::xml_node &OrderInfo);

}  // namespace marklink
