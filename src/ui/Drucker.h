// The port for the printers that the machine knows, and the printer that is current.
#pragma once

#include <QString>
#include <QStringList>

namespace marklink {

/// How a printer is set up; A4 where it does not tell.
struct Druckereinstellung {
  QString DeviceName;
  double Papierbreite = 210, Papierhoehe = 297;  ///< PaperSize: millimetres of the upright sheet
  bool Querformat = false;                       ///< Orientation
  int PaperBin = 0;                              ///< source of paper, as the printer numbers them
  int PrintQuality = 0;                          ///< dots per inch; 0: the printer's own
  int Copies = 1;
};

class Drucker {
 public:
  virtual ~Drucker() = default;
  virtual QStringList Namen() const = 0;
  virtual QString Standard() const = 0;  ///< empty when there is none
  virtual Druckereinstellung Einstellung(const QString &Name) const { return {Name}; }
};

/// The installed port; one without printers when none was installed.
Drucker &drucker();
void Drucker_setzen(Drucker *Neu);  ///< not owned; nullptr: none

/// What was last chosen in the printer dialog; before that the default printer, or the first one.
Druckereinstellung Aktueller_Drucker();
void Aktueller_Drucker_setzen(const Druckereinstellung &Neu);

}  // namespace marklink
