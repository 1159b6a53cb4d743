// The host components that the launcher brings: none, so what is handed to them is passed over.
#pragma once

#include "ui/Host_Komponenten.h"

namespace marklink {

class Launcher_Komponenten : public Host_Komponenten {
 public:
  std::unique_ptr<Host_Komponente> Erzeugen(const QString &Name) override;
};

}  // namespace marklink
