// The shipment list.
#pragma once

#include "Versandpult.h"
#include "ui/clsArbeitsfenster.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QSplitter;

namespace marklink {

class clsTabelle;

/// "Versand: EASYLOG". Loads its list when it is first shown.
class frmVersender_EASYLOG : public clsArbeitsfenster {
  Q_OBJECT
 public:
  explicit frmVersender_EASYLOG(QWidget *Eltern = nullptr);
  ~frmVersender_EASYLOG() override;

 protected:
  void Befehl(const QString &Schluessel) override;
  void Erste_Aktivierung() override { Pult_.Laden(); }
  bool Bearbeitung_abschliessen() override;
  bool Beenden() override;
  void Symbole_gezeichnet() override;
  void keyPressEvent(QKeyEvent *Ereignis) override;

 private:
  QWidget *Seite_bauen();
  void Flaechen_bauen();
  void Versandliste_einrichten();
  void Zeitraum_zeigen();
  void Zelle_geaendert(int Zeile, const QString &Schluessel);
  void Anschriften_zeigen(int Zeile);
  void Anzahl_zeigen();
  void Teilnahmefarben_setzen();

  Versandpult Pult_;
  QMenu *mnuKontext;
  clsTabelle *jgTab;
  QComboBox *cboZeitraum;
  QPlainTextEdit *txtRechnungsanschrift, *txtLieferanschrift;
  QSplitter *Teiler_;
  QLabel *lbAnzahl;
};

/// Enters the windows of this folder under their names.
void Versandfenster_anmelden();

}  // namespace marklink
