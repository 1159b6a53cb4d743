// The settings dialog "Einstellungen zum Webshop".
#pragma once

#include <QDialog>

#include "Shopeinstellungen.h"

class QStackedWidget;
class QTreeWidget;
class QVBoxLayout;

namespace marklink {

/// `tvwNavigation` on the left, the pages `picWizard` on the right, one widget for each field under the name
/// of its control. Accepted when the settings were saved.
class frmEinstellungen : public QDialog {
  Q_OBJECT
 public:
  explicit frmEinstellungen(QWidget *Eltern = nullptr);

 protected:
  void keyPressEvent(QKeyEvent *Ereignis) override;
  void reject() override;

 private:
  /// Runs a command that waits for a server. The message loop may run meanwhile: nothing else starts then,
  /// and the window stays.
  void Ausfuehren(const std::function<void()> &Tun);
  void Navigation_fuellen();
  QWidget *Seite_bauen(Einstellungsseite Seite);
  void Seitenbefehle_bauen(Einstellungsseite Seite, QVBoxLayout *Zeilen);
  void Knoepfe_bauen(QVBoxLayout *Zeilen);
  void Seite_zeigen();
  void Speichern();

  Shopeinstellungen Einstellungen_;
  bool Beschaeftigt_ = false;  ///< a command is under way
  QTreeWidget *tvwNavigation;
  QStackedWidget *picWizard;
};

/// Enters the windows of this folder under their names.
void Shopfenster_anmelden();

}  // namespace marklink
