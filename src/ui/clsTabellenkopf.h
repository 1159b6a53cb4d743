// The column heads of a grid: two or three lines, long German words broken at their joint.
#pragma once

#include <QHeaderView>

namespace marklink {

class clsTabellenkopf : public QHeaderView {
  Q_OBJECT
 public:
  explicit clsTabellenkopf(QWidget *Eltern);
  QSize sizeHint() const override;

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader *Form, int Spalte) const override;

 private:
  int Zeilen() const;
  QString Kuerzen(QString Text, int Breite) const;
};

}  // namespace marklink
