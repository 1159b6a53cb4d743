// The launcher's "varda.common": files to the shop's server by FTP.
#include "Ftp.h"
#include "Komponente.h"
#include "Launcher_Komponenten.h"

namespace marklink {
namespace {

Ftpanmeldung Anmeldung(const QVariantList &Argumente) {
  return {Argumente[0].toString(), Argumente[1].toString(), Argumente[2].toString()};
}

QVariant FTP_Verbindungstest(const QVariantList &Argumente) { return Ftp_anmelden(Anmeldung(Argumente)); }

QVariant FTP_Upload(const QVariantList &Argumente) {
  return Ftp_hochladen(Anmeldung(Argumente), Argumente[3].toString(), Argumente[4].toString());
}

QVariant FTP_Datei_exists(const QVariantList &Argumente) {
  return Ftp_vorhanden(Anmeldung(Argumente), Argumente[3].toString(), Argumente[4].toString());
}

class Varda : public Komponente {
 public:
  Varda()
      : Komponente("varda.common", {{"FTP_Verbindungstest", 3, &FTP_Verbindungstest},
                                    {"FTP_Upload", 5, &FTP_Upload},
                                    {"FTP_Datei_exists", 5, &FTP_Datei_exists}}) {}
};

}  // namespace

std::unique_ptr<Host_Komponente> Varda_erzeugen() { return std::make_unique<Varda>(); }

}  // namespace marklink
