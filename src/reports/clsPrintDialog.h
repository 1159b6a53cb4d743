// Printers, the printer dialog and printing, over the toolkit's.
#pragma once

#include "Report.h"

class QPrinter;
class QWidget;

namespace marklink {

/// The printers that the machine knows.
class clsDrucker : public Drucker {
 public:
  QStringList Namen() const override;
  QString Standard() const override;
  Druckereinstellung Einstellung(const QString &Name) const override;
};

class clsPrintDialog {
 public:
  /// Lets the user choose and set up the current printer. False: cancelled, nothing changed.
  static bool Zeigen(QWidget *Eltern);
};

/// The pointer says that the program works, while this lives.
class Wartezeiger {
 public:
  Wartezeiger();
  ~Wartezeiger();
  Wartezeiger(const Wartezeiger &) = delete;
  Wartezeiger &operator=(const Wartezeiger &) = delete;
};

/// Prints pages (1-based, both included). False, told to the trace alone, when the printer took not all.
bool Seiten_drucken(QPrinter &Ziel, const Seitensatz &Satz, int Von, int Bis);

/// Prints a report to its own printer.
void Report_drucken(Report &R);
/// The same behind the toolkit's dialog for printer, pages and copies; for the preview, whose pages stay: on
/// other paper the report is laid out anew.
void Report_drucken_mit_Dialog(Report &R, QWidget *Eltern);

}  // namespace marklink
