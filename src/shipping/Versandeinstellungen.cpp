// Reading and writing the settings of the export.
#include "Versandeinstellungen.h"

#include "host/Datenbank.h"
#include "host/Zahlen.h"
#include "ui/Dialoge.h"

namespace marklink {

namespace {

QString Lesen(const char *Schluessel) {
  return Option_lesen(QStringLiteral("easylog"), QLatin1String(Schluessel));
}

void Schreiben(const char *Schluessel, const QString &Wert) {
  Option_schreiben(QStringLiteral("easylog"), QLatin1String(Schluessel), Wert);
}

}  // namespace

Versandeinstellungen Versandeinstellungen_lesen() {
  Versandeinstellungen e{};
  e.EKPNummer = Lesen("ekp");
  e.Mandant = Lesen("client");
  e.Exportdatei = Lesen("file");
  e.Fortschreiben = Als_Kurzzahl(Lesen("appendrecords"));
  e.Trennzeichen = Lesen("delimiter");
  e.Spaltentitel = Als_Kurzzahl(Lesen("columnheader"));
  return e;
}

void Versandeinstellungen_schreiben(const Versandeinstellungen &Neu) {
  Schreiben("ekp", Neu.EKPNummer);
  Schreiben("client", Neu.Mandant);
  Schreiben("file", Neu.Exportdatei);
  Schreiben("appendrecords", QString::number(Neu.Fortschreiben));
  Schreiben("delimiter", Neu.Trennzeichen);
  Schreiben("columnheader", QString::number(Neu.Spaltentitel));
}

QString Exportdatei_waehlen(const QString &Bisher) {
  const QString gewaehlt = dialoge().Datei_speichern(QStringLiteral("Exportieren zur Versandsoftware"),
                                                     QStringLiteral("Easylog-Format (*.csv)|*.csv"), Bisher);
  return gewaehlt.isEmpty() ? Bisher : gewaehlt;
}

}  // namespace marklink
