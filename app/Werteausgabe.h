// Values of the books as results show them.
#pragma once

#include <QJsonDocument>
#include <QJsonValue>
#include <QVariant>

namespace marklink {

/// Dates and numbers as the screens show them; null is empty.
QString Werttext(const QVariant &Wert);
/// Dates are ISO text; null stays null.
QJsonValue Als_Json(const QVariant &Wert);
void Json_ausgeben(const QJsonDocument &Dokument);

}  // namespace marklink
