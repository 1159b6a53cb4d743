// The host components that the launcher brings.
#include "Launcher_Komponenten.h"

#include "db/Ablaufverfolgung.h"

namespace marklink {

std::unique_ptr<Host_Komponente> Launcher_Komponenten::Erzeugen(const QString &Name) {
  const auto heisst = [&Name](const char *Name_) {
    return Name.compare(QLatin1String(Name_), Qt::CaseInsensitive) == 0;
  };
  if (heisst("dta.common")) return Dta_erzeugen();
  if (heisst("datev.common")) return Datev_erzeugen();
  if (heisst("varda.common")) return Varda_erzeugen();
  Ablauf_melden(QStringLiteral("Host_Komponente_erzeugen"),
                QStringLiteral("'%1' ist nicht vorhanden").arg(Name));
  return nullptr;
}

}  // namespace marklink
