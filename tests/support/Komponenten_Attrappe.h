// A host whose components record their calls and answer as told. Installed while it lives.
#pragma once

#include <QStringList>

#include "ui/Host_Komponenten.h"

namespace marklink::test {

class Komponenten_Attrappe : public Host_Komponenten {
 public:
  Komponenten_Attrappe() { Host_Komponenten_setzen(this); }
  ~Komponenten_Attrappe() override { Host_Komponenten_setzen(nullptr); }
  Komponenten_Attrappe(const Komponenten_Attrappe &) = delete;
  Komponenten_Attrappe &operator=(const Komponenten_Attrappe &) = delete;

  /// Forgets the calls; `Ergebnisse` are the answers to come, but for "Initialisierung", which says true.
  void Vorbereiten(const QVariantList &Ergebnisse) {
    Ergebnisse_ = Ergebnisse;
    Aufrufe.clear();
  }
  /// "Operation argument argument"
  QStringList Aufrufe;

  std::unique_ptr<Host_Komponente> Erzeugen(const QString &Name) override {
    if (Name != QLatin1String("varda.common")) return nullptr;
    return std::make_unique<Komponente>(*this);
  }

 private:
  struct Komponente : Host_Komponente {
    explicit Komponente(Komponenten_Attrappe &H) : Host(H) {}
    QVariant Aufrufen(const QString &Operation, QVariantList &Argumente) override {
      QStringList teile{Operation};
      for (const QVariant &argument : Argumente) teile << argument.toString();
      Host.Aufrufe << teile.join(u' ');
      if (Operation == QLatin1String("Initialisierung")) return true;
      return Host.Ergebnisse_.isEmpty() ? QVariant() : Host.Ergebnisse_.takeFirst();
    }
    Komponenten_Attrappe &Host;
  };
  QVariantList Ergebnisse_;
};

}  // namespace marklink::test
