// A picture on a window (picBild): scaled with its proportions into whatever room there is.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace marklink {

class clsBildfeld : public QWidget {
  Q_OBJECT
 public:
  explicit clsBildfeld(QWidget *Eltern = nullptr);

  /// Shows the picture of that file, nothing when it is none.
  void Bild_setzen(const QString &Pfad);
  bool Mit_Bild() const { return !Bild_.isNull(); }
  QString Pfad() const { return Pfad_; }  ///< empty without a picture

  QSize sizeHint() const override;

 Q_SIGNALS:
  void Gedrueckt();  ///< a click, or Enter or the space bar, while there is a picture

 protected:
  void paintEvent(QPaintEvent *Ereignis) override;
  void mouseReleaseEvent(QMouseEvent *Ereignis) override;
  void keyPressEvent(QKeyEvent *Ereignis) override;

 private:
  QString Pfad_;
  QImage Bild_;
  QPixmap Skaliert_;
};

}  // namespace marklink
