// The order desk: what it shows, its keys, opening and closing.
#include "frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include "clsAuftragsansicht.h"
#include "frmBestellstatus.h"
#include "host/Kontext.h"
#include "ui/Farbwert.h"
#include "ui/Hilfe.h"
#include "ui/Schirme.h"
#include "ui/Zeitraum.h"
#include "ui/clsFensterlayout.h"
#include "ui/clsOberflaeche.h"
#include "ui/clsTabelle.h"
#include "ui/frmTabelle_Formatieren.h"

namespace marklink {

namespace {

const QString Gitterlayout = QString::fromUtf16(Auftragsliste_Layout);
const QString Fensterschluessel = QStringLiteral("Webshop_Auftragsverwaltung_Fenster");
constexpr int Aktivierung_ms = 500;
QPointer<frmMain> Offen;

/// A square in the status' colour; an empty one for a status without.
QIcon Statusbild(std::optional<qint32> Farbe, const QPalette &Palette) {
  constexpr int seite = 32;
  QPixmap bild(seite, seite);
  bild.fill(Qt::transparent);
  QPainter maler(&bild);
  const auto rgb = Farbe ? Farbe_aus_Wert(*Farbe) : std::nullopt;
  if (rgb) maler.setBrush(QColor::fromRgb(*rgb));
  maler.setPen(QPen(Palette.color(QPalette::Mid), 2));
  maler.drawRect(3, 3, seite - 6, seite - 6);
  return QIcon(bild);
}

}  // namespace

frmMain::frmMain(QWidget *Eltern)
    : QMainWindow(Eltern),
      mnuKontext(new QMenu(this)),
      mnuStatus_setzen(new QMenu(this)),
      jgTab(new clsTabelle),
      cboZeitraum(new QComboBox),
      lvwAuftragsstatus(new QTreeWidget),
      gnTab1(new clsAuftragsansicht),
      TeilerOben(new QSplitter(Qt::Horizontal)),
      TeilerUnten(new QSplitter(Qt::Vertical)),
      lbAnzahl(new QLabel) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(QStringLiteral("Auftragsverwaltung für Marklink ab Version 1.0.8"));
  Leiste_bauen();
  Menue_bauen();
  Flaechen_bauen();
  Symbole_zeichnen();
  Pult_.Oeffnen();
  Auftragsliste_einrichten();
  Stati_zeigen();
  cboZeitraum->addItems(Zeitraum_Liste_fuellen(true));
  Zeitraum_zeigen();
  connect(cboZeitraum, &QComboBox::currentIndexChanged, this, [this](int Zeitraum) {
    Ausfuehren([this, Zeitraum] { Pult_.Zeitraum_waehlen(Zeitraum); });
    Zeitraum_zeigen();  // a change in the middle of a run is none
  });
  connect(lvwAuftragsstatus, &QTreeWidget::itemChanged, this, &frmMain::Status_angehakt);
  Pult_.Liste.Geladen = [this] { Liste_geladen(); };
  Pult_.Statusdialog_zeigen = [this](Bestellstatusdialog &Daten) { frmBestellstatus(Daten, this).exec(); };
  resize(QSize(1180, 720).boundedTo(screen()->availableSize() * 0.95));
  TeilerOben->setSizes({210, 970});
  Fensterlayout_laden(*this, Fensterschluessel, {TeilerUnten, TeilerOben, gnTab1->Teiler()});
  jgTab->setFocus();
}

frmMain::~frmMain() {
  Pult_.Liste.Geladen = nullptr;
  delete jgTab;  // it shows what Pult_ holds, and an open editor would still write there
}

void frmMain::Auftragsliste_einrichten() {
  jgTab->setObjectName(QStringLiteral("jgTab"));
  jgTab->Einrichten(Pult_.Tabelle, Auftragstabelle_Spalten(Pult_.Listen));
  Tabelle_Aussehen_setzen(*jgTab);
  Layout_laden(*jgTab, Gitterlayout);
  connect(jgTab, &clsTabelle::Aktuelle_Zeile_geaendert, this, &frmMain::Auftrag_anzeigen);
  connect(jgTab, &clsTabelle::Zelle_geaendert, this, &frmMain::Anzahl_zeigen);
  connect(jgTab, &clsTabelle::Kopf_geklickt, this, [this](const QString &Schluessel) {
    if (Schluessel == u"Invoice") Befehl(QStringLiteral("mnuKontext_Alles_markieren"));
  });
  connect(jgTab, &clsTabelle::Kontextmenue_gewuenscht, this,
          [this](const QPoint &Ort) { mnuKontext->popup(Ort); });
}

/// The status filter and the menu of statuses, from the desk's status list.
void frmMain::Stati_zeigen() {
  const QSignalBlocker still(lvwAuftragsstatus);
  lvwAuftragsstatus->clear();
  mnuStatus_setzen->clear();
  for (const Listenzeile &zeile : Pult_.Liste.lvwAuftragsstatus.Zeilen) {
    const QString id = zeile.Spalten.value(1), text = zeile.Spalten.value(0);
    const QIcon bild = Statusbild(Pult_.Tabelle.Statusfarbe(id), palette());
    auto *eintrag = new QTreeWidgetItem(lvwAuftragsstatus, zeile.Spalten);
    eintrag->setIcon(0, bild);
    eintrag->setToolTip(0, Hinweistext(text));
    eintrag->setCheckState(0, zeile.Markiert ? Qt::Checked : Qt::Unchecked);
    QAction *befehl = mnuStatus_setzen->addAction(bild, QString(text).replace(u'&', QStringLiteral("&&")));
    befehl->setObjectName(QStringLiteral("mnuKontext_Status_setzen_") + id);
    connect(befehl, &QAction::triggered, this,
            [this, id] { Ausfuehren([this, id] { Pult_.mnuKontext_Status_setzen(id); }); });
  }
  mnuStatus_setzen->setEnabled(!mnuStatus_setzen->isEmpty());
}

void frmMain::Status_angehakt(const QTreeWidgetItem *Zeile) {
  const int nummer = lvwAuftragsstatus->indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(Zeile));
  auto &zeilen = Pult_.Liste.lvwAuftragsstatus.Zeilen;
  if (nummer >= 0 && nummer < int(zeilen.size()))
    zeilen[size_t(nummer)].Markiert = Zeile->checkState(0) == Qt::Checked;
}

void frmMain::Zeitraum_zeigen() {
  const QSignalBlocker still(cboZeitraum);
  const int zeitraum = Kontext.gViewablePeriod;
  cboZeitraum->setCurrentIndex(zeitraum < cboZeitraum->count() ? zeitraum : -1);
}

// --- commands

void frmMain::Ausfuehren(const std::function<void()> &Tun) {
  if (Beschaeftigt_ || Kontext.gLaeuft || !jgTab->Bearbeitung_abschliessen()) return;
  Beschaeftigt_ = true;
  Tun();
  Beschaeftigt_ = false;
  if (std::exchange(Schliessen_, false)) QTimer::singleShot(0, this, &QWidget::close);
}

void frmMain::Befehl(const QString &Schluessel) {
  if (Schluessel == u"Beenden") {
    close();
    return;
  }
  Ausfuehren([this, &Schluessel] {
    if (Schluessel == u"mnuKontext_Tabelle_Formatieren")
      Tabelle_formatieren();
    else
      Pult_.Befehl(Schluessel);
    if (Schluessel == u"einstellungen_auftragsstati") Stati_zeigen();
  });
  jgTab->Auffrischen();
  Anzahl_zeigen();
}

void frmMain::Tabelle_formatieren() {
  frmTabelle_Formatieren(*jgTab, Gitterlayout, false, false, this).exec();
}

// --- rows

void frmMain::Liste_geladen() {
  jgTab->Neu_laden();
  Anzahl_zeigen();
}

void frmMain::Auftrag_anzeigen(int Zeile) {
  Pult_.Liste.AktuelleZeile_setzen(Zeile);
  if (Zeile < 0) {
    gnTab1->Leeren();
  } else if (const auto anzeige = marklink::Auftrag_anzeigen(Pult_.Liste)) {
    gnTab1->Anzeigen(*anzeige);
  }
}

void frmMain::Anzahl_zeigen() {
  const int zeilen = Pult_.Liste.Zeilenzahl(), markiert = Pult_.Liste.Auswahl_zaehlen();
  const QString wort = zeilen == 1 ? QStringLiteral("Bestellung") : QStringLiteral("Bestellungen");
  lbAnzahl->setText(QStringLiteral("%L1 %2, %L3 markiert").arg(zeilen).arg(wort).arg(markiert));
}

// --- events

void frmMain::showEvent(QShowEvent *Ereignis) {
  QMainWindow::showEvent(Ereignis);
  // On a desktop that does not let new windows become active the list must load all the same.
  QTimer::singleShot(Aktivierung_ms, this, &frmMain::Erste_Aktivierung);
}

void frmMain::Erste_Aktivierung() {
  if (!std::exchange(Aktiviert_, true)) Ausfuehren([this] { Pult_.Erste_Aktivierung(); });
}

void frmMain::closeEvent(QCloseEvent *Ereignis) {
  if (Beschaeftigt_ || Kontext.gLaeuft) {
    // The run needs the window: it is told to end, and the window closes behind it.
    Kontext.gAbbrechen = true;
    Schliessen_ = true;
    Ereignis->ignore();
    return;
  }
  if (!jgTab->Bearbeitung_abschliessen() || !Pult_.Beenden()) {
    Ereignis->ignore();
    return;
  }
  // No other window of the program can be open here: all that the desk opens are modal.
  Layout_speichern(*jgTab, Gitterlayout);
  Fensterlayout_speichern(*this, Fensterschluessel, {TeilerUnten, TeilerOben, gnTab1->Teiler()});
  Auftragspult::Freigeben();
  QMainWindow::closeEvent(Ereignis);
  Q_EMIT Geschlossen();
}

void frmMain::keyPressEvent(QKeyEvent *Ereignis) {
  switch (Ereignis->key()) {
    case Qt::Key_F1:
      Hilfe_zeigen(Hilfethema::Auftragsverwaltung);
      return;
    case Qt::Key_Escape:
      Kontext.gAbbrechen = true;
      return;
    case Qt::Key_F5:
      Befehl(QStringLiteral("cmdAktualisieren"));
      return;
    default:
      QMainWindow::keyPressEvent(Ereignis);
  }
}

void frmMain::changeEvent(QEvent *Ereignis) {
  QMainWindow::changeEvent(Ereignis);
  if (Ereignis->type() == QEvent::PaletteChange) Symbole_zeichnen();
  // Behind the event, so that the window is painted before the shop is asked.
  if (Ereignis->type() == QEvent::ActivationChange && isActiveWindow() && !Aktiviert_)
    QTimer::singleShot(0, this, &frmMain::Erste_Aktivierung);
}

/// A toolbar button with a drop-down menu opens it by the Down key or F4.
bool frmMain::eventFilter(QObject *Objekt, QEvent *Ereignis) {
  auto *knopf = qobject_cast<QToolButton *>(Objekt);
  if (knopf != nullptr && Ereignis->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent *>(Ereignis)->key();
    if (taste == Qt::Key_Down || taste == Qt::Key_F4) {
      knopf->showMenu();
      return true;
    }
  }
  return QMainWindow::eventFilter(Objekt, Ereignis);
}

// --- by name

void frmMain::Zeigen() {
  if (Offen != nullptr) {
    Offen->showNormal();
    Offen->raise();
    Offen->activateWindow();
    return;
  }
  frmMain fenster;
  Offen = &fenster;
  fenster.setWindowModality(Qt::ApplicationModal);
  QEventLoop schleife;
  connect(&fenster, &frmMain::Geschlossen, &schleife, &QEventLoop::quit);
  fenster.show();
  schleife.exec();
}

void Auftragsfenster_anmelden() { Schirm_anmelden(QStringLiteral("frmMain"), &frmMain::Zeigen); }

}  // namespace marklink
