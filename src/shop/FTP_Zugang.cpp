// The host's FTP client, called late-bound.
#include "FTP_Zugang.h"

#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {

FTP_Zugang::FTP_Zugang() : Komponente_(Host_Komponente_erzeugen(QStringLiteral("varda.common"))) {
  Host_Komponente_aufrufen(Komponente_.get(), QStringLiteral("Initialisierung"),
                           {Kontext.gFirmenname, Kontext.gBenutzername});
  for (const char *schluessel : {"ftphostname", "ftpusername", "ftppassword"})
    Anmeldung_ << Option_lesen(QStringLiteral("Marklink"), QLatin1String(schluessel));
}

bool FTP_Zugang::Aufrufen(const char *Operation, const QVariantList &Weitere) {
  return Host_Komponente_aufrufen(Komponente_.get(), QLatin1String(Operation), Anmeldung_ + Weitere).toBool();
}

bool FTP_Zugang::Verbindungstest() { return Aufrufen("FTP_Verbindungstest", {}); }

bool FTP_Zugang::Upload(const QString &Zielordner, const QString &Datei) {
  return Aufrufen("FTP_Upload", {Zielordner, Datei});
}

bool FTP_Zugang::Datei_exists(const QString &Zielordner, const QString &Dateiname) {
  return Aufrufen("FTP_Datei_exists", {Zielordner, Dateiname});
}

}  // namespace marklink
