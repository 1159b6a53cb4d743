// The small modal window of one exchange with the shop.
#pragma once

#include <QDialog>

#include "Austausch.h"

class QLabel;

namespace marklink {

/// "Verbindung zu xt:Commerce": `lbStatus`, the lamp `shpConnected`, `lblProgress_gesendet`,
/// `lblProgress_empfangen`. Escape and closing give the exchange up.
class frmWinsock : public QDialog, private Verbindungsanzeige {
  Q_OBJECT
 public:
  explicit frmWinsock(Verbindungsauftrag &Auftrag, QWidget *Eltern = nullptr);

  /// Shows the window, runs the exchange, and closes it.
  void Ausfuehren();

 protected:
  void reject() override;

 private:
  void Status(const QString &Statustext) override;
  void Verbunden(bool Ja) override;
  void Uebertragen(qint64 Gesendet, qint64 Empfangen) override;
  bool Abbrechen() override;

  Verbindungsauftrag &Auftrag_;
  bool Abgebrochen_ = false;
  QLabel *lbStatus;
  QLabel *shpConnected;
  QLabel *lblProgress_gesendet;
  QLabel *lblProgress_empfangen;
};

/// For Verbindungsfenster_setzen().
void Verbindungsfenster_zeigen(Verbindungsauftrag &Auftrag);

}  // namespace marklink
