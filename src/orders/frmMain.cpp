// The order desk: what it shows.
#include "frmMain.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QSplitter>
#include <QTreeWidget>

#include "clsAuftragsansicht.h"
#include "frmBestellstatus.h"
#include "host/Kontext.h"
#include "ui/Farbwert.h"
#include "ui/Zeitraum.h"
#include "ui/clsFensterlayout.h"
#include "ui/clsOberflaeche.h"
#include "ui/clsTabelle.h"
#include "ui/frmTabelle_Formatieren.h"

namespace marklink {

namespace {

const QString Gitterlayout = QString::fromUtf16(Auftragsliste_Layout);
const QString Fensterschluessel = QStringLiteral("Webshop_Auftragsverwaltung_Fenster");

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
    : clsArbeitsfenster(Eltern),
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
  Befehle_bauen();
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

void frmMain::Anordnung_speichern() {
  Layout_speichern(*jgTab, Gitterlayout);
  Fensterlayout_speichern(*this, Fensterschluessel, {TeilerUnten, TeilerOben, gnTab1->Teiler()});
}

void frmMain::Tabelle_formatieren() {
  frmTabelle_Formatieren(*jgTab, Gitterlayout, false, false, this).exec();
}

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

}  // namespace marklink
