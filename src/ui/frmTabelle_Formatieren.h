// The dialog in which the user changes a grid's layout.
#pragma once

#include <QDialog>

#include "Tabellenformat.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace marklink {

class clsTabelle;

/// Title "Tabelle: Formatieren". OK applies the layout to the grid and writes it under the key.
class frmTabelle_Formatieren : public QDialog {
  Q_OBJECT
 public:
  frmTabelle_Formatieren(clsTabelle &Tabelle, const QString &Schluessel, bool Liste1 = false,
                         bool Liste2 = false, QWidget *Eltern = nullptr);

  void accept() override;

 private:
  void Liste_aufbauen();
  void Aufbauen();
  void Liste_zeigen(int Gewaehlt);
  int Gewaehlte_Zeile() const;
  void Zeile_oeffnen();
  void Zeile_speichern();
  void Zeile_verschieben(int Schritt);

  clsTabelle &Tabelle_;
  QString Schluessel_;
  bool Liste1_, Liste2_;
  Tabellenformat Format_;

  // in the order of the tab key
  QTreeWidget *lvwTabelle;
  QPushButton *cmdAuf, *cmdAb;
  QGroupBox *fraSpalte;
  QCheckBox *chkAktiv;
  QLineEdit *txtSpaltenbreite;
  QComboBox *cboSpaltentyp;
  QPushButton *cmdSpeichern, *cmdOK, *cmdAbbrechen;
};

}  // namespace marklink
