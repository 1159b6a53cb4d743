// The dialog that moves one order on: to the shop, with or without a mail to the customer.
#pragma once

#include <QDialog>

#include "Bestellstatusdialog.h"

class QCheckBox;
class QPlainTextEdit;
class QTreeWidget;

namespace marklink {

/// "Bestellstatus fortschreiben". Works on the data of its caller, which say afterwards what was chosen.
class frmBestellstatus : public QDialog {
  Q_OBJECT
 public:
  explicit frmBestellstatus(Bestellstatusdialog &Daten, QWidget *Eltern = nullptr);

 protected:
  void keyPressEvent(QKeyEvent *Ereignis) override;

 private:
  void Aufbauen();
  void Stati_zeigen();
  void Senden();

  Bestellstatusdialog &Daten_;
  QTreeWidget *lvwAuftragsstatus;
  QPlainTextEdit *txtKommentar;
  QCheckBox *chkEmail, *chkKommentar;
};

}  // namespace marklink
