// Small text routines.
#include "Texte.h"

#include <QDateTime>

#include "Datumsbilder.h"
#include "Zahlen.h"
#include "Zeichensatz.h"
#include "db/Zeitpunkt.h"

namespace marklink {

int Letzte_Position(const QString &Text, const QString &Zeichen) {
  return Zeichen.isEmpty() ? 0 : int(Text.lastIndexOf(Zeichen[0])) + 1;
}

QString Null_als_Text(const QVariant &Wert) {
  switch (Wert.typeId()) {
    case QMetaType::Double:
      return Zahl_als_Text(Wert.toDouble());
    case QMetaType::QDate:
      return Zeitpunkt_als_Text(Zeitpunkt(Wert.toDate()));
    case QMetaType::QDateTime:
      return Zeitpunkt_als_Text(Wert.toDateTime());
    case QMetaType::Bool:
      return Wert.toBool() ? QStringLiteral("Wahr") : QStringLiteral("Falsch");
    default:
      return Wert.toString();
  }
}

QString Grossbuchstaben(const QString &Text) {
  QString gross = Text;
  for (QChar &z : gross)
    if (z != u'\u00B5' && z != u'\u0192') z = z.toUpper();  // those have theirs outside the set
  return gross;
}

QString Text_Pruefsumme(const QString &Text) {
  const QByteArray bytes = Nach_1252(Text);
  qint64 summe = 0;
  for (qsizetype i = 0; i < bytes.size(); ++i) summe += i + 1 + 255 + static_cast<unsigned char>(bytes[i]);
  return QString::number(summe);
}

QString Text_verschieben(const QString &Text) {
  QByteArray bytes = Nach_1252(Text);
  for (char &b : bytes) b = static_cast<char>(static_cast<unsigned char>(b) + 31U);
  return Von_1252(bytes);
}

}  // namespace marklink
