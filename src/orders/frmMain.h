// The order desk.
#pragma once

#include <QHash>
#include <QMainWindow>

#include "Auftragspult.h"

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QSplitter;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace marklink {

class clsAuftragsansicht;
class clsTabelle;

/// "Auftragsverwaltung für Marklink ab Version 1.0.8". Loads its list when it is first shown.
class frmMain : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmMain(QWidget *Eltern = nullptr);
  ~frmMain() override;

  /// Shows the window modally and returns when it is closed; one that is open comes to the front.
  static void Zeigen();

 Q_SIGNALS:
  void Geschlossen();

 protected:
  void showEvent(QShowEvent *Ereignis) override;
  void closeEvent(QCloseEvent *Ereignis) override;
  void keyPressEvent(QKeyEvent *Ereignis) override;
  void changeEvent(QEvent *Ereignis) override;
  bool eventFilter(QObject *Objekt, QEvent *Ereignis) override;

 private:
  // frmMain_Aufbau.cpp
  void Leiste_bauen();
  void Menue_bauen();
  void Flaechen_bauen();
  QWidget *Filter_bauen();
  QAction *Aktion(const char *Schluessel, const QString &Text, const char *Symbol);
  QToolButton *Knopf(const QString &Schluessel) const;
  void Symbole_zeichnen();

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

  // frmMain_Ablauf.cpp
  /// Runs a command when none is under way; an edit in the grid is taken over first. False: refused.
  bool Ausfuehren(const std::function<void()> &Tun);
  void Befehl(const QString &Schluessel);
  void Erste_Aktivierung();

  Auftragspult Pult_;
  bool Aktiviert_ = false;     ///< the first activation is over
  bool Beschaeftigt_ = false;  ///< a command runs
  bool Schliessen_ = false;    ///< the window was closed in the middle of a run of its own
  QHash<QAction *, QString> Symbole_;
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
