// Percent-encoding of one request value, in the bytes of the system's character set.
#include "Url_kodieren.h"

#include "host/Zeichensatz.h"

namespace marklink {

QString Url_kodieren(const QString &Wert) {
  bool vollstaendig = true;
  const QByteArray bytes = Nach_1252(Wert, &vollstaendig);
  if (!vollstaendig) return {};
  // Qt lets "~" pass as well, which older scripts do not expect.
  return QString::fromLatin1(bytes.toPercentEncoding({}, "~"));
}

}  // namespace marklink
