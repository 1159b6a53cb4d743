// The host components that the launcher brings.
#include "Launcher_Komponenten.h"

#include "db/Ablaufverfolgung.h"

namespace marklink {

std::unique_ptr<Host_Komponente> Launcher_Komponenten::Erzeugen(const QString &Name) {
  Ablauf_melden(QStringLiteral("Host_Komponente_erzeugen"),
                QStringLiteral("'%1' ist nicht vorhanden").arg(Name));
  return nullptr;
}

}  // namespace marklink
