// The preview of a picture.
#pragma once

#include <QDialog>

namespace marklink {

class clsBildfeld;

/// Title "Vorschau". A click or Escape closes it.
class frmBild : public QDialog {
  Q_OBJECT
 public:
  explicit frmBild(QWidget *Eltern = nullptr);

  void Bildname_setzen(const QString &Pfad);

 protected:
  void keyPressEvent(QKeyEvent *Ereignis) override;
  void mouseReleaseEvent(QMouseEvent *Ereignis) override;

 private:
  clsBildfeld *picBild;
};

}  // namespace marklink
