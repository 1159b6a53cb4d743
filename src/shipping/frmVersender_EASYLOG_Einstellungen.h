// The settings of the export for the shipper's software.
#pragma once

#include <QDialog>

#include "Versandeinstellungen.h"

class QLineEdit;
class QVBoxLayout;

namespace marklink {

/// "Versand: EASYLOG: Einstellungen". Accepted when the settings were written.
class frmVersender_EASYLOG_Einstellungen : public QDialog {
  Q_OBJECT
 public:
  explicit frmVersender_EASYLOG_Einstellungen(QWidget *Eltern = nullptr);

  void accept() override;

 protected:
  void keyPressEvent(QKeyEvent *Ereignis) override;

 private:
  QWidget *Absender_bauen();
  QWidget *Export_bauen();
  void Knoepfe_bauen(QVBoxLayout *Zeilen);
  void Datei_waehlen();
  void Hilfe();

  Versandeinstellungen Werte_;
  QLineEdit *txtExportdatei;
};

}  // namespace marklink
