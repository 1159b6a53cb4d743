// The order desk's toolbar, menu and areas.
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "clsAuftragsansicht.h"
#include "frmMain.h"
#include "ui/clsOberflaeche.h"
#include "ui/clsTabelle.h"

namespace marklink {

namespace {

constexpr Fensterbefehl Leiste[] = {
    {"Bestellungen", u"Bestellungen abrufen", "bestellungen"},
    {"Bestellungen_abrufen_auftragsstatusliste", u"Bestellungen der markierten Auftragsstati abrufen",
     "bestellungen_status", "Bestellungen"},
    {"Bestellungen_Loeschen", u"Bestellungen in Varda löschen...", "loeschen", "Bestellungen"},
    {"Kunden", u"Kunden anlegen", "kunden"},
    {"Auftrag", u"Aufträge erzeugen", "auftrag"},
    {"Rechnung", u"Rechnungen erzeugen", "rechnung"},
    {"Drucken", u"Bestellliste drucken", "drucken"},
    {"drucken_transaktionsliste", u"Transaktionsliste drucken...", "drucken", "Drucken"},
    {"drucken_transaktionsliste_datei", u"Transaktionsliste in Datei speichern...", "speichern", "Drucken"},
    {"Einstellung", u"Einstellungen", "einstellungen"},
    {"einstellungen_auftragsstati", u"Auftragsstati...", "stati", "Einstellung"},
    {"einstellungen_kundengruppen", u"Kundengruppen...", "kundengruppen", "Einstellung"},
    {"einstellungen_lieferzeiten", u"Lieferzeiten...", "lieferzeiten", "Einstellung"},
    {"einstellungen_sprachen", u"Sprachen...", "sprachen", "Einstellung"},
    {"einstellungen_verpackungseinheiten", u"Verpackungseinheiten...", "verpackungseinheiten", "Einstellung"},
    {"einstellungen_artikelvorlagen_details", u"Artikelvorlagen: Details...", "artikelvorlagen_details",
     "Einstellung"},
    {"einstellungen_artikelvorlagen_optionen", u"Artikelvorlagen: Optionen...", "artikelvorlagen_optionen",
     "Einstellung"},
    {"Versand", u"Versand", "versand"},
    {"versand_einstellungen", u"Einstellungen zum Versand...", "versand_einstellungen", "Versand"},
    {"Beenden", u"Beenden", "beenden"},
};

constexpr Fensterbefehl Kontextmenue[] = {
    {"mnuKontext_Status_Dialog", u"Bestell&status fortschreiben...", "status_dialog"},
    {"mnuKontext_Status_setzen", u"Status der markierten Aufträge s&etzen", "stati"},
    {nullptr, nullptr, nullptr},
    {"mnuKontext_Alles_markieren", u"&Alles markieren", "alles_markieren"},
    {"mnuKontext_Markierung_aufheben", u"&Markierung aufheben", "markierung_aufheben"},
    {nullptr, nullptr, nullptr},
    {"mnuKontext_Versender", u"An den &Versand übergeben...", "versender"},
    {"mnuKontext_Rechnungscheck", u"&Rechnung vorhanden?", "rechnungscheck"},
    {nullptr, nullptr, nullptr},
    {"mnuKontext_Drucken_Bestellliste", u"&Bestellliste drucken...", "drucken"},
    {"mnuKontext_Drucken_Transaktionsliste", u"&Transaktionsliste drucken...", "drucken"},
    {"mnuKontext_Drucken_Transaktionsliste_Datei", u"Transaktionsliste in &Datei speichern...", "speichern"},
    {nullptr, nullptr, nullptr},
    {"mnuKontext_Tabelle_Formatieren", u"Tabelle &formatieren...", "tabelle_formatieren"},
};

/// Check boxes that a dark desktop shows too: their frame would be darker than the window.
class Statuszeile : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem *Form, const QModelIndex &Stelle) const override {
    QStyledItemDelegate::initStyleOption(Form, Stelle);
    Form->palette.setColor(QPalette::Window, Form->palette.color(QPalette::PlaceholderText).lighter(140));
  }
};

}  // namespace

void frmMain::Befehle_bauen() {
  Leiste_bauen(Leiste);
  mnuKontext->setObjectName(QStringLiteral("mnuKontext"));
  Menue_bauen(*mnuKontext, Kontextmenue);
  mnuStatus_setzen->setObjectName(QStringLiteral("mnuKontext_Status_setzen"));
  findChild<QAction *>(QStringLiteral("mnuKontext_Status_setzen"))->setMenu(mnuStatus_setzen);
}

void frmMain::Symbole_gezeichnet() {
  if (auto *knopf = findChild<QPushButton *>(QStringLiteral("cmdAktualisieren")))
    knopf->setIcon(Symbolbild(QStringLiteral("aktualisieren")));
}

QWidget *frmMain::Filter_bauen() {
  auto *flaeche = new QWidget;
  cboZeitraum->setObjectName(QStringLiteral("cboZeitraum"));
  cboZeitraum->setMaxVisibleItems(20);
  auto *zeitraum = new QLabel(QStringLiteral("&Zeitraum"));
  zeitraum->setBuddy(cboZeitraum);
  lvwAuftragsstatus->setObjectName(QStringLiteral("lvwAuftragsstatus"));
  lvwAuftragsstatus->setHeaderLabels(
      {QStringLiteral("Auftragsstatus"), QStringLiteral("ID"), QStringLiteral("Beschreibung")});
  lvwAuftragsstatus->setColumnHidden(2, true);  // says what the first one says
  lvwAuftragsstatus->setItemDelegate(new Statuszeile(lvwAuftragsstatus));
  lvwAuftragsstatus->setRootIsDecorated(false);
  lvwAuftragsstatus->setUniformRowHeights(true);
  lvwAuftragsstatus->setAllColumnsShowFocus(true);
  lvwAuftragsstatus->header()->setStretchLastSection(false);
  lvwAuftragsstatus->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  lvwAuftragsstatus->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  auto *aktualisieren = new QPushButton(QStringLiteral("&Aktualisieren"));
  aktualisieren->setObjectName(QStringLiteral("cmdAktualisieren"));
  aktualisieren->setToolTip(QStringLiteral("Liste neu laden (F5)"));
  connect(aktualisieren, &QPushButton::clicked, this, [this] { Befehl(QStringLiteral("cmdAktualisieren")); });
  auto *zeilen = new QVBoxLayout(flaeche);
  zeilen->setContentsMargins(0, 0, 0, 0);
  zeilen->addWidget(zeitraum);
  zeilen->addWidget(cboZeitraum);
  zeilen->addWidget(lvwAuftragsstatus, 1);
  zeilen->addWidget(aktualisieren);
  flaeche->setMinimumWidth(fontMetrics().averageCharWidth() * 26);
  return flaeche;
}

void frmMain::Flaechen_bauen() {
  TeilerOben->setObjectName(QStringLiteral("Teiler_Liste"));
  TeilerOben->setChildrenCollapsible(false);
  TeilerOben->addWidget(Filter_bauen());
  TeilerOben->addWidget(jgTab);
  TeilerOben->setStretchFactor(1, 1);
  TeilerUnten->setObjectName(QStringLiteral("Teiler_Auftrag"));
  TeilerUnten->setChildrenCollapsible(false);
  TeilerUnten->addWidget(TeilerOben);
  TeilerUnten->addWidget(gnTab1);
  TeilerUnten->setStretchFactor(0, 3);
  TeilerUnten->setStretchFactor(1, 2);
  auto *mitte = new QWidget;
  auto *zeilen = new QVBoxLayout(mitte);
  zeilen->addWidget(TeilerUnten);
  setCentralWidget(mitte);
  lbAnzahl->setObjectName(QStringLiteral("lbAnzahl"));
  statusBar()->addWidget(lbAnzahl);
}

}  // namespace marklink
