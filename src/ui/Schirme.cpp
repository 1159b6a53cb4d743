// The screens by their names.
#include "Schirme.h"

#include <QHash>
#include <utility>

namespace marklink {
namespace {

QHash<QString, Schirm> &Angemeldet() {
  static QHash<QString, Schirm> schirme;
  return schirme;
}

}  // namespace

void Schirm_anmelden(const QString &Name, Schirm Zeigen) { Angemeldet().insert(Name, std::move(Zeigen)); }

bool Schirm_oeffnen(const QString &Name) {
  const Schirm schirm = Angemeldet().value(Name);
  if (!schirm) return false;
  schirm();
  return true;
}

}  // namespace marklink
