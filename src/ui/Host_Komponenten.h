// The port for the host's components that are created by name: "varda.common", "dta.common", "datev.common".
#pragma once

#include <QString>
#include <QVariantList>
#include <memory>

namespace marklink {

/// A late-bound object of the host. `Aufrufen` gives an invalid QVariant when the component has no such
/// operation or the call failed; arguments that the operation changes come back in `Argumente`.
class Host_Komponente {
 public:
  virtual ~Host_Komponente() = default;
  virtual QVariant Aufrufen(const QString &Operation, QVariantList &Argumente) = 0;
};

class Host_Komponenten {
 public:
  virtual ~Host_Komponenten() = default;
  /// nullptr for an unknown name.
  virtual std::unique_ptr<Host_Komponente> Erzeugen(const QString &Name) = 0;
};

/// Creates a component through the installed port; nullptr when there is no port or no such component.
std::unique_ptr<Host_Komponente> Host_Komponente_erzeugen(const QString &Name);
/// Calls an operation; an invalid QVariant on nullptr.
QVariant Host_Komponente_aufrufen(Host_Komponente *Komponente, const QString &Operation,
                                  QVariantList Argumente);
void Host_Komponenten_setzen(Host_Komponenten *Neu);  ///< not owned; nullptr: none

}  // namespace marklink
