// The settings dialog.
#include "frmEinstellungen.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTreeWidget>

#include "clsEinstellungsfeld.h"
#include "ui/Hilfe.h"
#include "ui/Schirme.h"
#include "ui/clsOberflaeche.h"

namespace marklink {
namespace {

constexpr Einstellungsseite Seiten[] = {Einstellungsseite::Allgemein, Einstellungsseite::Zugangsdaten,
                                        Einstellungsseite::Einstellungen, Einstellungsseite::FTP_Zugang};

QPushButton *Knopf(const char *Name, const QString &Aufschrift, QWidget *Eltern) {
  auto *knopf = new QPushButton(Aufschrift, Eltern);
  knopf->setObjectName(QLatin1String(Name));
  return knopf;
}

/// Wide enough for every caption, never larger than the screen.
QSize Fenstergroesse(const QWidget &Fenster) {
  const QFontMetrics mass = Fenster.fontMetrics();
  return QSize(mass.averageCharWidth() * 122, mass.lineSpacing() * 35)
      .boundedTo(Fenster.screen()->availableSize() * 0.95);
}

}  // namespace

frmEinstellungen::frmEinstellungen(QWidget *Eltern)
    : QDialog(Eltern), tvwNavigation(new QTreeWidget(this)), picWizard(new QStackedWidget(this)) {
  setObjectName(QStringLiteral("frmEinstellungen"));
  setWindowTitle(QStringLiteral("Einstellungen zum Webshop"));
  Einstellungen_.Einstellungen_lesen();
  picWizard->setObjectName(QStringLiteral("picWizard"));
  for (const Einstellungsseite seite : Seiten) picWizard->addWidget(Seite_bauen(seite));
  Navigation_fuellen();
  auto *mitte = new QHBoxLayout;
  mitte->addWidget(tvwNavigation);
  mitte->addWidget(picWizard, 1);
  auto *zeilen = new QVBoxLayout(this);
  zeilen->addLayout(mitte, 1);
  Knoepfe_bauen(zeilen);
  Text_markieren(this);
  resize(Fenstergroesse(*this));
}

void frmEinstellungen::Navigation_fuellen() {
  tvwNavigation->setObjectName(QStringLiteral("tvwNavigation"));
  tvwNavigation->setHeaderHidden(true);
  auto *wurzel = new QTreeWidgetItem(tvwNavigation, {QStringLiteral("Einstellungen")});
  for (const Einstellungsseite seite : Seiten) new QTreeWidgetItem(wurzel, {Seitenname(seite)});
  wurzel->setExpanded(true);
  tvwNavigation->resizeColumnToContents(0);
  tvwNavigation->setFixedWidth(tvwNavigation->columnWidth(0) + tvwNavigation->indentation());
  connect(tvwNavigation, &QTreeWidget::currentItemChanged, this, &frmEinstellungen::Seite_zeigen);
  tvwNavigation->setCurrentItem(wurzel->child(0));
}

/// The root has no page of its own and shows the first one.
void frmEinstellungen::Seite_zeigen() {
  const QTreeWidgetItem *knoten = tvwNavigation->currentItem();
  const QTreeWidgetItem *wurzel = knoten != nullptr ? knoten->parent() : nullptr;
  picWizard->setCurrentIndex(wurzel != nullptr ? wurzel->indexOfChild(const_cast<QTreeWidgetItem *>(knoten))
                                               : 0);
}

QWidget *frmEinstellungen::Seite_bauen(Einstellungsseite Seite) {
  auto *inhalt = new QWidget;
  auto *zeilen = new QVBoxLayout(inhalt);
  Felder_bauen(Seite, Einstellungen_, zeilen, inhalt);
  Seitenbefehle_bauen(Seite, zeilen);
  zeilen->addStretch(1);
  auto *seite = new QScrollArea(picWizard);
  seite->setWidgetResizable(true);
  seite->setFrameShape(QFrame::NoFrame);
  seite->setFocusPolicy(Qt::NoFocus);
  seite->setWidget(inhalt);
  return seite;
}

void frmEinstellungen::Seitenbefehle_bauen(Einstellungsseite Seite, QVBoxLayout *Zeilen) {
  auto *reihe = new QHBoxLayout;
  const auto knopf = [this, reihe](const char *Name, const QString &Aufschrift, auto Befehl) {
    QPushButton *neu = Knopf(Name, Aufschrift, this);
    connect(neu, &QPushButton::clicked, this, Befehl);
    reihe->addWidget(neu);
    return neu;
  };
  const auto nichts = [] {};  // the two buttons stay without a function, on purpose
  if (Seite == Einstellungsseite::FTP_Zugang) {
    QPushButton *hochladen = Knopf("cmdFTP_Upload", QStringLiteral("Script auf den Server laden"), this);
    hochladen->setEnabled(false);
    knopf("cmdFTP_Verbindungstest", QStringLiteral("Verbindung testen"), [this, hochladen] {
      Ausfuehren([this] { Einstellungen_.Verbindung_testen(); });
      hochladen->setEnabled(Einstellungen_.Hochladen_moeglich());
    });
    connect(hochladen, &QPushButton::clicked, this,
            [this] { Ausfuehren([this] { Einstellungen_.Script_hochladen(); }); });
    reihe->addWidget(hochladen);
    knopf("Command1", QStringLiteral("Script Exists"),
          [this] { Ausfuehren([this] { Einstellungen_.Script_suchen(); }); });
  } else if (Seite == Einstellungsseite::Einstellungen) {
    knopf("Command2", QStringLiteral("Tabelle aktualisieren"),
          [this] { Ausfuehren([this] { Einstellungen_.Tabelle_aktualisieren(); }); });
    knopf("Command3", QStringLiteral("Shop-Konfig abrufen"), nichts);
    knopf("Command4", QStringLiteral("Shop-Konfig speichern"), nichts);
  }
  reihe->addStretch(1);
  Zeilen->addLayout(reihe);
}

void frmEinstellungen::Knoepfe_bauen(QVBoxLayout *Zeilen) {
  auto *reihe = new QHBoxLayout;
  reihe->addStretch(1);
  QPushButton *ok = Knopf("cmdOK", QStringLiteral("OK"), this);
  QPushButton *abbrechen = Knopf("cmdAbbrechen", QStringLiteral("Abbrechen"), this);
  QPushButton *hilfe = Knopf("cmdHilfe", QStringLiteral("Hilfe"), this);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &frmEinstellungen::Speichern);
  connect(abbrechen, &QPushButton::clicked, this, &frmEinstellungen::reject);
  connect(hilfe, &QPushButton::clicked, this, [] { Hilfe_zeigen(Hilfethema::Einstellungen); });
  for (QPushButton *knopf : {ok, abbrechen, hilfe}) reihe->addWidget(knopf);
  Zeilen->addLayout(reihe);
}

void frmEinstellungen::Ausfuehren(const std::function<void()> &Tun) {
  if (Beschaeftigt_) return;
  Beschaeftigt_ = true;
  Tun();
  Beschaeftigt_ = false;
}

void frmEinstellungen::reject() {
  if (!Beschaeftigt_) QDialog::reject();
}

void frmEinstellungen::Speichern() {
  if (Beschaeftigt_) return;
  Einstellungen_.Einstellungen_speichern();
  accept();
}

void frmEinstellungen::keyPressEvent(QKeyEvent *Ereignis) {
  if (Ereignis->key() == Qt::Key_F1)
    Hilfe_zeigen(Hilfethema::Einstellungen);
  else
    QDialog::keyPressEvent(Ereignis);
}

void Shopfenster_anmelden() {
  Schirm_anmelden(QStringLiteral("frmEinstellungen"), [] {
    frmEinstellungen fenster(QApplication::activeWindow());
    fenster.exec();
  });
}

}  // namespace marklink
