// The host's FTP client with the access data of the settings.
#pragma once

#include <QString>
#include <memory>

#include "ui/Host_Komponenten.h"

namespace marklink {

/// Creates "varda.common" for as long as it lives and reads the access data once. Without that component
/// every operation answers false, silently. Folders end with "/".
class FTP_Zugang {
 public:
  FTP_Zugang();

  bool Verbindungstest();
  /// Sends the local file into the folder, under its own bare name.
  bool Upload(const QString &Zielordner, const QString &Datei);
  bool Datei_exists(const QString &Zielordner, const QString &Dateiname);

 private:
  bool Aufrufen(const char *Operation, const QVariantList &Weitere);

  std::unique_ptr<Host_Komponente> Komponente_;
  QVariantList Anmeldung_;
};

}  // namespace marklink
