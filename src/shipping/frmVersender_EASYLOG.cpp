// The window of the shipment list.
#include "frmVersender_EASYLOG.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "Versandspalten.h"
#include "frmVersender_EASYLOG_Einstellungen.h"
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

const QString Gitterlayout = QString::fromUtf16(Versandliste_Layout);
const QString Fensterschluessel = QStringLiteral("Webshop_Versandliste_Fenster");

constexpr Fensterbefehl Leiste[] = {
    {"Versandliste_laden", u"Versandliste neu laden (F5)", "aktualisieren", nullptr, u"Aktualisieren"},
    {"Versandliste_exportieren", u"Versandaufträge für EASYLOG exportieren", "versand_exportieren", nullptr,
     u"Exportieren"},
    {"Einstellungen", u"Einstellungen zum Versand", "versand_einstellungen"},
    {"Versandliste_loeschen", u"Versandaufträge in Varda löschen...", "loeschen", nullptr, u"Löschen"},
    {"Beenden", u"Beenden", "beenden"},
};

constexpr Fensterbefehl Kontextmenue[] = {
    {"mnuKontext_Alles_markieren", u"&Alles markieren", "alles_markieren"},
    {"mnuKontext_Markierung_aufheben", u"&Markierung aufheben", "markierung_aufheben"},
    {nullptr, nullptr, nullptr},
    {"mnuKontext_Tabelle_Formatieren", u"Tabelle &formatieren...", "tabelle_formatieren"},
};

/// A tint of the grid's own background, on a dark desktop as well.
qint32 Getoent(const QColor &Grund, const QColor &Ton) {
  constexpr double anteil = 0.22;
  const auto mischen = [](int A, int B) { return quint32(A + (B - A) * anteil); };
  return Wert_aus_Farbe(mischen(Grund.red(), Ton.red()) << 16 | mischen(Grund.green(), Ton.green()) << 8 |
                        mischen(Grund.blue(), Ton.blue()));
}

}  // namespace

frmVersender_EASYLOG::frmVersender_EASYLOG(QWidget *Eltern)
    : clsArbeitsfenster(Eltern),
      mnuKontext(new QMenu(this)),
      jgTab(new clsTabelle),
      cboZeitraum(new QComboBox),
      txtRechnungsanschrift(Lesefeld_bauen(u"txtRechnungsanschrift")),
      txtLieferanschrift(Lesefeld_bauen(u"txtLieferanschrift")),
      Teiler_(new QSplitter(Qt::Horizontal)),
      lbAnzahl(new QLabel) {
  setObjectName(QStringLiteral("frmVersender_EASYLOG"));
  setWindowTitle(QStringLiteral("Versand: EASYLOG"));
  Leiste_bauen(Leiste);
  mnuKontext->setObjectName(QStringLiteral("mnuKontext"));
  Menue_bauen(*mnuKontext, Kontextmenue);
  Flaechen_bauen();
  Versandliste_einrichten();
  Symbole_zeichnen();
  cboZeitraum->addItems(Zeitraum_Liste_fuellen(true));
  Zeitraum_zeigen();
  connect(cboZeitraum, &QComboBox::currentIndexChanged, this, [this](int Zeitraum) {
    Ausfuehren([Zeitraum] { Versandpult::Zeitraum_waehlen(Zeitraum); });
    Zeitraum_zeigen();  // a change in the middle of a run is none
  });
  resize(QSize(1180, 700).boundedTo(screen()->availableSize() * 0.95));
  Teiler_->setSizes({230, 950});
  Fensterlayout_laden(*this, Fensterschluessel, {Teiler_});
  jgTab->setFocus();
}

frmVersender_EASYLOG::~frmVersender_EASYLOG() {
  Pult_.Liste.Geladen = nullptr;
  delete jgTab;  // it shows what Pult_ holds, and an open editor would still write there
}

void frmVersender_EASYLOG::Versandliste_einrichten() {
  jgTab->setObjectName(QStringLiteral("jgTab"));
  jgTab->Einrichten(Pult_.Liste, Versandtabelle_Spalten());
  Tabelle_Aussehen_setzen(*jgTab);
  Layout_laden(*jgTab, Gitterlayout);
  Pult_.Liste.Geladen = [this] {
    jgTab->Neu_laden();
    Anzahl_zeigen();
  };
  connect(jgTab, &clsTabelle::Aktuelle_Zeile_geaendert, this, &frmVersender_EASYLOG::Anschriften_zeigen);
  connect(jgTab, &clsTabelle::Zelle_geaendert, this, &frmVersender_EASYLOG::Zelle_geaendert);
  connect(jgTab, &clsTabelle::Kontextmenue_gewuenscht, this,
          [this](const QPoint &Ort) { mnuKontext->popup(Ort); });
}

QWidget *frmVersender_EASYLOG::Seite_bauen() {
  cboZeitraum->setObjectName(QStringLiteral("cboZeitraum"));
  cboZeitraum->setMaxVisibleItems(20);
  cboZeitraum->setToolTip(QStringLiteral("Gilt, sobald die Liste neu geladen wird (F5)."));
  auto *flaeche = new QWidget;
  auto *zeilen = new QVBoxLayout(flaeche);
  zeilen->setContentsMargins(0, 0, 0, 0);
  const struct {
    const char16_t *Titel;
    QWidget *Feld;
    int Dehnung;
  } felder[] = {{u"&Zeitraum", cboZeitraum, 0},
                {u"&Rechnungsanschrift", txtRechnungsanschrift, 1},
                {u"&Lieferanschrift", txtLieferanschrift, 1}};
  for (const auto &[titel, feld, dehnung] : felder) {
    auto *ueber = new QLabel(QString::fromUtf16(titel));
    ueber->setBuddy(feld);
    zeilen->addWidget(ueber);
    zeilen->addWidget(feld, dehnung);
  }
  flaeche->setMinimumWidth(fontMetrics().averageCharWidth() * 26);
  return flaeche;
}

void frmVersender_EASYLOG::Flaechen_bauen() {
  Teiler_->setObjectName(QStringLiteral("Teiler_Liste"));
  Teiler_->setChildrenCollapsible(false);
  Teiler_->addWidget(Seite_bauen());
  Teiler_->addWidget(jgTab);
  Teiler_->setStretchFactor(1, 1);
  auto *mitte = new QWidget;
  auto *zeilen = new QVBoxLayout(mitte);
  zeilen->addWidget(Teiler_, 1);
  zeilen->addLayout(
      Tipp_bauen(QStringLiteral("Weitere Funktionen finden Sie im Kontextmenü, das Sie über die "
                                "rechte Maustaste erreichen."),
                 mitte));
  setCentralWidget(mitte);
  lbAnzahl->setObjectName(QStringLiteral("lbAnzahl"));
  statusBar()->addWidget(lbAnzahl);
}

void frmVersender_EASYLOG::Zeitraum_zeigen() {
  const QSignalBlocker still(cboZeitraum);
  const int zeitraum = Kontext.gViewablePeriod;
  cboZeitraum->setCurrentIndex(zeitraum < cboZeitraum->count() ? zeitraum : -1);
}

// --- commands

bool frmVersender_EASYLOG::Bearbeitung_abschliessen() { return jgTab->Bearbeitung_abschliessen(); }

void frmVersender_EASYLOG::Befehl(const QString &Schluessel) {
  if (Schluessel == u"Beenden") {
    close();
    return;
  }
  Ausfuehren([this, &Schluessel] {
    if (Schluessel == u"mnuKontext_Tabelle_Formatieren")
      frmTabelle_Formatieren(*jgTab, Gitterlayout, false, false, this).exec();
    else
      Pult_.Befehl(Schluessel);
  });
  jgTab->Auffrischen();
  Anzahl_zeigen();
}

bool frmVersender_EASYLOG::Beenden() {
  if (!Pult_.Beenden()) return false;
  Andere_Fenster_schliessen(this);
  Layout_speichern(*jgTab, Gitterlayout);
  Fensterlayout_speichern(*this, Fensterschluessel, {Teiler_});
  Versandpult::Freigeben();
  return true;
}

void frmVersender_EASYLOG::keyPressEvent(QKeyEvent *Ereignis) {
  switch (Ereignis->key()) {
    case Qt::Key_F1:
      Hilfe_zeigen(Hilfethema::Versandliste);
      return;
    case Qt::Key_Escape:
      Kontext.gAbbrechen = true;
      return;
    case Qt::Key_F5:
      Befehl(QStringLiteral("Versandliste_laden"));
      return;
    default:
      QMainWindow::keyPressEvent(Ereignis);
  }
}

// --- rows

void frmVersender_EASYLOG::Zelle_geaendert(int Zeile, const QString &Schluessel) {
  // The list is that of the method picked last, in whatever row: intended.
  if (Schluessel == u"POOL_V_VERFAHREN")
    jgTab->Auswahl_setzen(
        QStringLiteral("POOL_V_PRODUKT_CN"),
        Produkte_des_Verfahrens(Pult_.Liste.Zelle(Zeile, jgTab->Spalte_finden(Schluessel)).toString()));
  Anzahl_zeigen();
}

void frmVersender_EASYLOG::Anschriften_zeigen(int Zeile) {
  if (Kontext.gLaeuft) return;  // no query between two steps of a run
  const Auftragsanschriften anschriften = Pult_.Liste.Anschriften(Zeile);
  txtRechnungsanschrift->setPlainText(anschriften.InvoiceAddress);
  txtLieferanschrift->setPlainText(anschriften.DeliveryAddress);
}

void frmVersender_EASYLOG::Anzahl_zeigen() {
  const int zeilen = Pult_.Liste.Zeilen(), markiert = Pult_.Liste.Auswahl_zaehlen();
  const QString wort = zeilen == 1 ? QStringLiteral("Versandauftrag") : QStringLiteral("Versandaufträge");
  lbAnzahl->setText(QStringLiteral("%L1 %2, %L3 markiert").arg(zeilen).arg(wort).arg(markiert));
}

void frmVersender_EASYLOG::Symbole_gezeichnet() { Teilnahmefarben_setzen(); }

void frmVersender_EASYLOG::Teilnahmefarben_setzen() {
  // The grid itself hears of another palette only after the window.
  const QColor grund = QApplication::palette().color(QPalette::Base);
  Pult_.Liste.Teilnahmefarben_setzen(Getoent(grund, QColor(Qt::green)), Getoent(grund, QColor(Qt::blue)));
  jgTab->Auffrischen();
}

// --- by name

void Versandfenster_anmelden() {
  Schirm_anmelden(QStringLiteral("frmVersender_EASYLOG"), &Arbeitsfenster_zeigen<frmVersender_EASYLOG>);
  Schirm_anmelden(QStringLiteral("frmVersender_EASYLOG_Einstellungen"), [] {
    frmVersender_EASYLOG_Einstellungen fenster(QApplication::activeWindow());
    fenster.exec();
  });
}

}  // namespace marklink
