// One page of a report on screen, at any size. The page is drawn when it is shown; no other one is kept.
#pragma once

#include <QAbstractScrollArea>
#include <QPixmap>

namespace marklink {

class Seitensatz;

class clsSeitenansicht : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit clsSeitenansicht(QWidget *Eltern = nullptr);

  /// Must outlive this, or be replaced.
  void Satz_setzen(const Seitensatz &Satz);
  int Seite() const { return Seite_; }  ///< from 0
  int Seiten() const;
  /// Goes to the nearest page there is, to its top (or its foot).
  void Seite_zeigen(int Seite, bool Am_Ende = false);
  /// Reads on (1) or back (-1): within the page, past its edge to the next one.
  void Blaettern(int Richtung);
  /// 1 is the size on paper.
  double Vergroesserung() const;
  void Groesser();
  void Kleiner();
  bool Am_groessten() const;
  bool Am_kleinsten() const;

 Q_SIGNALS:
  void Seite_geaendert(int Seite);
  void Vergroesserung_geaendert();
  void Verweis_geklickt(const QString &Text);

 protected:
  void paintEvent(QPaintEvent *Ereignis) override;
  void resizeEvent(QResizeEvent *Ereignis) override;
  void wheelEvent(QWheelEvent *Ereignis) override;
  void keyPressEvent(QKeyEvent *Ereignis) override;
  void mouseMoveEvent(QMouseEvent *Ereignis) override;
  void mouseReleaseEvent(QMouseEvent *Ereignis) override;

 private:
  double Punkte_je_Twip() const;
  double Eingepasst() const;
  QSize Seitengroesse() const;
  QPoint Seitenecke() const;
  QString Verweis_bei(QPointF Ort) const;
  int Rasten(int Drehung);
  void Vergroesserung_setzen(double Faktor);
  void Leisten_setzen();

  const Seitensatz *Satz_ = nullptr;
  int Seite_ = 0;
  int Gedreht_ = 0;    ///< of the wheel's next notch
  double Faktor_ = 0;  ///< 0: as wide as the window
  QPixmap Bild_;       ///< of the current page; null when it must be drawn
};

}  // namespace marklink
