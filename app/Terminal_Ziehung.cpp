// The drawing of a number where no operator watches.
#include "Terminal_Ziehung.h"

#include "Ausgabe.h"

namespace marklink {

namespace {

constexpr int Hoechstens_Runden = 3;  ///< more of them would only repeat what stands still

}  // namespace

QString Stillstandstext(const QString &Bereich, const QString &Nummer) {
  return QStringLiteral(
             "Im Nummernkreis '%1' ist die Nummer '%2' vergeben, und sein Zähler führt zu keiner anderen.")
      .arg(Bereich, Anzeigbar(Nummer));
}

bool Stillstand_im_Terminal(const Stillstand &S) {
  if (S.Runden < Hoechstens_Runden) return true;
  Fehler_melden(Stillstandstext(S.Bereich, S.Nummer));
  return false;
}

}  // namespace marklink
