// The help window.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace marklink {

class clsHilfetext;

/// One for the program, never modal. It belongs to the window that asked for it, so that it can be used while
/// that one is modal; when that is closed, it goes over to the window below.
class frmHilfe : public QDialog {
  Q_OBJECT
 public:
  /// Shows the topic's page; a Hilfeanzeige.
  static void Zeigen(int Thema);
  /// Before the application ends.
  static void Abbauen();

 protected:
  void hideEvent(QHideEvent *Ereignis) override;
  bool eventFilter(QObject *Objekt, QEvent *Ereignis) override;

 private:
  explicit frmHilfe(QWidget *Zu);
  ~frmHilfe() override;
  QLayout *Leiste_bauen();
  void Tasten_belegen();
  void Anhaengen(QWidget *Zu);
  void Weitersuchen(bool Rueckwaerts, bool Gleiche_Stelle);

  clsHilfetext *txtSeite;
  QLineEdit *txtSuche;
  QLabel *lbSuche;
};

}  // namespace marklink
