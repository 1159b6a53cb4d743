// The window in which a list is edited; one class for all seven.
#pragma once

#include <QDialog>

#include "Listenpflege.h"

class QHBoxLayout;
class QMenu;

namespace marklink {

class clsTabelle;

/// The object's name is the screen's: "frmListen_Lieferzeiten". Accepted when the table was written by OK.
class frmListen : public QDialog {
  Q_OBJECT
 public:
  /// `Was` is one of Listen().
  explicit frmListen(const Liste &Was, QWidget *Eltern = nullptr);
  ~frmListen() override;

  void accept() override;  ///< cmdOK
  void reject() override;  ///< every other way to close: asks what shall become of changes
  void done(int Ergebnis) override;

 private:
  void Tabelle_einrichten();
  void Kontextmenue_bauen();
  QHBoxLayout *Knoepfe_bauen();
  bool Speichern();
  void Loeschen();

  Listenpflege Pflege_;
  clsTabelle *jgTab;
  QMenu *mnuKontext;
};

/// Enters the seven screens under their names.
void Listenfenster_anmelden();

}  // namespace marklink
