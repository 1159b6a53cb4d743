// Printers, the printer dialog and printing.
#include "clsPrintDialog.h"

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <cmath>

#include "db/Ablaufverfolgung.h"
#include "frmVorschau.h"

namespace marklink {
namespace {

Druckereinstellung Einstellung_lesen(const QPrinter &Von) {
  Druckereinstellung e{Von.printerName()};
  const QSizeF papier = Von.pageLayout().pageSize().size(QPageSize::Millimeter);
  if (papier.isValid() && !papier.isEmpty()) {
    e.Papierbreite = papier.width();
    e.Papierhoehe = papier.height();
  }
  e.Querformat = Von.pageLayout().orientation() == QPageLayout::Landscape;
  e.PaperBin = int(Von.paperSource());
  e.PrintQuality = Von.resolution();
  e.Copies = Von.copyCount();
  return e;
}

void Einstellung_schreiben(QPrinter &Nach, const Druckereinstellung &E) {
  if (!E.DeviceName.isEmpty()) Nach.setPrinterName(E.DeviceName);
  Nach.setPageSize(QPageSize(QSizeF(E.Papierbreite, E.Papierhoehe), QPageSize::Millimeter, QString(),
                             QPageSize::FuzzyMatch));
  Nach.setPageOrientation(E.Querformat ? QPageLayout::Landscape : QPageLayout::Portrait);
  Nach.setPaperSource(QPrinter::PaperSource(E.PaperBin));
  if (E.PrintQuality > 0) Nach.setResolution(E.PrintQuality);
  Nach.setCopyCount(E.Copies);
}

/// The printer as the report wants it.
void Drucker_vorbereiten(QPrinter &Ziel, const Report &R) {
  Druckereinstellung einstellung = R.Printer;
  einstellung.Papierbreite = R.PageSettings.Papierbreite;
  einstellung.Papierhoehe = R.PageSettings.Papierhoehe;
  einstellung.Querformat = R.PageSettings.Querformat;
  Einstellung_schreiben(Ziel, einstellung);
  Ziel.setColorMode(R.ColorMode ? QPrinter::Color : QPrinter::GrayScale);
  Ziel.setDocName(R.Beschreibung().Dokumenttitel);
}

/// The same sheet, but for the rounding of the printer's own sizes.
bool Gleiches_Papier(const Druckereinstellung &A, const Druckereinstellung &B) {
  constexpr double grenze = 2;  // millimetres
  return A.Querformat == B.Querformat && std::abs(A.Papierbreite - B.Papierbreite) < grenze &&
         std::abs(A.Papierhoehe - B.Papierhoehe) < grenze;
}

clsDrucker Geraete;

}  // namespace

QStringList clsDrucker::Namen() const { return QPrinterInfo::availablePrinterNames(); }

QString clsDrucker::Standard() const { return QPrinterInfo::defaultPrinterName(); }

Druckereinstellung clsDrucker::Einstellung(const QString &Name) const {
  const QPrinterInfo geraet = QPrinterInfo::printerInfo(Name);
  if (geraet.isNull()) return {Name};
  return Einstellung_lesen(QPrinter(geraet, QPrinter::HighResolution));
}

bool clsPrintDialog::Zeigen(QWidget *Eltern) {
  QPrinter geraet(QPrinter::HighResolution);
  Einstellung_schreiben(geraet, Aktueller_Drucker());
  QPrintDialog dialog(&geraet, Eltern);
  // The current printer has neither.
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return false;
  Aktueller_Drucker_setzen(Einstellung_lesen(geraet));
  return true;
}

bool Seiten_drucken(QPrinter &Ziel, const Seitensatz &Satz, int Von, int Bis) {
  Ziel.setFullPage(true);  // the margins are the report's own
  QPainter maler;
  bool gut = maler.begin(&Ziel);
  const double einheit = Ziel.resolution() / Twips_je_Zoll;
  for (int seite = Von; gut && seite <= Bis; ++seite) {
    if (seite > Von) gut = Ziel.newPage();
    if (!gut) break;
    maler.resetTransform();
    maler.scale(einheit, einheit);
    Satz.Malen(maler, seite - 1);
  }
  gut = gut && maler.end();
  if (!gut) Ablauf_melden(QStringLiteral("Druck"), Ziel.printerName());
  return gut;
}

Wartezeiger::Wartezeiger() { QApplication::setOverrideCursor(Qt::WaitCursor); }
Wartezeiger::~Wartezeiger() { QApplication::restoreOverrideCursor(); }

void Report_drucken(Report &R) {
  const Wartezeiger warten;
  QPrinter geraet(QPrinter::HighResolution);
  Drucker_vorbereiten(geraet, R);
  const Seitensatz &satz = R.Run();
  Seiten_drucken(geraet, satz, 1, satz.Seiten());
}

void Report_drucken_mit_Dialog(Report &R, QWidget *Eltern) {
  const Seitensatz &gesehen = R.Pages();
  QPrinter geraet(QPrinter::HighResolution);
  Drucker_vorbereiten(geraet, R);
  QPrintDialog dialog(&geraet, Eltern);
  dialog.setMinMax(1, gesehen.Seiten());
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  if (dialog.exec() != QDialog::Accepted) return;
  const Wartezeiger warten;
  // On other paper than the preview's the pages are others.
  const Druckereinstellung gewaehlt = Einstellung_lesen(geraet);
  const bool wie_gesehen = Gleiches_Papier(gewaehlt, R.PageSettings);
  const auto neu = wie_gesehen ? nullptr : R.Setzen(gewaehlt);
  const Seitensatz &satz = neu ? *neu : gesehen;
  const bool bereich = geraet.printRange() == QPrinter::PageRange && geraet.fromPage() > 0;
  const int von = bereich ? std::min(geraet.fromPage(), satz.Seiten()) : 1;
  Seiten_drucken(geraet, satz, von, bereich ? std::min(geraet.toPage(), satz.Seiten()) : satz.Seiten());
}

void Druckfenster_einrichten() {
  Drucker_setzen(&Geraete);
  Berichtsfenster_setzen({[] { return clsPrintDialog::Zeigen(QApplication::activeWindow()); },
                          [](Report &r) { frmVorschau(r, QApplication::activeWindow()).exec(); },
                          &Report_drucken});
}

void Druckfenster_abbauen() {
  Drucker_setzen(nullptr);
  Berichtsfenster_setzen({});
}

}  // namespace marklink
