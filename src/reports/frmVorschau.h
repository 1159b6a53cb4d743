// The preview of a report.
#pragma once

#include <QDialog>

#include <deque>

class QAction;
class QLabel;
class QSpinBox;
class QToolBar;

namespace marklink {

class clsSeitenansicht;
class Report;

/// Titled like the document. Escape closes it.
class frmVorschau : public QDialog {
  Q_OBJECT
 public:
  /// Runs the report, which must outlive the window.
  explicit frmVorschau(Report &R, QWidget *Eltern = nullptr);

 protected:
  void changeEvent(QEvent *Ereignis) override;

 private:
  QAction *Werkzeug(std::size_t Nummer);
  QToolBar *Leiste_bauen();
  QWidget *Fuss_bauen();
  void Symbole_zeichnen();
  void Seite_melden(int Seite);
  void Vergroesserung_melden();
  /// To a page as the user asks for it.
  void Gehen(int Seite);
  void Verlauf_gehen(int Schritte);
  void Drucken();

  Report &Report_;
  clsSeitenansicht *Ansicht;
  std::vector<QAction *> Werkzeuge_;
  QSpinBox *txtSeite;
  QLabel *lbSeiten, *lbZoom;
  std::deque<int> Verlauf_;  ///< pages in the order in which they were looked at
  std::size_t Stelle_ = 0;   ///< which of them is shown
  bool Im_Verlauf_ = false;
};

/// The printers, the printer dialog, preview and printing as windows of the program; taken away again.
void Druckfenster_einrichten();
void Druckfenster_abbauen();

}  // namespace marklink
