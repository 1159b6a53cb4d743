// Values as text and as JSON.
#include "Werteausgabe.h"

#include <QDateTime>

#include "Ausgabe.h"
#include "host/Datumsbilder.h"
#include "host/Zahlen.h"

namespace marklink {

QString Werttext(const QVariant &Wert) {
  if (Wert.isNull()) return {};
  switch (Wert.typeId()) {
    case QMetaType::QDateTime:
    case QMetaType::QDate:
      return Zeitpunkt_als_Text(Wert.toDateTime());
    case QMetaType::Double:
      return Zahl_formatieren(Wert.toDouble(), QStringLiteral("standard"));
    default:
      return Wert.toString();
  }
}

QJsonValue Als_Json(const QVariant &Wert) {
  if (Wert.isNull()) return QJsonValue::Null;
  switch (Wert.typeId()) {
    case QMetaType::QDateTime:
      return Wert.toDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    case QMetaType::QDate:
      return Wert.toDate().toString(Qt::ISODate);
    default:
      return QJsonValue::fromVariant(Wert);
  }
}

void Json_ausgeben(const QJsonDocument &Dokument) {
  Ausgeben(QString::fromUtf8(Dokument.toJson()).trimmed());
}

}  // namespace marklink
