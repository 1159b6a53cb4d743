// The preview of a picture.
#include "frmBild.h"

#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include "clsBildfeld.h"
#include "ui/Hilfe.h"

namespace marklink {

constexpr double Anteil_am_Bildschirm = 0.7;

frmBild::frmBild(QWidget *Eltern) : QDialog(Eltern), picBild(new clsBildfeld(this)) {
  setObjectName(QStringLiteral("frmBild"));
  setWindowTitle(QStringLiteral("Vorschau"));
  picBild->setObjectName(QStringLiteral("picBild"));
  auto *zeilen = new QVBoxLayout(this);
  zeilen->setContentsMargins(0, 0, 0, 0);
  zeilen->addWidget(picBild);
  connect(picBild, &clsBildfeld::Gedrueckt, this, &QDialog::accept);
  resize(QSize(640, 480).boundedTo(screen()->availableSize() * Anteil_am_Bildschirm));
}

void frmBild::Bildname_setzen(const QString &Pfad) { picBild->Bild_setzen(Pfad); }

void frmBild::keyPressEvent(QKeyEvent *Ereignis) {
  if (Ereignis->key() == Qt::Key_F1)
    Hilfe_zeigen(Hilfethema::Bild);
  else
    QDialog::keyPressEvent(Ereignis);
}

/// Without a picture the click comes here.
void frmBild::mouseReleaseEvent(QMouseEvent *) { accept(); }

}  // namespace marklink
