// Creating and calling the host's components; every failure is silent, the trace tells of it.
#include "Host_Komponenten.h"

#include "db/Ablaufverfolgung.h"

namespace marklink {

namespace {

Host_Komponenten *Installiert = nullptr;

}  // namespace

std::unique_ptr<Host_Komponente> Host_Komponente_erzeugen(const QString &Name) {
  auto komponente = Installiert != nullptr ? Installiert->Erzeugen(Name) : nullptr;
  if (!komponente)
    Ablauf_melden(QStringLiteral("Host-Komponente"), QStringLiteral("%1 is missing").arg(Name));
  return komponente;
}

QVariant Host_Komponente_aufrufen(Host_Komponente *Komponente, const QString &Operation,
                                  QVariantList Argumente) {
  return Komponente != nullptr ? Komponente->Aufrufen(Operation, Argumente) : QVariant();
}

void Host_Komponenten_setzen(Host_Komponenten *Neu) { Installiert = Neu; }

}  // namespace marklink
