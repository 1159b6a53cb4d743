// The shared progress window of all long runs.
#pragma once

#include <QDialog>

#include "Fortschritt.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace marklink {

/// The window: `lbTitel`, `ProgressBar1`, `cmdAbbrechen`. Closing it is pressing its cancel button: it sets
/// Kontext.gAbbrechen.
class frmProgress : public QDialog {
  Q_OBJECT
 public:
  explicit frmProgress(QWidget *Eltern = nullptr);

  void Einrichten(const QString &Titel, int Maximum, bool Abbrechen_zeigen);
  void Text_setzen(const QString &Zeile);
  void Wert_setzen(int Wert);
  /// In the middle of that window; of the screen without one.
  void Zentrieren(const QWidget *Ueber);

 protected:
  void reject() override;

 private:
  QLabel *lbTitel;
  QProgressBar *ProgressBar1;
  QPushButton *cmdAbbrechen;
};

/// The port over that window. The pointer is the hourglass while it is shown. Painting and the cancel button
/// go on during a run, at most some twenty times a second.
class Fenster_Fortschritt : public Fortschritt {
 public:
  Fenster_Fortschritt();
  ~Fenster_Fortschritt() override;

  void Text(const QString &Zeile) override;
  void Wert(int Wert) override;
  void Verbergen() override;
  bool Offen() const override;
  void Ausblenden() override;
  void Einblenden() override;

 protected:
  void Anzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen) override;

 private:
  struct Fenster;
  std::unique_ptr<Fenster> Fenster_;
};

}  // namespace marklink
