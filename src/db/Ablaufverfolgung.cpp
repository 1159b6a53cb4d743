// MARKLINK_TRACE=1: one line on standard error for each failure that is passed over.
#include "Ablaufverfolgung.h"

#include <cstdio>

namespace marklink {

bool Ablaufverfolgung_an() {
  // Read each time: a host may switch tracing on while it runs.
  return qgetenv("MARKLINK_TRACE") == "1";
}

void Ablauf_melden(const QString &Stelle, const QString &Grund) {
  if (!Ablaufverfolgung_an()) return;
  const QByteArray zeile = (Stelle + QStringLiteral(": ") + Grund).simplified().toUtf8();
  std::fprintf(stderr, "marklink: %s\n", zeile.constData());
}

}  // namespace marklink
