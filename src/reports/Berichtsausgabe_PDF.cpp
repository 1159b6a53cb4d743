// Export as PDF.
#include <QPainter>
#include <QPdfWriter>

#include "Berichtsausgabe.h"

namespace marklink {

bool PDF_schreiben(const Seitensatz &Satz, QIODevice &Ziel) {
  QPdfWriter pdf(&Ziel);
  pdf.setTitle(Satz.Was().Dokumenttitel);
  pdf.setCreator(QStringLiteral("Marklink"));
  pdf.setResolution(int(Twips_je_Zoll));
  const Seitenmasse &masse = Satz.Masse();
  const QPageSize papier(QSizeF(masse.Breite, masse.Hoehe), QPageSize::Millimeter, QString(),
                         QPageSize::ExactMatch);
  pdf.setPageLayout(QPageLayout(papier, QPageLayout::Portrait, QMarginsF()));
  QPainter maler;
  if (!maler.begin(&pdf)) return false;
  for (int seite = 0; seite < Satz.Seiten(); ++seite) {
    if (seite > 0 && !pdf.newPage()) return false;
    Satz.Malen(maler, seite);
  }
  return maler.end();
}

}  // namespace marklink
