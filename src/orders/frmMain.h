// The order desk.
#pragma once

#include "Auftragspult.h"
#include "ui/clsArbeitsfenster.h"

class QComboBox;
class QLabel;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

namespace marklink {

class clsAuftragsansicht;
class clsTabelle;

/// "Auftragsverwaltung für Marklink ab Version 1.0.8". Loads its list when it is first shown.
class frmMain : public clsArbeitsfenster {
  Q_OBJECT
 public:
  explicit frmMain(QWidget *Eltern = nullptr);
  ~frmMain() override;

 protected:
  void Befehl(const QString &Schluessel) override;
  void Erste_Aktivierung() override { Pult_.Erste_Aktivierung(); }
  bool Bearbeitung_abschliessen() override;
  bool Beenden() override;
  void Symbole_gezeichnet() override;
  void keyPressEvent(QKeyEvent *Ereignis) override;

 private:
  // frmMain_Aufbau.cpp
  void Befehle_bauen();
  void Flaechen_bauen();
  QWidget *Filter_bauen();

  // frmMain.cpp
  void Auftragsliste_einrichten();
  void Stati_zeigen();
  void Status_angehakt(const QTreeWidgetItem *Zeile);
  void Zeitraum_zeigen();
  void Liste_geladen();
  void Auftrag_anzeigen(int Zeile);
  void Anzahl_zeigen();
  void Tabelle_formatieren();
  void Anordnung_speichern();

  Auftragspult Pult_;
  QMenu *mnuKontext, *mnuStatus_setzen;
  clsTabelle *jgTab;
  QComboBox *cboZeitraum;
  QTreeWidget *lvwAuftragsstatus;
  clsAuftragsansicht *gnTab1;
  QSplitter *TeilerOben, *TeilerUnten;
  QLabel *lbAnzahl;
};

/// Enters the windows of this folder under their names.
void Auftragsfenster_anmelden();

}  // namespace marklink
