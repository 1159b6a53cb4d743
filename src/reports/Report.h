// A report that can be shown, printed and exported, and the routines by which every list leaves the program.
#pragma once

#include <functional>
#include <memory>

#include "Exportart.h"
#include "Seitensatz.h"
#include "ui/Drucker.h"

namespace marklink {

class Report {
 public:
  Report(Bericht Was, std::shared_ptr<const Berichtsdaten> Daten);

  // --- the preview's tools
  bool DisplayToolTips = false;
  QStringList Tools;  ///< tips by the tools' places
  // --- paper and printer
  bool DisplayProgressDialog = true;
  Druckereinstellung PageSettings;
  Druckereinstellung Printer;
  bool ColorMode = false;
  /// Stores the text of a link that was clicked in the preview; may be empty.
  std::function<void(const QString &)> hyperLink;
  /// Lets go of the rows when the report has been shown, printed or exported; may be empty.
  std::function<void()> ReportEnd;

  const Bericht &Beschreibung() const { return Bericht_; }
  /// Lays the report out for PageSettings; the pages live until the next call.
  const Seitensatz &Run();
  /// The pages as they were laid out last.
  const Seitensatz &Pages() { return Satz_ ? *Satz_ : Run(); }
  /// Pages of their own for other paper.
  std::unique_ptr<Seitensatz> Setzen(const Druckereinstellung &Papier) const;
  /// The report's end: its pages and rows are gone.
  void Unload();

 private:
  Bericht Bericht_;
  std::shared_ptr<const Berichtsdaten> Daten_;
  std::unique_ptr<Seitensatz> Satz_;
};

/// What of a report needs windows. None installed: nothing is shown or printed.
struct Berichtsfenster {
  std::function<bool()> Druckerdialog;        ///< sets the current printer; false: cancelled
  std::function<void(Report &)> Show;         ///< the preview, modally
  std::function<void(Report &)> PrintReport;  ///< without a further dialog
};
void Berichtsfenster_setzen(Berichtsfenster Fenster);
const Berichtsfenster &berichtsfenster();

/// Shows or prints the report: the preview when `Nur_Vorschau` or by Program/Preview "1", else straight to
/// the printer; then unloads it. Without a printer there is the box of Drucker_vorhanden() and nothing else.
void Report_ausgeben(Report &R, bool Mit_Druckerdialog, bool Nur_Vorschau, bool Einstellungen_anwenden);

/// Writes the report to a file and unloads it. A failing export ends without a message; false then, and
/// without a printer, since the pages are laid out for one.
bool Report_exportieren(Report &R, Exportart Art, const QString &Dateiname);

}  // namespace marklink
